// What the icon-file button asks of the system: which files it opens, which icons it makes of them at which size, what
// it releases, how it draws.

#include "elements/icon_file.h"
#include "ribbon_icon_button.h"
#include "tests/support/canvas.h"
#include "tests/support/icon_writer.h"
#include "tests/support/import_spy.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/ui_test.h"

#include <afxglobals.h>

#include <algorithm>

extern "C" {
extern void* __imp_DrawIconEx;
extern void* __imp_CreateFileW;
extern void* __imp_CreateIconFromResourceEx;
extern void* __imp_LoadImageW;
extern void* __imp_DestroyIcon;
}

namespace {

struct Drawn {
    int x;
    int y;
    HICON icon;
    int width;
    int height;
    UINT flags;
};

/// An icon that was made from a file's bytes or, with a path, by the system from the file.
struct Loaded {
    std::wstring path;
    int width;
    int height;
    HANDLE icon;
};

std::vector<Drawn> g_drawn;
std::vector<std::wstring> g_opened;
std::vector<Loaded> g_loaded;
std::vector<HANDLE> g_released;
decltype(&::CreateFileW) g_createFile = nullptr;
decltype(&::CreateIconFromResourceEx) g_createIcon = nullptr;
decltype(&::LoadImageW) g_loadImage = nullptr;
decltype(&::DestroyIcon) g_destroyIcon = nullptr;

BOOL WINAPI KeepDrawn(HDC, int x, int y, HICON icon, int width, int height, UINT, HBRUSH, UINT flags) {
    g_drawn.push_back({x, y, icon, width, height, flags});
    return TRUE;
}

HANDLE WINAPI KeepOpened(LPCWSTR name, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security, DWORD disposition,
                         DWORD flags, HANDLE like) {
    g_opened.emplace_back(name);
    return g_createFile(name, access, sharing, security, disposition, flags, like);
}

HICON WINAPI KeepMade(PBYTE bytes, DWORD count, BOOL isIcon, DWORD version, int width, int height, UINT flags) {
    const HICON icon = g_createIcon(bytes, count, isIcon, version, width, height, flags);
    g_loaded.push_back({{}, width, height, icon});
    return icon;
}

HANDLE WINAPI KeepLoaded(HINSTANCE instance, LPCWSTR name, UINT type, int width, int height, UINT flags) {
    EXPECT_EQ(type, static_cast<UINT>(IMAGE_ICON));
    EXPECT_EQ(flags, static_cast<UINT>(LR_LOADFROMFILE));
    const HANDLE icon = g_loadImage(instance, name, type, width, height, flags);
    g_loaded.push_back({name, width, height, icon});
    return icon;
}

BOOL WINAPI KeepReleased(HICON icon) {
    g_released.push_back(icon);
    return g_destroyIcon(icon);
}

class IconCalls : public testing::Test {
protected:
    IconCalls() {
        g_createFile = m_opens.GetOriginal();
        g_createIcon = m_makes.GetOriginal();
        g_loadImage = m_loads.GetOriginal();
        g_destroyIcon = m_releases.GetOriginal();
        m_large = m_directory.Write("modle/large.ico", MakeIconFile(32, {0xFF0000, 0xFF0000})).c_str();
        m_small = m_directory.Write("modle/small.ico", MakeIconFile(16, {0x00FF00, 0x00FF00})).c_str();
        m_directory.Write("modle_0/large.ico", MakeIconFile(32, {0x0000FF, 0x0000FF}));
        Forget();
    }
    ~IconCalls() override {
        CMFCRibbonUNIcoButton::SetSkinStyle(CString());
        afxGlobalData.SetRibbonImageScale(1.0);
        Forget();
    }

    static void Forget() {
        g_drawn.clear();
        g_opened.clear();
        g_loaded.clear();
        g_released.clear();
    }
    /// The only picture of one draw at (10, 20).
    Drawn Draw(CMFCRibbonUNIcoButton& button, CMFCRibbonBaseElement::RibbonImageType type) {
        Forget();
        button.DrawImage(m_canvas.Dc(), type, CRect(10, 20, 64, 64));
        EXPECT_EQ(g_drawn.size(), 1u);
        return g_drawn.empty() ? Drawn{} : g_drawn.front();
    }
    /// Every icon that was loaded was released, once, and nothing else was.
    static void ExpectLoadsReleased() {
        std::vector<HANDLE> loaded;
        for (const Loaded& load : g_loaded) {
            if (load.icon) {
                loaded.push_back(load.icon);
            }
        }
        std::sort(loaded.begin(), loaded.end());
        std::vector<HANDLE> released = g_released;
        std::sort(released.begin(), released.end());
        EXPECT_EQ(loaded, released);
    }

    using Paths = std::vector<std::wstring>;
    static constexpr auto Large = CMFCRibbonBaseElement::RibbonImageLarge;
    static constexpr auto Small = CMFCRibbonBaseElement::RibbonImageSmall;

    const ImportSpy<decltype(::DrawIconEx)> m_draws{__imp_DrawIconEx, &KeepDrawn};
    const ImportSpy<decltype(::CreateFileW)> m_opens{__imp_CreateFileW, &KeepOpened};
    const ImportSpy<decltype(::CreateIconFromResourceEx)> m_makes{__imp_CreateIconFromResourceEx, &KeepMade};
    const ImportSpy<decltype(::LoadImageW)> m_loads{__imp_LoadImageW, &KeepLoaded};
    const ImportSpy<decltype(::DestroyIcon)> m_releases{__imp_DestroyIcon, &KeepReleased};
    TemporaryDirectory m_directory;
    CString m_large;
    CString m_small;
    Canvas m_canvas;
};

TEST_F(IconCalls, EnabledPictureIsDrawnAtTheCornerInItsOwnSize) {
    CMFCRibbonUNIcoButton button(1, L"", m_large, FALSE, m_small);
    const Drawn large = Draw(button, Large);
    EXPECT_EQ(CPoint(large.x, large.y), CPoint(10, 20));
    EXPECT_EQ(CSize(large.width, large.height), CSize(32, 32));
    EXPECT_EQ(large.icon, g_loaded.at(0).icon);
    const Drawn small = Draw(button, Small);
    EXPECT_EQ(CSize(small.width, small.height), CSize(16, 16));
    EXPECT_EQ(small.icon, g_loaded.at(1).icon);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    EXPECT_EQ(Draw(button, Large).width, 48);
    EXPECT_EQ(Draw(button, Small).height, 24);
}

TEST_F(IconCalls, PictureIsNotMirroredInARightToLeftParent) {
    CMFCRibbonUNIcoButton button(1, L"", m_large, FALSE, m_small);
    EXPECT_EQ(Draw(button, Large).flags, static_cast<UINT>(DI_NORMAL)) << "without a parent";
    TestWindow window;
    button.SetParentWnd(&window);
    EXPECT_EQ(Draw(button, Large).flags, static_cast<UINT>(DI_NORMAL)) << "left to right";
    window.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    EXPECT_EQ(Draw(button, Large).flags, static_cast<UINT>(DI_NORMAL | DI_NOMIRROR));
    EXPECT_EQ(Draw(button, Small).flags, static_cast<UINT>(DI_NORMAL | DI_NOMIRROR));
}

TEST_F(IconCalls, ALinkedCopysPictureIsNotMirroredWhereItsOriginalsParentRunsFromRightToLeft) {
    CMFCRibbonUNIcoButton original(1, L"", m_large, FALSE, m_small);
    CMFCRibbonUNIcoButton copy;
    copy.CopyFrom(original);
    copy.SetOriginal(&original);
    TestWindow window;
    original.SetParentWnd(&window);
    EXPECT_EQ(Draw(copy, Large).flags, static_cast<UINT>(DI_NORMAL));
    window.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    EXPECT_EQ(Draw(copy, Large).flags, static_cast<UINT>(DI_NORMAL | DI_NOMIRROR));
}

TEST_F(IconCalls, DisabledPictureIsNotDrawnAsAnIcon) {
    CMFCRibbonUNIcoButton button(1, L"", m_large, FALSE, m_small);
    button.SetDisabled(TRUE);
    for (const auto type : {Large, Small}) {
        m_canvas.Clear();
        button.DrawImage(m_canvas.Dc(), type, CRect(10, 20, 64, 64));
        EXPECT_NE(m_canvas.Extent(), CSize(0, 0));
    }
    EXPECT_TRUE(g_drawn.empty());
    ExpectLoadsReleased();
}

TEST_F(IconCalls, EachDrawLoadsBothFilesInTheirSizesAndReleasesThem) {
    CMFCRibbonUNIcoButton button(1, L"", m_large, FALSE, m_small);
    for (const auto type : {Large, Small}) {
        Draw(button, type);
        EXPECT_EQ(g_opened, (Paths{m_large.GetString(), m_small.GetString()}));
        ASSERT_EQ(g_loaded.size(), 2u);
        EXPECT_EQ(CSize(g_loaded[0].width, g_loaded[0].height), CSize(32, 32));
        EXPECT_EQ(CSize(g_loaded[1].width, g_loaded[1].height), CSize(16, 16));
        for (const Loaded& load : g_loaded) {
            EXPECT_NE(load.icon, nullptr);
        }
        ExpectLoadsReleased();
    }
}

TEST_F(IconCalls, AFileThatHasToBeConvertedIsLoadedByTheSystem) {
    std::string picture = MakeIconPicture(32, {0xFF0000, 0xFF0000});
    picture[14] = 24; // bits
    const CString other = m_directory.Write("other.ico", MakeIconDirectory({picture}, {32})).c_str();
    CMFCRibbonUNIcoButton button(1, L"", other);
    Draw(button, Large);
    ASSERT_EQ(g_loaded.size(), 1u);
    EXPECT_EQ(g_loaded[0].path, other.GetString());
    EXPECT_EQ(CSize(g_loaded[0].width, g_loaded[0].height), CSize(32, 32));
    EXPECT_NE(g_loaded[0].icon, nullptr);
    ExpectLoadsReleased();
}

TEST_F(IconCalls, WhichOfSeveralPicturesIsResizedIsForTheSystemToSay) {
    const IconColours colours{0xFF0000, 0xFF0000};
    const CString other = m_directory.Write("other.ico", MakeIconFile({{24, colours}, {48, colours}})).c_str();
    CMFCRibbonUNIcoButton button(1, L"", other);
    Draw(button, Large);
    ASSERT_EQ(g_loaded.size(), 1u);
    EXPECT_EQ(g_loaded[0].path, other.GetString());
    EXPECT_EQ(CSize(g_loaded[0].width, g_loaded[0].height), CSize(32, 32));
    ExpectLoadsReleased();
}

TEST_F(IconCalls, TheOnlyPictureOfAFileIsResizedWithoutOpeningTheFileAgain) {
    const CString other = m_directory.Write("other.ico", MakeIconFile(48, {0xFF0000, 0xFF0000})).c_str();
    CMFCRibbonUNIcoButton button(1, L"", other);
    Draw(button, Large);
    EXPECT_EQ(g_opened, (Paths{other.GetString()}));
    ASSERT_EQ(g_loaded.size(), 1u);
    EXPECT_EQ(g_loaded[0].path, L"");
    EXPECT_EQ(CSize(g_loaded[0].width, g_loaded[0].height), CSize(32, 32));
    EXPECT_NE(g_loaded[0].icon, nullptr);
    ExpectLoadsReleased();
}

TEST_F(IconCalls, EmptyPathIsNotLoaded) {
    CMFCRibbonUNIcoButton button(1, L"", m_large);
    Draw(button, Small);
    EXPECT_EQ(g_opened, (Paths{m_large.GetString()}));
    EXPECT_EQ(g_loaded.size(), 1u);
    ExpectLoadsReleased();
}

TEST_F(IconCalls, MissingAlternateFileIsSkippedAndTheOtherIsReleased) {
    CMFCRibbonUNIcoButton button(1, L"", m_large, FALSE, m_small);
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(Draw(button, Small).icon, g_loaded.at(0).icon) << "there is no small alternate file";
    EXPECT_EQ(g_opened.size(), 2u);
    EXPECT_EQ(g_loaded.size(), 1u);
    ExpectLoadsReleased();
}

TEST_F(IconCalls, SmallIconIsReleasedWhereTheLargeOneCannotBeLoaded) {
    CMFCRibbonUNIcoButton button(1, L"", m_large + L".missing", FALSE, m_small);
    Forget();
    button.DrawImage(m_canvas.Dc(), Small, CRect(10, 20, 64, 64));
    EXPECT_EQ(g_released.size(), 1u);
    EXPECT_TRUE(g_drawn.empty());
    ExpectLoadsReleased();
}

TEST_F(IconCalls, ConstructorTriesNoEmptyPath) {
    const CMFCRibbonUNIcoButton large(1, L"", m_large);
    EXPECT_EQ(g_opened, (Paths{m_large.GetString()}));
    const CMFCRibbonUNIcoButton small(1, L"", CString(), FALSE, m_small);
    EXPECT_EQ(g_opened, (Paths{m_large.GetString(), m_small.GetString()}));
    const CMFCRibbonUNIcoButton neither(1, L"", CString());
    EXPECT_EQ(g_opened.size(), 2u);
    ExpectLoadsReleased();
}

TEST_F(IconCalls, ConstructorTriesNoAlternate) {
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    const CMFCRibbonUNIcoButton button(1, L"", m_large, FALSE, m_small);
    EXPECT_EQ(g_opened, (Paths{m_large.GetString(), m_small.GetString()}));
}

TEST_F(IconCalls, LinkedCopyLoadsTheFilesOfItsOriginalOnceAndReleasesThem) {
    CMFCRibbonUNIcoButton original(1, L"", m_large, FALSE, m_small);
    CMFCRibbonUNIcoButton copy(2, L"", m_small, FALSE, m_large);
    copy.SetOriginal(&original);
    Draw(copy, Large);
    EXPECT_EQ(g_opened, (Paths{m_large.GetString(), m_small.GetString()}));
    EXPECT_EQ(g_loaded.size(), 2u);
    ExpectLoadsReleased();
}

TEST_F(IconCalls, WhatDrawsNothingLoadsNothing) {
    CMFCRibbonUNIcoButton unlinked;
    unlinked.CopyFrom(CMFCRibbonUNIcoButton(1, L"", m_large, FALSE, m_small));
    CMFCRibbonUNIcoButton smallOnly(1, L"", CString(), FALSE, m_small);
    Forget();
    for (CMFCRibbonUNIcoButton* button : {&unlinked, &smallOnly}) {
        button->DrawImage(m_canvas.Dc(), Large, CRect(10, 20, 64, 64));
    }
    EXPECT_TRUE(g_opened.empty());
    EXPECT_TRUE(g_loaded.empty());
    EXPECT_TRUE(g_drawn.empty());
}

TEST_F(IconCalls, ConstructorTriesEachFileInItsSizeAndReleasesIt) {
    const CMFCRibbonUNIcoButton button(1, L"", m_large, FALSE, m_small);
    EXPECT_EQ(g_opened, (Paths{m_large.GetString(), m_small.GetString()}));
    ASSERT_EQ(g_loaded.size(), 2u);
    EXPECT_EQ(g_loaded[0].width, 32);
    EXPECT_EQ(g_loaded[1].width, 16);
    ExpectLoadsReleased();
}

} // namespace
