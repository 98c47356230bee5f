#include "toolbar_combos.h"

#include "combos/item_bits.h"
#include "combos/mark_sizes.h"
#include "combos/window_combo_parts.h"
#include "window_combos.h"

#include <memory>

IMPLEMENT_SERIAL(CMFCCheckCombo, CMFCToolBarComboBoxButton, VERSIONABLE_SCHEMA | 1)
IMPLEMENT_SERIAL(CMFCMultiCombo, CMFCToolBarComboBoxButton, VERSIONABLE_SCHEMA | 1)
IMPLEMENT_SERIAL(CMFCMultiCombo2, CMFCToolBarComboBoxButton, VERSIONABLE_SCHEMA | 1)
IMPLEMENT_SERIAL(CMFCToolBarComboBoxButtonEx, CMFCToolBarComboBoxButton, VERSIONABLE_SCHEMA | 1)

namespace {

/// The button's combo box; null when there is none of that class.
template <class Combo>
Combo* HostedIn(const CMFCToolBarComboBoxButton& button) {
    auto* const combo = dynamic_cast<Combo*>(button.GetComboBox());
    return combo && combo->GetSafeHwnd() ? combo : nullptr;
}

/// The closed face is as high as the bar's other fields; the list's rows have a font of their own.
void FitFace(CComboBox& combo) {
    combo.SetItemHeight(-1, static_cast<UINT>(fx::Scaled(window_combo::rowHeight, MarkScale())));
}

template <class Combo>
void FitFaceOf(const CMFCToolBarComboBoxButton& button) {
    if (auto* const combo = HostedIn<Combo>(button)) {
        FitFace(*combo);
    }
}

/// Null: there is no such window, and the button takes a plain one.
template <class Combo>
CComboBox* MakeHosted(CWnd* bar, const CRect& rect, UINT id) {
    auto combo = std::make_unique<Combo>();
    if (!combo->Create(WS_CHILD | WS_VSCROLL | CBS_HASSTRINGS | CBS_DROPDOWNLIST, rect, bar, id)) {
        return nullptr;
    }
    combo->SetOwner(bar->GetOwner());
    FitFace(*combo);
    return combo.release();
}

/// -1 without such an item.
int IndexOf(const CComboBox* combo, const wchar_t* text) {
    CString item;
    for (int i = 0; combo && text && i < combo->GetCount(); ++i) {
        combo->GetLBText(i, item);
        if (item == text) {
            return i;
        }
    }
    return -1;
}

bool HasItem(const CComboBox* combo, int index) { return combo && index >= 0 && index < combo->GetCount(); }

using BitsWith = item_bits::Data (*)(item_bits::Data, bool);

void ChangeBits(CComboBox* combo, int index, BitsWith change, bool value, bool redraw) {
    if (!HasItem(combo, index)) {
        return;
    }
    const item_bits::Data before = window_combo::DataOf(*combo, index);
    if (const item_bits::Data after = change(before, value); after != before) {
        combo->SetItemData(index, after);
    }
    if (redraw) {
        ::RedrawWindow(::GetParent(combo->m_hWnd), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
}

/// Gives a press on the button, where the pointer is on a mark of the combo's face, to the combo. True: done, and the
/// button may be gone. An upright bar shows no face.
template <class Combo>
bool PressMark(const CMFCToolBarComboBoxButton& button, bool (Combo::*isOnMark)(CPoint) const) {
    auto* const combo = HostedIn<Combo>(button);
    const bool isShown = combo && (combo->GetStyle() & WS_VISIBLE) != 0;
    if (!isShown || !combo->IsWindowEnabled() || combo->GetDroppedState() || button.m_nID == 0) {
        return false;
    }
    CPoint point;
    ::GetCursorPos(&point);
    combo->ScreenToClient(&point);
    if (!(combo->*isOnMark)(point)) {
        return false;
    }
    combo->OnLButtonDown(MK_LBUTTON, point);
    return true;
}

template <class Combo>
void StoreColor(Combo* combo, int index, COLORREF color, bool redraw) {
    if (!combo) {
        return;
    }
    combo->SetItemColor(index, color);
    if (redraw) {
        combo->Invalidate();
    }
}

} // namespace

// ---- check boxes

CMFCCheckCombo::CMFCCheckCombo() : CMFCToolBarComboBoxButton(0, -1) {}
CMFCCheckCombo::CMFCCheckCombo(UINT id, int image, DWORD style, int width)
    : CMFCToolBarComboBoxButton(id, image, style, width) {}
CMFCCheckCombo::~CMFCCheckCombo() = default;

CComboBox* CMFCCheckCombo::CreateCombo(CWnd* bar, const CRect& rect) {
    CComboBox* const combo = MakeHosted<CCheckComboBox>(bar, rect, m_nID);
    return combo ? combo : CMFCToolBarComboBoxButton::CreateCombo(bar, rect);
}

int CMFCCheckCombo::SetCheck(int index, int check, int redraw) {
    auto* const combo = HostedIn<CCheckComboBox>(*this);
    return combo ? combo->SetCheck(index, check, redraw) : 0;
}

int CMFCCheckCombo::SetCheck(const wchar_t* text, int check, int redraw) {
    return SetCheck(IndexOf(GetComboBox(), text), check, redraw);
}

bool CMFCCheckCombo::GetCheck(int index) const {
    const auto* const combo = HostedIn<CCheckComboBox>(*this);
    return combo && combo->GetCheck(index) != 0;
}

bool CMFCCheckCombo::GetCheck(const wchar_t* text) const { return GetCheck(IndexOf(GetComboBox(), text)); }

BOOL CMFCCheckCombo::OnClick(CWnd* bar, BOOL delay) {
    return PressMark(*this, &CCheckComboBox::IsInCheckZone) ? FALSE : CMFCToolBarComboBoxButton::OnClick(bar, delay);
}

void CMFCCheckCombo::CopyFrom(const CMFCToolBarButton& src) { CMFCToolBarComboBoxButton::CopyFrom(src); }

void CMFCCheckCombo::OnGlobalFontsChanged() {
    CMFCToolBarComboBoxButton::OnGlobalFontsChanged(); // a new font may change the height too
    FitFaceOf<CCheckComboBox>(*this);
}

// ---- a swatch and a light

CMFCMultiCombo::CMFCMultiCombo() : CMFCToolBarComboBoxButton(0, -1) {}
CMFCMultiCombo::CMFCMultiCombo(UINT id, int image, DWORD style, int width)
    : CMFCToolBarComboBoxButton(id, image, style, width) {}
CMFCMultiCombo::~CMFCMultiCombo() = default;

CComboBox* CMFCMultiCombo::CreateCombo(CWnd* bar, const CRect& rect) {
    CComboBox* const combo = MakeHosted<CMultiCombo>(bar, rect, m_nID);
    return combo ? combo : CMFCToolBarComboBoxButton::CreateCombo(bar, rect);
}

void CMFCMultiCombo::SetLightOn(int index, bool on, bool redraw) {
    ChangeBits(HostedIn<CMultiCombo>(*this), index, &item_bits::WithLight, on, redraw);
}

void CMFCMultiCombo::SetLightOn(const wchar_t* text, bool on, bool redraw) {
    SetLightOn(IndexOf(GetComboBox(), text), on, redraw);
}

bool CMFCMultiCombo::GetLightOn(int index) const {
    const auto* const combo = HostedIn<CMultiCombo>(*this);
    return HasItem(combo, index) && item_bits::IsLightOn(window_combo::DataOf(*combo, index));
}

bool CMFCMultiCombo::GetLightOn(const wchar_t* text) const { return GetLightOn(IndexOf(GetComboBox(), text)); }

void CMFCMultiCombo::SetItemLock(int index, bool lock, bool redraw) {
    ChangeBits(HostedIn<CMultiCombo>(*this), index, &item_bits::WithLock, lock, redraw);
}

void CMFCMultiCombo::SetItemLock(const wchar_t* text, bool lock, bool redraw) {
    SetItemLock(IndexOf(GetComboBox(), text), lock, redraw);
}

bool CMFCMultiCombo::GetItemLock(int index) const {
    const auto* const combo = HostedIn<CMultiCombo>(*this);
    return HasItem(combo, index) && item_bits::IsLocked(window_combo::DataOf(*combo, index));
}

bool CMFCMultiCombo::GetItemLock(const wchar_t* text) const { return GetItemLock(IndexOf(GetComboBox(), text)); }

void CMFCMultiCombo::SetItemColor(int index, COLORREF color, bool redraw) {
    StoreColor(HostedIn<CMultiCombo>(*this), index, color, redraw);
}

void CMFCMultiCombo::SetItemColor(const wchar_t* text, COLORREF color, bool redraw) {
    SetItemColor(IndexOf(GetComboBox(), text), color, redraw);
}

BOOL CMFCMultiCombo::OnClick(CWnd* bar, BOOL delay) {
    return PressMark(*this, &CMultiCombo::IsInMarkZone) ? FALSE : CMFCToolBarComboBoxButton::OnClick(bar, delay);
}

void CMFCMultiCombo::CopyFrom(const CMFCToolBarButton& src) { CMFCToolBarComboBoxButton::CopyFrom(src); }

void CMFCMultiCombo::OnGlobalFontsChanged() {
    CMFCToolBarComboBoxButton::OnGlobalFontsChanged(); // a new font may change the height too
    FitFaceOf<CMultiCombo>(*this);
}

// ---- a light alone

CMFCMultiCombo2::CMFCMultiCombo2() : CMFCToolBarComboBoxButton(0, -1) {}
CMFCMultiCombo2::CMFCMultiCombo2(UINT id, int image, DWORD style, int width)
    : CMFCToolBarComboBoxButton(id, image, style, width) {}
CMFCMultiCombo2::~CMFCMultiCombo2() = default;

CComboBox* CMFCMultiCombo2::CreateCombo(CWnd* bar, const CRect& rect) {
    CComboBox* const combo = MakeHosted<CVesMultiCombo>(bar, rect, m_nID);
    return combo ? combo : CMFCToolBarComboBoxButton::CreateCombo(bar, rect);
}

void CMFCMultiCombo2::SetLightOn(int index, bool on, bool redraw) {
    ChangeBits(HostedIn<CVesMultiCombo>(*this), index, &item_bits::WithLight, on, redraw);
}

void CMFCMultiCombo2::SetLightOn(const wchar_t* text, bool on, bool redraw) {
    SetLightOn(IndexOf(GetComboBox(), text), on, redraw);
}

bool CMFCMultiCombo2::GetLightOn(int index) const {
    const auto* const combo = HostedIn<CVesMultiCombo>(*this);
    return HasItem(combo, index) && item_bits::IsLightOn(window_combo::DataOf(*combo, index));
}

bool CMFCMultiCombo2::GetLightOn(const wchar_t* text) const { return GetLightOn(IndexOf(GetComboBox(), text)); }

void CMFCMultiCombo2::SetItemColor(int index, COLORREF color, bool redraw) {
    StoreColor(HostedIn<CVesMultiCombo>(*this), index, color, redraw);
}

void CMFCMultiCombo2::SetItemColor(const wchar_t* text, COLORREF color, bool redraw) {
    SetItemColor(IndexOf(GetComboBox(), text), color, redraw);
}

BOOL CMFCMultiCombo2::OnClick(CWnd* bar, BOOL delay) {
    return PressMark(*this, &CVesMultiCombo::IsInMarkZone) ? FALSE : CMFCToolBarComboBoxButton::OnClick(bar, delay);
}

void CMFCMultiCombo2::CopyFrom(const CMFCToolBarButton& src) { CMFCToolBarComboBoxButton::CopyFrom(src); }

void CMFCMultiCombo2::OnGlobalFontsChanged() {
    CMFCToolBarComboBoxButton::OnGlobalFontsChanged(); // a new font may change the height too
    FitFaceOf<CVesMultiCombo>(*this);
}

// ---- a flag

CMFCToolBarComboBoxButtonEx::CMFCToolBarComboBoxButtonEx() : CMFCToolBarComboBoxButton(0, -1) {}
CMFCToolBarComboBoxButtonEx::CMFCToolBarComboBoxButtonEx(UINT id, int image, DWORD style, int width)
    : CMFCToolBarComboBoxButton(id, image, style, width) {}
CMFCToolBarComboBoxButtonEx::~CMFCToolBarComboBoxButtonEx() = default;

void CMFCToolBarComboBoxButtonEx::CopyFrom(const CMFCToolBarButton& src) {
    CMFCToolBarComboBoxButton::CopyFrom(src);
    if (const auto* const source = DYNAMIC_DOWNCAST(CMFCToolBarComboBoxButtonEx, &src)) {
        m_isRibbonButton = source->m_isRibbonButton;
    }
}
