#include "visual/paint.h"

#include "gdi/device_pixels.h"

#include <algorithm>
#include <array>
#include <span>

namespace visual {

namespace {

FourStops StopsOf(const Face& face, const Skin& skin) {
    return {face.top1, face.top2, face.bottom1, face.bottom2, skin.split};
}

bool HasFill(const Face& face) { return AlphaOf(face.top1 | face.top2 | face.bottom1 | face.bottom2) != 0; }

RECT Square(const RECT& rect) {
    const LONG side = std::min(rect.right - rect.left, rect.bottom - rect.top);
    const LONG left = (rect.left + rect.right - side) / 2, top = (rect.top + rect.bottom - side) / 2;
    return {left, top, left + side, top + side};
}

void FillPart(const Canvas& canvas, LONG left, LONG top, LONG right, LONG bottom, Argb color) {
    FillRounded(canvas.View(), canvas.Local(RECT{left, top, right, bottom}), {}, {color, color, color, color, 50});
}

} // namespace

const Face* ButtonFaceFor(const Skin& skin, const ElementState& state) {
    if (state.isDisabled) {
        return state.isChecked ? &skin[FaceSlot::Group] : nullptr;
    }
    if (state.isPressed || state.isDropped) {
        return &skin[FaceSlot::ButtonPressed];
    }
    if (state.isChecked) {
        return &skin[state.isHot ? FaceSlot::ButtonCheckedHot : FaceSlot::ButtonChecked];
    }
    return state.isHot ? &skin[FaceSlot::ButtonHot] : nullptr;
}

const Face& KnobFaceFor(const Skin& skin, const ElementState& state) {
    if (state.isDisabled) {
        return skin[FaceSlot::CheckBoxDisabled];
    }
    if (state.isPressed) {
        return skin[FaceSlot::KnobPressed];
    }
    return skin[state.isHot ? FaceSlot::KnobHot : FaceSlot::Knob];
}

Corners CornersFor(GroupPlace place, int radius) {
    switch (place) {
    case GroupPlace::First:
        return Corners::Left(radius);
    case GroupPlace::Middle:
        return {};
    case GroupPlace::Last:
        return Corners::Right(radius);
    case GroupPlace::Alone:
        break;
    }
    return Corners::All(radius);
}

namespace {

const Plate* PlateFor(const RECT& rect, std::uint32_t plate, PlatePlace place, const Look& look) {
    return plate != 0 && look.skin.plates != nullptr
               ? look.skin.plates->FindPlate(plate, place, rect.bottom - rect.top, look.scale)
               : nullptr;
}

RECT PlaceOf(const Plate& plate, const RECT& rect) {
    if (!plate.isCentred) {
        return rect;
    }
    const LONG left = (rect.left + rect.right - plate.width) / 2, top = (rect.top + rect.bottom - plate.height) / 2;
    return {left, top, left + plate.width, top + plate.height};
}

void DrawPlate(HDC dc, const RECT& rect, const Plate& plate) {
    const RECT place = PlaceOf(plate, rect);
    const Canvas canvas(dc, place, Recipe("plate", plate.name));
    if (!canvas.IsEmpty()) {
        const std::span pixels(plate.pixels, static_cast<std::size_t>(plate.width) * plate.height);
        FillSlices(canvas.View(), canvas.Local(place), pixels, plate.width,
                   {plate.left, plate.top, plate.right, plate.bottom});
    }
}

void PaintColors(HDC dc, const RECT& rect, const Face& face, const Corners& corners, const Look& look) {
    const Canvas canvas(dc, rect, Recipe("face", face, corners, look.skin.split, look.Line()));
    if (canvas.IsEmpty()) {
        return;
    }
    const fx::Rect whole = canvas.Local(rect);
    const int line = look.Line();
    if (HasFill(face)) {
        FillRounded(canvas.View(), whole, corners, StopsOf(face, look.skin));
    }
    StrokeRounded(canvas.View(), whole.Deflated(line), corners.Deflated(line), face.inner, line);
    StrokeRounded(canvas.View(), whole, corners, face.outer, line);
}

} // namespace

bool PaintPlate(HDC dc, const RECT& rect, std::uint32_t plate, PlatePlace place, const Look& look) {
    const Plate* const found = PlateFor(rect, plate, place, look);
    if (found == nullptr) {
        return false;
    }
    DrawPlate(dc, rect, *found);
    return true;
}

void PaintFace(HDC dc, const RECT& rect, const Face& face, const Corners& corners, const Look& look, PlatePlace place) {
    const Plate* const plate = PlateFor(rect, face.plate, place, look);
    if (plate == nullptr || plate->isOverFace) {
        PaintColors(dc, rect, face, corners, look);
    }
    if (plate != nullptr) {
        DrawPlate(dc, rect, *plate);
    }
}

void PaintFill(HDC dc, const RECT& rect, const Face& face, const Look& look) {
    const Plate* const plate = PlateFor(rect, face.plate, PlatePlace::Alone, look);
    if (plate == nullptr || plate->isOverFace) {
        const Canvas canvas(dc, rect, Recipe("fill", face, look.skin.split));
        if (!canvas.IsEmpty()) {
            FillRounded(canvas.View(), canvas.Local(rect), {}, StopsOf(face, look.skin));
        }
    }
    if (plate != nullptr) {
        DrawPlate(dc, rect, *plate);
    }
}

void PaintBorders(HDC dc, const RECT& rect, const Face& face, const Corners& corners, const Look& look) {
    // A picture has its border in it, and who draws the border alone has filled the face before.
    if (PlateFor(rect, face.plate, PlatePlace::Alone, look) != nullptr) {
        return;
    }
    Face frame;
    frame.outer = face.outer;
    frame.inner = face.inner;
    PaintFace(dc, rect, frame, corners, look);
}

void PaintSolid(HDC dc, const RECT& rect, Argb color) {
    if (AlphaOf(color) == 0) {
        return;
    }
    if (AlphaOf(color) == 255) {
        const COLORREF previous = SetBkColor(dc, ToColorRef(color));
        gdi::FillGround(dc, rect);
        SetBkColor(dc, previous);
        return;
    }
    const Canvas canvas(dc, rect);
    if (!canvas.IsEmpty()) {
        FillPart(canvas, rect.left, rect.top, rect.right, rect.bottom, color);
    }
}

void PaintFrame(HDC dc, const RECT& rect, Argb color, int thickness) {
    const LONG middleTop = std::min(rect.top + thickness, rect.bottom);
    const LONG middleBottom = std::max(rect.bottom - thickness, middleTop);
    PaintSolid(dc, {rect.left, rect.top, rect.right, middleTop}, color);
    PaintSolid(dc, {rect.left, middleBottom, rect.right, rect.bottom}, color);
    PaintSolid(dc, {rect.left, middleTop, std::min(rect.left + thickness, rect.right), middleBottom}, color);
    PaintSolid(dc, {std::max(rect.right - thickness, rect.left), middleTop, rect.right, middleBottom}, color);
}

void PaintEtchedLine(HDC dc, const RECT& rect, bool isUpright, Argb dark, Argb light, const Look& look) {
    const int line = look.Line();
    if (isUpright) {
        const LONG x = (rect.left + rect.right) / 2 - line;
        PaintSolid(dc, {x, rect.top, x + line, rect.bottom}, dark);
        PaintSolid(dc, {x + line, rect.top, x + 2 * line, rect.bottom}, light);
        return;
    }
    const LONG y = (rect.top + rect.bottom) / 2 - line;
    PaintSolid(dc, {rect.left, y, rect.right, y + line}, dark);
    PaintSolid(dc, {rect.left, y + line, rect.right, y + 2 * line}, light);
}

void PaintChevron(HDC dc, const RECT& rect, ArrowDirection direction, Argb color, const Look& look) {
    const int reach = look.Px(4), depth = look.Px(2) + look.Line();
    const LONG middleX = (rect.left + rect.right) / 2, middleY = (rect.top + rect.bottom) / 2;
    const RECT box{middleX - reach - 1, middleY - reach - 1, middleX + reach + 2, middleY + reach + 2};
    const Canvas canvas(dc, box, Recipe("chevron", direction, color, reach, depth));
    if (canvas.IsEmpty()) {
        return;
    }
    // Along the arrow's way and across it, from the middle; turned into x and y by the direction.
    const double half = (box.right - box.left) / 2.0, width = 1.5 * look.scale, tip = depth / 2.0 + width / 2;
    const std::array<PointF, 6> shape{{{-half + 1, tip - depth - width},
                                       {0, tip - width},
                                       {half - 1, tip - depth - width},
                                       {half - 1, tip - depth},
                                       {0, tip},
                                       {-half + 1, tip - depth}}};
    std::array<PointF, shape.size()> points;
    std::ranges::transform(shape, points.begin(), [&](PointF point) {
        switch (direction) {
        case ArrowDirection::Up:
            return PointF{half + point.x, half - point.y};
        case ArrowDirection::Left:
            return PointF{half - point.y, half + point.x};
        case ArrowDirection::Right:
            return PointF{half + point.y, half + point.x};
        case ArrowDirection::Down:
            break;
        }
        return PointF{half + point.x, half + point.y};
    });
    FillPolygon(canvas.View(), points, color);
}

void PaintArrow(HDC dc, const RECT& rect, ArrowDirection direction, Argb color, Argb light, const Look& look) {
    if (look.skin.isFlat) {
        PaintChevron(dc, rect, direction, color, look);
        return;
    }
    const int depth = look.Px(3), half = depth;
    const LONG middleX = (rect.left + rect.right) / 2, middleY = (rect.top + rect.bottom) / 2;
    const RECT bounds{middleX - half - 2, middleY - half - 2, middleX + half + 3, middleY + half + 3};
    const Canvas canvas(dc, bounds, Recipe("arrow", direction, color, light, depth));
    if (canvas.IsEmpty()) {
        return;
    }
    // Rows of whole pixels give a sharp triangle at any scale.
    const auto drawAt = [&](LONG offset, Argb rowColor) {
        for (int i = 0; i < depth; ++i) {
            const LONG reach = depth - 1 - i;
            const bool isUpright = direction == ArrowDirection::Up || direction == ArrowDirection::Down;
            const bool isForward = direction == ArrowDirection::Down || direction == ArrowDirection::Right;
            const LONG step = (isForward ? i : depth - 1 - i) - depth / 2;
            if (isUpright) {
                FillPart(canvas, middleX - reach, middleY + step + offset, middleX + reach + 1,
                         middleY + step + offset + 1, rowColor);
            } else {
                FillPart(canvas, middleX + step, middleY - reach + offset, middleX + step + 1,
                         middleY + reach + 1 + offset, rowColor);
            }
        }
    };
    if (AlphaOf(light) != 0) {
        drawAt(1, light);
    }
    drawAt(0, color);
}

void PaintCheckMark(HDC dc, const RECT& rect, Argb color, const Look&) {
    const RECT square = Square(rect);
    const Canvas canvas(dc, square, Recipe("check mark", color));
    if (canvas.IsEmpty()) {
        return;
    }
    // Corner points of a tick on a square of side 1, clockwise from the outer left.
    static constexpr std::array<PointF, 6> shape{
        {{0.18, 0.50}, {0.30, 0.40}, {0.42, 0.56}, {0.70, 0.20}, {0.82, 0.28}, {0.43, 0.80}}};
    std::array<PointF, shape.size()> points;
    const double side = square.right - square.left;
    // A tick does not change its direction in a mirrored window.
    const bool isMirrored = gdi::IsMirrored(dc);
    std::ranges::transform(shape, points.begin(), [side, isMirrored](PointF point) {
        return PointF{(isMirrored ? 1 - point.x : point.x) * side, point.y * side};
    });
    FillPolygon(canvas.View(), points, color);
}

void PaintRadioMark(HDC dc, const RECT& rect, Argb color, const Look&) {
    const RECT square = Square(rect);
    const Canvas canvas(dc, square, Recipe("radio mark", color));
    if (canvas.IsEmpty()) {
        return;
    }
    const int inset = std::max<int>((square.right - square.left) * 3 / 10, 1);
    FillEllipse(canvas.View(), canvas.Local(square).Deflated(inset), {color, color, color, color, 50});
}

void PaintSign(HDC dc, const RECT& rect, bool isPlus, Argb color, const Look& look) {
    const int thickness = std::max(look.Px(1), look.Line());
    const int half = look.Px(4);
    const LONG left = (rect.left + rect.right - thickness) / 2, top = (rect.top + rect.bottom - thickness) / 2;
    PaintSolid(dc, {left - half + 1, top, left + thickness + half - 1, top + thickness}, color);
    if (isPlus) {
        PaintSolid(dc, {left, top - half + 1, left + thickness, top + thickness + half - 1}, color);
    }
}

void PaintWindowGlyph(HDC dc, const RECT& rect, WindowGlyph glyph, Argb color, const Look& look) {
    const int half = look.Px(4), line = look.Line();
    const LONG middleX = (rect.left + rect.right) / 2, middleY = (rect.top + rect.bottom) / 2;
    const RECT box{middleX - half, middleY - half, middleX + half + 1, middleY + half + 1};
    switch (glyph) {
    case WindowGlyph::Close: {
        const Canvas canvas(dc, box);
        if (canvas.IsEmpty()) {
            return;
        }
        const double side = box.right - box.left, width = (look.skin.isFlat ? 0.8 : 1.3) * look.scale;
        const std::array<PointF, 4> falling{{{0, width}, {width, 0}, {side, side - width}, {side - width, side}}};
        const std::array<PointF, 4> rising{{{side - width, 0}, {side, width}, {width, side}, {0, side - width}}};
        FillPolygon(canvas.View(), falling, color);
        FillPolygon(canvas.View(), rising, color);
        return;
    }
    case WindowGlyph::Minimize:
        if (look.skin.isFlat) {
            PaintSolid(dc, {box.left, middleY, box.right, middleY + line}, color);
            return;
        }
        PaintSolid(dc, {box.left, box.bottom - 2 * line, box.right, box.bottom}, color);
        return;
    case WindowGlyph::Maximize:
        PaintFrame(dc, box, color, line);
        if (!look.skin.isFlat) {
            PaintSolid(dc, {box.left, box.top, box.right, box.top + 2 * line}, color);
        }
        return;
    case WindowGlyph::Restore: {
        const int step = look.Px(2);
        if (look.skin.isFlat) {
            // The window behind shows above and at the right of the one in front.
            PaintSolid(dc, {box.left + step, box.top, box.right, box.top + line}, color);
            PaintSolid(dc, {box.right - line, box.top + line, box.right, box.bottom - step}, color);
            PaintFrame(dc, {box.left, box.top + step, box.right - step, box.bottom}, color, line);
            return;
        }
        PaintFrame(dc, {box.left + step, box.top, box.right, box.bottom - step}, color, line);
        const RECT front{box.left, box.top + step, box.right - step, box.bottom};
        PaintFrame(dc, front, color, line);
        PaintSolid(dc, {front.left, front.top, front.right, front.top + 2 * line}, color);
        return;
    }
    }
}

void PaintGripper(HDC dc, const RECT& rect, bool isUpright, const Look& look) {
    const int dot = look.Px(2), step = look.Px(4), margin = look.Px(3);
    const Canvas canvas(dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    const LONG middleX = (rect.left + rect.right - dot) / 2, middleY = (rect.top + rect.bottom - dot) / 2;
    const LONG from = (isUpright ? rect.top : rect.left) + margin;
    const LONG to = (isUpright ? rect.bottom : rect.right) - margin - dot;
    for (LONG at = from; at <= to; at += step) {
        const LONG x = isUpright ? middleX : at, y = isUpright ? at : middleY;
        FillPart(canvas, x + 1, y + 1, x + dot + 1, y + dot + 1, look.skin[ColorSlot::GripperLight]);
        FillPart(canvas, x, y, x + dot, y + dot, look.skin[ColorSlot::GripperDark]);
    }
}

namespace {

/// Where the dots of a size box lie, from its lower right corner: in a box that is smaller than the scale asks for they
/// come closer to each other rather than be cut.
struct SizeBoxDots {
    int side, step, margin;
};

SizeBoxDots DotsOfSizeBox(const RECT& rect, const Look& look) {
    constexpr int kSteps = 2; // between three dots
    const int room = static_cast<int>(std::min(rect.right - rect.left, rect.bottom - rect.top));
    SizeBoxDots dots{look.Px(2), look.Px(4), look.Px(3)};
    const int least = look.Line();
    dots.margin = std::clamp(room - dots.side - kSteps * dots.step - least, least, dots.margin);
    dots.step = std::clamp((room - dots.side - dots.margin - least) / kSteps, dots.side + 1, dots.step);
    return dots;
}

} // namespace

void PaintSizeBox(HDC dc, const RECT& rect, const Look& look) {
    const SizeBoxDots dots = DotsOfSizeBox(rect, look);
    const Canvas canvas(dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column <= row; ++column) {
            const LONG x = rect.right - dots.margin - dots.side - column * dots.step;
            const LONG y = rect.bottom - dots.margin - dots.side - (2 - row) * dots.step;
            FillPart(canvas, x + 1, y + 1, x + dots.side + 1, y + dots.side + 1, look.skin[ColorSlot::GripperLight]);
            FillPart(canvas, x, y, x + dots.side, y + dots.side, look.skin[ColorSlot::GripperDark]);
        }
    }
}

namespace {

const Face& BoxFaceFor(const Skin& skin, const ElementState& state) {
    if (state.isDisabled) {
        return skin[FaceSlot::CheckBoxDisabled];
    }
    if (state.isPressed) {
        return skin[FaceSlot::CheckBoxPressed];
    }
    return skin[state.isHot ? FaceSlot::CheckBoxHot : FaceSlot::CheckBox];
}

} // namespace

void PaintCheckBox(HDC dc, const RECT& rect, const ElementState& state, bool isMixed, const Look& look) {
    const RECT box = Square(rect);
    const Face& face = BoxFaceFor(look.skin, state);
    PaintFace(dc, box, face, look.skin.isFlat ? Corners::All(look.Px(3)) : Corners{}, look);
    const Argb mark = look.skin[state.isDisabled ? ColorSlot::GlyphDisabled : ColorSlot::CheckMark];
    if (isMixed) {
        const int inset = (box.right - box.left) * 3 / 10;
        PaintSolid(dc, {box.left + inset, box.top + inset, box.right - inset, box.bottom - inset}, mark);
    } else if (state.isChecked) {
        PaintCheckMark(dc, box, mark, look);
    }
}

void PaintRadioButton(HDC dc, const RECT& rect, const ElementState& state, const Look& look) {
    const RECT box = Square(rect);
    const Face& face = BoxFaceFor(look.skin, state);
    {
        const Canvas canvas(dc, box);
        if (canvas.IsEmpty()) {
            return;
        }
        FillEllipse(canvas.View(), canvas.Local(box), StopsOf(face, look.skin));
        StrokeEllipse(canvas.View(), canvas.Local(box), face.outer, look.Line());
    }
    if (state.isChecked) {
        PaintRadioMark(dc, box, look.skin[state.isDisabled ? ColorSlot::GlyphDisabled : ColorSlot::CheckMark], look);
    }
}

void PaintText(HDC dc, const RECT& rect, const wchar_t* text, int length, UINT flags, Argb color) {
    const int mode = SetBkMode(dc, TRANSPARENT);
    const COLORREF previous = SetTextColor(dc, ToColorRef(color));
    RECT area = rect;
    DrawTextW(dc, text, length, &area, flags);
    SetTextColor(dc, previous);
    SetBkMode(dc, mode);
}

} // namespace visual
