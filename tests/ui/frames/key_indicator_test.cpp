// The plain status bar: what it shows of the keys that are on, and that it is seen.
#include "frame_fixture.h"

#include <algorithm>
#include <array>

namespace {

class KeyIndicators : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_frame.Load());
        ASSERT_TRUE(m_bar.Create(&m_frame));
        static constexpr UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_INDICATOR_SCRL};
        m_bar.SetIndicators(kPanes, 3);
        ::GetKeyboardState(m_before.data());
    }
    void TearDown() override { ::SetKeyboardState(m_before.data()); }
    void Turn(int key, bool isOn) {
        std::array<BYTE, 256> keys = m_before;
        keys.at(static_cast<std::size_t>(key)) = isOn ? 1 : 0;
        ::SetKeyboardState(keys.data());
        m_bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    }
    bool IsOn(int pane) const { return (m_bar.GetPaneStyle(pane) & SBPS_DISABLED) == 0; }

    Owned<CFrameWnd> m_frame;
    CStatusBar m_bar;
    std::array<BYTE, 256> m_before{};
};

TEST_F(KeyIndicators, AreEnabledWhileTheirKeyIsOn) {
    Turn(VK_CAPITAL, true);
    EXPECT_TRUE(IsOn(1));
    Turn(VK_CAPITAL, false);
    EXPECT_FALSE(IsOn(1));
    Turn(VK_SCROLL, true);
    EXPECT_TRUE(IsOn(2));
    Turn(VK_SCROLL, false);
    EXPECT_FALSE(IsOn(2));
}

TEST_F(KeyIndicators, TheBarDrawsTheTextsOfItsPanes) {
    m_frame.SetWindowPos(nullptr, 0, 0, 400, 200, SWP_NOMOVE | SWP_NOZORDER);
    m_frame.ShowWindow(SW_SHOW);
    const auto draw = [this](LPCTSTR text) {
        m_bar.SetPaneText(0, text);
        m_bar.UpdateWindow();
        CRect client;
        m_bar.GetClientRect(&client);
        CClientDC dc(&m_bar);
        std::vector<COLORREF> pixels;
        for (int y = 0; y < client.Height(); ++y) {
            for (int x = 0; x < 80; ++x) {
                pixels.push_back(dc.GetPixel(x, y));
            }
        }
        return pixels;
    };
    const auto empty = draw(L"");
    EXPECT_NE(draw(L"MMMMMM"), empty);
    EXPECT_EQ(draw(L""), empty);
}

} // namespace
