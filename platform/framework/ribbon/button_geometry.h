#pragma once

#include "ribbon/face_types.h"

// Sizes and rectangles of a ribbon button's face: the one place that drawing, hit test and measuring share.
namespace ribbon {

enum class ButtonLook {
    Large,        // large image above two lines of text
    LargeOnRight, // large image, text on its right
    Small,        // small image, text on its right
    ImageOnly,
};

enum class ButtonMenu {
    None,
    Whole, // the whole face opens the menu
    Split, // command area and menu area
};

// What the face shows; sizes are scaled pixels, a zero size is "not there".
struct ButtonContent {
    ButtonLook look = ButtonLook::Small;
    ButtonMenu menu = ButtonMenu::None;
    Size image;
    Size rightText;           // one line
    int bottomTextWidth = 0;  // the wider of the two lines, the arrow after the second one counted
    bool isArrowAlone = true; // large look: the text has one line, the arrow stands alone below it
    int secondLineWidth = 0;  // large look: second line without the arrow
};

// Rectangles of the parts; the text rectangle of the large look holds two lines. Parts that are not there are empty.
struct ButtonFace {
    Rect image;
    Rect text;
    Rect arrow;
    Rect command;
    Rect menu;
};

Size MenuArrowSize(const FaceMetrics& metrics);
// What the arrow adds to the second line of a large button's text.
int BottomArrowWidth(const FaceMetrics& metrics);
// A text not wider than this is not broken in two lines: breaking it would not make the button narrower.
int LargeSingleLineWidth(const FaceMetrics& metrics, Size image);

Size MeasureButton(const ButtonContent& content, const FaceMetrics& metrics);
ButtonFace PlaceButton(const Rect& rect, const ButtonContent& content, const FaceMetrics& metrics);

} // namespace ribbon
