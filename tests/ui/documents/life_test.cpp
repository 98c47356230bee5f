// Documents, their views and frames: how they come, how commands find them, how they go.
#include "plans.h"

namespace {

TEST_F(DocumentTest, ANewDocumentIsEmptyUnchangedAndHasTheKindsName) {
    Plan* const plan = NewSingle();
    ASSERT_NE(plan, nullptr);
    EXPECT_EQ(plan->GetTitle(), L"Plan");
    EXPECT_TRUE(plan->GetPathName().IsEmpty());
    EXPECT_FALSE(plan->IsModified());
    EXPECT_EQ(plan->GetDocTemplate(), &Single());
    EXPECT_EQ(plan->m_emptied, 1);
    EXPECT_EQ(plan->m_events, std::vector{CDocument::onAfterNewDocument});
}

TEST_F(DocumentTest, TheFirstFrameBecomesTheMainWindowAndShowsDocumentAndProgram) {
    const Plan* const plan = NewSingle();
    ASSERT_NE(plan, nullptr);
    const CWnd* const frame = ViewOf(*plan)->GetParentFrame();
    EXPECT_EQ(g_application.m_pMainWnd, frame);
    EXPECT_TRUE(frame->IsWindowVisible());
    EXPECT_EQ(TitleOf(frame), L"Plan - Planner");
    EXPECT_EQ(static_cast<const PlanFrame*>(frame)->GetActiveView(), ViewOf(*plan));
}

TEST_F(DocumentTest, TheOnlyDocumentIsUsedAgain) {
    Plan* const plan = NewSingle();
    plan->Write(L"old");
    plan->SetModifiedFlag(FALSE);
    EXPECT_EQ(NewSingle(), plan);
    EXPECT_TRUE(plan->m_text.IsEmpty());
    EXPECT_EQ(Plan::s_count, 1);
    EXPECT_EQ(PlanFrame::s_count, 1);
}

TEST_F(DocumentTest, AChangedDocumentIsNotReplacedAgainstTheUsersWill) {
    Plan* const plan = NewSingle();
    plan->Write(L"mine");
    CountingMessageBox box(IDCANCEL);
    EXPECT_EQ(Single().OpenDocumentFile(nullptr), nullptr);
    EXPECT_EQ(box.Count(), 1);
    EXPECT_EQ(box.Last().text, L"Save changes to Plan?");
    EXPECT_EQ(plan->m_text, L"mine");
    EXPECT_TRUE(plan->IsModified());
    plan->SetModifiedFlag(FALSE);
}

TEST_F(DocumentTest, EachDocumentOfAMultiTemplateHasAFrameAndATitleOfItsOwn) {
    const Plan* const first = NewMulti();
    const Plan* const second = NewMulti();
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    EXPECT_EQ(first->GetTitle(), L"Untitled"); // the kind has no name for documents
    EXPECT_EQ(PlanChild::s_count, 2);
    EXPECT_EQ(m_main->MDIGetActive(), ViewOf(*second)->GetParentFrame());
    EXPECT_EQ(TitleOf(m_main), L"Untitled - Planner");
    EXPECT_EQ(TitleOf(m_main->MDIGetActive()), L"Untitled");
}

TEST_F(DocumentTest, TheTitleFollowsTheDocument) {
    Plan* const plan = NewMulti();
    plan->SetTitle(L"Garden");
    EXPECT_EQ(TitleOf(m_main), L"Garden - Planner");
    EXPECT_EQ(TitleOf(m_main->MDIGetActive()), L"Garden");
}

TEST_F(DocumentTest, FramesOfOneDocumentAreCountedInTheirTitles) {
    Plan* const plan = NewMulti();
    plan->SetTitle(L"Garden");
    CFrameWnd* const first = ViewOf(*plan)->GetParentFrame();
    CFrameWnd* const second = Multi().CreateNewFrame(plan, first);
    ASSERT_NE(second, nullptr);
    Multi().InitialUpdateFrame(second, plan);
    EXPECT_EQ(TitleOf(first), L"Garden:1");
    EXPECT_EQ(TitleOf(second), L"Garden:2");
    second->DestroyWindow();
    first->OnUpdateFrameTitle(TRUE);
    EXPECT_EQ(TitleOf(first), L"Garden");
    EXPECT_EQ(Plan::s_count, 1);
}

TEST_F(DocumentTest, ACommandGoesToViewDocumentFrameAndApplication) {
    const Plan* const plan = NewSingle();
    Plan::s_asked.clear();
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_COMMAND, kCommand);
    EXPECT_EQ(Plan::s_asked, (std::vector<std::string>{"view", "document", "frame", "application"}));
}

TEST_F(DocumentTest, AllViewsButTheSenderAreUpdated) {
    Plan* const plan = NewMulti();
    PlanView* const first = ViewOf(*plan);
    CFrameWnd* const frame = Multi().CreateNewFrame(plan, nullptr);
    Multi().InitialUpdateFrame(frame, plan);
    auto* const second = static_cast<PlanView*>(frame->GetActiveView());
    const int before = first->m_updates, others = second->m_updates;
    plan->UpdateAllViews(first, 42);
    EXPECT_EQ(first->m_updates, before);
    EXPECT_EQ(second->m_updates, others + 1);
    EXPECT_EQ(second->m_sender, first);
    EXPECT_EQ(second->m_hint, 42);
}

TEST_F(DocumentTest, TheLastFrameEndsTheDocument) {
    const Plan* const plan = NewMulti();
    CFrameWnd* const first = ViewOf(*plan)->GetParentFrame();
    CFrameWnd* const second = Multi().CreateNewFrame(const_cast<Plan*>(plan), first);
    second->SendMessage(WM_CLOSE);
    EXPECT_EQ(Plan::s_count, 1);
    EXPECT_EQ(PlanChild::s_count, 1);
    first->SendMessage(WM_CLOSE);
    EXPECT_EQ(Plan::s_count, 0);
    EXPECT_EQ(PlanChild::s_count, 0);
    EXPECT_EQ(Multi().GetFirstDocPosition(), nullptr);
}

TEST_F(DocumentTest, AFrameOfAChangedDocumentStaysOpenWhenTheUserSaysSo) {
    Plan* const plan = NewMulti();
    plan->Write(L"mine");
    CWnd* const frame = ViewOf(*plan)->GetParentFrame();
    {
        CountingMessageBox box(IDCANCEL);
        frame->SendMessage(WM_CLOSE);
        EXPECT_EQ(box.Count(), 1);
        EXPECT_EQ(Plan::s_count, 1);
    }
    CountingMessageBox box(IDNO);
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(box.Count(), 1);
    EXPECT_EQ(Plan::s_count, 0);
}

TEST_F(DocumentTest, TheMainFrameAsksForEachChangedDocumentAndClosesAll) {
    NewMulti()->Write(L"one");
    NewMulti()->Write(L"two");
    CountingMessageBox box(IDNO);
    m_main->SendMessage(WM_CLOSE);
    m_main = nullptr;
    EXPECT_EQ(box.Count(), 2);
    EXPECT_EQ(Plan::s_count, 0);
    EXPECT_EQ(PlanChild::s_count, 0);
}

TEST_F(DocumentTest, TheOnlyFrameClosesWithItsDocumentAndAsksOnce) {
    Plan* const plan = NewSingle();
    plan->Write(L"mine");
    CountingMessageBox box(IDNO);
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_CLOSE);
    EXPECT_EQ(box.Count(), 1);
    EXPECT_EQ(Plan::s_count, 0);
    EXPECT_EQ(PlanFrame::s_count, 0);
}

TEST_F(DocumentTest, CloseOfTheFileMenuEndsTheDocumentAndItsFrames) {
    const Plan* const plan = NewMulti();
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_COMMAND, ID_FILE_CLOSE);
    EXPECT_EQ(Plan::s_count, 0);
    EXPECT_EQ(PlanChild::s_count, 0);
    EXPECT_NE(m_main->GetSafeHwnd(), nullptr);
}

TEST_F(DocumentTest, ADestroyedFrameTakesViewAndDocumentAlong) {
    const Plan* const plan = NewMulti();
    ViewOf(*plan)->GetParentFrame()->DestroyWindow();
    EXPECT_EQ(Plan::s_count, 0);
    EXPECT_EQ(PlanView::s_count, 0);
}

TEST_F(DocumentTest, ADocumentThatIsKeptOutlivesItsViews) {
    Plan* const plan = NewMulti();
    plan->m_bAutoDelete = FALSE;
    ViewOf(*plan)->GetParentFrame()->DestroyWindow();
    EXPECT_EQ(Plan::s_count, 1);
    EXPECT_EQ(plan->GetFirstViewPosition(), nullptr);
    plan->m_bAutoDelete = TRUE;
    plan->OnCloseDocument();
    EXPECT_EQ(Plan::s_count, 0);
}

TEST_F(DocumentTest, ADocumentThatIsDeletedLeavesItsViewsWithout) {
    Plan plan;
    MakeMain();
    CFrameWnd* const frame = Multi().CreateNewFrame(&plan, nullptr);
    plan.m_bAutoDelete = FALSE;
    const CView* const view = ViewOf(plan);
    EXPECT_EQ(view->GetDocument(), &plan);
    plan.RemoveView(ViewOf(plan));
    EXPECT_EQ(view->GetDocument(), nullptr);
    frame->DestroyWindow();
}

TEST_F(DocumentTest, TheProgramIsCalledAsItsResourceSays) {
    EXPECT_STREQ(g_application.m_pszAppName, L"Garden planner");
}

TEST_F(DocumentTest, ANewWindowShowsTheDocumentOfTheActiveOneOnceMore) {
    Plan* const plan = NewMulti();
    m_main->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
    EXPECT_EQ(Plan::s_count, 1);
    EXPECT_EQ(PlanChild::s_count, 2);
    EXPECT_EQ(PlanView::s_count, 2);
    EXPECT_EQ(TitleOf(m_main->MDIGetActive()), L"Untitled:2");
    plan->SetModifiedFlag(FALSE);
}

TEST_F(DocumentTest, WithoutADocumentThereIsNoNewWindow) {
    MakeMain();
    m_main->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
    EXPECT_EQ(PlanChild::s_count, 0);
}

} // namespace
