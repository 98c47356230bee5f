#pragma once

#include <afxwin.h>

class CMFCRibbonStatusBarPane;

/// The frames of a status bar pane and the timer that shows them one after the other, in the thread of the user
/// interface. Owned by its pane.
class RibbonPaneAnimation {
public:
    /// The bitmap holds the frames side by side, each frameWidth pixels wide; it is copied.
    RibbonPaneAnimation(CMFCRibbonStatusBarPane& pane, HBITMAP frames, int frameWidth, COLORREF transparent);
    ~RibbonPaneAnimation();
    RibbonPaneAnimation(const RibbonPaneAnimation&) = delete;
    RibbonPaneAnimation& operator=(const RibbonPaneAnimation&) = delete;

    /// Milliseconds; INFINITE: until Stop. Starts anew when it runs already.
    void Start(UINT delay, UINT duration);
    /// True when it ran.
    bool Stop();
    bool IsRunning() const { return m_timer != 0; }
    bool HasFrames() const { return m_count > 0; }
    /// In pixels of the bitmap.
    CSize FrameSize() const { return m_size; }
    /// The current frame, enlarged to the rectangle.
    void Draw(CDC& dc, const CRect& rect) const;

private:
    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD now);
    void Step();

    CMFCRibbonStatusBarPane& m_pane;
    HIMAGELIST m_frames = nullptr; // owned
    CSize m_size{0, 0};
    int m_count = 0;
    int m_current = 0;
    UINT_PTR m_timer = 0;
    ULONGLONG m_start = 0; // system ticks
    UINT m_duration = INFINITE;
};
