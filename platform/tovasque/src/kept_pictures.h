#pragma once

#include "src/picture_file.h"

#include <fx/skin_table.h>
#include <varnhold/file_stamp.h>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tovasque {

/// A picture at one scale; without pixels when no file could be used.
struct LoadedPicture {
    Pixels pixels;
    std::array<visual::Plate, 3> frames;
};

/// Notes what the files were when they were looked at, one after the other.
class LookedAtFiles {
public:
    /// Before the file is read.
    const std::wstring& Add(std::wstring path);
    /// Every file is what it was.
    bool AreUnchanged() const;
    /// None was written so shortly before that the next writing could leave the same stamp.
    bool AreSettled() const { return m_areSettled; }

private:
    struct File {
        std::wstring path;
        varnhold::FileStamp stamp;
    };
    std::vector<File> m_files;
    bool m_areSettled = true;
};

/// The picture of that key, read only when nobody has read it before or a file that it was made of has changed since.
/// So a host that goes back to a skin neither decodes its pictures again nor paints anew what was painted of them. The
/// key says all that `read` depends on but the files, which it notes. User-interface thread only.
std::shared_ptr<const LoadedPicture> FindPicture(const std::wstring& key,
                                                 const std::function<LoadedPicture(LookedAtFiles& files)>& read);

} // namespace tovasque
