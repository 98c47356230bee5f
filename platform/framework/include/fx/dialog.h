#pragma once

#include "fx/wnd.h"

/// A dialog window, modal (DoModal) or modeless (Create), from a resource or a template in memory. The caller owns the
/// object; a modeless dialog that shall delete itself overrides PostNcDestroy.
class FRAMEWORK_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog();
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    ~CDialog() override;

    /// Modeless. FALSE when the template is missing or the window could not be made. Initial values of controls
    /// (lpDialogInit) are not read.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL, void* lpDialogInit = NULL);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);

    /// The template for DoModal; it must live until DoModal has returned.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL, void* lpDialogInit = NULL);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);
    /// Returns the value given to EndDialog (IDOK, IDCANCEL, ...), -1 when the dialog could not be made. The parent and
    /// the main frame are disabled meanwhile.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    DWORD GetDefID() const;
    void SetDefID(UINT nID);
    void SetHelpID(UINT nIDR) { m_nIDHelp = nIDR; }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    /// Dialog units to pixels.
    void MapDialogRect(LPRECT lpRect) const;

    /// TRUE lets the system put the focus on the first control. The default fills the controls (UpdateData). A pop-up
    /// dialog whose template has neither a place nor a style that says one is centred on its owner afterwards, unless
    /// it was moved meanwhile.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* pFont);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    virtual void OnOK();
    virtual void OnCancel();
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = NULL;
    CWnd* m_pParentWnd = NULL; ///< given to the constructor or InitModalIndirect

private:
    /// Makes the window from a resource of that name; false when there is none.
    bool CreateFromResource(LPCTSTR name, CWnd* parent);
    bool CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance);
    void CreateAndRunModal(CWnd* owner);

    LPCDLGTEMPLATE m_memoryTemplate = nullptr; ///< for DoModal, not owned
    HGLOBAL m_memoryHandle = nullptr;          ///< the same, to be locked
    bool m_isModal = false;                    ///< DoModal has not returned
    bool m_hasEnded = false;                   ///< EndDialog was called
    bool m_hasNoPlace = false;                 ///< the template says no place
};
