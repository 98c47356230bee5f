#include "frame_fixture.h"

#include "tests/support/keys.h"

namespace {

class DialogFrame : public Owned<CFrameWnd> {
public:
    void OnF5() { ++others; }
    void OnTestCommand() { ++commands; }
    int others = 0;
    int commands = 0;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DialogFrame, CFrameWnd)
ON_COMMAND(ID_TEST_OTHER, &DialogFrame::OnF5)
ON_COMMAND(ID_TEST_COMMAND, &DialogFrame::OnTestCommand)
END_MESSAGE_MAP()

class ModelessDialogKeys : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(frame.Load()); }

    void Open(CWnd* parent) { ASSERT_TRUE(dialog.Create(IDD_TEST_DIALOG, parent)); }
    void PressInDialog(UINT key) {
        Keys keys(::GetDlgItem(dialog.m_hWnd, IDC_TEST_EDIT));
        keys.Press(key);
    }
    CString Text() const {
        CString text;
        dialog.GetDlgItemText(IDC_TEST_EDIT, text);
        return text;
    }

    DialogFrame frame;
    MainWindowScope scope{&frame};
    CDialog dialog;
};

TEST_F(ModelessDialogKeys, TheAcceleratorsOfItsFrameWorkWhileItHasTheFocus) {
    Open(&frame);
    PressInDialog(VK_F5);
    EXPECT_EQ(frame.others, 1);
}

TEST_F(ModelessDialogKeys, TheMainFramesAcceleratorsWorkInADialogOfAnotherWindow) {
    TestWindow stranger;
    Open(&stranger);
    PressInDialog(VK_F5);
    EXPECT_EQ(frame.others, 1);
}

TEST_F(ModelessDialogKeys, AFrameThatIsDisabledTakesNoKeys) {
    Open(&frame);
    frame.EnableWindow(FALSE);
    PressInDialog(VK_F5);
    EXPECT_EQ(frame.others, 0);
}

TEST_F(ModelessDialogKeys, ItsOwnKeysStayItsOwn) {
    Open(&frame);
    PressInDialog(VK_F6);
    PressInDialog(VK_ESCAPE);
    EXPECT_EQ(frame.others + frame.commands, 0);
    EXPECT_FALSE(dialog.IsWindowVisible()) << "Escape cancelled it";
}

TEST_F(ModelessDialogKeys, WhatIsTypedIsTextEvenWhereTheLetterIsAnAccelerator) {
    ACCEL letter{0, 'p', ID_TEST_COMMAND};
    frame.ReplaceAccelTable(::CreateAcceleratorTableW(&letter, 1));
    Open(&frame);
    Keys(::GetDlgItem(dialog.m_hWnd, IDC_TEST_EDIT)).Type(L"p");
    EXPECT_EQ(frame.commands, 0);
    EXPECT_STREQ(Text(), L"p");
    Keys(::GetDlgItem(dialog.m_hWnd, IDC_TEST_CHECK)).Type(L"p");
    EXPECT_EQ(frame.commands, 1) << "a check box takes no text";
}

} // namespace
