#include "tests/ui/skins/skin_fixture.h"

#include "tests/support/icon_writer.h"
#include "tests/support/png_file.h"
#include "tests/support/temporary_directory.h"

#include <varnhold/file_op.h>

#include <afxribbonbar.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <set>

namespace {

constexpr COLORREF kPicture = RGB(10, 200, 60);
constexpr COLORREF kLargerPicture = RGB(200, 10, 60);
constexpr COLORREF kTabRow = RGB(50, 52, 62);
constexpr char kFile[] = "pic/skin/black/tabarea.png";
constexpr char kFileAt150[] = "pic/skin/black/tabarea.150.png";

std::string FileBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The row of tabs, whose picture is one frame in front of a flat colour.
class SkinPictureFiles : public SkinTest {
protected:
    std::string MakePicture(COLORREF color, int width = 16, int height = 16) const {
        const ScopedGdiplus gdiplus;
        Gdiplus::Bitmap picture(width, height, PixelFormat32bppARGB);
        Gdiplus::Graphics graphics(&picture);
        graphics.Clear(Gdiplus::Color(255, GetRValue(color), GetGValue(color), GetBValue(color)));
        const std::filesystem::path path = m_directory.Path() / "made.png";
        EXPECT_EQ(picture.Save(path.wstring().c_str(), &kPngEncoder, nullptr), Gdiplus::Ok);
        return FileBytes(path);
    }

    /// The file is as old as that.
    std::filesystem::file_time_type SetWritten(std::chrono::seconds age) const {
        const auto written = std::filesystem::file_time_type::clock::now() - age;
        std::filesystem::last_write_time(m_directory.Path() / kFile, written);
        return written;
    }

    /// What a new black skin paints.
    static std::uint32_t Painted() {
        auto& skin = Use<OpenBlackSkin>();
        Canvas canvas(CSize(40, 40));
        skin.OnDrawRibbonTabsFrame(canvas.Dc(), nullptr, CRect(0, 0, 40, 40));
        EXPECT_EQ(canvas.Colours().size(), 1u);
        return canvas.At(20, 20);
    }

    TemporaryDirectory m_directory;
    ScopedAppPath m_path{m_directory.Prefix()};
};

TEST_F(SkinPictureFiles, APictureIsPaintedOverThePlaceThatItIsFor) {
    m_directory.Write(kFile, MakePicture(kPicture));
    EXPECT_EQ(Painted(), Pixel(kPicture));
}

TEST_F(SkinPictureFiles, WithoutAFileTheGettersColourIsPainted) { EXPECT_EQ(Painted(), Pixel(kTabRow)); }

TEST_F(SkinPictureFiles, WithoutImageModeTheGettersColourIsPainted) {
    m_directory.Write(kFile, MakePicture(kPicture));
    auto& skin = Use<OpenBlackSkin>();
    skin.SetImageMode(FALSE);
    Canvas canvas;
    skin.OnDrawRibbonTabsFrame(canvas.Dc(), nullptr, CRect(0, 0, 40, 40));
    EXPECT_EQ(canvas.At(20, 20), Pixel(kTabRow));
}

TEST_F(SkinPictureFiles, AFolderInPlaceOfTheFileLeavesTheFlatColour) {
    std::filesystem::create_directories(m_directory.Path() / kFile);
    EXPECT_EQ(Painted(), Pixel(kTabRow));
}

TEST_F(SkinPictureFiles, AFileThatIsCutOffAnywhereLeavesTheFlatColour) {
    const std::string whole = MakePicture(kPicture);
    for (const std::size_t length : {std::size_t(0), std::size_t(7), std::size_t(20), std::size_t(40), whole.size() / 2,
                                     whole.size() - 12, whole.size() - 1}) {
        m_directory.Write(kFile, whole.substr(0, length));
        EXPECT_EQ(Painted(), Pixel(kTabRow)) << length << " of " << whole.size();
    }
}

TEST_F(SkinPictureFiles, AFileThatSaysItIsEnormousIsNotDecoded) {
    std::string bytes = MakePicture(kPicture);
    const auto setSide = [&bytes](std::size_t at, unsigned side) {
        for (int i = 0; i < 4; ++i) {
            bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(side >> (24 - 8 * i) & 0xFF);
        }
    };
    setSide(16, 20000);
    setSide(20, 20000);
    m_directory.Write(kFile, bytes);
    EXPECT_EQ(Painted(), Pixel(kTabRow));
}

TEST_F(SkinPictureFiles, APictureOfMoreThan1024PixelsASideLeavesTheFlatColour) {
    m_directory.Write(kFile, MakePicture(kPicture, 1024, 4));
    EXPECT_EQ(Painted(), Pixel(kPicture));
    m_directory.Write(kFile, MakePicture(kPicture, 1025, 4));
    EXPECT_EQ(Painted(), Pixel(kTabRow));
}

TEST_F(SkinPictureFiles, OtherBytesLeaveTheFlatColour) {
    m_directory.Write(kFile, std::string(5000, 'x'));
    EXPECT_EQ(Painted(), Pixel(kTabRow));
}

TEST_F(SkinPictureFiles, TheLargestFileThatIsNotAboveTheScaleIsTaken) {
    m_directory.Write(kFile, MakePicture(kPicture));
    m_directory.Write(kFileAt150, MakePicture(kLargerPicture, 24, 24));
    const struct {
        double scale;
        COLORREF color;
    } expected[] = {
        {1.0, kPicture}, {1.25, kPicture}, {1.5, kLargerPicture}, {1.75, kLargerPicture}, {2.0, kLargerPicture}};
    for (const auto& [scale, color] : expected) {
        afxGlobalData.SetRibbonImageScale(scale);
        EXPECT_EQ(Painted(), Pixel(color)) << scale;
    }
}

TEST_F(SkinPictureFiles, AFileForAScaleThatCannotBeUsedGivesWayToTheBaseOne) {
    m_directory.Write(kFile, MakePicture(kPicture));
    m_directory.Write(kFileAt150, "no picture");
    afxGlobalData.SetRibbonImageScale(1.5);
    EXPECT_EQ(Painted(), Pixel(kPicture));
}

TEST_F(SkinPictureFiles, APictureIsReadOnceForEachManager) {
    m_directory.Write(kFile, MakePicture(kPicture));
    auto& skin = Use<OpenBlackSkin>();
    Canvas canvas;
    skin.OnDrawRibbonTabsFrame(canvas.Dc(), nullptr, CRect(0, 0, 40, 40));
    std::filesystem::remove(m_directory.Path() / kFile);
    skin.OnDrawRibbonTabsFrame(canvas.Dc(), nullptr, CRect(0, 0, 30, 30));
    EXPECT_EQ(canvas.At(10, 10), Pixel(kPicture));
    EXPECT_EQ(Painted(), Pixel(kTabRow));
}

TEST_F(SkinPictureFiles, AReplacedADeletedAndARestoredPictureEachShowWithTheNextManager) {
    const std::string picture = MakePicture(kPicture);
    m_directory.Write(kFile, picture);
    const auto longAgo = SetWritten(std::chrono::hours(2));
    EXPECT_EQ(Painted(), Pixel(kPicture));
    m_directory.Write(kFile, MakePicture(kLargerPicture));
    SetWritten(std::chrono::hours(1));
    EXPECT_EQ(Painted(), Pixel(kLargerPicture));
    std::filesystem::remove(m_directory.Path() / kFile);
    EXPECT_EQ(Painted(), Pixel(kTabRow));
    m_directory.Write(kFile, picture);
    std::filesystem::last_write_time(m_directory.Path() / kFile, longAgo);
    EXPECT_EQ(Painted(), Pixel(kPicture));
    m_directory.Write(kFileAt150, MakePicture(kLargerPicture, 24, 24));
    EXPECT_EQ(Painted(), Pixel(kPicture));
    afxGlobalData.SetRibbonImageScale(1.5);
    EXPECT_EQ(Painted(), Pixel(kLargerPicture));
    std::filesystem::remove(m_directory.Path() / kFileAt150);
    EXPECT_EQ(Painted(), Pixel(kPicture));
}

TEST_F(SkinPictureFiles, TheNextManagerDoesNotReadAPictureAgainThatIsUnchanged) {
    m_directory.Write(kFile, MakePicture(kPicture));
    const auto written = SetWritten(std::chrono::hours(1));
    EXPECT_EQ(Painted(), Pixel(kPicture));
    // Who read this would see that it is none.
    m_directory.Write(kFile, std::string(std::filesystem::file_size(m_directory.Path() / kFile), 'x'));
    std::filesystem::last_write_time(m_directory.Path() / kFile, written);
    EXPECT_EQ(Painted(), Pixel(kPicture));
}

TEST_F(SkinPictureFiles, APictureThatWasWrittenThisMomentIsReadAgain) {
    m_directory.Write(kFile, MakePicture(kPicture));
    const auto written = SetWritten(std::chrono::seconds(0));
    EXPECT_EQ(Painted(), Pixel(kPicture));
    m_directory.Write(kFile, std::string(std::filesystem::file_size(m_directory.Path() / kFile), 'x'));
    std::filesystem::last_write_time(m_directory.Path() / kFile, written);
    EXPECT_EQ(Painted(), Pixel(kTabRow)) << "its stamp says nothing";
}

TEST_F(SkinPictureFiles, FramesThatDoNotDivideThePictureLeaveTheFlatColour) {
    const std::string threeFrames = MakePicture(kPicture, 24, 72);
    m_directory.Write("pic/skin/black/main.png", threeFrames);
    const visual::Skin& skin = Use<OpenBlackSkin>().GetSkin();
    const std::uint32_t plate = skin[visual::FaceSlot::AppButton].plate;
    ASSERT_NE(skin.plates, nullptr);
    EXPECT_NE(skin.plates->FindPlate(plate, visual::PlatePlace::Alone, 24, 1.0), nullptr);
    m_directory.Write("pic/skin/black/main.png", MakePicture(kPicture, 24, 73));
    const visual::Skin& other = Use<OpenBlackSkin>().GetSkin();
    EXPECT_EQ(other.plates->FindPlate(plate, visual::PlatePlace::Alone, 24, 1.0), nullptr);
}

TEST_F(SkinPictureFiles, ButtonsTakeTheirPictureByHeightAndPlace) {
    const struct {
        const char* file;
        visual::PlatePlace place;
        int height;
    } uses[] = {{"pic/skin/black/btnhilight.png", visual::PlatePlace::Alone, 66},
                {"pic/skin/black/narrowbtnhilight.png", visual::PlatePlace::Alone, 24},
                {"pic/skin/black/childbtn.png", visual::PlatePlace::Joined, 24},
                {"pic/skin/black/statusbar.png", visual::PlatePlace::StatusBar, 24}};
    for (const auto& use : uses) {
        const std::wstring path = m_directory.Write(use.file, MakePicture(kPicture, 24, 48));
        const visual::Skin& skin = Use<OpenBlackSkin>().GetSkin();
        const std::uint32_t plate = skin[visual::FaceSlot::ButtonHot].plate;
        for (const auto& other : uses) {
            EXPECT_EQ(skin.plates->FindPlate(plate, other.place, other.height, 1.0) != nullptr, use.file == other.file)
                << use.file << " for " << other.file;
        }
        std::filesystem::remove(path);
    }
}

// ---- the icon of drop-down arrows

constexpr char kArrowFile[] = "pic/skin/icon/16/down.ico";

/// The colours that a drop-down button at rest shows.
std::set<std::uint32_t> ArrowColours() {
    auto& skin = static_cast<CMFCVisualManagerOffice20072&>(*CMFCVisualManager::GetInstance());
    Canvas canvas(CSize(24, 24), Pixel(RGB(167, 170, 180)));
    skin.OnDrawComboDropButton(canvas.Dc(), CRect(0, 0, 24, 24), FALSE, FALSE, FALSE, nullptr);
    return canvas.Colours();
}

TEST_F(SkinPictureFiles, ADropDownArrowIsTheSkinsIconInAColourThatIsSeen) {
    // All of its 16 x 16 pixels are opaque and green.
    m_directory.Write(kArrowFile, MakeIconFile(16, {0x00FF00, 0x00FF00}));
    Use<OpenBlackSkin>();
    EXPECT_EQ(ArrowColours(), (std::set<std::uint32_t>{Pixel(RGB(167, 170, 180)), 0}));
}

TEST_F(SkinPictureFiles, ADropDownArrowIsNotReadFromAFileWithAPictureThatIsTooLarge) {
    const std::string sound = MakeIconPicture(16, {0x00FF00, 0x00FF00});
    for (const auto& [large, isRead] : {std::pair(1024, true), std::pair(1025, false), std::pair(20000, false)}) {
        m_directory.Write(kArrowFile, MakeIconDirectory({sound, PngHeader(large, large)}, {16, 255}));
        Use<OpenBlackSkin>();
        EXPECT_EQ(ArrowColours() == (std::set<std::uint32_t>{Pixel(RGB(167, 170, 180)), 0}), isRead) << large;
    }
}

TEST_F(SkinPictureFiles, WithoutItsIconADropDownArrowIsDrawnAllTheSame) {
    Use<OpenBlackSkin>();
    EXPECT_GT(ArrowColours().size(), 1u);
    m_directory.Write(kArrowFile, "no icon");
    Use<OpenBlackSkin>();
    EXPECT_GT(ArrowColours().size(), 1u);
    std::filesystem::remove(m_directory.Path() / kArrowFile);
    std::filesystem::create_directories(m_directory.Path() / kArrowFile);
    Use<OpenBlackSkin>();
    EXPECT_GT(ArrowColours().size(), 1u);
}

} // namespace
