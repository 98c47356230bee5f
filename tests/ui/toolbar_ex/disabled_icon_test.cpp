#include "tests/support/canvas.h"
#include "tests/support/icon_handle.h"
#include "tests/support/ui_test.h"
#include "toolbar_ex.h"

#include <afxtempl.h>

namespace {

constexpr UINT kId = 3001;
constexpr int kSide = 16;

/// One green image for all buttons.
class DisabledIcon : public testing::Test {
protected:
    DisabledIcon() {
        m_images.SetImageSize(CSize(kSide, kSide));
        const HICON icon = MakeIcon(kSide, RGB(0, 200, 0), [](int, int) { return true; });
        m_images.AddIcon(icon, TRUE);
        ::DestroyIcon(icon);
    }
    ~DisabledIcon() override { CMFCToolBarButtonDisIco::SetDisabledIcon(kId, nullptr); }

    static HICON Red() {
        return MakeIcon(kSide, RGB(200, 0, 0), [](int, int) { return true; });
    }

    /// All pixels of the button's place.
    template <class Button>
    std::vector<std::uint32_t> Draw(UINT style, BOOL grayDisabled = TRUE) {
        Button button(kId, 0, nullptr);
        button.m_nStyle = style;
        Canvas canvas;
        CAfxDrawState state;
        m_images.PrepareDrawImage(state);
        button.OnDraw(canvas.Dc(), CRect(0, 0, kButton, kButton), &m_images, TRUE, FALSE, FALSE, TRUE, grayDisabled);
        m_images.EndDrawImage(state);
        std::vector<std::uint32_t> pixels;
        for (int y = 0; y < kButton; ++y) {
            for (int x = 0; x < kButton; ++x) {
                pixels.push_back(canvas.At(x, y));
            }
        }
        return pixels;
    }
    static std::uint32_t Middle(const std::vector<std::uint32_t>& pixels) {
        return pixels[static_cast<std::size_t>(kButton / 2 * kButton + kButton / 2)];
    }

    static constexpr int kButton = 24;
    CMFCToolBarImages m_images;
};

TEST_F(DisabledIcon, WithoutOneADisabledButtonLooksLikeThePlatforms) {
    for (const BOOL gray : {TRUE, FALSE}) {
        EXPECT_EQ(Draw<CMFCToolBarButtonDisIco>(TBBS_DISABLED, gray), Draw<CMFCToolBarButton>(TBBS_DISABLED, gray));
    }
}

TEST_F(DisabledIcon, TwoAmpersandsInTheButtonsTextAreShownAsOne) {
    Canvas canvas;
    CDC& dc = *canvas.Dc();
    const auto widthOf = [&dc](LPCTSTR text) {
        CMFCToolBarButtonDisIco button(kId, -1, text);
        return static_cast<int>(CSize(button.OnCalculateSize(&dc, CSize(0, 0), TRUE)).cx);
    };
    const int margins = widthOf(L"X") - static_cast<int>(dc.GetTextExtent(L"X").cx);
    EXPECT_EQ(widthOf(L"Fish && Chips"), margins + static_cast<int>(dc.GetTextExtent(L"Fish & Chips").cx));
}

TEST_F(DisabledIcon, IsDrawnInThePlaceOfTheImage) {
    const std::vector<std::uint32_t> without = Draw<CMFCToolBarButtonDisIco>(TBBS_DISABLED);
    CMFCToolBarButtonDisIco::SetDisabledIcon(kId, MakeIcon(kSide, RGB(200, 0, 0), [](int x, int) { return x >= 8; }));
    const std::vector<std::uint32_t> with = Draw<CMFCToolBarButtonDisIco>(TBBS_DISABLED);
    EXPECT_NE(Middle(with), Middle(without));
    // Nothing of the image shows where the icon is clear, and nothing is drawn beside its place.
    EXPECT_EQ(with[static_cast<std::size_t>(kButton / 2 * kButton + 6)], with[0]);
    EXPECT_EQ(with.front(), without.front());
    EXPECT_EQ(with.back(), without.back());
}

TEST_F(DisabledIcon, IsDrawnInTheDisabledStyleOfImageLists) {
    CMFCToolBarButtonDisIco::SetDisabledIcon(kId, Red());
    const std::vector<std::uint32_t> got = Draw<CMFCToolBarButtonDisIco>(TBBS_DISABLED);
    CMFCToolBarImages list;
    list.SetImageSize(CSize(kSide, kSide));
    const HICON icon = Red();
    list.AddIcon(icon, TRUE);
    ::DestroyIcon(icon);
    Canvas canvas;
    CAfxDrawState state;
    ASSERT_TRUE(list.PrepareDrawImage(state));
    constexpr int kCorner = (kButton - kSide) / 2;
    ASSERT_TRUE(list.Draw(canvas.Dc(), kCorner, kCorner, 0, FALSE, TRUE, TRUE, TRUE));
    list.EndDrawImage(state);
    EXPECT_EQ(Middle(got), canvas.At(kButton / 2, kButton / 2));
    canvas.Dc()->FillSolidRect(0, 0, 1, 1, RGB(200, 0, 0));
    EXPECT_NE(Middle(got), canvas.At(0, 0));
}

TEST_F(DisabledIcon, OfAnotherSizeIsDrawnInTheSizeOfTheBarsImages) {
    CMFCToolBarButtonDisIco::SetDisabledIcon(
        kId, MakeIcon(2 * kSide, RGB(200, 0, 0), [](int x, int) { return x >= kSide; }));
    const std::vector<std::uint32_t> got = Draw<CMFCToolBarButtonDisIco>(TBBS_DISABLED);
    const auto at = [&got](int x) { return got[static_cast<std::size_t>(kButton / 2 * kButton + x)]; };
    EXPECT_EQ(at(kButton / 2 - 3), at(0)) << "its left half is clear";
    EXPECT_NE(at(kButton / 2 + 3), at(0));
    EXPECT_EQ(at(kButton - 1), at(0)) << "it stays within the image's place";
}

TEST_F(DisabledIcon, ButtonThatIsEnabledKeepsItsImage) {
    const std::vector<std::uint32_t> without = Draw<CMFCToolBarButtonDisIco>(TBBS_BUTTON);
    CMFCToolBarButtonDisIco::SetDisabledIcon(kId, Red());
    EXPECT_EQ(Draw<CMFCToolBarButtonDisIco>(TBBS_BUTTON), without);
}

TEST_F(DisabledIcon, OtherCommandsHaveNone) {
    CMFCToolBarButtonDisIco::SetDisabledIcon(kId + 1, Red());
    EXPECT_EQ(Draw<CMFCToolBarButtonDisIco>(TBBS_DISABLED), Draw<CMFCToolBarButton>(TBBS_DISABLED));
    CMFCToolBarButtonDisIco::SetDisabledIcon(kId + 1, nullptr);
}

TEST_F(DisabledIcon, TableDestroysWhatItWasGiven) {
    const HICON first = Red();
    const HICON second = Red();
    CMFCToolBarButtonDisIco::SetDisabledIcon(kId, first);
    CMFCToolBarButtonDisIco::SetDisabledIcon(kId, first);
    EXPECT_EQ(CMFCToolBarButtonDisIco::GetDisabledIcon(kId), first);
    ICONINFO info{};
    EXPECT_TRUE(::GetIconInfo(first, &info)) << "given twice, it was destroyed";
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    CMFCToolBarButtonDisIco::SetDisabledIcon(kId, second);
    EXPECT_FALSE(::GetIconInfo(first, &info));
    CMFCToolBarButtonDisIco::SetDisabledIcon(kId, nullptr);
    EXPECT_FALSE(::GetIconInfo(second, &info));
    EXPECT_EQ(CMFCToolBarButtonDisIco::GetDisabledIcon(kId), nullptr);
}

TEST_F(DisabledIcon, ButtonIsKeptByToolbarsAsItsOwnClass) {
    CMFCToolBar bar;
    bar.InsertButton(CMFCToolBarButtonDisIco(kId, 0, L"One"));
    ASSERT_EQ(bar.GetCount(), 1);
    EXPECT_TRUE(bar.GetButton(0)->IsKindOf(RUNTIME_CLASS(CMFCToolBarButtonDisIco)));
    EXPECT_EQ(bar.GetButton(0)->m_strText, L"One");
}

TEST_F(DisabledIcon, ButtonIsStoredAndLoaded) {
    CMemFile file;
    {
        CArchive out(&file, CArchive::store);
        CMFCToolBarButtonDisIco button(kId, 0, L"One");
        out.WriteObject(&button);
    }
    file.SeekToBegin();
    CArchive in(&file, CArchive::load);
    const std::unique_ptr<CObject> read(in.ReadObject(RUNTIME_CLASS(CMFCToolBarButtonDisIco)));
    ASSERT_TRUE(read);
    EXPECT_EQ(static_cast<CMFCToolBarButtonDisIco*>(read.get())->m_nID, kId);
}

} // namespace
