#include "frame_fixture.h"

#include "afxdd_.h"
#include "afxkeyboardmanager.h"
#include "tests/support/ui_test.h"

#include <functional>
#include <limits>

namespace {

constexpr int g_listId = 30;
constexpr int g_comboId = 31;

/// A window with a list box and a combo box, and exchanges with them one by one.
class DataExchange : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_list.Create(WS_CHILD | LBS_NOTIFY, CRect(0, 0, 80, 80), &m_window, g_listId));
        ASSERT_TRUE(m_combo.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 80, 80), &m_window, g_comboId));
        for (const wchar_t* const text : {L"north east", L"north", L"south"}) {
            m_list.AddString(text);
            m_combo.AddString(text);
        }
    }
    /// The exchange's message, empty when it went through.
    std::wstring Complaint(const std::function<void(CDataExchange*)>& check, BOOL bSave = TRUE) {
        CountingMessageBox boxes;
        CDataExchange exchange(&m_window, bSave);
        bool hasFailed = false;
        try {
            check(&exchange);
        } catch (CUserException* exception) {
            exception->Delete();
            hasFailed = true;
        }
        EXPECT_EQ(boxes.Count(), hasFailed ? 1 : 0);
        return hasFailed ? boxes.Last().text : L"";
    }

    TestWindow m_window;
    CListBox m_list;
    CComboBox m_combo;
};

TEST_F(DataExchange, ValuesInsideOfTheirRangeGoThrough) {
    EXPECT_EQ(Complaint([](CDataExchange* exchange) {
                  DDV_MinMaxByte(exchange, 4, 1, 4);
                  DDV_MinMaxShort(exchange, -4, -4, 4);
                  DDV_MinMaxInt(exchange, -4, -4, 4);
                  DDV_MinMaxLong(exchange, 4, -4, 4);
                  DDV_MinMaxUInt(exchange, 4, 1, 4);
                  DDV_MinMaxDWord(exchange, 0xFFFFFFFF, 1, 0xFFFFFFFF);
                  DDV_MinMaxUnsigned(exchange, 1, 1, 4);
                  DDV_MinMaxLongLong(exchange, -5'000'000'000, -5'000'000'000, 0);
                  DDV_MinMaxULongLong(exchange, std::numeric_limits<ULONGLONG>::max(), 0,
                                      std::numeric_limits<ULONGLONG>::max());
                  DDV_MinMaxFloat(exchange, 1.5F, 1.0F, 1.5F);
                  DDV_MinMaxDouble(exchange, 1.5, 1.0, 1.5);
                  DDV_MinMaxSlider(exchange, 7, 1, 9);
              }),
              L"");
}

TEST_F(DataExchange, ValuesOutsideAreNamedWithTheirRange) {
    EXPECT_EQ(Complaint([](CDataExchange* exchange) { DDV_MinMaxByte(exchange, 5, 1, 4); }),
              L"Please enter an integer between 1 and 4.");
    EXPECT_EQ(Complaint([](CDataExchange* exchange) { DDV_MinMaxShort(exchange, -5, -4, 4); }),
              L"Please enter an integer between -4 and 4.");
    EXPECT_EQ(Complaint([](CDataExchange* exchange) { DDV_MinMaxLongLong(exchange, 1, -5'000'000'000, 0); }),
              L"Please enter an integer between -5000000000 and 0.");
    EXPECT_EQ(Complaint([](CDataExchange* exchange) {
                  DDV_MinMaxULongLong(exchange, 0, 1, std::numeric_limits<ULONGLONG>::max());
              }),
              L"Please enter an integer between 1 and 18446744073709551615.");
    EXPECT_EQ(Complaint([](CDataExchange* exchange) { DDV_MinMaxFloat(exchange, 2.0F, 0.5F, 1.5F); }),
              L"Please enter a number between 0.5 and 1.5.");
    EXPECT_EQ(Complaint([](CDataExchange* exchange) { DDV_MinMaxSlider(exchange, 10, 1, 9); }),
              L"Please enter an integer between 1 and 9.");
}

TEST_F(DataExchange, NothingIsCheckedOnTheWayIn) {
    EXPECT_EQ(Complaint([](CDataExchange* exchange) { DDV_MinMaxDWord(exchange, 5, 1, 4); }, FALSE), L"");
}

TEST_F(DataExchange, ExactTextsAreFoundAndBeginningsAreNot) {
    CString text(L"NORTH");
    EXPECT_EQ(Complaint([&](CDataExchange* exchange) { DDX_LBStringExact(exchange, g_listId, text); }, FALSE), L"");
    EXPECT_EQ(m_list.GetCurSel(), m_list.FindStringExact(-1, L"north"));
    Complaint([&](CDataExchange* exchange) { DDX_CBStringExact(exchange, g_comboId, text); }, FALSE);
    EXPECT_EQ(m_combo.GetCurSel(), m_combo.FindStringExact(-1, L"north"));

    CString read;
    Complaint([&](CDataExchange* exchange) { DDX_LBStringExact(exchange, g_listId, read); });
    EXPECT_STREQ(read, L"north");

    text = L"nor";
    Complaint([&](CDataExchange* exchange) { DDX_LBStringExact(exchange, g_listId, text); }, FALSE);
    EXPECT_EQ(m_list.GetCurSel(), LB_ERR);
    Complaint([&](CDataExchange* exchange) { DDX_CBStringExact(exchange, g_comboId, text); }, FALSE);
    EXPECT_EQ(m_combo.GetCurSel(), CB_ERR);
    Complaint([&](CDataExchange* exchange) { DDX_CBStringExact(exchange, g_comboId, read); });
    EXPECT_STREQ(read, L"nor") << "what is no item stands in the edit field";
}

TEST(KeyboardManagerPointer, IsTheManagerAsLongAsThereIsOne) {
    ASSERT_EQ(afxKeyboardManager, nullptr);
    {
        const CKeyboardManager manager;
        EXPECT_EQ(afxKeyboardManager, &manager);
    }
    EXPECT_EQ(afxKeyboardManager, nullptr);
}

/// Takes everything over as soon as one of its edit boxes changes, as a dialog does that shows a sum below them.
class TakingWindow : public TestWindow {
public:
    TakingWindow() {
        for (int i = 0; i < 2; ++i) {
            m_edits[i].Create(WS_CHILD, CRect(0, 0, 40, 20), this, kFirst + static_cast<UINT>(i));
        }
    }
    static constexpr UINT kFirst = 40;
    CString m_texts[2];
    int m_changes = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        for (int i = 0; i < 2; ++i) {
            DDX_Text(exchange, static_cast<int>(kFirst) + i, m_texts[i]);
        }
    }
    afx_msg void OnChange(UINT) {
        ++m_changes;
        UpdateData(TRUE);
    }
    DECLARE_MESSAGE_MAP()

private:
    CEdit m_edits[2];
};

BEGIN_MESSAGE_MAP(TakingWindow, TestWindow)
ON_CONTROL_RANGE(EN_CHANGE, TakingWindow::kFirst, TakingWindow::kFirst + 1, &TakingWindow::OnChange)
END_MESSAGE_MAP()

TEST(UpdateData, WhatAFilledControlNotifiesDoesNotReachTheHandlers) {
    TakingWindow window;
    window.m_texts[0] = L"one";
    window.m_texts[1] = L"two";
    EXPECT_TRUE(window.UpdateData(FALSE));
    EXPECT_EQ(window.m_changes, 0);
    EXPECT_STREQ(window.m_texts[1], L"two") << "read before it was shown";
    window.SetDlgItemText(TakingWindow::kFirst + 1, L"three");
    EXPECT_EQ(window.m_changes, 1) << "later changes do";
    EXPECT_STREQ(window.m_texts[1], L"three");
}

} // namespace
