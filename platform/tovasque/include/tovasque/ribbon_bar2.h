#pragma once

#include "tovasque_api.h"

#include <afxribbonbar.h>

/// The host's ribbon bar below the library's extended one. The frame owns it, as any bar; it lives in the
/// user-interface thread.
class TOVASQUE_API CMFCRibbonBar2 : public CMFCRibbonBar {
    DECLARE_DYNAMIC(CMFCRibbonBar2)

public:
    /// Nonzero: the bar takes the place of the frame's caption.
    explicit CMFCRibbonBar2(int nReplaceFrameCaption = TRUE);
    ~CMFCRibbonBar2() override;

protected:
    DECLARE_MESSAGE_MAP()
};
