#include "toolbar/combo_face.h"

#include "afxtoolbarcomboboxbutton.h"
#include "fx/dc_scope.h"
#include "visual/manager_instance.h"

#include <commctrl.h>

namespace toolbar {

namespace {

constexpr UINT_PTR kSubclass = 0xFACE;
/// Between the item's edge and the text of a combo box that is not owner-drawn.
constexpr int kTextMargin = 2;

LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return ::SendMessageW(window, message, wParam, lParam);
}

struct Face {
    HWND combo;
    RECT item;
    int selected;
    bool isOwnerDrawn;
    bool isFocused;
};

Face FaceOf(HWND combo) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    Send(combo, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info));
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(combo, GWL_STYLE));
    const bool isOpen = Send(combo, CB_GETDROPPEDSTATE) != 0;
    return {combo, info.rcItem, static_cast<int>(Send(combo, CB_GETCURSEL)),
            (style & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) != 0, ::GetFocus() == combo && !isOpen};
}

void DrawByOwner(const Face& face, HDC dc) {
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_COMBOBOX;
    item.CtlID = static_cast<UINT>(::GetDlgCtrlID(face.combo));
    item.itemID = static_cast<UINT>(face.selected);
    item.itemAction = ODA_DRAWENTIRE;
    item.itemState = ODS_COMBOBOXEDIT | (::IsWindowEnabled(face.combo) ? 0u : ODS_DISABLED) |
                     (face.isFocused ? ODS_FOCUS | ODS_SELECTED : 0u);
    item.hwndItem = face.combo;
    item.hDC = dc;
    item.rcItem = face.item;
    item.itemData = static_cast<ULONG_PTR>(
        face.selected >= 0 ? Send(face.combo, CB_GETITEMDATA, static_cast<WPARAM>(face.selected)) : 0);
    Send(::GetParent(face.combo), WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
}

void DrawText(const Face& face, HDC handle) {
    CDC& dc = *CDC::FromHandle(handle);
    const fx::DcState state(dc);
    const LRESULT brush = Send(::GetParent(face.combo), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(handle),
                               reinterpret_cast<LPARAM>(face.combo));
    CRect place(face.item);
    if (face.isFocused) {
        ::FillRect(handle, place, ::GetSysColorBrush(COLOR_HIGHLIGHT));
        dc.SetTextColor(::GetSysColor(COLOR_HIGHLIGHTTEXT));
    } else {
        ::FillRect(handle, place, reinterpret_cast<HBRUSH>(brush));
    }
    CString text;
    const int length = ::GetWindowTextLengthW(face.combo);
    ::GetWindowTextW(face.combo, text.GetBuffer(length + 1), length + 1);
    text.ReleaseBuffer();
    place.DeflateRect(kTextMargin, 0);
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(text, place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

/// What the border of a field leaves of it.
struct Inside {
    CRect rect;
    int radius; ///< of its corners
};

Inside InsideOf(SIZE field) {
    const visual::Look look = visual::CurrentLook();
    const int line = look.Line();
    return {CRect(line, line, field.cx - line, field.cy - line), look.skin.isFlat ? look.Radius() - line : 0};
}

/// In the context's own units: pictures are drawn into contexts that know nothing of the window's region.
void ClipToField(HWND combo, HDC dc) {
    CRect client;
    ::GetClientRect(combo, &client);
    const Inside inside = InsideOf(client.Size());
    if (inside.radius > 0) {
        ::BeginPath(dc);
        // A mirrored context lays the shape one pixel beside: it keeps that off the border at either side.
        ::RoundRect(dc, inside.rect.left + 1, inside.rect.top, inside.rect.right, inside.rect.bottom + 1,
                    2 * inside.radius, 2 * inside.radius);
        ::EndPath(dc);
        ::SelectClipPath(dc, RGN_AND);
    }
}

void Draw(HWND combo, HDC dc) {
    const Face face = FaceOf(combo);
    const fx::DcSelection font(dc, reinterpret_cast<HGDIOBJ>(Send(combo, WM_GETFONT)));
    const int saved = ::SaveDC(dc);
    ::IntersectClipRect(dc, face.item.left, face.item.top, face.item.right, face.item.bottom);
    ClipToField(combo, dc);
    face.isOwnerDrawn ? DrawByOwner(face, dc) : DrawText(face, dc);
    ::RestoreDC(dc, saved);
}

void Paint(HWND combo) {
    PAINTSTRUCT painting{};
    if (const HDC dc = ::BeginPaint(combo, &painting)) {
        Draw(combo, dc);
        ::EndPaint(combo, &painting);
    }
}

LRESULT CALLBACK FaceProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR) noexcept {
    if (message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(window, &FaceProc, id);
    } else if (CMFCToolBarComboBoxButton::IsFlatMode()) {
        switch (message) {
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PAINT:
            Paint(window);
            return 0;
        case WM_PRINTCLIENT:
            Draw(window, reinterpret_cast<HDC>(wParam));
            return 0;
        default:
            break;
        }
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace

HRGN FaceRegion(const RECT& item, SIZE field) {
    const HRGN region = ::CreateRectRgnIndirect(&item);
    const Inside inside = InsideOf(field);
    if (inside.radius > 0) {
        // The last two sides of a rounded region lie a pixel further in than those of its rectangle.
        CRgn rounded;
        rounded.CreateRoundRectRgn(inside.rect.left, inside.rect.top, inside.rect.right + 1, inside.rect.bottom + 1,
                                   2 * inside.radius, 2 * inside.radius);
        ::CombineRgn(region, region, static_cast<HRGN>(rounded.GetSafeHandle()), RGN_AND);
    }
    return region;
}

void DrawFaceOf(HWND combo) {
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(combo, GWL_STYLE));
    if ((style & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST) {
        ::SetWindowSubclass(combo, &FaceProc, kSubclass, 0);
    }
}

} // namespace toolbar
