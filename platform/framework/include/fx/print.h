#pragma once

#include "fx/dialog.h"

#include <commdlg.h>

#include <memory>

/// What the system's own dialogs have in common.
class FRAMEWORK_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);
};

/// The system's dialog for the printer and its settings. The caller frees what it leaves in m_pd: the device context,
/// hDevMode and hDevNames.
class FRAMEWORK_API CPrintDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CPrintDialog)

public:
    /// bPrintSetupOnly: the printer alone, not what is printed.
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS | PD_HIDEPRINTTOFILE |
                                          PD_NOSELECTION,
                          CWnd* pParentWnd = NULL);

    /// IDOK, or IDCANCEL when the user left it or the system has no printer.
    INT_PTR DoModal() override;
    /// The system's printer and its settings without asking. FALSE: there is none.
    BOOL GetDefaults();
    /// A context for the chosen printer, the caller's; also m_pd.hDC from then on. NULL: there is none.
    HDC CreatePrinterDC();
    HDC GetPrinterDC() const { return m_pd.hDC; }

    CString GetDeviceName() const;
    CString GetDriverName() const;
    CString GetPortName() const;
    /// A copy of the settings, to be freed by GlobalUnlock of m_pd.hDevMode; NULL: the printer has none.
    LPDEVMODE GetDevMode() const;
    int GetCopies() const;
    BOOL PrintAll() const { return !PrintRange() && !PrintSelection(); }
    BOOL PrintRange() const { return (m_pd.Flags & PD_PAGENUMS) != 0; }
    BOOL PrintSelection() const { return (m_pd.Flags & PD_SELECTION) != 0; }
    BOOL PrintCollate() const { return (m_pd.Flags & PD_COLLATE) != 0; }
    int GetFromPage() const { return PrintRange() ? m_pd.nFromPage : -1; }
    int GetToPage() const { return PrintRange() ? m_pd.nToPage : -1; }

    PRINTDLG m_pd = {};

private:
    CString DeviceText(WORD DEVNAMES::*offset) const;
};

/// One print job, from the choice of the printer to the last page. Made for each job by CView::OnFilePrint and handed
/// to the view's functions for printing, which read and change it.
struct FRAMEWORK_API CPrintInfo {
    CPrintInfo();
    /// Frees what the dialog has left.
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    void SetMinPage(UINT nMinPage);
    /// Of a document whose length is not known: 0xFFFF, which it is without this call.
    void SetMaxPage(UINT nMaxPage);
    UINT GetMinPage() const;
    UINT GetMaxPage() const;
    UINT GetFromPage() const;
    UINT GetToPage() const;
    UINT GetOffsetPage() const { return static_cast<UINT>(m_nOffsetPage); }

    CPrintDialog* m_pPD; ///< owned
    BOOL m_bPreview = FALSE;
    BOOL m_bDirect = FALSE; ///< without a dialog
    BOOL m_bDocObject = FALSE;
    /// The view clears it in OnPrepareDC behind its last page.
    BOOL m_bContinuePrinting = TRUE;
    UINT m_nCurPage = 1;
    UINT m_nNumPreviewPages = 0;
    int m_nOffsetPage = 0;
    int m_nJobNumber = 0;
    DWORD m_dwFlags = 0;
    CString m_strPageDesc; ///< how one page, and how several are called, between line ends
    LPVOID m_lpUserData = NULL;
    CRect m_rectDraw = CRect(0, 0, 0, 0); ///< the part of the page that can be printed, in logical units
};

namespace fx {

/// The calls that begin and end a job and its pages, each with the meaning and result of the system's function.
struct PrinterCalls {
    int (*startDoc)(CDC& dc, DOCINFO& document);
    int (*startPage)(CDC& dc);
    int (*endPage)(CDC& dc);
    int (*endDoc)(CDC& dc);
    int (*abortDoc)(CDC& dc);
};
/// Puts others in the place of the printer's, for the process, and returns those that were there.
FRAMEWORK_API PrinterCalls SetPrinterCalls(const PrinterCalls& calls);

} // namespace fx
