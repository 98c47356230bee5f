// The page on which users write down programs that menus start.
#include "afxusertoolsmanager.h"
#include "core/framework_text.h"
#include "fx/scoped_change.h"
#include "fx/window_guard.h"
#include "toolbar/customize_page.h"
#include "toolbar/row_list.h"

#include <commdlg.h>

#include <array>

namespace toolbar {

namespace {

enum Item : int {
    kTools = 1001,
    kNew,
    kDelete,
    kUp,
    kDown,
    kName,
    kCommand,
    kArguments,
    kDirectory,
    kFindCommand,
    kOfferArguments,
    kOfferDirectories
};

constexpr DWORD kPush = BS_PUSHBUTTON | WS_TABSTOP;
constexpr DWORD kField = ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP;

constexpr fx::DialogItem kItems[] = {
    {-1, kToolsText, 7, 7, 180, 8},
    {kTools, 0, 7, 17, 180, 76, fx::DialogControl::ListBox,
     LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | WS_VSCROLL | WS_BORDER | WS_TABSTOP},
    {kNew, kNewToolText, 195, 17, 60, 14, fx::DialogControl::Button, kPush},
    {kDelete, kDeleteText, 195, 34, 60, 14, fx::DialogControl::Button, kPush},
    {kUp, kMoveUpText, 195, 59, 60, 14, fx::DialogControl::Button, kPush},
    {kDown, kMoveDownText, 195, 76, 60, 14, fx::DialogControl::Button, kPush},
    {-1, kToolNameText, 7, 103, 66, 8},
    {kName, 0, 75, 101, 112, 13, fx::DialogControl::Edit, kField},
    {-1, kToolCommandText, 7, 121, 66, 8},
    {kCommand, 0, 75, 119, 162, 13, fx::DialogControl::Edit, kField},
    {kFindCommand, 0, 240, 119, 15, 13, fx::DialogControl::Button, kPush},
    {-1, kToolArgumentsText, 7, 139, 66, 8},
    {kArguments, 0, 75, 137, 162, 13, fx::DialogControl::Edit, kField},
    {kOfferArguments, 0, 240, 137, 15, 13, fx::DialogControl::Button, kPush},
    {-1, kToolDirectoryText, 7, 157, 66, 8},
    {kDirectory, 0, 75, 155, 162, 13, fx::DialogControl::Edit, kField},
    {kOfferDirectories, 0, 240, 155, 15, 13, fx::DialogControl::Button, kPush},
};

CString TextIn(const CWnd& page, int id) {
    CString text;
    page.GetDlgItemText(id, text);
    return text;
}

/// "Name|pattern|...||" as the system's dialog wants it: a null character for each bar.
CString FilterFor(const CString& written) {
    CString filter = written.IsEmpty() ? FrameworkText(kProgramsFilter) : written;
    filter.Replace(L'|', L'\0');
    return filter;
}

/// Handlers of the program run before and after each change: they may end the frame and with it the dialog.
class ToolsPage : public CustomizePage {
public:
    explicit ToolsPage(CMFCToolBarsCustomizeDialog& dialog) : CustomizePage(dialog, kToolsTab, kItems) {}

    BOOL OnInitDialog() override {
        Dialog().TellToolsPage();
        CustomizePage::OnInitDialog();
        m_tools.TakeOver(kTools, *this);
        SetDlgItemText(kFindCommand, L"...");
        for (const int id : {kOfferArguments, kOfferDirectories}) {
            SetDlgItemText(id, L">");
        }
        ShowItem(kOfferArguments, Manager().GetArgumentsMenuID() != 0);
        ShowItem(kOfferDirectories, Manager().GetInitialDirMenuID() != 0);
        Fill(nullptr);
        return TRUE;
    }
    BOOL OnKillActive() override {
        return CustomizePage::OnKillActive() && Dialog().AskToolsValidity(Manager().GetUserTools());
    }

protected:
    afx_msg void OnSelect() { ShowTool(); }
    afx_msg void OnNew();
    afx_msg void OnDelete();
    afx_msg void OnUp();
    afx_msg void OnDown();
    afx_msg void OnField(UINT id);
    afx_msg void OnFindCommand();
    afx_msg void OnOfferArguments() { Offer(Manager().GetArgumentsMenuID(), kOfferArguments, kArguments); }
    afx_msg void OnOfferDirectories() { Offer(Manager().GetInitialDirMenuID(), kOfferDirectories, kDirectory); }
    DECLARE_MESSAGE_MAP()

private:
    /// There is one as long as there is this page.
    static CUserToolsManager& Manager() { return *afxUserToolsManager; }
    /// Null: none is selected.
    CUserTool* Selected() const {
        const int row = m_tools.GetCurSel();
        const POSITION place = row >= 0 ? Manager().GetUserTools().FindIndex(row) : nullptr;
        return place != nullptr ? static_cast<CUserTool*>(const_cast<CObject*>(Manager().GetUserTools().GetAt(place)))
                                : nullptr;
    }
    /// The list anew, with that tool selected, or the first one.
    void Fill(const CUserTool* selected);
    /// The fields of the selected one, and what can be done with it.
    void ShowTool();
    /// Puts a text where the field has its caret.
    void Offer(UINT menuResource, int button, int field);

    RowList m_tools;
    bool m_isShowing = false; ///< the fields are being filled
};

BEGIN_MESSAGE_MAP(ToolsPage, CustomizePage)
ON_LBN_SELCHANGE(kTools, &ToolsPage::OnSelect)
ON_BN_CLICKED(kNew, &ToolsPage::OnNew)
ON_BN_CLICKED(kDelete, &ToolsPage::OnDelete)
ON_BN_CLICKED(kUp, &ToolsPage::OnUp)
ON_BN_CLICKED(kDown, &ToolsPage::OnDown)
ON_BN_CLICKED(kFindCommand, &ToolsPage::OnFindCommand)
ON_BN_CLICKED(kOfferArguments, &ToolsPage::OnOfferArguments)
ON_BN_CLICKED(kOfferDirectories, &ToolsPage::OnOfferDirectories)
ON_CONTROL_RANGE(EN_CHANGE, kName, kDirectory, &ToolsPage::OnField)
END_MESSAGE_MAP()

void ToolsPage::Fill(const CUserTool* selected) {
    m_tools.ResetContent();
    int chosen = 0;
    for (POSITION position = Manager().GetUserTools().GetHeadPosition(); position != nullptr;) {
        const auto* const tool = static_cast<const CUserTool*>(Manager().GetUserTools().GetNext(position));
        const int row = m_tools.AddString(tool->m_strLabel);
        chosen = tool == selected ? row : chosen;
    }
    m_tools.SetCurSel(chosen);
    ShowTool();
}

void ToolsPage::ShowTool() {
    const fx::ScopedChange<bool> showing(m_isShowing, true);
    const CUserTool* const tool = Selected();
    SetDlgItemText(kName, tool != nullptr ? tool->m_strLabel : CString());
    SetDlgItemText(kCommand, tool != nullptr ? tool->GetCommand() : CString());
    SetDlgItemText(kArguments, tool != nullptr ? tool->m_strArguments : CString());
    SetDlgItemText(kDirectory, tool != nullptr ? tool->m_strInitialDirectory : CString());
    for (int id = kName; id <= kOfferDirectories; ++id) {
        EnableItem(id, tool != nullptr);
    }
    const INT_PTR count = Manager().GetUserTools().GetCount();
    EnableItem(kNew, count < Manager().GetMaxTools());
    EnableItem(kDelete, tool != nullptr);
    EnableItem(kUp, tool != nullptr && m_tools.GetCurSel() > 0);
    EnableItem(kDown, tool != nullptr && m_tools.GetCurSel() < count - 1);
}

void ToolsPage::OnNew() {
    CUserTool* const tool = Manager().CreateNewTool();
    if (tool == nullptr) {
        return;
    }
    tool->m_strLabel = FrameworkText(kToolDefaultName);
    Fill(tool);
    CEdit* const name = static_cast<CEdit*>(GetDlgItem(kName));
    name->SetFocus();
    name->SetSel(0, -1);
}

void ToolsPage::OnDelete() {
    const int row = m_tools.GetCurSel();
    if (!IsConfirmed(kAskDeleteToolText) || !Manager().RemoveTool(Selected())) {
        return;
    }
    Fill(nullptr);
    if (row < m_tools.GetCount()) {
        m_tools.SetCurSel(row);
        ShowTool();
    }
}

void ToolsPage::OnUp() {
    CUserTool* const tool = Selected();
    if (Manager().MoveToolUp(tool)) {
        Fill(tool);
    }
}

void ToolsPage::OnDown() {
    CUserTool* const tool = Selected();
    if (Manager().MoveToolDown(tool)) {
        Fill(tool);
    }
}

void ToolsPage::OnField(UINT id) {
    CUserTool* tool = m_isShowing ? nullptr : Selected();
    if (tool == nullptr) {
        return;
    }
    const fx::WindowGuard guard(this);
    Dialog().TellBeforeChange(*tool);
    tool = guard.IsAlive() ? Selected() : nullptr;
    if (tool == nullptr) {
        return;
    }
    const CString text = TextIn(*this, static_cast<int>(id));
    switch (id) {
    case kName: {
        tool->m_strLabel = text;
        const int row = m_tools.GetCurSel();
        m_tools.DeleteString(row);
        m_tools.SetCurSel(m_tools.InsertString(row, text));
        break;
    }
    case kCommand:
        tool->SetCommand(text);
        break;
    case kArguments:
        tool->m_strArguments = text;
        break;
    default:
        tool->m_strInitialDirectory = text;
        break;
    }
    Dialog().TellAfterChange(*tool);
}

void ToolsPage::OnFindCommand() {
    std::array<wchar_t, MAX_PATH> path{};
    const CString filter = FilterFor(Manager().GetFilter());
    const CString extension = Manager().GetDefExt();
    OPENFILENAMEW ask{};
    ask.lStructSize = sizeof(ask);
    ask.hwndOwner = Dialog().m_hWnd;
    ask.lpstrFilter = filter;
    ask.lpstrFile = path.data();
    ask.nMaxFile = static_cast<DWORD>(path.size());
    ask.lpstrDefExt = extension.IsEmpty() ? nullptr : static_cast<LPCTSTR>(extension);
    ask.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    const fx::WindowGuard guard(this);
    if (::GetOpenFileNameW(&ask) && guard.IsAlive()) {
        SetDlgItemText(kCommand, path.data());
    }
}

void ToolsPage::Offer(UINT menuResource, int button, int field) {
    CMenu menu;
    CMenu* const popup = menu.LoadMenu(menuResource) ? menu.GetSubMenu(0) : nullptr;
    if (popup == nullptr) {
        return;
    }
    CRect place;
    ::GetWindowRect(::GetDlgItem(m_hWnd, button), &place);
    const fx::WindowGuard guard(this);
    const auto chosen = static_cast<UINT>(
        ::TrackPopupMenu(popup->m_hMenu, TPM_RETURNCMD | TPM_NONOTIFY, place.right, place.top, 0, m_hWnd, nullptr));
    CString text;
    if (chosen != 0 && guard.IsAlive() && text.LoadString(chosen)) {
        CEdit* const edit = static_cast<CEdit*>(GetDlgItem(field));
        edit->ReplaceSel(text, TRUE);
        edit->SetFocus();
    }
}

} // namespace

std::unique_ptr<CPropertyPage> MakeToolsPage(CMFCToolBarsCustomizeDialog& dialog) {
    return std::make_unique<ToolsPage>(dialog);
}

} // namespace toolbar
