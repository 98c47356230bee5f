#pragma once

#include <afxwin.h>

namespace toolbar {

/// The shadow of a pop-up: a window below it that shows what lies there, darkened. Input goes through it. It lives
/// beside the pop-up and is moved with it.
class MenuShadow : public CWnd {
public:
    MenuShadow() = default;
    ~MenuShadow() override { DestroyWindow(); }

    /// Below the menu (screen), which must not be covered yet. Nothing happens on displays that cannot show shadows.
    void Show(HWND menu, const CRect& rectMenu, int nDepth);
    void Hide();
    CRect Rect() const { return m_rect; }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    void Capture();

    CBitmap m_picture;
    CRect m_rect{0, 0, 0, 0};
    CRect m_rectMenu{0, 0, 0, 0};
    int m_depth = 0;
};

} // namespace toolbar
