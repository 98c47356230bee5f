#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

/// A small file that outlives damage: it is written as a whole or not at all, and the last one that could be read lies
/// beside it (NAME.last). One that cannot be read is put aside (NAME.damaged) for whoever wants to look at it.
class KeptFile {
public:
    enum class Source { Nowhere, File, LastGood, Damaged };
    /// Takes the text of the file; false when it is not what it should be.
    using Reader = std::function<bool(const std::string& text)>;

    /// The folder is made by the first Write.
    explicit KeptFile(std::filesystem::path path) : m_path(std::move(path)) {}

    /// Where the text that `reader` took comes from. Damaged: neither file could be read.
    Source Read(const Reader& reader) const;
    /// False when it cannot be written: the file is as it was.
    bool Write(const std::string& text) const;
    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path Beside(const char* ending) const;

    std::filesystem::path m_path;
};
