#pragma once

#include "afxglobals.h"
#include "visual/paint_ribbon.h"

#include <afxbaseribbonelement.h>

class CBasePane;

// From the framework's objects to the state that paint functions read.
namespace visual {

inline Look LookOf(const Skin& skin) { return {skin, afxGlobalData.GetRibbonImageScale()}; }

/// Of what has square corners in skins that are not flat.
inline Corners PlateCorners(const Skin& skin, const Look& look) {
    return skin.isFlat ? Corners::All(look.Radius()) : Corners{};
}

inline ElementState StateOf(const CMFCRibbonBaseElement& element) {
    // What has the keyboard's focus looks like what is under the pointer.
    return {element.IsHighlighted() != FALSE || element.IsFocused() != FALSE, element.IsPressed() != FALSE,
            element.IsChecked() != FALSE, element.IsDisabled() != FALSE, element.IsDroppedDown() != FALSE};
}

inline GroupPlace PlaceOf(const CMFCRibbonBaseElement& element) {
    switch (element.GetLocationInGroup()) {
    case CMFCRibbonBaseElement::RibbonElementFirstInGroup:
        return GroupPlace::First;
    case CMFCRibbonBaseElement::RibbonElementMiddleInGroup:
        return GroupPlace::Middle;
    case CMFCRibbonBaseElement::RibbonElementLastInGroup:
        return GroupPlace::Last;
    default:
        return GroupPlace::Alone;
    }
}

/// The ground of a ribbon pop-up that lists its elements: plain, with a column for images. false: the bar is none.
bool FillRibbonMenu(HDC dc, CBasePane* bar, const RECT& rect, const Look& look);

/// A ribbon status bar: what it lies on, and the lines between its elements. false: the bar is none.
bool IsStatusBar(const CBasePane* bar);
bool FillStatusBar(HDC dc, CBasePane* bar, const RECT& rect, const Look& look);
bool PaintStatusSeparator(HDC dc, CBasePane* bar, const RECT& rect, bool isUpright, const Look& look);

} // namespace visual
