// Where the title stands in the caption of a real frame, by the pixels that it shows.
#include "tests/ui/frame_caption/caption_frame.h"
#include "tests/ui/skins/skin_fixture.h"

#include "tests/support/command_list.h"

#include <cstdlib>
#include <string>

namespace {

/// Notes the row and the free part of it that the bar offers for the title.
class RowNotingSkin : public OpenBlackSkin {
    DECLARE_DYNCREATE(RowNotingSkin)

public:
    CRect row = CRect(0, 0, 0, 0), offered = CRect(0, 0, 0, 0);

    void OnDrawRibbonCaption(CDC* dc, CMFCRibbonBar* bar, CRect rect, CRect rectText) override {
        row = rect;
        offered = rectText;
        OpenBlackSkin::OnDrawRibbonCaption(dc, bar, rect, rectText);
    }
};
IMPLEMENT_DYNCREATE(RowNotingSkin, OpenBlackSkin)

struct Span {
    int left = 0, right = 0;

    int Width() const { return right - left; }
    int TwiceTheMiddle() const { return left + right; }
    bool operator==(const Span&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Span& span) { return out << span.left << " to " << span.right; }

constexpr int kBearing = 4; // pixels, twice what a letter keeps free at its sides

class SkinTitle : public SkinTest, public testing::WithParamInterface<DWORD> {
protected:
    SkinTitle() : m_skin(Use<RowNotingSkin>()) {
        m_skin.SetImageMode(FALSE);
        m_frame.Show(WS_OVERLAPPEDWINDOW);
        m_frame.ModifyStyleEx(0, GetParam());
        m_frame.bar.ModifyStyleEx(0, GetParam());
        m_frame.bar.SetQuickAccessCommands(CommandList{1001u, 1002u, 0u, 1001u, 1002u, 0u, 1001u, 1002u});
        m_frame.RecalcLayout();
        PumpPending();
    }

    /// What of the offered part is not ground, in the bar's own co-ordinates, which in a mirrored one begin at the
    /// right.
    Span Shown(const std::wstring& title, BOOL isCentred) {
        CQKVisualManagerOffice2007Black::SetCaptionCenter(isCentred);
        m_frame.SetWindowText(title.c_str());
        m_frame.bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        const CRect place = m_skin.offered;
        CClientDC dc(&m_frame.bar);
        const COLORREF ground = RGB(74, 77, 89);
        Span span{place.right, place.left};
        for (int x = place.left; x < place.right; ++x) {
            for (int y = place.top; y < place.bottom; ++y) {
                if (::GetPixel(dc.GetSafeHdc(), x, y) != ground) {
                    span.left = std::min(span.left, x);
                    span.right = std::max(span.right, x + 1);
                }
            }
        }
        EXPECT_LT(span.left, span.right) << "no title";
        return span;
    }
    int RowsTwiceTheMiddle() const { return m_skin.row.left + m_skin.row.right; }
    int OfferedTwiceTheMiddle() const { return m_skin.offered.left + m_skin.offered.right; }
    /// The widest place for a title in the row's middle.
    int RoomInTheMiddle() const {
        return std::min(RowsTwiceTheMiddle() - 2 * m_skin.offered.left,
                        2 * m_skin.offered.right - RowsTwiceTheMiddle());
    }

    RowNotingSkin& m_skin;
    RibbonFrameWithCaption m_frame;
};

TEST_P(SkinTitle, StandsInTheMiddleOfItsRowWhereTheHostSaysSo) {
    const Span usual = Shown(L"HAHAH", FALSE), centred = Shown(L"HAHAH", TRUE);
    ASSERT_GT(std::abs(OfferedTwiceTheMiddle() - RowsTwiceTheMiddle()), 4 * kBearing) << "which are to be told apart";
    EXPECT_NEAR(usual.TwiceTheMiddle(), OfferedTwiceTheMiddle(), kBearing);
    EXPECT_NEAR(centred.TwiceTheMiddle(), RowsTwiceTheMiddle(), kBearing);
    EXPECT_EQ(usual.Width(), centred.Width());
}

TEST_P(SkinTitle, OneThatIsTooWideForTheRowsMiddleStandsWhereItHasRoomAndIsWhole) {
    std::wstring title = L"H";
    Span usual = Shown(title, FALSE);
    while (usual.Width() <= RoomInTheMiddle()) {
        title += L"H";
        usual = Shown(title, FALSE);
    }
    ASSERT_LT(usual.Width() + 2 * kBearing, m_skin.offered.Width()) << "there is room for it";
    EXPECT_EQ(Shown(title, TRUE), usual);
}

INSTANTIATE_TEST_SUITE_P(, SkinTitle, testing::Values(DWORD(0), DWORD(WS_EX_LAYOUTRTL)),
                         [](const auto& test) { return test.param == 0 ? "LeftToRight" : "Mirrored"; });

} // namespace
