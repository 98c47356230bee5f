#pragma once

#include "ribbon/face_types.h"

// Sizes and rectangles of the elements that stand in a row: edits (and combo boxes) and check boxes.
namespace ribbon {

// Scaled pixels; a zero size is "not there".
struct EditContent {
    Size image;
    Size label;
    int boxWidth = 0;
    int dropButtonWidth = 0; // inside the box, at its right end
    int leastBoxWidth = 0;   // to which the box narrows before the label is cut; 0: it keeps its width
};

struct EditFace {
    Rect image;
    Rect label;
    Rect box;        // edit area and drop button
    Rect edit;       // edit area
    Rect dropButton; // empty without one
    Rect text;       // where the text stands: the edit window's place
};

Size MeasureEdit(const EditContent& content, const FaceMetrics& metrics);
// The box stands at the right end. Where there is less room than MeasureEdit asks for, it narrows to its least width,
// then the label gives way, then the box is cut.
EditFace PlaceEdit(const Rect& rect, const EditContent& content, const FaceMetrics& metrics);

struct CheckBoxFace {
    Rect box;
    Rect text;
};

Size MeasureCheckBox(Size text, const FaceMetrics& metrics);
CheckBoxFace PlaceCheckBox(const Rect& rect, Size text, const FaceMetrics& metrics);

} // namespace ribbon
