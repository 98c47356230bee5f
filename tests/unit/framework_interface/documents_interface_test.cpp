#include "interface.h"

#include "afxext.h"
#include "afxwin.h"

INTERFACE_OF(CDocument) {
    BASE(CCmdTarget);
    MADE_FROM();
    MEMBER(void, AddView, (CView*));
    VIRTUAL(BOOL, CanCloseFrame, (CFrameWnd*));
    VIRTUAL(void, ClearPathName, ());
    VIRTUAL(void, DeleteContents, ());
    MEMBER(CDocTemplate*, GetDocTemplate, () const);
    VIRTUAL(CFile*, GetFile, (LPCTSTR, UINT, CFileException*));
    VIRTUAL(POSITION, GetFirstViewPosition, () const);
    VIRTUAL(CView*, GetNextView, (POSITION&) const);
    MEMBER(const CString&, GetPathName, () const);
    MEMBER(const CString&, GetTitle, () const);
    VIRTUAL(BOOL, IsModified, ());
    VIRTUAL(void, OnChangedViewList, ());
    VIRTUAL(void, OnCloseDocument, ());
    VIRTUAL(void, OnDocumentEvent, (CDocument::DocumentEvent));
    VIRTUAL(BOOL, OnNewDocument, ());
    VIRTUAL(BOOL, OnOpenDocument, (LPCTSTR));
    VIRTUAL(BOOL, OnSaveDocument, (LPCTSTR));
    VIRTUAL(void, PreCloseFrame, (CFrameWnd*));
    VIRTUAL(void, ReleaseFile, (CFile*, BOOL));
    MEMBER(void, RemoveView, (CView*));
    VIRTUAL(void, ReportSaveLoadException, (LPCTSTR, CException*, BOOL, UINT));
    VIRTUAL(BOOL, SaveModified, ());
    VIRTUAL(void, SetModifiedFlag, (BOOL));
    CALL(SetModifiedFlag);
    VIRTUAL(void, SetPathName, (LPCTSTR, BOOL));
    CALL(SetPathName, LPCTSTR);
    VIRTUAL(void, SetTitle, (LPCTSTR));
    MEMBER(void, UpdateAllViews, (CView*, LPARAM, CObject*));
    CALL(UpdateAllViews, CView*);
}

INTERFACE_OF(CDocTemplate) {
    BASE(CCmdTarget);
    VIRTUAL(void, AddDocument, (CDocument*));
    VIRTUAL(void, CloseAllDocuments, (BOOL));
    VIRTUAL(CDocument*, CreateNewDocument, ());
    VIRTUAL(CFrameWnd*, CreateNewFrame, (CDocument*, CFrameWnd*));
    VIRTUAL(BOOL, GetDocString, (CString&, CDocTemplate::DocStringIndex) const);
    VIRTUAL(POSITION, GetFirstDocPosition, () const);
    VIRTUAL(CDocument*, GetNextDoc, (POSITION&) const);
    VIRTUAL(void, InitialUpdateFrame, (CFrameWnd*, CDocument*, BOOL));
    VIRTUAL(void, LoadTemplate, ());
    VIRTUAL(CDocTemplate::Confidence, MatchDocType, (LPCTSTR, CDocument*&));
    VIRTUAL(CDocument*, OpenDocumentFile, (LPCTSTR));
    VIRTUAL(CDocument*, OpenDocumentFile, (LPCTSTR, BOOL));
    VIRTUAL(void, RemoveDocument, (CDocument*));
    VIRTUAL(BOOL, SaveAllModified, ());
    VIRTUAL(void, SetDefaultTitle, (CDocument*));
}

INTERFACE_OF(CSingleDocTemplate) {
    BASE(CDocTemplate);
    MADE_FROM(UINT, CRuntimeClass*, CRuntimeClass*, CRuntimeClass*);
}

INTERFACE_OF(CMultiDocTemplate) {
    BASE(CDocTemplate);
    MADE_FROM(UINT, CRuntimeClass*, CRuntimeClass*, CRuntimeClass*);
}

INTERFACE_OF(CPrintInfo) {
    MEMBER(UINT, GetFromPage, () const);
    MEMBER(UINT, GetMaxPage, () const);
    MEMBER(UINT, GetMinPage, () const);
    MEMBER(UINT, GetOffsetPage, () const);
    MEMBER(UINT, GetToPage, () const);
    MEMBER(void, SetMaxPage, (UINT));
    MEMBER(void, SetMinPage, (UINT));
    DATA(BOOL, m_bContinuePrinting);
    DATA(BOOL, m_bDirect);
    DATA(BOOL, m_bPreview);
    DATA(CPrintDialog*, m_pPD);
    DATA(CRect, m_rectDraw);
    DATA(CString, m_strPageDesc);
    DATA(UINT, m_nCurPage);
}
