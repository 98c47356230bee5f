#pragma once

#include "framework_api.h"

#include <afxwin.h>

class CMFCRibbonBaseElement;

// The update object that a ribbon hands to the command handlers: what they say goes to one ribbon element.
class FRAMEWORK_API CMFCRibbonCmdUI : public CCmdUI {
public:
    CMFCRibbonCmdUI();

    void Enable(BOOL bOn = TRUE) override;
    void SetCheck(int nCheck = 1) override;
    void SetRadio(BOOL bOn = TRUE) override;
    void SetText(LPCTSTR lpszText) override;

    // The element that is being updated; not owned; null drops every change.
    CMFCRibbonBaseElement* m_pUpdated = nullptr;
};
