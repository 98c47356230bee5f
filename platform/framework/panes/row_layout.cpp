#include "panes/row_layout.h"

#include <algorithm>
#include <numeric>

namespace panes {

namespace {

long long SumOf(const std::vector<int>& lengths) { return std::accumulate(lengths.begin(), lengths.end(), 0LL); }

/// Takes up to `excess` off the panes that `takes` picks, the last first; what is still to be taken.
template <typename Picks>
long long Shorten(std::vector<int>& lengths, const std::vector<RowWish>& wishes, long long excess, Picks picks) {
    for (std::size_t index = lengths.size(); index > 0 && excess > 0; --index) {
        if (!picks(wishes[index - 1])) {
            continue;
        }
        int& length = lengths[index - 1];
        const int spare = std::max(0, length - std::max(0, wishes[index - 1].smallest));
        const int taken = static_cast<int>(std::min<long long>(spare, excess));
        length -= taken;
        excess -= taken;
    }
    return excess;
}

std::vector<int> LengthsIn(int room, const std::vector<RowWish>& wishes) {
    std::vector<int> lengths;
    lengths.reserve(wishes.size());
    for (const RowWish& wish : wishes) {
        lengths.push_back(std::clamp(wish.length, 0, room));
    }
    long long excess = SumOf(lengths) - room;
    excess = Shorten(lengths, wishes, excess, [room](const RowWish& wish) { return wish.length > room; });
    excess = Shorten(lengths, wishes, excess, [](const RowWish&) { return true; });
    const long long total = SumOf(lengths);
    if (excess > 0) {
        for (int& length : lengths) {
            length = static_cast<int>(static_cast<long long>(length) * room / total);
        }
    }
    return lengths;
}

/// Places the panes [begin, end) between two bounds that leave them room enough.
void PlaceBetween(std::vector<Span>& spans, const std::vector<RowWish>& wishes, std::size_t begin, std::size_t end,
                  int low, int high) {
    for (std::size_t index = begin; index < end; ++index) {
        spans[index].offset = std::max(wishes[index].offset, low);
        low = std::min(spans[index].offset, high) + spans[index].length;
    }
    for (std::size_t index = end; index > begin; --index) {
        Span& span = spans[index - 1];
        span.offset = std::min(span.offset, high - span.length);
        high = span.offset;
    }
}

} // namespace

std::vector<Span> PlaceRow(const std::vector<RowWish>& wishes, int room, std::size_t first) {
    room = std::max(0, room);
    const std::vector<int> lengths = LengthsIn(room, wishes);
    std::vector<Span> spans;
    spans.reserve(wishes.size());
    for (const int length : lengths) {
        spans.push_back({0, length});
    }
    if (first >= spans.size()) {
        PlaceBetween(spans, wishes, 0, spans.size(), 0, room);
        return spans;
    }
    const auto middle = lengths.begin() + static_cast<std::ptrdiff_t>(first);
    const int before = std::accumulate(lengths.begin(), middle, 0);
    const int behind = std::accumulate(middle, lengths.end(), 0);
    Span& chosen = spans[first];
    chosen.offset = std::clamp(wishes[first].offset, before, std::max(before, room - behind));
    const Span place = chosen;
    PlaceBetween(spans, wishes, 0, first, 0, place.offset);
    PlaceBetween(spans, wishes, first + 1, spans.size(), place.End(), room);
    return spans;
}

bool HasRoomForAll(const std::vector<RowWish>& wishes, int room) {
    long long total = 0;
    for (const RowWish& wish : wishes) {
        total += std::max(0, wish.length);
    }
    return total <= room;
}

} // namespace panes
