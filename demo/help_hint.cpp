#include "help_hint.h"

#include "library_context.h"
#include "tooltip_ctrl_ex.h"

#include <filesystem>
#include <utility>

namespace {

constexpr int kLargeSide = 32;
constexpr int kSmallSide = 16;

HICON LoadHint(const std::wstring& folder, int side) {
    const CString path = GetIconPathStr(folder + L"help.ico", side);
    return static_cast<HICON>(::LoadImageW(nullptr, path, IMAGE_ICON, side, side, LR_LOADFROMFILE));
}

void Replace(HICON& icon, HICON other) {
    if (const HICON earlier = std::exchange(icon, other); earlier != nullptr) {
        ::DestroyIcon(earlier);
    }
}

} // namespace

HelpHint::~HelpHint() {
    CToolTipCtrlEx::m_hIconLargeBottom = nullptr;
    CToolTipCtrlEx::m_hIconSmallBottom = nullptr;
    Replace(m_large, nullptr);
    Replace(m_small, nullptr);
}

bool HelpHint::HasVideos() {
    CString folder;
    std::error_code ignored;
    return GetHaveMedias_Brevant(folder) && std::filesystem::is_directory(std::wstring(folder.GetString()), ignored);
}

std::wstring HelpHint::FileOf(UINT id) {
    CString folder;
    const CString name = GetHelpFileName(static_cast<int>(id), CString());
    if (name.IsEmpty() || !GetHaveMedias_Brevant(folder)) {
        return {};
    }
    const std::wstring file = (folder + name).GetString();
    std::error_code ignored;
    return std::filesystem::is_regular_file(file, ignored) ? file : std::wstring();
}

void HelpHint::TakeIcons(const wchar_t* folder) {
    Replace(m_large, LoadHint(folder, kLargeSide));
    Replace(m_small, LoadHint(folder, kSmallSide));
    CToolTipCtrlEx::m_hIconLargeBottom = m_large;
    CToolTipCtrlEx::m_hIconSmallBottom = m_small;
}
