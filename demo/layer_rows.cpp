#include "layer_rows.h"

#include <algorithm>

std::vector<LayerRow> MakeLayerRows(const MapData& data, const LayerRowTexts& texts,
                                    const std::function<bool(const std::wstring&, const std::wstring&)>& isBefore) {
    std::vector<LayerRow> rows = {{LayerRow::Kind::Heading, 0, texts.layers}};
    for (std::size_t i = 0; i < texts.names.size(); ++i) {
        rows.push_back({LayerRow::Kind::Layer, static_cast<int>(i), texts.names[i]});
    }
    if (data.cities.empty()) {
        return rows;
    }
    rows.push_back({LayerRow::Kind::Heading, 0, texts.cities});
    const auto first = static_cast<std::ptrdiff_t>(rows.size());
    for (std::size_t i = 0; i < data.cities.size(); ++i) {
        const City& city = data.cities[i];
        const std::wstring& name = texts.chineseNames && !city.chinese.empty() ? city.chinese : city.english;
        rows.push_back({LayerRow::Kind::City, static_cast<int>(i), name});
    }
    std::stable_sort(rows.begin() + first, rows.end(),
                     [&isBefore](const LayerRow& a, const LayerRow& b) { return isBefore(a.text, b.text); });
    return rows;
}

int NextChoosableRow(const std::vector<LayerRow>& rows, int row, int step) {
    const int count = static_cast<int>(rows.size());
    for (int next = row + step; next >= 0 && next < count; next += step) {
        if (rows[static_cast<std::size_t>(next)].IsChoosable()) {
            return next;
        }
    }
    return row;
}

int FirstRowToShow(int row, int first, int shownCount) {
    return std::max(0, std::clamp(first, row - std::max(shownCount, 1) + 1, std::max(row, 0)));
}
