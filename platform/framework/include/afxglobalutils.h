#pragma once

#include "framework_api.h"

class CDockingManager;
class CWnd;

/// What concerns windows of every kind with panes in them. Has no state.
class FRAMEWORK_API CGlobalUtils {
public:
    /// The docking manager of a frame, an MDI child or a mini frame, which owns it; null: the window is none of those,
    /// or has none.
    CDockingManager* GetDockingManager(CWnd* pWnd);
};
