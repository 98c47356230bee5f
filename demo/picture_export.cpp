#include "picture_export.h"

#include <boost/algorithm/string/replace.hpp>

#include <array>

#include <commdlg.h>

namespace {

/// The clipboard, emptied, for as long as it lives.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) : m_isOpen(::OpenClipboard(owner) != FALSE) {
        if (m_isOpen) {
            ::EmptyClipboard();
        }
    }
    ~OpenedClipboard() {
        if (m_isOpen) {
            ::CloseClipboard();
        }
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    bool Put(UINT format, HANDLE data) const { return m_isOpen && ::SetClipboardData(format, data) != nullptr; }

private:
    bool m_isOpen;
};

struct FileFilter {
    std::wstring name;
    std::wstring patterns; // with semicolons between them
};

/// The path that the user chose in the system's dialog; empty when there is none.
std::wstring AskForFile(HWND owner, const FileFilter& filter, const wchar_t* extension, DWORD flags,
                        BOOL(WINAPI* ask)(OPENFILENAMEW*)) {
    const std::wstring shown = boost::algorithm::replace_all_copy(filter.patterns, L";", L", ");
    const std::wstring filters = filter.name + L" (" + shown + L")" + L'\0' + filter.patterns + L'\0';
    std::array<wchar_t, 32768> path = {};
    OPENFILENAMEW question = {};
    question.lStructSize = sizeof question;
    question.hwndOwner = owner;
    question.lpstrFilter = filters.c_str();
    question.lpstrFile = path.data();
    question.nMaxFile = static_cast<DWORD>(path.size());
    question.lpstrDefExt = extension;
    question.Flags = flags | OFN_NOCHANGEDIR;
    return ask(&question) ? std::wstring(path.data()) : std::wstring();
}

} // namespace

bool PutPictureOnClipboard(HWND owner, CBitmap& picture) {
    if (!OpenedClipboard(owner).Put(CF_BITMAP, picture.GetSafeHandle())) {
        return false;
    }
    picture.Detach();
    return true;
}

bool PutTextOnClipboard(HWND owner, const std::wstring& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory) {
        return false;
    }
    std::memcpy(::GlobalLock(memory), text.c_str(), bytes);
    ::GlobalUnlock(memory);
    if (OpenedClipboard(owner).Put(CF_UNICODETEXT, memory)) {
        return true;
    }
    ::GlobalFree(memory);
    return false;
}

std::wstring AskForPictureFile(HWND owner, const std::wstring& filterName) {
    return AskForFile(owner, {filterName, L"*.png"}, L"png", OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST,
                      ::GetSaveFileNameW);
}

std::wstring AskForMapFile(HWND owner, const std::wstring& filterName) {
    return AskForFile(owner, {filterName, L"*.geojson;*.json"}, nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY,
                      ::GetOpenFileNameW);
}
