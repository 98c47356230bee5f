#pragma once

#include "visual/paint.h"

// The ribbon's parts. Text that belongs to a part is given with its length; the font is the one selected.
namespace visual {

struct TabState {
    bool isActive = false;
    bool isHot = false;
    bool isFocused = false;
    /// Colour of a context category's tab, alpha 0 for an ordinary one.
    Argb tint = 0;
};

/// Row of tabs and whatever of the bar nothing else covers.
void PaintRibbonBackground(HDC dc, const RECT& rect, const Look& look);
/// The same with the skin's picture of the row of tabs over it.
void PaintTabRow(HDC dc, const RECT& rect, const Look& look);
/// Corner radius of the tabs and of the category below them.
void PaintTab(HDC dc, const RECT& rect, const TabState& state, const Look& look);
Argb TabTextColor(const TabState& state, const Skin& skin);
/// The area below the tabs; its upper line is left out between the gap's ends, where the active tab opens into it.
void PaintCategory(HDC dc, const RECT& rect, LONG gapLeft, LONG gapRight, const Look& look);

/// The panel's frame and caption strip. An empty caption rectangle: no strip.
void PaintPanel(HDC dc, const RECT& rect, const RECT& caption, bool isHot, const Look& look);
void PaintPanelCaption(HDC dc, const RECT& caption, const wchar_t* text, int length, bool isHot, const Look& look);
/// The small button in the caption: a corner and an arrow that leads out of it. isPanelHot: the caption is the hot one.
void PaintLaunchButton(HDC dc, const RECT& rect, const ElementState& state, bool isPanelHot, const Look& look);
void PaintDefaultPane(HDC dc, const RECT& rect, const ElementState& state, const Look& look);

/// A button of one face, or of two when menu is not empty: the command part and the menu part.
struct ButtonParts {
    RECT rect{};
    RECT command{};
    RECT menu{};
    bool isCommandHot = false;
    bool isMenuHot = false;
    GroupPlace place = GroupPlace::Alone;
    bool isOnStatusBar = false;
};
void PaintButton(HDC dc, const ButtonParts& parts, const ElementState& state, const Look& look);
void PaintGroup(HDC dc, const RECT& rect, const Look& look);

void PaintEdit(HDC dc, const RECT& rect, const ElementState& state, const Look& look);

/// filledTo: the channel is filled from its left end to here, where the skin shows that.
void PaintSliderChannel(HDC dc, const RECT& rect, LONG filledTo, bool isDisabled, const Look& look);
void PaintSliderThumb(HDC dc, const RECT& rect, const ElementState& state, const Look& look);
void PaintZoomButton(HDC dc, const RECT& rect, bool isPlus, const ElementState& state, const Look& look);

void PaintApplicationButton(HDC dc, const RECT& rect, const ElementState& state, const Look& look);
/// Of a text on any ground: the ribbon's where that can be read, else white or black.
Argb TextColorOn(Argb ground, const Skin& skin);
/// A ring along the inside of the rectangle, around what has the keyboard's focus: in the skin's accent where that can
/// be told from `ground`, the opaque colour that lies there.
void PaintFocus(HDC dc, const RECT& rect, Argb ground, const Look& look);
void PaintCaption(HDC dc, const RECT& rect, bool isActive, const Look& look);
void PaintCaptionButton(HDC dc, const RECT& rect, WindowGlyph glyph, const ElementState& state, const Look& look);
/// The same for a maximised MDI child, on the row of tabs.
void PaintChildButton(HDC dc, const RECT& rect, WindowGlyph glyph, const ElementState& state, const Look& look);

struct FrameBorderState {
    bool isActive = true;
    int cornerRadius = 0; // of the window's upper corners, pixels
};
/// The borders of a window around its client area, whose first captionHeight pixels are the caption: it goes on into
/// the borders. The client area itself must be clipped.
void PaintFrameBorder(HDC dc, const RECT& window, const RECT& client, int captionHeight, const FrameBorderState& state,
                      const Look& look);
void PaintCategoryScroll(HDC dc, const RECT& rect, bool isLeft, const ElementState& state, const Look& look);
void PaintContextCaption(HDC dc, const RECT& rect, Argb tint, const Look& look);
void PaintKeyTip(HDC dc, const RECT& rect, const wchar_t* text, int length, bool isDisabled, const Look& look);
void PaintProgress(HDC dc, const RECT& rect, const RECT& chunk, const Look& look);
void PaintMainPanelFrame(HDC dc, const RECT& rect, const RECT& content, const Look& look);
void PaintStatusBar(HDC dc, const RECT& rect, const Look& look);

} // namespace visual
