#include "picture_export.h"

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
    std::wstring filter = filterName + L" (*.png)";
    filter.append(1, L'\0').append(L"*.png").append(1, L'\0');
    std::array<wchar_t, 32768> path = {};
    OPENFILENAMEW question = {};
    question.lStructSize = sizeof question;
    question.hwndOwner = owner;
    question.lpstrFilter = filter.c_str();
    question.lpstrFile = path.data();
    question.nMaxFile = static_cast<DWORD>(path.size());
    question.lpstrDefExt = L"png";
    question.Flags = OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_NOCHANGEDIR;
    return ::GetSaveFileNameW(&question) ? std::wstring(path.data()) : std::wstring();
}

std::wstring AskForMapFile(HWND owner, const std::wstring& filterName) {
    std::wstring filter = filterName + L" (*.geojson, *.json)";
    filter.append(1, L'\0').append(L"*.geojson;*.json").append(1, L'\0');
    std::array<wchar_t, 32768> path = {};
    OPENFILENAMEW question = {};
    question.lStructSize = sizeof question;
    question.hwndOwner = owner;
    question.lpstrFilter = filter.c_str();
    question.lpstrFile = path.data();
    question.nMaxFile = static_cast<DWORD>(path.size());
    question.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    return ::GetOpenFileNameW(&question) ? std::wstring(path.data()) : std::wstring();
}

bool CutPicture(CBitmap& picture, const WindowBox& part, CBitmap& cut) {
    const int width = part.right - part.left;
    const int height = part.bottom - part.top;
    CClientDC screen(nullptr);
    CDC source;
    CDC target;
    if (width <= 0 || height <= 0 || !cut.CreateCompatibleBitmap(&screen, width, height) ||
        !source.CreateCompatibleDC(&screen) || !target.CreateCompatibleDC(&screen)) {
        return false;
    }
    CBitmap* const sourceBefore = source.SelectObject(&picture);
    CBitmap* const targetBefore = target.SelectObject(&cut);
    const BOOL isCut = target.BitBlt(0, 0, width, height, &source, part.left, part.top, SRCCOPY);
    source.SelectObject(sourceBefore);
    target.SelectObject(targetBefore);
    return isCut != FALSE;
}
