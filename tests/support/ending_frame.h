#pragma once

#include <afxwin.h>

/// A host's frame that destroys its window in the first command that it is given, and itself with it.
template <class Frame>
class EndingFrame : public Frame {
public:
    /// Null when there is no window. Not shown yet.
    static EndingFrame* Make() {
        auto* const frame = new EndingFrame;
        const BOOL isMade = frame->Create(nullptr, L"Ends", WS_OVERLAPPEDWINDOW, CRect(100, 80, 700, 480));
        return isMade ? frame : nullptr;
    }

protected:
    BOOL OnCommand(WPARAM, LPARAM) override {
        this->DestroyWindow();
        return TRUE;
    }
};
