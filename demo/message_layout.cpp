#include "message_layout.h"

#include <algorithm>

MessagePlaces PlaceMessage(const MessageMeasures& measures) {
    MessagePlaces places;
    const int left = measures.margin, textLeft = left + measures.iconSide + 2 * measures.gap;
    int buttons = -measures.gap;
    for (const int width : measures.buttonWidths) {
        buttons += measures.gap + width;
    }
    const int right = std::max(textLeft + measures.textWidth, left + std::max(buttons, 0));
    const int height = std::max(measures.iconSide, measures.textHeight);
    const int iconTop = measures.margin + (height - measures.iconSide) / 2;
    const int textTop = measures.margin + (height - measures.textHeight) / 2;
    places.icon = {left, iconTop, left + measures.iconSide, iconTop + measures.iconSide};
    places.text = {textLeft, textTop, right, textTop + measures.textHeight};
    const int top = measures.margin + height + 2 * measures.gap;
    int buttonLeft = right - buttons;
    for (const int width : measures.buttonWidths) {
        places.buttons.push_back({buttonLeft, top, buttonLeft + width, top + measures.rowHeight});
        buttonLeft += width + measures.gap;
    }
    places.width = right + measures.margin;
    places.height = top + measures.rowHeight + measures.margin;
    return places;
}
