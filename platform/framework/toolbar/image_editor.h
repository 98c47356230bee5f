#pragma once

#include "afxwin.h"
#include "toolbar/pixel_image.h"

#include <functional>
#include <optional>
#include <vector>

namespace toolbar {

enum class DrawingTool { Pen, Fill, Line, Rectangle, Ellipse, Picker, Eraser };

/// What the image editor works on: the image, the tool, the colour, and the way back. It knows no windows; who shows it
/// asks it.
class ImageDrawing {
public:
    /// hasAlpha: the eraser makes pixels clear, else it puts the grey that toolbars take for clear.
    ImageDrawing(PixelImage image, bool hasAlpha);

    const PixelImage& Image() const { return m_image; }
    bool HasAlpha() const { return m_hasAlpha; }
    DrawingTool Tool() const { return m_tool; }
    void SetTool(DrawingTool tool) { m_tool = tool; }
    COLORREF Color() const { return m_color; }
    void SetColor(COLORREF color) { m_color = color; }
    bool CanUndo() const { return !m_before.empty(); }
    /// The last stroke is taken back.
    void Undo();

    // A stroke: from the press of the mouse to its release.
    void Begin(fx::Point at);
    void MoveTo(fx::Point at);
    void End() { m_last.reset(); }
    /// As if it had not begun.
    void Cancel();
    bool IsUnderWay() const { return m_last.has_value(); }

private:
    PixelImage::Pixel Ink() const;

    PixelImage m_image;
    bool m_hasAlpha;
    DrawingTool m_tool = DrawingTool::Pen;
    COLORREF m_color = RGB(0, 0, 0);
    std::vector<PixelImage> m_before; ///< before each stroke
    fx::Point m_start;
    std::optional<fx::Point> m_last; ///< while a stroke is under way
};

/// A child that draws itself by a function and says where it is pressed, moved over while pressed, and let go.
class DrawnField : public CWnd {
public:
    std::function<void(CDC& dc, const CRect& client)> draw;
    std::function<void(CPoint point)> press;
    std::function<void(CPoint point)> move;
    std::function<void()> release;
    std::function<void()> cancel; ///< the mouse was lost meanwhile

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    DECLARE_MESSAGE_MAP()

private:
    bool m_isPressed = false;
};

/// The colours that the palette offers, row by row.
constexpr int kPaletteColumns = 8;
std::vector<COLORREF> PaletteColors(bool hasSixteenOnly);

/// The image's pixels as squares, clear ones checked, with lines between them where they are large enough.
void DrawEnlarged(CDC& dc, const CRect& client, const PixelImage& image);
/// In its own size, in the middle.
void DrawInOwnSize(CDC& dc, const CRect& client, const PixelImage& image);
/// The chosen colour on the left, the palette beside it. Where a colour lies; empty: there is no such.
CRect SwatchOf(const CRect& client, int index, int count);
void DrawPalette(CDC& dc, const CRect& client, const std::vector<COLORREF>& colors, COLORREF chosen);

} // namespace toolbar
