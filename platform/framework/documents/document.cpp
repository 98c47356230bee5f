// A document and its views, frames and commands.
#include "fx/document.h"

#include "afxwin.h"
#include "fx/doc_template.h"

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

BEGIN_MESSAGE_MAP(CDocument, CCmdTarget)
ON_COMMAND(ID_FILE_CLOSE, &CDocument::OnFileClose)
ON_COMMAND(ID_FILE_SAVE, &CDocument::OnFileSave)
ON_COMMAND(ID_FILE_SAVE_AS, &CDocument::OnFileSaveAs)
END_MESSAGE_MAP()

namespace {

std::vector<CView*> ViewsOf(const CDocument& document) {
    std::vector<CView*> views;
    for (POSITION place = document.GetFirstViewPosition(); place != nullptr;) {
        views.push_back(document.GetNextView(place));
    }
    return views;
}

/// Each once, in the order of their first views.
std::vector<CFrameWnd*> FramesOf(const CDocument& document) {
    std::vector<CFrameWnd*> frames;
    for (const CView* const view : ViewsOf(document)) {
        CFrameWnd* const frame = view->GetSafeHwnd() != nullptr ? view->GetParentFrame() : nullptr;
        if (frame != nullptr && std::ranges::find(frames, frame) == frames.end()) {
            frames.push_back(frame);
        }
    }
    return frames;
}

} // namespace

CDocument::CDocument() = default;

CDocument::~CDocument() {
    while (!m_viewList.IsEmpty()) {
        static_cast<CView*>(m_viewList.RemoveHead())->m_pDocument = nullptr;
    }
    if (m_pDocTemplate != nullptr) {
        m_pDocTemplate->RemoveDocument(this);
    }
}

void CDocument::SetTitle(LPCTSTR lpszTitle) {
    m_strTitle = lpszTitle;
    CountFrames();
}

void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint, CObject* pHint) {
    for (CView* const view : ViewsOf(*this)) {
        // An update may end another view.
        if (view != pSender && m_viewList.Find(view) != nullptr) {
            view->OnUpdate(pSender, lHint, pHint);
        }
    }
}

void CDocument::DeleteContents() {}

void CDocument::PreCloseFrame(CFrameWnd*) {}

void CDocument::OnDocumentEvent(DocumentEvent) {}

BOOL CDocument::CanCloseFrame(CFrameWnd* pFrame) {
    const std::vector<CFrameWnd*> frames = FramesOf(*this);
    const bool isShownElsewhere = std::ranges::any_of(frames, [pFrame](const CFrameWnd* one) { return one != pFrame; });
    return isShownElsewhere || SaveModified();
}

void CDocument::OnChangedViewList() {
    if (m_viewList.IsEmpty() && m_bAutoDelete) {
        OnCloseDocument();
        return;
    }
    CountFrames();
}

// "Plan:1", "Plan:2" in the titles of several frames.
void CDocument::CountFrames() {
    const std::vector<CFrameWnd*> frames = FramesOf(*this);
    int number = 0;
    for (CFrameWnd* const frame : frames) {
        frame->SetWindowNumber(frames.size() > 1 ? ++number : 0);
        frame->OnUpdateFrameTitle(TRUE);
    }
}

void CDocument::OnCloseDocument() {
    // The views that go with their frames must not end the document before its time.
    const BOOL isDeleted = m_bAutoDelete;
    m_bAutoDelete = FALSE;
    for (std::vector<CFrameWnd*> frames = FramesOf(*this); !frames.empty(); frames = FramesOf(*this)) {
        CFrameWnd* const frame = frames.front();
        PreCloseFrame(frame);
        frame->DestroyWindow();
        // A frame that will not go keeps no document.
        for (CView* const view : ViewsOf(*this)) {
            if (view->GetParentFrame() == frame) {
                RemoveView(view);
            }
        }
    }
    m_bAutoDelete = isDeleted;
    DeleteContents();
    OnDocumentEvent(onAfterCloseDocument);
    if (isDeleted) {
        delete this;
    }
}

BOOL CDocument::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    return m_pDocTemplate != nullptr && m_pDocTemplate->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CDocument::OnFileClose() {
    if (SaveModified()) {
        OnCloseDocument();
    }
}

void CDocument::OnFileSave() { SaveInItsFile(); }

void CDocument::OnFileSaveAs() { Save(nullptr); }
