#pragma once

// The parts of a ribbon slider's face. Free of windows headers: the slider's geometry is tested without windows.
enum class RibbonSliderPart {
    None,
    Thumb,
    Channel,
    Increase, // the "+" button
    Decrease, // the "-" button
};
