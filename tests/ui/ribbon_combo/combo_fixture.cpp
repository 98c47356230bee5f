#include "tests/ui/ribbon_combo/combo_fixture.h"

#include <stdexcept>

IMPLEMENT_DYNCREATE(SpyCombo, CMFCRibbonComboBox)

BOOL SpyCombo::OnDrawDropListItem(CDC*, int index, CMFCToolBarMenuButton* row, BOOL) {
    drawn.push_back(index);
    button = row;
    rowRect = row->Rect();
    return FALSE;
}

BOOL SpyCombo::OnToggleDropListItem(int index) {
    toggled.push_back(index);
    return takesSpace;
}

// The command's handler may delete this.
void SpyCombo::OnSelectItem(int item) {
    chosen.push_back(item);
    CMFCRibbonComboBox::OnSelectItem(item);
}

RibbonComboTest::RibbonComboTest() {
    Add(kPlain, FALSE, 10);
    Add(kEdit, TRUE, 10);
    LayOut();
}

RibbonComboTest::~RibbonComboTest() {
    CMFCPopupMenu::CloseAll();
    PumpPending();
}

SpyCombo& RibbonComboTest::Add(UINT id, BOOL hasEditBox, int items) {
    auto* combo = new SpyCombo(id, hasEditBox, 90, L"Combo:");
    for (int item = 0; item < items; ++item) {
        CString text;
        text.Format(L"Item %d", item);
        combo->AddItem(text, static_cast<DWORD_PTR>(item) + 1000);
    }
    Bar().GetCategory(0)->GetPanel(0)->Add(combo);
    return *combo;
}

void RibbonComboTest::LayOut() {
    Bar().ForceRecalcLayout();
    PumpPending();
}

void RibbonComboTest::AddToQuickAccess(UINT id) {
    Bar().SetQuickAccessCommands(CommandList{id});
    LayOut();
}

CMFCDropDownListBox& RibbonComboTest::List() {
    auto* list = DYNAMIC_DOWNCAST(CMFCDropDownListBox, CMFCPopupMenu::GetActiveMenu());
    if (list == nullptr) {
        throw std::runtime_error("no list is open");
    }
    return *list;
}

CRect RibbonComboTest::ScreenRect(CWnd& window) {
    CRect rect;
    window.GetWindowRect(rect);
    return rect;
}

CRect RibbonComboTest::BoxOnScreen(CMFCRibbonComboBox& combo) {
    CRect box;
    box.UnionRect(combo.GetCommandRect(), combo.GetMenuRect());
    combo.GetParentWnd()->ClientToScreen(box);
    return box;
}

void RibbonComboTest::ClickButton(CMFCRibbonComboBox& combo) {
    if (combo.GetMenuRect().IsRectEmpty()) {
        throw std::runtime_error("the combo is not shown");
    }
    m_pointer.Click(combo.GetParentWnd()->GetSafeHwnd(), combo.GetMenuRect().CenterPoint());
    PumpPending();
}

void RibbonComboTest::ClickRow(int row) {
    m_pointer.Click(ListBar().GetSafeHwnd(), ListBar().GetRowRect(row).CenterPoint());
    PumpPending();
}

void RibbonComboTest::Press(UINT key) {
    Keys().Press(key);
    PumpPending();
}

void RibbonComboTest::PressWith(UINT held, UINT key) {
    Keys keys;
    keys.Hold(held);
    keys.Press(key);
    keys.Let(held);
    PumpPending();
}

void RibbonComboTest::Type(std::wstring_view text) {
    Keys().Type(text);
    PumpPending();
}
