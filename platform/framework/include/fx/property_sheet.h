#pragma once

#include "fx/wnd.h"

#include <prsht.h>

#include <vector>

class CPropertyPage;
class CTabCtrl;

/// What DoModal of a wizard answers for its Finish.
#ifndef ID_WIZFINISH
#define ID_WIZFINISH 0x3025
#endif
#ifndef ID_APPLY_NOW
#define ID_APPLY_NOW 0x3021
#endif

/// A dialog of pages with tabs, or a wizard of pages one after the other, modal (DoModal) or modeless (Create). It does
/// not own its pages. A modal one has the buttons OK, Cancel and Apply; a modeless one none: who makes it adds those
/// that it needs and destroys the window.
class FRAMEWORK_API CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet();
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    /// Pictures of a wizard's first page and of the others' heads; the caller's.
    CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);
    CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);
    ~CPropertySheet() override;

    // After the default constructor.
    void Construct(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    void Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);

    /// IDOK or IDCANCEL, of a wizard ID_WIZFINISH or IDCANCEL; -1 when it could not be made. The parent and the main
    /// frame are disabled meanwhile.
    virtual INT_PTR DoModal();
    /// Modeless. dwStyle -1: a pop-up with caption and system menu, visible. FALSE: it could not be made.
    virtual BOOL Create(CWnd* pParentWnd = NULL, DWORD dwStyle = (DWORD)-1, DWORD dwExStyle = 0);
    /// A modal sheet returns with nEndID; a modeless one is destroyed.
    void EndDialog(int nEndID);

    // Pages, counted from 0.
    /// At the end; also while the sheet is shown.
    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    /// NULL when there is no such page.
    CPropertyPage* GetPage(int nPage) const;
    /// -1: it is not among them.
    int GetPageIndex(CPropertyPage* pPage);
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const;
    /// Before the window is made: the page to begin with. FALSE: the page in front keeps its place, or there is no such
    /// page.
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);
    /// NULL until the window is made.
    CTabCtrl* GetTabControl() const;
    /// Tabs in several rows; otherwise arrows scroll them. Before the window is made. TRUE unless this was called.
    void EnableStackedTabs(BOOL bStacked) { m_bStacked = bStacked; }

    /// nStyle PSH_PROPTITLE: "Properties of" in the system's language before the text.
    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    /// PSBTN_OK and so on, as if it were clicked.
    void PressButton(int nButton);
    /// Dialog units to pixels.
    void MapDialogRect(LPRECT lpRect) const;

    // Wizards
    /// Before the window is made.
    void SetWizardMode();
    BOOL IsWizard() const { return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97 | PSH_WIZARD_LITE)) != 0; }
    /// PSWIZB_BACK, PSWIZB_NEXT, PSWIZB_FINISH, PSWIZB_DISABLEDFINISH.
    void SetWizardButtons(DWORD dwFlags);
    void SetFinishText(LPCTSTR lpszText);

    /// All is made, nothing is shown yet. The answer counts for nothing.
    virtual BOOL OnInitDialog();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL ContinueModal() override;

    PROPSHEETHEADER m_psh{};

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

private:
    /// Makes the window with all pages and shows it.
    bool Make(CWnd* owner, DWORD style, DWORD exStyle);
    void RunModal();
    /// Without its standard buttons the window ends where its pages do.
    void CutButtons();
    void NoteEnding(UINT message, WPARAM wParam);
    static int CALLBACK SheetProc(HWND window, UINT message, LPARAM lParam) noexcept;

    CString m_caption;
    std::vector<CPropertyPage*> m_pages;
    CWnd* m_pParentWnd = NULL;
    BOOL m_bStacked = TRUE;
    DWORD m_style = 0;       ///< of the window that is being made, 0: the system's
    bool m_isModal = false;  ///< DoModal has not returned
    int m_ending = IDCANCEL; ///< what the last press that could end the sheet would answer
};
