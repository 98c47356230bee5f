#include "ribbon/button_geometry.h"

namespace ribbon {
namespace {

// Lengths at 96 DPI.
constexpr int kSideMargin = 4;
constexpr int kTopMargin = 3;
constexpr int kImageTextGap = 4;   // beside
constexpr int kImageTextBelow = 1; // below
constexpr int kArrowGap = 6;       // the drawn arrow reaches beyond its place
constexpr int kSplitSide = 4;      // on both sides of the arrow of a split button
constexpr int kLargeMinimum = 42;

bool HasMenu(const ButtonContent& content) { return content.menu != ButtonMenu::None; }

// Width of image, text and the gap between them.
int BodyWidth(const ButtonContent& content, const FaceMetrics& metrics) {
    const int text = content.look == ButtonLook::ImageOnly ? 0 : content.rightText.width;
    const int gap = text > 0 && content.image.width > 0 ? metrics.Scaled(kImageTextGap) : 0;
    return content.image.width + gap + text;
}

int SplitMenuWidth(const FaceMetrics& metrics) { return MenuArrowSize(metrics).width + 2 * metrics.Scaled(kSplitSide); }

int MenuWidth(const ButtonContent& content, const FaceMetrics& metrics) {
    switch (content.menu) {
    case ButtonMenu::Whole:
        return metrics.Scaled(kArrowGap) + MenuArrowSize(metrics).width;
    case ButtonMenu::Split:
        return SplitMenuWidth(metrics);
    case ButtonMenu::None:
        break;
    }
    return 0;
}

Rect Centred(const Rect& rect, Size size) {
    const int left = rect.left + (rect.Width() - size.width) / 2;
    const int top = rect.top + (rect.Height() - size.height) / 2;
    return {left, top, left + size.width, top + size.height};
}

// The arrow stands alone on the second line, or follows its text; text and arrow are centred together.
Rect PlaceBottomArrow(const Rect& text, const ButtonContent& content, const FaceMetrics& metrics) {
    const Rect line{text.left, text.top + metrics.textHeight, text.right, text.top + 2 * metrics.textHeight};
    const Size arrow = MenuArrowSize(metrics);
    if (content.isArrowAlone) {
        return Centred(line, arrow);
    }
    const int width = std::min(content.secondLineWidth + BottomArrowWidth(metrics), line.Width());
    const int right = line.left + (line.Width() + width) / 2;
    const int top = line.top + (line.Height() - arrow.height) / 2 + metrics.Scaled(1);
    return {right - arrow.width, top, right, top + arrow.height};
}

ButtonFace PlaceLarge(const Rect& rect, const ButtonContent& content, const FaceMetrics& metrics) {
    ButtonFace face;
    const int imageTop = rect.top + metrics.Scaled(kTopMargin);
    const int imageLeft = rect.left + (rect.Width() - content.image.width) / 2;
    face.image = {imageLeft, imageTop, imageLeft + content.image.width, imageTop + content.image.height};

    const int side = metrics.Scaled(kSideMargin);
    const int textTop = face.image.bottom + metrics.Scaled(kImageTextBelow);
    face.text = {rect.left + side, textTop, rect.right - side, textTop + 2 * metrics.textHeight};
    face.command = rect;
    if (!HasMenu(content)) {
        return face;
    }

    face.arrow = PlaceBottomArrow(face.text, content, metrics);
    if (content.menu == ButtonMenu::Split) {
        face.menu = {rect.left, textTop, rect.right, rect.bottom};
        face.command.bottom = textTop;
    } else {
        face.menu = rect;
        face.command = {};
    }
    return face;
}

ButtonFace PlaceRow(const Rect& rect, const ButtonContent& content, const FaceMetrics& metrics) {
    ButtonFace face;
    const int side = metrics.Scaled(kSideMargin);
    Rect command = rect;
    if (content.menu == ButtonMenu::Split) {
        command.right = std::max(rect.left, rect.right - SplitMenuWidth(metrics));
    }

    Rect inner{command.left + side, command.top, command.right - side, command.bottom};
    if (content.menu == ButtonMenu::Whole) {
        const Size arrow = MenuArrowSize(metrics);
        face.arrow = LeftCentred({inner.right - arrow.width, inner.top, inner.right, inner.bottom}, arrow);
        inner.right = face.arrow.left - metrics.Scaled(kArrowGap);
    }
    if (content.look == ButtonLook::ImageOnly || content.rightText.width <= 0) {
        face.image = Centred(inner, content.image);
    } else {
        face.image = LeftCentred(inner, content.image);
        const int gap = content.image.width > 0 ? metrics.Scaled(kImageTextGap) : 0;
        const int top = inner.top + (inner.Height() - metrics.textHeight) / 2;
        face.text = {face.image.right + gap, top, inner.right, top + metrics.textHeight};
    }

    switch (content.menu) {
    case ButtonMenu::None:
        face.command = rect;
        break;
    case ButtonMenu::Whole:
        face.menu = rect;
        break;
    case ButtonMenu::Split:
        face.command = command;
        face.menu = {command.right, rect.top, rect.right, rect.bottom};
        face.arrow = Centred(face.menu, MenuArrowSize(metrics));
        break;
    }
    return face;
}

} // namespace

Size MenuArrowSize(const FaceMetrics& metrics) {
    const int height = std::max(3, metrics.Scaled(3));
    return {2 * height - 1, height};
}

int BottomArrowWidth(const FaceMetrics& metrics) { return metrics.Scaled(kArrowGap) + MenuArrowSize(metrics).width; }

int LargeSingleLineWidth(const FaceMetrics& metrics, Size image) {
    return std::max(metrics.Scaled(kLargeMinimum) - 2 * metrics.Scaled(kSideMargin), image.width);
}

Size MeasureButton(const ButtonContent& content, const FaceMetrics& metrics) {
    const int sides = 2 * metrics.Scaled(kSideMargin);
    const int margins = 2 * metrics.Scaled(kTopMargin);
    if (content.look == ButtonLook::Large) {
        const int body = std::max(content.image.width, content.bottomTextWidth);
        return {std::max(body + sides, metrics.Scaled(kLargeMinimum)),
                content.image.height + metrics.Scaled(kImageTextBelow) + 2 * metrics.textHeight + margins};
    }
    return {BodyWidth(content, metrics) + MenuWidth(content, metrics) + sides,
            std::max(content.image.height + margins, metrics.RowHeight())};
}

ButtonFace PlaceButton(const Rect& rect, const ButtonContent& content, const FaceMetrics& metrics) {
    if (rect.IsEmpty()) {
        return {};
    }
    return content.look == ButtonLook::Large ? PlaceLarge(rect, content, metrics) : PlaceRow(rect, content, metrics);
}

} // namespace ribbon
