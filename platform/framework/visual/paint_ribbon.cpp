#include "visual/paint_ribbon.h"

#include <algorithm>
#include <array>

namespace visual {

namespace {

FourStops StopsOf(const Face& face, int split) { return {face.top1, face.top2, face.bottom1, face.bottom2, split}; }

/// The upper gradient of a category is a narrow band, so that its colour change lies above the buttons.
constexpr int g_categorySplit = 18;

Face Tinted(Face face, Argb tint) {
    if (AlphaOf(tint) == 0) {
        return face;
    }
    for (Argb* color : {&face.top1, &face.top2, &face.bottom1, &face.bottom2}) {
        *color = WithAlpha(Mix(*color, tint, 1, 3), AlphaOf(*color));
    }
    face.outer = Mix(face.outer, tint, 1, 2);
    return face;
}

void PaintDisc(HDC dc, const RECT& rect, const Face& face, const Look& look) {
    const Canvas canvas(dc, rect, Recipe("disc", face, look.Line()));
    if (canvas.IsEmpty()) {
        return;
    }
    const fx::Rect whole = canvas.Local(rect);
    FillEllipse(canvas.View(), whole, StopsOf(face, 50));
    StrokeEllipse(canvas.View(), whole.Deflated(look.Line()), WithAlpha(face.inner, AlphaOf(face.inner) / 2),
                  look.Line());
    StrokeEllipse(canvas.View(), whole, face.outer, look.Line());
}

bool IsNearlySquare(const RECT& rect) {
    const LONG width = rect.right - rect.left, height = rect.bottom - rect.top;
    return width * 5 < height * 6 && height * 5 < width * 6;
}

} // namespace

void PaintRibbonBackground(HDC dc, const RECT& rect, const Look& look) {
    const Argb top = look.skin[ColorSlot::RibbonTop], bottom = look.skin[ColorSlot::RibbonBottom];
    const Canvas canvas(dc, rect, Recipe("ribbon background", top, bottom));
    if (!canvas.IsEmpty()) {
        FillRounded(canvas.View(), canvas.Local(rect), {}, {top, bottom, top, bottom, 100});
    }
}

void PaintTabRow(HDC dc, const RECT& rect, const Look& look) {
    PaintRibbonBackground(dc, rect, look);
    PaintPlate(dc, rect, look.skin.tabRowPlate, PlatePlace::Alone, look);
}

Argb TabTextColor(const TabState& state, const Skin& skin) {
    if (state.isActive) {
        return skin[ColorSlot::TabTextActive];
    }
    return skin[state.isHot ? ColorSlot::TabTextHot : ColorSlot::TabText];
}

void PaintTab(HDC dc, const RECT& rect, const TabState& state, const Look& look) {
    if (!state.isActive && !state.isHot && AlphaOf(state.tint) == 0) {
        return;
    }
    const int line = look.Line(), radius = look.Radius();
    const bool isBright = state.isHot || state.isFocused;
    Face face =
        look.skin[state.isActive ? (isBright ? FaceSlot::TabActiveHot : FaceSlot::TabActive) : FaceSlot::TabHot];
    face = Tinted(face, state.tint);
    if (AlphaOf(state.tint) != 0) {
        face.plate = 0; // a picture knows nothing of a context's colour
    }
    if (!state.isActive && !state.isHot) {
        face.outer = face.inner = 0;
    }

    if (look.skin.isFlat) {
        PaintFace(dc, rect, face, Corners::Top(radius), look);
        return;
    }
    const Canvas canvas(
        dc, rect,
        Recipe("tab", face, state.isActive, state.isHot, look.skin.split, line, radius, look.skin[ColorSlot::TabGlow]));
    if (canvas.IsEmpty()) {
        return;
    }
    // The sides run on below the rectangle, so that the tab has no lower line. A hot tab stands clear of the category.
    fx::Rect body = canvas.Local(rect);
    body.bottom += state.isActive ? radius + 2 * line : 0;
    const Corners corners = state.isActive ? Corners::All(radius) : Corners::Top(radius);
    fx::Rect fill = canvas.Local(rect);
    FillRounded(canvas.View(), fill, Corners::Top(radius), StopsOf(face, look.skin.split));
    if (!state.isActive && state.isHot) {
        FillGlow(canvas.View(), fill.Deflated(line), {},
                 {(fill.left + fill.right) / 2.0, static_cast<double>(fill.bottom)}, fill.Width() * 0.62,
                 fill.Height() * 0.75, look.skin[ColorSlot::TabGlow]);
    }
    if (!state.isActive) {
        body.bottom += line;
    }
    StrokeRounded(canvas.View(), body.Deflated(line), corners.Deflated(line), face.inner, line);
    StrokeRounded(canvas.View(), body, corners, face.outer, line);
}

void PaintCategory(HDC dc, const RECT& rect, LONG gapLeft, LONG gapRight, const Look& look) {
    const Face& face = look.skin[FaceSlot::RibbonCategory];
    const int line = look.Line();
    if (look.skin.isFlat) {
        PaintFace(dc, rect, {0, 0, face.top1, face.top2, face.bottom1, face.bottom2, face.plate}, {}, look);
        PaintSolid(dc, {rect.left, rect.bottom - line, rect.right, rect.bottom}, face.outer);
        return;
    }
    const bool hasGap = gapLeft < gapRight;
    const Canvas canvas(dc, rect,
                        Recipe("category", face, line, look.Radius(), hasGap ? gapLeft - rect.left : 0,
                               hasGap ? gapRight - rect.left : 0));
    if (canvas.IsEmpty()) {
        return;
    }
    const fx::Rect whole = canvas.Local(rect);
    const Corners corners = Corners::All(look.Radius());
    FillRounded(canvas.View(), whole, corners, StopsOf(face, g_categorySplit));
    StrokeRounded(canvas.View(), whole.Deflated(line), corners.Deflated(line), face.inner, line);
    StrokeRounded(canvas.View(), whole, corners, face.outer, line);
    if (gapLeft + line < gapRight - line) {
        RECT gap{gapLeft + line, rect.top, gapRight - line, rect.top + 2 * line};
        const fx::Rect hole = canvas.Local(gap);
        FillRounded(canvas.View(), hole, {}, {face.top1, face.top1, face.top1, face.top1, 50});
    }
}

namespace {

/// Between panels lies one line, darker than the ground or lighter: the skin has both beside each other. They lie in
/// the gap behind the panel, as far from its elements as from those of the next one.
void PaintLineBehind(HDC dc, const RECT& rect, const Face& panel, const Look& look) {
    const int margin = look.Px(4), line = look.Line();
    const LONG right = rect.right;
    PaintSolid(dc, {right, rect.top + margin, right + line, rect.bottom - margin}, panel.outer);
    PaintSolid(dc, {right + line, rect.top + margin, right + 2 * line, rect.bottom - margin}, panel.inner);
}

} // namespace

void PaintPanel(HDC dc, const RECT& rect, const RECT& caption, bool isHot, const Look& look) {
    const Face& face = look.skin[isHot ? FaceSlot::RibbonPanelHot : FaceSlot::RibbonPanel];
    const Face& strip = look.skin[isHot ? FaceSlot::PanelCaptionHot : FaceSlot::PanelCaption];
    const bool hasStrip = !IsRectEmpty(&caption);
    const int line = look.Line(), radius = look.Radius();
    if (look.skin.isFlat) {
        PaintLineBehind(dc, rect, face, look);
        return;
    }
    const Canvas canvas(
        dc, rect,
        Recipe("panel", face, strip, line, radius, look.skin.split, hasStrip, hasStrip ? caption.top - rect.top : 0));
    if (canvas.IsEmpty()) {
        return;
    }
    const fx::Rect whole = canvas.Local(rect);
    const Corners corners = Corners::All(radius);
    // A light line outside right and below gives the frame its depth; the frame itself is one line smaller.
    const fx::Rect frame{whole.left, whole.top, whole.right - line, whole.bottom - line};
    StrokeRounded(canvas.View(), {whole.left + line, whole.top + line, whole.right, whole.bottom}, corners, face.inner,
                  line);
    FillRounded(canvas.View(), frame, corners, StopsOf(face, look.skin.split));
    if (hasStrip) {
        fx::Rect area = canvas.Local(caption);
        area = {frame.left, std::max(area.top, frame.top), frame.right, frame.bottom};
        FillRounded(canvas.View(), area, Corners::Bottom(radius), StopsOf(strip, 50));
    }
    StrokeRounded(canvas.View(), frame.Deflated(line), corners.Deflated(line),
                  WithAlpha(face.inner, AlphaOf(face.inner) / 2), line);
    StrokeRounded(canvas.View(), frame, corners, face.outer, line);
}

void PaintPanelCaption(HDC dc, const RECT& caption, const wchar_t* text, int length, bool isHot, const Look& look) {
    RECT area = caption;
    InflateRect(&area, -look.Px(3), 0);
    PaintText(dc, area, text, length, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX,
              look.skin[isHot ? ColorSlot::PanelCaptionTextHot : ColorSlot::PanelCaptionText]);
}

void PaintLaunchButton(HDC dc, const RECT& rect, const ElementState& state, bool isPanelHot, const Look& look) {
    const Face* face = ButtonFaceFor(look.skin, state);
    if (face != nullptr) {
        PaintFace(dc, rect, *face, Corners::All(std::min(look.Radius(), look.Px(2))), look);
    }
    const Argb caption = look.skin[isPanelHot ? ColorSlot::PanelCaptionTextHot : ColorSlot::PanelCaptionText];
    const Argb color = state.isDisabled  ? WithAlpha(caption, 110)
                       : face != nullptr ? look.skin[ColorSlot::Glyph]
                                         : caption;
    const int side = look.Px(8), corner = look.Px(5), head = look.Px(4), line = look.Line();
    const LONG left = (rect.left + rect.right - side) / 2, top = (rect.top + rect.bottom - side) / 2;
    const RECT box{left, top, left + side, top + side};
    const Canvas canvas(dc, box, Recipe("launch button", color, side, corner, head, line));
    if (canvas.IsEmpty()) {
        return;
    }
    const fx::Rect local = canvas.Local(box);
    const auto fill = [&](int x, int y, int width, int height) {
        FillRounded(canvas.View(), {local.left + x, local.top + y, local.left + x + width, local.top + y + height}, {},
                    {color, color, color, color, 50});
    };
    fill(0, 0, corner, line);
    fill(0, line, line, corner - line);
    // Rows of whole pixels give a sharp arrow at any scale; its shaft ends where the head begins.
    for (int row = 0; row < head; ++row) {
        fill(side - 1 - row, side - head + row, row + 1, 1);
    }
    for (int step = 2 * line; step < side - (head + 1) / 2; ++step) {
        fill(step, step, line, line);
    }
}

void PaintDefaultPane(HDC dc, const RECT& rect, const ElementState& state, const Look& look) {
    const FaceSlot slot = state.isPressed || state.isDropped ? FaceSlot::DefaultPanePressed
                          : state.isHot                      ? FaceSlot::DefaultPaneHot
                                                             : FaceSlot::DefaultPane;
    PaintFace(dc, rect, look.skin[slot], Corners::All(look.Radius()), look);
    if (look.skin.isFlat) {
        PaintLineBehind(dc, rect, look.skin[FaceSlot::RibbonPanel], look);
    }
}

namespace {

/// Plates that stand beside each other; of a split button each half has its own.
void PaintFlatButton(HDC dc, const ButtonParts& parts, const ElementState& state, const Face& face, const Look& look) {
    const Corners corners = Corners::All(look.Radius());
    const bool isSplit = !IsRectEmpty(&parts.menu) && !IsRectEmpty(&parts.command);
    if (isSplit && !state.isDisabled && (parts.isCommandHot || parts.isMenuHot)) {
        const Face& under = look.skin[state.isChecked ? FaceSlot::ButtonChecked : FaceSlot::ButtonPale];
        PaintFace(dc, parts.rect, under, corners, look);
        const RECT& lit = parts.isMenuHot ? parts.menu : parts.command;
        const Face& over =
            state.isPressed || state.isDropped ? look.skin[FaceSlot::ButtonPressed] : look.skin[FaceSlot::ButtonHot];
        PaintFace(dc, lit, over, corners, look, PlatePlace::Joined);
        return;
    }
    const PlatePlace place = parts.isOnStatusBar                ? PlatePlace::StatusBar
                             : parts.place != GroupPlace::Alone ? PlatePlace::Joined
                                                                : PlatePlace::Alone;
    PaintFace(dc, parts.rect, face, corners, look, place);
}

} // namespace

void PaintButton(HDC dc, const ButtonParts& parts, const ElementState& state, const Look& look) {
    const Face* face = ButtonFaceFor(look.skin, state);
    const Corners corners = CornersFor(parts.place, look.Radius());
    const bool isSplit = !IsRectEmpty(&parts.menu) && !IsRectEmpty(&parts.command);
    if (face == nullptr) {
        return;
    }
    if (look.skin.isFlat) {
        PaintFlatButton(dc, parts, state, *face, look);
        return;
    }
    if (!isSplit || state.isDisabled || (!parts.isCommandHot && !parts.isMenuHot)) {
        PaintFace(dc, parts.rect, *face, corners, look);
        return;
    }
    // The part under the cursor glows, the other one only shows that it belongs to it. An open menu presses its part.
    PaintFace(dc, parts.rect, look.skin[FaceSlot::ButtonPale], corners, look);
    const RECT& lit = parts.isMenuHot ? parts.menu : parts.command;
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, lit.left, lit.top, lit.right, lit.bottom);
    PaintFace(dc, parts.rect, *face, corners, look);
    RestoreDC(dc, saved);
    const bool isBelow = parts.menu.top >= parts.command.bottom;
    const int line = look.Line();
    const RECT divider = isBelow ? RECT{parts.rect.left, parts.menu.top, parts.rect.right, parts.menu.top + line}
                                 : RECT{parts.menu.left, parts.rect.top, parts.menu.left + line, parts.rect.bottom};
    PaintSolid(dc, divider, face->outer);
}

void PaintGroup(HDC dc, const RECT& rect, const Look& look) {
    PaintFace(dc, rect, look.skin[FaceSlot::Group], Corners::All(look.Radius()), look);
}

void PaintEdit(HDC dc, const RECT& rect, const ElementState& state, const Look& look) {
    const FaceSlot slot = state.isDisabled                                    ? FaceSlot::EditDisabled
                          : state.isHot || state.isDropped || state.isPressed ? FaceSlot::EditHot
                                                                              : FaceSlot::Edit;
    PaintFace(dc, rect, look.skin[slot], look.skin.isFlat ? Corners::All(look.Radius()) : Corners{}, look);
}

namespace {

/// A round bar, filled from the left end on.
void PaintFlatChannel(HDC dc, const RECT& rect, LONG filledTo, bool isDisabled, const Look& look) {
    const int thickness = look.Px(4);
    const LONG top = (rect.top + rect.bottom - thickness) / 2;
    const RECT bar{rect.left, top, rect.right, top + thickness};
    const Argb track = look.skin[ColorSlot::SliderTrackDark];
    const Argb fill = look.skin[isDisabled ? ColorSlot::GlyphDisabled : ColorSlot::Accent];
    const Corners corners = Corners::All(thickness / 2);
    PaintFace(dc, bar, {0, 0, track, track, track, track}, corners, look);
    const RECT filled{bar.left, bar.top, std::min(filledTo, bar.right), bar.bottom};
    PaintFace(dc, filled, {0, 0, fill, fill, fill, fill}, corners, look);
}

} // namespace

void PaintSliderChannel(HDC dc, const RECT& rect, LONG filledTo, bool isDisabled, const Look& look) {
    if (look.skin.isFlat) {
        PaintFlatChannel(dc, rect, filledTo, isDisabled, look);
        return;
    }
    RECT area = rect;
    const LONG extra = (rect.bottom - rect.top - 2 * look.Line()) / 2;
    area.top += std::max<LONG>(extra, 0);
    area.bottom = area.top + 2 * look.Line();
    PaintEtchedLine(dc, area, false, look.skin[ColorSlot::SliderTrackDark], look.skin[ColorSlot::SliderTrackLight],
                    look);
}

void PaintSliderThumb(HDC dc, const RECT& rect, const ElementState& state, const Look& look) {
    if (look.skin.isFlat) {
        const int side = look.Px(14);
        const LONG left = (rect.left + rect.right - side) / 2, top = (rect.top + rect.bottom - side) / 2;
        PaintDisc(dc, {left, top, left + side, top + side}, KnobFaceFor(look.skin, state), look);
        return;
    }
    const Canvas canvas(dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    // A plate with a pointed lower end.
    const Face& face = KnobFaceFor(look.skin, state);
    const double width = rect.right - rect.left, height = rect.bottom - rect.top;
    const double shoulder = height - width / 2;
    const auto plate = [&](double inset) {
        return std::array<PointF, 5>{{{inset, inset},
                                      {width - inset, inset},
                                      {width - inset, shoulder - inset * 0.4},
                                      {width / 2, height - inset * 1.4},
                                      {inset, shoulder - inset * 0.4}}};
    };
    const double line = look.Line();
    FillPolygon(canvas.View(), plate(0), face.outer);
    FillPolygon(canvas.View(), plate(line), face.inner);
    FillPolygon(canvas.View(), plate(line * 2), face.bottom1);
    const auto upper = plate(line * 2);
    const std::array<PointF, 4> shine{{upper[0], upper[1], {upper[1].x, height * 0.45}, {upper[0].x, height * 0.45}}};
    FillPolygon(canvas.View(), shine, face.top2);
}

void PaintZoomButton(HDC dc, const RECT& rect, bool isPlus, const ElementState& state, const Look& look) {
    const LONG side = std::min(rect.right - rect.left, rect.bottom - rect.top);
    const LONG left = (rect.left + rect.right - side) / 2, top = (rect.top + rect.bottom - side) / 2;
    const RECT disc{left, top, left + side, top + side};
    if (!look.skin.isFlat) {
        PaintDisc(dc, disc, KnobFaceFor(look.skin, state), look);
    } else if (const Face* const face = ButtonFaceFor(look.skin, state)) {
        PaintFace(dc, disc, *face, Corners::All(look.Radius()), look);
    }
    PaintSign(dc, disc, isPlus, look.skin[state.isDisabled ? ColorSlot::GlyphDisabled : ColorSlot::Glyph], look);
}

Argb TextColorOn(Argb ground, const Skin& skin) {
    constexpr double readable = 4.5;
    const Argb usual = skin[ColorSlot::RibbonText];
    if (Contrast(usual, ground) >= readable) {
        return usual;
    }
    constexpr Argb white = 0xFFFFFFFF;
    constexpr Argb black = 0xFF000000;
    return Contrast(white, ground) >= Contrast(black, ground) ? white : black;
}

void PaintFocus(HDC dc, const RECT& rect, Argb ground, const Look& look) {
    Face ring;
    ring.outer = ring.inner = Readable(look.skin[ColorSlot::Accent], TextColorOn(ground, look.skin), {ground});
    PaintFace(dc, rect, ring, Corners::All(look.Radius()), look);
}

void PaintApplicationButton(HDC dc, const RECT& rect, const ElementState& state, const Look& look) {
    const Face& face = look.skin[state.isPressed || state.isDropped ? FaceSlot::AppButtonPressed
                                 : state.isHot                      ? FaceSlot::AppButtonHot
                                                                    : FaceSlot::AppButton];
    if (look.skin.isFlat || !IsNearlySquare(rect)) {
        PaintFace(dc, rect, face, look.skin.isFlat ? Corners::All(look.Radius()) : Corners::Top(look.Radius()), look);
        return;
    }
    const Canvas canvas(dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    // A glass ball: dark rim, light ring, and a bright spot of light below.
    const int line = look.Line();
    const fx::Rect whole = canvas.Local(rect).Deflated(line);
    const double side = whole.Width();
    StrokeEllipse(canvas.View(), canvas.Local(rect), WithAlpha(face.outer, 90), line * 2);
    FillEllipse(canvas.View(), whole, {face.top1, face.top2, face.bottom1, face.bottom2, 46});
    FillGlow(canvas.View(), whole.Deflated(2 * line), Corners::All(static_cast<int>(side / 2) - 2 * line),
             {whole.left + side / 2, whole.top + side * 0.96}, side * 0.46, side * 0.40, WithAlpha(face.bottom2, 255));
    StrokeEllipse(canvas.View(), whole.Deflated(line), face.inner, line * 1.2);
    StrokeEllipse(canvas.View(), whole, face.outer, line);
}

void PaintCaption(HDC dc, const RECT& rect, bool isActive, const Look& look) {
    const Face& face = look.skin[isActive ? FaceSlot::CaptionActive : FaceSlot::CaptionInactive];
    if (PaintPlate(dc, rect, face.plate, PlatePlace::Alone, look)) {
        return;
    }
    const Canvas canvas(dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    fx::Rect whole = canvas.Local(rect);
    FillRounded(canvas.View(), whole, {}, StopsOf(face, look.skin.split));
    const fx::Rect light{whole.left, whole.top, whole.right, whole.top + look.Line()};
    FillRounded(canvas.View(), light, {}, {face.inner, face.inner, face.inner, face.inner, 50});
}

void PaintCaptionButton(HDC dc, const RECT& rect, WindowGlyph glyph, const ElementState& state, const Look& look) {
    if (state.isPressed || state.isHot) {
        PaintFace(dc, rect, look.skin[state.isPressed ? FaceSlot::CaptionButtonPressed : FaceSlot::CaptionButtonHot],
                  Corners::All(look.Radius()), look);
    }
    PaintWindowGlyph(dc, rect, glyph,
                     look.skin[state.isDisabled ? ColorSlot::CaptionTextInactive : ColorSlot::CaptionGlyph], look);
}

void PaintChildButton(HDC dc, const RECT& rect, WindowGlyph glyph, const ElementState& state, const Look& look) {
    if (const Face* face = ButtonFaceFor(look.skin, state)) {
        PaintFace(dc, rect, *face, Corners::All(look.Radius()), look);
    }
    const bool isLit = state.isHot || state.isPressed;
    const Argb plain = look.skin[ColorSlot::TabText];
    PaintWindowGlyph(dc, rect, glyph,
                     state.isDisabled ? WithAlpha(plain, 110) : (isLit ? look.skin[ColorSlot::Glyph] : plain), look);
}

void PaintFrameBorder(HDC dc, const RECT& window, const RECT& client, int captionHeight, const FrameBorderState& state,
                      const Look& look) {
    const int line = look.Line();
    const LONG captionBottom = client.top + captionHeight;
    const Face& caption = look.skin[state.isActive ? FaceSlot::CaptionActive : FaceSlot::CaptionInactive];
    PaintSolid(dc, window, look.skin[ColorSlot::RibbonTop]);
    PaintCaption(dc, {window.left, client.top, window.right, captionBottom}, state.isActive, look);
    PaintSolid(dc, {window.left, window.top, window.right, client.top}, caption.top1);
    const Argb outer = look.skin[ColorSlot::FrameBorder];
    const Argb border = state.isActive ? outer : Mix(outer, caption.bottom2, 1, 2);
    const Argb inner = look.skin[ColorSlot::FrameBorderInner];
    // Only the corners are worth a canvas.
    const LONG headBottom = std::min<LONG>(window.top + state.cornerRadius + 2 * line, window.bottom);
    const RECT body{window.left, headBottom, window.right, window.bottom};
    PaintFrame(dc, {body.left + line, body.top - line, body.right - line, body.bottom - line}, inner, line);
    PaintFrame(dc, {body.left, body.top - line, body.right, body.bottom}, border, line);
    const RECT head{window.left, window.top, window.right, headBottom};
    PaintSolid(dc, {head.left + 2 * line, headBottom - 2 * line, head.right - 2 * line, headBottom}, caption.top1);
    const Canvas canvas(dc, head);
    if (canvas.IsEmpty()) {
        return;
    }
    fx::Rect whole = canvas.Local(head);
    FillRounded(canvas.View(), {whole.left, whole.top, whole.right, static_cast<int>(client.top - head.top)}, {},
                {caption.top1, caption.top1, caption.top1, caption.top1, 50});
    whole.bottom += state.cornerRadius + 2 * line;
    const Corners corners = Corners::Top(state.cornerRadius);
    StrokeRounded(canvas.View(), whole.Deflated(line), corners.Deflated(line), inner, line);
    StrokeRounded(canvas.View(), whole, corners, border, line);
}

void PaintCategoryScroll(HDC dc, const RECT& rect, bool isLeft, const ElementState& state, const Look& look) {
    const Face* face = ButtonFaceFor(look.skin, state);
    PaintFace(dc, rect, face != nullptr ? *face : look.skin[FaceSlot::CategoryScroll],
              isLeft ? Corners::Left(look.Radius()) : Corners::Right(look.Radius()), look);
    PaintArrow(dc, rect, isLeft ? ArrowDirection::Left : ArrowDirection::Right, look.skin[ColorSlot::Glyph],
               look.skin[ColorSlot::GlyphLight], look);
}

void PaintContextCaption(HDC dc, const RECT& rect, Argb tint, const Look& look) {
    const Canvas canvas(dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    const fx::Rect whole = canvas.Local(rect);
    const int line = look.Line();
    if (look.skin.isFlat) {
        const Argb wash = WithAlpha(tint, 40);
        FillRounded(canvas.View(), whole, {}, {wash, wash, wash, wash, 50});
        FillRounded(canvas.View(), {whole.left, whole.top, whole.right, whole.top + 2 * line}, {},
                    {tint, tint, tint, tint, 50});
        return;
    }
    FillRounded(canvas.View(), whole, {},
                {WithAlpha(tint, 30), WithAlpha(tint, 90), WithAlpha(tint, 90), WithAlpha(tint, 170), 40});
    const FourStops side{WithAlpha(tint, 0), WithAlpha(tint, 230), WithAlpha(tint, 230), WithAlpha(tint, 230), 60};
    FillRounded(canvas.View(), {whole.left, whole.top, whole.left + line, whole.bottom}, {}, side);
    FillRounded(canvas.View(), {whole.right - line, whole.top, whole.right, whole.bottom}, {}, side);
}

void PaintKeyTip(HDC dc, const RECT& rect, const wchar_t* text, int length, bool isDisabled, const Look& look) {
    PaintFace(dc, rect, look.skin[FaceSlot::KeyTip], Corners::All(std::min(look.Radius(), look.Px(2))), look);
    const Argb color = look.skin[ColorSlot::KeyTipText];
    PaintText(dc, rect, text, length, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX,
              isDisabled ? Mix(color, look.skin[FaceSlot::KeyTip].bottom1, 1, 2) : color);
}

void PaintProgress(HDC dc, const RECT& rect, const RECT& chunk, const Look& look) {
    PaintFace(dc, rect, look.skin[FaceSlot::ProgressTrack], Corners::All(look.Radius()), look);
    RECT inside = rect, filled;
    InflateRect(&inside, -look.Line(), -look.Line());
    if (!IntersectRect(&filled, &inside, &chunk)) {
        return;
    }
    Face face = look.skin[FaceSlot::ProgressChunk];
    face.outer = 0;
    PaintFace(dc, filled, face, Corners::All(std::max(look.Radius() - look.Line(), 0)), look);
    PaintBorders(dc, rect, look.skin[FaceSlot::ProgressTrack], Corners::All(look.Radius()), look);
}

void PaintMainPanelFrame(HDC dc, const RECT& rect, const RECT& content, const Look& look) {
    PaintFace(dc, rect, look.skin[FaceSlot::MainPanelFrame], Corners::All(look.Radius()), look);
    if (IsRectEmpty(&content)) {
        return;
    }
    PaintSolid(dc, content, look.skin[ColorSlot::MenuFill]);
    PaintFrame(dc, content, look.skin[ColorSlot::MenuBorder], look.Line());
}

void PaintStatusBar(HDC dc, const RECT& rect, const Look& look) {
    const Face& face = look.skin[FaceSlot::StatusBar];
    if (PaintPlate(dc, rect, face.plate, PlatePlace::StatusBar, look)) {
        PaintSolid(dc, {rect.left, rect.top, rect.right, rect.top + look.Line()}, face.outer);
        return;
    }
    const Canvas canvas(dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    const fx::Rect whole = canvas.Local(rect);
    const int line = look.Line();
    FillRounded(canvas.View(), whole, {}, StopsOf(face, look.skin.split));
    FillRounded(canvas.View(), {whole.left, whole.top, whole.right, whole.top + line}, {},
                {face.outer, face.outer, face.outer, face.outer, 50});
    FillRounded(canvas.View(), {whole.left, whole.top + line, whole.right, whole.top + 2 * line}, {},
                {face.inner, face.inner, face.inner, face.inner, 50});
}

} // namespace visual
