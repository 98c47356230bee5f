#include "fx/doc_template.h"

#include "afxwin.h"
#include "window/document_frame.h"

IMPLEMENT_DYNAMIC(CSingleDocTemplate, CDocTemplate)

CSingleDocTemplate::CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                                       CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass) {}

CSingleDocTemplate::~CSingleDocTemplate() {
    if (m_pOnlyDoc != nullptr) {
        RemoveDocument(m_pOnlyDoc);
    }
}

// The only position is the first.
POSITION CSingleDocTemplate::GetFirstDocPosition() const { return reinterpret_cast<POSITION>(m_pOnlyDoc); }

CDocument* CSingleDocTemplate::GetNextDoc(POSITION& rPos) const {
    rPos = nullptr;
    return m_pOnlyDoc;
}

void CSingleDocTemplate::AddDocument(CDocument* pDoc) {
    CDocTemplate::AddDocument(pDoc);
    m_pOnlyDoc = pDoc;
}

void CSingleDocTemplate::RemoveDocument(CDocument* pDoc) {
    CDocTemplate::RemoveDocument(pDoc);
    m_pOnlyDoc = nullptr;
}

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName) { return OpenDocumentFile(lpszPathName, TRUE); }

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU) {
    CFrameWnd* frame = nullptr;
    const bool isNew = m_pOnlyDoc == nullptr;
    CDocument* const document = isNew ? MakeDocumentWithFrame(frame) : m_pOnlyDoc;
    if (document == nullptr || (!isNew && !document->SaveModified())) {
        return nullptr;
    }
    if (!isNew) {
        frame = fx::FirstFrameOf(*document);
    }
    if (!FillDocument(*document, lpszPathName, bAddToMRU, isNew)) {
        if (isNew) {
            frame->DestroyWindow(); // and with its views the document
        }
        return nullptr;
    }
    CWinThread* const thread = AfxGetThread();
    if (isNew && thread != nullptr && thread->m_pMainWnd == nullptr) {
        thread->m_pMainWnd = frame;
    }
    if (frame != nullptr) {
        InitialUpdateFrame(frame, document);
    }
    return document;
}

void CSingleDocTemplate::SetDefaultTitle(CDocument* pDocument) {
    CString title;
    if (!GetDocString(title, docName) || title.IsEmpty()) {
        title.LoadString(AFX_IDS_UNTITLED);
    }
    pDocument->SetTitle(title);
}
