#include "ribbon_slider_sync.h"

#include <afxglobals.h>
#include <fx/slider_geometry.h>
#include <fx/to_rect.h>

#include <algorithm>
#include <utility>

IMPLEMENT_DYNCREATE(CMFCRibbonSliderSync, CMFCRibbonSlider)

namespace {
/// So many units further on, inside the range.
int PosAfter(const CMFCRibbonSlider& slider, long long step) {
    return static_cast<int>(std::clamp<long long>(slider.GetPos() + step, slider.GetRangeMin(), slider.GetRangeMax()));
}
} // namespace

CMFCRibbonSliderSync::CMFCRibbonSliderSync(UINT id, int width) : CMFCRibbonSlider(id, width) {}

// Who followed this slider follows its source; without one the first copy becomes the root of the rest.
CMFCRibbonSliderSync::~CMFCRibbonSliderSync() {
    CMFCRibbonSliderSync* const leader = m_leader;
    Unlink();
    const std::vector<CMFCRibbonSliderSync*> followers = std::exchange(m_linked, {});
    for (CMFCRibbonSliderSync* slider : followers) {
        slider->m_leader = nullptr;
    }
    CMFCRibbonSliderSync* heir = m_source;
    for (CMFCRibbonSliderSync* slider : followers) {
        if (slider->m_source != this) {
            continue;
        }
        slider->SetOriginal(heir);
        heir = heir ? heir : slider;
    }
    CMFCRibbonSliderSync* const next = heir ? heir : leader;
    for (CMFCRibbonSliderSync* slider : followers) {
        if (next && !slider->m_leader) {
            next->AddLinkedSlider(slider);
        }
    }
    if (leader && heir) {
        leader->AddLinkedSlider(heir);
    }
}

// ---- the chain

CMFCRibbonSliderSync& CMFCRibbonSliderSync::GetRoot() {
    CMFCRibbonSliderSync* root = this;
    while (root->m_source) {
        root = root->m_source;
    }
    return *root;
}

// A source is a leader too, so that this walk meets every link that could close a ring.
bool CMFCRibbonSliderSync::Follows(const CMFCRibbonSliderSync& slider) const {
    for (const CMFCRibbonSliderSync* one = this; one; one = one->m_leader) {
        if (one == &slider) {
            return true;
        }
    }
    return false;
}

void CMFCRibbonSliderSync::Link(CMFCRibbonSliderSync& slider) {
    slider.Unlink();
    slider.m_leader = this;
    m_linked.push_back(&slider);
}

void CMFCRibbonSliderSync::Unlink() {
    if (CMFCRibbonSliderSync* const leader = std::exchange(m_leader, nullptr)) {
        std::erase(leader->m_linked, this);
    }
}

void CMFCRibbonSliderSync::AddLinkedSlider(CMFCRibbonSliderSync* slider) {
    if (slider && !slider->m_source && slider->m_leader != this && !Follows(*slider)) {
        Link(*slider);
    }
}

void CMFCRibbonSliderSync::SetOriginal(CMFCRibbonBaseElement* original) {
    auto* const source = DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, original);
    if (source && source->Follows(*this)) {
        return;
    }
    Unlink();
    m_source = source;
    CMFCRibbonSlider::SetOriginal(original);
    if (source) {
        source->Link(*this);
    }
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
    std::vector<CMFCRibbonSliderSync*> sliders{&GetRoot()};
    for (size_t i = 0; i < sliders.size(); ++i) {
        CMFCRibbonSliderSync& slider = *sliders[i];
        slider.ShowPos(pos, redraw);
        sliders.insert(sliders.end(), slider.m_linked.begin(), slider.m_linked.end());
    }
}

// Sliders of different ranges end at what the links up to the root have in common.
void CMFCRibbonSliderSync::NotifyCommandSync() {
    if (!m_source) {
        SetPosSync(GetPos(), TRUE);
    }
    CMFCRibbonSliderSync* last = this;
    for (; last->m_source; last = last->m_source) {
        last->m_source->SetPosSync(last->GetPos(), TRUE);
    }
    last->NotifyCommand();
}

void CMFCRibbonSliderSync::TakePos(int pos) {
    SetPos(pos, TRUE);
    NotifyCommandSync();
}

void CMFCRibbonSliderSync::ChangePos(int pos) {
    if (pos != GetPos()) {
        TakePos(pos);
    }
}

// ---- input

namespace {

fx::slider::State StateOf(const CMFCRibbonSlider& slider) {
    return {slider.GetRangeMin(), slider.GetRangeMax(), slider.GetPos(), slider.HasZoomButtons() != FALSE};
}

} // namespace

RibbonSliderPart CMFCRibbonSliderSync::PartAt(CPoint point) const {
    const fx::slider::Face face =
        fx::slider::Place(fx::FromRect(GetRect()), StateOf(*this), afxGlobalData.GetRibbonImageScale());
    return fx::slider::PartAt(face, fx::FromPoint(point));
}

int CMFCRibbonSliderSync::PosAt(CPoint point) const {
    return fx::slider::PositionAt(fx::FromRect(GetRect()), StateOf(*this), afxGlobalData.GetRibbonImageScale(),
                                  static_cast<int>(point.x));
}

// A press can end without a release.
RibbonSliderPart CMFCRibbonSliderSync::PressedPart() const { return IsPressed() ? m_pressed : RibbonSliderPart::None; }

// The hot part follows the pointer, and a pressed thumb moves the slider (ChangePos).
void CMFCRibbonSliderSync::OnMouseMove(CPoint point) { CMFCRibbonSlider::OnMouseMove(point); }

void CMFCRibbonSliderSync::OnLButtonDown(CPoint point) {
    m_pressed = IsDisabled() ? RibbonSliderPart::None : PartAt(point);
    CMFCRibbonSlider::OnLButtonDown(point);
}

// A press beside the parts moves the thumb to that end; one that was taken back ends on another part than its own.
void CMFCRibbonSliderSync::OnLButtonUp(CPoint point) {
    const RibbonSliderPart pressed = PressedPart();
    m_pressed = RibbonSliderPart::None;
    // The platform's slider ends its press as one that was taken back.
    CMFCRibbonSlider::OnLButtonUp(GetRect().TopLeft() - CSize(1, 1));
    if (IsDisabled() || !GetRect().PtInRect(point) || PartAt(point) != pressed) {
        return;
    }
    if (pressed == RibbonSliderPart::Increase) {
        TakePos(PosAfter(*this, GetZoomIncrement()));
    } else if (pressed == RibbonSliderPart::Decrease) {
        TakePos(PosAfter(*this, -static_cast<long long>(GetZoomIncrement())));
    } else {
        TakePos(PosAt(point));
    }
}

// A held button goes on wherever the pointer is.
BOOL CMFCRibbonSliderSync::OnAutoRepeat() {
    if (IsDisabled()) {
        return FALSE;
    }
    if (PressedPart() == RibbonSliderPart::Increase) {
        TakePos(PosAfter(*this, GetZoomIncrement()));
    } else if (PressedPart() == RibbonSliderPart::Decrease) {
        TakePos(PosAfter(*this, -static_cast<long long>(GetZoomIncrement())));
    }
    return TRUE;
}
