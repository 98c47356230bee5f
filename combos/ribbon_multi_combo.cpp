#include "ribbon_multi_combo.h"

#include "combos/combo_parts.h"
#include "combos/light_images.h"
#include "combos/mark_sizes.h"
#include "host_messages.h"

IMPLEMENT_DYNCREATE(CMFCRibbonMultiCombo, CMFCRibbonComboBox)

namespace {

constexpr int initialListHeight = 560;

// Zones of a row.
constexpr int swatchZone = 0;
constexpr int lightZone = 1;
/// The list has no zone for it: a caller of NotifyChangeData means it.
constexpr int actionZone = 2;

} // namespace

int CMFCRibbonMultiCombo::m_nStaticDropDownHeight = initialListHeight;

struct CMFCRibbonMultiCombo::State : MarkedComboState<CMFCRibbonMultiCombo, State, rowInfo> {
    static const std::shared_ptr<State>& Of(const CMFCRibbonMultiCombo& combo) { return combo.m_state; }
    void DrawItem(const CMFCRibbonMultiCombo& combo, CDC& dc, int index, const CRect& row) const {
        const rowInfo info = rows.GetOrEmpty(index);
        const marks::SwatchRow place = marks::PlaceSwatchRow(fx::FromRect(row), ScaledIconSize());
        const CRect swatch = fx::ToRect(place.swatch);
        if (!swatch.IsRectEmpty()) {
            CBrush brush(info.clr);
            dc.FillRect(swatch, &brush);
            dc.FrameRect(swatch, CBrush::FromHandle(static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH))));
        }
        DrawLightScaled(dc, place.light, info.light ? LightState::On : LightState::Off);
        DrawTextOf(combo, dc, index, place.text);
    }
    CString WordsFor(int index) const {
        const rowInfo info = rows.GetOrEmpty(index);
        CString words;
        words.Format(L"%s, %s #%02X%02X%02X", Displayed(info.light ? L"light on" : L"light off").GetString(),
                     Displayed(L"colour").GetString(), GetRValue(info.clr), GetGValue(info.clr), GetBValue(info.clr));
        return words;
    }
};

CMFCRibbonMultiCombo::CMFCRibbonMultiCombo() : m_state(std::make_shared<State>()) {}

CMFCRibbonMultiCombo::CMFCRibbonMultiCombo(UINT id, BOOL hasEditBox, int width, LPCTSTR label, int imageIndex)
    : CMFCRibbonComboBox(id, hasEditBox, width, label, imageIndex), m_state(std::make_shared<State>()) {
    EnlargeIconOnce();
}

CMFCRibbonMultiCombo::~CMFCRibbonMultiCombo() = default;

void CMFCRibbonMultiCombo::CopyFrom(const CMFCRibbonBaseElement& src) { State::CopyFrom(*this, src); }

// ---- items and their states

INT_PTR CMFCRibbonMultiCombo::AddItem(LPCTSTR text, DWORD_PTR data) {
    State::AddItem(*this, text, data);
    return 1;
}

void CMFCRibbonMultiCombo::RemoveAll() { State::RemoveAll(*this); }

bool CMFCRibbonMultiCombo::SetItemClr(int index, const COLORREF& clr, bool redraw) {
    if (!m_state->rows.Modify(index, CountOf(*this), [clr](rowInfo& info) { info.clr = clr; })) {
        return false;
    }
    if (redraw) {
        ShowMarkChange(*this, index);
    }
    State::ChangeCopies(*this, [=](CMFCRibbonMultiCombo& copy) { copy.SetItemClr(index, clr, redraw); });
    return true;
}

bool CMFCRibbonMultiCombo::SetItemClr(const wchar_t* text, const COLORREF& clr, bool redraw) {
    return text && SetItemClr(FindItem(text), clr, redraw);
}

bool CMFCRibbonMultiCombo::GetItemClr(int index, COLORREF& clr) const {
    rowInfo info;
    if (!m_state->rows.Get(index, info)) {
        return false;
    }
    clr = info.clr;
    return true;
}

bool CMFCRibbonMultiCombo::SetItemLight(int index, bool light, bool redraw) {
    if (!m_state->rows.Modify(index, CountOf(*this), [light](rowInfo& info) { info.light = light; })) {
        return false;
    }
    if (redraw) {
        ShowMarkChange(*this, index);
    }
    State::ChangeCopies(*this, [=](CMFCRibbonMultiCombo& copy) { copy.SetItemLight(index, light, redraw); });
    return true;
}

bool CMFCRibbonMultiCombo::SetItemLight(const wchar_t* text, bool light, bool redraw) {
    return text && SetItemLight(FindItem(text), light, redraw);
}

bool CMFCRibbonMultiCombo::GetItemLight(int index, bool& light) const {
    rowInfo info;
    if (!m_state->rows.Get(index, info)) {
        return false;
    }
    light = info.light;
    return true;
}

bool CMFCRibbonMultiCombo::SetItemInfo(int index, const COLORREF& clr, bool light, bool /*lock*/) {
    return m_state->rows.Set(index, CountOf(*this), {clr, light});
}

bool CMFCRibbonMultiCombo::SetItemInfo(int index, rowInfo& info) {
    m_state->rows.SetUnchecked(index, info);
    return true;
}

bool CMFCRibbonMultiCombo::GetItemInfo(int index, rowInfo& info) const { return m_state->rows.Get(index, info); }

bool CMFCRibbonMultiCombo::SetItemLock(int /*index*/, bool /*lock*/, bool /*redraw*/) { return true; }

bool CMFCRibbonMultiCombo::SetItemLock(const wchar_t* /*text*/, bool /*lock*/, bool /*redraw*/) { return true; }

bool CMFCRibbonMultiCombo::GetItemLock(int /*index*/, bool& /*lock*/) const { return true; }

void CMFCRibbonMultiCombo::setTypeKeyName2Index(const std::map<std::wstring, int>& map) { m_state->keys.Set(map); }

int CMFCRibbonMultiCombo::findIndexByTypeKeyName(const std::wstring& key) const { return m_state->keys.FindIndex(key); }

std::wstring CMFCRibbonMultiCombo::findTypeKeyNameByIndex(int index) const { return m_state->keys.FindKey(index); }

// ---- the list

void CMFCRibbonMultiCombo::UserStaticDropDownHeight(bool use) { State::UseStaticHeight(*this, use); }

void CMFCRibbonMultiCombo::SetStaticDropDownHeight(int height) { State::SetStaticHeight(*this, height); }

void CMFCRibbonMultiCombo::DropDownList() { CMFCRibbonComboBox::DropDownList(); }

std::unique_ptr<CMFCDropDownListBox> CMFCRibbonMultiCombo::MakeDropDownList() {
    State::PrepareToDrop(*this);
    return MakeMarkedList(*this, marks::SwatchZones(GetCommandRect().Height(), ScaledIconSize()));
}

// ---- clicks. Whatever the host is told may be the combo's end.

/// False: the combo is gone.
bool CMFCRibbonMultiCombo::AskForLight(HWND host, const CString& text, int index) {
    const std::weak_ptr<State> life = m_state;
    const bool wanted = !m_state->rows.GetOrEmpty(index).light;
    const bool isAllowed = TellHost(host, WM_COMBO_LIGHT_CHANGED, text, wanted ? 1 : 0) != 0;
    if (life.expired()) {
        return false;
    }
    // This element's light only, in whatever colour the host has given it meanwhile.
    const bool isChanged =
        isAllowed && m_state->rows.Modify(index, CountOf(*this), [wanted](rowInfo& info) { info.light = wanted; });
    fx::ShowItemMark(*this, index, isChanged);
    return true;
}

void CMFCRibbonMultiCombo::AskForColor(HWND host, int index) const {
    const COLORREF color = m_state->rows.GetOrEmpty(index).clr;
    ::PostMessageW(host, WM_COMBO_COLOR_PICK, static_cast<WPARAM>(index), static_cast<LPARAM>(color));
}

bool CMFCRibbonMultiCombo::NotifyChangeData(int index, int zone, bool /*exclusive*/) {
    const HWND host = HostOf(*this);
    if (!host) {
        return false;
    }
    switch (zone) {
    case swatchZone:
        SelectRow(*this, index);
        Redraw();
        AskForColor(host, index);
        return false;
    case lightZone:
        SelectRow(*this, index);
        AskForLight(host, TextOf(*this, index), index);
        return true;
    case actionZone: {
        m_state->rows.SetUnchecked(index, m_state->rows.GetOrEmpty(index));
        SelectRow(*this, index);
        const std::weak_ptr<State> life = m_state;
        TellHost(host, WM_COMBO_ITEM_ACTION, TextOf(*this, index), 1);
        if (!life.expired()) {
            Redraw();
        }
        return true;
    }
    default:
        return false;
    }
}

// As a click on the light; with Shift as one on the swatch, which chooses the row.
BOOL CMFCRibbonMultiCombo::OnToggleDropListItem(int index) {
    if (::GetKeyState(VK_SHIFT) >= 0) {
        return NotifyChangeData(index, lightZone, false);
    }
    const std::weak_ptr<State> life = m_state;
    if (!NotifyChangeData(index, swatchZone, false)) {
        ClosePopupMenu();
        if (!life.expired()) {
            OnSelectItem(index);
        }
    }
    return TRUE;
}

void CMFCRibbonMultiCombo::OnLButtonDown(CPoint point) {
    if (IsDisabled()) {
        return;
    }
    const HWND host = HostOf(*this);
    const CRect edit = GetCommandRect();
    const marks::SwatchRow place = marks::PlaceSwatchRow(fx::FromRect(edit), ScaledIconSize());
    if (HasEditBox() || !host || !edit.PtInRect(point)) {
        CMFCRibbonComboBox::OnLButtonDown(point);
    } else if (fx::ToRect(place.light).PtInRect(point)) {
        AskForLight(host, GetEditText(), GetCurSel());
    } else if (fx::ToRect(place.swatch).PtInRect(point)) {
        AskForColor(host, GetCurSel());
    } else {
        CMFCRibbonComboBox::OnLButtonDown(point);
    }
}

// ---- drawing

BOOL CMFCRibbonMultiCombo::OnDrawDropListItem(CDC* dc, int index, CMFCToolBarMenuButton* row, BOOL /*highlighted*/) {
    m_state->DrawItem(*this, *dc, index, row->Rect());
    return TRUE;
}

int CMFCRibbonMultiCombo::GetDropListItemWidth(CDC* dc, int index, CSize /*text*/) {
    return RowWidthOf(*this, *dc, index,
                      marks::PlaceSwatchRow({0, 0, 0, ScaledIconSize()}, ScaledIconSize()).text.left);
}

// The marks stand where a click on them counts.
void CMFCRibbonMultiCombo::OnDrawSelectedItem(CDC* dc, CRect /*edit*/) {
    m_state->DrawItem(*this, *dc, GetCurSel(), GetCommandRect());
}

// ---- accessibility

CString CMFCRibbonMultiCombo::GetShownItemText(int index) const { return DisplayedTextOf(*this, index); }

CString CMFCRibbonMultiCombo::GetItemStateText(int index, BOOL& /*isChecked*/) const {
    return m_state->WordsFor(index);
}
