// Menus of the black skin: their borders by what they hang from, and the separators of menus that stand open.
#include "tests/ui/skins/skin_fixture.h"

#include "tests/support/ribbon_host.h"

#include <afxpopupmenu.h>
#include <afxribbonpanelmenu.h>
#include <afxtoolbar.h>
#include <afxtoolbarmenubutton.h>
#include <fx/geometry.h>

#include <array>
#include <memory>

namespace {

constexpr COLORREF kMenuBorder = RGB(75, 80, 92);
constexpr COLORREF kRibbonMenuBorder = RGB(123, 127, 142);
constexpr COLORREF kMenuSeparator = RGB(61, 66, 78);
const CSize kMenuSize(40, 30);
constexpr std::array kScales = {1.0, 1.25, 1.5, 1.75, 2.0};

/// What a manager draws round a menu.
class Border {
public:
    template <class Draw>
    explicit Border(Draw draw) {
        draw(m_canvas.Dc(), CRect(CPoint(0, 0), kMenuSize));
    }
    std::uint32_t At(int inset) const { return m_canvas.At(inset, inset); }
    /// Whether the other is the same, pixel by pixel.
    bool operator==(const Border& other) const {
        for (int y = 0; y < kMenuSize.cy; ++y) {
            for (int x = 0; x < kMenuSize.cx; ++x) {
                if (m_canvas.At(x, y) != other.m_canvas.At(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }

private:
    Canvas m_canvas{kMenuSize};
};

/// What the window shows.
std::unique_ptr<Canvas> PictureOf(CWnd& window) {
    auto canvas = std::make_unique<Canvas>(ClientSize(window));
    CClientDC source(&window);
    canvas->Dc()->BitBlt(0, 0, canvas->Size().cx, canvas->Size().cy, &source, 0, 0, SRCCOPY);
    return canvas;
}

/// First >, -, Last: of pop-ups.
HMENU MakeMenu() {
    const HMENU inner = ::CreatePopupMenu();
    ::AppendMenuW(inner, MF_STRING, 102, L"Inner");
    const HMENU menu = ::CreatePopupMenu();
    ::AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(inner), L"First");
    ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    ::AppendMenuW(menu, MF_STRING, 103, L"Last");
    return menu;
}

class SkinMenus : public SkinTest {
protected:
    ~SkinMenus() override {
        CMFCPopupMenu::CloseAll();
        PumpPending();
    }
    static Border Black(OpenBlackSkin& skin, CMFCPopupMenu& menu) {
        return Border([&](CDC* dc, const CRect& rect) { skin.OnDrawMenuBorder(dc, &menu, rect); });
    }
    static Border Older(OpenBlackSkin& skin, CMFCPopupMenu& menu) {
        return Border(
            [&](CDC* dc, const CRect& rect) { skin.CMFCVisualManagerOffice2003::OnDrawMenuBorder(dc, &menu, rect); });
    }
    /// A menu of rows, opened at a point. Goes by itself.
    static CMFCPopupMenu* Open(CWnd& owner) {
        PumpPending(); // what is new of the owner would close it
        auto* const menu = new CMFCPopupMenu;
        const BOOL isOpen = menu->Create(&owner, 60, 60, MakeMenu());
        PumpPending();
        return isOpen ? CMFCPopupMenu::GetActiveMenu() : nullptr;
    }
    static CMFCPopupMenu* OpenChildOf(CMFCPopupMenu& menu) {
        menu.GetMenuItem(0)->OpenPopupMenu(menu.GetMenuBar());
        PumpPending();
        CMFCPopupMenu* const child = CMFCPopupMenu::GetActiveMenu();
        return child != &menu ? child : nullptr;
    }
};

TEST_F(SkinMenus, WhatHangsFromAToolbarHasThePlatformsOlderBorderAndSoHaveItsChildren) {
    auto& skin = Use<OpenBlackSkin>();
    RibbonHost host;
    CMFCToolBar bar;
    ASSERT_TRUE(bar.CreateEx(&host.Frame(), TBSTYLE_FLAT));
    const HMENU items = MakeMenu();
    bar.InsertButton(CMFCToolBarMenuButton(100, items, -1, L"Tools"));
    ::DestroyMenu(items);
    host.LayOut();
    static_cast<CMFCToolBarMenuButton*>(bar.GetButton(0))->OpenPopupMenu(&bar);
    PumpPending();
    CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(Black(skin, *menu), Older(skin, *menu));
    EXPECT_NE(Black(skin, *menu).At(0), Pixel(kMenuBorder));
    CMFCPopupMenu* const child = OpenChildOf(*menu);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(Black(skin, *child), Older(skin, *child));
}

TEST_F(SkinMenus, WhatHangsFromAMenuThatHangsFromNothingHasTheMenusOwnBorder) {
    auto& skin = Use<OpenBlackSkin>();
    RibbonHost host;
    CMFCPopupMenu* const menu = Open(host.Frame());
    ASSERT_NE(menu, nullptr);
    CMFCPopupMenu* const child = OpenChildOf(*menu);
    ASSERT_NE(child, nullptr);
    for (const int inset : {0, 1}) {
        EXPECT_EQ(Black(skin, *child).At(inset), Pixel(kMenuBorder)) << inset;
    }
    EXPECT_EQ(Black(skin, *child).At(2), Canvas::background);
}

TEST_F(SkinMenus, ARibbonsMenuHasALineOfItsOwnOverTheBorder) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCRibbonPanelMenu menu;
    const Border border = Black(skin, menu);
    EXPECT_EQ(border.At(0), Pixel(kRibbonMenuBorder));
    EXPECT_EQ(border.At(1), Pixel(kMenuBorder));
    EXPECT_EQ(border.At(2), Canvas::background);
}

TEST_F(SkinMenus, ARibbonsMenuThatScrollsOrIsResizedHasTheBasesFrame) {
    auto& skin = Use<OpenBlackSkin>();
    const auto base = [&skin](CMFCPopupMenu& menu) {
        return Border(
            [&](CDC* dc, const CRect& rect) { skin.CMFCVisualManagerOffice2007::OnDrawMenuBorder(dc, &menu, rect); });
    };
    CMFCRibbonPanelMenu scrolling, resized;
    scrolling.EnableScrolling();
    resized.EnableResize(CSize(20, 20));
    EXPECT_EQ(Black(skin, scrolling), base(scrolling));
    EXPECT_EQ(Black(skin, resized), base(resized));
    EXPECT_NE(Black(skin, scrolling).At(0), Pixel(kRibbonMenuBorder));
}

// ---- separators of menus that stand open

TEST_F(SkinMenus, BetweenRowsAHairlineIsSeenAtEveryScale) {
    auto& skin = Use<OpenBlackSkin>();
    for (const double scale : kScales) {
        afxGlobalData.SetRibbonImageScale(scale);
        RibbonHost host;
        CMFCPopupMenu* const menu = Open(host.Frame());
        ASSERT_NE(menu, nullptr);
        CMFCPopupMenuBar& bar = *menu->GetMenuBar();
        const CRect line = PictureOf(bar)->BoundsOf(Pixel(kMenuSeparator));
        const CRect place = bar.GetButton(1)->Rect();
        EXPECT_EQ(line.Height(), scale < 1.75 ? 1 : 2) << scale;
        EXPECT_EQ(line.top, place.top + fx::Scaled(3, scale)) << scale;
        EXPECT_EQ(line.left, place.left + 3 * skin.GetMenuImageMargin() + 2 * bar.GetCurrentMenuImageSize().cx + 2)
            << scale << ": behind two images with their margins";
        EXPECT_EQ(line.right, ClientSize(bar).cx) << scale;
        CMFCPopupMenu::CloseAll();
        PumpPending();
    }
}

TEST_F(SkinMenus, BetweenRowsOfARibbonsMenuAHairlineIsSeenAtEveryScale) {
    Use<OpenBlackSkin>();
    for (const double scale : kScales) {
        afxGlobalData.SetRibbonImageScale(scale);
        RibbonHost host;
        auto& button = host.Add(std::make_unique<CMFCRibbonButton>(100, L"Menu"));
        button.AddSubItem(std::make_unique<CMFCRibbonButton>(101, L"First").release());
        button.AddSubItem(std::make_unique<CMFCRibbonSeparator>(TRUE).release());
        button.AddSubItem(std::make_unique<CMFCRibbonButton>(102, L"Last").release());
        button.OnShowPopupMenu();
        PumpPending();
        CMFCRibbonPanelMenu* const menu = CMFCRibbonPanelMenu::GetDeepest();
        ASSERT_NE(menu, nullptr);
        CMFCRibbonPanelMenuBar& bar = menu->GetRibbonMenuBar();
        const CRect line = PictureOf(bar)->BoundsOf(Pixel(kMenuSeparator));
        EXPECT_EQ(line.Height(), scale < 1.75 ? 1 : 2) << scale;
        EXPECT_EQ(line.top, bar.GetShown()[1]->GetRect().top + fx::Scaled(3, scale)) << scale;
        CMFCRibbonPanelMenu::DismissAll();
        PumpPending();
    }
}

// ---- separators of what is no menu of rows

/// A separator in a place of 50 x 20 pixels.
template <class Draw>
std::unique_ptr<Canvas> SeparatorBy(Draw draw) {
    auto canvas = std::make_unique<Canvas>(CSize(50, 20));
    draw(canvas->Dc(), CRect(0, 0, 50, 20));
    return canvas;
}

void ExpectSame(const Canvas& got, const Canvas& want, const char* what) {
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 50; ++x) {
            ASSERT_EQ(got.At(x, y), want.At(x, y)) << what << ": " << x << ", " << y;
        }
    }
}

TEST_F(SkinMenus, AcrossAMenuAndOnARibbonsPanelSeparatorsAreThoseOfToolbars) {
    auto& skin = Use<OpenBlackSkin>();
    const auto drawnOn = [&skin](CBasePane& bar, BOOL isHorizontal) {
        return SeparatorBy([&](CDC* dc, const CRect& rect) { skin.OnDrawSeparator(dc, &bar, rect, isHorizontal); });
    };
    CMFCToolBar toolBar;
    CMFCPopupMenuBar menu;
    CMFCRibbonPanelMenuBar panel(CMFCRibbonPanelMenuBar::ElementArray(), TRUE);
    ASSERT_TRUE(panel.IsRibbonPanelInRegularMode());
    ExpectSame(*drawnOn(menu, TRUE), *drawnOn(toolBar, TRUE), "across a menu");
    ExpectSame(*drawnOn(panel, TRUE), *drawnOn(toolBar, TRUE), "across a panel");
    ExpectSame(*drawnOn(panel, FALSE), *drawnOn(toolBar, FALSE), "along a panel");
    EXPECT_GT(drawnOn(toolBar, FALSE)->Colours().size(), 1U);
}

TEST_F(SkinMenus, WithoutABarOrWithoutPicturesSeparatorsAreThePlatforms) {
    auto& skin = Use<OpenBlackSkin>();
    const auto own = [&skin](CBasePane* bar) {
        return SeparatorBy([&](CDC* dc, const CRect& rect) { skin.OnDrawSeparator(dc, bar, rect, FALSE); });
    };
    const auto platforms = [&skin](CBasePane* bar) {
        return SeparatorBy([&](CDC* dc, const CRect& rect) {
            skin.CMFCVisualManagerOffice2007::OnDrawSeparator(dc, bar, rect, FALSE);
        });
    };
    CMFCToolBar bar;
    ExpectSame(*own(nullptr), *platforms(nullptr), "no bar");
    skin.SetImageMode(FALSE);
    ExpectSame(*own(&bar), *platforms(&bar), "no pictures");
    const std::uint32_t end = own(&bar)->At(1, 9), middle = own(&bar)->At(25, 9);
    EXPECT_EQ(end, middle) << "not shortened";
}

} // namespace
