#pragma once

#include "barwright_api.h"
#include "ribbon_notify_combox.h"

#include <afxpopupmenubar.h>
#include <afxribboncombobox.h>

#include <vector>

/// The rows of a CMFCCheckDropDown. A click in one of its zones goes to the notify child, which says whether it is
/// done; every other click chooses a row as in any drop list, and so do all clicks while there is no notify child.
class BARWRIGHT_API CMFCPopupMenuBarEx : public CMFCPopupMenuBar {
    DECLARE_DYNCREATE(CMFCPopupMenuBarEx)

public:
    CMFCPopupMenuBarEx();
    ~CMFCPopupMenuBarEx() override;

    /// Not owned; null: none.
    void SetNotifyChild(CRibbonNotifyCombox* child) { m_notifyChild = child; }
    /// In pixels: x as in the bar's client area, y from the top of a row that is as high as a line of text. They count
    /// anew every such height.
    void SetSpRects(const std::vector<CRect>& zones) { m_zones = zones; }

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    friend class CRibbonNotifyCombox;
    int ZoneAt(CPoint point) const;
    void ReleaseOnRow(UINT flags, CPoint point);
    void RedrawRow(int row);
    /// All that there are.
    static std::vector<CMFCPopupMenuBarEx*>& Bars();

    std::vector<CRect> m_zones;
    CRibbonNotifyCombox* m_notifyChild = nullptr;
    bool m_isMarkPressed = false;
};

/// The drop list of the combos with marks. Its window owns it. When the user resizes it, its height becomes that of all
/// combos of the class that use the static height.
class BARWRIGHT_API CMFCCheckDropDown : public CMFCDropDownListBox {
    DECLARE_DYNCREATE(CMFCCheckDropDown)

public:
    /// The combo becomes the notify child of the rows when it is a CRibbonNotifyCombox.
    explicit CMFCCheckDropDown(CMFCRibbonComboBox* combo);

    CMFCPopupMenuBar* GetMenuBar() override { return &m_rows; }
    /// See CMFCPopupMenuBarEx.
    void SetSpRects(const std::vector<CRect>& zones) { m_rows.SetSpRects(zones); }

    void RecalcLayout(BOOL notify = TRUE) override;

protected:
    CMFCCheckDropDown() = default;
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    CMFCPopupMenuBarEx m_rows;
    bool m_isInLayout = false; ///< what changes its size now is not the user
};
