#include "visual/canvas.h"
#include "visual/paint_ribbon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

constexpr std::uint32_t kGround = 0x00808040, kPicture = 0xFF10C83C;
constexpr visual::Argb kFace = 0xFF3C4049, kContext = 0xFF20A040;
constexpr std::uint32_t kPlateNumber = 7;
constexpr int kSide = 64;

/// One picture for tabs, of one colour.
class OnePlate final : public visual::PlateSource {
public:
    OnePlate() {
        m_pixels.fill(kPicture);
        m_plate.pixels = m_pixels.data();
        m_plate.width = m_plate.height = kPictureSide;
        m_plate.name = 4711;
    }
    ~OnePlate() = default;
    OnePlate(const OnePlate&) = delete;
    OnePlate& operator=(const OnePlate&) = delete;
    const visual::Plate* FindPlate(std::uint32_t number, visual::PlatePlace /*place*/, int /*height*/,
                                   double /*scale*/) const override {
        return number == kPlateNumber ? &m_plate : nullptr;
    }

private:
    static constexpr int kPictureSide = 4;
    std::array<std::uint32_t, static_cast<std::size_t>(kPictureSide* kPictureSide)> m_pixels{};
    visual::Plate m_plate;
};

class TabPlate : public testing::Test {
protected:
    TabPlate() : m_skin(visual::StyleSkin(0)) {
        visual::PictureCache::Instance().Clear();
        m_skin.isFlat = true;
        m_skin.plates = &m_plates;
        for (const visual::FaceSlot slot :
             {visual::FaceSlot::TabHot, visual::FaceSlot::TabActive, visual::FaceSlot::TabActiveHot}) {
            m_skin[slot] = {0, 0, kFace, kFace, kFace, kFace, kPlateNumber};
        }
    }
    ~TabPlate() override { visual::PictureCache::Instance().Clear(); }
    TabPlate(const TabPlate&) = delete;
    TabPlate& operator=(const TabPlate&) = delete;

    /// What the middle of such a tab shows.
    std::uint32_t Painted(const visual::TabState& state) const {
        std::uint32_t* bits = nullptr;
        const HDC dc = ::CreateCompatibleDC(nullptr);
        const HBITMAP bitmap = visual::MakeBitmap32(kSide, kSide, &bits);
        const HGDIOBJ previous = ::SelectObject(dc, bitmap);
        std::fill_n(bits, kSide * kSide, kGround);
        visual::PaintTab(dc, {4, 4, 60, 40}, state, {m_skin});
        ::GdiFlush();
        const std::uint32_t pixel = bits[20 * kSide + 30] & 0xFFFFFF;
        ::SelectObject(dc, previous);
        ::DeleteObject(bitmap);
        ::DeleteDC(dc);
        return pixel;
    }

private:
    OnePlate m_plates;
    visual::Skin m_skin;
};

TEST_F(TabPlate, APictureTakesThePlaceOfTheColours) {
    EXPECT_EQ(Painted({.isActive = true}), kPicture & 0xFFFFFF);
    EXPECT_EQ(Painted({.isHot = true}), kPicture & 0xFFFFFF);
}

TEST_F(TabPlate, ATabAtRestHasNone) { EXPECT_EQ(Painted({}), kGround); }

TEST_F(TabPlate, AContextsTabKeepsTheContextsColour) {
    const std::uint32_t tinted = visual::Mix(kFace, kContext, 1, 3) & 0xFFFFFF;
    EXPECT_EQ(Painted({.isActive = true, .tint = kContext}), tinted);
    EXPECT_EQ(Painted({.isHot = true, .tint = kContext}), tinted);
    EXPECT_EQ(Painted({.tint = kContext}), tinted);
}

} // namespace
