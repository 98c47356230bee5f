#pragma once

#include <random>
#include <string>
#include <string_view>

using Random = std::mt19937;

inline std::size_t Below(Random& random, std::size_t limit) { return limit == 0 ? 0 : random() % limit; }

enum class EditKind { Erased, Inserted, Changed, Doubled, Moved, CutOff, LineLeftOut };
inline constexpr int kEditKinds = 7;

struct Edit {
    EditKind kind = EditKind::Erased;
    std::string text;
};

/// One edit as a slip of the hand or a broken tool makes it.
inline Edit EditAtRandom(std::string text, Random& random) {
    constexpr std::string_view signs = "\"'<>/&=;! \t\r\nAa0,+\\\xFF\xE5-[]?";
    const std::size_t at = Below(random, text.size());
    const std::size_t length = 1 + Below(random, Below(random, 4) == 0 ? 200 : 8);
    const auto kind = static_cast<EditKind>(Below(random, kEditKinds));
    switch (kind) {
    case EditKind::Erased:
        text.erase(at, length);
        break;
    case EditKind::Inserted:
        text.insert(at, 1, signs[Below(random, signs.size())]);
        break;
    case EditKind::Changed:
        text[at] = signs[Below(random, signs.size())];
        break;
    case EditKind::Doubled:
        text.insert(at, text.substr(at, length));
        break;
    case EditKind::Moved: {
        const std::string piece = text.substr(at, length);
        text.erase(at, length);
        text.insert(Below(random, text.size()), piece);
        break;
    }
    case EditKind::CutOff:
        text.resize(at);
        break;
    case EditKind::LineLeftOut: {
        const std::size_t start = text.rfind('\n', at) + 1;
        const std::size_t end = text.find('\n', at);
        text.erase(start, end == std::string::npos ? end : end + 1 - start);
        break;
    }
    }
    return {kind, std::move(text)};
}
