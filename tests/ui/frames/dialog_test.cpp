#include "frame_fixture.h"

#include "afxdd_.h"
#include "afxdialogex.h"
#include "tests/support/keys.h"

#include <functional>

namespace {

/// A modal dialog that does something to itself as soon as it runs.
class ScriptedDialog : public CDialog {
public:
    explicit ScriptedDialog(std::function<void(ScriptedDialog&)> script, CWnd* parent = nullptr)
        : CDialog(IDD_TEST_DIALOG, parent), m_script(std::move(script)) {}

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        ++inits;
        PostMessage(WM_APP);
        return TRUE;
    }
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Text(exchange, IDC_TEST_EDIT, number);
        DDX_Check(exchange, IDC_TEST_CHECK, check);
        DDX_Control(exchange, IDC_TEST_EDIT, edit);
    }
    LRESULT OnScript(WPARAM, LPARAM) {
        m_script(*this);
        return 0;
    }
    int number = 7;
    int check = 1;
    int inits = 0;
    CEdit edit;
    DECLARE_MESSAGE_MAP()

private:
    std::function<void(ScriptedDialog&)> m_script;
};

BEGIN_MESSAGE_MAP(ScriptedDialog, CDialog)
ON_MESSAGE(WM_APP, &ScriptedDialog::OnScript)
END_MESSAGE_MAP()

void Click(CDialog& dialog, int id) {
    dialog.SendMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                       reinterpret_cast<LPARAM>(::GetDlgItem(dialog.m_hWnd, id)));
}

TEST(ModalDialog, OkReturnsIdokAndTakesTheControlsContent) {
    ScriptedDialog dialog([](ScriptedDialog& self) {
        CString text;
        self.edit.GetWindowText(text);
        EXPECT_STREQ(text, L"7");
        EXPECT_EQ(self.IsDlgButtonChecked(IDC_TEST_CHECK), static_cast<UINT>(BST_CHECKED));
        self.edit.SetWindowText(L"42");
        self.CheckDlgButton(IDC_TEST_CHECK, BST_UNCHECKED);
        Click(self, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.inits, 1);
    EXPECT_EQ(dialog.number, 42);
    EXPECT_EQ(dialog.check, 0);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModalDialog, CancelReturnsIdcancelAndTakesNothing) {
    ScriptedDialog dialog([](ScriptedDialog& self) {
        self.edit.SetWindowText(L"42");
        Click(self, IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.number, 7);
}

TEST(ModalDialog, EscapeCancels) {
    ScriptedDialog dialog(
        [](ScriptedDialog& self) { ::PostMessageW(self.edit.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0x00010001); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModalDialog, ReturnPressesTheDefaultButton) {
    ScriptedDialog dialog(
        [](ScriptedDialog& self) { ::PostMessageW(self.edit.m_hWnd, WM_KEYDOWN, VK_RETURN, 0x001C0001); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialog, BadInputIsReportedAndKeepsTheDialogOpen) {
    const CountingMessageBox boxes;
    ScriptedDialog dialog([&boxes](ScriptedDialog& self) {
        self.edit.SetWindowText(L"no number");
        Click(self, IDOK);
        EXPECT_EQ(boxes.Count(), 1);
        EXPECT_NE(self.m_hWnd, nullptr);
        Click(self, IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(boxes.Count(), 1);
    EXPECT_EQ(dialog.number, 7);
}

TEST(ModalDialog, ItsParentIsDisabledMeanwhile) {
    TestWindow parent;
    ScriptedDialog dialog(
        [&parent](ScriptedDialog& self) {
            EXPECT_FALSE(parent.IsWindowEnabled());
            self.EndDialog(77);
        },
        &parent);
    EXPECT_EQ(dialog.DoModal(), 77);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModalDialog, ItCanRunAgain) {
    ScriptedDialog dialog([](ScriptedDialog& self) { Click(self, self.inits == 1 ? IDOK : IDCANCEL); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.inits, 2);
}

TEST(ModalDialog, EndingItInOnInitDialogNeverRunsTheLoop) {
    class Immediate : public CDialog {
    public:
        Immediate() : CDialog(IDD_TEST_DIALOG) {}
        BOOL OnInitDialog() override {
            EndDialog(5);
            return TRUE;
        }
    };
    EXPECT_EQ(Immediate().DoModal(), 5);
}

TEST(ModalDialog, AMissingTemplateAnswersMinusOne) {
    TestWindow parent;
    CDialog dialog(static_cast<UINT>(0x7F00), &parent);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModalDialog, ATemplateInMemoryWorksAsWell) {
    struct {
        DLGTEMPLATE head{WS_POPUP | WS_CAPTION, 0, 0, 0, 0, 50, 20};
        WORD menuClassTitle[3] = {};
    } memory;
    class Closing : public CDialog {
    public:
        BOOL OnInitDialog() override {
            PostMessage(WM_COMMAND, IDCANCEL);
            return CDialog::OnInitDialog();
        }
    } dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(&memory.head));
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModelessDialog, LivesUntilItIsDestroyed) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_TEST_DIALOG, nullptr));
    EXPECT_TRUE(::IsWindow(dialog.m_hWnd));
    EXPECT_NE(dialog.GetDlgItem(IDC_TEST_EDIT), nullptr);
    EXPECT_EQ(LOWORD(dialog.GetDefID()), IDOK);
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ColouredDialog, PaintsItsBackgroundColour) {
    CDialogEx dialog;
    ASSERT_TRUE(dialog.Create(IDD_TEST_DIALOG, nullptr));
    dialog.SetBackgroundColor(RGB(10, 200, 30), FALSE);
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, 20, 20);
    const HGDIOBJ former = ::SelectObject(memory, bitmap);
    dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(memory));
    EXPECT_EQ(::GetPixel(memory, 3, 3), RGB(10, 200, 30));
    ::SelectObject(memory, former);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
}

TEST(ModalDialog, ADestroyedOneReturnsAndItsOwnerIsEnabledAgain) {
    TestWindow owner;
    ScriptedDialog dialog([](ScriptedDialog& self) { self.DestroyWindow(); }, &owner);
    dialog.DoModal();
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, AnExceptionThatLeavesItsLoopLeavesTheOwnerEnabled) {
    class Throwing : public ScriptedDialog {
    public:
        using ScriptedDialog::ScriptedDialog;
        BOOL ContinueModal() override {
            if (m_hWnd && ++m_asked > 1) {
                AfxThrowUserException();
            }
            return ScriptedDialog::ContinueModal();
        }

    private:
        int m_asked = 0;
    };
    TestWindow owner;
    Throwing dialog([](ScriptedDialog&) {}, &owner);
    bool hasThrown = false;
    try {
        dialog.DoModal();
    } catch (CUserException* exception) {
        hasThrown = true;
        exception->Delete();
    }
    EXPECT_TRUE(hasThrown);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

} // namespace
