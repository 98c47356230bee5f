#pragma once

#include "resource.h"

#include "tests/support/message_pump.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/ui_test.h"

#include <varnhold/strings.h>

#include "afxadv.h"
#include "afxext.h"
#include "afxwin.h"

#include <string>
#include <vector>

/// A document that holds a text. It counts what is asked of it.
class Plan : public CDocument {
    DECLARE_DYNCREATE(Plan)
public:
    Plan() { ++s_count; }
    ~Plan() override { --s_count; }

    void Write(const CString& text) {
        m_text = text;
        SetModifiedFlag();
        UpdateAllViews(nullptr);
    }
    void DeleteContents() override {
        ++m_emptied;
        m_text.Empty();
    }
    void Serialize(CArchive& archive) override;
    void OnDocumentEvent(DocumentEvent event) override { m_events.push_back(event); }
    void PreCloseFrame(CFrameWnd*) override { ++m_closedFrames; }
    BOOL OnCommandOfDocument(UINT) {
        s_asked.push_back("document");
        return FALSE;
    }

    static inline int s_count = 0;
    static inline std::vector<std::string> s_asked; ///< along the road of a command
    CString m_text;
    int m_emptied = 0;
    int m_closedFrames = 0;
    std::vector<DocumentEvent> m_events;
    DECLARE_MESSAGE_MAP()
};

class PlanView : public CView {
    DECLARE_DYNCREATE(PlanView)
public:
    PlanView() { ++s_count; }
    ~PlanView() override { --s_count; }

    void OnDraw(CDC*) override {}
    void OnUpdate(CView* sender, LPARAM hint, CObject*) override {
        ++m_updates;
        m_sender = sender;
        m_hint = hint;
    }
    BOOL OnCommandOfView(UINT) {
        Plan::s_asked.push_back("view");
        return FALSE;
    }

    // Prints to a picture, `m_length` pages long where that is known.
    BOOL OnPreparePrinting(CPrintInfo* info) override {
        s_job.push_back("prepare");
        info->m_pPD->m_pd.hDC = ::CreateCompatibleDC(nullptr);
        if (m_length > 0) {
            info->SetMaxPage(m_length);
        }
        if (m_from > 0) {
            info->m_pPD->m_pd.Flags |= PD_PAGENUMS;
            info->m_pPD->m_pd.nFromPage = m_from;
            info->m_pPD->m_pd.nToPage = m_to;
        }
        m_isDirect = info->m_bDirect;
        m_isPreview = info->m_bPreview;
        return m_isPrintable;
    }
    void OnBeginPrinting(CDC* dc, CPrintInfo*) override {
        s_job.push_back(dc->IsPrinting() ? "begin" : "on the screen");
    }
    void OnPrint(CDC* dc, CPrintInfo* info) override {
        s_job.push_back("page " + std::to_string(info->m_nCurPage));
        if (s_paint != nullptr) {
            s_paint(*dc, info->m_rectDraw);
        }
        CView::OnPrint(dc, info);
    }
    void OnEndPrinting(CDC*, CPrintInfo*) override { s_job.push_back("end"); }

    static inline std::vector<std::string> s_job;
    WORD m_length = 0, m_from = 0, m_to = 0;
    BOOL m_isPrintable = TRUE;
    BOOL m_isDirect = FALSE;
    BOOL m_isPreview = FALSE;
    static inline void (*s_paint)(CDC& dc, const CRect& page) = nullptr;

    static inline int s_count = 0;
    int m_updates = 0;
    CView* m_sender = nullptr;
    LPARAM m_hint = 0;
    DECLARE_MESSAGE_MAP()
};

/// Of which frames the tests know how many there are.
class PlanFrame : public CFrameWnd {
    DECLARE_DYNCREATE(PlanFrame)
public:
    PlanFrame() { ++s_count; }
    ~PlanFrame() override { --s_count; }
    BOOL OnCommandOfFrame(UINT) {
        Plan::s_asked.push_back("frame");
        return FALSE;
    }
    static inline int s_count = 0;
    DECLARE_MESSAGE_MAP()
};

class PlanChild : public CMDIChildWnd {
    DECLARE_DYNCREATE(PlanChild)
public:
    PlanChild() { ++s_count; }
    ~PlanChild() override { --s_count; }
    static inline int s_count = 0;
};

class MainFrame : public CMDIFrameWnd {
    DECLARE_DYNCREATE(MainFrame)
};

/// Ends without a template; each test adds its own.
class PlanApplication : public CWinApp {
public:
    BOOL OnCommandOfApplication(UINT) {
        Plan::s_asked.push_back("application");
        return FALSE;
    }
    void LoadRecentFiles() { LoadStdProfileSettings(); }
    using CWinApp::OnFileNew;
    using CWinApp::OnFileOpen;
    DECLARE_MESSAGE_MAP()
};
extern PlanApplication g_application;

constexpr UINT kCommand = 0x8001;

/// Answers each question for a file's name with one path, "" being a cancelled dialog, and keeps what was asked.
class AnsweredPrompt {
public:
    explicit AnsweredPrompt(std::wstring path)
        : m_path(std::move(path)),
          m_before(fx::SetFileNamePrompt(
              [this](bool isOpening, LPCTSTR, const std::wstring& filter, LPCTSTR extension, CString& path) {
                  ++m_count;
                  m_isOpening = isOpening;
                  m_filter = filter;
                  m_extension = extension != nullptr ? extension : L"";
                  m_proposed = path;
                  path = m_path.c_str();
                  return !m_path.empty();
              })) {}
    ~AnsweredPrompt() { fx::SetFileNamePrompt(m_before); }
    AnsweredPrompt(const AnsweredPrompt&) = delete;
    AnsweredPrompt& operator=(const AnsweredPrompt&) = delete;

    int m_count = 0;
    bool m_isOpening = false;
    std::wstring m_filter, m_extension;
    CString m_proposed;

private:
    std::wstring m_path;
    fx::FileNamePrompt m_before;
};

/// Template and main window of one test, gone with it.
class DocumentTest : public ::testing::Test {
protected:
    void TearDown() override {
        g_application.CloseAllDocuments(FALSE);
        if (m_main != nullptr) {
            m_main->DestroyWindow();
        }
        g_application.m_pMainWnd = nullptr;
        PumpPending();
        // A main window that goes ends the program; here others follow.
        MSG quit;
        ::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        EXPECT_EQ(Plan::s_count, 0);
        EXPECT_EQ(PlanView::s_count, 0);
        EXPECT_EQ(PlanFrame::s_count, 0);
        EXPECT_EQ(PlanChild::s_count, 0);
    }

    static CSingleDocTemplate& Single() { return *s_single; }
    static CMultiDocTemplate& Multi() { return *s_multi; }
    static Plan* NewSingle() { return static_cast<Plan*>(Single().OpenDocumentFile(nullptr)); }
    Plan* NewMulti() {
        MakeMain();
        return static_cast<Plan*>(Multi().OpenDocumentFile(nullptr));
    }
    /// The MDI frame in which the children come.
    void MakeMain() {
        if (m_main == nullptr) {
            m_main = new MainFrame;
            ASSERT_TRUE(m_main->LoadFrame(IDR_MAIN));
            g_application.m_pMainWnd = m_main;
        }
    }
    static PlanView* ViewOf(const CDocument& document) {
        POSITION place = document.GetFirstViewPosition();
        return static_cast<PlanView*>(document.GetNextView(place));
    }
    static CString TitleOf(const CWnd* window) {
        CString title;
        window->GetWindowText(title);
        return title;
    }
    static void SetUpTestSuite();

    MainFrame* m_main = nullptr;
    TemporaryDirectory m_folder;

private:
    static inline CSingleDocTemplate* s_single = nullptr; ///< the application's, as the other
    static inline CMultiDocTemplate* s_multi = nullptr;
};
