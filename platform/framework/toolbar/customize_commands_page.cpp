// The page from which commands are dragged into toolbars.
#include "core/framework_text.h"
#include "toolbar/command_list.h"
#include "toolbar/customize_page.h"

namespace toolbar {

namespace {

enum Item : int { kCategories = 1001, kCommands };

constexpr fx::DialogItem kItems[] = {
    {-1, kCategoriesText, 7, 7, 88, 8},
    {kCategories, 0, 7, 17, 88, 128, fx::DialogControl::ListBox,
     LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | WS_VSCROLL | WS_BORDER | WS_TABSTOP},
    {-1, kCommandsText, 102, 7, 153, 8},
    {kCommands, 0, 102, 17, 153, 128, fx::DialogControl::ListBox,
     LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | WS_VSCROLL | WS_BORDER | WS_TABSTOP},
    {-1, kDragText, 7, 151, 248, 20},
};

class CommandsPage : public CustomizePage {
public:
    explicit CommandsPage(CMFCToolBarsCustomizeDialog& dialog) : CustomizePage(dialog, kCommandsTab, kItems) {
        m_commands.SetFrame([this]() -> CWnd* { return Dialog().Frame(); });
    }

    BOOL OnInitDialog() override {
        CustomizePage::OnInitDialog();
        m_categories.TakeOver(kCategories, *this);
        m_commands.TakeOver(kCommands, *this);
        Dialog().FillCategoriesListBox(m_categories, FALSE);
        m_categories.SetCurSel(0);
        OnCategory();
        return TRUE;
    }

protected:
    afx_msg void OnCategory() {
        CString category;
        const int row = m_categories.GetCurSel();
        if (row >= 0) {
            m_categories.GetText(row, category);
        }
        m_commands.Show(CommandsOf(Dialog().Catalog(), category));
    }
    DECLARE_MESSAGE_MAP()

private:
    RowList m_categories;
    CommandList m_commands;
};

BEGIN_MESSAGE_MAP(CommandsPage, CustomizePage)
ON_LBN_SELCHANGE(kCategories, &CommandsPage::OnCategory)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CPropertyPage> MakeCommandsPage(CMFCToolBarsCustomizeDialog& dialog) {
    return std::make_unique<CommandsPage>(dialog);
}

} // namespace toolbar
