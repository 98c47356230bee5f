#include "toolbar/dark_dialog.h"

#include "afxvisualmanager.h"
#include "fx/dark_caption.h"
#include "fx/dc_scope.h"
#include "fx/registered_messages.h"
#include "toolbar/dialog_fields.h"
#include "toolbar/metrics.h"
#include "visual/manager_instance.h"
#include "visual/paint_ribbon.h"

#include <algorithm>
#include <memory>
#include <optional>

#include <commctrl.h>
#include <uxtheme.h>

namespace toolbar {

namespace {

struct Colors {
    COLORREF ground;
    COLORREF text;
};

int Brightness(COLORREF color) { return GetRValue(color) * 3 + GetGValue(color) * 6 + GetBValue(color); }

/// Nothing where the look is light. It is known by the ground of the dialog's list of commands.
std::optional<Colors> DarkColors() {
    constexpr int kSide = 4;
    CClientDC screen(nullptr);
    CDC memory;
    CBitmap bitmap;
    if (!memory.CreateCompatibleDC(&screen) || !bitmap.CreateCompatibleBitmap(&screen, kSide, kSide)) {
        return std::nullopt;
    }
    const fx::DcSelection selected(memory.m_hDC, bitmap.m_hObject);
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    const COLORREF text = manager->OnFillCommandsListBackground(&memory, CRect(0, 0, kSide, kSide), FALSE);
    const COLORREF ground = memory.GetPixel(kSide / 2, kSide / 2);
    return Brightness(ground) < Brightness(text) ? std::optional(Colors{ground, text}) : std::nullopt;
}

/// `part` hundredths of the way from one colour to the other.
COLORREF Mixed(COLORREF from, COLORREF to, int part) {
    const auto mix = [part](int a, int b) { return a + (b - a) * part / 100; };
    return RGB(mix(GetRValue(from), GetRValue(to)), mix(GetGValue(from), GetGValue(to)),
               mix(GetBValue(from), GetBValue(to)));
}

/// Pale, yet seen on the ground.
COLORREF Dimmed(COLORREF text, COLORREF ground) {
    constexpr int kPalest = 45, kStep = 5;
    constexpr double kSeen = 3.0;
    int part = kPalest;
    while (part < 100 &&
           visual::Contrast(visual::FromColorRef(Mixed(ground, text, part)), visual::FromColorRef(ground)) < kSeen) {
        part += kStep;
    }
    return Mixed(ground, text, part);
}

using MaybeColors = std::optional<Colors>; ///< nothing: the system draws

/// What a window is drawn with under a dark look.
struct Look {
    explicit Look(Colors colors)
        : text(colors.text),
          ground(colors.ground),
          face(Mixed(colors.ground, colors.text, 14)),
          pressedFace(Mixed(colors.ground, colors.text, 28)),
          border(Mixed(colors.ground, colors.text, 40)),
          dimmedText(Dimmed(colors.text, face)),
          groundBrush(colors.ground) {}

    FieldColors OfFields() const { return {text, dimmedText, ground, face, border}; }

    COLORREF text;
    COLORREF ground;
    COLORREF face;
    COLORREF pressedFace;
    COLORREF border;
    COLORREF dimmedText; ///< on faces
    CBrush groundBrush;
};

/// What a window that was dressed keeps, and what goes with it. Under a light look there is nothing in it.
struct Dress {
    std::unique_ptr<const Look> look;

    void Take(const MaybeColors& colors) { look = colors ? std::make_unique<const Look>(*colors) : nullptr; }
};

Dress& DressOf(DWORD_PTR data) { return *reinterpret_cast<Dress*>(data); }
/// Null: the system draws.
const Look* LookOf(DWORD_PTR data) { return DressOf(data).look.get(); }

constexpr UINT_PTR kSubclass = 0xD1A;
/// The window's Dress, to find it again.
constexpr wchar_t kDressProperty[] = L"Framework.DialogDress";

void Subclass(HWND window, SUBCLASSPROC procedure, const MaybeColors& colors) {
    if (const HANDLE dressed = ::GetPropW(window, kDressProperty)) {
        static_cast<Dress*>(dressed)->Take(colors);
        return;
    }
    auto dress = std::make_unique<Dress>();
    dress->Take(colors);
    if (::SetWindowSubclass(window, procedure, kSubclass, reinterpret_cast<DWORD_PTR>(dress.get()))) {
        ::SetPropW(window, kDressProperty, dress.release()); // until WM_NCDESTROY
    }
}

LRESULT Leave(HWND window, SUBCLASSPROC procedure, WPARAM wParam, LPARAM lParam, DWORD_PTR data) {
    ::RemoveWindowSubclass(window, procedure, kSubclass);
    ::RemovePropW(window, kDressProperty);
    const std::unique_ptr<Dress> dress(&DressOf(data));
    return ::DefSubclassProc(window, WM_NCDESTROY, wParam, lParam);
}

/// What a control does that is painted by `paint` in the system's place, which draws its own when something has
/// changed.
template <class Paint>
LRESULT PaintInstead(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool (*changes)(UINT), Paint paint) {
    if (message == WM_ERASEBKGND) {
        return TRUE;
    }
    if (message == WM_PAINT) {
        CPaintDC dc(CWnd::FromHandle(window));
        paint(dc);
        return 0;
    }
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    if (changes(message) && ::IsWindow(window)) {
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    return result;
}

void DrawFocus(CDC& dc, HWND window, CRect rect) {
    if (::GetFocus() == window && !HidesCue(window, UISF_HIDEFOCUS)) {
        rect.DeflateRect(Scaled(2), Scaled(2));
        visual::PaintFocus(dc, rect, visual::FromColorRef(dc.GetPixel(rect.TopLeft())), visual::CurrentLook());
    }
}

void DrawLabel(CDC& dc, HWND window, const CString& text, CRect rect, COLORREF color) {
    const fx::DcSelection font(dc.m_hDC, FontOf(window));
    const fx::TextColour colour(dc, color);
    const UINT prefix = HidesCue(window, UISF_HIDEACCEL) ? DT_HIDEPREFIX : 0u;
    dc.DrawText(text, rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER | prefix);
}

// ---- push buttons

void PaintButton(HWND window, CDC& dc, const Look& look) {
    CRect rect;
    ::GetClientRect(window, &rect);
    const bool isPressed = (::SendMessageW(window, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
    const bool isEnabled = ::IsWindowEnabled(window) != FALSE;
    const bool isDefault = (::GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    dc.FillSolidRect(rect, isPressed ? look.pressedFace : look.face);
    dc.Draw3dRect(rect, isDefault ? look.text : look.border, isDefault ? look.text : look.border);
    DrawLabel(dc, window, TextOf(window), rect, isEnabled ? look.text : look.dimmedText);
    DrawFocus(dc, window, rect);
}

bool ChangesButton(UINT message) {
    constexpr UINT kMessages[] = {BM_SETSTATE, BM_SETCHECK, BM_SETSTYLE,      WM_SETFOCUS,  WM_KILLFOCUS,
                                  WM_ENABLE,   WM_SETTEXT,  WM_UPDATEUISTATE, WM_LBUTTONUP, WM_LBUTTONDOWN};
    return std::ranges::find(kMessages, message) != std::end(kMessages);
}

LRESULT CALLBACK ButtonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    if (message == WM_NCDESTROY) {
        return Leave(window, &ButtonProc, wParam, lParam, data);
    }
    const Look* const look = LookOf(data);
    if (look == nullptr) {
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
    return PaintInstead(window, message, wParam, lParam, &ChangesButton,
                        [&](CDC& dc) { PaintButton(window, dc, *look); });
}

// ---- boxes to be checked

bool IsBox(HWND button) {
    const LONG type = ::GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK;
    return type == BS_CHECKBOX || type == BS_AUTOCHECKBOX || type == BS_3STATE || type == BS_AUTO3STATE;
}

LRESULT CALLBACK BoxProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    if (message == WM_NCDESTROY) {
        return Leave(window, &BoxProc, wParam, lParam, data);
    }
    if (LookOf(data) == nullptr && !RunsFromTheRight(window)) {
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
    return PaintInstead(window, message, wParam, lParam, &ChangesButton, [&](CDC& dc) { PaintBox(window, dc); });
}

// ---- lists and fields

LRESULT CALLBACK FieldProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    if (message == WM_NCDESTROY) {
        return Leave(window, &FieldProc, wParam, lParam, data);
    }
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    const Look* const look = message == WM_NCPAINT ? LookOf(data) : nullptr;
    if (look != nullptr) {
        PaintFieldBorder(window, look->OfFields());
    }
    return result;
}

bool ChangesCombo(UINT message) {
    constexpr UINT kMessages[] = {CB_SETCURSEL,  CB_SHOWDROPDOWN, WM_SETFOCUS,  WM_KILLFOCUS,   WM_ENABLE,
                                  WM_COMMAND,    WM_KEYDOWN,      WM_CHAR,      WM_SETTEXT,     WM_UPDATEUISTATE,
                                  WM_MOUSEWHEEL, WM_LBUTTONUP,    WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_CAPTURECHANGED};
    return std::ranges::find(kMessages, message) != std::end(kMessages);
}

LRESULT CALLBACK DropListProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    if (message == WM_NCDESTROY) {
        return Leave(window, &DropListProc, wParam, lParam, data);
    }
    const Look* const look = LookOf(data);
    if (look == nullptr) {
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
    return PaintInstead(window, message, wParam, lParam, &ChangesCombo,
                        [&](CDC& dc) { PaintDropList(window, dc, look->OfFields()); });
}

/// Whether the list view's rows are painted here: the system has one bright ground for a selected row without the
/// keyboard, and mirrors ticks.
LRESULT OnListNotice(const NMHDR& header, const Look* look, LRESULT otherwise) {
    if (header.code != static_cast<UINT>(NM_CUSTOMDRAW) || (look == nullptr && !RunsFromTheRight(header.hwndFrom))) {
        return otherwise;
    }
    const auto& row = reinterpret_cast<const NMLVCUSTOMDRAW&>(header);
    if (row.nmcd.dwDrawStage == CDDS_PREPAINT) {
        return CDRF_NOTIFYITEMDRAW;
    }
    if (row.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) {
        PaintListRow(row);
        return CDRF_SKIPDEFAULT;
    }
    return otherwise;
}

bool IsListView(HWND window) {
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return ::lstrcmpiW(name, WC_LISTVIEWW) == 0;
}

// ---- tabs

CString TabText(HWND tabs, int index) {
    wchar_t text[128] = {};
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = static_cast<int>(std::size(text));
    ::SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    return text;
}

void PaintTabs(HWND window, CDC& dc, const Look& look) {
    CRect client;
    ::GetClientRect(window, &client);
    dc.FillSolidRect(client, look.ground);
    CRect body = client;
    ::SendMessageW(window, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&body));
    CRect frame(client.left, body.top - 2, client.right, client.bottom);
    dc.Draw3dRect(frame, look.border, look.border);
    const auto count = static_cast<int>(::SendMessageW(window, TCM_GETITEMCOUNT, 0, 0));
    const auto selected = static_cast<int>(::SendMessageW(window, TCM_GETCURSEL, 0, 0));
    for (int index = 0; index < count; ++index) {
        CRect tab;
        ::SendMessageW(window, TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tab));
        tab.bottom = frame.top + 1;
        const bool isSelected = index == selected;
        dc.FillSolidRect(tab, isSelected ? look.face : look.ground);
        dc.Draw3dRect(tab, look.border, look.border);
        if (isSelected) {
            dc.FillSolidRect(tab.left + 1, tab.bottom - 1, tab.Width() - 2, 1, look.face); // open towards the page
        }
        DrawLabel(dc, window, TabText(window, index), tab, isSelected ? look.text : Mixed(look.ground, look.text, 75));
        if (isSelected) {
            DrawFocus(dc, window, tab);
        }
    }
}

LRESULT CALLBACK TabsProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    if (message == WM_NCDESTROY) {
        return Leave(window, &TabsProc, wParam, lParam, data);
    }
    const Look* const look = LookOf(data);
    if (look == nullptr) {
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
    switch (message) {
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT: {
        CPaintDC dc(CWnd::FromHandle(window));
        PaintTabs(window, dc, *look);
        return 0;
    }
    case TCM_SETCURSEL:
    case TCM_SETCURFOCUS:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_LBUTTONDOWN:
    case WM_KEYDOWN: {
        const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
        ::InvalidateRect(window, nullptr, FALSE);
        return result;
    }
    default:
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
}

// ---- the dialog

void Dress(HWND dialog, const MaybeColors& colors);

// Who opens a dialog hears of a new look with the frames; its pages do not.
void FollowLook(HWND dialog) {
    Dress(dialog, DarkColors());
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        ::SendMessageW(child, AFX_WM_CHANGEVISUALMANAGER, 0, 0);
    }
    ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

LRESULT ColorControl(const Look& look, HDC dc, HWND control) {
    ::SetTextColor(dc, ::IsWindowEnabled(control) ? look.text : look.dimmedText);
    ::SetBkColor(dc, look.ground);
    return reinterpret_cast<LRESULT>(static_cast<HBRUSH>(look.groundBrush));
}

LRESULT CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    if (message == WM_NCDESTROY) {
        return Leave(window, &DialogProc, wParam, lParam, data);
    }
    if (message == AFX_WM_CHANGEVISUALMANAGER) {
        FollowLook(window);
    }
    const Look* const look = LookOf(data);
    if (message == WM_NOTIFY) {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
        return IsListView(header.hwndFrom) ? OnListNotice(header, look, result) : result;
    }
    if (look == nullptr) {
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
    switch (message) {
    case WM_ERASEBKGND: {
        RECT client;
        ::GetClientRect(window, &client);
        ::FillRect(reinterpret_cast<HDC>(wParam), &client, look->groundBrush);
        return TRUE;
    }
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
        return ColorControl(*look, reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    default:
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
}

void DressListView(HWND list, const MaybeColors& colors) {
    const COLORREF ground = colors ? colors->ground : ::GetSysColor(COLOR_WINDOW);
    const COLORREF text = colors ? colors->text : ::GetSysColor(COLOR_WINDOWTEXT);
    constexpr UINT kGrounds[] = {LVM_SETBKCOLOR, LVM_SETTEXTBKCOLOR};
    for (const UINT message : kGrounds) {
        ::SendMessageW(list, message, 0, static_cast<LPARAM>(ground));
    }
    ::SendMessageW(list, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(text));
    Subclass(list, &FieldProc, colors);
}

void DressButton(HWND button, const MaybeColors& colors) {
    const LONG type = ::GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK;
    if (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON) {
        Subclass(button, &ButtonProc, colors);
    } else if (IsBox(button)) {
        Subclass(button, &BoxProc, colors);
    } else {
        // A themed box has a text that nobody can colour.
        const wchar_t* const theme = colors ? L"" : nullptr;
        ::SetWindowTheme(button, theme, theme);
    }
}

struct KnownControl {
    const wchar_t* className;
    void (*dress)(HWND control, const MaybeColors& colors);
};

void DressField(HWND field, const MaybeColors& colors) { Subclass(field, &FieldProc, colors); }

void DressCombo(HWND combo, const MaybeColors& colors) {
    if ((::GetWindowLongW(combo, GWL_STYLE) & (CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) ==
        CBS_DROPDOWNLIST) {
        Subclass(combo, &DropListProc, colors);
    }
}

constexpr KnownControl kControls[] = {
    {WC_BUTTONW, DressButton},
    {WC_LISTVIEWW, DressListView},
    {WC_LISTBOXW, DressField},
    {WC_EDITW, DressField},
    {WC_COMBOBOXW, DressCombo},
    {WC_TABCONTROLW, [](HWND tabs, const MaybeColors& colors) { Subclass(tabs, &TabsProc, colors); }},
};

void Dress(HWND dialog, const MaybeColors& colors) {
    Subclass(dialog, &DialogProc, colors);
    if ((::GetWindowLongW(dialog, GWL_STYLE) & WS_CHILD) == 0) {
        fx::SetDarkCaption(dialog, colors.has_value());
    }
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[64] = {};
        ::GetClassNameW(child, name, static_cast<int>(std::size(name)));
        for (const KnownControl& known : kControls) {
            if (::lstrcmpiW(name, known.className) == 0) {
                known.dress(child, colors);
            }
        }
    }
}

} // namespace

bool IsLookDark() { return DarkColors().has_value(); }

void DressDialog(HWND dialog) { Dress(dialog, DarkColors()); }

} // namespace toolbar
