// How a view prints.
#include "afxwin.h"
#include "documents/file_prompt.h"
#include "documents/preview_window.h"
#include "documents/print_progress.h"
#include "fx/document.h"
#include "fx/print.h"

#include <algorithm>
#include <ole2.h>
#include <utility>

namespace {

constexpr fx::PrinterCalls kPrinter = {[](CDC& dc, DOCINFO& document) { return dc.StartDoc(&document); },
                                       [](CDC& dc) { return dc.StartPage(); }, [](CDC& dc) { return dc.EndPage(); },
                                       [](CDC& dc) { return dc.EndDoc(); }, [](CDC& dc) { return dc.AbortDoc(); }};

fx::PrinterCalls g_calls = kPrinter;

/// The context of a job's printer, which stays the job's.
class PrinterDc : public CDC {
public:
    explicit PrinterDc(HDC dc) {
        Attach(dc);
        m_bPrinting = TRUE;
    }
    ~PrinterDc() override { Detach(); }
};

std::pair<UINT, UINT> PagesOf(const CPrintInfo& info) {
    const UINT first = info.GetMinPage(), last = info.GetMaxPage();
    if (!info.m_pPD->PrintRange()) {
        return {first, last};
    }
    return {std::clamp(info.GetFromPage(), first, last), std::clamp(info.GetToPage(), first, last)};
}

/// What the printer's queue shows.
CString JobName(const CView& view) {
    const CDocument* const document = view.GetDocument();
    if (document != nullptr && !document->GetTitle().IsEmpty()) {
        return document->GetTitle();
    }
    CString title;
    if (const CFrameWnd* const frame = view.GetParentFrame()) {
        frame->GetWindowText(title);
    }
    return title;
}

HGLOBAL CopyOf(HGLOBAL block) {
    return block != nullptr ? ::OleDuplicateData(block, CF_PRIVATEFIRST, GMEM_MOVEABLE) : nullptr;
}

/// The printer that the user has chosen for all jobs; a job frees its own copy.
void TakeChosenPrinter(PRINTDLG& job) {
    CWinApp* const application = AfxGetApp();
    if (job.hDC != nullptr || job.hDevNames != nullptr || application == nullptr || !application->IsPrinterSelected()) {
        return;
    }
    PRINTDLG chosen = {};
    application->GetPrinterDeviceDefaults(&chosen);
    job.hDevNames = CopyOf(chosen.hDevNames);
    job.hDevMode = CopyOf(chosen.hDevMode);
}

bool HasPrinter(CPrintDialog& dialog) {
    return dialog.m_pd.hDevNames != nullptr
               ? dialog.CreatePrinterDC() != nullptr
               : dialog.GetDefaults() && (dialog.m_pd.hDC != nullptr || dialog.CreatePrinterDC() != nullptr);
}

} // namespace

fx::PrinterCalls fx::SetPrinterCalls(const PrinterCalls& calls) { return std::exchange(g_calls, calls); }

BOOL CView::DoPreparePrinting(CPrintInfo* pInfo) {
    CPrintDialog& dialog = *pInfo->m_pPD;
    TakeChosenPrinter(dialog.m_pd);
    if (pInfo->m_bPreview || pInfo->m_bDirect) {
        if (dialog.m_pd.hDC == nullptr && !HasPrinter(dialog)) {
            AfxMessageBox(AFX_IDP_FAILED_TO_START_PRINT, MB_ICONEXCLAMATION);
            return FALSE;
        }
    } else {
        dialog.m_pd.nFromPage = dialog.m_pd.nMinPage;
        dialog.m_pd.nToPage = dialog.m_pd.nMaxPage;
        if (dialog.DoModal() != IDOK) {
            return FALSE;
        }
    }
    return dialog.m_pd.hDC != nullptr;
}

void CView::OnFilePrint() {
    CPrintInfo info;
    const MSG* const message = GetCurrentMessage();
    info.m_bDirect = message->message == WM_COMMAND && LOWORD(message->wParam) == ID_FILE_PRINT_DIRECT;
    if (!OnPreparePrinting(&info) || info.m_pPD->m_pd.hDC == nullptr) {
        return;
    }
    PrinterDc dc(info.m_pPD->m_pd.hDC);
    OnBeginPrinting(&dc, &info);
    if (!PrintJob(dc, info)) {
        AfxMessageBox(AFX_IDP_FAILED_TO_START_PRINT, MB_ICONEXCLAMATION);
    }
    OnEndPrinting(&dc, &info);
}

bool CView::PrintJob(CDC& dc, CPrintInfo& info) {
    const CString name = JobName(*this);
    DOCINFO document = {};
    document.cbSize = sizeof(document);
    document.lpszDocName = name;
    const fx::PrintProgress progress(*this, name);
    dc.SetAbortProc(&fx::PrintProgress::AbortProc);
    if (g_calls.startDoc(dc, document) <= 0) {
        return false;
    }
    const auto [first, last] = PagesOf(info);
    bool isDone = true;
    for (info.m_nCurPage = first; isDone && info.m_nCurPage <= last; ++info.m_nCurPage) {
        OnPrepareDC(&dc, &info);
        if (!info.m_bContinuePrinting) {
            break;
        }
        isDone = PrintPage(dc, info) && !progress.IsCancelled();
    }
    if (isDone) {
        return g_calls.endDoc(dc) > 0;
    }
    g_calls.abortDoc(dc);
    return progress.IsCancelled(); // as the user wanted
}

bool CView::PrintPage(CDC& dc, CPrintInfo& info) {
    if (g_calls.startPage(dc) <= 0) {
        return false;
    }
    info.m_rectDraw.SetRect(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
    dc.DPtoLP(&info.m_rectDraw);
    OnPrint(&dc, &info);
    return g_calls.endPage(dc) > 0;
}

void CView::OnFilePrintPreview() {
    CPrintInfo info;
    info.m_bPreview = TRUE;
    if (!OnPreparePrinting(&info) || info.m_pPD->m_pd.hDC == nullptr) {
        return;
    }
    PrinterDc dc(info.m_pPD->m_pd.hDC);
    OnBeginPrinting(&dc, &info);
    fx::PreviewPages pages(*this, info);
    CFrameWnd* const frame = GetTopLevelFrame();
    const auto end = [&](CPreviewView& preview) { OnEndPrintPreview(&dc, &info, CPoint(0, 0), &preview); };
    if (fx::RunPreview(frame, pages, JobName(*this), end) && frame != nullptr) {
        frame->PostMessage(WM_COMMAND, ID_FILE_PRINT);
    }
}

void AFXAPI AFXPrintPreview(CView* pView) {
    if (pView != nullptr) {
        pView->OnFilePrintPreview();
    }
}
