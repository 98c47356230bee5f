#include "ribbon_slider_sync.h"

#include <utility>

IMPLEMENT_DYNCREATE(CMFCRibbonSliderSync, CMFCRibbonSlider)

CMFCRibbonSliderSync::CMFCRibbonSliderSync(UINT id, int width) : CMFCRibbonSlider(id, width) {}

// Nobody may find this slider any more; who had it as its original gets this one's from the base class.
CMFCRibbonSliderSync::~CMFCRibbonSliderSync() {
    Unlink();
    for (CMFCRibbonSliderSync* slider : m_linked)
        slider->m_linkedTo = nullptr;
}

// ---- the chain

CMFCRibbonSliderSync* CMFCRibbonSliderSync::GetSource() const {
    return DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, GetOriginal());
}

CMFCRibbonSliderSync& CMFCRibbonSliderSync::GetRoot() {
    CMFCRibbonSliderSync* root = this;
    while (CMFCRibbonSliderSync* const source = root->GetSource())
        root = source;
    return *root;
}

void CMFCRibbonSliderSync::Unlink() {
    if (CMFCRibbonSliderSync* const holder = std::exchange(m_linkedTo, nullptr))
        std::erase(holder->m_linked, this);
}

void CMFCRibbonSliderSync::AddLinkedSlider(CMFCRibbonSliderSync* slider) {
    CMFCRibbonSliderSync& root = GetRoot();
    if (!slider || slider == &root || slider->m_linkedTo == &root)
        return;
    slider->Unlink();
    root.m_linked.push_back(slider);
    slider->m_linkedTo = &root;
    // Whoever followed that slider now follows this one's root.
    for (CMFCRibbonSliderSync* follower : std::exchange(slider->m_linked, {})) {
        follower->m_linkedTo = nullptr;
        AddLinkedSlider(follower);
    }
}

// A chain has an end: a slider cannot become the original of its own original.
void CMFCRibbonSliderSync::SetOriginal(CMFCRibbonBaseElement* original) {
    auto* const source = DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, original);
    if (source && &source->GetRoot() == this)
        return;
    Unlink();
    CMFCRibbonSlider::SetOriginal(original);
    if (source)
        source->AddLinkedSlider(this);
}

// ---- the position

void CMFCRibbonSliderSync::setTooltipFromPos() {
    CString text;
    text.Format(L"%d", GetPos());
    SetToolTipText(text);
}

void CMFCRibbonSliderSync::ShowPos(int pos, int redraw) {
    SetPos(pos, redraw);
    setTooltipFromPos();
}

void CMFCRibbonSliderSync::SetPosSync(int pos, int redraw) {
    CMFCRibbonSliderSync& root = GetRoot();
    root.ShowPos(pos, redraw);
    for (CMFCRibbonSliderSync* slider : root.m_linked)
        slider->ShowPos(pos, redraw);
}

void CMFCRibbonSliderSync::NotifyCommandSync() {
    SetPosSync(GetPos(), TRUE);
    GetRoot().NotifyCommand();
}

void CMFCRibbonSliderSync::TakePos(int pos) {
    SetPos(pos, TRUE);
    NotifyCommandSync();
}

void CMFCRibbonSliderSync::ChangePos(int pos) {
    if (pos != GetPos())
        TakePos(pos);
}

// ---- input

void CMFCRibbonSliderSync::OnMouseMove(CPoint point) {
    if (IsDisabled())
        return;
    const RibbonSliderPart part = GetPartFromPoint(point);
    if (part != m_HotPart) {
        m_HotPart = part;
        Redraw();
    }
    if (m_PressedPart != RibbonSliderPart::Thumb)
        return;
    ChangePos(GetPosFromPoint(point));
}

// A press that was taken back ends on no part at all.
void CMFCRibbonSliderSync::OnLButtonUp(CPoint point) {
    const RibbonSliderPart pressed = std::exchange(m_PressedPart, RibbonSliderPart::None);
    m_bIsPressed = FALSE;
    Redraw();
    if (IsDisabled() || pressed == RibbonSliderPart::None || GetPartFromPoint(point) != pressed)
        return;
    if (pressed == RibbonSliderPart::Increase)
        TakePos(GetPosAfter(GetZoomIncrement()));
    else if (pressed == RibbonSliderPart::Decrease)
        TakePos(GetPosAfter(-static_cast<long long>(GetZoomIncrement())));
    else
        TakePos(GetPosFromPoint(point));
}

// The pointer may leave a held button and come back.
BOOL CMFCRibbonSliderSync::OnAutoRepeat() {
    if (IsDisabled())
        return FALSE;
    if (m_HotPart == m_PressedPart && m_PressedPart == RibbonSliderPart::Increase)
        TakePos(GetPosAfter(GetZoomIncrement()));
    else if (m_HotPart == m_PressedPart && m_PressedPart == RibbonSliderPart::Decrease)
        TakePos(GetPosAfter(-static_cast<long long>(GetZoomIncrement())));
    return TRUE;
}
