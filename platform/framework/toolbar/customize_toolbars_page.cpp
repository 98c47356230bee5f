// The page on which toolbars are shown and hidden, put back, made, named and deleted.
#include "afxcmn.h"
#include "core/framework_text.h"
#include "fx/registered_messages.h"
#include "fx/window_guard.h"
#include "toolbar/customize_page.h"
#include "toolbar/name_box.h"
#include "toolbar/offered_bars.h"

namespace toolbar {

namespace {

enum Item : int { kBars = 1001, kReset, kResetAll, kNew, kRename, kDelete, kTextLabels };

constexpr DWORD kPush = BS_PUSHBUTTON | WS_TABSTOP;

constexpr fx::DialogItem kItems[] = {
    {-1, kToolBarsText, 7, 7, 180, 8},
    {kBars, 0, 7, 17, 180, 154, fx::DialogControl::Static,
     LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP, WC_LISTVIEWW},
    {kReset, kResetBarText, 195, 17, 60, 14, fx::DialogControl::Button, kPush},
    {kResetAll, kResetAllBarsText, 195, 34, 60, 14, fx::DialogControl::Button, kPush},
    {kNew, kNewText, 195, 59, 60, 14, fx::DialogControl::Button, kPush},
    {kRename, kRenameText, 195, 76, 60, 14, fx::DialogControl::Button, kPush},
    {kDelete, kDeleteText, 195, 93, 60, 14, fx::DialogControl::Button, kPush},
    {kTextLabels, kTextLabelsText, 195, 118, 60, 20, fx::DialogControl::Button,
     BS_AUTOCHECKBOX | BS_MULTILINE | BS_TOP | WS_TABSTOP},
};

/// Handlers of the program run in most of what is done here: they may destroy bars, the frame and with it the dialog.
class ToolBarsPage : public CustomizePage {
public:
    explicit ToolBarsPage(CMFCToolBarsCustomizeDialog& dialog) : CustomizePage(dialog, kToolBarsTab, kItems) {}

    BOOL OnInitDialog() override {
        CustomizePage::OnInitDialog();
        m_bars.SubclassDlgItem(kBars, this);
        m_bars.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
        CRect client;
        m_bars.GetClientRect(&client);
        m_bars.InsertColumn(0, L"", LVCFMT_LEFT, client.Width() - ::GetSystemMetrics(SM_CXVSCROLL));
        for (const int id : {kNew, kRename, kDelete}) {
            ShowItem(id, Dialog().AreUserDefinedToolbarsEnabled() != FALSE);
        }
        ShowItem(kTextLabels, (Dialog().GetFlags() & AFX_CUSTOMIZE_TEXT_LABELS) != 0);
        return TRUE;
    }
    BOOL OnSetActive() override {
        Fill(Selected());
        return CustomizePage::OnSetActive();
    }

protected:
    afx_msg void OnItemChanged(NMHDR* header, LRESULT* result);
    afx_msg void OnResetBar();
    afx_msg void OnResetAll();
    afx_msg void OnNew();
    afx_msg void OnRename();
    afx_msg void OnDelete();
    afx_msg void OnTextLabels();
    DECLARE_MESSAGE_MAP()

private:
    /// Null: none is selected, or it is gone.
    CMFCToolBar* Selected() const { return BarOf(m_bars.m_hWnd ? m_bars.GetNextItem(-1, LVNI_SELECTED) : -1); }
    CMFCToolBar* BarOf(int row) const {
        const DWORD_PTR window = row >= 0 ? m_bars.GetItemData(row) : 0;
        return CMFCToolBar::FromHandlePermanent(reinterpret_cast<HWND>(window));
    }
    void Fill(const CMFCToolBar* selected);
    void ShowChecked(int row);
    void UpdateButtons();

    CListCtrl m_bars;
    bool m_isFilling = false;
};

BEGIN_MESSAGE_MAP(ToolBarsPage, CustomizePage)
ON_NOTIFY(LVN_ITEMCHANGED, kBars, &ToolBarsPage::OnItemChanged)
ON_BN_CLICKED(kReset, &ToolBarsPage::OnResetBar)
ON_BN_CLICKED(kResetAll, &ToolBarsPage::OnResetAll)
ON_BN_CLICKED(kNew, &ToolBarsPage::OnNew)
ON_BN_CLICKED(kRename, &ToolBarsPage::OnRename)
ON_BN_CLICKED(kDelete, &ToolBarsPage::OnDelete)
ON_BN_CLICKED(kTextLabels, &ToolBarsPage::OnTextLabels)
END_MESSAGE_MAP()

void ToolBarsPage::Fill(const CMFCToolBar* selected) {
    const CFrameWnd* const frame = Dialog().Frame();
    m_isFilling = true;
    m_bars.DeleteAllItems();
    int row = 0;
    int chosen = 0;
    for (const CMFCToolBar* const bar : frame != nullptr ? OfferedBars::Of(*frame) : std::vector<CMFCToolBar*>()) {
        m_bars.InsertItem(row, OfferedBars::NameOf(*bar));
        m_bars.SetItemData(row, reinterpret_cast<DWORD_PTR>(bar->m_hWnd));
        m_bars.SetCheck(row, bar->IsVisible());
        chosen = bar == selected ? row : chosen;
        ++row;
    }
    m_bars.SetItemState(chosen, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    m_isFilling = false;
    UpdateButtons();
}

void ToolBarsPage::UpdateButtons() {
    const CMFCToolBar* const bar = Selected();
    const bool isUsers = bar != nullptr && bar->IsUserDefined();
    EnableItem(kReset, bar != nullptr && bar->CanBeRestored());
    EnableItem(kRename, isUsers);
    EnableItem(kDelete, isUsers);
    EnableItem(kTextLabels, bar != nullptr && bar->AllowChangeTextLabels());
    CheckDlgButton(kTextLabels, bar != nullptr && bar->AreTextLabels() ? BST_CHECKED : BST_UNCHECKED);
}

void ToolBarsPage::OnItemChanged(NMHDR* header, LRESULT* result) {
    *result = 0;
    const auto& change = *reinterpret_cast<const NMLISTVIEW*>(header);
    if (m_isFilling) {
        return;
    }
    const UINT changed = change.uOldState ^ change.uNewState;
    if ((changed & LVIS_STATEIMAGEMASK) != 0) {
        ShowChecked(change.iItem);
    } else if ((changed & LVIS_SELECTED) != 0) {
        UpdateButtons();
    }
}

void ToolBarsPage::ShowChecked(int row) {
    CMFCToolBar* const bar = BarOf(row);
    const BOOL isWanted = m_bars.GetCheck(row);
    if (bar == nullptr || isWanted == bar->IsVisible()) {
        return;
    }
    if (!isWanted && !OfferedBars::MayHide(*bar)) {
        m_bars.SetCheck(row, TRUE);
        return;
    }
    bar->ShowPane(isWanted, FALSE, FALSE);
}

void ToolBarsPage::OnResetBar() {
    if (!IsConfirmed(kAskResetBarText)) {
        return;
    }
    const fx::WindowGuard guard(this);
    if (CMFCToolBar* const bar = Selected()) {
        bar->RestoreOriginalState();
    }
    if (guard.IsAlive()) {
        UpdateButtons();
    }
}

void ToolBarsPage::OnResetAll() {
    if (!IsConfirmed(kAskResetAllBarsText)) {
        return;
    }
    const fx::WindowGuard guard(this);
    CMFCToolBar::ResetAll();
    if (guard.IsAlive()) {
        Fill(Selected());
    }
}

void ToolBarsPage::OnNew() {
    const fx::WindowGuard guard(this);
    const CString name = AskName(*this, kNewBarTitle, kBarNameText, FrameworkText(kDefaultBarName));
    CFrameWnd* const frame = guard.IsAlive() ? Dialog().Frame() : nullptr;
    if (name.IsEmpty() || frame == nullptr) {
        return;
    }
    const LRESULT made =
        ::SendMessageW(frame->m_hWnd, AFX_WM_CREATETOOLBAR, 0, reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(name)));
    if (guard.IsAlive()) {
        Fill(reinterpret_cast<const CMFCToolBar*>(made));
    }
}

void ToolBarsPage::OnRename() {
    const CMFCToolBar* const before = Selected();
    if (before == nullptr) {
        return;
    }
    const fx::WindowGuard guard(this);
    const CString name = AskName(*this, kRenameBarTitle, kBarNameText, OfferedBars::NameOf(*before));
    CMFCToolBar* const bar = guard.IsAlive() ? Selected() : nullptr;
    if (!name.IsEmpty() && bar != nullptr) {
        bar->SetWindowText(name);
        Fill(bar);
    }
}

void ToolBarsPage::OnDelete() {
    if (!IsConfirmed(kAskDeleteText)) {
        return;
    }
    const fx::WindowGuard guard(this);
    CMFCToolBar* const bar = Selected();
    const CFrameWnd* const frame = Dialog().Frame();
    if (bar == nullptr || frame == nullptr) {
        return;
    }
    ::SendMessageW(frame->m_hWnd, AFX_WM_DELETETOOLBAR, 0, reinterpret_cast<LPARAM>(bar));
    if (guard.IsAlive()) {
        Fill(nullptr);
    }
}

void ToolBarsPage::OnTextLabels() {
    if (CMFCToolBar* const bar = Selected()) {
        bar->EnableTextLabels(IsDlgButtonChecked(kTextLabels) == BST_CHECKED);
    }
}

} // namespace

std::unique_ptr<CPropertyPage> MakeToolBarsPage(CMFCToolBarsCustomizeDialog& dialog) {
    return std::make_unique<ToolBarsPage>(dialog);
}

} // namespace toolbar
