#include "documents/print_progress.h"

#include "toolbar/customize_texts.h"
#include "window/dialog_template.h"

namespace fx {

namespace {

/// Among the framework's texts.
enum ProgressText : UINT { kTitleText = 17282, kPrintingText };

constexpr int kJob = 1001;

constexpr DialogItem kItems[] = {
    {-1, kPrintingText, 7, 7, 146, 8},
    {kJob, 0, 7, 18, 146, 8},
    {IDCANCEL, toolbar::kCancelText, 55, 34, 50, 14, DialogControl::Button, BS_DEFPUSHBUTTON | WS_TABSTOP},
};

thread_local bool t_isCancelled = false;

} // namespace

class PrintProgress::Box : public CDialog {
public:
    Box(CWnd* parent, const CString& job)
        : m_template(MakeDialogTemplate({160, 55, DS_MODALFRAME | WS_POPUP | WS_CAPTION, kTitleText}, kItems)) {
        if (CreateIndirect(TemplateIn(m_template), parent)) {
            SetDlgItemText(kJob, job);
            CenterWindow();
            ShowWindow(SW_SHOW);
            UpdateWindow();
        }
    }
    ~Box() override { DestroyWindow(); }

protected:
    void OnCancel() override { t_isCancelled = true; }

private:
    std::vector<DWORD> m_template;
};

PrintProgress::PrintProgress(CWnd& view, const CString& job) : m_frame(view.GetTopLevelFrame()) {
    t_isCancelled = false;
    m_box = std::make_unique<Box>(m_frame, job);
    if (m_frame != nullptr) {
        m_frame->EnableWindow(FALSE);
    }
}

PrintProgress::~PrintProgress() {
    // Before the box goes, else the system would activate another program's window.
    if (m_frame != nullptr) {
        m_frame->EnableWindow(TRUE);
    }
}

bool PrintProgress::IsCancelled() const { return t_isCancelled; }

BOOL CALLBACK PrintProgress::AbortProc(HDC, int) {
    MSG message;
    while (!t_isCancelled && ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) {
        if (!AfxGetThread()->PumpMessage()) {
            return FALSE; // the program ends
        }
    }
    return !t_isCancelled;
}

} // namespace fx
