// Property sheets: pages from resources and from memory, modal and modeless, and wizards.
#include "frame_fixture.h"

#include "afxdlgs.h"

#include <functional>

namespace {

/// A template as resource compilers write it: no controls, a caption.
struct PageInMemory {
    DLGTEMPLATE head{WS_CHILD | WS_CAPTION | WS_DISABLED, 0, 0, 0, 0, 150, 80};
    WORD menu = 0;
    WORD windowClass = 0;
    wchar_t caption[7] = L"Memory";
};

/// Notes what it is told, and answers what the test wants.
class NotingPage : public CPropertyPage {
public:
    NotingPage() : CPropertyPage(IDD_TEST_PAGE) {}
    explicit NotingPage(PageInMemory& memory) {
        m_psp.dwFlags |= PSP_DLGINDIRECT;
        m_psp.pResource = &memory.head;
    }

    BOOL OnInitDialog() override {
        CPropertyPage::OnInitDialog();
        return Note("init");
    }
    BOOL OnSetActive() override { return Note("active") && canActivate; }
    BOOL OnKillActive() override { return Note("kill") && canLeave && CPropertyPage::OnKillActive(); }
    BOOL OnApply() override { return Note("apply") && canApply && CPropertyPage::OnApply(); }
    void OnReset() override {
        Note("reset");
        CPropertyPage::OnReset();
    }
    BOOL OnQueryCancel() override { return Note("query") && canCancel; }
    LRESULT OnWizardNext() override { return Note("next") ? nextPage : 0; }
    BOOL OnWizardFinish() override { return Note("finish") && canFinish; }
    void DoDataExchange(CDataExchange* exchange) override {
        CPropertyPage::DoDataExchange(exchange);
        if (::GetDlgItem(m_hWnd, IDC_TEST_EDIT) != nullptr) {
            DDX_Text(exchange, IDC_TEST_EDIT, text);
        }
    }
    afx_msg LRESULT OnQuerySiblings(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) == 7 ? 42 : 0; }

    std::string notes;
    CString text{L"first"};
    BOOL canActivate = TRUE;
    BOOL canLeave = TRUE;
    BOOL canApply = TRUE;
    BOOL canCancel = TRUE;
    BOOL canFinish = TRUE;
    LRESULT nextPage = 0;
    DECLARE_MESSAGE_MAP()

private:
    BOOL Note(const char* what) {
        notes += (notes.empty() ? "" : " ") + std::string(what);
        return TRUE;
    }
};

BEGIN_MESSAGE_MAP(NotingPage, CPropertyPage)
ON_MESSAGE(PSM_QUERYSIBLINGS, &NotingPage::OnQuerySiblings)
END_MESSAGE_MAP()

/// Runs a script as soon as it is shown.
class ScriptedSheet : public CPropertySheet {
public:
    explicit ScriptedSheet(CWnd* parent = nullptr) : CPropertySheet(L"Sheet", parent) {}

    BOOL OnInitDialog() override {
        ++inits;
        if (script) {
            PostMessage(WM_APP);
        }
        return CPropertySheet::OnInitDialog();
    }
    LRESULT OnScript(WPARAM, LPARAM) {
        script(*this);
        return 0;
    }

    std::function<void(ScriptedSheet&)> script;
    int inits = 0;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ScriptedSheet, CPropertySheet)
ON_MESSAGE(WM_APP, &ScriptedSheet::OnScript)
END_MESSAGE_MAP()

void Click(const CWnd& sheet, int id) {
    const HWND button = ::GetDlgItem(sheet.m_hWnd, id);
    ::SendMessageW(sheet.m_hWnd, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

bool IsShown(const CWnd& sheet, int id) {
    const HWND button = ::GetDlgItem(sheet.m_hWnd, id);
    return button != nullptr && (::GetWindowLongW(button, GWL_STYLE) & WS_VISIBLE) != 0;
}

class PropertySheetTest : public ::testing::Test {
protected:
    PropertySheetTest() : memoryPage(memory), sheet(&owner) {
        sheet.AddPage(&resourcePage);
        sheet.AddPage(&memoryPage);
    }
    INT_PTR RunModal(std::function<void(ScriptedSheet&)> script) {
        sheet.script = std::move(script);
        return sheet.DoModal();
    }

    TestWindow owner;
    PageInMemory memory;
    NotingPage resourcePage;
    NotingPage memoryPage;
    ScriptedSheet sheet;
};

TEST_F(PropertySheetTest, PagesComeFromAResourceAndFromMemoryAndHaveTheirTemplatesCaptionsOnTheirTabs) {
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_EQ(sheet.inits, 1);
    EXPECT_TRUE(sheet.IsWindowVisible());
    ASSERT_NE(sheet.GetTabControl(), nullptr);
    ASSERT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
    wchar_t text[32] = {};
    TCITEM item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 32;
    sheet.GetTabControl()->GetItem(1, &item);
    EXPECT_STREQ(text, L"Memory");
    sheet.GetTabControl()->GetItem(0, &item);
    EXPECT_STREQ(text, L"Page");
    EXPECT_TRUE(sheet.SetActivePage(&memoryPage));
    EXPECT_EQ(memoryPage.notes, "init active");
}

TEST_F(PropertySheetTest, APageIsMadeWhenItIsFirstShownAndLeftWhenAnotherComes) {
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_EQ(resourcePage.notes, "init active");
    EXPECT_EQ(memoryPage.m_hWnd, nullptr);
    EXPECT_EQ(sheet.GetActiveIndex(), 0);
    EXPECT_TRUE(sheet.SetActivePage(1));
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    EXPECT_EQ(sheet.GetActivePage(), &memoryPage);
    EXPECT_EQ(resourcePage.notes, "init active kill");
    EXPECT_FALSE(sheet.SetActivePage(2)) << "there is no such page";
}

TEST_F(PropertySheetTest, ThePageToBeginWithIsChosenBefore) {
    EXPECT_TRUE(sheet.SetActivePage(1));
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_EQ(sheet.GetActivePage(), &memoryPage);
    EXPECT_EQ(resourcePage.m_hWnd, nullptr);
}

TEST_F(PropertySheetTest, APageThatCannotBeLeftStays) {
    ASSERT_TRUE(sheet.Create(&owner));
    resourcePage.canLeave = FALSE;
    EXPECT_FALSE(sheet.SetActivePage(1));
    EXPECT_EQ(sheet.GetActiveIndex(), 0);
}

TEST_F(PropertySheetTest, AModelessOneHasNoButtonsAndEndsWithItsWindow) {
    ASSERT_TRUE(sheet.Create(&owner));
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP}) {
        EXPECT_FALSE(IsShown(sheet, id)) << id;
    }
    CRect tabs;
    CRect client;
    sheet.GetTabControl()->GetWindowRect(&tabs);
    sheet.ScreenToClient(&tabs);
    sheet.GetClientRect(&client);
    EXPECT_EQ(client.bottom - tabs.bottom, tabs.left) << "no room is left for them";
    sheet.EndDialog(IDOK);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_EQ(resourcePage.m_hWnd, nullptr);
}

TEST_F(PropertySheetTest, AWindowThatWasDestroyedCanBeMadeAgain) {
    ASSERT_TRUE(sheet.Create(&owner));
    sheet.DestroyWindow();
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_EQ(resourcePage.notes, "init active init active");
}

TEST_F(PropertySheetTest, ItGoesWithItsOwner) {
    auto parent = std::make_unique<TestWindow>();
    ASSERT_TRUE(sheet.Create(parent.get()));
    parent.reset();
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_EQ(resourcePage.m_hWnd, nullptr);
}

TEST_F(PropertySheetTest, OkAppliesReadsTheControlsAndReturnsIdok) {
    const INT_PTR answer = RunModal([&](ScriptedSheet& self) {
        EXPECT_FALSE(owner.IsWindowEnabled());
        resourcePage.SetDlgItemText(IDC_TEST_EDIT, L"second");
        Click(self, IDOK);
    });
    EXPECT_EQ(answer, IDOK);
    EXPECT_STREQ(resourcePage.text, L"second");
    EXPECT_EQ(resourcePage.notes, "init active kill apply");
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(PropertySheetTest, CancelAsksAndResetsAndReturnsIdcancel) {
    const INT_PTR answer = RunModal([&](ScriptedSheet& self) {
        resourcePage.canCancel = FALSE;
        Click(self, IDCANCEL);
        EXPECT_EQ(resourcePage.notes, "init active query") << "the page wants it to stay";
        resourcePage.canCancel = TRUE;
        Click(self, IDCANCEL);
    });
    EXPECT_EQ(answer, IDCANCEL);
    EXPECT_EQ(resourcePage.notes, "init active query query reset");
    EXPECT_STREQ(resourcePage.text, L"first");
}

TEST_F(PropertySheetTest, APageThatCannotApplyKeepsItOpen) {
    const INT_PTR answer = RunModal([&](ScriptedSheet& self) {
        resourcePage.canApply = FALSE;
        Click(self, IDOK);
        EXPECT_NE(self.m_hWnd, nullptr);
        self.EndDialog(77);
    });
    EXPECT_EQ(answer, 77);
}

TEST_F(PropertySheetTest, ApplyCanBePressedWhileAPageIsChanged) {
    RunModal([&](ScriptedSheet& self) {
        const HWND apply = ::GetDlgItem(self.m_hWnd, ID_APPLY_NOW);
        EXPECT_FALSE(::IsWindowEnabled(apply));
        resourcePage.SetModified();
        EXPECT_TRUE(::IsWindowEnabled(apply));
        self.PressButton(PSBTN_APPLYNOW);
        EXPECT_EQ(resourcePage.notes, "init active kill apply active");
        EXPECT_FALSE(::IsWindowEnabled(apply)) << "applied";
        self.PressButton(PSBTN_CANCEL);
    });
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(PropertySheetTest, AButtonThatIsPressedByTheProgramAnswersAsIfItWereClicked) {
    EXPECT_EQ(RunModal([](ScriptedSheet& self) { self.PressButton(PSBTN_OK); }), IDOK);
    EXPECT_EQ(RunModal([](ScriptedSheet& self) { self.PressButton(PSBTN_CANCEL); }), IDCANCEL);
}

TEST_F(PropertySheetTest, WhatCannotBeUndoneTakesCancelAway) {
    RunModal([&](ScriptedSheet& self) {
        resourcePage.CancelToClose();
        EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(self.m_hWnd, IDCANCEL)));
        Click(self, IDOK);
    });
}

TEST_F(PropertySheetTest, TheSystemMenusCloseCancels) {
    EXPECT_EQ(RunModal([](ScriptedSheet& self) { self.SendMessage(WM_SYSCOMMAND, SC_CLOSE); }), IDCANCEL);
}

TEST_F(PropertySheetTest, OneThatIsDestroyedWhileItRunsCancels) {
    EXPECT_EQ(RunModal([](ScriptedSheet& self) { self.DestroyWindow(); }), IDCANCEL);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(PropertySheetTest, WithoutPagesThereIsNone) {
    CPropertySheet empty(L"Empty", &owner);
    EXPECT_FALSE(empty.Create(&owner));
    EXPECT_EQ(empty.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(PropertySheetTest, AMissingTemplateIsToldAndLeavesNothing) {
    CPropertyPage missing(9999u);
    sheet.AddPage(&missing);
    EXPECT_FALSE(sheet.Create(&owner));
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    sheet.RemovePage(&missing);
    EXPECT_TRUE(sheet.Create(&owner));
}

TEST_F(PropertySheetTest, PagesComeAndGoWhileItIsShown) {
    NotingPage third;
    ASSERT_TRUE(sheet.Create(&owner));
    sheet.AddPage(&third);
    EXPECT_EQ(sheet.GetPageCount(), 3);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 3);
    EXPECT_TRUE(sheet.SetActivePage(&third));
    sheet.RemovePage(0);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
    EXPECT_EQ(sheet.GetPage(0), &memoryPage);
    EXPECT_EQ(sheet.GetPageIndex(&third), 1);
    EXPECT_EQ(sheet.GetPageIndex(&resourcePage), -1);
    EXPECT_EQ(sheet.GetActivePage(), &third);
    EXPECT_EQ(sheet.GetPage(2), nullptr);
    sheet.DestroyWindow();
}

TEST_F(PropertySheetTest, TheTitleCanChange) {
    ASSERT_TRUE(sheet.Create(&owner));
    CString title;
    sheet.GetWindowText(title);
    EXPECT_STREQ(title, L"Sheet");
    sheet.SetTitle(L"Other");
    sheet.GetWindowText(title);
    EXPECT_STREQ(title, L"Other");
}

TEST_F(PropertySheetTest, APageAsksTheOthers) {
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_EQ(resourcePage.QuerySiblings(7, 0), 42);
    EXPECT_EQ(resourcePage.QuerySiblings(8, 0), 0);
    sheet.DestroyWindow();
    EXPECT_EQ(resourcePage.QuerySiblings(7, 0), 0) << "without a sheet nobody answers";
}

TEST_F(PropertySheetTest, AWizardGoesOnAndEndsWithFinish) {
    sheet.SetWizardMode();
    EXPECT_TRUE(sheet.IsWizard());
    const INT_PTR answer = RunModal([&](ScriptedSheet& self) {
        resourcePage.nextPage = -1;
        self.PressButton(PSBTN_NEXT);
        EXPECT_EQ(self.GetActiveIndex(), 0) << "the page wants to stay";
        resourcePage.nextPage = 0;
        self.PressButton(PSBTN_NEXT);
        EXPECT_EQ(self.GetActiveIndex(), 1);
        memoryPage.canFinish = FALSE;
        self.PressButton(PSBTN_FINISH);
        EXPECT_NE(self.m_hWnd, nullptr);
        memoryPage.canFinish = TRUE;
        self.PressButton(PSBTN_FINISH);
    });
    EXPECT_EQ(answer, ID_WIZFINISH);
    EXPECT_NE(memoryPage.notes.find("finish finish"), std::string::npos);
}

TEST_F(PropertySheetTest, TheAcceleratorsOfItsFrameWorkInAModelessOne) {
    class CountingFrame : public Owned<CFrameWnd> {
    public:
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
            others += id == ID_TEST_OTHER && code == CN_COMMAND ? 1 : 0;
            return CFrameWnd::OnCmdMsg(id, code, extra, info);
        }
        int others = 0;
    } frame;
    ASSERT_TRUE(frame.Load());
    ASSERT_TRUE(sheet.Create(&frame));
    MSG key{resourcePage.GetDlgItem(IDC_TEST_EDIT)->m_hWnd, WM_KEYDOWN, VK_F5, 1, 0, {}};
    EXPECT_TRUE(AfxPreTranslateMessage(&key));
    EXPECT_EQ(frame.others, 1);
    sheet.DestroyWindow();
}

} // namespace
