#pragma once

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <varnhold/file_stamp.h>

#include <memory>
#include <string>

/// A picture file as GDI+ draws it, decoded when it is taken and not when it is drawn. Holds no file open.
class SkinPicture {
public:
    /// A picture with a longer side is not loaded: it would take gigabytes, and no bar is so long.
    static constexpr UINT kLongestSide = 4096;

    /// Takes the file. Nothing is read when it was the one before and has not changed since; one that was written a
    /// moment before it was read is read again, for its stamp does not tell. True when it was read, or
    /// could not be and is gone: what was made of the earlier picture is out of date.
    bool Take(const std::wstring& path);

    /// Null for a file that is no loadable picture. The object's.
    Gdiplus::Bitmap* Get() const { return m_bitmap.get(); }

    /// Files that were decoded in the whole process, for tests.
    static std::size_t GetDecodeCount() { return s_decodeCount; }

private:
    // User-interface thread only.
    static std::size_t s_decodeCount;

    std::wstring m_path;
    varnhold::FileStamp m_stamp;
    bool m_isTaken = false; ///< ... and what was taken stands for the file as long as its stamp does
    std::unique_ptr<Gdiplus::Bitmap> m_bitmap;
};
