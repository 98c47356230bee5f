#pragma once

#include <vector>

#include "afxribbonstatusbar.h"

/// What a ribbon status bar keeps beside its elements.
struct RibbonStatusBarParts {
    struct Label {
        const CMFCRibbonBaseElement* element;
        CString text;
    };
    /// For the context menu, in the order in which the elements were added.
    std::vector<Label> labels;

    /// What the last layout was made for.
    struct LaidOut {
        CSize client{-1, -1};
        int gripWidth = 0;

        friend bool operator==(const LaidOut& one, const LaidOut& other) {
            return one.client == other.client && one.gripWidth == other.gripWidth;
        }
    };
    LaidOut laidOut;
};
