// Picture files that are none, or that claim too much.
#include "skins/skin_picture.h"

#include "tests/ui/scroll_bar/bar_fixture.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

class ScrollBarPicture : public ScrollBarTest {
protected:
    std::filesystem::path File() const { return m_folder.Path() / "pic/skin/black/verticalNormal.png"; }
    std::string Bytes() const {
        std::ifstream file(File(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void ExpectNoThumb() {
        Open();
        EXPECT_EQ(Shown(m_bar).Colours(m_bar.m_track), (std::set<COLORREF>{RGB(75, 80, 90)}));
    }
};

void SetSide(std::string& png, std::size_t offset, unsigned side) {
    for (int i = 0; i < 4; ++i) {
        png[offset + i] = static_cast<char>(side >> (8 * (3 - i)) & 0xFF);
    }
}

TEST_F(ScrollBarPicture, AnEmptyFileIsLeftOut) {
    m_folder.Write("pic/skin/black/verticalNormal.png", "");
    ExpectNoThumb();
}

TEST_F(ScrollBarPicture, AFileThatIsNoPictureIsLeftOut) {
    m_folder.Write("pic/skin/black/verticalNormal.png", "no picture at all, but long enough to be read as a header");
    ExpectNoThumb();
}

TEST_F(ScrollBarPicture, ATruncatedHeaderIsLeftOut) {
    const std::string whole = Bytes();
    ASSERT_GT(whole.size(), 40U);
    for (const std::size_t length : {1U, 7U, 8U, 20U, 23U, 24U, 30U}) {
        m_folder.Write("pic/skin/black/verticalNormal.png", whole.substr(0, length));
        SkinPicture picture;
        picture.Take(File().wstring());
        EXPECT_EQ(picture.Get(), nullptr) << length;
    }
}

TEST_F(ScrollBarPicture, OneCutInItsPixelsIsLeftOut) {
    m_folder.Write("pic/skin/black/verticalNormal.png", Bytes().substr(0, Bytes().size() / 2));
    ExpectNoThumb();
}

// A decoder makes a picture of it all the same; some do wherever it is cut.
TEST_F(ScrollBarPicture, OneCutInItsLastBytesIsLeftOut) {
    m_folder.Write("pic/skin/black/verticalNormal.png", Bytes().substr(0, Bytes().size() - 2));
    ExpectNoThumb();
}

TEST_F(ScrollBarPicture, OneCutAnywhereIsLeftOut) {
    const std::string whole = Bytes();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        m_folder.Write("pic/skin/black/verticalNormal.png", whole.substr(0, length));
        SkinPicture picture;
        picture.Take(File().wstring());
        EXPECT_EQ(picture.Get(), nullptr) << length << " of " << whole.size();
    }
    m_folder.Write("pic/skin/black/verticalNormal.png", whole);
    SkinPicture picture;
    picture.Take(File().wstring());
    EXPECT_NE(picture.Get(), nullptr);
}

/// Of one colour all over, so that every colour gives a file of the same length.
void WritePlainThumb(const TemporaryDirectory& folder, COLORREF colour) {
    WriteSkinPicture(folder, "pic/skin/black/verticalNormal.png", CSize(18, 60), [=](int, int) { return colour; });
}

TEST_F(ScrollBarPicture, AReplacementOfTheSameLengthAndTheSameTimeIsSeenWhereTheTimeIsThisMoment) {
    WritePlainThumb(m_folder, RGB(10, 20, 30));
    const auto written = SetWritten(File(), std::chrono::seconds(0));
    const auto length = std::filesystem::file_size(File());
    Open();
    EXPECT_EQ(Shown(m_bar).At(m_bar.ThumbMiddle()), RGB(10, 20, 30));
    for (const COLORREF colour : {RGB(40, 50, 60), RGB(70, 80, 90)}) {
        WritePlainThumb(m_folder, colour);
        std::filesystem::last_write_time(File(), written);
        ASSERT_EQ(std::filesystem::file_size(File()), length);
        m_bar.RedrawWindow();
        EXPECT_EQ(Shown(m_bar).At(m_bar.ThumbMiddle()), colour);
    }
}

TEST_F(ScrollBarPicture, OneThatWasWrittenThisMomentIsReadAgainUntilItsStampTells) {
    SkinPicture picture;
    SetWritten(File(), std::chrono::seconds(0));
    EXPECT_TRUE(picture.Take(File().wstring()));
    EXPECT_TRUE(picture.Take(File().wstring()));
    SetWritten(File(), std::chrono::seconds(3));
    EXPECT_TRUE(picture.Take(File().wstring())) << "another stamp";
    EXPECT_FALSE(picture.Take(File().wstring()));
}

TEST_F(ScrollBarPicture, AHeaderOf20000Times20000PixelsIsLeftOutWithoutDecoding) {
    std::string bytes = Bytes();
    SetSide(bytes, 16, 20000);
    SetSide(bytes, 20, 20000);
    m_folder.Write("pic/skin/black/verticalNormal.png", bytes);
    ExpectNoThumb();
}

TEST_F(ScrollBarPicture, ADirectoryInPlaceOfAPictureIsLeftOut) {
    std::filesystem::remove(File());
    std::filesystem::create_directory(File());
    ExpectNoThumb();
}

TEST_F(ScrollBarPicture, IsNotHeldOpen) {
    SkinPicture picture;
    EXPECT_TRUE(picture.Take(File().wstring()));
    ASSERT_NE(picture.Get(), nullptr);
    EXPECT_TRUE(std::filesystem::remove(File()));
    EXPECT_EQ(picture.Get()->GetWidth(), 18U);
    EXPECT_TRUE(picture.Take(File().wstring())) << "it is gone";
    EXPECT_EQ(picture.Get(), nullptr);
}

TEST_F(ScrollBarPicture, KeepsItsTransparency) {
    Gdiplus::Bitmap half(4, 4, PixelFormat32bppARGB);
    for (int i = 0; i < 16; ++i) {
        half.SetPixel(i % 4, i / 4, Gdiplus::Color(128, 255, 255, 255));
    }
    const CLSID png{0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    ASSERT_EQ(half.Save((m_folder.Path() / "pic/skin/black/upArrow.png").wstring().c_str(), &png, nullptr),
              Gdiplus::Ok);
    Open();
    const COLORREF blended = Shown(m_bar).At(m_bar.m_firstArrow.CenterPoint());
    EXPECT_NEAR(GetRValue(blended), 75 + (255 - 75) * 128 / 255, 2);
}

} // namespace
