#include "fx/doc_template.h"

#include "afxwin.h"
#include "fx/document.h"

IMPLEMENT_DYNAMIC(CMultiDocTemplate, CDocTemplate)

CMultiDocTemplate::CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                                     CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass) {}

CMultiDocTemplate::~CMultiDocTemplate() {
    while (!m_docList.IsEmpty()) {
        RemoveDocument(static_cast<CDocument*>(m_docList.GetHead()));
    }
    if (m_hMenuShared != nullptr) {
        ::DestroyMenu(m_hMenuShared);
    }
    if (m_hAccelTable != nullptr) {
        ::DestroyAcceleratorTable(m_hAccelTable);
    }
}

void CMultiDocTemplate::LoadTemplate() {
    CDocTemplate::LoadTemplate();
    const LPCTSTR resource = MAKEINTRESOURCE(m_nIDResource);
    if (m_hMenuShared == nullptr) {
        m_hMenuShared = ::LoadMenuW(AfxFindResourceHandle(resource, RT_MENU), resource);
    }
    if (m_hAccelTable == nullptr) {
        m_hAccelTable = ::LoadAcceleratorsW(AfxFindResourceHandle(resource, RT_ACCELERATOR), resource);
    }
}

void CMultiDocTemplate::GetSharedHandles(HMENU& menu, HACCEL& keys) const {
    menu = m_hMenuShared;
    keys = m_hAccelTable;
}

POSITION CMultiDocTemplate::GetFirstDocPosition() const { return m_docList.GetHeadPosition(); }

CDocument* CMultiDocTemplate::GetNextDoc(POSITION& rPos) const {
    return static_cast<CDocument*>(m_docList.GetNext(rPos));
}

void CMultiDocTemplate::AddDocument(CDocument* pDoc) {
    CDocTemplate::AddDocument(pDoc);
    m_docList.AddTail(pDoc);
}

void CMultiDocTemplate::RemoveDocument(CDocument* pDoc) {
    CDocTemplate::RemoveDocument(pDoc);
    m_docList.RemoveAt(m_docList.Find(pDoc));
}

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName) { return OpenDocumentFile(lpszPathName, TRUE); }

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU) {
    CFrameWnd* frame = nullptr;
    CDocument* const document = MakeDocumentWithFrame(frame);
    if (document == nullptr) {
        return nullptr;
    }
    if (!FillDocument(*document, lpszPathName, bAddToMRU, TRUE)) {
        frame->DestroyWindow(); // and with its views the document
        return nullptr;
    }
    InitialUpdateFrame(frame, document);
    return document;
}

// "Plan1", "Plan2": what a new document is called until it has a file.
void CMultiDocTemplate::SetDefaultTitle(CDocument* pDocument) {
    CString title;
    if (GetDocString(title, docName) && !title.IsEmpty()) {
        CString number;
        number.Format(L"%u", ++m_nUntitledCount);
        title += number;
    } else {
        title.LoadString(AFX_IDS_UNTITLED);
    }
    pDocument->SetTitle(title);
}
