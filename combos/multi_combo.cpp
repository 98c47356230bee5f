// The window combos with lights.
#include "window_combos.h"

#include "combos/combo_parts.h"
#include "combos/item_bits.h"
#include "combos/light_images.h"
#include "combos/mark_sizes.h"
#include "combos/window_combo_parts.h"
#include "host_messages.h"

#include <fx/window_guard.h>

IMPLEMENT_DYNCREATE(CMultiCombo, CComboBox)
IMPLEMENT_DYNCREATE(CVesMultiCombo, CComboBox)

BEGIN_MESSAGE_MAP(CMultiCombo, CComboBox)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_MESSAGE(WM_CTLCOLORLISTBOX, &CMultiCombo::OnCtlColorListBox)
ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CMultiCombo::OnDropdown)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CVesMultiCombo, CComboBox)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_MESSAGE(WM_CTLCOLORLISTBOX, &CVesMultiCombo::OnCtlColorListBox)
ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CVesMultiCombo::OnDropdown)
END_MESSAGE_MAP()

namespace {

using Colors = std::unordered_map<int, COLORREF>;

/// Of the face, from its left edge: the marks of a multi combo.
constexpr int multiZone = 46;
/// The light of a light-only combo.
constexpr int lightZoneLeft = 3;
constexpr int lightZoneRight = 27;

void StoreColor(Colors& colors, int index, COLORREF color) {
    if (index >= 0) {
        colors[index] = color;
    }
}

int FindColor(const Colors& colors, int index, COLORREF& color) {
    const auto found = colors.find(index);
    if (found == colors.end()) {
        return 0;
    }
    color = found->second;
    return 1;
}

/// Of the face, over its whole height.
bool IsBetween(const CWnd& combo, int left, int right, CPoint point) {
    CRect zone;
    combo.GetClientRect(&zone);
    zone.left = left;
    zone.right = right;
    return zone.PtInRect(point) != FALSE;
}

/// The list shows the window's ground also where it has no items, whatever the parent paints behind its controls.
LRESULT WindowGround() { return reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_WINDOW)); }

LightState LightOf(const CComboBox& combo, int index) {
    return item_bits::IsLightOn(window_combo::DataOf(combo, index)) ? LightState::On : LightState::Off;
}

int PaintSwatchAndLight(const CComboBox& combo, CDC& dc, const DRAWITEMSTRUCT& item, const marks::Rect& row) {
    const auto index = static_cast<int>(item.itemID);
    const marks::SwatchRow place = marks::PlaceSwatchRow(row, window_combo::swatchSize);
    COLORREF color = 0;
    if (static_cast<const CMultiCombo&>(combo).GetItemColor(index, color)) {
        CBrush brush(color);
        dc.FillRect(fx::ToRect(place.swatch), &brush);
    }
    dc.FrameRect(fx::ToRect(place.swatch), CBrush::FromHandle(static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH))));
    DrawLight(dc, place.light, LightOf(combo, index));
    return place.text.left;
}

int PaintLight(const CComboBox& combo, CDC& dc, const DRAWITEMSTRUCT& item, const marks::Rect& row) {
    const marks::LightRow place = marks::PlaceLightRow(row, MarkSizes::Current().icon);
    DrawLight(dc, place.light, LightOf(combo, static_cast<int>(item.itemID)));
    return place.text.left;
}

} // namespace

// ---- a swatch and a light

CMultiCombo::CMultiCombo() = default;
CMultiCombo::~CMultiCombo() = default;

BOOL CMultiCombo::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CComboBox::Create(style | window_combo::ownerDrawn, rect, parent, id);
}

void CMultiCombo::SetItemColor(int index, COLORREF color) { StoreColor(m_colors, index, color); }

int CMultiCombo::GetItemColor(int index, COLORREF& color) const { return FindColor(m_colors, index, color); }

void CMultiCombo::ClearItemColor() { m_colors.clear(); }

void CMultiCombo::MeasureItem(LPMEASUREITEMSTRUCT item) { item->itemHeight = window_combo::rowHeight; }

void CMultiCombo::DrawItem(LPDRAWITEMSTRUCT item) {
    window_combo::DrawRow(*this, *item, fx::FromRect(item->rcItem), window_combo::Face::Arial, &PaintSwatchAndLight);
}

bool CMultiCombo::IsInMarkZone(CPoint point) const { return IsBetween(*this, 0, multiZone, point); }

void CMultiCombo::OnLButtonDown(UINT flags, CPoint point) {
    if (GetDroppedState() || !IsInMarkZone(point)) {
        CComboBox::OnLButtonDown(flags, point);
        return;
    }
    const int selected = GetCurSel();
    if (selected < 0) {
        return;
    }
    const HWND host = window_combo::HostOf(*this);
    const marks::SwatchRow place = marks::PlaceSwatchRow(window_combo::FaceRow(*this), window_combo::swatchSize);
    if (point.x >= place.light.left) {
        TellHost(host, WM_COMBO_LIGHT_CHANGED, window_combo::TextOf(*this, selected),
                 item_bits::IsLightOn(window_combo::DataOf(*this, selected)) ? 0 : 1);
        return;
    }
    COLORREF color = 0;
    GetItemColor(selected, color);
    const fx::WindowGuard guard(this);
    ::SendMessageW(host, WM_COMBO_COLOR_PICK, static_cast<WPARAM>(selected), static_cast<LPARAM>(color));
    if (guard.IsAlive()) {
        Invalidate();
    }
}

// The second click of a fast user.
void CMultiCombo::OnLButtonDblClk(UINT flags, CPoint point) {
    if (GetDroppedState() || !IsInMarkZone(point)) {
        CComboBox::OnLButtonDblClk(flags, point);
    } else {
        OnLButtonDown(flags, point);
    }
}

BOOL CMultiCombo::OnDropdown() {
    window_combo::FitDroppedWidth(
        *this, marks::PlaceSwatchRow({0, 0, 0, window_combo::swatchSize}, window_combo::swatchSize).text.left);
    return FALSE; // the parent hears of it too
}

LRESULT CMultiCombo::OnCtlColorListBox(WPARAM /*wParam*/, LPARAM /*lParam*/) { return WindowGround(); }

// ---- a light alone

CVesMultiCombo::CVesMultiCombo() = default;
CVesMultiCombo::~CVesMultiCombo() = default;

BOOL CVesMultiCombo::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CComboBox::Create(style | window_combo::ownerDrawn, rect, parent, id);
}

void CVesMultiCombo::SetItemColor(int index, COLORREF color) { StoreColor(m_colors, index, color); }

int CVesMultiCombo::GetItemColor(int index, COLORREF& color) const { return FindColor(m_colors, index, color); }

void CVesMultiCombo::MeasureItem(LPMEASUREITEMSTRUCT item) { item->itemHeight = window_combo::rowHeight; }

void CVesMultiCombo::DrawItem(LPDRAWITEMSTRUCT item) {
    window_combo::DrawRow(*this, *item, fx::FromRect(item->rcItem), window_combo::Face::SimSun, &PaintLight);
}

bool CVesMultiCombo::IsInMarkZone(CPoint point) const { return IsBetween(*this, lightZoneLeft, lightZoneRight, point); }

void CVesMultiCombo::OnLButtonDown(UINT flags, CPoint point) {
    if (GetDroppedState() || !IsInMarkZone(point)) {
        CComboBox::OnLButtonDown(flags, point);
        return;
    }
    const int selected = GetCurSel();
    if (selected < 0) {
        return;
    }
    const bool isOn = !item_bits::IsLightOn(window_combo::DataOf(*this, selected));
    SetItemData(selected, item_bits::WithLight(window_combo::DataOf(*this, selected), isOn));
    Invalidate();
    TellHost(window_combo::HostOf(*this), WM_VESCOMBO_LIGHT_CHANGED, window_combo::TextOf(*this, selected),
             isOn ? 1 : 0);
}

// The second click of a fast user.
void CVesMultiCombo::OnLButtonDblClk(UINT flags, CPoint point) {
    if (GetDroppedState() || !IsInMarkZone(point)) {
        CComboBox::OnLButtonDblClk(flags, point);
    } else {
        OnLButtonDown(flags, point);
    }
}

BOOL CVesMultiCombo::OnDropdown() {
    window_combo::FitDroppedWidth(*this, marks::PlaceLightRow({0, 0, 0, 0}, MarkSizes::Current().icon).text.left);
    return FALSE; // the parent hears of it too
}

LRESULT CVesMultiCombo::OnCtlColorListBox(WPARAM /*wParam*/, LPARAM /*lParam*/) { return WindowGround(); }
