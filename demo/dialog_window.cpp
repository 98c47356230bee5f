#include "dialog_window.h"

#include "installed_icon.h"
#include "scaled.h"
#include "soft_canvas.h"

#include <afxglobals.h>
#include <afxpriv.h>

#include <algorithm>
#include <memory>
#include <type_traits>

namespace {

// Pixels at 96 DPI.
constexpr int kRowHeight = 26;
constexpr int kButtonMargin = 12;
constexpr int kIconSide = 16;
constexpr int kIconGap = 6;
constexpr int kCorner = 4;
constexpr int kItemMargin = 6;
constexpr double kPlate = 0.1; // strengths of the text's colour over the ground
constexpr double kPressedPlate = 0.25;
constexpr double kDefaultPlate = 0.3;
constexpr double kMarkedItem = 0.16;
constexpr double kEdge = 0.45;

struct IconDestroyer {
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};

/// A window and those that own it take no input as long as this lives; those that took none before take none after it.
class DisabledOwners {
public:
    explicit DisabledOwners(HWND first) {
        for (HWND window = first; window != nullptr; window = ::GetWindow(window, GW_OWNER)) {
            if (!::EnableWindow(window, FALSE)) {
                m_windows.push_back(window);
            }
        }
    }
    ~DisabledOwners() { Enable(); }
    DisabledOwners(const DisabledOwners&) = delete;
    DisabledOwners& operator=(const DisabledOwners&) = delete;

    void Enable() {
        for (const HWND window : m_windows) {
            ::EnableWindow(window, TRUE);
        }
        m_windows.clear();
    }

private:
    std::vector<HWND> m_windows;
};

CRect WorkAreaOf(const CWnd& window) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(window.GetSafeHwnd(), MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

/// Without the mark before the letter that answers.
int WidthOf(CDC& dc, const std::wstring& text) {
    CRect rect(0, 0, 0, 0);
    dc.DrawText(text.c_str(), rect, DT_CALCRECT | DT_SINGLELINE);
    return rect.Width();
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

} // namespace

BEGIN_MESSAGE_MAP(CDialogWindow, CCaptionWindow)
ON_WM_CLOSE()
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
ON_MESSAGE(WM_KICKIDLE, OnKickIdle)
ON_MESSAGE(DM_GETDEFID, OnGetDefaultButton)
END_MESSAGE_MAP()

bool CDialogWindow::Make(CWnd& owner, const std::wstring& title, DWORD style, CSize size) {
    m_isMirrored = (owner.GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    m_ground.CreateSolidBrush(m_look.colors.ground);
    const DWORD extended = WS_EX_CONTROLPARENT | (m_isMirrored ? WS_EX_LAYOUTRTL : 0);
    const DWORD own = WithoutCaption(style);
    const CRect outer(CPoint(0, 0), OuterSize(size, own));
    CRect around;
    owner.GetWindowRect(around);
    const CPoint middle = around.CenterPoint();
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DROPSHADOW, ::LoadCursor(nullptr, IDC_ARROW));
    const CPoint corner(std::max(0L, middle.x - outer.Width() / 2), std::max(0L, middle.y - outer.Height() / 2));
    if (!CreateEx(extended, windowClass, title.c_str(), own | WS_CLIPCHILDREN, CRect(corner, outer.Size()), &owner,
                  0)) {
        return false;
    }
    SetIcon(owner.GetIcon(FALSE), FALSE);
    return true;
}

void CDialogWindow::FitInside(CSize size) {
    const CRect outer(CPoint(0, 0), OuterSize(size, GetStyle()));
    const CRect screen = WorkAreaOf(*GetOwner());
    CRect around = screen;
    if (!GetOwner()->IsIconic()) {
        GetOwner()->GetWindowRect(around);
    }
    const CPoint middle = around.CenterPoint();
    const auto within = [](LONG at, LONG length, LONG from, LONG to) {
        return static_cast<int>(std::max(std::min(at, to - length), from));
    };
    SetWindowPos(nullptr, within(middle.x - outer.Width() / 2, outer.Width(), screen.left, screen.right),
                 within(middle.y - outer.Height() / 2, outer.Height(), screen.top, screen.bottom), outer.Width(),
                 outer.Height(), SWP_NOZORDER);
}

int CDialogWindow::Run(const std::function<void()>& finish) {
    const HWND owner = GetOwner()->GetSafeHwnd();
    DisabledOwners owners(owner);
    ShowWindow(SW_SHOW);
    UpdateWindow();
    const int answer = RunModalLoop(MLF_NOIDLEMSG);
    if (finish && GetSafeHwnd() != nullptr) { // it may have gone together with its owner
        finish();
    }
    owners.Enable(); // first: the system would give the focus to another program
    if (::IsWindowVisible(owner) && ::IsWindowEnabled(owner)) { // else it would come before what it waits for
        ::SetActiveWindow(owner);
    }
    DestroyWindow();
    return answer;
}

BOOL CDialogWindow::PreTranslateMessage(MSG* message) {
    const bool isInput = (message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST) ||
                         (message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST);
    return isInput && ::IsDialogMessageW(GetSafeHwnd(), message);
}

BOOL CDialogWindow::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    if (HIWORD(wParam) == BN_CLICKED && (id == IDOK || id == IDCANCEL)) {
        EndModalLoop(static_cast<int>(id));
        return TRUE;
    }
    return CCaptionWindow::OnCommand(wParam, lParam);
}

void CDialogWindow::OnClose() { EndModalLoop(IDCANCEL); }

// While the frame waits, what is idle work is done from here; the record is a part of it.
LRESULT CDialogWindow::OnKickIdle(WPARAM, LPARAM count) { return AfxGetApp()->OnIdle(static_cast<LONG>(count)); }

LRESULT CDialogWindow::OnGetDefaultButton(WPARAM, LPARAM) {
    return m_defaultButton != 0 ? MAKELRESULT(m_defaultButton, DC_HASDEFID) : 0;
}

// ---- controls

int CDialogWindow::RowHeight() { return std::max(Scaled(kRowHeight), afxGlobalData.GetTextHeight() + Scaled(2)); }

bool CDialogWindow::AddButton(CButton& button, UINT id, const std::wstring& text, const std::wstring& icon) {
    m_icons[id] = icon;
    if (!button.Create(text.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW, CRect(0, 0, 0, 0), this, id)) {
        return false;
    }
    button.SetFont(&afxGlobalData.fontRegular);
    return true;
}

bool CDialogWindow::AddLabel(CStatic& label, const std::wstring& text) {
    if (!label.Create(text.c_str(), WS_CHILD | WS_VISIBLE | SS_CENTERIMAGE | SS_NOPREFIX, CRect(0, 0, 0, 0), this)) {
        return false;
    }
    label.SetFont(&afxGlobalData.fontRegular);
    return true;
}

bool CDialogWindow::AddLink(CButton& link, UINT id, const std::wstring& text) {
    m_links.insert(id);
    return AddButton(link, id, text);
}

bool CDialogWindow::AddList(CDialogList& list, UINT id) {
    list.SetColors(m_look.colors);
    constexpr DWORD style =
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
    if (!list.Create(style, CRect(0, 0, 0, 0), this, id)) {
        return false;
    }
    list.SetFont(&afxGlobalData.fontRegular);
    return true;
}

CSize CDialogWindow::ButtonSize(UINT id) const {
    CClientDC dc(nullptr);
    CFont* const before = dc.SelectObject(&afxGlobalData.fontRegular);
    const std::wstring text = TextOf(::GetDlgItem(GetSafeHwnd(), static_cast<int>(id)));
    int width = WidthOf(dc, text);
    width += m_links.contains(id) ? 0 : 2 * Scaled(kButtonMargin);
    dc.SelectObject(before);
    const auto icon = m_icons.find(id);
    if (icon != m_icons.end() && !icon->second.empty()) {
        width += Scaled(kIconSide) + (text.empty() ? 0 : Scaled(kIconGap));
    }
    return {width, RowHeight()};
}

CDialogWindow::Part CDialogWindow::Describe(const std::string& name, const CWnd& control) {
    Part part;
    part.name = name;
    control.GetWindowRect(part.onScreen);
    part.text = TextOf(control.GetSafeHwnd());
    part.isEnabled = control.IsWindowEnabled() != FALSE;
    return part;
}

// ---- drawing

BOOL CDialogWindow::OnEraseBkgnd(CDC* dc) {
    CRect client;
    GetClientRect(client);
    dc->FillSolidRect(client, m_look.colors.ground);
    return TRUE;
}

HBRUSH CDialogWindow::OnCtlColor(CDC* dc, CWnd* /*control*/, UINT /*kind*/) {
    dc->SetTextColor(m_look.colors.text);
    dc->SetBkColor(m_look.colors.ground);
    return static_cast<HBRUSH>(m_ground.GetSafeHandle());
}

void CDialogWindow::OnMeasureItem(int /*id*/, LPMEASUREITEMSTRUCT item) {
    item->itemHeight = static_cast<UINT>(RowHeight() - Scaled(kItemMargin));
}

void CDialogWindow::OnDrawItem(int /*id*/, LPDRAWITEMSTRUCT item) {
    if (item->CtlType == ODT_BUTTON && m_links.contains(item->CtlID)) {
        DrawLink(*item);
    } else if (item->CtlType == ODT_BUTTON) {
        DrawButton(*item);
    } else {
        DrawListItem(*item);
    }
}

void CDialogWindow::DrawIcon(HDC dc, const std::wstring& name, const CRect& place) const {
    const std::wstring path = m_look.icons + L"16\\" + name + L".ico";
    const std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroyer> icon(
        LoadInstalledIcon(path.c_str(), place.Width()));
    if (icon) {
        ::DrawIconEx(dc, place.left, place.top, icon.get(), place.Width(), place.Height(), 0, nullptr, DI_NORMAL);
    }
}

void CDialogWindow::DrawButton(const DRAWITEMSTRUCT& item) const {
    CDC& target = *CDC::FromHandle(item.hDC);
    SoftCanvas canvas(target, CRect(item.rcItem));
    if (canvas.IsEmpty()) {
        return;
    }
    const ViewerColors& colors = m_look.colors;
    const bool isDefault = item.CtlID == m_defaultButton;
    const bool isDisabled = (item.itemState & ODS_DISABLED) != 0;
    const bool isPressed = (item.itemState & ODS_SELECTED) != 0;
    const CRect all(CPoint(0, 0), canvas.Size());
    canvas.Fill(all, colors.ground);
    CRect plate = all;
    if ((item.itemState & ODS_FOCUS) != 0) {
        canvas.FillRounded(all, Scaled(kCorner), colors.accent);
        plate.DeflateRect(Scaled(1), Scaled(1));
        canvas.FillRounded(plate, Scaled(kCorner) - 1, colors.ground);
    }
    canvas.FillRounded(plate, Scaled(kCorner), isDefault && !isDisabled ? colors.accent : colors.text,
                       isPressed   ? kPressedPlate
                       : isDefault ? kDefaultPlate
                                   : kPlate);
    const std::wstring text = TextOf(item.hwndItem);
    const auto icon = m_icons.find(item.CtlID);
    CDC& dc = canvas.Dc();
    int width = WidthOf(dc, text);
    const bool hasIcon = icon != m_icons.end() && !icon->second.empty();
    const int side = Scaled(kIconSide), gap = text.empty() ? 0 : Scaled(kIconGap);
    width += hasIcon ? side + gap : 0;
    CRect rest = all;
    rest.left = (all.Width() - width) / 2;
    rest.right = rest.left + width;
    if (hasIcon) {
        const int left = m_isMirrored ? rest.right - side : rest.left;
        DrawIcon(dc.GetSafeHdc(), icon->second, CRect(CPoint(left, (all.Height() - side) / 2), CSize(side, side)));
        (m_isMirrored ? rest.right : rest.left) += m_isMirrored ? -(side + gap) : side + gap;
    }
    dc.SetTextColor(isDisabled ? colors.secondary : colors.text);
    dc.DrawText(text.c_str(), rest,
                DT_SINGLELINE | DT_CENTER | DT_VCENTER | (m_isMirrored ? DT_RTLREADING : 0) |
                    ((item.itemState & ODS_NOACCEL) != 0 ? DT_HIDEPREFIX : 0));
    if (hasIcon && isDisabled) { // paler, as its text is
        canvas.FillRounded(all, 0, colors.ground, kEdge);
    }
}

void CDialogWindow::DrawLink(const DRAWITEMSTRUCT& item) const {
    CDC& target = *CDC::FromHandle(item.hDC);
    SoftCanvas canvas(target, CRect(item.rcItem));
    if (canvas.IsEmpty()) {
        return;
    }
    CRect all(CPoint(0, 0), canvas.Size());
    canvas.Fill(all, m_look.colors.ground);
    if ((item.itemState & ODS_FOCUS) != 0) {
        canvas.FillRounded(all, Scaled(kCorner), m_look.colors.accent, kMarkedItem);
    }
    CDC& dc = canvas.Dc();
    CFont* const before = dc.SelectObject(&afxGlobalData.fontUnderline);
    dc.SetTextColor(m_look.colors.accent);
    dc.DrawText(TextOf(item.hwndItem).c_str(), all,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | (m_isMirrored ? DT_RIGHT | DT_RTLREADING : DT_LEFT));
    dc.SelectObject(before);
}

void CDialogWindow::DrawListItem(const DRAWITEMSTRUCT& item) const {
    if ((item.itemState & ODS_COMBOBOXEDIT) != 0) {
        return; // the list itself draws its face
    }
    CDC& target = *CDC::FromHandle(item.hDC);
    SoftCanvas canvas(target, CRect(item.rcItem));
    if (canvas.IsEmpty()) {
        return;
    }
    const ViewerColors& colors = m_look.colors;
    CRect rect(CPoint(0, 0), canvas.Size());
    canvas.Fill(rect, colors.ground);
    if ((item.itemState & ODS_SELECTED) != 0) {
        canvas.FillRounded(rect, Scaled(kCorner), colors.text, kMarkedItem);
    }
    if (item.itemID == static_cast<UINT>(-1)) {
        return;
    }
    const auto length = ::SendMessageW(item.hwndItem, CB_GETLBTEXTLEN, item.itemID, 0);
    std::wstring text(static_cast<std::size_t>(std::max<LRESULT>(length, 0)) + 1, L'\0');
    ::SendMessageW(item.hwndItem, CB_GETLBTEXT, item.itemID, reinterpret_cast<LPARAM>(text.data()));
    rect.DeflateRect(Scaled(kItemMargin), 0);
    canvas.Dc().SetTextColor(colors.text);
    canvas.Dc().DrawText(text.c_str(), rect,
                         DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS |
                             (m_isMirrored ? DT_RIGHT | DT_RTLREADING : DT_LEFT));
}
