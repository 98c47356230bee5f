#pragma once

#include "afxwin.h"

#include <memory>

namespace fx {

/// While it lives a small window says what is being printed and offers to cancel; the frame takes no input.
class PrintProgress {
public:
    PrintProgress(CWnd& view, const CString& job);
    ~PrintProgress();
    PrintProgress(const PrintProgress&) = delete;
    PrintProgress& operator=(const PrintProgress&) = delete;

    /// The user wants no more pages.
    bool IsCancelled() const;
    /// For the printer's context: handles the thread's messages meanwhile. FALSE: the job is to be cancelled.
    static BOOL CALLBACK AbortProc(HDC dc, int code);

private:
    class Box;
    CFrameWnd* m_frame;
    std::unique_ptr<Box> m_box;
};

} // namespace fx
