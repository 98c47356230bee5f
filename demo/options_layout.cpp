#include "options_layout.h"

#include <algorithm>

OptionsPlaces PlaceOptions(const OptionsMeasures& measures) {
    OptionsPlaces places;
    const int left = measures.margin, listLeft = left + measures.labelWidth + 2 * measures.gap;
    const int buttons = measures.takeWidth + measures.gap + measures.cancelWidth;
    const int right = std::max({listLeft + measures.listWidth, left + measures.noteWidth, left + buttons});
    int top = measures.margin;
    for (int row = 0; row < measures.rows; ++row) {
        places.labels.push_back({left, top, listLeft - measures.gap, top + measures.listHeight});
        places.lists.push_back({listLeft, top, right, top + measures.listDepth});
        top += std::max(measures.rowHeight, measures.listHeight) + measures.gap;
    }
    places.note = {left, top, right, top + measures.rowHeight};
    top = places.note.bottom + measures.gap;
    places.cancel = {right - measures.cancelWidth, top, right, top + measures.rowHeight};
    const int takeRight = places.cancel.left - measures.gap;
    places.take = {takeRight - measures.takeWidth, top, takeRight, top + measures.rowHeight};
    places.width = right + measures.margin;
    places.height = places.cancel.bottom + measures.margin;
    return places;
}
