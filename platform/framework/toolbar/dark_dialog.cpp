#include "toolbar/dark_dialog.h"

#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "toolbar/metrics.h"

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

/// What a window is drawn with. Each window has its own, which goes with it.
struct Look {
    explicit Look(Colors colors)
        : text(colors.text),
          dimmedText(Mixed(colors.ground, colors.text, 45)),
          ground(colors.ground),
          face(Mixed(colors.ground, colors.text, 14)),
          pressedFace(Mixed(colors.ground, colors.text, 28)),
          border(Mixed(colors.ground, colors.text, 40)),
          groundBrush(colors.ground) {}

    COLORREF text;
    COLORREF dimmedText;
    COLORREF ground;
    COLORREF face;
    COLORREF pressedFace;
    COLORREF border;
    CBrush groundBrush;
};

Look& LookOf(DWORD_PTR data) { return *reinterpret_cast<Look*>(data); }

constexpr UINT_PTR kSubclass = 0xD1A;

void Subclass(HWND window, SUBCLASSPROC procedure, Colors colors) {
    auto look = std::make_unique<Look>(colors);
    if (::SetWindowSubclass(window, procedure, kSubclass, reinterpret_cast<DWORD_PTR>(look.get()))) {
        look.release(); // until WM_NCDESTROY
    }
}

LRESULT Leave(HWND window, SUBCLASSPROC procedure, WPARAM wParam, LPARAM lParam, DWORD_PTR data) {
    ::RemoveWindowSubclass(window, procedure, kSubclass);
    const std::unique_ptr<Look> look(&LookOf(data));
    return ::DefSubclassProc(window, WM_NCDESTROY, wParam, lParam);
}

bool HidesCue(HWND window, UINT cue) { return (::SendMessageW(window, WM_QUERYUISTATE, 0, 0) & cue) != 0; }

void DrawFocus(CDC& dc, HWND window, CRect rect) {
    if (::GetFocus() == window && !HidesCue(window, UISF_HIDEFOCUS)) {
        rect.DeflateRect(Scaled(3), Scaled(3));
        dc.DrawFocusRect(rect);
    }
}

void DrawLabel(CDC& dc, HWND window, const CString& text, CRect rect, COLORREF color) {
    const fx::DcSelection font(dc.m_hDC, reinterpret_cast<HGDIOBJ>(::SendMessageW(window, WM_GETFONT, 0, 0)));
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
    CString text;
    CWnd::FromHandle(window)->GetWindowText(text);
    DrawLabel(dc, window, text, rect, isEnabled ? look.text : look.dimmedText);
    DrawFocus(dc, window, rect);
}

bool ChangesButton(UINT message) {
    constexpr UINT kMessages[] = {BM_SETSTATE, BM_SETSTYLE,      WM_SETFOCUS,  WM_KILLFOCUS,  WM_ENABLE,
                                  WM_SETTEXT,  WM_UPDATEUISTATE, WM_LBUTTONUP, WM_LBUTTONDOWN};
    return std::ranges::find(kMessages, message) != std::end(kMessages);
}

LRESULT CALLBACK ButtonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    if (message == WM_NCDESTROY) {
        return Leave(window, &ButtonProc, wParam, lParam, data);
    }
    if (message == WM_ERASEBKGND) {
        return TRUE;
    }
    if (message == WM_PAINT) {
        CPaintDC dc(CWnd::FromHandle(window));
        PaintButton(window, dc, LookOf(data));
        return 0;
    }
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    if (ChangesButton(message) && ::IsWindow(window)) {
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); // the system has drawn its own
    }
    return result;
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
    switch (message) {
    case WM_NCDESTROY:
        return Leave(window, &TabsProc, wParam, lParam, data);
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT: {
        CPaintDC dc(CWnd::FromHandle(window));
        PaintTabs(window, dc, LookOf(data));
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

LRESULT CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    const Look& look = LookOf(data);
    switch (message) {
    case WM_NCDESTROY:
        return Leave(window, &DialogProc, wParam, lParam, data);
    case WM_ERASEBKGND: {
        RECT client;
        ::GetClientRect(window, &client);
        ::FillRect(reinterpret_cast<HDC>(wParam), &client, look.groundBrush);
        return TRUE;
    }
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX: {
        const bool isEnabled = ::IsWindowEnabled(reinterpret_cast<HWND>(lParam)) != FALSE;
        ::SetTextColor(reinterpret_cast<HDC>(wParam), isEnabled ? look.text : look.dimmedText);
        ::SetBkColor(reinterpret_cast<HDC>(wParam), look.ground);
        return reinterpret_cast<LRESULT>(static_cast<HBRUSH>(look.groundBrush));
    }
    default:
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
}

void DressListView(HWND list, Colors colors) {
    constexpr UINT kGrounds[] = {LVM_SETBKCOLOR, LVM_SETTEXTBKCOLOR};
    for (const UINT message : kGrounds) {
        ::SendMessageW(list, message, 0, static_cast<LPARAM>(colors.ground));
    }
    ::SendMessageW(list, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(colors.text));
}

void DressButton(HWND button, Colors colors) {
    const LONG type = ::GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK;
    if (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON) {
        Subclass(button, &ButtonProc, colors);
    } else {
        ::SetWindowTheme(button, L"", L""); // a themed box has a text that nobody can colour
    }
}

struct KnownControl {
    const wchar_t* className;
    void (*dress)(HWND control, Colors colors);
};

constexpr KnownControl kControls[] = {
    {WC_BUTTONW, DressButton},
    {WC_LISTVIEWW, DressListView},
    {WC_TABCONTROLW, [](HWND tabs, Colors colors) { Subclass(tabs, &TabsProc, colors); }},
};

} // namespace

void DressDialog(HWND dialog) {
    const std::optional<Colors> colors = DarkColors();
    if (!colors) {
        return;
    }
    Subclass(dialog, &DialogProc, *colors);
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[64] = {};
        ::GetClassNameW(child, name, static_cast<int>(std::size(name)));
        for (const KnownControl& known : kControls) {
            if (::lstrcmpiW(name, known.className) == 0) {
                known.dress(child, *colors);
            }
        }
    }
}

} // namespace toolbar
