#include "window_combos.h"

#include "combos/check_toggle.h"
#include "combos/combo_parts.h"
#include "combos/window_combo_parts.h"
#include "host_messages.h"

#include <afxwin.h>
#include <fx/dc_scope.h>
#include <fx/window_guard.h>

#include <commctrl.h>

#include <algorithm>
#include <utility>

IMPLEMENT_DYNCREATE(CCheckComboBox, CComboBox)

BEGIN_MESSAGE_MAP(CCheckComboBox, CComboBox)
ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CCheckComboBox::OnDropDown)
ON_WM_KEYDOWN()
ON_WM_CHAR()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_MESSAGE(WM_CTLCOLORLISTBOX, &CCheckComboBox::OnCtlColorListBox)
ON_WM_DESTROY()
ON_MESSAGE(CB_ADDSTRING, &CCheckComboBox::OnAddString)
ON_MESSAGE(CB_INSERTSTRING, &CCheckComboBox::OnAddString)
ON_MESSAGE(CB_DELETESTRING, &CCheckComboBox::OnDeleteString)
ON_MESSAGE(CB_RESETCONTENT, &CCheckComboBox::OnResetContent)
END_MESSAGE_MAP()

namespace {

constexpr UINT spaceKey = L' ';
/// The key was down before: the character repeats itself.
constexpr UINT repeatedFlag = KF_REPEAT;
/// Beyond the height of the text: where a click counts, and where the text begins.
constexpr int zoneMargin = 6;
constexpr int textMargin = 7;
/// An item rectangle that begins before this, that of the face, is drawn from the combo's edge.
constexpr int leastLeft = 6;

/// Height and leading of the combo's own font, from which drawing and clicks take the width of the check box.
int MarkWidth(const CComboBox& combo) {
    CClientDC dc(const_cast<CComboBox*>(&combo));
    const CFont* const font = combo.GetFont();
    const fx::DcSelection selected(dc, font ? font->m_hObject : nullptr);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    return static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading);
}

int PaintBox(const CComboBox& combo, CDC& dc, const DRAWITEMSTRUCT& item, const marks::Rect& row) {
    const auto& checks = static_cast<const CCheckComboBox&>(combo);
    const int right = row.left + MarkWidth(combo) + textMargin;
    UINT state = DFCS_BUTTONCHECK;
    state |= checks.GetCheck(static_cast<int>(item.itemID)) != 0 ? DFCS_CHECKED : 0u;
    state |= ::IsWindowEnabled(combo.m_hWnd) ? 0u : DFCS_INACTIVE;
    CRect box(row.left + 1, row.top + 1, right - 1, row.bottom - 1);
    dc.DrawFrameControl(box, DFC_BUTTON, state);
    return right;
}

} // namespace

/// The drop-down list of a check combo: there is one open list in the process at a time, so the combo that it belongs
/// to stands in one slot.
class CCheckComboBox::List {
public:
    static void Opens(CCheckComboBox& combo) {
        s_current = &combo;
        s_choosing = false;
    }
    static void Forget(const CCheckComboBox& combo) {
        if (s_current == &combo) {
            s_current = nullptr;
        }
    }
    static bool Subclass(HWND list) { return ::SetWindowSubclass(list, &Proc, kSubclass, 0) != FALSE; }

private:
    static constexpr UINT_PTR kSubclass = 1;

    static LRESULT CALLBACK Proc(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                 DWORD_PTR /*data*/) noexcept {
        if (message == WM_NCDESTROY) {
            ::RemoveWindowSubclass(list, &Proc, id);
        } else if (s_current && s_current->m_list == list && Handle(list, message, wParam, lParam)) {
            return 0;
        }
        return ::DefSubclassProc(list, message, wParam, lParam);
    }

    /// True: the list itself does not get the message.
    static bool Handle(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
        const CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
        switch (message) {
        case WM_CHAR:
            return wParam == spaceKey && PressSpace(list, HIWORD(lParam));
        case WM_LBUTTONDOWN:
            return Press(list, point);
        case WM_LBUTTONUP:
            return !std::exchange(s_choosing, false);
        case WM_LBUTTONDBLCLK:
            return DoubleClick(list, point);
        default:
            return false;
        }
    }

    static int ItemAt(HWND list, CPoint point) {
        CRect client;
        ::GetClientRect(list, client);
        const auto height = static_cast<int>(::SendMessageW(list, LB_GETITEMHEIGHT, 0, 0));
        if (!client.PtInRect(point) || height <= 0) {
            return -1;
        }
        const auto top = static_cast<int>(::SendMessageW(list, LB_GETTOPINDEX, 0, 0));
        const int index = top + static_cast<int>(point.y) / height;
        return index < static_cast<int>(::SendMessageW(list, LB_GETCOUNT, 0, 0)) ? index : -1;
    }
    static CRect RectOf(HWND list, int index) {
        CRect rect(0, 0, 0, 0);
        ::SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    static bool IsOnBox(HWND list, int index, CPoint point) {
        return point.x < RectOf(list, index).left + s_current->CheckZoneWidth();
    }

    static bool PressSpace(HWND list, UINT flags) {
        const auto index = static_cast<int>(::SendMessageW(list, LB_GETCURSEL, 0, 0));
        if (index >= 0 && (flags & repeatedFlag) == 0) {
            s_current->Toggle(index);
        }
        return true;
    }

    static bool Press(HWND list, CPoint point) {
        const int index = ItemAt(list, point);
        if (index < 0) {
            s_choosing = true; // beside the items: the list closes as any other
            return false;
        }
        CCheckComboBox& combo = *s_current;
        const fx::WindowGuard guard(&combo);
        const CRect row = RectOf(list, index);
        ::InvalidateRect(list, row, FALSE);
        const bool isOnBox = IsOnBox(list, index, point);
        window_combo::TellParent(combo, CBN_SELCHANGE);
        if (guard.IsGone() || !::IsWindow(list)) {
            return true;
        }
        if (!isOnBox) {
            s_choosing = true;
            return false;
        }
        if (combo.Toggle(index)) {
            window_combo::TellParent(combo, CBN_SELCHANGE);
        }
        return true;
    }

    static bool DoubleClick(HWND list, CPoint point) {
        const int index = ItemAt(list, point);
        if (index < 0 || !IsOnBox(list, index, point)) {
            s_choosing = true;
            return false;
        }
        GiveToAll(*s_current, index);
        return true;
    }

    /// The clicked item's check becomes that of all, of which the host then hears one by one.
    static void GiveToAll(CCheckComboBox& combo, int index) {
        const fx::WindowGuard guard(&combo);
        combo.CheckAll(combo.GetCheck(index));
        for (int i = 0; i < combo.GetCount(); ++i) {
            combo.SetCurSel(i);
        }
        combo.SetCurSel(index);
        window_combo::TellParent(combo, 0);
        for (int i = 0; guard.IsAlive() && i < combo.GetCount(); ++i) {
            TellHost(window_combo::HostOf(combo), WM_COMBO_CHECK_CHANGED, window_combo::TextOf(combo, i),
                     combo.GetCheck(i));
        }
    }

    static CCheckComboBox* s_current;
    /// The press was on a text: what follows is the list's own.
    static bool s_choosing;
};

CCheckComboBox* CCheckComboBox::List::s_current = nullptr;
bool CCheckComboBox::List::s_choosing = false;

CCheckComboBox::CCheckComboBox() = default;

CCheckComboBox::~CCheckComboBox() { List::Forget(*this); }

BOOL CCheckComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CComboBox::Create(style | window_combo::ownerDrawn, rect, parent, id);
}

void CCheckComboBox::OnDestroy() {
    List::Forget(*this);
    m_list = nullptr;
    CComboBox::OnDestroy();
    m_checks.clear();
}

// ---- states

// Items that were there before the object (a dialog's template has some), or that the system lists, have none yet.
void CCheckComboBox::AddMissingStates() {
    const auto items = static_cast<std::size_t>(m_hWnd ? std::max(0, GetCount()) : 0);
    if (items > m_checks.size()) {
        m_checks.resize(items, static_cast<unsigned char>(0));
    }
}

int CCheckComboBox::SetCheck(int index, int check, int redraw) {
    AddMissingStates();
    if (index < 0 || index >= static_cast<int>(m_checks.size())) {
        return 0;
    }
    const auto wanted = static_cast<unsigned char>(check != 0 ? 1 : 0);
    const unsigned char before = std::exchange(m_checks[static_cast<std::size_t>(index)], wanted);
    if (before != wanted && redraw != 0 && m_hWnd) {
        Invalidate();
        RepaintList();
    }
    return before;
}

int CCheckComboBox::GetCheck(int index) const {
    return index >= 0 && index < static_cast<int>(m_checks.size()) ? m_checks[static_cast<std::size_t>(index)] : 0;
}

void CCheckComboBox::CheckAll(int check) {
    AddMissingStates();
    for (int i = 0; i < static_cast<int>(m_checks.size()); ++i) {
        SetCheck(i, check, 1);
    }
}

void CCheckComboBox::RepaintList() const {
    if (m_list && GetDroppedState()) {
        ::InvalidateRect(m_list, nullptr, FALSE);
    }
}

LRESULT CCheckComboBox::OnAddString(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    AddMissingStates();
    const LRESULT index = Default();
    if (index >= 0 && static_cast<std::size_t>(index) <= m_checks.size()) {
        m_checks.insert(m_checks.begin() + index, static_cast<unsigned char>(0));
    }
    return index;
}

LRESULT CCheckComboBox::OnDeleteString(WPARAM wParam, LPARAM /*lParam*/) {
    AddMissingStates();
    const fx::WindowGuard guard(this);
    const LRESULT left = Default(); // the parent hears of it
    if (guard.IsAlive() && left != CB_ERR && wParam < m_checks.size()) {
        m_checks.erase(m_checks.begin() + static_cast<std::ptrdiff_t>(wParam));
    }
    return left;
}

LRESULT CCheckComboBox::OnResetContent(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    m_checks.clear();
    return Default();
}

// ---- input

int CCheckComboBox::CheckZoneWidth() const { return MarkWidth(*this) + zoneMargin; }

bool CCheckComboBox::IsInCheckZone(CPoint point) const {
    CRect zone;
    GetClientRect(&zone);
    zone.right = CheckZoneWidth();
    return zone.PtInRect(point) != FALSE;
}

bool CCheckComboBox::Toggle(int index) {
    const CheckChange change = ToggleOne(index, GetCheck(index) != 0);
    const fx::WindowGuard guard(this);
    SetCheck(index, change.check ? 1 : 0, 1);
    TellHost(window_combo::HostOf(*this), WM_COMBO_CHECK_CHANGED, window_combo::TextOf(*this, index),
             static_cast<LPARAM>(change.notice));
    if (guard.IsGone()) {
        return false;
    }
    window_combo::TellParent(*this, 0);
    return guard.IsAlive();
}

void CCheckComboBox::OnLButtonDown(UINT flags, CPoint point) {
    if (GetDroppedState() || !IsInCheckZone(point)) {
        CComboBox::OnLButtonDown(flags, point);
    } else if (const int selected = GetCurSel(); selected >= 0) {
        Toggle(selected);
    }
}

// The second click of a fast user.
void CCheckComboBox::OnLButtonDblClk(UINT flags, CPoint point) {
    if (GetDroppedState() || !IsInCheckZone(point)) {
        CComboBox::OnLButtonDblClk(flags, point);
    } else {
        OnLButtonDown(flags, point);
    }
}

// Space belongs to the check box; a combo that acts on the key itself must not get it.
void CCheckComboBox::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (key != VK_SPACE) {
        CComboBox::OnKeyDown(key, repeat, flags);
    }
}

void CCheckComboBox::OnChar(UINT character, UINT repeat, UINT flags) {
    if (character != spaceKey || GetDroppedState()) {
        CComboBox::OnChar(character, repeat, flags);
        return;
    }
    if (const int selected = GetCurSel(); selected >= 0 && (flags & repeatedFlag) == 0) {
        Toggle(selected);
    }
}

// ---- the list

BOOL CCheckComboBox::OnDropDown() {
    List::Opens(*this);
    return FALSE; // the parent hears of it too
}

LRESULT CCheckComboBox::OnCtlColorListBox(WPARAM wParam, LPARAM lParam) {
    const auto list = reinterpret_cast<HWND>(lParam);
    if (list != m_hWnd && !m_list && List::Subclass(list)) {
        m_list = list;
    }
    CDC* const dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam));
    return reinterpret_cast<LRESULT>(CComboBox::OnCtlColor(dc, CWnd::FromHandle(list), CTLCOLOR_LISTBOX));
}

// ---- drawing

void CCheckComboBox::MeasureItem(LPMEASUREITEMSTRUCT item) { item->itemHeight = window_combo::rowHeight; }

void CCheckComboBox::DrawItem(LPDRAWITEMSTRUCT item) {
    marks::Rect row = fx::FromRect(item->rcItem);
    if (row.left < leastLeft) {
        row.left = 0;
    }
    window_combo::DrawRow(*this, *item, row, window_combo::Face::SimSun, &PaintBox);
}
