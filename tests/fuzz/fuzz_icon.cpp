#include "elements/icon_header.h"
#include "targets.h"

#include <algorithm>
#include <cstring>

void FuzzIcon(std::string_view bytes) {
    const IconFileReader read = [bytes](std::uint64_t offset, std::span<std::uint8_t> target) -> std::size_t {
        if (offset >= bytes.size()) {
            return 0;
        }
        const std::size_t count = std::min<std::size_t>(target.size(), bytes.size() - offset);
        std::memcpy(target.data(), bytes.data() + offset, count);
        return count;
    };
    const auto pictures = ReadIconHeaders(read);
    if (pictures) {
        Demand(pictures->size() <= kMostIconPictures);
        for (const int drawn : {8, 16, 20, 32, 48, 300}) {
            const int side = SideToLoad(*pictures, 16, drawn);
            Demand(side == 16 || std::ranges::any_of(*pictures, [side](const IconPicture& picture) {
                       return std::max(picture.width, picture.height) == static_cast<std::uint32_t>(side);
                   }));
        }
    }
    Demand(!MayDecode(pictures) || !pictures->empty());
    for (const int side : {16, 32}) {
        if (const auto plain = FindPlainPicture(read, side)) {
            Demand(plain->count <= kMostPlainBytes);
        }
    }
}
