#include "ribbon/edit_geometry.h"

namespace ribbon {
namespace {

// Lengths at 96 DPI.
constexpr int kSideMargin = 4;
constexpr int kGap = 4;
constexpr int kTextSide = 3;
constexpr int kCheckBox = 13;

int HeadWidth(Size part, const FaceMetrics& metrics) { return part.width > 0 ? part.width + metrics.Scaled(kGap) : 0; }

// Of everything that stands before the box.
int HeadWidth(const EditContent& content, const FaceMetrics& metrics) {
    const int head = HeadWidth(content.image, metrics) + HeadWidth(content.label, metrics);
    return head > 0 ? metrics.Scaled(kSideMargin) + head : 0;
}

int BoxWidth(int room, const EditContent& content, const FaceMetrics& metrics) {
    if (content.leastBoxWidth <= 0) {
        return content.boxWidth;
    }
    const int least = std::min(content.leastBoxWidth, content.boxWidth);
    return std::clamp(room - HeadWidth(content, metrics), least, content.boxWidth);
}

Rect TextPlace(const Rect& edit, const FaceMetrics& metrics) {
    const int side = metrics.Scaled(kTextSide);
    const int height = std::min(metrics.textHeight, edit.Height());
    const int top = edit.top + (edit.Height() - height) / 2;
    return {edit.left + side, top, std::max(edit.left + side, edit.right - side), top + height};
}

} // namespace

Size MeasureEdit(const EditContent& content, const FaceMetrics& metrics) {
    return {HeadWidth(content, metrics) + content.boxWidth, metrics.RowHeight()};
}

EditFace PlaceEdit(const Rect& rect, const EditContent& content, const FaceMetrics& metrics) {
    if (rect.IsEmpty()) {
        return {};
    }
    EditFace face;
    const int boxLeft = std::max(rect.left, rect.right - BoxWidth(rect.Width(), content, metrics));
    const int boxHeight = std::min(rect.Height(), metrics.RowHeight());
    face.box = LeftCentred({boxLeft, rect.top, rect.right, rect.bottom}, {rect.right - boxLeft, boxHeight});
    face.edit = face.box;
    if (content.dropButtonWidth > 0) {
        face.edit.right = std::max(face.box.left, face.box.right - content.dropButtonWidth);
        face.dropButton = {face.edit.right, face.box.top, face.box.right, face.box.bottom};
    }
    face.text = TextPlace(face.edit, metrics);

    Rect head{rect.left + metrics.Scaled(kSideMargin), rect.top, boxLeft - metrics.Scaled(kGap), rect.bottom};
    if (content.image.width > 0 && head.Width() >= content.image.width) {
        face.image = LeftCentred(head, content.image);
        head.left = face.image.right + metrics.Scaled(kGap);
    }
    if (content.label.width > 0 && head.Width() > 0) {
        face.label = LeftCentred(head, {std::min(head.Width(), content.label.width), metrics.textHeight});
    }
    return face;
}

Size MeasureCheckBox(Size text, const FaceMetrics& metrics) {
    const int tail = text.width > 0 ? metrics.Scaled(kGap) + text.width : 0;
    return {metrics.Scaled(kCheckBox) + tail + 2 * metrics.Scaled(kSideMargin), metrics.RowHeight()};
}

CheckBoxFace PlaceCheckBox(const Rect& rect, Size text, const FaceMetrics& metrics) {
    if (rect.IsEmpty()) {
        return {};
    }
    const int side = metrics.Scaled(kSideMargin);
    const Rect inner{rect.left + side, rect.top, std::max(rect.left + side, rect.right - side), rect.bottom};
    CheckBoxFace face;
    face.box = LeftCentred(inner, {metrics.Scaled(kCheckBox), metrics.Scaled(kCheckBox)});
    const Rect tail{face.box.right + metrics.Scaled(kGap), inner.top, inner.right, inner.bottom};
    if (text.width > 0 && tail.Width() > 0) {
        face.text = LeftCentred(tail, {tail.Width(), metrics.textHeight});
    }
    return face;
}

} // namespace ribbon
