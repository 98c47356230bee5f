#pragma once

#include "framework_api.h"

#include <windows.h>

class CWnd;

/// Carries CWnd::UpdateData through DoDataExchange: the window and the direction.
class FRAMEWORK_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    /// Remembers the control that Fail puts the focus to. Throws CNotSupportedException when there is none of that id.
    HWND PrepareCtrl(int nIDC);
    /// Like it for a control with text, which Fail selects.
    HWND PrepareEditCtrl(int nIDC);
    /// Ends the exchange by an exception that UpdateData catches.
    [[noreturn]] void Fail();

    BOOL m_bSaveAndValidate; ///< TRUE: controls to data; FALSE: data to controls
    CWnd* m_pDlgWnd;

private:
    HWND m_lastControl = nullptr;
    bool m_isEdit = false;
};
