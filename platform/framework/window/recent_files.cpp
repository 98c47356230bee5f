// Recent files: the list, its menu items, and what the application does with it.
#include "afxadv.h"

#include "core/file_path.h"
#include "window/menu_items.h"

#include <algorithm>

namespace {

constexpr LPCTSTR kSection = L"Recent File List";
constexpr LPCTSTR kEntryFormat = L"File%d";

CString WithoutExtension(const CString& name) {
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}

/// "&1 name": the first nine have their number as mnemonic, the tenth its nought.
CString ItemText(UINT number, CString name) {
    name.Replace(L"&", L"&&");
    CString text;
    if (number < 10) {
        text.Format(L"&%u %s", number, static_cast<LPCTSTR>(name));
    } else if (number == 10) {
        text.Format(L"1&0 %s", static_cast<LPCTSTR>(name));
    } else {
        text.Format(L"%u %s", number, static_cast<LPCTSTR>(name));
    }
    return text;
}

CString CurrentDirectory() {
    wchar_t directory[MAX_PATH + 1] = {};
    const DWORD length = ::GetCurrentDirectoryW(MAX_PATH, directory);
    CString result(length > 0 && length < MAX_PATH ? directory : L"");
    if (!result.IsEmpty() && result[result.GetLength() - 1] != L'\\') {
        result += L'\\';
    }
    return result;
}

} // namespace

CRecentFileList::CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize, int nMaxDispLen)
    : m_paths(static_cast<size_t>(std::max(nSize, 0))),
      m_nStart(nStart),
      m_strSection(lpszSection),
      m_strEntryFormat(lpszEntryFormat),
      m_nMaxDispLen(nMaxDispLen) {}

CRecentFileList::~CRecentFileList() = default;

CString& CRecentFileList::operator[](int nIndex) { return m_paths.at(static_cast<size_t>(nIndex)); }

void CRecentFileList::Add(LPCTSTR lpszPathName) {
    if (lpszPathName == nullptr || *lpszPathName == 0 || m_paths.empty()) {
        return;
    }
    const CString path = fx::FullPathOf(lpszPathName);
    auto place = std::find_if(m_paths.begin(), m_paths.end(),
                              [&path](const CString& known) { return known.CompareNoCase(path) == 0; });
    if (place == m_paths.end()) {
        --place; // the oldest goes
    }
    std::rotate(m_paths.begin(), place, place + 1);
    m_paths.front() = path;
}

void CRecentFileList::Remove(int nIndex) {
    if (nIndex < 0 || nIndex >= GetSize()) {
        return;
    }
    m_paths.erase(m_paths.begin() + nIndex);
    m_paths.emplace_back();
}

BOOL CRecentFileList::GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                     BOOL bAtLeastName) const {
    if (nIndex < 0 || nIndex >= GetSize() || m_paths[static_cast<size_t>(nIndex)].IsEmpty()) {
        return FALSE;
    }
    const CString& path = m_paths[static_cast<size_t>(nIndex)];
    const CString name = fx::FileNameOf(path);
    const bool isInCurrent = lpszCurDir != nullptr && path.GetLength() - name.GetLength() == nCurDir &&
                             CString(lpszCurDir, nCurDir).CompareNoCase(path.Left(nCurDir)) == 0;
    strName = isInCurrent ? name : path;
    for (const CString& shorter : {name, WithoutExtension(name)}) {
        if (m_nMaxDispLen >= 0 && strName.GetLength() > m_nMaxDispLen) {
            strName = shorter;
        }
    }
    if (m_nMaxDispLen >= 0 && strName.GetLength() > m_nMaxDispLen && !bAtLeastName) {
        strName.Empty();
    }
    return TRUE;
}

void CRecentFileList::UpdateMenu(CCmdUI* pCmdUI) {
    const bool isEmpty = m_paths.empty() || m_paths.front().IsEmpty();
    CMenu* menu = pCmdUI->m_pMenu;
    if (menu == nullptr || pCmdUI->m_pSubMenu != nullptr) {
        pCmdUI->Enable(!isEmpty);
        return;
    }
    if (m_strOriginal.IsEmpty()) {
        menu->GetMenuString(pCmdUI->m_nID, m_strOriginal, MF_BYCOMMAND);
    }
    const UINT first = pCmdUI->m_nID;
    for (UINT index = isEmpty ? 1 : 0; index < m_paths.size(); ++index) {
        menu->DeleteMenu(first + index, MF_BYCOMMAND);
    }
    if (isEmpty) {
        pCmdUI->SetText(m_strOriginal);
        pCmdUI->Enable(FALSE);
        return;
    }
    const CString directory = CurrentDirectory();
    UINT position = pCmdUI->m_nIndex;
    CString name;
    for (int index = 0; GetDisplayName(name, index, directory, directory.GetLength()); ++index) {
        const UINT number = static_cast<UINT>(index);
        menu->InsertMenu(position++, MF_BYPOSITION | MF_STRING, first + number, ItemText(m_nStart + number + 1, name));
    }
    // The update goes on behind the last of them.
    pCmdUI->m_nIndex = position - 1;
    pCmdUI->m_nIndexMax = fx::ItemCountOf(*menu);
    pCmdUI->m_bEnableChanged = TRUE;
}

void CRecentFileList::ReadList() {
    CWinApp* application = AfxGetApp();
    CString entry;
    for (size_t index = 0; application != nullptr && index < m_paths.size(); ++index) {
        entry.Format(m_strEntryFormat, static_cast<int>(index) + 1);
        m_paths[index] = application->GetProfileString(m_strSection, entry);
    }
}

void CRecentFileList::WriteList() {
    CWinApp* application = AfxGetApp();
    if (application == nullptr) {
        return;
    }
    application->WriteProfileString(m_strSection, nullptr, nullptr);
    CString entry;
    for (size_t index = 0; index < m_paths.size(); ++index) {
        if (!m_paths[index].IsEmpty()) {
            entry.Format(m_strEntryFormat, static_cast<int>(index) + 1);
            application->WriteProfileString(m_strSection, entry, m_paths[index]);
        }
    }
}

// ---- the application

void CWinApp::LoadStdProfileSettings(UINT nMaxMRU) {
    m_recentFiles.reset();
    if (nMaxMRU > 0) {
        m_recentFiles = std::make_unique<CRecentFileList>(0, kSection, kEntryFormat, static_cast<int>(nMaxMRU));
        m_recentFiles->ReadList();
    }
}

void CWinApp::AddToRecentFileList(LPCTSTR lpszPathName) {
    if (m_recentFiles) {
        m_recentFiles->Add(lpszPathName);
    }
}

BOOL CWinApp::OnOpenRecentFile(UINT nID) {
    const int index = static_cast<int>(nID - ID_FILE_MRU_FILE1);
    // A host without kinds of documents opens its files itself.
    if (!m_recentFiles || m_templates.IsEmpty() || index >= m_recentFiles->GetSize() ||
        (*m_recentFiles)[index].IsEmpty()) {
        return FALSE;
    }
    const CString path = (*m_recentFiles)[index]; // opening moves it
    if (OpenDocumentFile(path) == nullptr) {
        m_recentFiles->Remove(index);
    }
    return TRUE;
}

// Without a list the item is an ordinary command.
void CWinApp::OnUpdateRecentFileMenu(CCmdUI* pCmdUI) {
    if (m_recentFiles) {
        m_recentFiles->UpdateMenu(pCmdUI);
    } else {
        pCmdUI->ContinueRouting();
    }
}
