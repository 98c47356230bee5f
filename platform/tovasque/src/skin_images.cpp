#include "src/skin_images.h"

#include "src/skin_plates.h"
#include "tovasque/skin_files.h"
#include "varnhold/file_op.h"

#include <algorithm>
#include <atomic>
#include <cmath>

namespace tovasque {

namespace {

// What each picture paints and how it is stretched: frames, margins left, top, right, bottom, whether the flat colours
// lie below it, whether it is drawn at its own size.
constexpr std::array<SkinImageUse, kSkinImages> kUses = {{
    {SkinImage::Main, 3, 6, 6, 6, 6, false, false},                // application button: rest, hot, pressed
    {SkinImage::Tab, 3, 6, 6, 6, 2, false, false},                 // category tab: hot, active, active and hot
    {SkinImage::ButtonHilight, 2, 6, 6, 6, 6, false, false},       // button of two rows or more: hot, pressed
    {SkinImage::ButtonChecked, 2, 6, 6, 6, 6, false, false},       // the same, checked: rest, hot
    {SkinImage::NarrowButtonHilight, 2, 6, 6, 6, 6, false, false}, // button of one row: hot, pressed
    {SkinImage::NarrowButtonChecked, 2, 6, 6, 6, 6, false, false}, // the same, checked: rest, hot
    {SkinImage::Category, 1, 2, 2, 2, 2, true, false},             // ground of a category
    {SkinImage::PanelDown, 2, 0, 0, 0, 0, false, true},            // arrow of a collapsed panel: rest, disabled
    {SkinImage::ChildButton, 2, 6, 6, 6, 6, false, false},  // half of a split button, joined button: hot, pressed
    {SkinImage::RightHilight, 1, 6, 6, 6, 6, false, false}, // row under the pointer in menus and pop-ups
    {SkinImage::RightCheck, 2, 6, 6, 6, 6, false, false},   // behind a check mark in menus: rest, row hot
    {SkinImage::CaptionGround, 2, 2, 2, 2, 2, true, false}, // ground of the title: active, inactive
    {SkinImage::TabArea, 1, 2, 2, 2, 2, true, false},       // ground of the row of tabs
    {SkinImage::StatusButton, 2, 6, 6, 6, 6, false, false}, // status bar element: hot, pressed
    {SkinImage::StatusButtonChecked, 2, 6, 6, 6, 6, false, false}, // the same, checked: rest, hot
    {SkinImage::StatusGround, 1, 2, 2, 2, 2, true, false},         // ground of the status bar
}};

struct Frame {
    SkinImage image;
    int frame;
};

/// Where a plate comes from, by the size and the place of what it paints.
struct PlateUse {
    PlateNumber number;
    Frame tall, narrow, joined, status;
};

constexpr PlateUse Same(PlateNumber number, SkinImage image, int frame) {
    const Frame one{image, frame};
    return {number, one, one, one, one};
}

constexpr std::array<PlateUse, static_cast<std::size_t>(PlateNumber::Count) - 1> kPlates = {{
    {PlateNumber::ButtonHot,
     {SkinImage::ButtonHilight, 0},
     {SkinImage::NarrowButtonHilight, 0},
     {SkinImage::ChildButton, 0},
     {SkinImage::StatusButton, 0}},
    {PlateNumber::ButtonPressed,
     {SkinImage::ButtonHilight, 1},
     {SkinImage::NarrowButtonHilight, 1},
     {SkinImage::ChildButton, 1},
     {SkinImage::StatusButton, 1}},
    {PlateNumber::ButtonChecked,
     {SkinImage::ButtonChecked, 0},
     {SkinImage::NarrowButtonChecked, 0},
     {SkinImage::NarrowButtonChecked, 0},
     {SkinImage::StatusButtonChecked, 0}},
    {PlateNumber::ButtonCheckedHot,
     {SkinImage::ButtonChecked, 1},
     {SkinImage::NarrowButtonChecked, 1},
     {SkinImage::NarrowButtonChecked, 1},
     {SkinImage::StatusButtonChecked, 1}},
    Same(PlateNumber::Application, SkinImage::Main, 0),
    Same(PlateNumber::ApplicationHot, SkinImage::Main, 1),
    Same(PlateNumber::ApplicationPressed, SkinImage::Main, 2),
    Same(PlateNumber::TabHot, SkinImage::Tab, 0),
    Same(PlateNumber::TabActive, SkinImage::Tab, 1),
    Same(PlateNumber::TabActiveHot, SkinImage::Tab, 2),
    Same(PlateNumber::Category, SkinImage::Category, 0),
    Same(PlateNumber::Arrow, SkinImage::PanelDown, 0),
    Same(PlateNumber::ArrowDisabled, SkinImage::PanelDown, 1),
    Same(PlateNumber::MenuRowHot, SkinImage::RightHilight, 0),
    Same(PlateNumber::MenuCheck, SkinImage::RightCheck, 0),
    Same(PlateNumber::MenuCheckHot, SkinImage::RightCheck, 1),
    Same(PlateNumber::CaptionActive, SkinImage::CaptionGround, 0),
    Same(PlateNumber::CaptionInactive, SkinImage::CaptionGround, 1),
    Same(PlateNumber::TabRow, SkinImage::TabArea, 0),
    Same(PlateNumber::StatusGround, SkinImage::StatusGround, 0),
    Same(PlateNumber::DropArrow, SkinImage::DropArrow, 0),
    Same(PlateNumber::DropArrowHot, SkinImage::DropArrow, 1),
}};

constexpr bool ArePlatesInOrder() {
    for (std::size_t i = 0; i < kPlates.size(); ++i) {
        if (static_cast<std::size_t>(kPlates[i].number) != i + 1) {
            return false;
        }
    }
    return true;
}
static_assert(ArePlatesInOrder(), "one row for each plate, in the order of their numbers");

constexpr int kTwoRows = 40; // pixels at 100 %: what is higher has more than one row

std::uint32_t NextPlateName() {
    static std::atomic<std::uint32_t> last = 0;
    return ++last;
}

constexpr int kIconSide = 16; // of the drop-down arrow's icon at 100 %

int Scaled(int pixels, int percent) { return (pixels * percent + 50) / 100; }

/// One plate for each frame of the picture, which must stay where it is as long as they are used.
void SetFrames(const Pixels& pixels, const SkinImageUse& use, int percent, std::array<visual::Plate, 3>& frames) {
    const int width = pixels.width, height = pixels.height / use.frames;
    for (int i = 0; i < use.frames && !pixels.IsEmpty(); ++i) {
        visual::Plate& plate = frames[static_cast<std::size_t>(i)];
        plate.pixels = pixels.bits.data() + static_cast<std::ptrdiff_t>(i) * width * height;
        plate.width = width;
        plate.height = height;
        plate.left = std::min(Scaled(use.left, percent), width / 2);
        plate.right = std::min(Scaled(use.right, percent), width / 2);
        plate.top = std::min(Scaled(use.top, percent), height / 2);
        plate.bottom = std::min(Scaled(use.bottom, percent), height / 2);
        plate.name = NextPlateName();
        plate.isOverFace = use.isOverFace;
        plate.isCentred = use.isCentred;
    }
}

LoadedPicture ReadPicture(const SkinImageUse& use, const std::wstring& path, int percent, LookedAtFiles& files) {
    const auto read = [&](int filePercent) {
        Pixels pixels = ReadPngFile(files.Add(FileForPercent(path, filePercent)));
        return pixels.height % use.frames == 0 ? pixels : Pixels{};
    };
    int filePercent = 100;
    LoadedPicture loaded;
    for (const int larger : kFilePercents) {
        if (larger <= percent && loaded.pixels.IsEmpty()) {
            loaded.pixels = read(filePercent = larger);
        }
    }
    if (loaded.pixels.IsEmpty()) {
        loaded.pixels = read(filePercent = 100);
    }
    if (loaded.pixels.IsEmpty()) {
        return {};
    }
    if (filePercent != percent) {
        const int frame = std::max(MulDiv(loaded.pixels.height / use.frames, percent, filePercent), 1);
        loaded.pixels =
            Scaled(loaded.pixels, std::max(MulDiv(loaded.pixels.width, percent, filePercent), 1), frame * use.frames);
    }
    SetFrames(loaded.pixels, use, percent, loaded.frames);
    return loaded;
}

} // namespace

const SkinImageUse& UseOf(SkinImage image) { return kUses[static_cast<std::size_t>(image) - 1]; }

const visual::Plate* SkinPictures::FindPlate(std::uint32_t number, visual::PlatePlace place, int height,
                                             double scale) const {
    if (number == 0 || number > kPlates.size()) {
        return nullptr;
    }
    const PlateUse& use = kPlates[number - 1];
    const bool isTall = height >= kTwoRows * scale;
    const Frame frame = place == visual::PlatePlace::StatusBar ? use.status
                        : place == visual::PlatePlace::Joined  ? use.joined
                        : isTall                               ? use.tall
                                                               : use.narrow;
    const LoadedPicture& loaded = Load(frame.image, scale);
    return loaded.pixels.IsEmpty() ? nullptr : &loaded.frames[static_cast<std::size_t>(frame.frame)];
}

const LoadedPicture& SkinPictures::Load(SkinImage image, double scale) const {
    const int percent = static_cast<int>(std::lround(scale * 100));
    std::shared_ptr<const LoadedPicture>& loaded = m_loaded[{image, percent}];
    if (loaded == nullptr) {
        loaded = Find(image, percent);
    }
    return *loaded;
}

std::shared_ptr<const LoadedPicture> SkinPictures::Find(SkinImage image, int percent) const {
    const bool isArrow = image == SkinImage::DropArrow;
    const CString& relative = isArrow ? m_dropDownIcon : m_paths[static_cast<std::size_t>(image) - 1];
    std::wstring directory;
    if (relative.IsEmpty() || !FileOp::GetAppPath(directory)) {
        return std::make_shared<const LoadedPicture>();
    }
    const std::wstring path = directory + static_cast<LPCTSTR>(relative);
    std::wstring key = path + L'|' + std::to_wstring(static_cast<int>(image)) + L'|' + std::to_wstring(percent);
    for (const visual::Argb color : m_arrowColors) {
        key += isArrow ? L'|' + std::to_wstring(color) : std::wstring();
    }
    return FindPicture(key, [&](LookedAtFiles& files) {
        return isArrow ? ReadArrow(path, percent, files) : ReadPicture(UseOf(image), path, percent, files);
    });
}

LoadedPicture SkinPictures::ReadArrow(const std::wstring& path, int percent, LookedAtFiles& files) const {
    files.Add(path);
    const int side = Scaled(kIconSide, percent);
    LoadedPicture loaded;
    for (const visual::Argb color : m_arrowColors) {
        const Pixels shape = ReadIconShape(path, side, color);
        if (shape.IsEmpty()) {
            return {};
        }
        loaded.pixels.bits.insert(loaded.pixels.bits.end(), shape.bits.begin(), shape.bits.end());
    }
    loaded.pixels.width = side;
    loaded.pixels.height = side * static_cast<int>(m_arrowColors.size());
    SetFrames(loaded.pixels, {SkinImage::DropArrow, static_cast<int>(m_arrowColors.size()), 0, 0, 0, 0, false, true},
              percent, loaded.frames);
    return loaded;
}

} // namespace tovasque
