#pragma once

#include "documents/preview_pages.h"
#include "fx/print_preview.h"

#include <functional>

namespace fx {

/// Shows the pages of a job until the user closes it. `atEnd` is called while the view is still there.
/// True: the user wants them printed.
bool RunPreview(CWnd* owner, PreviewPages& pages, const CString& job, const std::function<void(CPreviewView&)>& atEnd);

} // namespace fx
