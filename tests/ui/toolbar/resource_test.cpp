// Toolbars from resources: both forms of the "TOOLBAR" type, and the bitmap of hot images.
#include "tests/ui/toolbar/bar_frame.h"
#include "toolbar/tool_bar_resource.h"

#include <optional>

namespace {

constexpr UINT kWideResource = 101;
constexpr UINT kNarrowResource = 102;
constexpr UINT kHotBitmap = 201;

template <typename Number>
std::vector<std::uint8_t> BytesOf(const std::vector<Number>& numbers) {
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(numbers.data());
    return {bytes, bytes + numbers.size() * sizeof(Number)};
}

std::optional<toolbar::ToolBarResource> Narrow(const std::vector<std::uint16_t>& numbers) {
    return toolbar::ReadToolBarResource(BytesOf(numbers));
}

std::optional<toolbar::ToolBarResource> Wide(const std::vector<std::uint32_t>& numbers) {
    return toolbar::ReadToolBarResource(BytesOf(numbers));
}

TEST(ToolBarResource, BothFormsAreRead) {
    for (const auto& resource : {Narrow({1, 16, 15, 3, 100, 0, 101}), Wide({16, 15, 3, 100, 0, 101})}) {
        ASSERT_TRUE(resource);
        EXPECT_EQ(resource->imageWidth, 16);
        EXPECT_EQ(resource->imageHeight, 15);
        EXPECT_EQ(resource->commands, (std::vector<unsigned>{100, 0, 101}));
    }
}

TEST(ToolBarResource, WidthOfOneIsNotTakenForTheVersion) {
    const auto resource = Wide({1, 15, 1, 100});
    ASSERT_TRUE(resource);
    EXPECT_EQ(resource->imageWidth, 1);
    EXPECT_EQ(resource->commands, (std::vector<unsigned>{100}));
}

TEST(ToolBarResource, WithLessThanItSaysIsRefused) {
    EXPECT_FALSE(Narrow({1, 16, 15, 4, 100, 0, 101}));
    EXPECT_FALSE(Wide({16, 15, 4, 100, 0, 101}));
    EXPECT_FALSE(Wide({16, 15, 0xFFFFFFFF, 100}));
    EXPECT_FALSE(Wide({16, 15}));
    EXPECT_FALSE(toolbar::ReadToolBarResource({}));
}

TEST(ToolBarResource, WithImagesOfNoSizeIsRefused) {
    EXPECT_FALSE(Wide({0, 15, 1, 100}));
    EXPECT_FALSE(Wide({16, 0x80000000, 1, 100}));
    EXPECT_FALSE(Narrow({2, 16, 15, 1, 100}));
}

class ResourceBar : public ToolBarTest {
protected:
    ResourceBar() { CMFCToolBar::ResetAllImages(); }
    /// The colour in the middle of the button at the index, 0x00BBGGRR.
    COLORREF ColourOf(int index) {
        LayOut();
        CRect client;
        Bar().GetClientRect(client);
        const HDC screen = ::GetDC(nullptr);
        CDC memory;
        memory.Attach(::CreateCompatibleDC(screen));
        const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, client.Width(), client.Height());
        const HGDIOBJ before = ::SelectObject(memory.m_hDC, bitmap);
        Bar().DoPaint(&memory);
        const CPoint centre = CenterOf(index);
        const COLORREF colour = ::GetPixel(memory.m_hDC, centre.x, centre.y);
        ::SelectObject(memory.m_hDC, before);
        ::DeleteObject(bitmap);
        ::ReleaseDC(nullptr, screen);
        return colour;
    }
};

TEST_F(ResourceBar, ThatTheResourceCompilerWroteIsLoaded) {
    ASSERT_TRUE(Bar().LoadToolBar(kWideResource));
    EXPECT_EQ(Contents(), L"3001 | 3002");
    EXPECT_EQ(Bar().GetImageSize(), CSize(12, 10));
}

TEST_F(ResourceBar, OfTheOtherFormIsLoaded) {
    ASSERT_TRUE(Bar().LoadToolBar(kNarrowResource));
    EXPECT_EQ(Contents(), L"3002 | 3001");
}

TEST_F(ResourceBar, ThatIsMissingIsRefused) { EXPECT_FALSE(Bar().LoadToolBar(99)); }

TEST_F(ResourceBar, HotBitmapShowsOnTheHotButtonOnly) {
    for (const BOOL isLocked : {FALSE, TRUE}) {
        ASSERT_TRUE(Bar().LoadToolBar(kWideResource, 0, 0, isLocked, 0, 0, kHotBitmap));
        Bar().SetHot(Bar().GetButton(0));
        EXPECT_EQ(ColourOf(0), RGB(0xE0, 0x40, 0x20)) << isLocked;
        EXPECT_EQ(ColourOf(2), RGB(0x20, 0xA0, 0x40)) << isLocked;
        Bar().SetHot(Bar().GetButton(2));
        EXPECT_EQ(ColourOf(0), RGB(0x20, 0x40, 0xA0)) << isLocked;
        EXPECT_EQ(ColourOf(2), RGB(0xE0, 0xC0, 0x20)) << isLocked;
    }
}

TEST_F(ResourceBar, HotImagesOfASecondBarStandBehindTheImagesOfTheFirst) {
    ASSERT_TRUE(Bar().LoadToolBar(kNarrowResource));
    TestBar second;
    ASSERT_TRUE(second.Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 0xE850));
    ASSERT_TRUE(second.LoadToolBar(kWideResource, 0, 0, FALSE, 0, 0, kHotBitmap));
    Bar().SetHot(Bar().GetButton(0));
    EXPECT_EQ(ColourOf(0), RGB(0x20, 0x40, 0xA0)) << "the first bar has no hot bitmap";
}

} // namespace
