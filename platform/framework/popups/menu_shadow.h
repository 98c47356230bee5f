#pragma once

#include <afxwin.h>

#include <cstdint>
#include <vector>

namespace toolbar {

/// The shadow of a pop-up: a window below it that darkens what lies there. Input goes through it. It lives
/// beside the pop-up and is moved with it. The visual manager draws it (OnDrawMenuShadow) over white, and what it makes
/// darker is the shadow.
///
/// Where the screen is composed of the windows' pictures, a layered window hands the darkness alone to the system.
/// Elsewhere there are no half-transparent pixels, and the shadow shows copies of the windows below, taken from the
/// windows themselves: what the screen showed there a moment ago, a menu or a tooltip, is in none of them.
class MenuShadow : public CWnd {
public:
    MenuShadow();
    ~MenuShadow() override;

    /// Around the menu (screen), with the windows below as they are now; depth: pixels that it reaches beyond the menu.
    /// Nothing happens on displays that cannot show shadows. A shadow that is there already is moved.
    void Show(HWND menu, const CRect& rectMenu, int depth);
    void Hide();
    /// Screen, the menu's place included; empty while it is hidden.
    CRect Rect() const { return m_rect; }
    /// Whether the pictures below are needed up to date before Show.
    static bool CopiesWindows();

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    bool MakeWindow(HWND menu);
    void MeasureDarkness(const CRect& rectMenu, int depth);
    void ShowLayer();
    void ShowCopy(HWND menu, const CRect& rectMenu);
    void CopyWindowsBelow(HWND menu, std::uint32_t* pixels, HDC picture) const;
    void Darken(std::uint32_t* pixels, const CRect& area) const;

    CRect m_rect{0, 0, 0, 0};
    CBitmap m_copy;                       ///< of what lies below, darkened; none while the window is layered
    std::vector<std::uint8_t> m_darkness; ///< of each pixel of m_rect: 0 none, 255 black
};

} // namespace toolbar
