#include "toolbar/combo_face.h"

#include "afxtoolbarcomboboxbutton.h"
#include "fx/dc_scope.h"

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

void Draw(HWND combo, HDC dc) {
    const Face face = FaceOf(combo);
    const fx::DcSelection font(dc, reinterpret_cast<HGDIOBJ>(Send(combo, WM_GETFONT)));
    const int saved = ::SaveDC(dc);
    ::IntersectClipRect(dc, face.item.left, face.item.top, face.item.right, face.item.bottom);
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

void DrawFaceOf(HWND combo) {
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(combo, GWL_STYLE));
    if ((style & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST) {
        ::SetWindowSubclass(combo, &FaceProc, kSubclass, 0);
    }
}

} // namespace toolbar
