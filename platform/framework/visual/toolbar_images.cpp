#include "afxtoolbarimages.h"

#include "fx/geometry.h"
#include "visual/image_source.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

using visual::CopyPixels;
using visual::Picture;
using visual::PixelView;
using visual::ViewOf;

IMPLEMENT_DYNAMIC(CMFCToolBarImages, CObject)

BOOL CMFCToolBarImages::m_bDisableTrueColorAlpha = FALSE;
BYTE CMFCToolBarImages::m_nDisabledImageAlpha = 127;
BYTE CMFCToolBarImages::m_nFadedImageAlpha = 150;
BOOL CMFCToolBarImages::m_bIsRTL = FALSE;

CMFCToolBarImages::CMFCToolBarImages() = default;

CMFCToolBarImages::~CMFCToolBarImages() { Clear(); }

void CMFCToolBarImages::Clear() {
    SetWell(nullptr);
    m_iCount = 0;
    m_nBitsPerPixel = 0;
    m_dblScale = 1.0;
    m_strFile.Empty();
    m_mapOffsets.RemoveAll();
    m_mappedColors.clear();
    m_larger.clear();
}

void CMFCToolBarImages::SetWell(HBITMAP hbmp, int nSpare) {
    if (m_hbmImageWell != nullptr && m_hbmImageWell != hbmp) {
        ::DeleteObject(m_hbmImageWell);
    }
    m_hbmImageWell = hbmp;
    m_nSpare = nSpare;
}

void CMFCToolBarImages::UpdateCount() {
    const int width = ViewOf(m_hbmImageWell).width - m_nSpare;
    m_iCount = m_sizeImage.cx > 0 ? width / static_cast<int>(m_sizeImage.cx) : 0;
}

void CMFCToolBarImages::TrimWell() {
    const PixelView source = ViewOf(m_hbmImageWell);
    std::uint32_t* bits = nullptr;
    const int width = source.width - m_nSpare;
    const HBITMAP exact = m_nSpare > 0 ? visual::MakeBitmap32(width, source.height, &bits) : nullptr;
    if (exact != nullptr) {
        CopyPixels(source, CRect(0, 0, width, source.height), {bits, width, source.height}, 0);
        SetWell(exact);
    }
}

// Who asks for the bitmap finds the same images in it whether the list has room for more or not.
HBITMAP CMFCToolBarImages::GetImageWell() const {
    const_cast<CMFCToolBarImages*>(this)->TrimWell();
    return m_hbmImageWell;
}

CRect CMFCToolBarImages::GetSourceRect(int nIndex) const {
    return CRect(CPoint(nIndex * m_sizeImage.cx, 0), m_sizeImage);
}

BOOL CMFCToolBarImages::Append(HBITMAP hbmp, BOOL bHasAlpha) {
    const PixelView added = ViewOf(hbmp);
    if (added.bits == nullptr) {
        return FALSE;
    }
    // A list with alpha keeps it; pixels of the transparent colour become clear when lists of both kinds meet.
    const bool isMixed = m_hbmImageWell != nullptr && (m_nBitsPerPixel == 32) != (bHasAlpha != FALSE);
    if (isMixed && bHasAlpha) {
        ConvertTo32Bits();
    }
    if (isMixed && !bHasAlpha) {
        for (int i = 0; i < added.width * added.height; ++i) {
            if (visual::ToColorRef(added.bits[i]) == m_clrTransparent) {
                added.bits[i] = 0;
            }
        }
    }

    const PixelView present = ViewOf(m_hbmImageWell);
    const int kept = m_iCount * m_sizeImage.cx;
    const int width = kept + added.width;
    // A list that grows image by image gets room for as many again: the copies would cost the square of its length.
    const bool hasRoom = present.height >= added.height && present.width >= width;
    const int wide = hasRoom ? present.width : m_hbmImageWell != nullptr ? std::max(width, 2 * kept) : width;
    const int height = std::max(present.height, added.height);
    std::uint32_t* bits = present.bits;
    const HBITMAP joined = hasRoom ? m_hbmImageWell : visual::MakeBitmap32(wide, height, &bits);
    if (joined != nullptr) {
        const PixelView target{bits, wide, height};
        if (!hasRoom) {
            CopyPixels(present, CRect(0, 0, kept, present.height), target, 0);
        }
        for (int y = added.height; hasRoom && y < height; ++y) {
            std::fill_n(&target.At(kept, y), added.width, 0u); // what was done to all pixels has touched these, too
        }
        CopyPixels(added, CRect(0, 0, added.width, added.height), target, kept);
        SetWell(joined, wide - width);
        if (m_nBitsPerPixel != 32) {
            m_nBitsPerPixel = bHasAlpha ? 32 : 24;
        }
        UpdateCount();
    }
    ::DeleteObject(hbmp);
    return joined != nullptr;
}

// Soft edges are kept whether blending is asked for or not: cut to whole pixels, slanting lines of an icon are jagged.
int CMFCToolBarImages::AddIcon(HICON hIcon, BOOL /*bAlphaBlend*/) {
    const Picture picture = visual::PictureFromIcon(hIcon, m_sizeImage);
    return picture.bitmap != nullptr && Append(picture.bitmap, TRUE) ? m_iCount - 1 : -1;
}

BOOL CMFCToolBarImages::SetLargerIcon(int nIndex, HICON hIcon, SIZE sizeIcon) {
    const bool isLarger = sizeIcon.cx > m_sizeImage.cx && sizeIcon.cy > m_sizeImage.cy;
    if (nIndex < 0 || nIndex >= m_iCount || !isLarger) {
        return FALSE;
    }
    auto larger = std::make_unique<CMFCToolBarImages>();
    larger->SetImageSize(sizeIcon);
    if (larger->AddIcon(hIcon) < 0) {
        return FALSE;
    }
    m_larger[nIndex] = std::move(larger);
    return TRUE;
}

// One that is too small is still nearer to what is drawn than the list's own. The list may have been resized meanwhile.
const CMFCToolBarImages* CMFCToolBarImages::LargerFor(int nIndex, SIZE sizeDrawn) const {
    const auto found = m_larger.find(nIndex);
    const bool isEnlarged = sizeDrawn.cx > m_sizeImage.cx || sizeDrawn.cy > m_sizeImage.cy;
    if (!isEnlarged || found == m_larger.end() || found->second->m_sizeImage.cx <= m_sizeImage.cx) {
        return nullptr;
    }
    return found->second.get();
}

int CMFCToolBarImages::AddImage(HBITMAP hbmp, BOOL) {
    const Picture picture = visual::PictureFromBitmap(hbmp, m_bAutoCheckPremlt);
    const int first = m_iCount;
    return picture.bitmap != nullptr && Append(picture.bitmap, picture.hasAlpha) ? first : -1;
}

int CMFCToolBarImages::AddImage(const CMFCToolBarImages& imageList, int nIndex) {
    if (nIndex < 0 || nIndex >= imageList.m_iCount || imageList.m_sizeImage != m_sizeImage) {
        return -1;
    }
    const auto withLarger = [this, &imageList, nIndex](int added) {
        const auto found = imageList.m_larger.find(nIndex);
        if (found != imageList.m_larger.end()) {
            auto larger = std::make_unique<CMFCToolBarImages>();
            if (found->second->CopyTo(*larger)) {
                m_larger[added] = std::move(larger);
            }
        }
        return added;
    };
    const PixelView well = ViewOf(m_hbmImageWell);
    const int kept = m_iCount * m_sizeImage.cx;
    const bool isAlike = m_nBitsPerPixel == imageList.m_nBitsPerPixel && well.height == m_sizeImage.cy;
    if (isAlike && well.width >= kept + m_sizeImage.cx) {
        const PixelView source = &imageList == this ? well : ViewOf(imageList.m_hbmImageWell);
        CopyPixels(source, imageList.GetSourceRect(nIndex), well, kept);
        m_nSpare = well.width - kept - m_sizeImage.cx;
        return withLarger(m_iCount++);
    }
    std::uint32_t* bits = nullptr;
    const HBITMAP one = visual::MakeBitmap32(m_sizeImage.cx, m_sizeImage.cy, &bits);
    if (one == nullptr) {
        return -1;
    }
    CopyPixels(ViewOf(imageList.m_hbmImageWell), imageList.GetSourceRect(nIndex),
               {bits, m_sizeImage.cx, m_sizeImage.cy}, 0);
    return Append(one, imageList.m_nBitsPerPixel == 32) ? withLarger(m_iCount - 1) : -1;
}

BOOL CMFCToolBarImages::Load(UINT uiResID, HINSTANCE hinstRes, BOOL bAdd) {
    int offset = 0;
    if (bAdd && m_mapOffsets.Lookup(uiResID, offset)) {
        return TRUE;
    }
    const int before = bAdd ? m_iCount : 0;
    if (!LoadStr(MAKEINTRESOURCE(uiResID), hinstRes, bAdd)) {
        return FALSE;
    }
    m_mapOffsets.SetAt(uiResID, before);
    return TRUE;
}

BOOL CMFCToolBarImages::LoadStr(LPCTSTR lpszResourceName, HINSTANCE hinstRes, BOOL bAdd) {
    if (hinstRes == nullptr) {
        const bool isPng = FindResourceW(AfxFindResourceHandle(lpszResourceName, L"PNG"), lpszResourceName, L"PNG");
        hinstRes = AfxFindResourceHandle(lpszResourceName, isPng ? L"PNG" : RT_BITMAP);
    }
    const Picture picture = visual::PictureFromResource(hinstRes, lpszResourceName);
    if (picture.bitmap == nullptr) {
        return FALSE;
    }
    if (!bAdd) {
        Clear();
    }
    m_bReadOnly = TRUE;
    return Append(picture.bitmap, picture.hasAlpha);
}

BOOL CMFCToolBarImages::Load(LPCTSTR lpszBmpFileName, DWORD nMaxFileSize) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(lpszBmpFileName, GetFileExInfoStandard, &data)) {
        return FALSE;
    }
    if (nMaxFileSize != 0 && (data.nFileSizeHigh != 0 || data.nFileSizeLow > nMaxFileSize)) {
        return FALSE;
    }
    const Picture picture = visual::PictureFromFile(lpszBmpFileName);
    if (picture.bitmap == nullptr) {
        return FALSE;
    }
    Clear();
    m_strFile = lpszBmpFileName;
    m_bUserImagesList = TRUE;
    m_bReadOnly = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    return Append(picture.bitmap, picture.hasAlpha);
}

BOOL CMFCToolBarImages::CopyTo(CMFCToolBarImages& imageList) {
    if (&imageList == this) {
        return FALSE;
    }
    imageList.Clear();
    imageList.m_sizeImage = m_sizeImage;
    imageList.m_sizeImageDest = m_sizeImageDest;
    imageList.m_nLightPercentage = m_nLightPercentage;
    imageList.m_bAlwaysLight = m_bAlwaysLight;
    imageList.m_clrTransparent = m_clrTransparent;
    imageList.m_bMapTo3DColors = m_bMapTo3DColors;
    imageList.m_bReadOnly = m_bReadOnly;
    if (m_hbmImageWell != nullptr) {
        const PixelView source = ViewOf(m_hbmImageWell);
        std::uint32_t* bits = nullptr;
        const HBITMAP copy = visual::MakeBitmap32(source.width, source.height, &bits);
        if (copy == nullptr) {
            return FALSE;
        }
        std::copy_n(source.bits, static_cast<std::size_t>(source.width) * source.height, bits);
        imageList.SetWell(copy, m_nSpare);
    }
    imageList.m_iCount = m_iCount;
    imageList.m_nBitsPerPixel = m_nBitsPerPixel;
    imageList.m_dblScale = m_dblScale;
    imageList.m_mappedColors = m_mappedColors;
    for (POSITION position = m_mapOffsets.GetStartPosition(); position != nullptr;) {
        UINT id = 0;
        int offset = 0;
        m_mapOffsets.GetNextAssoc(position, id, offset);
        imageList.m_mapOffsets.SetAt(id, offset);
    }
    for (const auto& [index, larger] : m_larger) {
        auto copy = std::make_unique<CMFCToolBarImages>();
        if (!larger->CopyTo(*copy)) {
            return FALSE;
        }
        imageList.m_larger[index] = std::move(copy);
    }
    return TRUE;
}

BOOL CMFCToolBarImages::DeleteImage(int iImage) {
    if (iImage < 0 || iImage >= m_iCount) {
        return FALSE;
    }
    const PixelView source = ViewOf(m_hbmImageWell);
    const int step = m_sizeImage.cx, width = (m_iCount - 1) * step;
    if (width == 0) {
        SetWell(nullptr);
        m_iCount = 0;
        m_larger.clear();
        return TRUE;
    }
    std::uint32_t* bits = nullptr;
    const HBITMAP rest = visual::MakeBitmap32(width, source.height, &bits);
    if (rest == nullptr) {
        return FALSE;
    }
    const PixelView target{bits, width, source.height};
    CopyPixels(source, CRect(0, 0, iImage * step, source.height), target, 0);
    CopyPixels(source, CRect((iImage + 1) * step, 0, m_iCount * step, source.height), target, iImage * step);
    SetWell(rest);
    --m_iCount;
    std::map<int, std::unique_ptr<CMFCToolBarImages>> kept;
    for (auto& [index, larger] : m_larger) {
        if (index != iImage) {
            kept[index > iImage ? index - 1 : index] = std::move(larger);
        }
    }
    m_larger = std::move(kept);
    return TRUE;
}

void CMFCToolBarImages::SetImageSize(SIZE sizeImage, BOOL bUpdateCount) {
    if (m_sizeImage != CSize(sizeImage)) {
        m_larger.clear(); // the images are others now
    }
    m_sizeImage = sizeImage;
    if (bUpdateCount) {
        UpdateCount();
    }
}

SIZE CMFCToolBarImages::GetImageSize(BOOL bDest) const {
    return bDest && m_sizeImageDest != CSize(0, 0) ? m_sizeImageDest : m_sizeImage;
}

void CMFCToolBarImages::SetSingleImage() {
    TrimWell();
    m_larger.clear();
    const PixelView view = ViewOf(m_hbmImageWell);
    m_sizeImage = CSize(view.width, view.height);
    m_iCount = view.bits != nullptr ? 1 : 0;
}

COLORREF CMFCToolBarImages::SetTransparentColor(COLORREF clrTransparent) {
    return std::exchange(m_clrTransparent, clrTransparent);
}

int CMFCToolBarImages::GetResourceOffset(UINT uiResId) const {
    int offset = 0;
    return m_mapOffsets.Lookup(uiResId, offset) ? offset : -1;
}

HICON CMFCToolBarImages::ExtractIcon(int nIndex) {
    if (nIndex < 0 || nIndex >= m_iCount) {
        return nullptr;
    }
    std::uint32_t* bits = nullptr;
    ICONINFO info{};
    info.fIcon = TRUE;
    info.hbmColor = visual::MakeBitmap32(m_sizeImage.cx, m_sizeImage.cy, &bits);
    const std::vector<BYTE> clear((m_sizeImage.cx + 15) / 16 * 2 * m_sizeImage.cy);
    info.hbmMask = CreateBitmap(m_sizeImage.cx, m_sizeImage.cy, 1, 1, clear.data());
    HICON icon = nullptr;
    if (info.hbmColor != nullptr && info.hbmMask != nullptr) {
        const PixelView target{bits, m_sizeImage.cx, m_sizeImage.cy};
        CopyPixels(ViewOf(m_hbmImageWell), GetSourceRect(nIndex), target, 0);
        for (int i = 0; i < target.width * target.height; ++i) {
            const std::uint32_t pixel = bits[i];
            const unsigned alpha = visual::AlphaOf(pixel);
            const bool isClear = alpha == 0 || (m_nBitsPerPixel != 32 && visual::ToColorRef(pixel) == m_clrTransparent);
            const auto whole = [alpha](unsigned channel) {
                return std::min(channel * 255 / std::max(alpha, 1u), 255u);
            };
            bits[i] = isClear ? 0
                              : visual::MakeArgb(alpha, whole(visual::RedOf(pixel)), whole(visual::GreenOf(pixel)),
                                                 whole(visual::BlueOf(pixel)));
        }
        icon = CreateIconIndirect(&info);
    }
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return icon;
}

BOOL CMFCToolBarImages::ConvertTo32Bits(COLORREF clrTransparent) {
    if (m_hbmImageWell == nullptr || m_nBitsPerPixel == 32) {
        return FALSE;
    }
    const COLORREF clear = clrTransparent == static_cast<COLORREF>(-1) ? m_clrTransparent : clrTransparent;
    const PixelView view = ViewOf(m_hbmImageWell);
    for (int i = 0; i < view.width * view.height; ++i) {
        if (visual::ToColorRef(view.bits[i]) == clear) {
            view.bits[i] = 0;
        }
    }
    m_nBitsPerPixel = 32;
    return TRUE;
}

BOOL CMFCToolBarImages::GrayImages(int nGrayImageLuminancePercentage) {
    if (m_hbmImageWell == nullptr || nGrayImageLuminancePercentage < 0) {
        return FALSE;
    }
    ConvertTo32Bits();
    const PixelView view = ViewOf(m_hbmImageWell);
    for (int i = 0; i < view.width * view.height; ++i) {
        const std::uint32_t pixel = view.bits[i];
        const unsigned luma =
            (visual::RedOf(pixel) * 77 + visual::GreenOf(pixel) * 151 + visual::BlueOf(pixel) * 28) >> 8;
        const unsigned percent = nGrayImageLuminancePercentage == 0 ? 130 : nGrayImageLuminancePercentage;
        const unsigned grey = std::min(luma * percent / 100, visual::AlphaOf(pixel));
        view.bits[i] = visual::MakeArgb(visual::AlphaOf(pixel), grey, grey, grey);
    }
    for (const auto& [index, larger] : m_larger) {
        larger->GrayImages(nGrayImageLuminancePercentage);
    }
    return TRUE;
}

BOOL CMFCToolBarImages::Mirror() {
    const PixelView view = ViewOf(m_hbmImageWell);
    if (view.bits == nullptr) {
        return FALSE;
    }
    for (int image = 0; image < m_iCount; ++image) {
        for (int y = 0; y < view.height; ++y) {
            std::reverse(&view.At(image * m_sizeImage.cx, y), &view.At(image * m_sizeImage.cx, y) + m_sizeImage.cx);
        }
    }
    for (const auto& [index, larger] : m_larger) {
        larger->Mirror();
    }
    return TRUE;
}

BOOL CMFCToolBarImages::MirrorVert() {
    const PixelView view = ViewOf(m_hbmImageWell);
    if (view.bits == nullptr) {
        return FALSE;
    }
    const int height = std::min<int>(m_sizeImage.cy, view.height);
    for (int y = 0; y < height / 2; ++y) {
        std::swap_ranges(&view.At(0, y), &view.At(0, y) + view.width, &view.At(0, height - 1 - y));
    }
    for (const auto& [index, larger] : m_larger) {
        larger->MirrorVert();
    }
    return TRUE;
}

BOOL CMFCToolBarImages::SmoothResize(double dblImageScale) {
    if (m_hbmImageWell == nullptr || dblImageScale <= 0 || dblImageScale == 1.0) {
        return FALSE;
    }
    ConvertTo32Bits();
    const CSize size(fx::Scaled(m_sizeImage.cx, dblImageScale), fx::Scaled(m_sizeImage.cy, dblImageScale));
    std::uint32_t* bits = nullptr;
    const HBITMAP resized = visual::MakeBitmap32(size.cx * m_iCount, size.cy, &bits);
    if (resized == nullptr) {
        return FALSE;
    }
    const PixelView target{bits, static_cast<int>(size.cx) * m_iCount, size.cy};
    std::vector<std::uint32_t> to(static_cast<std::size_t>(size.cx) * size.cy);
    for (int image = 0; image < m_iCount; ++image) {
        // One image at a time, so that neighbours do not run into each other.
        const CMFCToolBarImages* const larger = LargerFor(image, size);
        const CMFCToolBarImages& source = larger != nullptr ? *larger : *this;
        const CRect place = source.GetSourceRect(larger != nullptr ? 0 : image);
        std::vector<std::uint32_t> from(static_cast<std::size_t>(place.Width()) * place.Height());
        const PixelView one{from.data(), place.Width(), place.Height()}, scaled{to.data(), size.cx, size.cy};
        CopyPixels(ViewOf(source.m_hbmImageWell), place, one, 0);
        visual::Resample(one, scaled);
        CopyPixels(scaled, CRect(0, 0, size.cx, size.cy), target, image * size.cx);
    }
    SetWell(resized);
    m_sizeImage = size;
    m_dblScale *= dblImageScale;
    return TRUE;
}

void CMFCToolBarImages::SetLightPercentage(int nValue) { m_nLightPercentage = nValue; }

void __stdcall CMFCToolBarImages::EnableRTL(BOOL bIsRTL) { m_bIsRTL = bIsRTL; }
