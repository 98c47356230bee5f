// The page as it reaches a device: a bitmap or a metafile in the printer's place.
#include "page_print.h"
#include "print_pages.h"

#include <gtest/gtest.h>

#include <winspool.h>

#include <vector>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(200, 20, 30);

/// A sheet of white pixels, as large as the device says.
class BitmapSheet {
public:
    BitmapSheet() {
        const CClientDC screen(nullptr);
        m_dc = ::CreateCompatibleDC(screen.GetSafeHdc());
        m_bitmap = ::CreateCompatibleBitmap(screen.GetSafeHdc(), Width(), Height());
        m_before = ::SelectObject(m_dc, m_bitmap);
        ::PatBlt(m_dc, 0, 0, Width(), Height(), WHITENESS);
    }
    ~BitmapSheet() {
        ::SelectObject(m_dc, m_before);
        ::DeleteDC(m_dc);
        ::DeleteObject(m_bitmap);
    }
    HDC Dc() const { return m_dc; }
    int Width() const { return ::GetDeviceCaps(m_dc, HORZRES); }
    int Height() const { return ::GetDeviceCaps(m_dc, VERTRES); }

private:
    HBITMAP m_bitmap = nullptr;
    HDC m_dc = nullptr;
    HGDIOBJ m_before = nullptr;
};

void MakePicture(CBitmap& picture, int width, int height) {
    CClientDC screen(nullptr);
    picture.CreateCompatibleBitmap(&screen, width, height);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap* const before = dc.SelectObject(&picture);
    dc.FillSolidRect(CRect(0, 0, width, height), kRed);
    dc.SelectObject(before);
}

int MarginOf(HDC dc) { return ::MulDiv(15, ::GetDeviceCaps(dc, LOGPIXELSX) * 10, 254); }

} // namespace

TEST(DrawOnSheet, APictureInTheSheetsProportionsFillsItBetweenItsMargins) {
    const BitmapSheet sheet;
    const int margin = MarginOf(sheet.Dc());
    const int right = sheet.Width() - margin, bottom = sheet.Height() - margin;
    CBitmap picture;
    MakePicture(picture, sheet.Width() - 2 * margin, sheet.Height() - 2 * margin);
    ASSERT_TRUE(DrawOnSheet(sheet.Dc(), picture));
    EXPECT_EQ(::GetPixel(sheet.Dc(), margin - 3, sheet.Height() / 2), kWhite);
    EXPECT_EQ(::GetPixel(sheet.Dc(), sheet.Width() / 2, bottom + 3), kWhite);
    EXPECT_EQ(::GetPixel(sheet.Dc(), margin + 3, margin + 3), kRed);
    EXPECT_EQ(::GetPixel(sheet.Dc(), right - 3, bottom - 3), kRed);
}

TEST(DrawOnSheet, AWidePictureKeepsItsProportions) {
    const BitmapSheet sheet;
    CBitmap picture;
    MakePicture(picture, 400, 50);
    ASSERT_TRUE(DrawOnSheet(sheet.Dc(), picture));
    const int height = (sheet.Width() - 2 * MarginOf(sheet.Dc())) / 8;
    const int middle = sheet.Height() / 2;
    EXPECT_EQ(::GetPixel(sheet.Dc(), sheet.Width() / 2, middle - height / 2 - 4), kWhite);
    EXPECT_EQ(::GetPixel(sheet.Dc(), sheet.Width() / 2, middle - height / 2 + 4), kRed);
}

TEST(DrawOnSheet, OfAPictureThatIsFinerThanTheSheetNoLineIsLeftOut) {
    const BitmapSheet sheet;
    const PrintSheet small{80, 80, 0, 0, 25, 25}; // its margins leave 50 pixels, a quarter of the picture's
    CBitmap picture;
    MakePicture(picture, 200, 200);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap* const before = dc.SelectObject(&picture);
    for (int line = 0; line < 200; line += 4) {
        dc.FillSolidRect(CRect(line + line / 4 % 4, 0, line + line / 4 % 4 + 1, 200), kWhite);
    }
    dc.SelectObject(before);
    ASSERT_TRUE(DrawOnSheet(sheet.Dc(), picture, small));
    for (int x = 16; x < 64; ++x) {
        const COLORREF seen = ::GetPixel(sheet.Dc(), x, 40);
        EXPECT_NEAR(GetGValue(seen), (3 * GetGValue(kRed) + 255) / 4, 2) << x;
    }
}

TEST(DrawOnSheet, AMetafileHoldsThePictureOnce) {
    const HDC recorder = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    CBitmap picture;
    MakePicture(picture, 300, 200);
    EXPECT_TRUE(DrawOnSheet(recorder, picture));
    const HENHMETAFILE file = ::CloseEnhMetaFile(recorder);
    int pictures = 0;
    const auto count = [](HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM total) -> int {
        *reinterpret_cast<int*>(total) += record->iType == EMR_STRETCHDIBITS ? 1 : 0;
        return TRUE;
    };
    ::EnumEnhMetaFile(nullptr, file, count, &pictures, nullptr);
    ::DeleteEnhMetaFile(file);
    EXPECT_EQ(pictures, 1);
}

TEST(Print, WhereNoPrinterIsSetUpNobodyIsAsked) {
    DWORD needed = 0;
    DWORD count = 0;
    if (!::EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 4, nullptr, 0, &needed, &count)) {
        GTEST_SKIP() << "this system has a printer";
    }
    CBitmap picture;
    MakePicture(picture, 30, 20);
    const PrintPages pages(picture, PageShape::Landscape, {}, {});
    EXPECT_EQ(Print(nullptr, pages, L"A page"), PrintOutcome::NoPrinter); // a question would never return
}
