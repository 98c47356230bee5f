// How a menu bar looks.
#include "tests/support/canvas.h"
#include "tests/ui/menu_bar/bar_menu_frame.h"

class MenuBarDrawingTest : public MenuBarTest {
protected:
    /// What the bar shows, in the place of the button at the index.
    std::set<std::uint32_t> ColoursOf(int index) {
        CRect rect;
        Bar().GetItemRect(index, rect);
        return Draw().Colours(rect);
    }
    Canvas& Draw() {
        m_canvas = std::make_unique<Canvas>(ClientSize(Bar()));
        Bar().DoPaint(m_canvas->Dc());
        return *m_canvas;
    }
    /// Pixels in which two drawings differ within the button's place.
    int Differences(int index, const std::function<void()>& change) {
        CRect rect;
        Bar().GetItemRect(index, rect);
        const auto pixels = [&] {
            std::vector<std::uint32_t> all;
            const Canvas& canvas = Draw();
            for (int y = rect.top; y < rect.bottom; ++y) {
                for (int x = rect.left; x < rect.right; ++x) {
                    all.push_back(canvas.At(x, y));
                }
            }
            return all;
        };
        const std::vector<std::uint32_t> before = pixels();
        change();
        const std::vector<std::uint32_t> after = pixels();
        int differences = 0;
        for (std::size_t i = 0; i < before.size(); ++i) {
            differences += before[i] != after[i] ? 1 : 0;
        }
        return differences;
    }
    std::unique_ptr<Canvas> m_canvas;
};

TEST_F(MenuBarDrawingTest, EveryButtonShowsItsText) {
    for (int i = 0; i < Bar().GetCount(); ++i) {
        EXPECT_GT(ColoursOf(i).size(), 1u) << i;
    }
}

TEST_F(MenuBarDrawingTest, TheHotButtonLooksDifferent) {
    EXPECT_GT(Differences(0, [this] { Bar().SetHot(Bar().GetButton(0)); }), 20);
}

TEST_F(MenuBarDrawingTest, TheButtonOfTheOpenMenuLooksPressed) {
    EXPECT_GT(Differences(1, [this] { ClickButton(1); }), 20);
}

TEST_F(MenuBarDrawingTest, MnemonicsAreUnderlinedWhileTheKeyboardIsAtWork) {
    BOOL always = FALSE;
    ::SystemParametersInfoW(SPI_GETKEYBOARDCUES, 0, &always, 0);
    ::SystemParametersInfoW(SPI_SETKEYBOARDCUES, 0, nullptr, 0);
    // The second button is not hot: only the line below its letter comes.
    const int line = Differences(1, [this] { PressAlt(); });
    EXPECT_GT(line, 0);
    EXPECT_LT(line, 20);
    EXPECT_EQ(Differences(1, [this] { PressAlt(); }), line);
    ::SystemParametersInfoW(SPI_SETKEYBOARDCUES, 0, reinterpret_cast<void*>(static_cast<INT_PTR>(always)), 0);
}

TEST_F(MenuBarDrawingTest, ADisabledButtonIsGrey) {
    EXPECT_GT(Differences(0, [this] { Bar().SetButtonStyle(0, TBBS_DISABLED); }), 5);
}
