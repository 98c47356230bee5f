// Icon files that are too large to decode at a paint, and paths that lead out of the installation directory.
#include "installed_icon.h"
#include "tests/support/icon_file_bytes.h"
#include "tests/ui/icon_button/icon_fixture.h"

#include <varnhold/file_op.h>

namespace {

class HostileIconFile : public IconButton {
protected:
    /// A sound icon at the path of a button whose file lies below the installation directory.
    std::uint32_t ColourOf(const CString& path) {
        CMFCRibbonUNIcoButton button(1, L"", path, FALSE, path);
        return ColourDrawn(button, Large);
    }
    std::uint32_t Nothing() {
        CMFCRibbonUNIcoButton button(1, L"", L"Z:\\no\\such\\file.ico");
        return ColourDrawn(button, Large);
    }
};

TEST_F(HostileIconFile, IconOf1024PixelsIsDrawnAndALargerOneIsAsIfMissing) {
    EXPECT_EQ(ColourOf(WriteIcon("pic/longest.ico", 1024, red)), red);
    EXPECT_EQ(ColourOf(WriteIcon("pic/longer.ico", 1032, red)), Nothing());
}

TEST_F(HostileIconFile, LargePictureBesideAFittingOneIsNotDecodedEither) {
    std::string bytes = MakeIconFile(32, {red, red});
    // The one entry of the directory becomes two: the sound picture moves by the length of another entry.
    const std::string sound = bytes.substr(22);
    bytes = MakeIconDirectory({sound, PngHeader(20000, 20000)});
    bytes[6] = bytes[7] = 32;
    EXPECT_EQ(ColourOf(m_directory.Write("pic/both.ico", bytes).c_str()), Nothing());
    bytes = MakeIconDirectory({sound});
    bytes[6] = bytes[7] = 32;
    EXPECT_EQ(ColourOf(m_directory.Write("pic/one.ico", bytes).c_str()), red);
}

TEST_F(HostileIconFile, IconThatAHostDrawsItselfHasTheSameLimit) {
    const CString sound = WriteIcon("pic/longest.ico", 1024, red);
    const HICON icon = LoadInstalledIcon(sound, 16);
    ICONINFO parts = {};
    ASSERT_TRUE(::GetIconInfo(icon, &parts));
    BITMAP picture = {};
    ::GetObjectW(parts.hbmColor, sizeof picture, &picture);
    EXPECT_EQ(picture.bmWidth, 16);
    ::DeleteObject(parts.hbmColor);
    ::DeleteObject(parts.hbmMask);
    ::DestroyIcon(icon);
    EXPECT_EQ(LoadInstalledIcon(WriteIcon("pic/longer.ico", 1032, red), 16), nullptr);
    EXPECT_EQ(LoadInstalledIcon(L"", 16), nullptr);
    EXPECT_EQ(LoadInstalledIcon(L"Z:\\no\\such\\file.ico", 16), nullptr);
}

class IconPlace : public HostileIconFile {
protected:
    void SetUp() override {
        HostileIconFile::SetUp();
        WriteIcon("outside.ico", 32, red);
        WriteIcon("app/pic/inside.ico", 32, blue);
        WriteIcon("application/beside.ico", 32, green);
    }
    CString InApp(const wchar_t* path) const { return m_app.c_str() + CString(path); }

    const std::wstring m_app = m_directory.Prefix() + L"app\\";
    const ScopedAppPath m_installation{m_app};
};

TEST_F(IconPlace, PathThatLeadsOutOfTheInstallationIsNotRead) {
    const std::uint32_t nothing = Nothing();
    const std::size_t before = FileIcon::GetReadCount();
    for (const wchar_t* path : {L"..\\outside.ico", L"pic\\..\\..\\outside.ico", L"pic/../../outside.ico",
                                L".\\..\\outside.ico", L"..\\application\\beside.ico", L"..\\app\\..\\outside.ico"}) {
        EXPECT_EQ(ColourOf(InApp(path)), nothing) << path;
        EXPECT_TRUE(LeavesInstallation(InApp(path))) << path;
        EXPECT_EQ(LoadInstalledIcon(InApp(path), 32), nullptr) << path;
    }
    EXPECT_EQ(FileIcon::GetReadCount(), before);
}

TEST_F(IconPlace, PathThatComesBackIsRead) {
    for (const wchar_t* path : {L"pic\\inside.ico", L"pic\\..\\pic\\inside.ico", L"..\\app\\pic\\inside.ico",
                                L"..\\APP\\pic\\inside.ico", L"\\pic\\.\\inside.ico"}) {
        EXPECT_EQ(ColourOf(InApp(path)), blue) << path;
    }
}

TEST_F(IconPlace, PathOfTheHostsOwnIsReadWhereverItLeads) {
    const CString own = (m_directory.Prefix() + L"application\\..\\outside.ico").c_str();
    EXPECT_EQ(ColourOf(own), red);
    EXPECT_FALSE(LeavesInstallation(own));
    EXPECT_FALSE(LeavesInstallation(L""));
}

TEST_F(IconPlace, AlternateOfAPathThatLeadsOutIsNotReadWhereTheInstallationsNameHoldsModle) {
    WriteIcon("modle_0/outside.ico", 32, red);
    WriteIcon("modle/app/inside.ico", 32, blue);
    const ScopedAppPath installation(m_directory.Prefix() + L"modle\\app\\");
    CMFCRibbonUNIcoButton button(1, L"", (m_directory.Prefix() + L"modle\\app\\..\\outside.ico").c_str());
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(button, Large), Nothing());
}

} // namespace
