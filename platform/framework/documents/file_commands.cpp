// The application's commands for documents: new, open, recent, and what a command line asks for.
#include "afxadv.h"
#include "afxwin.h"
#include "documents/file_prompt.h"
#include "documents/kind_box.h"
#include "fx/doc_template.h"
#include "fx/document.h"

#include <vector>

namespace {

/// Kinds that people may choose have a name for it.
std::vector<CDocTemplate*> NewKinds(const CWinApp& application) {
    std::vector<CDocTemplate*> kinds;
    for (POSITION place = application.GetFirstDocTemplatePosition(); place != nullptr;) {
        CDocTemplate* const kind = application.GetNextDocTemplate(place);
        CString name;
        if (kind->GetDocString(name, CDocTemplate::fileNewName) && !name.IsEmpty()) {
            kinds.push_back(kind);
        }
    }
    return kinds;
}

CDocTemplate* KindOfNewDocument(const CWinApp& application) {
    const std::vector<CDocTemplate*> kinds = NewKinds(application);
    if (kinds.size() > 1) {
        return fx::AskKind(kinds);
    }
    POSITION first = application.GetFirstDocTemplatePosition();
    return !kinds.empty() ? kinds.front() : first != nullptr ? application.GetNextDocTemplate(first) : nullptr;
}

} // namespace

void CWinApp::OnFileNew() {
    if (CDocTemplate* const kind = KindOfNewDocument(*this)) {
        kind->OpenDocumentFile(nullptr);
    }
}

void CWinApp::OnFileOpen() {
    CString path;
    if (fx::AskFileName(true, nullptr, path)) {
        OpenDocumentFile(path);
    }
}

BOOL CWinApp::ProcessShellCommand(CCommandLineInfo& rCmdInfo) {
    switch (rCmdInfo.m_nShellCommand) {
    case CCommandLineInfo::FileNew:
        // The host's own handler goes first.
        if (!OnCmdMsg(ID_FILE_NEW, CN_COMMAND, nullptr, nullptr)) {
            OnFileNew();
        }
        return m_pMainWnd != nullptr;
    case CCommandLineInfo::FileOpen:
        return OpenDocumentFile(rCmdInfo.m_strFileName) != nullptr;
    case CCommandLineInfo::FilePrint:
    case CCommandLineInfo::FilePrintTo:
        // Printed without being shown, and then the program is done.
        m_nCmdShow = SW_HIDE;
        if (OpenDocumentFile(rCmdInfo.m_strFileName, FALSE) != nullptr && m_pMainWnd != nullptr) {
            m_pMainWnd->SendMessage(WM_COMMAND, ID_FILE_PRINT_DIRECT);
        }
        return FALSE;
    case CCommandLineInfo::AppRegister:
    case CCommandLineInfo::AppUnregister:
        return FALSE; // the shell knows of no kinds of files
    case CCommandLineInfo::FileDDE:
        m_nCmdShow = SW_HIDE;
        return TRUE;
    case CCommandLineInfo::FileNothing:
        break;
    }
    return TRUE;
}
