#include "src/kept_pictures.h"

#include <algorithm>
#include <map>
#include <utility>

namespace tovasque {

namespace {

constexpr std::size_t kMostKept = 128;         // two skins at a few scales
constexpr std::size_t kMostPixels = 256 * 256; // of one kept picture; skins' own are far smaller

struct Kept {
    LookedAtFiles files;
    std::shared_ptr<const LoadedPicture> picture;
};

std::map<std::wstring, Kept>& AllKept() {
    static std::map<std::wstring, Kept> kept;
    return kept;
}

} // namespace

const std::wstring& LookedAtFiles::Add(std::wstring path) {
    const varnhold::FileStamp stamp = varnhold::StampOf(path);
    m_areSettled = m_areSettled && varnhold::IsSettled(stamp);
    return m_files.emplace_back(std::move(path), stamp).path;
}

bool LookedAtFiles::AreUnchanged() const {
    return std::ranges::all_of(m_files, [](const File& file) { return varnhold::StampOf(file.path) == file.stamp; });
}

std::shared_ptr<const LoadedPicture> FindPicture(const std::wstring& key,
                                                 const std::function<LoadedPicture(LookedAtFiles& files)>& read) {
    std::map<std::wstring, Kept>& all = AllKept();
    const auto found = all.find(key);
    if (found != all.end() && found->second.files.AreUnchanged()) {
        return found->second.picture;
    }
    if (found != all.end()) {
        all.erase(found);
    }
    LookedAtFiles files;
    auto picture = std::make_shared<const LoadedPicture>(read(files));
    if (files.AreSettled() && picture->pixels.bits.size() <= kMostPixels) {
        if (all.size() >= kMostKept) {
            all.clear();
        }
        all.emplace(key, Kept{std::move(files), picture});
    }
    return picture;
}

} // namespace tovasque
