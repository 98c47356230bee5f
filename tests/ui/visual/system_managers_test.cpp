// The looks in the system's own colours that a program lets its user choose from.
#include <afxcontrolbars.h>

#include <algorithm>
#include <utility>
#include <uxtheme.h>

#include <gtest/gtest.h>

namespace {

constexpr int kSide = 40;

/// What a manager paints, in a picture.
class Sheet {
public:
    Sheet() {
        CClientDC screen(nullptr);
        m_dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, kSide, kSide);
        m_before = m_dc.SelectObject(&m_bitmap);
    }
    ~Sheet() { m_dc.SelectObject(m_before); }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    CDC* Dc() { return &m_dc; }
    static CRect Whole() { return CRect(0, 0, kSide, kSide); }
    COLORREF At(int x, int y) { return m_dc.GetPixel(x, y); }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_before = nullptr;
};

template <class Manager>
Manager& Choose() {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(Manager));
    return static_cast<Manager&>(*CMFCVisualManager::GetInstance());
}

COLORREF HotMenuRow(CMFCVisualManager& manager) {
    Sheet sheet;
    COLORREF text = 0;
    manager.OnHighlightMenuItem(sheet.Dc(), nullptr, Sheet::Whole(), text);
    return sheet.At(kSide / 2, kSide / 2);
}

/// The upper and the lower end of a bar.
std::pair<COLORREF, COLORREF> BarEnds(CMFCVisualManager& manager) {
    Sheet sheet;
    CMFCToolBar bar;
    manager.OnFillBarBackground(sheet.Dc(), &bar, Sheet::Whole(), Sheet::Whole());
    return {sheet.At(kSide / 2, 1), sheet.At(kSide / 2, kSide - 2)};
}

int Spread(COLORREF color) {
    const int red = GetRValue(color), green = GetGValue(color), blue = GetBValue(color);
    return std::max({red, green, blue}) - std::min({red, green, blue});
}

class SystemManagers : public testing::Test {
protected:
    void TearDown() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
    }
};

TEST_F(SystemManagers, EachCanBeChosenByItsClass) {
    for (CRuntimeClass* const manager :
         {RUNTIME_CLASS(CMFCVisualManagerVS2005), RUNTIME_CLASS(CMFCVisualManagerVS2008),
          RUNTIME_CLASS(CMFCVisualManagerWindows), RUNTIME_CLASS(CMFCVisualManagerWindows7)}) {
        CMFCVisualManager::SetDefaultManager(manager);
        EXPECT_EQ(CMFCVisualManager::GetInstance()->GetRuntimeClass(), manager) << manager->m_lpszClassName;
        EXPECT_NE(HotMenuRow(*CMFCVisualManager::GetInstance()), RGB(0, 0, 0)) << manager->m_lpszClassName;
    }
}

TEST_F(SystemManagers, GradientsAreMixedFromTheButtonFace) {
    EXPECT_EQ(Choose<CMFCVisualManagerVS2005>().GetBaseThemeColor(), afxGlobalData.clrBtnFace);
    const auto [top, bottom] = BarEnds(*CMFCVisualManager::GetInstance());
    EXPECT_NE(top, bottom);
    const int spreadOfFace = Spread(afxGlobalData.clrBtnFace);
    EXPECT_LE(Spread(bottom), spreadOfFace + 2) << "no colour that the face has not";
    Choose<CMFCVisualManagerOffice2003>();
    EXPECT_NE(BarEnds(*CMFCVisualManager::GetInstance()).second, bottom) << "mixed from the caption again";
}

TEST_F(SystemManagers, MenusOfTheSystemsLookFollowTheOtherOnesWhenToldTo) {
    const COLORREF mixed = HotMenuRow(Choose<CMFCVisualManagerOfficeXP>());
    auto& manager = Choose<CMFCVisualManagerWindows>();
    EXPECT_FALSE(manager.IsOfficeXPStyleMenus());
    const COLORREF own = HotMenuRow(manager);
    EXPECT_NE(own, mixed);
    const auto bar = BarEnds(manager);
    manager.SetOfficeStyleMenus();
    EXPECT_TRUE(manager.IsOfficeStyleMenus());
    EXPECT_TRUE(manager.IsOfficeXPStyleMenus());
    EXPECT_EQ(HotMenuRow(manager), mixed);
    EXPECT_EQ(BarEnds(manager), bar) << "bars stay as they were";
    manager.SetOfficeStyleMenus(FALSE);
    EXPECT_EQ(HotMenuRow(manager), own);
}

TEST_F(SystemManagers, TheFlatOneOfThemHasMixedHighlights) {
    const COLORREF mixed = HotMenuRow(Choose<CMFCVisualManagerOfficeXP>());
    EXPECT_EQ(HotMenuRow(Choose<CMFCVisualManagerWindows7>()), mixed);
}

TEST_F(SystemManagers, WhetherThereAreThemesIsWhatTheSystemSays) {
    EXPECT_EQ(CMFCVisualManagerWindows::IsWinXPThemeAvailible() != FALSE, ::IsAppThemed() && ::IsThemeActive());
}

} // namespace
