// The scroll bar's colours and paths in both skins.
#include "tests/ui/scroll_bar/bar_fixture.h"

#include <varnhold/message_box.h>

namespace {

class ScrollBarSkin : public ScrollBarTest {
protected:
    std::wstring Current(int image) const {
        const std::wstring path = m_bar.m_currentPaths[image].GetString();
        return path.substr(0, m_folder.Prefix().size()) == m_folder.Prefix() ? path.substr(m_folder.Prefix().size())
                                                                             : L"elsewhere: " + path;
    }
    void ExpectPaths(const std::wstring& folder, const std::array<const wchar_t*, 4>& names) const {
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(Current(i), L"pic\\skin\\" + folder + L"\\" + names[i] + L".png");
        }
    }
};

constexpr std::array<const wchar_t*, 4> kVertical = {L"upArrow", L"downArrow", L"verticalNormal", L"verticalClick"};
constexpr std::array<const wchar_t*, 4> kHorizontal = {L"leftArrow", L"rightArrow", L"horizonNormal", L"horizonClick"};

TEST_F(ScrollBarSkin, IsBlackAtFirst) {
    EXPECT_EQ(m_bar.m_skin, 0U);
    EXPECT_EQ(m_bar.m_bkColor, RGB(75, 80, 90)) << "before anything was asked for";
    EXPECT_EQ(m_bar.m_sideColor, RGB(172, 183, 188));
    Open();
    ExpectPaths(L"black", kVertical);
    EXPECT_EQ(m_bar.m_bkColor, RGB(75, 80, 90));
    EXPECT_EQ(m_bar.m_sideColor, RGB(172, 183, 188));
}

TEST_F(ScrollBarSkin, SilverTakesItsColoursAndImages) {
    Open();
    m_bar.SetSkin(1);
    ExpectPaths(L"silver", kVertical);
    EXPECT_EQ(m_bar.m_bkColor, RGB(235, 240, 244));
    EXPECT_EQ(m_bar.m_sideColor, RGB(172, 183, 188));
}

TEST_F(ScrollBarSkin, AHorizontalBarTakesTheHorizontalImages) {
    Open(CSize(200, 20));
    ExpectPaths(L"black", kHorizontal);
    m_bar.SetSkin(1);
    ExpectPaths(L"silver", kHorizontal);
}

TEST_F(ScrollBarSkin, AnyOtherSkinChangesNothingThatIsSeen) {
    Open();
    m_bar.SetSkin(1);
    for (const UINT skin : {2U, 7U, 0xFFFFFFFFU}) {
        m_bar.SetSkin(skin);
        EXPECT_EQ(m_bar.m_skin, skin);
        ExpectPaths(L"silver", kVertical);
        EXPECT_EQ(m_bar.m_bkColor, RGB(235, 240, 244));
    }
}

TEST_F(ScrollBarSkin, WithoutAnInstallationDirectoryTheUserIsToldAndNothingChanges) {
    Open();
    const CountingMessageBox none; // the framework's own boxes stay away
    std::vector<std::pair<std::wstring, int>> told;
    const ScopedMessageBoxHandler handler([&told](const std::wstring& message, int status, HWND) {
        told.emplace_back(message, status);
        return IDOK;
    });
    const ScopedAppPath unknown(FileOp::AppPathProvider([](std::wstring&) { return false; }));
    m_bar.SetSkin(1);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].first,
              L"\u66F4\u65B0\u76AE\u80A4\u65F6\uFF0C\u83B7\u53D6\u7CFB\u7EDF\u8DEF\u5F84\u5931\u8D25\uFF01");
    EXPECT_EQ(told[0].second, QK_MESSAGE_INFORMATION);
    ExpectPaths(L"black", kVertical);
    EXPECT_EQ(m_bar.m_bkColor, RGB(75, 80, 90));
}

TEST_F(ScrollBarSkin, PathsOfTheirOwnNeedNoInstallationDirectory) {
    Open();
    int told = 0;
    const ScopedMessageBoxHandler handler([&told](const std::wstring&, int, HWND) { return ++told; });
    const ScopedAppPath unknown(FileOp::AppPathProvider([](std::wstring&) { return false; }));
    m_bar.SetBlackPath(L"C:\\a.png", L"C:\\b.png", L"C:\\c.png", L"C:\\d.png", false);
    EXPECT_EQ(told, 0);
    EXPECT_EQ(m_bar.m_currentPaths[0], L"C:\\a.png");
    EXPECT_EQ(m_bar.m_currentPaths[3], L"C:\\d.png");
}

TEST_F(ScrollBarSkin, ADirectoryWithoutItsClosingSeparatorIsJoinedWithOne) {
    Open();
    const ScopedAppPath open(FileOp::AppPathProvider([](std::wstring& path) {
        path = L"C:\\program";
        return true;
    }));
    m_bar.SetSkin(1);
    EXPECT_EQ(m_bar.m_currentPaths[0], L"C:\\program\\pic\\skin\\silver\\upArrow.png");
}

TEST_F(ScrollBarSkin, AGroundOfThePresentSkinIsTakenAtOnceOneOfTheOtherWithItsSkin) {
    Open();
    m_bar.SetBlackBkColor(RGB(1, 2, 3));
    EXPECT_EQ(m_bar.m_bkColor, RGB(1, 2, 3));
    m_bar.SetSilverBkColor(RGB(4, 5, 6));
    EXPECT_EQ(m_bar.m_bkColor, RGB(1, 2, 3));
    m_bar.SetSkin(1);
    EXPECT_EQ(m_bar.m_bkColor, RGB(4, 5, 6));
    EXPECT_EQ(m_bar.GetBlackBkColor(), RGB(1, 2, 3));
    EXPECT_EQ(m_bar.GetSilverBkColor(), RGB(4, 5, 6));
}

TEST_F(ScrollBarSkin, ASideColourIsTakenWithTheSkin) {
    Open();
    m_bar.SetBlackSideColor(RGB(1, 2, 3));
    m_bar.SetSilverSideColor(RGB(4, 5, 6));
    EXPECT_EQ(m_bar.m_sideColor, RGB(1, 2, 3));
    m_bar.SetSkin(1);
    EXPECT_EQ(m_bar.m_sideColor, RGB(4, 5, 6));
    EXPECT_EQ(m_bar.GetBlackSideColor(), RGB(1, 2, 3));
    EXPECT_EQ(m_bar.GetSilverSideColor(), RGB(4, 5, 6));
}

TEST_F(ScrollBarSkin, PathsAreThoseOfTheBarsDirection) {
    Open(CSize(20, 200));
    EXPECT_EQ(m_bar.GetBlackNormalPath(), L"pic\\skin\\black\\verticalNormal.png");
    EXPECT_EQ(m_bar.GetBlackClickPath(), L"pic\\skin\\black\\verticalClick.png");
    EXPECT_EQ(m_bar.GetSilverNormalPath(), L"pic\\skin\\silver\\verticalNormal.png");
    EXPECT_EQ(m_bar.GetSilverClickPath(), L"pic\\skin\\silver\\verticalClick.png");
    EXPECT_EQ(m_bar.GetBlackTopOrLeftArrowPath(), L"pic\\skin\\black\\upArrow.png");
    EXPECT_EQ(m_bar.GetSilverRightOrBottomArrowPath(), L"pic\\skin\\silver\\downArrow.png");
    m_bar.MoveWindow(0, 0, 200, 20);
    m_bar.InitThumb();
    EXPECT_EQ(m_bar.GetBlackNormalPath(), L"pic\\skin\\black\\horizonNormal.png");
    EXPECT_EQ(m_bar.GetSilverTopOrLeftArrowPath(), L"pic\\skin\\silver\\leftArrow.png");
    EXPECT_EQ(m_bar.GetBlackRightOrBottomArrowPath(), L"pic\\skin\\black\\rightArrow.png");
}

TEST_F(ScrollBarSkin, APathThatIsSetIsOfThePresentDirectionAlone) {
    Open();
    m_bar.SetBlackNormalPath(L"own.png");
    m_bar.SetSilverClickPath(L"silver.png");
    EXPECT_EQ(Current(2), L"own.png") << "the setter takes the skin anew";
    EXPECT_EQ(m_bar.GetSilverClickPath(), L"silver.png");
    m_bar.MoveWindow(0, 0, 200, 20);
    m_bar.InitThumb();
    EXPECT_EQ(m_bar.GetBlackNormalPath(), L"pic\\skin\\black\\horizonNormal.png");
}

TEST_F(ScrollBarSkin, ArrowsAreSetAsAPair) {
    Open();
    m_bar.SetSilverArrowPath(L"a.png", L"b.png");
    ExpectPaths(L"black", kVertical);
    m_bar.SetSkin(1);
    EXPECT_EQ(Current(0), L"a.png");
    EXPECT_EQ(Current(1), L"b.png");
    EXPECT_EQ(Current(2), L"pic\\skin\\silver\\verticalNormal.png");
    m_bar.SetBlackArrowPath(L"c.png", L"d.png");
    EXPECT_EQ(m_bar.GetBlackTopOrLeftArrowPath(), L"c.png");
    EXPECT_EQ(m_bar.GetBlackRightOrBottomArrowPath(), L"d.png");
}

TEST_F(ScrollBarSkin, AllFourAreSetWithTheirPlace) {
    Open();
    m_bar.SetSilverPath(L"a.png", L"b.png", L"c.png", L"d.png", true);
    m_bar.SetSkin(1);
    const std::array<const wchar_t*, 4> names = {L"a.png", L"b.png", L"c.png", L"d.png"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Current(i), names[i]);
    }
    m_bar.SetBlackPath(L"C:\\a.png", L"C:\\b.png", L"C:\\c.png", L"C:\\d.png", false);
    EXPECT_EQ(m_bar.m_currentPaths[0], L"a.png") << "the place holds for both skins";
}

} // namespace
