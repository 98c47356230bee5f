#pragma once

#include <unordered_map>

#include "afxribbonbutton.h"
#include "afxribbonbuttonsgroup.h"
#include "afxtempl.h"

class CMFCRibbonBar;
struct RibbonMetrics;

/// The commands of the quick access toolbar's menu and which of them are shown until the user changes the toolbar.
class FRAMEWORK_API CMFCRibbonQuickAccessToolBarDefaultState {
public:
    CMFCRibbonQuickAccessToolBarDefaultState();

    /// Only changes this state, never a bar.
    void AddCommand(UINT uiCmd, BOOL bIsVisible = TRUE);
    void CopyFrom(const CMFCRibbonQuickAccessToolBarDefaultState& src);
    void RemoveAll();

    // For the bar.
    /// In the order of the menu.
    const CArray<UINT, UINT>& GetCommands() const { return m_arCommands; }
    /// Those that are shown, behind what the list has.
    void GetVisibleCommands(CList<UINT, UINT>& lstCommands) const;

private:
    CArray<UINT, UINT> m_arCommands;
    CArray<BOOL, BOOL> m_arVisibleState;
};

/// Opens the menu of the quick access toolbar, from which the user chooses its commands.
class FRAMEWORK_API CMFCRibbonQuickAccessCustomizeButton : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonQuickAccessCustomizeButton)

public:
    CMFCRibbonQuickAccessCustomizeButton() = default;

    CString GetToolTipText() const override;
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    CSize GetCompactSize(CDC* pDC) override;
    CSize GetRegularSize(CDC* pDC) override { return GetCompactSize(pDC); }
    void OnDraw(CDC* pDC) override;
    BOOL HasMenu() const override { return TRUE; }
    void OnShowPopupMenu() override;
};

/// Shows the commands that the quick access toolbar has no room for in a pop-up. Part of the toolbar.
class FRAMEWORK_API CMFCRibbonQuickAccessMoreButton : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonQuickAccessMoreButton)

public:
    CMFCRibbonQuickAccessMoreButton() = default;

    CString GetToolTipText() const override;
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    CSize GetCompactSize(CDC* pDC) override;
    CSize GetRegularSize(CDC* pDC) override { return GetCompactSize(pDC); }
    void OnDraw(CDC* pDC) override;
    BOOL HasMenu() const override { return TRUE; }
    void OnShowPopupMenu() override;
};

/// The quick access toolbar of a ribbon bar: copies of elements in one row, and a button that opens its menu.
/// Copies are made from the bar's elements and linked to them by their original.
class FRAMEWORK_API CMFCRibbonQuickAccessToolBar : public CMFCRibbonButtonsGroup {
    DECLARE_DYNCREATE(CMFCRibbonQuickAccessToolBar)

public:
    CMFCRibbonQuickAccessToolBar();
    ~CMFCRibbonQuickAccessToolBar() override;

    /// Copies the element to the end of the toolbar. FALSE when it is there already or cannot be copied.
    BOOL Add(CMFCRibbonBaseElement* pElem);
    /// The element was copied and its copy is still there.
    BOOL HasCopyOf(const CMFCRibbonBaseElement* pElem) const { return m_copies.count(pElem) != 0; }
    /// The copy with that id itself, not what it has in its menu; null when there is none.
    CMFCRibbonBaseElement* FindCopyByID(UINT uiCmdID) const;
    /// Deletes the copy itself, or the copy of the element. FALSE when there is none.
    BOOL Remove(CMFCRibbonBaseElement* pElem);
    /// In place of the group's, which knows no originals.
    void RemoveAll();
    /// Replaces all copies. Ids that no element of the bar has are left out; 0 is a separator.
    void SetCommands(CMFCRibbonBar* pRibbonBar, const CList<UINT, UINT>& lstCommands);
    /// Ids in the toolbar's order, without separators.
    void GetCommands(CList<UINT, UINT>& lstCommands) const;
    void ReplaceCommands(const CList<UINT, UINT>& lstCommands);
    BOOL IsEmpty() const { return GetCount() == 0; }

    /// Width of all commands and the menu button.
    CSize GetRegularSize(CDC* pDC) override;
    /// Places the copies in one row; what the rectangle has no room for gets an empty rectangle.
    void OnAfterChangeRect(CDC* pDC) override;
    void OnDraw(CDC* pDC) override;
    CMFCRibbonBaseElement* HitTest(CPoint point) override;
    /// Rectangle of the copies alone, without the menu button.
    CRect GetCommandsRect() const { return m_rectCommands; }
    CMFCRibbonBaseElement& GetCustomizeButton() { return m_btnCustomize; }
    /// Has an empty rectangle while there is room for all commands.
    CMFCRibbonBaseElement& GetMoreButton() { return m_btnMore; }
    /// The commands without room, in order.
    void GetHiddenElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements) const;
    CMFCRibbonBaseElement* GetDroppedDown() override;

    // For the bar, which looks for the originals.
    using Originals = std::unordered_map<UINT, CMFCRibbonBaseElement*>; // by id; null: none was found
    void SetCommands(const CList<UINT, UINT>& commands, const Originals& originals);
    /// An element of the bar goes: its copy goes with it. TRUE: it had one.
    BOOL OnOriginalDestroyed(const CMFCRibbonBaseElement* original);

private:
    CMFCRibbonBaseElement* MakeCopy(CMFCRibbonBaseElement& source) const;
    void Append(CMFCRibbonBaseElement* copy, const CMFCRibbonBaseElement* source);
    void DeleteAt(int position);

    CRect m_rectCommands;
    CMFCRibbonQuickAccessCustomizeButton m_btnCustomize;
    CMFCRibbonQuickAccessMoreButton m_btnMore;
    // Copies by the element that was copied, and back; that element may have an original itself.
    std::unordered_map<const CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> m_copies;
    std::unordered_map<const CMFCRibbonBaseElement*, const CMFCRibbonBaseElement*> m_sources;
};
