#pragma once

#include "map_data.h"

#include <functional>
#include <string>
#include <vector>

/// A line of the viewer's list: the layers with their ticks, below them the cities.
struct LayerRow {
    enum class Kind { Heading, Layer, City };

    Kind kind = Kind::Heading;
    int index = 0; ///< Of the layer, or of the city among the data.
    std::wstring text;

    bool IsChoosable() const { return kind != Kind::Heading; }
};

/// What the rows are called: the two headings, the layers in their order.
struct LayerRowTexts {
    std::wstring layers;
    std::wstring cities;
    std::vector<std::wstring> names;
    bool chineseNames = false; ///< of the cities
};

/// Cities in the order of their names, which `isBefore` compares.
std::vector<LayerRow> MakeLayerRows(const MapData& data, const LayerRowTexts& texts,
                                    const std::function<bool(const std::wstring&, const std::wstring&)>& isBefore);

/// The next row from `row` on (not itself) that can be chosen, in steps of 1 or -1; `row` when there is none.
int NextChoosableRow(const std::vector<LayerRow>& rows, int row, int step);

/// The first row to be shown of those that a window shows, so that `row` is among them; as near to `first` as may be.
int FirstRowToShow(int row, int first, int shownCount);
