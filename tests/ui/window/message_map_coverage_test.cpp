// Every documented window message macro compiles against the handler that the window class declares for it: a map of
// all of them, whose handlers are the base class's own.
#include "tests/support/message_entries.h"
#include "tests/support/ui_test.h"

namespace {

class Everything : public CWnd {
public:
    static const AFX_MSGMAP* Map() { return GetThisMessageMap(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Everything, CWnd)
DOCUMENTED_MESSAGE_ENTRIES
ON_WM_WININICHANGE()
END_MESSAGE_MAP()

TEST(MessageMapTable, EveryMessageHasItsOwnEntry) {
    std::vector<UINT> seen;
    std::size_t count = 0;
    for (const AFX_MSGMAP_ENTRY* entry = Everything::Map()->lpEntries; entry->pfnInvoke != nullptr; ++entry) {
        ++count;
        // WM_WININICHANGE and WM_SETTINGCHANGE are one number.
        if (entry->nMessage != WM_SETTINGCHANGE) {
            EXPECT_EQ(std::count(seen.begin(), seen.end(), entry->nMessage), 0) << "message " << entry->nMessage;
        }
        seen.push_back(entry->nMessage);
    }
    EXPECT_EQ(count, documentedMessages + 1);
}

TEST(MessageMapTable, AWindowWithEveryBaseHandlerBehavesLikeOneWithout) {
    Everything window;
    // Wider than the least width that the caption's buttons leave.
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"everything", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 320, 190, nullptr,
                                nullptr));
    CString text;
    window.GetWindowText(text);
    EXPECT_STREQ(text, L"everything");
    CRect rect;
    window.GetWindowRect(&rect);
    EXPECT_EQ(rect.Size(), CSize(320, 190));
    EXPECT_EQ(window.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(-500, -500)), HTNOWHERE);
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_hWnd, nullptr);
}

} // namespace
