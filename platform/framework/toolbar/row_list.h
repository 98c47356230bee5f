#pragma once

#include "afxwin.h"

namespace toolbar {

/// A list box of a dialog of the framework's whose rows have the look's ground and text, the selected one too. It is
/// owner-drawn, of one height, with strings.
class RowList : public CListBox {
public:
    /// Takes over the list box with that id.
    void TakeOver(int id, CWnd& page);

protected:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

    /// What stands in a row, on its ground and in its text's colour. Its string, unless overridden.
    virtual void DrawRow(CDC& dc, const CRect& rect, int row, bool isSelected);
    /// Rows are as high as that and the font at least, with a margin.
    virtual int LeastHeight() const { return 0; }
};

} // namespace toolbar
