// The entries of message maps: for each of them a window has a handler with the documented name, or one of its own.
#include "interface.h"

#include "afxcontrolbars.h"
#include "tests/support/message_entries.h"

#include <set>
#include <tuple>

namespace {

class WindowMessages : public CWnd {
public:
    const AFX_MSGMAP_ENTRY* Entries() const { return GetMessageMap()->lpEntries; }

    HBRUSH CtlColor(CDC*, UINT) { return nullptr; }
    void DrawItem(LPDRAWITEMSTRUCT) {}
    void MeasureItem(LPMEASUREITEMSTRUCT) {}
    int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    void DeleteItem(LPDELETEITEMSTRUCT) {}
    int CharToItem(UINT, UINT) { return -1; }
    int VKeyToItem(UINT, UINT) { return -1; }
    void HScroll(UINT, UINT) {}
    void VScroll(UINT, UINT) {}
    void ParentNotify(UINT, LPARAM) {}
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WindowMessages, CWnd)
DOCUMENTED_MESSAGE_ENTRIES
ON_WM_CHARTOITEM_REFLECT()
ON_WM_COMPAREITEM_REFLECT()
ON_WM_CTLCOLOR_REFLECT()
ON_WM_DELETEITEM_REFLECT()
ON_WM_DRAWITEM_REFLECT()
ON_WM_HSCROLL_REFLECT()
ON_WM_MEASUREITEM_REFLECT()
ON_WM_PARENTNOTIFY_REFLECT()
ON_WM_VKEYTOITEM_REFLECT()
ON_WM_VSCROLL_REFLECT()
END_MESSAGE_MAP()

class Notifications : public CWnd {
public:
    const AFX_MSGMAP_ENTRY* Entries() const { return GetMessageMap()->lpEntries; }

    afx_msg void OnCode() {}
    afx_msg BOOL OnCodeEx() { return FALSE; }
    afx_msg BOOL OnNotifyCodeEx(NMHDR*, LRESULT*) { return FALSE; }
    afx_msg void OnUpdate(CCmdUI*) {}
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Notifications, CWnd)
// The older name of WM_SETTINGCHANGE: the same number.
ON_WM_WININICHANGE()
ON_CBN_CLOSEUP(1, &Notifications::OnCode)
ON_CBN_DBLCLK(2, &Notifications::OnCode)
ON_CBN_DROPDOWN(3, &Notifications::OnCode)
ON_CBN_EDITCHANGE(4, &Notifications::OnCode)
ON_CBN_EDITUPDATE(5, &Notifications::OnCode)
ON_CBN_ERRSPACE(6, &Notifications::OnCode)
ON_CBN_KILLFOCUS(7, &Notifications::OnCode)
ON_CBN_SELCHANGE(8, &Notifications::OnCode)
ON_CBN_SELENDCANCEL(9, &Notifications::OnCode)
ON_CBN_SELENDOK(10, &Notifications::OnCode)
ON_CBN_SETFOCUS(11, &Notifications::OnCode)
ON_EN_CHANGE(12, &Notifications::OnCode)
ON_EN_ERRSPACE(13, &Notifications::OnCode)
ON_EN_HSCROLL(14, &Notifications::OnCode)
ON_EN_KILLFOCUS(15, &Notifications::OnCode)
ON_EN_MAXTEXT(16, &Notifications::OnCode)
ON_EN_SETFOCUS(17, &Notifications::OnCode)
ON_EN_UPDATE(18, &Notifications::OnCode)
ON_EN_VSCROLL(19, &Notifications::OnCode)
ON_LBN_DBLCLK(20, &Notifications::OnCode)
ON_LBN_ERRSPACE(21, &Notifications::OnCode)
ON_LBN_KILLFOCUS(22, &Notifications::OnCode)
ON_LBN_SELCHANGE(23, &Notifications::OnCode)
ON_LBN_SETFOCUS(24, &Notifications::OnCode)
ON_BN_CLICKED(25, &Notifications::OnCode)
ON_BN_DISABLE(26, &Notifications::OnCode)
ON_BN_DOUBLECLICKED(27, &Notifications::OnCode)
ON_BN_HILITE(28, &Notifications::OnCode)
ON_BN_PAINT(29, &Notifications::OnCode)
ON_BN_UNHILITE(30, &Notifications::OnCode)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &Notifications::OnCodeEx)
ON_NOTIFY_REFLECT_EX(NM_CLICK, &Notifications::OnNotifyCodeEx)
ON_UPDATE_COMMAND_UI_REFLECT(&Notifications::OnUpdate)
END_MESSAGE_MAP()

/// Different entries of the map, up to its end.
std::size_t CountEntries(const AFX_MSGMAP_ENTRY* entry) {
    std::set<std::tuple<UINT, UINT, UINT>> seen;
    for (; entry->pfnInvoke != nullptr; ++entry) {
        EXPECT_TRUE(seen.emplace(entry->nMessage, entry->nCode, entry->nID).second) << entry->nMessage;
    }
    return seen.size();
}

TEST(MessageMaps, EveryMessageHasAnEntryOfItsOwn) {
    constexpr std::size_t reflectedMessages = 10;
    EXPECT_EQ(CountEntries(WindowMessages().Entries()), documentedMessages + reflectedMessages);
}

TEST(MessageMaps, EveryNotificationHasAnEntryOfItsOwn) { EXPECT_EQ(CountEntries(Notifications().Entries()), 34u); }

} // namespace
