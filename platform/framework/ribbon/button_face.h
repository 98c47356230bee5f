#pragma once

#include <afxribbonbutton.h>

#include "ribbon/button_geometry.h"
#include "ribbon/text_break.h"

// A button's face as it is drawn now.
struct CMFCRibbonButton::Face {
    ribbon::ButtonContent content;
    ribbon::TextBreak lines; // of the text below a large image
    ribbon::ButtonFace parts;
};
