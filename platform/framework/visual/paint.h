#pragma once

#include "visual/canvas.h"

// Paint functions shared by everything that is drawn. They read a skin, rectangles and a state, and change nothing but
// the pixels of the device context. Rectangles are device pixels; sizes inside them follow Look::scale.
namespace visual {

struct Look {
    const Skin& skin;
    double scale = 1.0;

    /// Pixels at 96 DPI at this scale, to the nearest.
    int Px(int n) const { return static_cast<int>(n * scale + (n < 0 ? -0.5 : 0.5)); }
    /// Lines get thicker in whole steps only, so that they stay crisp.
    int Line() const { return scale >= 2.0 ? static_cast<int>(scale) : 1; }
    int Radius() const { return skin.radius == 0 ? 0 : Px(skin.radius); }
};

/// How far an element's face goes into its neighbours': which corners are round.
enum class GroupPlace { Alone, First, Middle, Last };

struct ElementState {
    bool isHot = false;
    bool isPressed = false;
    bool isChecked = false;
    bool isDisabled = false;
    bool isDropped = false;
};

/// The face of a button in this state; null when none is drawn.
const Face* ButtonFaceFor(const Skin& skin, const ElementState& state);
/// The face of a slider knob or another small round or square handle.
const Face& KnobFaceFor(const Skin& skin, const ElementState& state);

Corners CornersFor(GroupPlace place, int radius);

/// The face's picture where the skin has it, its colours otherwise.
void PaintFace(HDC dc, const RECT& rect, const Face& face, const Corners& corners, const Look& look,
               PlatePlace place = PlatePlace::Alone);
/// The skin's picture of that number alone. false, and nothing drawn, when there is none.
bool PaintPlate(HDC dc, const RECT& rect, std::uint32_t plate, PlatePlace place, const Look& look);
/// The same without either border.
void PaintFill(HDC dc, const RECT& rect, const Face& face, const Look& look);
/// Lines of the outer and the inner border only.
void PaintBorders(HDC dc, const RECT& rect, const Face& face, const Corners& corners, const Look& look);
void PaintSolid(HDC dc, const RECT& rect, Argb color);
void PaintFrame(HDC dc, const RECT& rect, Argb color, int thickness);
/// A dark line and a light one beside it, upright or lying, in the middle of the rectangle.
void PaintEtchedLine(HDC dc, const RECT& rect, bool isUpright, Argb dark, Argb light, const Look& look);

enum class ArrowDirection { Up, Down, Left, Right };

/// Two strokes that meet in a point, in the middle of the rectangle.
void PaintChevron(HDC dc, const RECT& rect, ArrowDirection direction, Argb color, const Look& look);
/// A chevron in flat skins, otherwise a small filled triangle with a light edge below it.
void PaintArrow(HDC dc, const RECT& rect, ArrowDirection direction, Argb color, Argb light, const Look& look);
void PaintCheckMark(HDC dc, const RECT& rect, Argb color, const Look& look);
void PaintRadioMark(HDC dc, const RECT& rect, Argb color, const Look& look);
/// Plus or minus.
void PaintSign(HDC dc, const RECT& rect, bool isPlus, Argb color, const Look& look);

enum class WindowGlyph { Close, Minimize, Maximize, Restore };
void PaintWindowGlyph(HDC dc, const RECT& rect, WindowGlyph glyph, Argb color, const Look& look);

/// Two-colour dots along a strip (gripper) or in the corner of a triangle (size box).
void PaintGripper(HDC dc, const RECT& rect, bool isUpright, const Look& look);
void PaintSizeBox(HDC dc, const RECT& rect, const Look& look);

/// state.isChecked: 1 mark, isMixed: a square instead.
void PaintCheckBox(HDC dc, const RECT& rect, const ElementState& state, bool isMixed, const Look& look);
void PaintRadioButton(HDC dc, const RECT& rect, const ElementState& state, const Look& look);

/// Text in the font that is selected, with DT_ flags.
void PaintText(HDC dc, const RECT& rect, const wchar_t* text, int length, UINT flags, Argb color);

} // namespace visual
