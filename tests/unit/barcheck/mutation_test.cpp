#include "checked_installation.h"
#include "config/diagnostic_codes.h"
#include "sample_installation.h"

#include <varnhold/xml.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>

namespace {

namespace fs = std::filesystem;

/// How many edits are tried; BARWRIGHT_MUTATIONS asks for another number.
int EditCount() {
#ifdef _WIN32
    constexpr int usual = 60; // files are slow there
#else
    constexpr int usual = 600;
#endif
    const char* const asked = std::getenv("BARWRIGHT_MUTATIONS");
    return asked ? std::atoi(asked) : usual;
}

std::string ReadBytes(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t limit) { return limit == 0 ? 0 : random() % limit; }

/// One edit as a slip of the hand or a broken tool makes it.
std::string Edited(std::string text, Random& random) {
    constexpr std::string_view signs = "\"'<>/&=;! \t\r\nAa0,+\\\xFF\xE5-[]?";
    const std::size_t at = Below(random, text.size());
    const std::size_t length = 1 + Below(random, Below(random, 4) == 0 ? 200 : 8);
    switch (Below(random, 7)) {
    case 0:
        return text.erase(at, length);
    case 1:
        return text.insert(at, 1, signs[Below(random, signs.size())]);
    case 2:
        text[at] = signs[Below(random, signs.size())];
        return text;
    case 3: // doubled
        return text.insert(at, text.substr(at, length));
    case 4: // moved
    {
        const std::string piece = text.substr(at, length);
        text.erase(at, length);
        return text.insert(Below(random, text.size()), piece);
    }
    case 5: // cut off
        return text.substr(0, at);
    default: // a line left out
    {
        const std::size_t start = text.rfind('\n', at) + 1;
        const std::size_t end = text.find('\n', at);
        return text.erase(start, end == std::string::npos ? end : end + 1 - start);
    }
    }
}

/// By line, how many characters it has.
std::vector<std::size_t> LineLengths(const std::wstring& path) {
    std::string text;
    std::vector<std::size_t> lengths(1, 0);
    varnhold::ReadXmlText(path, text);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' || (text[i] == '\r' && text.substr(i + 1, 1) != "\n")) {
            lengths.push_back(0);
        } else {
            lengths.back() += (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80 ? 1 : 0;
        }
    }
    return lengths;
}

/// The lines of files that were asked for.
using FileLines = std::map<std::wstring, std::vector<std::size_t>>;

void ExpectInFile(const CheckedInstallation& installation, FileLines& files, const std::wstring& file,
                  varnhold::TextPosition position, const std::string& what) {
    const auto [found, isNew] = files.try_emplace(file);
    if (isNew) {
        found->second = LineLengths(installation.Directory().Prefix() + file);
    }
    const std::vector<std::size_t>& lengths = found->second;
    ASSERT_GE(position.line, 1u) << what;
    ASSERT_LE(position.line, lengths.size()) << what;
    ASSERT_GE(position.column, 1u) << what;
    ASSERT_LE(position.column, lengths[position.line - 1] + 1) << what;
}

void ExpectSound(const CheckedInstallation& installation) {
    FileLines files;
    for (const Diagnostic& finding : installation.Check()) {
        const std::string what = CheckedInstallation::Describe(finding);
        EXPECT_NE(FindDiagnosticCode(finding.code), nullptr) << what;
        EXPECT_FALSE(finding.text.empty()) << what;
        ExpectInFile(installation, files, finding.file, finding.position, what);
        for (const RelatedPlace& place : finding.related) {
            ExpectInFile(installation, files, place.file, place.position, what);
        }
    }
}

/// The demo's files and the sample's menu and toolbars.
std::map<std::string, std::string> Files() {
    const fs::path demo = fs::path(BARWRIGHT_SOURCE) / "demo";
    std::map<std::string, std::string> files;
    for (const char* folder : {"cfg", "lang"}) {
        for (const auto& entry : fs::recursive_directory_iterator(demo / folder)) {
            if (entry.is_regular_file()) {
                files[fs::relative(entry.path(), demo).generic_string()] = ReadBytes(entry.path());
            }
        }
    }
    files.emplace("cfg/menu.xml", SampleMenu());
    files.emplace("cfg/toolbar.xml", SampleToolBars());
    return files;
}

TEST(Mutation, RandomEditsOfTheDemosFilesGiveFindingsThatLieInTheFiles) {
    const CheckedInstallation installation;
    const std::map<std::string, std::string> files = Files();
    for (const auto& [name, text] : files) {
        installation.Write(name, text);
    }
    WriteMissingIcons(installation);
    Random random(20260822); // the same edits every time
    for (int i = 0; i < EditCount() && !testing::Test::HasFailure(); ++i) {
        const auto chosen = std::next(files.begin(), static_cast<std::ptrdiff_t>(Below(random, files.size())));
        installation.Write(chosen->first, Edited(chosen->second, random));
        SCOPED_TRACE("edit " + std::to_string(i) + " of " + chosen->first);
        ExpectSound(installation);
        installation.Write(chosen->first, chosen->second);
    }
}

} // namespace
