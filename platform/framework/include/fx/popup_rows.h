#pragma once

#include "fx/string.h"

class CDC;
class CMFCToolBarMenuButton;

namespace toolbar {

/// What a pop-up's bar shows when it is a list: rows of one height, numbered from 0, for which it keeps no buttons.
/// Whoever has the rows outlives the bar's window.
class PopupRows {
public:
    virtual int GetRowCount() const = 0;
    /// As people read it.
    virtual CString GetRowText(int row) const = 0;
    /// Width in pixels that shows the rows; the list's font is selected.
    virtual int MeasureRows(CDC& dc) = 0;
    /// Of one row.
    virtual int MeasureRow(CDC& dc, int row) = 0;
    /// Background and highlight are painted, the list's font is selected, the text's colour is set and its background
    /// is transparent. The button stands for the row: it has its text and rectangle and lies in the bar; it is the same
    /// object for all rows. TRUE: the row is drawn; FALSE: the bar draws the text.
    virtual BOOL DrawRow(CDC& dc, int row, CMFCToolBarMenuButton& button, BOOL isHot) = 0;
    /// The row is chosen by mouse or key. The bar may be gone afterwards.
    virtual void ChooseRow(int row) = 0;
    /// The space bar on the row. TRUE: it was used, and the row is drawn anew.
    virtual BOOL ToggleRow(int row) = 0;

protected:
    PopupRows() = default;
    PopupRows(const PopupRows&) = default;
    PopupRows& operator=(const PopupRows&) = default;
    ~PopupRows() = default;
};

} // namespace toolbar
