// A program as people begin theirs: what they write down first, and what many tutorials have them add.
#include <SDKDDKVer.h>

#include <afxwin.h>

#include <afxcontrolbars.h>
#include <afxext.h>

#include "tests/support/ui_test.h"

namespace {

enum : UINT { kLookWindows = 40001, kLookXp, kLook2003, kLookVs2005, kLookVs2008, kLookWindows7, kLook2007, kFonts };

class CUsualDoc : public CDocument {
    DECLARE_DYNCREATE(CUsualDoc)
};
IMPLEMENT_DYNCREATE(CUsualDoc, CDocument)

class CUsualView : public CView {
    DECLARE_DYNCREATE(CUsualView)
public:
    CUsualDoc* GetDocument() const { return reinterpret_cast<CUsualDoc*>(m_pDocument); }

protected:
    void OnDraw(CDC* pDC) override { pDC->TextOut(0, 0, GetDocument()->GetTitle()); }
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override { return DoPreparePrinting(pInfo); }
    void OnBeginPrinting(CDC*, CPrintInfo*) override {}
    void OnEndPrinting(CDC*, CPrintInfo*) override {}
    void OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT point, CPreviewView* pView) override {
        CView::OnEndPrintPreview(pDC, pInfo, point, pView);
    }
    afx_msg void OnFilePrintPreview() { AFXPrintPreview(this); }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(CUsualView, CView)
BEGIN_MESSAGE_MAP(CUsualView, CView)
ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
ON_COMMAND(ID_FILE_PRINT_DIRECT, &CView::OnFilePrint)
ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CUsualView::OnFilePrintPreview)
END_MESSAGE_MAP()

class CUsualFrame : public CFrameWndEx {
    DECLARE_DYNCREATE(CUsualFrame)
public:
    void ChooseLook(UINT id) { OnApplicationLook(id); }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        if (CFrameWndEx::OnCreate(lpCreateStruct) == -1 || !m_ribbon.Create(this)) {
            return -1;
        }
        CMFCRibbonPanel* const panel = m_ribbon.AddCategory(L"Home", 0, 0)->AddPanel(L"Font");
        CMFCRibbonFontComboBox::m_bDrawUsingFont = TRUE;
        auto* const fonts = new CMFCRibbonFontComboBox(kFonts);
        fonts->SetWidth(160);
        panel->Add(fonts);
        CDockingManager::SetDockingMode(DT_SMART);
        EnableAutoHidePanes(CBRS_ALIGN_ANY);
        DragAcceptFiles();
        return 0;
    }
    afx_msg void OnApplicationLook(UINT id) {
        switch (id) {
        case kLookWindows:
            CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerWindows));
            break;
        case kLookXp:
            CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOfficeXP));
            break;
        case kLook2003:
            CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2003));
            break;
        case kLookVs2005:
            CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerVS2005));
            break;
        case kLookVs2008:
            CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerVS2008));
            break;
        case kLookWindows7:
            CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerWindows7));
            break;
        default:
            CMFCVisualManagerOffice2007::SetStyle(CMFCVisualManagerOffice2007::Office2007_Silver);
            CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
            break;
        }
        RedrawWindow(nullptr, nullptr, RDW_ALLCHILDREN | RDW_INVALIDATE | RDW_UPDATENOW | RDW_FRAME | RDW_ERASE);
    }
    afx_msg void OnFont() {}
    DECLARE_MESSAGE_MAP()

private:
    CMFCRibbonBar m_ribbon;
};
IMPLEMENT_DYNCREATE(CUsualFrame, CFrameWndEx)
BEGIN_MESSAGE_MAP(CUsualFrame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(kLookWindows, kLook2007, &CUsualFrame::OnApplicationLook)
ON_COMMAND(kFonts, &CUsualFrame::OnFont)
END_MESSAGE_MAP()

class CUsualApp : public CWinAppEx {
public:
    BOOL InitInstance() override {
        EnableTaskbarInteraction(FALSE);
        AfxInitRichEdit2();
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CUsualApp, CWinAppEx)
ON_COMMAND(ID_FILE_PRINT_SETUP, &CWinAppEx::OnFilePrintSetup)
END_MESSAGE_MAP()

CUsualApp g_application;

[[maybe_unused]] const auto* const g_environment = ::testing::AddGlobalTestEnvironment(new UiTestEnvironment);

TEST(UsualProgram, BeginsAndChangesItsLook) {
    ASSERT_TRUE(g_application.InitInstance());
    auto* const frame = new CUsualFrame;
    ASSERT_TRUE(frame->Create(nullptr, L"Usual", WS_OVERLAPPEDWINDOW, CRect(0, 0, 600, 400)));
    for (UINT look = kLookWindows; look <= kLook2007; ++look) {
        frame->ChooseLook(look);
    }
    EXPECT_TRUE(CMFCVisualManager::GetInstance()->IsKindOf(RUNTIME_CLASS(CMFCVisualManagerOffice2007)));
    frame->DestroyWindow();
    CMFCRibbonFontComboBox::m_bDrawUsingFont = FALSE;
    CMFCVisualManager::SetDefaultManager(nullptr);
    CMFCVisualManager::DestroyInstance();
    CMFCVisualManagerOffice2007::CleanStyle();
}

} // namespace
