// The application's kinds of documents.
#include "afxwin.h"
#include "fx/doc_template.h"
#include "window/document_frame.h"

namespace {

void BringToFront(const CDocument& document) {
    CFrameWnd* const frame = fx::FirstFrameOf(document);
    if (frame == nullptr) {
        return;
    }
    frame->ActivateFrame();
    auto* const main = dynamic_cast<CFrameWnd*>(AfxGetMainWnd());
    if (main != nullptr && main != frame) {
        main->ActivateFrame();
    }
}

} // namespace

void CWinApp::AddDocTemplate(CDocTemplate* pTemplate) {
    pTemplate->LoadTemplate();
    m_templates.AddTail(pTemplate);
}

CDocTemplate* CWinApp::GetNextDocTemplate(POSITION& pos) const {
    return static_cast<CDocTemplate*>(m_templates.GetNext(pos));
}

void CWinApp::DeleteTemplates() {
    while (!m_templates.IsEmpty()) {
        delete static_cast<CDocTemplate*>(m_templates.RemoveHead());
    }
}

CDocument* CWinApp::OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU) {
    CDocTemplate* best = nullptr;
    CDocTemplate::Confidence bestConfidence = CDocTemplate::noAttempt;
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr;) {
        CDocTemplate* const kind = GetNextDocTemplate(place);
        CDocument* open = nullptr;
        const CDocTemplate::Confidence confidence = kind->MatchDocType(lpszFileName, open);
        if (open != nullptr) {
            BringToFront(*open);
            return open;
        }
        if (confidence > bestConfidence) {
            bestConfidence = confidence;
            best = kind;
        }
    }
    if (best == nullptr) {
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC, MB_ICONSTOP);
        return nullptr;
    }
    return best->OpenDocumentFile(lpszFileName, bAddToMRU);
}

BOOL CWinApp::SaveAllModified() {
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr;) {
        if (!GetNextDocTemplate(place)->SaveAllModified()) {
            return FALSE;
        }
    }
    return TRUE;
}

void CWinApp::CloseAllDocuments(BOOL bEndSession) {
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr;) {
        GetNextDocTemplate(place)->CloseAllDocuments(bEndSession);
    }
}
