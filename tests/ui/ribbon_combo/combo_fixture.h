#pragma once

#include <afxribboncombobox.h>

#include "tests/support/keys.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

/// A combo box that notes what its list asks and tells it.
class SpyCombo : public CMFCRibbonComboBox {
    DECLARE_DYNCREATE(SpyCombo)

public:
    SpyCombo() = default;
    SpyCombo(UINT id, BOOL hasEditBox, int width, LPCTSTR label) : CMFCRibbonComboBox(id, hasEditBox, width, label) {}

    std::vector<int> drawn;   // rows, in order
    std::vector<int> toggled; // rows on which the space bar was pressed
    std::vector<int> chosen;
    CMFCToolBarMenuButton* button = nullptr; // of the row drawn last
    CRect rowRect{0, 0, 0, 0};
    bool takesSpace = false;

    BOOL OnDrawDropListItem(CDC* dc, int index, CMFCToolBarMenuButton* row, BOOL isHot) override;
    BOOL OnToggleDropListItem(int index) override;
    void OnSelectItem(int item) override;
};

/// A frame whose first panel has a combo box without an edit box (kPlain) and one with it (kEdit), ten items each.
class RibbonComboTest : public RibbonBarTest {
protected:
    static constexpr UINT kPlain = 1200;
    static constexpr UINT kEdit = 1201;

    RibbonComboTest();
    ~RibbonComboTest() override;

    SpyCombo& Add(UINT id, BOOL hasEditBox, int items);
    SpyCombo& Plain() { return static_cast<SpyCombo&>(Element(kPlain)); }
    SpyCombo& Edit() { return static_cast<SpyCombo&>(Element(kEdit)); }
    void LayOut();
    /// Makes a copy of the element there.
    void AddToQuickAccess(UINT id);

    /// The open list; throws when none is open.
    static CMFCDropDownListBox& List();
    static CMFCPopupMenuBar& ListBar() { return *List().GetMenuBar(); }
    static bool IsOpen() { return CMFCPopupMenu::GetActiveMenu() != nullptr; }
    static CRect ScreenRect(CWnd& window);
    /// Of the edit area and the drop button.
    static CRect BoxOnScreen(CMFCRibbonComboBox& combo);
    /// Clicks the drop button.
    void ClickButton(CMFCRibbonComboBox& combo);
    void ClickRow(int row);
    void Press(UINT key);
    void PressWith(UINT held, UINT key);
    void Type(std::wstring_view text);
};
