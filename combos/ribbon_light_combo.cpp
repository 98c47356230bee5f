#include "combos/combo_parts.h"
#include "combos/light_images.h"
#include "combos/mark_sizes.h"
#include "host_messages.h"
#include "ribbon_multi_combo.h"

IMPLEMENT_DYNCREATE(CMFCRibbonVesMultiCombo, CMFCRibbonComboBox)

namespace {
/// The list's second zone switches nothing.
constexpr int lightZone = 0;
} // namespace

struct CMFCRibbonVesMultiCombo::State : MarkedComboState<CMFCRibbonVesMultiCombo, State, bool> {
    static const std::shared_ptr<State>& Of(const CMFCRibbonVesMultiCombo& combo) { return combo.m_state; }
    void DrawItem(const CMFCRibbonVesMultiCombo& combo, CDC& dc, int index, const CRect& row) const {
        const marks::LightRow place = marks::PlaceLightRow(fx::FromRect(row), MarkSizes::Current().icon);
        DrawLight(dc, place.light, rows.GetOrEmpty(index) ? LightState::On : LightState::Off);
        DrawTextOf(combo, dc, index, place.text);
    }
    struct Change {
        bool isSet = false;
        bool isHeard = false; ///< assistive programs were told
    };
    Change SetLight(CMFCRibbonVesMultiCombo& combo, int index, bool light, bool redraw) {
        if (!rows.Set(index, CountOf(combo), light)) {
            return {};
        }
        const bool isHeard = redraw && ShowMarkChange(combo, index);
        ChangeCopies(combo, [=](CMFCRibbonVesMultiCombo& copy) { copy.SetItemLight(index, light, redraw); });
        return {true, isHeard};
    }
    CString WordsFor(int index) const { return Displayed(rows.GetOrEmpty(index) ? L"light on" : L"light off"); }
};

CMFCRibbonVesMultiCombo::CMFCRibbonVesMultiCombo() : m_state(std::make_shared<State>()) {}

CMFCRibbonVesMultiCombo::CMFCRibbonVesMultiCombo(UINT id, BOOL hasEditBox, int width, LPCTSTR label, int imageIndex)
    : CMFCRibbonComboBox(id, hasEditBox, width, label, imageIndex), m_state(std::make_shared<State>()) {}

CMFCRibbonVesMultiCombo::~CMFCRibbonVesMultiCombo() = default;

void CMFCRibbonVesMultiCombo::CopyFrom(const CMFCRibbonBaseElement& src) { State::CopyFrom(*this, src); }

// ---- items and their lights

INT_PTR CMFCRibbonVesMultiCombo::AddItem(LPCTSTR text, DWORD_PTR data) {
    State::AddItem(*this, text, data);
    return 1;
}

void CMFCRibbonVesMultiCombo::RemoveAll() { State::RemoveAll(*this); }

bool CMFCRibbonVesMultiCombo::SetItemLight(int index, bool light, bool redraw) {
    return m_state->SetLight(*this, index, light, redraw).isSet;
}

bool CMFCRibbonVesMultiCombo::SetItemLight(const wchar_t* text, bool light, bool redraw) {
    return text && SetItemLight(FindItem(text), light, redraw);
}

bool CMFCRibbonVesMultiCombo::GetItemLight(int index, bool& light) const { return m_state->rows.Get(index, light); }

void CMFCRibbonVesMultiCombo::setTypeKeyName2Index(const std::map<std::wstring, int>& map) { m_state->keys.Set(map); }

int CMFCRibbonVesMultiCombo::findIndexByTypeKeyName(const std::wstring& key) const {
    return m_state->keys.FindIndex(key);
}

std::wstring CMFCRibbonVesMultiCombo::findTypeKeyNameByIndex(int index) const { return m_state->keys.FindKey(index); }

// ---- the list

void CMFCRibbonVesMultiCombo::DropDownList() { CMFCRibbonComboBox::DropDownList(); }

std::unique_ptr<CMFCDropDownListBox> CMFCRibbonVesMultiCombo::MakeDropDownList() {
    State::PrepareToDrop(*this);
    return MakeMarkedList(*this, marks::LightZones(MarkSizes::Current().icon));
}

// ---- clicks. Whatever the host is told may be the combo's end.

bool CMFCRibbonVesMultiCombo::NotifyChangeData(int index, int zone, bool /*exclusive*/) {
    const HWND host = HostOf(*this);
    if (!host || zone != lightZone) {
        return false;
    }
    const bool light = !m_state->rows.GetOrEmpty(index);
    // The light first: assistive programs may hear of it before the item is selected.
    const bool isHeard = m_state->SetLight(*this, index, light, true).isHeard;
    SelectRow(*this, index);
    fx::ShowItemMark(*this, index, !isHeard);
    TellHost(host, WM_VESCOMBO_LIGHT_CHANGED, TextOf(*this, index), light ? 1 : 0);
    return true;
}

BOOL CMFCRibbonVesMultiCombo::OnToggleDropListItem(int index) { return NotifyChangeData(index, lightZone, false); }

void CMFCRibbonVesMultiCombo::OnLButtonDown(CPoint point) {
    if (IsDisabled()) {
        return;
    }
    const HWND host = HostOf(*this);
    const CRect edit = GetCommandRect();
    const marks::LightRow place = marks::PlaceLightRow(fx::FromRect(edit), MarkSizes::Current().icon);
    if (HasEditBox() || !host || !edit.PtInRect(point) || !fx::ToRect(place.light).PtInRect(point)) {
        CMFCRibbonComboBox::OnLButtonDown(point);
        return;
    }
    const int selected = GetCurSel();
    const bool light = !m_state->rows.GetOrEmpty(selected);
    SetItemLight(selected, light, true);
    TellHost(host, WM_VESCOMBO_LIGHT_CHANGED, GetEditText(), light ? 1 : 0);
}

// ---- drawing

BOOL CMFCRibbonVesMultiCombo::OnDrawDropListItem(CDC* dc, int index, CMFCToolBarMenuButton* row, BOOL /*highlighted*/) {
    m_state->DrawItem(*this, *dc, index, row->Rect());
    return TRUE;
}

int CMFCRibbonVesMultiCombo::GetDropListItemWidth(CDC* dc, int index, CSize /*text*/) {
    return RowWidthOf(*this, *dc, index, marks::PlaceLightRow({}, MarkSizes::Current().icon).text.left);
}

// The marks stand where a click on them counts.
void CMFCRibbonVesMultiCombo::OnDrawSelectedItem(CDC* dc, CRect /*edit*/) {
    m_state->DrawItem(*this, *dc, GetCurSel(), GetCommandRect());
}

// ---- accessibility

CString CMFCRibbonVesMultiCombo::GetShownItemText(int index) const { return DisplayedTextOf(*this, index); }

CString CMFCRibbonVesMultiCombo::GetItemStateText(int index, BOOL& /*isChecked*/) const {
    return m_state->WordsFor(index);
}
