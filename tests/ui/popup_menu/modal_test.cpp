// Pop-ups while a modal dialog runs its own loop: the thread has no idle time of its own then.

#include "tests/ui/popup_menu/menu_frame.h"

namespace {

constexpr UINT openPopup = WM_APP + 21;
constexpr UINT_PTR lookTimer = 77;

/// A modal dialog that opens a menu, waits until its loop was idle and ends.
class MenuDialog : public CDialog {
public:
    bool allowsOpen = false;
    int asked = 0;
    BOOL wasOpenDisabled = FALSE;
    BOOL isOpenDisabledLater = TRUE;
    BOOL isChecked = FALSE;

    INT_PTR Run(CWnd* parent) {
        struct {
            DLGTEMPLATE header{WS_POPUP | WS_CAPTION | WS_VISIBLE, 0, 0, 10, 10, 120, 60};
            WORD noMenu = 0, noClass = 0, noTitle = 0;
        } memory;
        return InitModalIndirect(&memory.header, parent) ? DoModal() : -1;
    }

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        PostMessage(openPopup);
        return TRUE;
    }
    afx_msg LRESULT OnOpenPopup(WPARAM, LPARAM) {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, menu_ids::open, L"&Open");
        menu.AppendMenu(MF_STRING, menu_ids::checked, L"C&hecked");
        auto* popup = new CMFCPopupMenu;
        CPoint corner(20, 20);
        ClientToScreen(&corner);
        if (popup->Create(this, corner.x, corner.y, menu.Detach(), FALSE, TRUE)) {
            SetTimer(lookTimer, 60, nullptr);
        } else {
            EndDialog(-1);
        }
        return 0;
    }
    afx_msg void OnTimer(UINT_PTR) {
        const CMFCPopupMenu* popup = CMFCPopupMenu::GetActiveMenu();
        if (popup == nullptr) {
            EndDialog(-1);
        } else if (asked > 0 && !allowsOpen) {
            wasOpenDisabled = popup->GetMenuItem(0)->m_nStyle & TBBS_DISABLED;
            isChecked = popup->GetMenuItem(1)->m_nStyle & TBBS_CHECKED;
            allowsOpen = true;
            asked = 0;
            PostMessage(WM_NULL); // something happens, then nothing
        } else if (asked > 0 || ++m_waits > 50) {
            isOpenDisabledLater = popup->GetMenuItem(0)->m_nStyle & TBBS_DISABLED;
            KillTimer(lookTimer);
            EndDialog(asked > 0 ? IDOK : IDCANCEL);
        }
    }
    afx_msg void OnUpdateOpen(CCmdUI* state) {
        ++asked;
        state->Enable(allowsOpen);
    }
    afx_msg void OnUpdateChecked(CCmdUI* state) { state->SetCheck(1); }
    DECLARE_MESSAGE_MAP()

private:
    int m_waits = 0;
};

BEGIN_MESSAGE_MAP(MenuDialog, CDialog)
ON_MESSAGE(openPopup, &MenuDialog::OnOpenPopup)
ON_WM_TIMER()
ON_UPDATE_COMMAND_UI(menu_ids::open, OnUpdateOpen)
ON_UPDATE_COMMAND_UI(menu_ids::checked, OnUpdateChecked)
END_MESSAGE_MAP()

} // namespace

TEST_F(PopupMenuTest, ItemsOfAMenuThatBelongsToAModalDialogFollowItsHandlers) {
    MenuDialog dialog;
    EXPECT_EQ(dialog.Run(m_frame), IDOK);
    EXPECT_TRUE(dialog.wasOpenDisabled);
    EXPECT_TRUE(dialog.isChecked);
    EXPECT_FALSE(dialog.isOpenDisabledLater) << "an answer that changes while the menu is open is seen";
    EXPECT_EQ(Active(), nullptr) << "the menu goes with the dialog";
}
