#include "fx/doc_template.h"

#include "afxext.h"
#include "afxwin.h"
#include "core/file_path.h"
#include "fx/document.h"

#include <memory>
#include <utility>

IMPLEMENT_DYNAMIC(CDocTemplate, CCmdTarget)

namespace {

bool IsSameFile(const CString& one, LPCTSTR other) { return one.CompareNoCase(other) == 0; }

void SayNoDocument() { AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC, MB_ICONSTOP); }

} // namespace

CDocTemplate::CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                           CRuntimeClass* pViewClass)
    : m_nIDResource(nIDResource), m_pDocClass(pDocClass), m_pFrameClass(pFrameClass), m_pViewClass(pViewClass) {}

CDocTemplate::~CDocTemplate() = default;

void CDocTemplate::LoadTemplate() {
    if (m_strDocStrings.IsEmpty()) {
        m_strDocStrings.LoadString(m_nIDResource);
    }
}

BOOL CDocTemplate::GetDocString(CString& rString, enum DocStringIndex index) const {
    return AfxExtractSubString(rString, m_strDocStrings, static_cast<int>(index));
}

void CDocTemplate::GetSharedHandles(HMENU&, HACCEL&) const {}

void CDocTemplate::AddDocument(CDocument* pDoc) {
    ASSERT(pDoc->m_pDocTemplate == nullptr);
    pDoc->m_pDocTemplate = this;
}

void CDocTemplate::RemoveDocument(CDocument* pDoc) {
    ASSERT(pDoc->m_pDocTemplate == this);
    pDoc->m_pDocTemplate = nullptr;
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch) {
    rpDocMatch = nullptr;
    const CString path = fx::FullPathOf(lpszPathName);
    for (POSITION place = GetFirstDocPosition(); place != nullptr;) {
        CDocument* const document = GetNextDoc(place);
        if (IsSameFile(document->GetPathName(), path)) {
            rpDocMatch = document;
            return yesAlreadyOpen;
        }
    }
    CString extension;
    if (GetDocString(extension, filterExt) && !extension.IsEmpty() &&
        IsSameFile(path.Right(extension.GetLength()), extension)) {
        return yesAttemptNative;
    }
    return yesAttemptForeign;
}

CDocument* CDocTemplate::CreateNewDocument() {
    CObject* const object = m_pDocClass != nullptr ? m_pDocClass->CreateObject() : nullptr;
    auto* const document = DYNAMIC_DOWNCAST(CDocument, object);
    if (document == nullptr) {
        delete object;
        return nullptr;
    }
    AddDocument(document);
    return document;
}

CFrameWnd* CDocTemplate::CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther) {
    CObject* const object = m_pFrameClass != nullptr ? m_pFrameClass->CreateObject() : nullptr;
    auto* const frame = DYNAMIC_DOWNCAST(CFrameWnd, object);
    if (frame == nullptr) {
        delete object;
        return nullptr;
    }
    CCreateContext context;
    context.m_pCurrentFrame = pOther;
    context.m_pCurrentDoc = pDoc;
    context.m_pNewViewClass = m_pViewClass;
    context.m_pNewDocTemplate = this;
    // A frame that cannot be made deletes itself.
    return frame->LoadFrame(m_nIDResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr, &context) ? frame : nullptr;
}

void CDocTemplate::InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible) {
    pFrame->InitialUpdateFrame(pDoc, bMakeVisible);
}

BOOL CDocTemplate::SaveAllModified() {
    for (POSITION place = GetFirstDocPosition(); place != nullptr;) {
        if (!GetNextDoc(place)->SaveModified()) {
            return FALSE;
        }
    }
    return TRUE;
}

void CDocTemplate::CloseAllDocuments(BOOL) {
    for (POSITION place = GetFirstDocPosition(); place != nullptr;) {
        GetNextDoc(place)->OnCloseDocument();
    }
}

CDocument* CDocTemplate::MakeDocumentWithFrame(CFrameWnd*& frame) {
    std::unique_ptr<CDocument> document(CreateNewDocument());
    if (!document) {
        SayNoDocument();
        return nullptr;
    }
    // Until the frame stands, the end of a view is not the document's.
    const BOOL isDeleted = std::exchange(document->m_bAutoDelete, FALSE);
    frame = CreateNewFrame(document.get(), nullptr);
    document->m_bAutoDelete = isDeleted;
    if (frame == nullptr) {
        SayNoDocument();
        return nullptr;
    }
    return document.release();
}

BOOL CDocTemplate::FillDocument(CDocument& document, LPCTSTR path, BOOL addToMRU, BOOL isNew) {
    if (path == nullptr) {
        SetDefaultTitle(&document);
        return document.OnNewDocument();
    }
    const BOOL wasModified = document.IsModified();
    document.SetModifiedFlag(FALSE);
    if (document.OnOpenDocument(path)) {
        document.SetPathName(path, addToMRU);
        document.OnDocumentEvent(CDocument::onAfterOpenDocument);
        return TRUE;
    }
    if (isNew) {
        return FALSE;
    }
    // One that was shown before: either the file was not even opened and it is as it was, or it is empty now.
    if (!document.IsModified()) {
        document.SetModifiedFlag(wasModified);
    } else {
        SetDefaultTitle(&document);
        document.OnNewDocument();
    }
    return FALSE;
}
