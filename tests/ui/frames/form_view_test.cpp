// Views that are made from dialog resources.
#include "frame_fixture.h"

namespace {

class NameForm : public CFormView {
    DECLARE_DYNCREATE(NameForm)
public:
    using CFormView::OnInitialUpdate;
    NameForm() : CFormView(s_template) { ++s_count; }
    ~NameForm() override { --s_count; }
    BOOL OnTestCommand(UINT) { return g_route.Ask("form"); }

    static inline UINT s_template = IDD_TEST_FORM;
    static inline int s_count = 0;
    CString m_name = L"Ada";
    int m_changes = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CFormView::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_TEST_EDIT, m_name);
    }
    afx_msg void OnNameChange() { ++m_changes; }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(NameForm, CFormView)
BEGIN_MESSAGE_MAP(NameForm, CFormView)
ON_EN_CHANGE(IDC_TEST_EDIT, &NameForm::OnNameChange)
ON_COMMAND_EX(ID_TEST_COMMAND, &NameForm::OnTestCommand)
END_MESSAGE_MAP()

class FormView : public testing::Test {
protected:
    BOOL Make() {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(NameForm);
        return m_frame.Create(nullptr, L"forms", WS_OVERLAPPEDWINDOW, CRect(10, 10, 410, 310), nullptr, nullptr, 0,
                              &context);
    }
    void TearDown() override { NameForm::s_template = IDD_TEST_FORM; }
    NameForm& Form() { return *DYNAMIC_DOWNCAST(NameForm, m_frame.GetDlgItem(AFX_IDW_PANE_FIRST)); }

    Owned<CFrameWnd> m_frame;
};

TEST_F(FormView, HasTheControlsOfItsResourceAndFillsTheFrame) {
    ASSERT_TRUE(Make());
    m_frame.InitialUpdateFrame(nullptr, TRUE);
    EXPECT_NE(Form().GetDlgItem(IDC_TEST_EDIT), nullptr);
    EXPECT_TRUE(Form().IsWindowVisible());
    CRect inside, place;
    m_frame.GetClientRect(&inside);
    Form().GetWindowRect(&place);
    EXPECT_EQ(place.Size(), inside.Size());
    EXPECT_EQ(m_frame.GetActiveView(), &Form());
}

TEST_F(FormView, ItsControlsAreFilledWithTheFirstUpdate) {
    ASSERT_TRUE(Make());
    EXPECT_FALSE(Form().IsInitDlgCompleted());
    m_frame.InitialUpdateFrame(nullptr, TRUE);
    EXPECT_TRUE(Form().IsInitDlgCompleted());
    CString text;
    Form().GetDlgItemText(IDC_TEST_EDIT, text);
    EXPECT_EQ(text, L"Ada");
    Form().SetDlgItemText(IDC_TEST_EDIT, L"Grace");
    ASSERT_TRUE(Form().UpdateData());
    EXPECT_EQ(Form().m_name, L"Grace");
    EXPECT_GT(Form().m_changes, 0) << "its controls tell it";
}

TEST_F(FormView, ItScrollsWhenTheFrameIsSmallerThanTheForm) {
    ASSERT_TRUE(Make());
    m_frame.InitialUpdateFrame(nullptr, TRUE);
    BOOL hasHorizontal = TRUE, hasVertical = TRUE;
    Form().CheckScrollBars(hasHorizontal, hasVertical);
    EXPECT_FALSE(hasHorizontal || hasVertical);
    m_frame.SetWindowPos(nullptr, 0, 0, 160, 90, SWP_NOMOVE | SWP_NOZORDER);
    Form().CheckScrollBars(hasHorizontal, hasVertical);
    EXPECT_TRUE(hasHorizontal && hasVertical);
    CRect before, after;
    Form().GetDlgItem(IDC_TEST_EDIT)->GetWindowRect(&before);
    Form().ScrollToPosition(CPoint(0, 7));
    Form().GetDlgItem(IDC_TEST_EDIT)->GetWindowRect(&after);
    EXPECT_EQ(after.top, before.top - 7);
}

TEST_F(FormView, ItIsAskedForCommandsBeforeTheFrame) {
    ASSERT_TRUE(Make());
    m_frame.InitialUpdateFrame(nullptr, TRUE);
    g_route = {};
    g_route.handlers = {"form"};
    m_frame.SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    EXPECT_EQ(g_route.asked, std::vector<std::string>{"form"});
}

TEST_F(FormView, TheTabulatorGoesToItsNextControl) {
    ASSERT_TRUE(Make());
    m_frame.InitialUpdateFrame(nullptr, TRUE);
    Form().GetDlgItem(IDC_TEST_EDIT)->SetFocus();
    MSG key{};
    key.hwnd = ::GetFocus();
    key.message = WM_KEYDOWN;
    key.wParam = VK_TAB;
    EXPECT_TRUE(Form().PreTranslateMessage(&key));
    EXPECT_EQ(::GetFocus(), Form().GetDlgItem(IDC_TEST_CHECK)->m_hWnd);
}

TEST_F(FormView, WithoutItsResourceThereIsNoViewAndNothingIsLeft) {
    NameForm::s_template = 999;
    EXPECT_FALSE(Make());
    EXPECT_EQ(NameForm::s_count, 0);
}

TEST_F(FormView, APopUpCannotBeAView) {
    NameForm::s_template = IDD_TEST_DIALOG;
    EXPECT_FALSE(Make());
    EXPECT_EQ(NameForm::s_count, 0);
}

} // namespace
