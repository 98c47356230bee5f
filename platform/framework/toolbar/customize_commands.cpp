// The commands that the customize dialog offers.
#include "afxToolBarsCustomizeDialog.h"

#include "afxcommandmanager.h"
#include "afxtoolbar.h"
#include "afxtoolbarmenubutton.h"
#include "core/framework_text.h"
#include "toolbar/choose_buttons.h"
#include "toolbar/command_catalog.h"
#include "toolbar/customize_texts.h"
#include "toolbar/menu_items.h"

#include <memory>

namespace {

CString NameOfCategory(UINT id) {
    CString name;
    if (!name.LoadString(id)) {
        name.Empty();
    }
    return name;
}

/// What the dialog's lists show first: every command, whatever its category.
CString AllCommandsName() { return FrameworkText(toolbar::kAllCommandsText); }

} // namespace

void CMFCToolBarsCustomizeDialog::AddButton(UINT uiCategoryId, const CMFCToolBarButton& button, int iInsertBefore) {
    AddButton(NameOfCategory(uiCategoryId), button, iInsertBefore);
}

void CMFCToolBarsCustomizeDialog::AddButton(LPCTSTR lpszCategory, const CMFCToolBarButton& button, int iInsertBefore) {
    m_catalog->Add(lpszCategory, button, iInsertBefore);
}

BOOL CMFCToolBarsCustomizeDialog::AddMenu(UINT uiMenuResId) {
    CMenu menu;
    if (!menu.LoadMenu(uiMenuResId)) {
        return FALSE;
    }
    AddMenuCommands(&menu, FALSE);
    return TRUE;
}

void CMFCToolBarsCustomizeDialog::AddMenuCommands(const CMenu* pMenu, BOOL bPopup, LPCTSTR lpszCategory,
                                                  LPCTSTR lpszMenuPath) {
    /// What is still to be read: menus may lie in each other to any depth.
    struct Popup {
        HMENU menu;
        CString category; ///< empty: of the popup's own name
    };
    std::vector<Popup> left{{pMenu->GetSafeHmenu(), lpszCategory}};
    const CString path(lpszMenuPath);
    while (!left.empty()) {
        const Popup popup = left.back();
        left.pop_back();
        std::vector<Popup> inside;
        toolbar::MenuItem item;
        for (int position = 0; toolbar::ReadMenuItem(popup.menu, position, item); ++position) {
            const CString name = toolbar::ReadableText(item.text);
            if (item.submenu != nullptr) {
                inside.push_back({item.submenu, popup.category.IsEmpty() ? name : popup.category});
                if (bPopup && !popup.category.IsEmpty()) {
                    m_catalog->Add(popup.category,
                                   CMFCToolBarMenuButton(static_cast<UINT>(-1), item.submenu, -1, path + item.text),
                                   -1);
                }
            } else if ((item.style & TBBS_SEPARATOR) == 0 && item.id != 0) {
                const int image = GetCmdMgr()->GetCmdImage(item.id);
                m_catalog->Add(popup.category.IsEmpty() ? name : popup.category,
                               CMFCToolBarButton(item.id, image, path + item.text), -1);
            }
            item = {};
        }
        left.insert(left.end(), inside.rbegin(), inside.rend()); // the first popup is read first
    }
}

BOOL CMFCToolBarsCustomizeDialog::AddToolBar(UINT uiCategoryId, UINT uiToolbarResId) {
    return AddToolBar(NameOfCategory(uiCategoryId), uiToolbarResId);
}

BOOL CMFCToolBarsCustomizeDialog::AddToolBar(LPCTSTR lpszCategory, UINT uiToolbarResId) {
    CMFCToolBar bar;
    if (!bar.LoadToolBar(uiToolbarResId)) {
        return FALSE;
    }
    for (int index = 0; index < bar.GetCount(); ++index) {
        m_catalog->Add(lpszCategory, *bar.GetButton(index), -1);
    }
    return TRUE;
}

int CMFCToolBarsCustomizeDialog::RemoveButton(UINT uiCategoryId, UINT uiCmdId) {
    return RemoveButton(NameOfCategory(uiCategoryId), uiCmdId);
}

int CMFCToolBarsCustomizeDialog::RemoveButton(LPCTSTR lpszCategory, UINT uiCmdId) {
    return m_catalog->Remove(lpszCategory, uiCmdId);
}

void CMFCToolBarsCustomizeDialog::ReplaceButton(UINT uiCmd, const CMFCToolBarButton& button) {
    m_catalog->Replace(uiCmd, button);
}

BOOL CMFCToolBarsCustomizeDialog::RenameCategory(LPCTSTR lpszCategoryOld, LPCTSTR lpszCategoryNew) {
    return m_catalog->Rename(lpszCategoryOld, lpszCategoryNew);
}

BOOL CMFCToolBarsCustomizeDialog::SetUserCategory(LPCTSTR lpszCategory) {
    return m_catalog->SetUserCategory(lpszCategory);
}

void CMFCToolBarsCustomizeDialog::FillCategoriesComboBox(CComboBox& wndCategory, BOOL bAddEmpty) const {
    wndCategory.ResetContent();
    wndCategory.AddString(AllCommandsName());
    for (const auto& category : m_catalog->Categories()) {
        if (bAddEmpty || !category.buttons.empty()) {
            wndCategory.AddString(category.name);
        }
    }
}

void CMFCToolBarsCustomizeDialog::FillCategoriesListBox(CListBox& wndCategory, BOOL bAddEmpty) const {
    wndCategory.ResetContent();
    wndCategory.AddString(AllCommandsName());
    for (const auto& category : m_catalog->Categories()) {
        if (bAddEmpty || !category.buttons.empty()) {
            wndCategory.AddString(category.name);
        }
    }
}

void CMFCToolBarsCustomizeDialog::FillAllCommandsList(CListBox& wndListOfCommands) const {
    wndListOfCommands.ResetContent();
    for (CMFCToolBarButton* const button : m_catalog->AllCommands()) {
        const int row = wndListOfCommands.AddString(toolbar::ReadableText(*button));
        wndListOfCommands.SetItemDataPtr(row, button);
    }
}

LPCTSTR CMFCToolBarsCustomizeDialog::GetCommandName(UINT uiCmd) const {
    const CString& name = m_catalog->NameOf(uiCmd);
    return name.IsEmpty() ? nullptr : static_cast<LPCTSTR>(name);
}

int CMFCToolBarsCustomizeDialog::GetCountInCategory(LPCTSTR lpszItemName, const CObList& lstCommands) const {
    int count = 0;
    for (POSITION position = lstCommands.GetHeadPosition(); position != nullptr;) {
        const auto* const button = static_cast<const CMFCToolBarButton*>(lstCommands.GetNext(position));
        count += button->m_strText == lpszItemName ? 1 : 0;
    }
    return count;
}
