#include <algorithm>
#include <string>

#include "tests/support/canvas.h"
#include "tests/support/office_look.h"
#include "tests/support/picture_file.h"
#include "tests/ui/popup_menu/menu_frame.h"

namespace {

/// A menu and a bar whose drawing the tests call.
class DrawnBar : public CMFCPopupMenuBar {
public:
    using CMFCPopupMenuBar::DoPaint;
};

class DrawnMenu : public CMFCPopupMenu {
public:
    CMFCPopupMenuBar* GetMenuBar() override { return &bar; }
    using CMFCPopupMenu::DrawFrame;
    DrawnBar bar;
};

constexpr std::uint32_t unpainted = 0xFF00FF;

/// The menu as it draws itself.
class Picture : public Canvas {
public:
    explicit Picture(DrawnMenu& menu) : Canvas(ClientSize(menu), unpainted), m_bar(menu.GetBarRect()) {
        CDC& dc = *Dc();
        menu.DrawFrame(&dc);
        dc.SetViewportOrg(m_bar.TopLeft());
        dc.IntersectClipRect(CRect(CPoint(0, 0), m_bar.Size()));
        menu.bar.DoPaint(&dc);
        Close();
    }

    /// A point of the bar.
    std::uint32_t InBar(int x, int y) const { return At(m_bar.left + x, m_bar.top + y); }

    /// Written for people to look at, when BARWRIGHT_PICTURES names a folder.
    void Save(const std::wstring& name) const { SavePicture(Bitmap(), name); }

private:
    CRect m_bar;
};

using Style = CMFCVisualManagerOffice2007::Style;

class MenuLookTest : public PopupMenuTest, public ::testing::WithParamInterface<OfficeLook> {
protected:
    ~MenuLookTest() override { CMFCPopupMenu::CloseAll(); }
    DrawnMenu* OpenDrawn() {
        auto* menu = new DrawnMenu;
        return menu->Create(m_frame, 200, 150, MakeMenu()) ? menu : nullptr;
    }

    const ScopedOfficeLook m_look{GetParam()};
};

} // namespace

TEST_P(MenuLookTest, EveryPixelIsPaintedAndEveryPartIsThere) {
    DrawnMenu* menu = OpenDrawn();
    ASSERT_NE(menu, nullptr);
    Keys(m_window).Press(VK_DOWN);
    const Picture picture(*menu);
    std::wstring name = L"menu-";
    name += GetParam().name;
    name += GetParam().scale > 1 ? L"-150.png" : L"-100.png";
    picture.Save(name);
    EXPECT_EQ(picture.Colours().count(unpainted), 0u);

    const CMFCPopupMenuBar& bar = menu->bar;
    const int gutter = bar.GetGutterWidth();
    const CPoint plain = CenterOf(menu, 3); // disabled
    CRect row, checked, separator;
    bar.GetItemRect(3, row);
    bar.GetItemRect(4, checked);
    bar.GetItemRect(1, separator);
    const std::uint32_t fill = picture.InBar(gutter + 3, plain.y);
    // The column of images, the hot row's face, the check mark's face, the border and the separator stand out.
    EXPECT_NE(picture.InBar(2, plain.y), fill);
    EXPECT_NE(picture.InBar(gutter + 3, CenterOf(menu, 0).y), fill);
    EXPECT_NE(picture.InBar(gutter / 2, checked.CenterPoint().y), picture.InBar(2, checked.CenterPoint().y));
    EXPECT_NE(picture.At(0, picture.Size().cy / 2), fill);
    bool hasLine = false;
    for (int y = separator.top; y < separator.bottom; ++y) {
        hasLine = hasLine || picture.InBar(row.Width() / 2, y) != fill;
    }
    EXPECT_TRUE(hasLine);
}

TEST_P(MenuLookTest, DisabledTextIsPalerThanTheRest) {
    DrawnMenu* menu = OpenDrawn();
    const Picture picture(*menu);
    const auto darkest = [&](int index) {
        CRect row;
        menu->bar.GetItemRect(index, row);
        int value = 3 * 255;
        for (int y = row.top + 2; y < row.bottom - 2; ++y) {
            for (int x = menu->bar.GetGutterWidth() + 4; x < row.right - 4; ++x) {
                const std::uint32_t pixel = picture.InBar(x, y);
                value = std::min<int>(value, GetRValue(pixel) + GetGValue(pixel) + GetBValue(pixel));
            }
        }
        return value;
    };
    EXPECT_GT(darkest(3), darkest(4) + 60);
}

INSTANTIATE_TEST_SUITE_P(Looks, MenuLookTest,
                         ::testing::Values(OfficeLook{Style::Office2007_LunaBlue, L"blue", 1.0},
                                           OfficeLook{Style::Office2007_LunaBlue, L"blue", 1.5},
                                           OfficeLook{Style::Office2007_ObsidianBlack, L"black", 1.0},
                                           OfficeLook{Style::Office2007_ObsidianBlack, L"black", 1.5},
                                           OfficeLook{Style::Office2007_Aqua, L"aqua", 1.0},
                                           OfficeLook{Style::Office2007_Aqua, L"aqua", 1.5},
                                           OfficeLook{Style::Office2007_Silver, L"silver", 1.0},
                                           OfficeLook{Style::Office2007_Silver, L"silver", 1.5}));
