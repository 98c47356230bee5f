#include "afxtoolbarimages.h"

#include "visual/image_source.h"

#include <afxcmn.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

// Lists as files, on the clipboard and from image lists; changes of colours; single bitmaps.

using visual::Picture;
using visual::PixelView;
using visual::ViewOf;

namespace {

struct SystemColor {
    COLORREF usual;
    int index;
};

/// The colours in which buttons are drawn by habit, and what they stand for.
constexpr std::array buttonColors = {
    SystemColor{RGB(0, 0, 0), COLOR_BTNTEXT},
    SystemColor{RGB(128, 128, 128), COLOR_BTNSHADOW},
    SystemColor{RGB(192, 192, 192), COLOR_BTNFACE},
    SystemColor{RGB(255, 255, 255), COLOR_BTNHIGHLIGHT},
};

COLORREF SwapRedAndBlue(COLORREF color) { return RGB(GetBValue(color), GetGValue(color), GetRValue(color)); }

COLORREF MapInOrder(COLORREF color, BOOL isRgbQuad, COLORREF (*map)(COLORREF)) {
    return isRgbQuad ? SwapRedAndBlue(map(SwapRedAndBlue(color))) : map(color);
}

COLORREF ToSystem(COLORREF color) {
    const auto* const found = std::ranges::find(buttonColors, color, &SystemColor::usual);
    return found != buttonColors.end() ? ::GetSysColor(found->index) : color;
}

COLORREF FromSystem(COLORREF color) {
    const auto isIt = [color](const SystemColor& entry) { return ::GetSysColor(entry.index) == color; };
    const auto* const found = std::ranges::find_if(buttonColors, isIt);
    return found != buttonColors.end() ? found->usual : color;
}

/// The system's colours for the usual ones, in the order of the table.
std::vector<COLORREF> PresentColors() {
    std::vector<COLORREF> present(buttonColors.size());
    std::ranges::transform(buttonColors, present.begin(),
                           [](const SystemColor& entry) { return ::GetSysColor(entry.index); });
    return present;
}

void ChangePixels(const PixelView& view, auto change) {
    const std::size_t count = static_cast<std::size_t>(view.width) * view.height;
    std::transform(view.bits, view.bits + count, view.bits, change);
}

bool IsClear(std::uint32_t pixel, bool hasAlpha, COLORREF transparent) {
    return hasAlpha ? visual::AlphaOf(pixel) == 0 : visual::ToColorRef(pixel) == transparent;
}

/// A global block with what it is filled with, for the clipboard; null when there is no memory.
HGLOBAL GlobalCopy(const BYTE* bytes, std::size_t size) {
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, size);
    if (block == nullptr) {
        return nullptr;
    }
    std::memcpy(::GlobalLock(block), bytes, size);
    ::GlobalUnlock(block);
    return block;
}

/// Replaces a strip by a changed copy of its rows.
bool ReplaceBitmap(HBITMAP& bitmap, auto change) {
    const HBITMAP copy = visual::CopyBitmap32(bitmap);
    if (copy == nullptr || !change(ViewOf(copy))) {
        ::DeleteObject(copy);
        return false;
    }
    ::DeleteObject(bitmap);
    bitmap = copy;
    return true;
}

class RegionRuns {
public:
    void Add(const RECT& run) { m_runs.push_back(run); }
    HRGN Create(int width, int height) const {
        if (m_runs.empty()) {
            return nullptr;
        }
        std::vector<BYTE> data(sizeof(RGNDATAHEADER) + m_runs.size() * sizeof(RECT));
        const RGNDATAHEADER header = {
            sizeof(RGNDATAHEADER), RDH_RECTANGLES, static_cast<DWORD>(m_runs.size()), 0, {0, 0, width, height}};
        std::memcpy(data.data(), &header, sizeof(header));
        std::memcpy(data.data() + sizeof(header), m_runs.data(), m_runs.size() * sizeof(RECT));
        return ::ExtCreateRegion(nullptr, static_cast<DWORD>(data.size()),
                                 reinterpret_cast<const RGNDATA*>(data.data()));
    }

private:
    std::vector<RECT> m_runs;
};

} // namespace

BOOL CMFCToolBarImages::CreateFromImageList(const CImageList& imageList) {
    int width = 0;
    int height = 0;
    const int count = imageList.GetImageCount();
    if (count == 0 || !::ImageList_GetIconSize(imageList.GetSafeHandle(), &width, &height)) {
        return FALSE;
    }
    Clear();
    m_sizeImage = CSize(width, height);
    for (int image = 0; image < count; ++image) {
        const HICON icon = ::ImageList_GetIcon(imageList.GetSafeHandle(), image, ILD_TRANSPARENT);
        const bool isAdded = icon != nullptr && AddIcon(icon, TRUE) == image;
        ::DestroyIcon(icon);
        if (!isAdded) {
            Clear();
            return FALSE;
        }
    }
    return TRUE;
}

HBITMAP CMFCToolBarImages::GetMask(int iImage) {
    if (iImage < 0 || iImage >= m_iCount) {
        return nullptr;
    }
    const PixelView well = ViewOf(m_hbmImageWell);
    const CRect source = GetSourceRect(iImage);
    const int rowBytes = (source.Width() + 15) / 16 * 2;
    std::vector<BYTE> bits(static_cast<std::size_t>(rowBytes) * source.Height());
    for (int y = 0; y < source.Height(); ++y) {
        for (int x = 0; x < source.Width(); ++x) {
            const bool isInside = source.left + x < well.width && y < well.height;
            if (!isInside || IsClear(well.At(source.left + x, y), m_nBitsPerPixel == 32, m_clrTransparent)) {
                bits[static_cast<std::size_t>(y) * rowBytes + x / 8] |= static_cast<BYTE>(0x80 >> x % 8);
            }
        }
    }
    return ::CreateBitmap(source.Width(), source.Height(), 1, 1, bits.data());
}

BOOL CMFCToolBarImages::Save(LPCTSTR lpszBmpFileName) {
    const CString name = lpszBmpFileName != nullptr ? CString(lpszBmpFileName) : m_strFile;
    if (!m_bUserImagesList || m_hbmImageWell == nullptr || name.IsEmpty()) {
        return FALSE;
    }
    TrimWell();
    const std::vector<BYTE> content = visual::BitmapFileFrom(ViewOf(m_hbmImageWell));
    CFile file;
    if (!file.Open(name, CFile::modeCreate | CFile::modeWrite)) {
        return FALSE;
    }
    try {
        file.Write(content.data(), static_cast<UINT>(content.size()));
        file.Close();
    } catch (CFileException* failure) {
        failure->Delete();
        return FALSE;
    }
    m_strFile = name;
    return TRUE;
}

BOOL CMFCToolBarImages::UpdateImage(int iImage, HBITMAP hbmp) {
    BITMAP info = {};
    if (!m_bUserImagesList || iImage < 0 || iImage >= m_iCount || ::GetObject(hbmp, sizeof(info), &info) == 0 ||
        CSize(info.bmWidth, std::abs(info.bmHeight)) != m_sizeImage) {
        return FALSE;
    }
    const Picture picture = visual::PictureFromBitmap(hbmp, m_bAutoCheckPremlt);
    if (picture.bitmap == nullptr) {
        return FALSE;
    }
    const PixelView added = ViewOf(picture.bitmap);
    if (picture.hasAlpha && m_nBitsPerPixel != 32) {
        ConvertTo32Bits();
    } else if (!picture.hasAlpha && m_nBitsPerPixel == 32) {
        ChangePixels(added,
                     [this](std::uint32_t pixel) { return IsClear(pixel, false, m_clrTransparent) ? 0 : pixel; });
    }
    visual::CopyPixels(added, CRect(CPoint(0, 0), m_sizeImage), ViewOf(m_hbmImageWell), iImage * m_sizeImage.cx);
    m_larger.erase(iImage);
    ::DeleteObject(picture.bitmap);
    return TRUE;
}

BOOL CMFCToolBarImages::CopyImageToClipboard(int iImage) {
    if (iImage < 0 || iImage >= m_iCount) {
        return FALSE;
    }
    std::vector<std::uint32_t> rows(static_cast<std::size_t>(m_sizeImage.cx) * m_sizeImage.cy);
    const PixelView image{rows.data(), m_sizeImage.cx, m_sizeImage.cy};
    visual::CopyPixels(ViewOf(m_hbmImageWell), GetSourceRect(iImage), image, 0);
    const std::vector<BYTE> file = visual::BitmapFileFrom(image);
    // Somebody must own what goes into the clipboard while it is put there.
    const std::unique_ptr<std::remove_pointer_t<HWND>, decltype(&::DestroyWindow)> owner(
        ::CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr),
        &::DestroyWindow);
    if (!::OpenClipboard(owner.get())) {
        return FALSE;
    }
    ::EmptyClipboard();
    // A device independent bitmap on the clipboard is the file without the file's header.
    const HGLOBAL block = GlobalCopy(file.data() + sizeof(BITMAPFILEHEADER), file.size() - sizeof(BITMAPFILEHEADER));
    const bool isSet = block != nullptr && ::SetClipboardData(CF_DIB, block) != nullptr;
    if (block != nullptr && !isSet) {
        ::GlobalFree(block);
    }
    ::CloseClipboard();
    return isSet;
}

void CMFCToolBarImages::AdaptColors(COLORREF clrBase, COLORREF clrTone) {
    const bool hasAlpha = m_nBitsPerPixel == 32;
    ChangePixels(ViewOf(m_hbmImageWell), [=, transparent = m_clrTransparent](std::uint32_t pixel) {
        if (IsClear(pixel, hasAlpha, transparent)) {
            return pixel;
        }
        const int alpha = static_cast<int>(visual::AlphaOf(pixel));
        const auto moved = [alpha](unsigned channel, int base, int tone) {
            // Colours are multiplied by alpha, so the way is, too.
            return static_cast<unsigned>(std::clamp(static_cast<int>(channel) + (tone - base) * alpha / 255, 0, alpha));
        };
        return visual::MakeArgb(static_cast<unsigned>(alpha),
                                moved(visual::RedOf(pixel), GetRValue(clrBase), GetRValue(clrTone)),
                                moved(visual::GreenOf(pixel), GetGValue(clrBase), GetGValue(clrTone)),
                                moved(visual::BlueOf(pixel), GetBValue(clrBase), GetBValue(clrTone)));
    });
    for (const auto& [index, larger] : m_larger) {
        larger->AdaptColors(clrBase, clrTone);
    }
}

BOOL CMFCToolBarImages::MapTo3dColors(BOOL, COLORREF clrSrc, COLORREF clrDest) {
    if (m_hbmImageWell == nullptr || m_nBitsPerPixel == 32 || !m_bMapTo3DColors) {
        return FALSE;
    }
    const bool isOneColor = clrSrc != static_cast<COLORREF>(-1);
    ChangePixels(ViewOf(m_hbmImageWell), [=, transparent = m_clrTransparent](std::uint32_t pixel) {
        const COLORREF color = visual::ToColorRef(pixel);
        if (isOneColor) {
            return color == clrSrc ? visual::FromColorRef(clrDest) : pixel;
        }
        return color == transparent ? pixel : visual::FromColorRef(ToSystem(color));
    });
    if (!isOneColor) {
        m_mappedColors = PresentColors();
    }
    return TRUE;
}

// What was mapped to the system's colours follows them.
void CMFCToolBarImages::OnSysColorChange() {
    if (m_mappedColors.empty()) {
        return;
    }
    const std::vector<COLORREF> before = std::exchange(m_mappedColors, PresentColors());
    ChangePixels(ViewOf(m_hbmImageWell), [&](std::uint32_t pixel) {
        const COLORREF color = visual::ToColorRef(pixel);
        const auto found = std::ranges::find(before, color);
        const bool isMapped = found != before.end() && color != m_clrTransparent;
        return isMapped ? visual::FromColorRef(m_mappedColors[found - before.begin()]) : pixel;
    });
}

COLORREF __stdcall CMFCToolBarImages::MapToSysColor(COLORREF color, BOOL bUseRGBQUAD) {
    return MapInOrder(color, bUseRGBQUAD, &ToSystem);
}

COLORREF __stdcall CMFCToolBarImages::MapFromSysColor(COLORREF color, BOOL bUseRGBQUAD) {
    return MapInOrder(color, bUseRGBQUAD, &FromSystem);
}

HRGN __stdcall CMFCToolBarImages::CreateRegionFromImage(HBITMAP bmp, COLORREF clrTransparent) {
    const HBITMAP copy = visual::CopyBitmap32(bmp);
    const PixelView view = ViewOf(copy);
    RegionRuns runs;
    for (int y = 0; y < view.height; ++y) {
        int start = -1;
        for (int x = 0; x <= view.width; ++x) {
            const bool isPart = x < view.width && visual::ToColorRef(view.At(x, y)) != clrTransparent;
            if (isPart && start < 0) {
                start = x;
            } else if (!isPart && start >= 0) {
                runs.Add({start, y, x, y + 1});
                start = -1;
            }
        }
    }
    const HRGN region = runs.Create(view.width, view.height);
    ::DeleteObject(copy);
    return region;
}

BOOL CMFCToolBarImages::MirrorBitmap(HBITMAP& hbmp, int cxImage) {
    return ReplaceBitmap(hbmp, [cxImage](const PixelView& view) {
        if (cxImage <= 0 || view.width % cxImage != 0) {
            return false;
        }
        for (int y = 0; y < view.height; ++y) {
            for (int left = 0; left < view.width; left += cxImage) {
                std::reverse(&view.At(left, y), &view.At(left, y) + cxImage);
            }
        }
        return true;
    });
}

BOOL __stdcall CMFCToolBarImages::MirrorBitmapVert(HBITMAP& hbmp, int cyImage) {
    return ReplaceBitmap(hbmp, [cyImage](const PixelView& view) {
        if (cyImage <= 0 || view.height % cyImage != 0) {
            return false;
        }
        for (int top = 0; top < view.height; top += cyImage) {
            for (int y = 0; y < cyImage / 2; ++y) {
                std::swap_ranges(&view.At(0, top + y), &view.At(0, top + y) + view.width,
                                 &view.At(0, top + cyImage - 1 - y));
            }
        }
        return true;
    });
}

BOOL __stdcall CMFCToolBarImages::PreMultiplyAlpha(HBITMAP hbmp, BOOL bAutoCheckPremlt) {
    BITMAP info = {};
    if (::GetObject(hbmp, sizeof(info), &info) == 0 || info.bmBitsPixel != 32 || info.bmBits == nullptr) {
        return FALSE;
    }
    visual::PreMultiply(ViewOf(hbmp), bAutoCheckPremlt != FALSE);
    return TRUE;
}

BOOL CMFCToolBarImages::PreMultiplyAlpha(HBITMAP hbmp) { return PreMultiplyAlpha(hbmp, m_bAutoCheckPremlt); }
