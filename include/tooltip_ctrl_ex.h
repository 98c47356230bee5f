#pragma once

#include "barwright_api.h"

#include <afxtooltipctrl.h>

namespace hint {
struct Layout;
} // namespace hint

/// The ribbon's tooltip. Where the description of an element comes with a help file it makes room for a second icon
/// below the element's own, which stands for the help video; where that description is the ribbon builder's F1 hint
/// (CAddRibbonBar::m_strHelpF1), it can show a text of the host's in its place, in red. The description of an element
/// without a help file is not shown.
///
/// The host chooses the class by CTooltipManager::SetTooltipParams. The help files lie in the folder of the help videos
/// (GetHaveMedias_Brevant), which is asked for once in a process.
class BARWRIGHT_API CToolTipCtrlEx : public CMFCToolTipCtrl {
    DECLARE_DYNCREATE(CToolTipCtrlEx)

public:
    CToolTipCtrlEx();

    /// Below icons of 32 and of 16 pixels at 96 DPI; null: none. Not owned.
    static HICON m_hIconLargeBottom;
    static HICON m_hIconSmallBottom;
    /// What is shown instead of the F1 hint; empty: nothing is.
    static CString m_sStrGlobleDesciption;

    void SetDescription(const CString description) override;

protected:
    afx_msg void OnShow(NMHDR* notification, LRESULT* result);
    afx_msg void OnPop(NMHDR* notification, LRESULT* result);
    afx_msg void OnPaint();
    afx_msg void OnWindowPosChanging(WINDOWPOS* place);
    DECLARE_MESSAGE_MAP()

    /// 0 x 0 for what has no image.
    CSize GetIconSize() override;
    BOOL OnDrawIcon(CDC* dc, CRect rect) override;
    CSize OnDrawDescription(CDC* dc, CRect rect, BOOL calcOnly) override;

    // Of the tooltip that appeared last, in pixels.
    CSize m_iconSize = CSize(0, 0);
    CPoint m_margin = CPoint(0, 0);

private:
    /// A description that is shown.
    bool HasHint() const { return m_hasHelp && GetParams().m_bDrawDescription && !m_description.IsEmpty(); }
    hint::Layout GetLayout() const;
    bool IsF1Hint() const;
    bool HelpFileExists() const;
    int DescriptionWidth(CDC& dc, const CString& text) const;
    void Place(CSize size, LRESULT& result);
    void DrawBottomIcon(CDC& dc, const CRect& rect) const;

    CString m_description;
    bool m_hasHelp = true;
    bool m_isAppearing = false;        ///< the platform's tooltip measures itself: nothing of it is placed
    CRect m_place = CRect(0, 0, 0, 0); ///< screen; empty while it is not shown
    bool m_isPlaced = false;           ///< it was moved there
    // Measured when the tooltip appeared.
    CSize m_labelSize = CSize(0, 0);
    CSize m_descriptionSize = CSize(0, 0);
};
