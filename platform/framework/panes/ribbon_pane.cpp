#include "panes/ribbon_pane.h"

#include "afxribbonbar.h"

bool IsRibbonPane(const CBasePane* pane) { return pane && pane->IsKindOf(RUNTIME_CLASS(CMFCRibbonBar)); }

CMFCRibbonBar* RibbonPane(CBasePane* pane) { return IsRibbonPane(pane) ? static_cast<CMFCRibbonBar*>(pane) : nullptr; }
