#include "frame_fixture.h"

#include "afxkeyboardmanager.h"
#include "tests/support/keys.h"

namespace {

class KeyFrame : public Owned<CFrameWnd> {
public:
    void OnTestCommand() { ++commands; }
    void OnAnother() { ++others; }
    int commands = 0;
    int others = 0;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(KeyFrame, CFrameWnd)
ON_COMMAND(ID_TEST_COMMAND, &KeyFrame::OnTestCommand)
ON_COMMAND(ID_TEST_OTHER, &KeyFrame::OnAnother)
END_MESSAGE_MAP()

class AcceleratorTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(frame.Load()); }

    BOOL Press(UINT key) {
        MSG message{};
        message.hwnd = frame.m_hWnd;
        message.message = WM_KEYDOWN;
        message.wParam = key;
        message.lParam = 1;
        return frame.PreTranslateMessage(&message);
    }

    /// Entries that a table still has; 0 for a destroyed one.
    static int CountOf(HACCEL table) { return ::CopyAcceleratorTableW(table, nullptr, 0); }

    KeyFrame frame;
};

TEST_F(AcceleratorTest, AKeyOfTheTableBecomesItsCommand) {
    EXPECT_TRUE(Press(VK_F5));
    EXPECT_EQ(frame.others, 1);
}

TEST_F(AcceleratorTest, AKeyThatIsNotInTheTableIsLeftAlone) {
    EXPECT_FALSE(Press(VK_F6));
    EXPECT_EQ(frame.others + frame.commands, 0);
}

TEST_F(AcceleratorTest, AKeyWithAModifierNeedsTheModifier) {
    EXPECT_FALSE(Press('S'));
    Keys keys(frame.m_hWnd);
    keys.Hold(VK_CONTROL);
    EXPECT_TRUE(Press('S'));
    keys.Let(VK_CONTROL);
    EXPECT_EQ(frame.commands, 1);
}

TEST_F(AcceleratorTest, TheTableCanBeReadAndASecondIsNotLoadedOverIt) {
    EXPECT_EQ(CountOf(frame.m_hAccelTable), 2);
    EXPECT_FALSE(frame.LoadAccelTable(MAKEINTRESOURCE(IDR_TEST_FRAME)));
}

TEST_F(AcceleratorTest, TheKeyboardManagerInstallsItsTableInTheMainFrameAndDestroysTheFormer) {
    const MainWindowScope scope(&frame);
    ACCEL entry{FVIRTKEY, VK_F6, ID_TEST_COMMAND};
    CKeyboardManager manager;
    ASSERT_TRUE(manager.UpdateAccelTable(nullptr, &entry, 1));
    const HACCEL first = frame.m_hAccelTable;
    EXPECT_EQ(CountOf(first), 1);
    EXPECT_TRUE(Press(VK_F6));
    EXPECT_FALSE(Press(VK_F5));
    EXPECT_EQ(frame.commands, 1);

    ACCEL other{FVIRTKEY, VK_F7, ID_TEST_COMMAND};
    const HACCEL second = ::CreateAcceleratorTableW(&other, 1);
    ASSERT_TRUE(manager.UpdateAccelTable(nullptr, second, nullptr));
    EXPECT_EQ(frame.m_hAccelTable, second);
    EXPECT_EQ(CountOf(first), 0) << "destroyed";
    EXPECT_EQ(CountOf(second), 1);
    g_application.m_pMainWnd = nullptr;
}

TEST_F(AcceleratorTest, InstallingTheSameTableAgainKeepsIt) {
    const HACCEL table = frame.m_hAccelTable;
    frame.ReplaceAccelTable(table);
    EXPECT_EQ(CountOf(table), 2);
}

TEST_F(AcceleratorTest, WithoutAMainFrameTheManagerRefuses) {
    const MainWindowScope scope(nullptr);
    ACCEL entry{FVIRTKEY, VK_F6, ID_TEST_COMMAND};
    CKeyboardManager manager;
    EXPECT_FALSE(manager.UpdateAccelTable(nullptr, &entry, 1));
}

TEST_F(AcceleratorTest, TheKeyOfACommandIsNamed) {
    CString text;
    EXPECT_TRUE(CKeyboardManager::FindDefaultAccelerator(ID_TEST_OTHER, text, &frame, TRUE));
    EXPECT_STREQ(text, L"F5");
    EXPECT_TRUE(CKeyboardManager::FindDefaultAccelerator(ID_TEST_COMMAND, text, &frame, TRUE));
    EXPECT_STREQ(text, L"Ctrl+S");
    EXPECT_FALSE(CKeyboardManager::FindDefaultAccelerator(ID_TEST_LONG, text, &frame, TRUE));
}

TEST_F(AcceleratorTest, AllKeysOfACommandAreNamedOnDemand) {
    ACCEL entries[] = {{FVIRTKEY | FCONTROL | FSHIFT, VK_DELETE, ID_TEST_COMMAND},
                       {FVIRTKEY | FALT, 'X', ID_TEST_COMMAND}};
    frame.ReplaceAccelTable(::CreateAcceleratorTableW(entries, 2));
    CKeyboardManager::ShowAllAccelerators(TRUE, L", ");
    CString text;
    EXPECT_TRUE(CKeyboardManager::FindDefaultAccelerator(ID_TEST_COMMAND, text, &frame, TRUE));
    CKeyboardManager::ShowAllAccelerators(FALSE);
    EXPECT_STREQ(text, L"Ctrl+Shift+Del, Alt+X");
}

TEST_F(AcceleratorTest, CharactersHaveTheirCapitalsInEveryScript) {
    EXPECT_EQ(CKeyboardManager::TranslateCharToUpper(L'q'), static_cast<UINT>(L'Q'));
    EXPECT_EQ(CKeyboardManager::TranslateCharToUpper(0x00F6), 0x00D6U);
    EXPECT_EQ(CKeyboardManager::TranslateCharToUpper(0x0444), 0x0424U);
    EXPECT_EQ(CKeyboardManager::TranslateCharToUpper(0x03C9), 0x03A9U);
}

TEST_F(AcceleratorTest, AKeyIsHandledOnlyWithExactlyItsModifiers) {
    EXPECT_TRUE(CKeyboardManager::IsKeyHandled('S', FVIRTKEY | FCONTROL, &frame, TRUE));
    EXPECT_FALSE(CKeyboardManager::IsKeyHandled('S', FVIRTKEY, &frame, TRUE));
    EXPECT_FALSE(CKeyboardManager::IsKeyHandled('S', FVIRTKEY | FCONTROL | FSHIFT, &frame, TRUE));
}

} // namespace
