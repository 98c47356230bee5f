#include "plans.h"

PlanApplication g_application;

IMPLEMENT_DYNCREATE(Plan, CDocument)
IMPLEMENT_DYNCREATE(PlanView, CView)
IMPLEMENT_DYNCREATE(PlanFrame, CFrameWnd)
IMPLEMENT_DYNCREATE(PlanChild, CMDIChildWnd)
IMPLEMENT_DYNCREATE(MainFrame, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(Plan, CDocument)
ON_COMMAND_EX(kCommand, &Plan::OnCommandOfDocument)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(PlanView, CView)
ON_COMMAND_EX(kCommand, &PlanView::OnCommandOfView)
ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
ON_COMMAND(ID_FILE_PRINT_DIRECT, &CView::OnFilePrint)
ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(PlanFrame, CFrameWnd)
ON_COMMAND_EX(kCommand, &PlanFrame::OnCommandOfFrame)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(PlanApplication, CWinApp)
ON_COMMAND_EX(kCommand, &PlanApplication::OnCommandOfApplication)
ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
END_MESSAGE_MAP()

void Plan::Serialize(CArchive& archive) {
    if (archive.IsStoring()) {
        if (m_text == L"unwritable") {
            AfxThrowFileException(CFileException::diskFull);
        }
        archive << m_text;
    } else {
        archive >> m_text;
    }
}

void DocumentTest::SetUpTestSuite() {
    if (s_single == nullptr) {
        s_single =
            new CSingleDocTemplate(IDR_PLAN, RUNTIME_CLASS(Plan), RUNTIME_CLASS(PlanFrame), RUNTIME_CLASS(PlanView));
        s_multi =
            new CMultiDocTemplate(IDR_NOTE, RUNTIME_CLASS(Plan), RUNTIME_CLASS(PlanChild), RUNTIME_CLASS(PlanView));
        g_application.AddDocTemplate(s_single);
        g_application.AddDocTemplate(s_multi);
    }
}

[[maybe_unused]] static const auto* const g_environment = ::testing::AddGlobalTestEnvironment(new UiTestEnvironment);
