// How a view prints, on a printer that writes down what it is told.
#include "plans.h"

namespace {

using Job = std::vector<std::string>;

class Printing : public DocumentTest {
protected:
    void SetUp() override {
        PlanView::s_job.clear();
        s_failingPage = 0;
        s_page = 0;
        m_before = fx::SetPrinterCalls({[](CDC&, DOCINFO& document) {
                                            PlanView::s_job.push_back("start " + wstring2String(document.lpszDocName));
                                            return 1;
                                        },
                                        [](CDC&) { return ++s_page == s_failingPage ? -1 : 1; }, [](CDC&) { return 1; },
                                        [](CDC&) {
                                            PlanView::s_job.emplace_back("done");
                                            return 1;
                                        },
                                        [](CDC&) {
                                            PlanView::s_job.emplace_back("abort");
                                            return 1;
                                        }});
        m_plan = NewSingle();
        m_plan->SetTitle(L"Garden");
        m_view = ViewOf(*m_plan);
    }
    void TearDown() override {
        fx::SetPrinterCalls(m_before);
        DocumentTest::TearDown();
    }
    const Job& Print(UINT command = ID_FILE_PRINT) {
        m_view->GetParentFrame()->SendMessage(WM_COMMAND, command);
        return PlanView::s_job;
    }

    static inline int s_failingPage = 0, s_page = 0;
    fx::PrinterCalls m_before = {};
    Plan* m_plan = nullptr;
    PlanView* m_view = nullptr;
};

TEST_F(Printing, AJobRunsFromThePreparationToTheEnd) {
    m_view->m_length = 2;
    EXPECT_EQ(Print(), (Job{"prepare", "begin", "start Garden", "page 1", "page 2", "done", "end"}));
    EXPECT_TRUE(m_view->GetParentFrame()->IsWindowEnabled());
}

TEST_F(Printing, ADocumentOfUnknownLengthHasOnePage) {
    EXPECT_EQ(Print(), (Job{"prepare", "begin", "start Garden", "page 1", "done", "end"}));
}

TEST_F(Printing, ARangeOfPagesIsKeptInsideTheDocument) {
    m_view->m_length = 5;
    m_view->m_from = 4;
    m_view->m_to = 9;
    EXPECT_EQ(Print(), (Job{"prepare", "begin", "start Garden", "page 4", "page 5", "done", "end"}));
}

TEST_F(Printing, WhatIsNotToBePrintedBeginsNoJob) {
    m_view->m_isPrintable = FALSE;
    EXPECT_EQ(Print(), Job{"prepare"});
}

TEST_F(Printing, APageThatFailsEndsTheJobAndIsSaid) {
    m_view->m_length = 3;
    s_failingPage = 2;
    CountingMessageBox box;
    EXPECT_EQ(Print(), (Job{"prepare", "begin", "start Garden", "page 1", "abort", "end"}));
    EXPECT_EQ(box.Count(), 1);
}

TEST_F(Printing, TheDirectCommandIsKnownAsSuch) {
    Print();
    EXPECT_FALSE(m_view->m_isDirect);
    Print(ID_FILE_PRINT_DIRECT);
    EXPECT_TRUE(m_view->m_isDirect);
}

} // namespace
