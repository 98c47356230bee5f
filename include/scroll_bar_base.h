#pragma once

#include "barwright_api.h"

#include <afxwin.h>

#include <array>
#include <memory>

class ScrollImages;

/// A child window that draws a scroll bar in the black or the silver skin: two arrows and a track with a thumb. It
/// scrolls nothing itself: a subclass says where its content stands and moves it. A window at least as tall as wide is
/// a vertical bar.
///
/// The subclass creates the window (of a class with CS_DBLCLKS), then calls SetSkin, SetTotalLength and InitThumb, and
/// InitThumb again whenever the window has been resized. Lengths are pixels of the bar's client area; positions are
/// steps of the content. User-interface thread only.
class BARWRIGHT_API CScrollBarBase : public CWnd {
public:
    CScrollBarBase();
    ~CScrollBarBase() override;

    /// Where the content stands, from 0 on; 0 here.
    virtual int GetBaseScrollPos();
    /// The largest position; 0, as here: there is nothing to scroll, and the bar shows its ground alone.
    virtual int GetBaseScrollLimit();
    /// Moves the content, towards its beginning where `steps` is negative; does nothing here.
    virtual void ScrollBaseMove(int steps);
    /// A dragged thumb has come far enough for `steps`: moves the content and puts the thumb where the content went.
    /// `thumbPosition` is where the pointer would have it.
    virtual void UpdatePoint(int steps, int thumbPosition);
    /// How many positions one step of a drag is; 1 here.
    virtual int GetStepLength();
    /// Takes the window's size and shows the bar anew; nothing where the size is the one it took last.
    virtual void InitThumb();
    /// How long the content is, in the unit in which the bar's own length is a part of it; 0: nothing to scroll.
    virtual void SetTotalLength(int length);
    /// 0 black, 1 silver; any other number is kept and changes nothing that is seen.
    virtual void SetSkin(UINT skin);

    /// Takes the colours and the names of the images of the skin. Tells the user by a message box when the installation
    /// directory is unknown, and changes nothing then.
    void UpdateSkin(UINT skin);

    /// How broad a bar is for the arrows that it has: two pixels more than they. Show it anew (InitThumb) afterwards.
    int GetScrollWidth() const { return m_arrowSize + 2; }
    void SetScrollWidth(int width) { m_arrowSize = width - 2; }

    /// The content was scrolled by the wheel, or by anyone else: the thumb follows.
    void OnMouseWheelScroll();

    // The grounds of the bar, and the frames of its arrows while the pointer is over it.
    COLORREF GetBlackBkColor() const { return m_blackBkColor; }
    void SetBlackBkColor(COLORREF color);
    COLORREF GetBlackSideColor() const { return m_blackSideColor; }
    void SetBlackSideColor(COLORREF color);
    COLORREF GetSilverBkColor() const { return m_silverBkColor; }
    void SetSilverBkColor(COLORREF color);
    COLORREF GetSilverSideColor() const { return m_silverSideColor; }
    void SetSilverSideColor(COLORREF color);

    // Image files of the bar's present direction; below the installation directory unless said otherwise. The thumb's
    // two images (at rest, and under the pointer), and the arrows. Files are looked at whenever the bar is drawn, but
    // for a thumb in the hand: one that has changed is shown as it is now, one that cannot be loaded is left out. On a
    // display of 125, 150 or 200 % NAME.150.png and so on is taken instead of NAME.png where it lies beside it when the
    // skin is taken.
    CString GetBlackNormalPath() const;
    void SetBlackNormalPath(const CString& path);
    CString GetBlackClickPath() const;
    void SetBlackClickPath(const CString& path);
    CString GetSilverNormalPath() const;
    void SetSilverNormalPath(const CString& path);
    CString GetSilverClickPath() const;
    void SetSilverClickPath(const CString& path);
    CString GetBlackTopOrLeftArrowPath() const;
    CString GetBlackRightOrBottomArrowPath() const;
    CString GetSilverTopOrLeftArrowPath() const;
    CString GetSilverRightOrBottomArrowPath() const;
    void SetBlackArrowPath(const CString& first, const CString& second);
    void SetSilverArrowPath(const CString& first, const CString& second);
    /// All four. `useAppPath` is for both skins: whether all paths begin at the installation directory.
    void SetBlackPath(const CString& firstArrow, const CString& secondArrow, const CString& normal,
                      const CString& click, bool useAppPath);
    void SetSilverPath(const CString& firstArrow, const CString& secondArrow, const CString& normal,
                       const CString& click, bool useAppPath);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnCaptureChanged(CWnd* window);
    DECLARE_MESSAGE_MAP()

    /// What a direction has of each image.
    enum Image { FirstArrow, SecondArrow, Thumb, PressedThumb, ImageCount };
    enum Skin { Black, Silver, SkinCount };

    bool CanScroll();
    /// The thumb goes where the content stands.
    void UpdatePosition();
    // Draw at once, not at the next paint.
    void DrawTrack();
    void DrawArrows();

    bool m_thumbPressed = false;
    bool m_firstArrowPressed = false;
    bool m_secondArrowPressed = false;
    CRect m_client = CRect(0, 0, 0, 0); ///< As InitThumb found it last.
    CRect m_track = CRect(0, 0, 0, 0);
    CRect m_firstArrow = CRect(0, 0, 0, 0);
    CRect m_secondArrow = CRect(0, 0, 0, 0);
    CRect m_thumb = CRect(0, 0, 0, 0);
    int m_thumbPosition = 0;     ///< Along the bar.
    int m_lastThumbPosition = 0; ///< Where the content put the thumb last.
    CPoint m_dragOrigin = CPoint(0, 0);
    bool m_isTracking = false; ///< The system was asked to tell when the pointer leaves.
    double m_pixelsPerStep = 0;
    UINT m_skin = Black;
    int m_totalLength = 0;
    int m_hover = 0; ///< 0: no pointer, 1: over the bar, 2: on the thumb, or dragging it.
    // Of the present skin.
    COLORREF m_bkColor = RGB(75, 80, 90);
    COLORREF m_sideColor = RGB(172, 183, 188);
    COLORREF m_silverBkColor = RGB(235, 240, 244);
    COLORREF m_blackBkColor = RGB(75, 80, 90);
    COLORREF m_silverSideColor = RGB(172, 183, 188);
    COLORREF m_blackSideColor = RGB(172, 183, 188);
    std::array<CString, ImageCount> m_currentPaths; ///< Whole paths of what is drawn.
    std::array<std::array<std::array<CString, ImageCount>, 2>, SkinCount>
        m_paths; ///< By skin; 0 horizontal, 1 vertical.
    bool m_usesAppPath = true;
    int m_arrowSize = 18;
    bool m_isVertical = true;

private:
    CString& Path(Skin skin, Image image) { return m_paths[skin][m_isVertical ? 1 : 0][image]; }
    const CString& Path(Skin skin, Image image) const { return m_paths[skin][m_isVertical ? 1 : 0][image]; }
    void SetPath(Skin skin, Image image, const CString& path);
    void SetPaths(Skin skin, const std::array<CString, ImageCount>& paths, bool useAppPath);

    void PlaceParts();
    void PlaceThumb();
    int TrackLength() const;
    int ThumbLength() const;
    /// Which arrow is at a point, as a step; 0: none.
    int ArrowAt(CPoint point);
    bool IsOnThumb(CPoint point);
    void MoveBy(int steps);
    void Drag(CPoint point);
    void EndPress();
    void DrawTrack(CDC& dc);
    void DrawArrows(CDC& dc);
    void DrawArrow(CDC& dc, const CRect& rect, Image image);

    std::unique_ptr<ScrollImages> m_images;
};
