#pragma once

#include "afxtoolbarmenubutton.h"

class CMFCToolBar;

/// The button at the end of a toolbar (CMFCToolBar::EnableCustomizeButton). The bar owns and draws it; it is none of
/// the bar's buttons and has no index. Its rectangle is empty while it is not shown.
class FRAMEWORK_API CMFCCustomizeButton : public CMFCToolBarMenuButton {
    DECLARE_SERIAL(CMFCCustomizeButton)

public:
    CMFCCustomizeButton() = default;
    CMFCCustomizeButton(UINT uiCustomizeCmdId, const CString& strCustomizeText);

    /// The command at the end of its menu; (UINT)-1: there is none.
    UINT GetCustomizeCmdId() const { return m_uiCustomizeCmdId; }
    CString GetCustomizeText() const { return m_strCustomizeText; }
    CMFCToolBar* GetParentToolbar() const;

    void CopyFrom(const CMFCToolBarButton& src) override;
    BOOL IsEmptyMenuAllowed() const override { return TRUE; }
    BOOL IsEditable() const override { return FALSE; }
    BOOL CanBeStored() const override { return FALSE; }
    /// The menu of the buttons that have no room, and of what is below them. FALSE: the button is not shown.
    BOOL OpenPopupMenu(CWnd* pWnd = NULL) override;

private:
    friend class CMFCToolBar;

    UINT m_uiCustomizeCmdId = static_cast<UINT>(-1);
    CString m_strCustomizeText;
};
