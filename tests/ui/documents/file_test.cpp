// A document and its file.
#include "plans.h"

#include <fstream>
#include <sstream>

using namespace std::string_view_literals;

namespace {

std::string BytesOf(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

class DocumentFile : public DocumentTest {
protected:
    std::wstring File(const char* name) const { return (m_folder.Path() / name).wstring(); }
    std::wstring Written(const char* name, const wchar_t* text) {
        Plan plan;
        plan.m_bAutoDelete = FALSE;
        plan.m_text = text;
        EXPECT_TRUE(plan.OnSaveDocument(File(name).c_str()));
        return File(name);
    }
};

TEST_F(DocumentFile, WhatIsSavedIsOpenedAgain) {
    const std::wstring path = Written("garden.plan", L"beds");
    auto* const plan = static_cast<Plan*>(Single().OpenDocumentFile(path.c_str()));
    ASSERT_NE(plan, nullptr);
    EXPECT_EQ(plan->m_text, L"beds");
    EXPECT_EQ(plan->GetTitle(), L"garden.plan");
    EXPECT_EQ(plan->GetPathName().CompareNoCase(CString(std::filesystem::absolute(path).wstring().c_str())), 0);
    EXPECT_FALSE(plan->IsModified());
    EXPECT_EQ(plan->m_events, std::vector{CDocument::onAfterOpenDocument});
}

TEST_F(DocumentFile, AFileThatIsNotThereIsSaidAndGivesNoDocument) {
    MakeMain();
    CountingMessageBox box;
    EXPECT_EQ(Multi().OpenDocumentFile(File("none.note").c_str()), nullptr);
    ASSERT_EQ(box.Count(), 1);
    EXPECT_NE(box.Last().text.find(L"none.note"), std::wstring::npos);
    EXPECT_EQ(Plan::s_count, 0);
    EXPECT_EQ(PlanChild::s_count, 0);
}

TEST_F(DocumentFile, ADamagedFileLeavesAnEmptyDocumentWhereOneWasShown) {
    Plan* const plan = NewSingle();
    plan->Write(L"before");
    plan->SetModifiedFlag(FALSE);
    const std::wstring path = m_folder.Write("bad.plan", "\xFF\xFE\xFF\x40half");
    CountingMessageBox box;
    EXPECT_EQ(Single().OpenDocumentFile(path.c_str()), nullptr);
    EXPECT_EQ(box.Count(), 1);
    EXPECT_TRUE(plan->m_text.IsEmpty());
    EXPECT_EQ(plan->GetTitle(), L"Plan");
    EXPECT_FALSE(plan->IsModified());
}

TEST_F(DocumentFile, WithAFileThatCannotBeOpenedTheDocumentStaysAsItWas) {
    Plan* const plan = NewSingle();
    plan->Write(L"before");
    CountingMessageBox box(IDNO); // do not save
    EXPECT_EQ(Single().OpenDocumentFile(File("none.plan").c_str()), nullptr);
    EXPECT_EQ(plan->m_text, L"before");
    EXPECT_TRUE(plan->IsModified());
    plan->SetModifiedFlag(FALSE);
}

TEST_F(DocumentFile, AnEmptyFileIsAnEmptyDocument) {
    const std::wstring path = m_folder.Write("empty.plan", "");
    const auto* const plan = static_cast<Plan*>(Single().OpenDocumentFile(path.c_str()));
    ASSERT_NE(plan, nullptr);
    EXPECT_TRUE(plan->m_text.IsEmpty());
}

TEST_F(DocumentFile, SavingWritesTheFileAndTheDocumentIsUnchanged) {
    const std::wstring path = Written("garden.plan", L"beds");
    auto* const plan = static_cast<Plan*>(Single().OpenDocumentFile(path.c_str()));
    plan->Write(L"trees");
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_COMMAND, ID_FILE_SAVE);
    EXPECT_FALSE(plan->IsModified());
    EXPECT_EQ(plan->m_events.back(), CDocument::onAfterSaveDocument);
    EXPECT_EQ(BytesOf(path), BytesOf(Written("other.plan", L"trees")));
}

TEST_F(DocumentFile, ANewDocumentAsksForANameWithTheKindsExtension) {
    Plan* const plan = NewSingle();
    plan->Write(L"beds");
    const AnsweredPrompt prompt(File("new.plan"));
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_COMMAND, ID_FILE_SAVE);
    EXPECT_EQ(prompt.m_count, 1);
    EXPECT_FALSE(prompt.m_isOpening);
    EXPECT_EQ(prompt.m_proposed, L"Plan.plan");
    EXPECT_EQ(prompt.m_extension, L"plan");
    EXPECT_EQ(prompt.m_filter, std::wstring(L"Plans (*.plan)\0*.plan\0All Files (*.*)\0*.*\0"sv));
    EXPECT_EQ(plan->GetTitle(), L"new.plan");
    EXPECT_FALSE(plan->IsModified());
}

TEST_F(DocumentFile, ACancelledNameSavesNothing) {
    Plan* const plan = NewSingle();
    plan->Write(L"beds");
    const AnsweredPrompt prompt(L"");
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_COMMAND, ID_FILE_SAVE_AS);
    EXPECT_EQ(prompt.m_count, 1);
    EXPECT_TRUE(plan->IsModified());
    plan->SetModifiedFlag(FALSE);
}

TEST_F(DocumentFile, AFileThatMayNotBeWrittenAsksForAnotherName) {
    const std::wstring path = Written("locked.plan", L"beds");
    auto* const plan = static_cast<Plan*>(Single().OpenDocumentFile(path.c_str()));
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    plan->Write(L"trees");
    const AnsweredPrompt prompt(File("copy.plan"));
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_COMMAND, ID_FILE_SAVE);
    EXPECT_EQ(prompt.m_count, 1);
    EXPECT_EQ(plan->GetTitle(), L"copy.plan");
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(DocumentFile, AFailedSaveLosesNeitherTheOldFileNorTheChanges) {
    const std::wstring path = Written("garden.plan", L"beds");
    const std::string before = BytesOf(path);
    auto* const plan = static_cast<Plan*>(Single().OpenDocumentFile(path.c_str()));
    plan->Write(L"unwritable");
    CountingMessageBox box;
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_COMMAND, ID_FILE_SAVE);
    EXPECT_EQ(box.Count(), 1);
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_TRUE(plan->IsModified());
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_folder.Path()), {}), 1);
    plan->SetModifiedFlag(FALSE);
}

TEST_F(DocumentFile, YesToTheQuestionSavesBeforeTheFrameCloses) {
    const std::wstring path = Written("garden.plan", L"beds");
    auto* const plan = static_cast<Plan*>(Single().OpenDocumentFile(path.c_str()));
    plan->Write(L"trees");
    CountingMessageBox box(IDYES);
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_CLOSE);
    EXPECT_EQ(box.Last().text, L"Save changes to garden.plan?");
    EXPECT_EQ(Plan::s_count, 0);
    EXPECT_EQ(BytesOf(path), BytesOf(Written("other.plan", L"trees")));
}

TEST_F(DocumentFile, ASaveThatFailsKeepsTheFrameOpen) {
    const std::wstring path = Written("garden.plan", L"beds");
    auto* const plan = static_cast<Plan*>(Single().OpenDocumentFile(path.c_str()));
    plan->Write(L"unwritable");
    CountingMessageBox box(IDYES);
    ViewOf(*plan)->GetParentFrame()->SendMessage(WM_CLOSE);
    EXPECT_EQ(Plan::s_count, 1);
    plan->SetModifiedFlag(FALSE);
}

} // namespace
