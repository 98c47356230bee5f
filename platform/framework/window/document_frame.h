#pragma once

#include "afxwin.h"
#include "fx/document.h"

namespace fx {

/// The frame of the document's first view; null without one.
inline CFrameWnd* FirstFrameOf(const CDocument& document) {
    POSITION place = document.GetFirstViewPosition();
    const CView* const view = document.GetNextView(place);
    return view != nullptr ? view->GetParentFrame() : nullptr;
}

} // namespace fx
