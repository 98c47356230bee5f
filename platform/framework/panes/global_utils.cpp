#include "afxglobalutils.h"

#include "afxPaneFrameWnd.h"
#include "fx/frame.h"

CDockingManager* CGlobalUtils::GetDockingManager(CWnd* pWnd) {
    if (const auto* const miniFrame = DYNAMIC_DOWNCAST(CPaneFrameWnd, pWnd)) {
        return miniFrame->GetDockingManager();
    }
    auto* const frame = DYNAMIC_DOWNCAST(CFrameWnd, pWnd);
    return frame != nullptr ? frame->FindDockingManager() : nullptr;
}
