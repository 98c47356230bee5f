#include "ribbon/pane_animation.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include <commctrl.h>

#include "afxribbonstatusbarpane.h"
#include "fx/dc_scope.h"

namespace {

/// By the number of its timer; one thread shows panes.
std::unordered_map<UINT_PTR, RibbonPaneAnimation*>& Running() {
    static std::unordered_map<UINT_PTR, RibbonPaneAnimation*> running;
    return running;
}

} // namespace

RibbonPaneAnimation::RibbonPaneAnimation(CMFCRibbonStatusBarPane& pane, HBITMAP frames, int frameWidth,
                                         COLORREF transparent)
    : m_pane(pane) {
    BITMAP bitmap{};
    if (frames == nullptr || frameWidth <= 0 || ::GetObjectW(frames, sizeof(bitmap), &bitmap) != sizeof(bitmap)) {
        return;
    }
    m_size = CSize(frameWidth, bitmap.bmHeight);
    m_frames = ::ImageList_Create(frameWidth, bitmap.bmHeight, ILC_COLOR32 | ILC_MASK, 1, 1);
    const auto copy = static_cast<HBITMAP>(::CopyImage(frames, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    if (m_frames != nullptr && copy != nullptr) {
        ::ImageList_AddMasked(m_frames, copy, transparent);
        m_count = ::ImageList_GetImageCount(m_frames);
    }
    if (copy != nullptr) {
        ::DeleteObject(copy);
    }
}

RibbonPaneAnimation::~RibbonPaneAnimation() {
    Stop();
    if (m_frames != nullptr) {
        ::ImageList_Destroy(m_frames);
    }
}

void RibbonPaneAnimation::Start(UINT delay, UINT duration) {
    Stop();
    if (!HasFrames()) {
        return;
    }
    m_current = 0;
    m_start = ::GetTickCount64();
    m_duration = duration;
    m_timer = ::SetTimer(nullptr, 0, std::max<UINT>(delay, USER_TIMER_MINIMUM), OnTimer);
    if (m_timer != 0) {
        Running()[m_timer] = this;
    }
}

bool RibbonPaneAnimation::Stop() {
    const UINT_PTR timer = std::exchange(m_timer, 0);
    if (timer == 0) {
        return false;
    }
    ::KillTimer(nullptr, timer);
    Running().erase(timer);
    return true;
}

void CALLBACK RibbonPaneAnimation::OnTimer(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*now*/) {
    const auto found = Running().find(timer);
    if (found != Running().end()) {
        found->second->Step();
    }
}

// The end comes last: the pane may go with it.
void RibbonPaneAnimation::Step() {
    m_current = (m_current + 1) % m_count;
    if (m_duration != INFINITE && ::GetTickCount64() - m_start >= m_duration) {
        m_pane.StopAnimation();
        return;
    }
    m_pane.Redraw();
}

void RibbonPaneAnimation::Draw(CDC& dc, const CRect& rect) const {
    if (!HasFrames()) {
        return;
    }
    const HICON icon = ::ImageList_GetIcon(m_frames, m_current, ILD_NORMAL);
    if (icon == nullptr) {
        return;
    }
    {
        const fx::PictureScope place(dc, rect);
        ::DrawIconEx(dc, place.Corner().x, place.Corner().y, icon, rect.Width(), rect.Height(), 0, nullptr, DI_NORMAL);
    }
    ::DestroyIcon(icon);
}
