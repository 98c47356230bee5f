#include "documents/file_prompt.h"

#include "fx/doc_template.h"

#include <commdlg.h>

#include <mutex>
#include <utility>

namespace {

constexpr DWORD kLongestPath = 32768;

std::mutex g_promptLock;
fx::FileNamePrompt g_prompt;

fx::FileNamePrompt Prompt() {
    const std::lock_guard<std::mutex> lock(g_promptLock);
    return g_prompt;
}

bool AskBySystemDialog(bool isOpening, LPCTSTR title, const std::wstring& filter, LPCTSTR extension, CString& path) {
    std::wstring file(path, static_cast<std::size_t>(path.GetLength()));
    file.resize(kLongestPath);
    OPENFILENAMEW dialog = {};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = CWnd::GetSafeOwner(nullptr, nullptr)->GetSafeHwnd();
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = file.data();
    dialog.nMaxFile = kLongestPath;
    dialog.lpstrTitle = title;
    dialog.lpstrDefExt = extension;
    dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_ENABLESIZING |
                   (isOpening ? OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST : OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST);
    if (!(isOpening ? ::GetOpenFileNameW(&dialog) : ::GetSaveFileNameW(&dialog))) {
        return false;
    }
    path = file.c_str();
    return true;
}

CString TextOf(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}

/// Name and pattern with a zero behind each. Without an extension the kind has no files.
void AppendFilter(std::wstring& filter, const CDocTemplate& kind) {
    CString name, extension;
    if (!kind.GetDocString(extension, CDocTemplate::filterExt) || extension.IsEmpty() ||
        !kind.GetDocString(name, CDocTemplate::filterName) || name.IsEmpty()) {
        return;
    }
    filter.append(name).push_back(L'\0');
    filter.append(L"*").append(extension).push_back(L'\0');
}

std::wstring FilterOf(const CDocTemplate* kind) {
    std::wstring filter;
    const CWinApp* const application = AfxGetApp();
    if (kind != nullptr) {
        AppendFilter(filter, *kind);
    } else if (application != nullptr) {
        for (POSITION place = application->GetFirstDocTemplatePosition(); place != nullptr;) {
            AppendFilter(filter, *application->GetNextDocTemplate(place));
        }
    }
    filter.append(TextOf(AFX_IDS_ALLFILTER)).push_back(L'\0');
    filter.append(L"*.*").push_back(L'\0');
    return filter;
}

} // namespace

namespace fx {

FileNamePrompt SetFileNamePrompt(FileNamePrompt prompt) {
    const std::lock_guard<std::mutex> lock(g_promptLock);
    return std::exchange(g_prompt, std::move(prompt));
}

bool AskFileName(bool isOpening, const CDocTemplate* kind, CString& path) {
    CString extension;
    if (kind != nullptr && kind->GetDocString(extension, CDocTemplate::filterExt)) {
        extension.TrimLeft(L'.');
    }
    const CString title = TextOf(isOpening ? AFX_IDS_OPENFILE : AFX_IDS_SAVEFILE);
    const std::wstring filter = FilterOf(kind);
    const FileNamePrompt prompt = Prompt();
    const LPCTSTR added = extension.IsEmpty() ? nullptr : static_cast<LPCTSTR>(extension);
    return prompt ? prompt(isOpening, title, filter, added, path)
                  : AskBySystemDialog(isOpening, title, filter, added, path);
}

CString TextWithName(UINT textId, LPCTSTR name) {
    CString text = TextOf(textId);
    text.Replace(L"%1", name);
    return text;
}

} // namespace fx
