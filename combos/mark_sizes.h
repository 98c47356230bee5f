#pragma once

/// Sizes of the marks in pixels, shared by all combos of the process.
struct MarkSizes {
    int checkBox = 15;
    /// Of swatches and lights, before they follow the image scale.
    int icon = 13;
    bool isCheckBoxScaled = false;
    bool isIconEnlarged = false;

    static MarkSizes& Current();
};

/// The scale of the ribbon's images; 1.0 while it is switched off, and never below.
double MarkScale();

/// What the first combos of a process do on a display whose scale is above 1.0: the check combo that the framework
/// makes by name, and the multi combo that is made with arguments.
void ScaleCheckBoxOnce();
void EnlargeIconOnce();

/// The icon's size at the present scale.
int ScaledIconSize();
