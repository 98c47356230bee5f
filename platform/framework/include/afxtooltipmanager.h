#pragma once

#include <afxtooltipctrl.h>
#include <fx/registered_messages.h>
#include <fx/tooltip_types.h>

/// Creates the tooltips of all bars in the class and look chosen for their type. One object, owned by the application.
class FRAMEWORK_API CTooltipManager : public CObject {
public:
    CTooltipManager();
    ~CTooltipManager() override;

    /// pToolTip receives a new tooltip, freed with DeleteToolTip. FALSE, pToolTip NULL, when it could not be created.
    static BOOL CreateToolTip(CToolTipCtrl*& pToolTip, CWnd* pWndParent, UINT nType);
    static void DeleteToolTip(CToolTipCtrl*& pToolTip);
    /// lpszDescr goes to tooltips that show descriptions. Line breaks in the text widen the tooltip to several lines.
    static void SetTooltipText(TOOLINFO* pTI, CToolTipCtrl* pToolTip, UINT nType, const CString strText,
                               LPCTSTR lpszDescr = NULL);
    /// pRTC derives from CMFCToolTipCtrl, or is NULL for the plain system tooltip. Every owner of a tooltip gets
    /// AFX_WM_UPDATETOOLTIPS with the types and creates its tooltip again.
    void SetTooltipParams(UINT nTypes, CRuntimeClass* pRTC = RUNTIME_CLASS(CMFCToolTipCtrl),
                          CMFCToolTipInfo* pParams = NULL);
    void UpdateTooltips();
};
