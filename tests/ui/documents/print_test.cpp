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

HGLOBAL NamesOf(const std::wstring& driver, const std::wstring& device) {
    const std::size_t letters = sizeof(DEVNAMES) / sizeof(wchar_t) + driver.size() + device.size() + 3;
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, letters * sizeof(wchar_t));
    auto* const names = static_cast<DEVNAMES*>(::GlobalLock(block));
    auto* const text = reinterpret_cast<wchar_t*>(names);
    names->wDriverOffset = sizeof(DEVNAMES) / sizeof(wchar_t);
    names->wDeviceOffset = static_cast<WORD>(names->wDriverOffset + driver.size() + 1);
    names->wOutputOffset = static_cast<WORD>(names->wDeviceOffset + device.size() + 1);
    driver.copy(text + names->wDriverOffset, driver.size());
    device.copy(text + names->wDeviceOffset, device.size());
    ::GlobalUnlock(block);
    return block;
}

/// The screen, in the place of a printer.
class ChosenPrinter : public Printing {
protected:
    void SetUp() override {
        Printing::SetUp();
        g_application.SelectPrinter(NamesOf(L"DISPLAY", L"DISPLAY"), nullptr);
    }
    void TearDown() override {
        g_application.SelectPrinter(nullptr, nullptr);
        Printing::TearDown();
    }
};

TEST_F(ChosenPrinter, IsToldAndMakesContexts) {
    PRINTDLGW told{};
    EXPECT_TRUE(g_application.GetPrinterDeviceDefaults(&told));
    EXPECT_NE(told.hDevNames, nullptr);
    EXPECT_EQ(told.hDevMode, nullptr);
    CDC dc;
    EXPECT_TRUE(g_application.CreatePrinterDC(dc));
    EXPECT_EQ(dc.GetDeviceCaps(HORZRES), ::GetSystemMetrics(SM_CXSCREEN));
}

TEST_F(ChosenPrinter, IsTheOneOfPreviewsAndOfJobsWithoutADialog) {
    for (BOOL CPrintInfo::*const kind : {&CPrintInfo::m_bPreview, &CPrintInfo::m_bDirect}) {
        CPrintInfo info;
        info.*kind = TRUE;
        ASSERT_TRUE(m_view->DoPreparePrinting(&info));
        EXPECT_STREQ(info.m_pPD->GetDeviceName(), L"DISPLAY");
        EXPECT_EQ(::GetDeviceCaps(info.m_pPD->m_pd.hDC, HORZRES), ::GetSystemMetrics(SM_CXSCREEN));
        PRINTDLGW told{};
        g_application.GetPrinterDeviceDefaults(&told);
        EXPECT_NE(info.m_pPD->m_pd.hDevNames, told.hDevNames) << "the job frees its own copy";
    }
}

TEST_F(ChosenPrinter, AnotherOneFreesTheFormerUnlessItIsKept) {
    PRINTDLGW told{};
    g_application.GetPrinterDeviceDefaults(&told);
    const HGLOBAL former = told.hDevNames;
    g_application.SelectPrinter(NamesOf(L"DISPLAY", L"DISPLAY"), nullptr, FALSE);
    EXPECT_GT(::GlobalSize(former), 0u);
    ::GlobalFree(former);
    EXPECT_TRUE(g_application.IsPrinterSelected());
    g_application.SelectPrinter(nullptr, nullptr);
    EXPECT_FALSE(g_application.IsPrinterSelected());
}

} // namespace
