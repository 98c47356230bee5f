#pragma once

#include <memory>

#include "afxRibbonPanel.h"

struct RibbonMainPanelParts;

namespace ribbon {
struct MenuList;
}

/// A button in the bottom row of the application menu.
class FRAMEWORK_API CMFCRibbonMainPanelButton : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonMainPanelButton)

public:
    CMFCRibbonMainPanelButton();
    CMFCRibbonMainPanelButton(UINT uiCmdID, LPCTSTR lpszText, int nSmallImageIndex);

    BOOL HasLargeMode() const override { return FALSE; }
    BOOL IsDrawTooltipImage() const override { return FALSE; }
    BOOL IsAlwaysDrawBorder() const override { return TRUE; }
    COLORREF OnFillBackground(CDC* pDC) override;
    void OnDrawBorder(CDC* pDC) override;
};

/// The application menu: commands at the left, other elements or recent files at the right, buttons at the bottom. Made
/// by CMFCRibbonBar::AddMainCategory; shown by the application button. Owns its elements.
class FRAMEWORK_API CMFCRibbonMainPanel : public CMFCRibbonPanel {
    DECLARE_DYNCREATE(CMFCRibbonMainPanel)

public:
    CMFCRibbonMainPanel();
    ~CMFCRibbonMainPanel() override;

    /// Takes ownership; the next row of the commands.
    void Add(CMFCRibbonBaseElement* pElem) override;
    /// Takes ownership; the next row of the right side, which is at least nWidth pixels (at 96 DPI) wide.
    void AddToRight(CMFCRibbonBaseElement* pElem, int nWidth = 300);
    /// The next rows of the right side: a heading and the application's recent files, as they are when the menu opens.
    /// Each sends its command, from ID_FILE_MRU_FILE1 on.
    void AddRecentFilesList(LPCTSTR lpszLabel, int nWidth = 300);
    /// Takes ownership; the next button of the bottom row.
    void AddToBottom(CMFCRibbonMainPanelButton* pElem);
    /// Commands and right side together, in the pop-up; empty while it is not open.
    CRect GetCommandsFrame() const;
    BOOL IsMainPanel() const override { return TRUE; }

    // For the pop-up.
    int GetImageColumnWidth(const CMFCRibbonButton* pButton) const;
    BOOL HasLargeRow(const CMFCRibbonButton* pButton) const;
    /// Brings the rows of recent files up to date.
    void UpdateRecentFiles();
    /// Places all elements and answers the size that they take. What is higher than the room scrolls: scrolling says
    /// from which row on, and receives the strips for it.
    CSize Arrange(CDC* pDC, CSize room, ribbon::MenuList& scrolling);
    /// The first row from which on the element is in view; nFirstRow where it is already.
    int FirstRowThatShows(const CMFCRibbonBaseElement* pElement, int nFirstRow) const;
    void DrawBackground(CDC* pDC, CRect rect);

private:
    CSize ArrangeRows(CDC* pDC, int nMaxHeight, int nFirstRow);

    std::unique_ptr<RibbonMainPanelParts> m_parts;
};
