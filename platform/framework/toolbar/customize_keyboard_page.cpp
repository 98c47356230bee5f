// The page on which commands get their keys.
#include "afxacceleratorkey.h"
#include "afxkeyboardmanager.h"
#include "core/framework_text.h"
#include "fx/registered_messages.h"
#include "fx/window_guard.h"
#include "panes/frame_keys_list.h"
#include "toolbar/command_list.h"
#include "toolbar/customize_page.h"
#include "toolbar/key_box.h"

#include <algorithm>

namespace toolbar {

namespace {

enum Item : int { kCategory = 1001, kCommands, kCurrent, kNewKey, kAssigned, kAssign, kRemove, kResetAll };

constexpr DWORD kPush = BS_PUSHBUTTON | WS_TABSTOP;

constexpr fx::DialogItem kItems[] = {
    {-1, kCategoryText, 7, 7, 118, 8},
    {kCategory, 0, 7, 17, 118, 120, fx::DialogControl::ComboBox, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP},
    {-1, kCommandsText, 7, 36, 118, 8},
    {kCommands, 0, 7, 46, 118, 125, fx::DialogControl::ListBox,
     LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | WS_VSCROLL | WS_BORDER | WS_TABSTOP},
    {-1, kCurrentKeysText, 133, 7, 122, 8},
    {kCurrent, 0, 133, 17, 122, 44, fx::DialogControl::ListBox,
     LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | WS_VSCROLL | WS_BORDER | WS_TABSTOP},
    {kRemove, kRemoveText, 133, 65, 58, 14, fx::DialogControl::Button, kPush},
    {-1, kNewKeyText, 133, 88, 122, 8},
    {kNewKey, 0, 133, 98, 122, 13, fx::DialogControl::Edit, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP},
    {-1, kAssignedToText, 133, 115, 122, 8},
    {kAssigned, 0, 133, 125, 122, 8, fx::DialogControl::Static, SS_NOPREFIX | SS_ENDELLIPSIS},
    {kAssign, kAssignText, 133, 137, 58, 14, fx::DialogControl::Button, kPush},
    {kResetAll, kResetAllKeysText, 197, 157, 58, 14, fx::DialogControl::Button, kPush},
};

CString NameOf(ACCEL key) {
    CString name;
    CMFCAcceleratorKey(&key).Format(name);
    return name;
}

class KeyboardPage : public CustomizePage {
public:
    explicit KeyboardPage(CMFCToolBarsCustomizeDialog& dialog) : CustomizePage(dialog, kKeyboardTab, kItems) {}

    BOOL OnInitDialog() override {
        CustomizePage::OnInitDialog();
        m_category.SubclassDlgItem(kCategory, this);
        m_commands.TakeOver(kCommands, *this);
        m_current.TakeOver(kCurrent, *this);
        m_newKey.SubclassDlgItem(kNewKey, this);
        Dialog().FillCategoriesComboBox(m_category, FALSE);
        m_category.SetCurSel(0);
        OnCategory();
        return TRUE;
    }
    BOOL OnSetActive() override {
        ShowKeys();
        return CustomizePage::OnSetActive();
    }

protected:
    afx_msg void OnCategory();
    afx_msg void ShowKeys();
    afx_msg void OnNewKey();
    afx_msg void OnAssign();
    afx_msg void OnRemove();
    afx_msg void OnResetAll();
    DECLARE_MESSAGE_MAP()

private:
    /// 0: none is selected, or one without a command.
    WORD Command() const {
        const CMFCToolBarButton* const button = m_commands.Selected();
        const bool isCommand = button != nullptr && button->m_nID <= 0xFFFF;
        return isCommand ? static_cast<WORD>(button->m_nID) : WORD{0};
    }
    std::vector<ACCEL> Keys() const { return panes::KeysOf(Dialog().Frame()); }
    void Give(std::vector<ACCEL> keys);

    CComboBox m_category;
    CommandList m_commands;
    RowList m_current;
    KeyBox m_newKey;
    std::vector<ACCEL> m_shown; ///< the rows of the list of current keys
};

BEGIN_MESSAGE_MAP(KeyboardPage, CustomizePage)
ON_CBN_SELCHANGE(kCategory, &KeyboardPage::OnCategory)
ON_LBN_SELCHANGE(kCommands, &KeyboardPage::ShowKeys)
ON_LBN_SELCHANGE(kCurrent, &KeyboardPage::OnNewKey)
ON_EN_CHANGE(kNewKey, &KeyboardPage::OnNewKey)
ON_BN_CLICKED(kAssign, &KeyboardPage::OnAssign)
ON_BN_CLICKED(kRemove, &KeyboardPage::OnRemove)
ON_BN_CLICKED(kResetAll, &KeyboardPage::OnResetAll)
END_MESSAGE_MAP()

void KeyboardPage::OnCategory() {
    CString category;
    const int row = m_category.GetCurSel();
    if (row >= 0) {
        m_category.GetLBText(row, category);
    }
    m_commands.Show(CommandsOf(Dialog().Catalog(), category));
    ShowKeys();
}

void KeyboardPage::ShowKeys() {
    const WORD command = Command();
    m_shown.clear();
    m_current.ResetContent();
    for (const ACCEL& key : Keys()) {
        if (command != 0 && key.cmd == command) {
            m_shown.push_back(key);
            m_current.AddString(NameOf(key));
        }
    }
    m_newKey.Clear(); // which brings the rest to it
    OnNewKey();
}

void KeyboardPage::OnNewKey() {
    CString assigned;
    bool isAssignedHere = false;
    if (m_newKey.HasKey()) {
        assigned = FrameworkText(kUnassignedText);
        for (const ACCEL& key : Keys()) {
            if (panes::IsSameKey(key, m_newKey.Key())) {
                const LPCTSTR name = Dialog().GetCommandName(key.cmd);
                assigned = name != nullptr ? CString(name) : CString(L"?");
                isAssignedHere = key.cmd == Command();
            }
        }
    }
    SetDlgItemText(kAssigned, assigned);
    EnableItem(kAssign, m_newKey.HasKey() && !isAssignedHere && Command() != 0);
    EnableItem(kRemove, m_current.GetCurSel() >= 0);
}

void KeyboardPage::Give(std::vector<ACCEL> keys) {
    CFrameWnd* const frame = Dialog().Frame();
    if (frame == nullptr || afxKeyboardManager == nullptr) {
        return;
    }
    afxKeyboardManager->KeepOriginalKeys(frame);
    if (keys.empty()) {
        afxKeyboardManager->UpdateAccelTable(nullptr, nullptr, frame); // a table has at least one key
    } else {
        afxKeyboardManager->UpdateAccelTable(nullptr, keys.data(), static_cast<int>(keys.size()), frame);
    }
    ShowKeys();
}

// The key leaves the command that had it.
void KeyboardPage::OnAssign() {
    ACCEL chosen = m_newKey.Key();
    chosen.cmd = Command();
    const fx::WindowGuard guard(this);
    if (!m_newKey.HasKey() || chosen.cmd == 0 || !Dialog().AskAssignKey(chosen) || guard.IsGone()) {
        return;
    }
    std::vector<ACCEL> keys = Keys();
    std::erase_if(keys, [&chosen](const ACCEL& key) { return panes::IsSameKey(key, chosen); });
    keys.push_back(chosen);
    Give(std::move(keys));
}

void KeyboardPage::OnRemove() {
    const int row = m_current.GetCurSel();
    if (row < 0 || row >= static_cast<int>(m_shown.size())) {
        return;
    }
    const ACCEL removed = m_shown[static_cast<std::size_t>(row)];
    std::vector<ACCEL> keys = Keys();
    std::erase_if(keys, [&removed](const ACCEL& key) { return panes::IsSameKey(key, removed); });
    Give(std::move(keys));
}

void KeyboardPage::OnResetAll() {
    if (!IsConfirmed(kAskResetAllKeysText) || afxKeyboardManager == nullptr) {
        return;
    }
    afxKeyboardManager->ResetAll();
    const fx::WindowGuard guard(this);
    if (const CFrameWnd* const frame = Dialog().Frame()) {
        ::SendMessageW(frame->m_hWnd, AFX_WM_RESETKEYBOARD, 0, 0);
    }
    if (guard.IsAlive()) {
        ShowKeys();
    }
}

} // namespace

std::unique_ptr<CPropertyPage> MakeKeyboardPage(CMFCToolBarsCustomizeDialog& dialog) {
    return std::make_unique<KeyboardPage>(dialog);
}

} // namespace toolbar
