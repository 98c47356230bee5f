#pragma once

#include "fx/dialog.h"

#include <prsht.h>

/// One page of a CPropertySheet, a dialog without a frame: from a resource, or from a template in memory (m_psp with
/// PSP_DLGINDIRECT and pResource, writable, alive as long as the page's window). The caller owns the object; it must
/// outlive the sheet's window. Its window is made when the page is first shown, so that controls are there from
/// OnInitDialog on.
class FRAMEWORK_API CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)

public:
    CPropertyPage();
    /// nIDCaption: a string resource with the text of the tab; 0: the template's caption. dwSize:
    /// sizeof(PROPSHEETPAGE).
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    /// For wizards: title and line below it at the top of the page, string resources, 0: none.
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    ~CPropertyPage() override;

    // After the default constructor.
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    void Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0);

    const PROPSHEETPAGE& GetPSP() const { return m_psp; }
    PROPSHEETPAGE& GetPSP() { return m_psp; }

    // To the sheet, while it has a window; otherwise nothing happens.
    /// Apply can be pressed from now on, until no page is changed any more.
    void SetModified(BOOL bChanged = TRUE);
    /// What was done cannot be cancelled: OK becomes Close, and Cancel is disabled.
    void CancelToClose();
    /// Sends PSM_QUERYSIBLINGS with the two values to each page that has a window, until one answers something else
    /// than 0: that answer. 0 without a sheet.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    // What the sheet says.
    /// The page comes to the front. FALSE: the next one does instead.
    virtual BOOL OnSetActive();
    /// Another page shall come to the front, or the sheet shall apply: the default reads the controls (UpdateData).
    /// FALSE: the page stays.
    virtual BOOL OnKillActive();
    /// OK or Apply. FALSE: the sheet stays open. The default calls OnOK.
    virtual BOOL OnApply();
    /// The default only says that nothing is changed any more.
    void OnOK() override;
    /// Cancel. The default calls OnCancel, which does nothing.
    virtual void OnReset();
    void OnCancel() override;
    /// Before Cancel. FALSE: the sheet stays open.
    virtual BOOL OnQueryCancel();
    /// Of a wizard. 0: to the page before or behind; -1: the page stays; otherwise the template id of the page to show.
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    /// FALSE: the wizard stays open. The default reads the controls.
    virtual BOOL OnWizardFinish();

    BOOL PreTranslateMessage(MSG* pMsg) override;

    PROPSHEETPAGE m_psp{};

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertySheet;
    friend struct PageNotification;

    /// The system's own object for the page, one for each time that a sheet shows it; null when it could not be made.
    HPROPSHEETPAGE MakeHandle();
    void TakeTexts(UINT caption, UINT headerTitle, UINT headerSubTitle);
    static INT_PTR CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    CString m_caption;
    CString m_headerTitle;
    CString m_headerSubTitle;
};
