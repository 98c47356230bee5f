#pragma once

#include "fx/bar_styles.h"
#include "fx/wnd.h"

class CFrameWnd;

/// What a frame's bars have in common, whichever of the two families of bars they belong to.
namespace frame_bars {

/// Whose commands a bar's items follow: the bar's owner when that is a frame, else the frame around it. Null without
/// one.
CFrameWnd* CommandTargetOf(const CWnd& bar);

/// Answers WM_SIZEPARENT: takes the strip of that thickness off the side that `style` names (CBRS_ALIGN_) and, when the
/// frame collects places, gives it to the bar.
void TakePlaceInFrame(const CWnd& bar, DWORD style, CSize size, AFX_SIZEPARENTPARAMS& place);

} // namespace frame_bars
