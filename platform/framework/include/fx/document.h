#pragma once

#include "fx/cmdtarget.h"
#include "fx/view.h"

#include <afxcoll.h>

class CArchive;
class CDocTemplate;
class CException;
class CFile;
class CFileException;
class CFrameWnd;

/// The data that views show, and its file. Templates make documents (CDocTemplate::CreateNewDocument) and end them when
/// the last frame is closed; a document knows its views and does not own them.
///
/// A derived class overrides DeleteContents and Serialize, and calls SetModifiedFlag and UpdateAllViews whenever it
/// changes. Commands reach it behind its active view: ID_FILE_CLOSE, ID_FILE_SAVE and ID_FILE_SAVE_AS are served here.
class FRAMEWORK_API CDocument : public CCmdTarget {
    DECLARE_DYNAMIC(CDocument)

public:
    enum DocumentEvent { onAfterNewDocument, onAfterOpenDocument, onAfterSaveDocument, onAfterCloseDocument };

    CDocument();
    /// Takes leave of its views and its template.
    ~CDocument() override;

    const CString& GetTitle() const { return m_strTitle; }
    /// Also in the titles of all frames that show it.
    virtual void SetTitle(LPCTSTR lpszTitle);
    /// Empty for a document that has no file yet.
    const CString& GetPathName() const { return m_strPathName; }
    /// The full path and the file's name as title. bAddToMRU: it becomes the first of the recent files.
    virtual void SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU = TRUE);
    virtual void ClearPathName() { m_strPathName.Empty(); }
    /// NULL for a document that no template has made.
    CDocTemplate* GetDocTemplate() const { return m_pDocTemplate; }
    virtual BOOL IsModified() { return m_bModified; }
    /// Whoever changes a document says so, and is then asked to save it.
    virtual void SetModifiedFlag(BOOL bModified = TRUE) { m_bModified = bModified; }

    /// A view that is attached to no document. Views that a frame makes for a document attach themselves.
    void AddView(CView* pView) {
        ASSERT(pView->m_pDocument == NULL);
        m_viewList.AddTail(pView);
        pView->m_pDocument = this;
        OnChangedViewList();
    }
    /// The document may be gone afterwards: see OnChangedViewList.
    void RemoveView(CView* pView) {
        ASSERT(pView->m_pDocument == this);
        m_viewList.RemoveAt(m_viewList.Find(pView));
        pView->m_pDocument = NULL;
        OnChangedViewList();
    }
    virtual POSITION GetFirstViewPosition() const { return m_viewList.GetHeadPosition(); }
    /// NULL with a null position.
    virtual CView* GetNextView(POSITION& rPosition) const {
        return rPosition != NULL ? static_cast<CView*>(m_viewList.GetNext(rPosition)) : NULL;
    }
    /// Calls OnUpdate of every view but the sender, which made the change and has drawn it. NULL: of all.
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0L, CObject* pHint = NULL);

    /// Empties the data without destroying the object: before a new document, one from a file, and at the end. The base
    /// does nothing.
    virtual void DeleteContents();
    /// An empty, unchanged document without a file. FALSE: it is not made.
    virtual BOOL OnNewDocument();
    /// Empties the document and reads it by Serialize. FALSE: it could not be read; the user has been told.
    virtual BOOL OnOpenDocument(LPCTSTR lpszPathName);
    /// Writes it by Serialize; it is then unchanged. FALSE: it could not be written; the user has been told, and the
    /// file that was there is as it was.
    virtual BOOL OnSaveDocument(LPCTSTR lpszPathName);
    /// Destroys all frames that show it, then, where m_bAutoDelete says so, the document.
    virtual void OnCloseDocument();
    /// Tells the user why a file could not be read or written: what the exception says, else the string nIDPDefault.
    virtual void ReportSaveLoadException(LPCTSTR lpszPathName, CException* e, BOOL bSaving, UINT nIDPDefault);
    /// Opened; ReleaseFile closes and deletes it. NULL: pError says why.
    virtual CFile* GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError);
    /// bAbort: whatever an error leaves open is closed without a further one.
    virtual void ReleaseFile(CFile* pFile, BOOL bAbort);
    /// Asks whether a changed document is to be saved and does it. FALSE: the user wants to go on with it, or it could
    /// not be saved.
    virtual BOOL SaveModified();
    /// Before a frame is closed. With the last frame of the document its changes are in question: see SaveModified.
    virtual BOOL CanCloseFrame(CFrameWnd* pFrame);
    /// Before a frame that shows the document is destroyed; the base does nothing.
    virtual void PreCloseFrame(CFrameWnd* pFrame);
    /// A view has come or gone. The base destroys a document without views where m_bAutoDelete says so, and counts the
    /// frames in their titles.
    virtual void OnChangedViewList();
    /// The base does nothing.
    virtual void OnDocumentEvent(DocumentEvent deEvent);

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    /// Whether the document goes with its last view. Templates switch it off where one document is used again.
    BOOL m_bAutoDelete = TRUE;

protected:
    afx_msg void OnFileClose();
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();
    DECLARE_MESSAGE_MAP()

    CString m_strTitle;
    CString m_strPathName;
    CDocTemplate* m_pDocTemplate = NULL; ///< not owned
    CPtrList m_viewList;                 ///< CView, not owned
    BOOL m_bModified = FALSE;

private:
    friend class CDocTemplate;
    /// NULL: asks for a name.
    BOOL Save(LPCTSTR path);
    BOOL SaveInItsFile();
    void CountFrames();
};
