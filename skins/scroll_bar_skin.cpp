// The scroll bar's colours and image files.
#include "scroll_bar_base.h"

#include "skins/scroll_images.h"

#include <afxglobals.h>
#include <tovasque/skin_files.h>
#include <varnhold/file_op.h>
#include <varnhold/message_box.h>
#include <varnhold/strings_mfc.h>

#include <utility>

namespace {

constexpr int kHorizontal = 0;
constexpr int kVertical = 1;
constexpr int kImagesOfDirection = 4;

/// By skin (black, silver), direction (horizontal, vertical) and image (arrows, thumb, pressed thumb).
constexpr const wchar_t* kPaths[2][2][kImagesOfDirection] = {
    {{L"pic\\skin\\black\\leftArrow.png", L"pic\\skin\\black\\rightArrow.png", L"pic\\skin\\black\\horizonNormal.png",
      L"pic\\skin\\black\\horizonClick.png"},
     {L"pic\\skin\\black\\upArrow.png", L"pic\\skin\\black\\downArrow.png", L"pic\\skin\\black\\verticalNormal.png",
      L"pic\\skin\\black\\verticalClick.png"}},
    {{L"pic\\skin\\silver\\leftArrow.png", L"pic\\skin\\silver\\rightArrow.png",
      L"pic\\skin\\silver\\horizonNormal.png", L"pic\\skin\\silver\\horizonClick.png"},
     {L"pic\\skin\\silver\\upArrow.png", L"pic\\skin\\silver\\downArrow.png", L"pic\\skin\\silver\\verticalNormal.png",
      L"pic\\skin\\silver\\verticalClick.png"}},
};

std::wstring Joined(const std::wstring& directory, const CString& path) {
    const bool isOpen = !directory.empty() && directory.back() != L'\\' && directory.back() != L'/';
    return directory + (isOpen ? L"\\" : L"") + CString2wstring(path);
}

/// The largest file that is there and not beyond the display's scale.
std::wstring FileForScale(const std::wstring& path) {
    const int percent = static_cast<int>(afxGlobalData.GetRibbonImageScale() * 100 + 0.5);
    for (const int larger : tovasque::kFilePercents) {
        if (larger <= percent) {
            if (std::wstring file = tovasque::FileForPercent(path, larger); FileOp::FileExist(file)) {
                return file;
            }
        }
    }
    return path;
}

} // namespace

CScrollBarBase::CScrollBarBase() : m_images(std::make_unique<ScrollImages>()) {
    static_assert(kImagesOfDirection == ImageCount && static_cast<int>(ScrollImages::Count) == ImageCount);
    for (const Skin skin : {Black, Silver}) {
        for (const int direction : {kHorizontal, kVertical}) {
            for (int image = 0; image < ImageCount; ++image) {
                m_paths[skin][direction][image] = kPaths[skin][direction][image];
            }
        }
    }
}

CScrollBarBase::~CScrollBarBase() = default;

void CScrollBarBase::SetSkin(UINT skin) {
    m_skin = skin;
    UpdateSkin(skin);
}

void CScrollBarBase::UpdateSkin(UINT skin) {
    std::wstring directory;
    if (m_usesAppPath && !FileOp::GetAppPath(directory)) {
        QKMessageBox(L"更新皮肤时，获取系统路径失败！", QK_MESSAGE_INFORMATION, GetSafeHwnd());
        return;
    }
    if (skin >= SkinCount) {
        return;
    }
    const bool isSilver = skin == Silver;
    m_bkColor = isSilver ? m_silverBkColor : m_blackBkColor;
    m_sideColor = isSilver ? m_silverSideColor : m_blackSideColor;
    std::array<std::wstring, ScrollImages::Count> files;
    for (int image = 0; image < ImageCount; ++image) {
        const std::wstring path = Joined(directory, Path(static_cast<Skin>(skin), static_cast<Image>(image)));
        m_currentPaths[image] = wstring2CString(path);
        files[image] = FileForScale(path);
    }
    m_images->SetFiles(files);
    if (GetSafeHwnd()) {
        Invalidate(FALSE);
    }
}

void CScrollBarBase::SetBlackBkColor(COLORREF color) {
    m_blackBkColor = color;
    if (m_skin == Black) {
        m_bkColor = color;
    }
}

void CScrollBarBase::SetSilverBkColor(COLORREF color) {
    m_silverBkColor = color;
    if (m_skin == Silver) {
        m_bkColor = color;
    }
}

void CScrollBarBase::SetBlackSideColor(COLORREF color) {
    m_blackSideColor = color;
    UpdateSkin(m_skin);
}

void CScrollBarBase::SetSilverSideColor(COLORREF color) {
    m_silverSideColor = color;
    UpdateSkin(m_skin);
}

CString CScrollBarBase::GetBlackNormalPath() const { return Path(Black, Thumb); }
CString CScrollBarBase::GetBlackClickPath() const { return Path(Black, PressedThumb); }
CString CScrollBarBase::GetSilverNormalPath() const { return Path(Silver, Thumb); }
CString CScrollBarBase::GetSilverClickPath() const { return Path(Silver, PressedThumb); }
CString CScrollBarBase::GetBlackTopOrLeftArrowPath() const { return Path(Black, FirstArrow); }
CString CScrollBarBase::GetBlackRightOrBottomArrowPath() const { return Path(Black, SecondArrow); }
CString CScrollBarBase::GetSilverTopOrLeftArrowPath() const { return Path(Silver, FirstArrow); }
CString CScrollBarBase::GetSilverRightOrBottomArrowPath() const { return Path(Silver, SecondArrow); }

void CScrollBarBase::SetBlackNormalPath(const CString& path) { SetPath(Black, Thumb, path); }
void CScrollBarBase::SetBlackClickPath(const CString& path) { SetPath(Black, PressedThumb, path); }
void CScrollBarBase::SetSilverNormalPath(const CString& path) { SetPath(Silver, Thumb, path); }
void CScrollBarBase::SetSilverClickPath(const CString& path) { SetPath(Silver, PressedThumb, path); }

void CScrollBarBase::SetBlackArrowPath(const CString& first, const CString& second) {
    SetPaths(Black, {first, second, Path(Black, Thumb), Path(Black, PressedThumb)}, m_usesAppPath);
}

void CScrollBarBase::SetSilverArrowPath(const CString& first, const CString& second) {
    SetPaths(Silver, {first, second, Path(Silver, Thumb), Path(Silver, PressedThumb)}, m_usesAppPath);
}

void CScrollBarBase::SetBlackPath(const CString& firstArrow, const CString& secondArrow, const CString& normal,
                                  const CString& click, bool useAppPath) {
    SetPaths(Black, {firstArrow, secondArrow, normal, click}, useAppPath);
}

void CScrollBarBase::SetSilverPath(const CString& firstArrow, const CString& secondArrow, const CString& normal,
                                   const CString& click, bool useAppPath) {
    SetPaths(Silver, {firstArrow, secondArrow, normal, click}, useAppPath);
}

void CScrollBarBase::SetPath(Skin skin, Image image, const CString& path) {
    Path(skin, image) = path;
    UpdateSkin(m_skin);
}

void CScrollBarBase::SetPaths(Skin skin, const std::array<CString, ImageCount>& paths, bool useAppPath) {
    m_paths[skin][m_isVertical ? kVertical : kHorizontal] = paths;
    m_usesAppPath = useAppPath;
    UpdateSkin(m_skin);
}
