#include "ribbon_check_combo.h"

#include "combos/check_toggle.h"
#include "combos/combo_parts.h"
#include "combos/mark_sizes.h"
#include "host_messages.h"

#include <afxglobals.h>
#include <afxvisualmanager.h>

#include <algorithm>

IMPLEMENT_DYNCREATE(CMFCRibbonCheckComb, CMFCRibbonComboBox)

namespace {

constexpr int initialListHeight = 560;
/// The boxes' only zone.
constexpr int boxZone = 0;

/// Between the sides of a row and its box or text, at any scale: the column in which a click counts ends with the box.
const CSize textMargin(1, 1);

} // namespace

int CMFCRibbonCheckComb::m_nStaticDropDownHeight = initialListHeight;

struct CMFCRibbonCheckComb::State : MarkedComboState<CMFCRibbonCheckComb, State, bool> {
    static const std::shared_ptr<State>& Of(const CMFCRibbonCheckComb& combo) { return combo.m_state; }
    /// Within the margins of a row, or of the face's edit area.
    static marks::CheckRow Place(const CMFCRibbonCheckComb& combo, CRect row) {
        row.DeflateRect(combo.m_szMargin);
        return marks::PlaceCheckRow(fx::FromRect(row), MarkSizes::Current().checkBox);
    }
    static void DrawItem(const CMFCRibbonCheckComb& combo, CDC& dc, int index, const CRect& row) {
        const marks::CheckRow place = Place(combo, row);
        const bool isChecked = combo.m_state->rows.GetOrEmpty(index);
        CMFCVisualManager::GetInstance()->OnDrawCheckBoxEx(&dc, fx::ToRect(place.box), isChecked ? 1 : 0, FALSE, FALSE,
                                                           !combo.IsDisabled());
        DrawTextOf(combo, dc, index,
                   {place.text.left, static_cast<int>(row.top), place.text.right, static_cast<int>(row.bottom)});
    }
    /// Everything that shows the check, after a user changed it.
    static void ShowChange(CMFCRibbonCheckComb& combo, int index) {
        ShowMarkChange(combo, index);
        RedrawCopies(combo);
    }
    /// The same for the checks of all items.
    static void ShowChangeOfAll(CMFCRibbonCheckComb& combo) {
        ShowMarkChange(combo, -1);
        RedrawCopies(combo);
    }
    static void RedrawCopies(CMFCRibbonCheckComb& combo) {
        ChangeCopies(combo, [](CMFCRibbonCheckComb& copy) { copy.Redraw(); });
    }
    CString WordsFor(int index) const { return Displayed(rows.GetOrEmpty(index) ? L"checked" : L"not checked"); }
};

CMFCRibbonCheckComb::CMFCRibbonCheckComb() : m_state(std::make_shared<State>()) {
    ScaleCheckBoxOnce();
    m_szMargin = textMargin;
}

CMFCRibbonCheckComb::CMFCRibbonCheckComb(UINT id, BOOL hasEditBox, int width, LPCTSTR label, int imageIndex)
    : CMFCRibbonComboBox(id, hasEditBox, width, label, imageIndex), m_state(std::make_shared<State>()) {
    m_szMargin = textMargin;
}

CMFCRibbonCheckComb::~CMFCRibbonCheckComb() = default;

void CMFCRibbonCheckComb::CopyFrom(const CMFCRibbonBaseElement& src) { State::CopyFrom(*this, src); }

// ---- items and their checks

INT_PTR CMFCRibbonCheckComb::AddItem(LPCTSTR text, DWORD_PTR data) {
    State::AddItem(*this, text, data);
    return 1;
}

void CMFCRibbonCheckComb::RemoveAll() { State::RemoveAll(*this); }

bool CMFCRibbonCheckComb::SetItemCheck(int index, bool check) {
    if (!m_state->rows.Set(index, CountOf(*this), check)) {
        return false;
    }
    State::ChangeCopies(*this, [index, check](CMFCRibbonCheckComb& copy) { copy.SetItemCheck(index, check); });
    return true;
}

bool CMFCRibbonCheckComb::GetItemCheck(int index, bool& check) const { return m_state->rows.Get(index, check); }

void CMFCRibbonCheckComb::setTypeKeyName2Index(const std::map<std::wstring, int>& map) { m_state->keys.Set(map); }

int CMFCRibbonCheckComb::findIndexByTypeKeyName(const std::wstring& key) const { return m_state->keys.FindIndex(key); }

std::wstring CMFCRibbonCheckComb::findTypeKeyNameByIndex(int index) const { return m_state->keys.FindKey(index); }

// ---- the list

void CMFCRibbonCheckComb::UserStaticDropDownHeight(bool use) { State::UseStaticHeight(*this, use); }

void CMFCRibbonCheckComb::SetStaticDropDownHeight(int height) { State::SetStaticHeight(*this, height); }

void CMFCRibbonCheckComb::DropDownList() { CMFCRibbonComboBox::DropDownList(); }

std::unique_ptr<CMFCDropDownListBox> CMFCRibbonCheckComb::MakeDropDownList() {
    State::PrepareToDrop(*this);
    const int editBottom = std::max(static_cast<int>(GetCommandRect().bottom), afxGlobalData.GetTextHeight());
    return MakeMarkedList(*this, {marks::CheckZone(MarkSizes::Current().checkBox, editBottom)});
}

// ---- clicks. Whatever the host is told may be the combo's end.

bool CMFCRibbonCheckComb::NotifyChangeData(int index, int /*zone*/, bool exclusive) {
    const HWND host = HostOf(*this);
    if (!host) {
        return false;
    }
    const bool old = m_state->rows.GetOrEmpty(index);
    if (!exclusive) {
        const CheckChange change = ToggleOne(index, old);
        SetItemCheck(index, change.check);
        SelectRow(*this, index);
        State::ShowChange(*this, index);
        TellHost(host, WM_COMBO_CHECK_CHANGED, TextOf(*this, index), static_cast<LPARAM>(change.notice));
        return true;
    }
    const std::weak_ptr<State> life = m_state;
    for (const CheckChange& change : ToggleExclusive(index, old, CountOf(*this))) {
        // The host may have taken items away since.
        if (!SetItemCheck(change.index, change.check)) {
            break;
        }
        if (!change.isTold) {
            continue;
        }
        TellHost(host, WM_COMBO_CHECK_CHANGED, TextOf(*this, change.index), static_cast<LPARAM>(change.notice));
        if (life.expired()) {
            return true;
        }
    }
    State::ShowChangeOfAll(*this);
    return true;
}

BOOL CMFCRibbonCheckComb::OnToggleDropListItem(int index) { return NotifyChangeData(index, boxZone, false); }

void CMFCRibbonCheckComb::OnLButtonDown(CPoint point) {
    if (IsDisabled()) {
        return;
    }
    const HWND host = HostOf(*this);
    const CRect edit = GetCommandRect();
    const fx::Rect zone = marks::CheckFaceZone(fx::FromRect(edit), MarkSizes::Current().checkBox);
    if (HasEditBox() || !host || !edit.PtInRect(point) || !fx::ToRect(zone).PtInRect(point)) {
        CMFCRibbonComboBox::OnLButtonDown(point);
        return;
    }
    const int selected = GetCurSel();
    const CheckChange change = ToggleOne(selected, m_state->rows.GetOrEmpty(selected));
    SetItemCheck(selected, change.check);
    State::ShowChange(*this, selected);
    TellHost(host, WM_COMBO_CHECK_CHANGED, GetEditText(), static_cast<LPARAM>(change.notice));
}

// ---- drawing

void CMFCRibbonCheckComb::OnCalcTextSize(CDC* dc) {
    CMFCRibbonComboBox::OnCalcTextSize(dc);
    m_szMargin = textMargin;
}

BOOL CMFCRibbonCheckComb::OnDrawDropListItem(CDC* dc, int index, CMFCToolBarMenuButton* row, BOOL /*highlighted*/) {
    State::DrawItem(*this, *dc, index, row->Rect());
    return TRUE;
}

int CMFCRibbonCheckComb::GetDropListItemWidth(CDC* dc, int index, CSize /*text*/) {
    return RowWidthOf(*this, *dc, index, static_cast<int>(State::Place(*this, CRect()).text.left));
}

// The marks stand where a click on them counts.
void CMFCRibbonCheckComb::OnDrawSelectedItem(CDC* dc, CRect /*edit*/) {
    State::DrawItem(*this, *dc, GetCurSel(), GetCommandRect());
}

// ---- accessibility

CString CMFCRibbonCheckComb::GetShownItemText(int index) const { return DisplayedTextOf(*this, index); }

CString CMFCRibbonCheckComb::GetItemStateText(int index, BOOL& isChecked) const {
    isChecked = m_state->rows.GetOrEmpty(index) ? TRUE : FALSE;
    return m_state->WordsFor(index);
}
