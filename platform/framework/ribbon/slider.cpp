#include <afxribbonslider.h>

#include <afxvisualmanager.h>

#include <algorithm>
#include <utility>

#include "ribbon/element_metrics.h"
#include "ribbon/slider_geometry.h"
#include <oleacc.h>

IMPLEMENT_DYNCREATE(CMFCRibbonSlider, CMFCRibbonBaseElement)

namespace {

constexpr int kRepeatDelay = 100; // milliseconds
constexpr int kLeastWidth = 48;   // of the channel, at 96 DPI, in a panel that lacks room

ribbon::SliderState StateOf(const CMFCRibbonSlider& slider) {
    return {slider.GetRangeMin(), slider.GetRangeMax(), slider.GetPos(), slider.HasZoomButtons() != FALSE};
}

ribbon::SliderFace FaceOf(const CMFCRibbonSlider& slider) {
    return ribbon::PlaceSlider(fx::FromRect(slider.GetRect()), StateOf(slider), ribbon::CurrentMetrics());
}

// In a mirrored window the low end is at the right.
UINT KeyInWindow(UINT key, const CWnd* window) {
    const bool isMirrored =
        window != nullptr && window->GetSafeHwnd() != nullptr && (window->GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    if (isMirrored && key == VK_LEFT) {
        return VK_RIGHT;
    }
    return isMirrored && key == VK_RIGHT ? VK_LEFT : key;
}

bool IsZoomButton(RibbonSliderPart part) {
    return part == RibbonSliderPart::Increase || part == RibbonSliderPart::Decrease;
}

} // namespace

CMFCRibbonSlider::CMFCRibbonSlider(UINT nID, int nWidth) : m_nWidth(nWidth) { m_nID = nID; }

void CMFCRibbonSlider::SetPos(int nPos, BOOL bRedraw) {
    const int former = std::exchange(m_nPos, std::clamp(nPos, m_nMin, m_nMax));
    if (bRedraw) {
        Redraw();
    }
    if (m_nPos != former) {
        NotifyAccessibility(EVENT_OBJECT_VALUECHANGE);
    }
}

void CMFCRibbonSlider::SetRange(int nMin, int nMax) {
    std::tie(m_nMin, m_nMax) = std::minmax(nMin, nMax);
    SetPos(m_nPos);
}

void CMFCRibbonSlider::SetZoomButtons(BOOL bSet) {
    m_bZoomButtons = bSet;
    Redraw();
}

CSize CMFCRibbonSlider::GetRegularSize(CDC* /*pDC*/) {
    return fx::ToSize(ribbon::MeasureSlider(m_nWidth, m_bZoomButtons != FALSE, ribbon::CurrentMetrics()));
}

int CMFCRibbonSlider::GetNarrowestWidth(CDC* /*pDC*/) {
    const int channel = std::min(m_nWidth, kLeastWidth);
    return ribbon::MeasureSlider(channel, m_bZoomButtons != FALSE, ribbon::CurrentMetrics()).width;
}

void CMFCRibbonSlider::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonBaseElement::CopyFrom(src);
    const auto* slider = dynamic_cast<const CMFCRibbonSlider*>(&src);
    if (slider == nullptr) {
        return;
    }
    m_nWidth = slider->m_nWidth;
    m_nMin = slider->m_nMin;
    m_nMax = slider->m_nMax;
    m_nPos = slider->m_nPos;
    m_nZoomIncrement = slider->m_nZoomIncrement;
    m_bZoomButtons = slider->m_bZoomButtons;
}

void CMFCRibbonSlider::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    CMFCVisualManager* visual = CMFCVisualManager::GetInstance();
    const ribbon::SliderFace face = FaceOf(*this);
    // With the keyboard it is the thumb that moves.
    const bool hasKeyboard = IsFocused() || (IsHighlighted() && m_HotPart == RibbonSliderPart::None);
    const RibbonSliderPart hot = hasKeyboard ? RibbonSliderPart::Thumb : m_HotPart;
    const auto isHot = [this, hot](RibbonSliderPart part) { return !IsDisabled() && hot == part; };
    const auto isPressed = [this](RibbonSliderPart part) { return !IsDisabled() && m_PressedPart == part; };
    if (m_bZoomButtons) {
        const auto draw = [&](RibbonSliderPart part, const fx::Rect& rect) {
            visual->OnDrawRibbonSliderZoomButton(pDC, this, fx::ToRect(rect), part == RibbonSliderPart::Decrease,
                                                 isHot(part), isPressed(part), IsDisabled());
        };
        draw(RibbonSliderPart::Decrease, face.decrease);
        draw(RibbonSliderPart::Increase, face.increase);
    }
    visual->OnDrawRibbonSliderChannel(pDC, this, fx::ToRect(face.channel));
    visual->OnDrawRibbonSliderThumb(pDC, this, fx::ToRect(face.thumb), isHot(RibbonSliderPart::Thumb),
                                    isPressed(RibbonSliderPart::Thumb), IsDisabled());
}

// ---- input

RibbonSliderPart CMFCRibbonSlider::GetPartFromPoint(CPoint point) const {
    return ribbon::SliderPartAt(FaceOf(*this), {static_cast<int>(point.x), static_cast<int>(point.y)});
}

int CMFCRibbonSlider::GetPosFromPoint(CPoint point) const {
    return ribbon::SliderPositionAt(fx::FromRect(m_rect), StateOf(*this), ribbon::CurrentMetrics(), point.x);
}

CRect CMFCRibbonSlider::GetThumbRect() const { return fx::ToRect(FaceOf(*this).thumb); }

// Steps may be as large as the range of int.
int CMFCRibbonSlider::GetPosAfter(long long nStep) const {
    return static_cast<int>(std::clamp<long long>(m_nPos + nStep, m_nMin, m_nMax));
}

long long CMFCRibbonSlider::GetPageStep() const {
    constexpr long long kPages = 5;
    return std::max<long long>(m_nZoomIncrement, (static_cast<long long>(m_nMax) - m_nMin) / kPages);
}

// The handler of the command may delete this slider; the notification comes last.
void CMFCRibbonSlider::ChangePos(int nPos) {
    const int pos = std::clamp(nPos, m_nMin, m_nMax);
    if (pos == m_nPos) {
        return;
    }
    SetPos(pos);
    NotifyCommand();
}

void CMFCRibbonSlider::OnMouseMove(CPoint point) {
    if (IsDisabled()) {
        return;
    }
    const RibbonSliderPart part = GetPartFromPoint(point);
    if (part != m_HotPart) {
        m_HotPart = part;
        Redraw();
    }
    if (m_PressedPart == RibbonSliderPart::Thumb) {
        ChangePos(GetPosFromPoint(point));
    }
}

void CMFCRibbonSlider::OnLButtonDown(CPoint point) {
    if (IsDisabled()) {
        return;
    }
    m_PressedPart = m_HotPart = GetPartFromPoint(point);
    m_bIsPressed = m_PressedPart != RibbonSliderPart::None;
    m_bHasRepeated = FALSE;
    Redraw();
}

void CMFCRibbonSlider::OnLButtonUp(CPoint point) {
    const RibbonSliderPart pressed = std::exchange(m_PressedPart, RibbonSliderPart::None);
    const BOOL hasRepeated = std::exchange(m_bHasRepeated, FALSE);
    m_bIsPressed = FALSE;
    Redraw();
    if (IsDisabled() || GetPartFromPoint(point) != pressed) {
        return;
    }
    switch (pressed) {
    case RibbonSliderPart::Increase:
        ChangePos(hasRepeated ? m_nPos : GetPosAfter(m_nZoomIncrement));
        break;
    case RibbonSliderPart::Decrease:
        ChangePos(hasRepeated ? m_nPos : GetPosAfter(-static_cast<long long>(m_nZoomIncrement)));
        break;
    case RibbonSliderPart::Channel:
        ChangePos(GetPosFromPoint(point));
        break;
    case RibbonSliderPart::Thumb: // followed the pointer already
    case RibbonSliderPart::None:
        break;
    }
}

BOOL CMFCRibbonSlider::IsAutoRepeatMode(int& nDelay) const {
    nDelay = kRepeatDelay;
    return IsZoomButton(m_PressedPart);
}

BOOL CMFCRibbonSlider::OnAutoRepeat() {
    if (IsDisabled() || !IsZoomButton(m_PressedPart)) {
        return FALSE;
    }
    if (m_HotPart != m_PressedPart) {
        return TRUE; // the pointer has left the button and may come back
    }
    m_bHasRepeated = TRUE;
    const long long step = m_nZoomIncrement;
    ChangePos(GetPosAfter(m_PressedPart == RibbonSliderPart::Increase ? step : -step));
    return TRUE;
}

// A press can end without a release, when the parent window loses the capture.
void CMFCRibbonSlider::SetPressed(BOOL bPressed) {
    CMFCRibbonBaseElement::SetPressed(bPressed);
    if (!bPressed) {
        m_PressedPart = RibbonSliderPart::None;
    }
}

void CMFCRibbonSlider::OnHighlight(BOOL bHighlight) {
    if (!bHighlight) {
        m_HotPart = RibbonSliderPart::None;
    }
}

BOOL CMFCRibbonSlider::OnProcessKey(UINT nChar) {
    if (IsDisabled()) {
        return FALSE;
    }
    switch (KeyInWindow(nChar, GetParentWnd())) {
    case VK_LEFT:
    case VK_DOWN:
        ChangePos(GetPosAfter(-static_cast<long long>(m_nZoomIncrement)));
        return TRUE;
    case VK_RIGHT:
    case VK_UP:
        ChangePos(GetPosAfter(m_nZoomIncrement));
        return TRUE;
    case VK_PRIOR:
        ChangePos(GetPosAfter(GetPageStep()));
        return TRUE;
    case VK_NEXT:
        ChangePos(GetPosAfter(-GetPageStep()));
        return TRUE;
    case VK_HOME:
        ChangePos(m_nMin);
        return TRUE;
    case VK_END:
        ChangePos(m_nMax);
        return TRUE;
    default:
        return FALSE;
    }
}

// ---- for assistive programs

BOOL CMFCRibbonSlider::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_SLIDER;
    data.m_strValue.Format(L"%d", m_nPos);
    return TRUE;
}

BOOL CMFCRibbonSlider::PutACCValue(LPCTSTR lpszValue) {
    LPTSTR end = nullptr;
    const long position = lpszValue != nullptr ? wcstol(lpszValue, &end, 10) : 0;
    if (IsDisabled() || end == lpszValue || end == nullptr || *end != L'\0') {
        return FALSE;
    }
    ChangePos(static_cast<int>(std::clamp<long>(position, m_nMin, m_nMax)));
    return TRUE;
}
