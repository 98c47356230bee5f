#pragma once

#include "fx/cmdtarget.h"

#include <afxcoll.h>

#include <functional>
#include <string>

class CDocument;
class CFrameWnd;

/// How documents of one kind are made: which classes document, frame and view have, and the resources with one id
/// (menu, accelerator table, icon, and a string of parts, see DocStringIndex). Make one per kind in InitInstance and
/// give it to CWinApp::AddDocTemplate, which owns it from then on.
class FRAMEWORK_API CDocTemplate : public CCmdTarget {
    DECLARE_DYNAMIC(CDocTemplate)

public:
    /// How well a file suits the kind.
    enum Confidence {
        noAttempt,
        maybeAttemptForeign,
        maybeAttemptNative,
        yesAttemptForeign,
        yesAttemptNative,
        yesAlreadyOpen
    };
    /// The parts of the resource's string, between line ends.
    enum DocStringIndex {
        windowTitle,   ///< of the main frame, where one document is shown at a time
        docName,       ///< what a new document's title begins with; empty: "Untitled"
        fileNewName,   ///< the kind in the choice of ID_FILE_NEW; empty: it is not offered
        filterName,    ///< in file dialogs: "Maps (*.map)"
        filterExt,     ///< ".map"
        regFileTypeId, ///< the registry's name of the kind, and what people see of it
        regFileTypeName
    };

    ~CDocTemplate() override;

    /// Reads the resources. CWinApp::AddDocTemplate calls it.
    virtual void LoadTemplate();
    virtual BOOL GetDocString(CString& rString, enum DocStringIndex index) const;

    virtual POSITION GetFirstDocPosition() const = 0;
    virtual CDocument* GetNextDoc(POSITION& rPos) const = 0;
    virtual void AddDocument(CDocument* pDoc);
    virtual void RemoveDocument(CDocument* pDoc);
    /// yesAlreadyOpen: rpDocMatch is the document.
    virtual Confidence MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch);

    /// NULL on failure. The document belongs to the template's list; its last frame ends it.
    virtual CDocument* CreateNewDocument();
    /// A frame with a view of the document (pDoc may be NULL); pOther: the frame that it is made from, or NULL. Not
    /// shown yet: see InitialUpdateFrame. NULL on failure.
    virtual CFrameWnd* CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther);
    /// Lets the frame's views show the document for the first time.
    virtual void InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible = TRUE);

    /// FALSE as soon as the user wants to go on with one of the documents.
    virtual BOOL SaveAllModified();
    virtual void CloseAllDocuments(BOOL bEndSession);
    /// A new document for a null path. NULL on failure, of which the user has been told.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName) = 0;
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU) = 0;
    virtual void SetDefaultTitle(CDocument* pDocument) = 0;
    /// What all child frames of the kind share; not for their own. Nothing where there are none.
    virtual void GetSharedHandles(HMENU& menu, HACCEL& keys) const;

protected:
    CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass, CRuntimeClass* pViewClass);

    /// Fills a document that has just been made or is used again. FALSE: it is as before, or empty.
    BOOL FillDocument(CDocument& document, LPCTSTR path, BOOL addToMRU, BOOL isNew);
    /// A new document and its frame. NULL on failure, of which the user has been told.
    CDocument* MakeDocumentWithFrame(CFrameWnd*& frame);

    UINT m_nIDResource;
    CRuntimeClass* m_pDocClass;
    CRuntimeClass* m_pFrameClass;
    CRuntimeClass* m_pViewClass;
    CString m_strDocStrings;
};

/// One document at a time, in the main frame: the next one takes the place of the one before.
class FRAMEWORK_API CSingleDocTemplate : public CDocTemplate {
    DECLARE_DYNAMIC(CSingleDocTemplate)

public:
    CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                       CRuntimeClass* pViewClass);
    ~CSingleDocTemplate() override;

    POSITION GetFirstDocPosition() const override;
    CDocument* GetNextDoc(POSITION& rPos) const override;
    void AddDocument(CDocument* pDoc) override;
    void RemoveDocument(CDocument* pDoc) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU) override;
    void SetDefaultTitle(CDocument* pDocument) override;

private:
    CDocument* m_pOnlyDoc = NULL;
};

/// Any number of documents, each in child frames of an MDI frame.
class FRAMEWORK_API CMultiDocTemplate : public CDocTemplate {
    DECLARE_DYNAMIC(CMultiDocTemplate)

public:
    CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                      CRuntimeClass* pViewClass);
    ~CMultiDocTemplate() override;

    void LoadTemplate() override;
    POSITION GetFirstDocPosition() const override;
    CDocument* GetNextDoc(POSITION& rPos) const override;
    void AddDocument(CDocument* pDoc) override;
    void RemoveDocument(CDocument* pDoc) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU) override;
    void SetDefaultTitle(CDocument* pDocument) override;
    void GetSharedHandles(HMENU& menu, HACCEL& keys) const override;

    /// Of the child frames, from the template's resource; owned. Null without one.
    HMENU m_hMenuShared = NULL;
    HACCEL m_hAccelTable = NULL;

private:
    CPtrList m_docList; ///< CDocument
    UINT m_nUntitledCount = 0;
};

namespace fx {

/// Answers a question for a file's name instead of the user. title, filter (as in OPENFILENAME, pairs behind each other
/// with zeros) and extension as the system's dialog takes them; path: what is proposed, then what was chosen. False:
/// cancelled.
using FileNamePrompt =
    std::function<bool(bool isOpening, LPCTSTR title, const std::wstring& filter, LPCTSTR extension, CString& path)>;
/// Installs a prompt for the process and returns the one that was there; an empty one restores the system's dialogs.
FRAMEWORK_API FileNamePrompt SetFileNamePrompt(FileNamePrompt prompt);

} // namespace fx
