// A document and its file.
#include "fx/document.h"

#include "afxwin.h"
#include "core/file_path.h"
#include "documents/file_prompt.h"
#include "fx/archive.h"
#include "fx/doc_template.h"

#include <array>
#include <memory>

namespace {

/// What no file's name may hold stays away from the name that is proposed.
CString AsFileName(CString title) {
    const int end = title.FindOneOf(L"#%;/\\:*?\"<>|");
    return end >= 0 ? title.Left(end) : title;
}

/// Reads or writes the document through an archive on the file.
void Transfer(CDocument& document, CFile& file, UINT mode) {
    CArchive archive(&file, mode | CArchive::bNoFlushOnDelete);
    archive.m_pDocument = &document;
    const CWaitCursor waiting;
    document.Serialize(archive);
    archive.Close();
}

} // namespace

void CDocument::SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU) {
    m_strPathName = fx::FullPathOf(lpszPathName);
    SetTitle(fx::FileNameOf(m_strPathName));
    CWinApp* const application = AfxGetApp();
    if (bAddToMRU && application != nullptr) {
        application->AddToRecentFileList(m_strPathName);
    }
}

BOOL CDocument::OnNewDocument() {
    DeleteContents();
    ClearPathName();
    SetModifiedFlag(FALSE);
    OnDocumentEvent(onAfterNewDocument);
    return TRUE;
}

BOOL CDocument::OnOpenDocument(LPCTSTR lpszPathName) {
    CFileException error;
    CFile* file = GetFile(lpszPathName, CFile::modeRead | CFile::shareDenyWrite, &error);
    if (file == nullptr) {
        ReportSaveLoadException(lpszPathName, &error, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
        return FALSE;
    }
    DeleteContents();
    SetModifiedFlag(); // while it is read
    try {
        if (file->GetLength() > 0) {
            Transfer(*this, *file, CArchive::load);
        }
        ReleaseFile(file, FALSE);
    } catch (CException* exception) {
        ReleaseFile(file, TRUE);
        DeleteContents();
        ReportSaveLoadException(lpszPathName, exception, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
        exception->Delete();
        return FALSE;
    }
    SetModifiedFlag(FALSE);
    return TRUE;
}

// Into a file beside it, which then takes its place: nothing that goes wrong costs what was there.
BOOL CDocument::OnSaveDocument(LPCTSTR lpszPathName) {
    const CString path = fx::FullPathOf(lpszPathName);
    const CString beside = path + L".new";
    CFileException error;
    CFile* file = GetFile(beside, CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive, &error);
    if (file == nullptr) {
        ReportSaveLoadException(lpszPathName, &error, TRUE, AFX_IDP_INVALID_FILENAME);
        return FALSE;
    }
    try {
        Transfer(*this, *file, CArchive::store);
        ReleaseFile(file, FALSE);
        file = nullptr;
        if (!::MoveFileExW(beside, path, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
            CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), path);
        }
    } catch (CException* exception) {
        if (file != nullptr) {
            ReleaseFile(file, TRUE);
        }
        ::DeleteFileW(beside);
        ReportSaveLoadException(lpszPathName, exception, TRUE, AFX_IDP_FAILED_TO_SAVE_DOC);
        exception->Delete();
        return FALSE;
    }
    SetModifiedFlag(FALSE);
    return TRUE;
}

CFile* CDocument::GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    auto file = std::make_unique<CFile>();
    return file->Open(lpszFileName, nOpenFlags, pError) ? file.release() : nullptr;
}

void CDocument::ReleaseFile(CFile* pFile, BOOL bAbort) {
    const std::unique_ptr<CFile> owned(pFile);
    if (bAbort) {
        owned->Abort();
    } else {
        owned->Close();
    }
}

void CDocument::ReportSaveLoadException(LPCTSTR lpszPathName, CException* e, BOOL, UINT nIDPDefault) {
    constexpr UINT kLongestReason = 512;
    std::array<wchar_t, kLongestReason> reason = {};
    CString text = fx::TextWithName(nIDPDefault, lpszPathName);
    if (e != nullptr && e->GetErrorMessage(reason.data(), kLongestReason) && reason[0] != 0) {
        text += CString(L"\n\n") + reason.data();
    }
    AfxMessageBox(text, MB_ICONEXCLAMATION, nIDPDefault);
}

BOOL CDocument::SaveModified() {
    if (!IsModified()) {
        return TRUE;
    }
    const CString name = m_strPathName.IsEmpty() ? m_strTitle : fx::FileNameOf(m_strPathName);
    const CString question = fx::TextWithName(AFX_IDP_ASK_TO_SAVE, name);
    switch (AfxMessageBox(question, MB_YESNOCANCEL | MB_ICONQUESTION, AFX_IDP_ASK_TO_SAVE)) {
    case IDYES:
        return SaveInItsFile();
    case IDNO:
        return TRUE;
    default:
        return FALSE;
    }
}

// A file that may not be written is left alone: another name is asked for.
BOOL CDocument::SaveInItsFile() {
    const DWORD attributes = m_strPathName.IsEmpty() ? INVALID_FILE_ATTRIBUTES : ::GetFileAttributesW(m_strPathName);
    const bool isReadOnly = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    return Save(m_strPathName.IsEmpty() || isReadOnly ? nullptr : static_cast<LPCTSTR>(m_strPathName));
}

BOOL CDocument::Save(LPCTSTR path) {
    CString chosen = path;
    if (path == nullptr) {
        CString extension;
        chosen = m_strPathName.IsEmpty() ? AsFileName(m_strTitle) : m_strPathName;
        if (m_strPathName.IsEmpty() && m_pDocTemplate != nullptr &&
            m_pDocTemplate->GetDocString(extension, CDocTemplate::filterExt)) {
            chosen += extension;
        }
        if (!fx::AskFileName(false, m_pDocTemplate, chosen)) {
            return FALSE;
        }
    }
    if (!OnSaveDocument(chosen)) {
        return FALSE;
    }
    SetPathName(chosen);
    OnDocumentEvent(onAfterSaveDocument);
    return TRUE;
}
