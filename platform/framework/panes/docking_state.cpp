// Where the panes are, from one run to the next.
#include "afxDockingManager.h"

#include "afxPane.h"

BOOL CDockingManager::SaveState(LPCTSTR lpszProfileName, UINT) {
    BOOL isSaved = TRUE;
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position;) {
        isSaved &= static_cast<CBasePane*>(m_lstControlBars.GetNext(position))->SaveState(lpszProfileName);
    }
    return isSaved;
}

BOOL CDockingManager::LoadState(LPCTSTR lpszProfileName, UINT) {
    BOOL isLoaded = TRUE;
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position;) {
        isLoaded &= static_cast<CBasePane*>(m_lstControlBars.GetNext(position))->LoadState(lpszProfileName);
    }
    AdjustDockingLayout();
    return isLoaded;
}
