#pragma once

/// Sizes of the marks in pixels, shared by all combos of the process.
struct MarkSizes {
    int checkBox = 15;
    /// Of swatches and lights, before they follow the image scale.
    int icon = 13;
    bool isCheckBoxScaled = false;
    bool isIconFixed = false;

    static MarkSizes& Current();
};

/// The scale of the ribbon's images; 1.0 while it is switched off, and never below.
double MarkScale();

/// What the check combo does that the framework makes by name: the first one on a display whose scale is above 1.0
/// scales the box.
void ScaleCheckBoxOnce();
/// What the multi combo does that is made with arguments: the first one of a process fixes the icon's size for all,
/// larger where the display's scale is above 1.0 then.
void EnlargeIconOnce();

/// The icon's size at the present scale.
int ScaledIconSize();
