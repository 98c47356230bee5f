// The page of what holds for all toolbars and menus.
#include "afxmenubar.h"
#include "toolbar/command_usage.h"
#include "toolbar/customize_page.h"

namespace toolbar {

namespace {

/// A box to check: what it shows and changes, and with which of the dialog's flags it is there.
struct Option {
    CustomizeText text;
    BOOL (*get)();
    void (*set)(BOOL isOn);
    UINT neededFlag;
    UINT forbiddenFlag;
};

BOOL HidesRareCommands() { return CMFCMenuBar::IsRecentlyUsedMenus() && !CMFCMenuBar::IsShowAllCommands(); }
void HideRareCommands(BOOL isOn) {
    CMFCMenuBar::SetRecentlyUsedMenus(isOn);
    CMFCMenuBar::SetShowAllCommands(!isOn);
}

constexpr Option kOptions[] = {
    {kTooltipsText, [] { return CMFCToolBar::GetShowTooltips(); }, [](BOOL on) { CMFCToolBar::SetShowTooltips(on); }, 0,
     0},
    {kKeysInTooltipsText, [] { return CMFCToolBar::GetShowShortcutKeys(); },
     [](BOOL on) { CMFCToolBar::SetShowShortcutKeys(on); }, 0, 0},
    {kLargeIconsText, [] { return CMFCToolBar::IsLargeIcons(); }, [](BOOL on) { CMFCToolBar::SetLargeIcons(on); }, 0,
     AFX_CUSTOMIZE_NO_LARGE_ICONS},
    {kMenuShadowsText, [] { return CMFCMenuBar::IsMenuShadows(); }, [](BOOL on) { CMFCMenuBar::EnableMenuShadows(on); },
     AFX_CUSTOMIZE_MENU_SHADOWS, 0},
    {kRecentlyUsedText, HidesRareCommands, HideRareCommands, 0, 0},
};

constexpr int kFirstBox = 1001;
constexpr int kLastBox = kFirstBox + static_cast<int>(std::size(kOptions)) - 1;
constexpr int kResetUsage = kLastBox + 1;
constexpr DWORD kBox = BS_AUTOCHECKBOX | WS_TABSTOP;

constexpr fx::DialogItem kItems[] = {
    {kFirstBox, kTooltipsText, 12, 12, 240, 12, fx::DialogControl::Button, kBox},
    {kFirstBox + 1, kKeysInTooltipsText, 24, 28, 228, 12, fx::DialogControl::Button, kBox},
    {kFirstBox + 2, kLargeIconsText, 12, 44, 240, 12, fx::DialogControl::Button, kBox},
    {kFirstBox + 3, kMenuShadowsText, 12, 60, 240, 12, fx::DialogControl::Button, kBox},
    {kFirstBox + 4, kRecentlyUsedText, 12, 76, 240, 12, fx::DialogControl::Button, kBox},
    {kResetUsage, kResetUsageText, 24, 92, 90, 14, fx::DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
};
static_assert(std::size(kItems) == std::size(kOptions) + 1);

class OptionsPage : public CustomizePage {
public:
    explicit OptionsPage(CMFCToolBarsCustomizeDialog& dialog) : CustomizePage(dialog, kOptionsTab, kItems) {}

    BOOL OnSetActive() override {
        for (int id = kFirstBox; id <= kLastBox; ++id) {
            const Option& option = Of(id);
            const UINT flags = Dialog().GetFlags();
            ShowItem(id, (flags & option.neededFlag) == option.neededFlag && (flags & option.forbiddenFlag) == 0);
            CheckDlgButton(id, option.get() ? BST_CHECKED : BST_UNCHECKED);
        }
        EnableDependent();
        return CustomizePage::OnSetActive();
    }

protected:
    afx_msg void OnBox(UINT id) {
        const auto box = static_cast<int>(id);
        Of(box).set(IsDlgButtonChecked(box) == BST_CHECKED);
        EnableDependent();
    }
    afx_msg void OnResetUsage() {
        ForgetCommandUsage();
        EnableDependent();
    }
    DECLARE_MESSAGE_MAP()

private:
    static const Option& Of(int id) { return kOptions[id - kFirstBox]; }
    /// Without tooltips there is nothing to say in them, and without counts nothing to forget.
    void EnableDependent() {
        EnableItem(kFirstBox + 1, CMFCToolBar::GetShowTooltips() != FALSE);
        EnableItem(kResetUsage, HasCommandUsage());
    }
};

BEGIN_MESSAGE_MAP(OptionsPage, CustomizePage)
ON_CONTROL_RANGE(BN_CLICKED, kFirstBox, kLastBox, &OptionsPage::OnBox)
ON_BN_CLICKED(kResetUsage, &OptionsPage::OnResetUsage)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CPropertyPage> MakeOptionsPage(CMFCToolBarsCustomizeDialog& dialog) {
    return std::make_unique<OptionsPage>(dialog);
}

} // namespace toolbar
