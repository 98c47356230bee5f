// A file of one kind in another's place.
#include "checked_installation.h"
#include "sample_installation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kKinds[] = {"ribbon", "menu", "toolbar"};

std::string PathOf(std::string_view kind) { return "cfg/" + std::string(kind) + ".xml"; }

std::string ReadBytes(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Where the document element of a text begins, as a finding names it.
std::string PlaceOfRoot(const std::string& text, std::string_view tag) {
    const std::size_t at = text.find("<" + std::string(tag) + ">");
    const std::size_t lineStart = text.rfind('\n', at) + 1;
    const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
    return std::to_string(line) + ":" + std::to_string(at - lineStart + 1);
}

std::string Replaced(std::string text, std::string_view before, std::string_view after) {
    for (std::size_t at = text.find(before); at != std::string::npos; at = text.find(before, at + after.size())) {
        text.replace(at, before.size(), after);
    }
    return text;
}

class WrongKind : public testing::Test {
protected:
    /// Takes the installation below a folder of the source tree.
    void Take(const fs::path& folder) {
        for (const char* const part : {"cfg", "lang"}) {
            fs::copy(fs::path(BARWRIGHT_SOURCE) / folder / part, m_installation.Directory().Path() / part,
                     fs::copy_options::recursive);
        }
        WriteMissingIcons(m_installation);
        ASSERT_EQ(m_installation.Findings(), "");
    }

    /// Each file in the place of each other one, alone, gives one finding, at its document element.
    void ExpectOneFindingForEachPlace() {
        for (const std::string_view place : kKinds) {
            const std::string right = ReadBytes(m_installation.Directory().Path() / PathOf(place));
            for (const std::string_view kind : kKinds) {
                if (kind == place) {
                    continue;
                }
                const std::string wrong = ReadBytes(m_installation.Directory().Path() / PathOf(kind));
                m_installation.Write(PathOf(place), wrong);
                const std::string tag = kind == "toolbar" ? "toolbars" : std::string(kind);
                EXPECT_EQ(m_installation.Findings(), PathOf(place) + ":" + PlaceOfRoot(wrong, tag) + " wrong-kind\n")
                    << kind;
            }
            m_installation.Write(PathOf(place), right);
        }
    }

    const CheckedInstallation m_installation;
};

TEST_F(WrongKind, IsOneFindingInEachPlaceForTheDemosFiles) {
    Take("demo");
    ExpectOneFindingForEachPlace();
}

TEST_F(WrongKind, IsOneFindingInEachPlaceForTheSample) {
    WriteSample(m_installation);
    ExpectOneFindingForEachPlace();
}

TEST_F(WrongKind, SaysWhatTheFileIsAndWhatBelongsThere) {
    WriteSample(m_installation);
    m_installation.Write("cfg/ribbon.xml", SampleMenu());
    const std::vector<Diagnostic> findings = m_installation.Check();
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].text,
              L"this is a menu file in the place of a ribbon file: nothing in it is built as it is meant");
    EXPECT_EQ(findings[0].fix, L"put the ribbon file here; the name of a menu file begins with \"menu\"");
}

TEST_F(WrongKind, OfTwoFilesThatChangedPlacesIsOneFindingForEach) {
    WriteSample(m_installation);
    m_installation.Write("cfg/ribbon.xml", SampleToolBars());
    m_installation.Write("cfg/toolbar.xml", SampleRibbon());
    EXPECT_EQ(m_installation.Findings(), "cfg/ribbon.xml:2:1 wrong-kind\ncfg/toolbar.xml:2:1 wrong-kind\n");
}

TEST_F(WrongKind, OfAFileThatIsNotNamedSaysNothingOfThoseThatAre) {
    WriteSample(m_installation);
    m_installation.Write("cfg/menu.xml", SampleToolBars());
    EXPECT_EQ(m_installation.Findings({L"cfg/ribbon.xml"}), "");
    EXPECT_EQ(m_installation.Findings({L"cfg/menu.xml"}), "cfg/menu.xml:2:1 wrong-kind\n");
}

// A fault of its own does not hide which file it is, and nothing is said of it there.
TEST_F(WrongKind, IsSeenThroughEachPlantedFault) {
    WriteSample(m_installation);
    std::size_t turn = 0;
    for (const PlantedFault& fault : kPlantedFaults) {
        const std::string_view file = fault.file;
        const bool mayBeRefused = std::string_view(fault.code).starts_with("xml-");
        if (!file.starts_with("cfg/") || mayBeRefused) {
            continue;
        }
        // By turns in the place of each of the two others.
        std::string place;
        for (std::size_t left = turn++ % 2 + 1; const std::string_view kind : kKinds) {
            left -= PathOf(kind) != file && left > 0 ? 1 : 0;
            place = left == 0 && place.empty() && PathOf(kind) != file ? PathOf(kind) : place;
        }
        m_installation.Write(place, TextWithFault(fault));
        const std::vector<Diagnostic> findings = m_installation.Check();
        ASSERT_EQ(findings.size(), 1u) << fault.after << " as " << place;
        EXPECT_EQ(findings[0].code, "wrong-kind") << fault.after << " as " << place;
        for (const SampleFile& sample : SampleFiles()) {
            if (sample.name == place) {
                m_installation.Write(sample.name, sample.text);
            }
        }
    }
}

// The same mistake everywhere makes no file one of another kind.
TEST_F(WrongKind, IsNoneThatIsFaultyThroughAndThrough) {
    struct Row {
        const char* file;
        const char* before;
        const char* after;
    };
    constexpr Row kRows[] = {
        {"cfg/ribbon.xml", "NAME=", "MENUNAME="},    {"cfg/ribbon.xml", "NAME=", "PROMPT="},
        {"cfg/ribbon.xml", "TYPE=", "MENUNAME="},    {"cfg/ribbon.xml", "TYPE=", "TYP="},
        {"cfg/ribbon.xml", "KEYWORD=", "MENUNAME="}, {"cfg/ribbon.xml", "<row KEYWORD=\"Main\">", ""},
        {"cfg/ribbon.xml", "CMD=", "HOTKEY="},       {"cfg/menu.xml", "MENUNAME=", "NAME="},
        {"cfg/menu.xml", "MENUNAME=", "PROMPT="},    {"cfg/menu.xml", "MENUNAME=", "TYPE="},
        {"cfg/menu.xml", "HOTKEY=", "GROUPBEFORE="}, {"cfg/menu.xml", "KEYWORD=", "IDKEY="},
        {"cfg/toolbar.xml", "PROMPT=", "NAME="},     {"cfg/toolbar.xml", "PROMPT=", "MENUNAME="},
        {"cfg/toolbar.xml", "TYPE=", "TYP="},        {"cfg/toolbar.xml", "TYPE=", "SIZE="},
        {"cfg/toolbar.xml", "PICPATH=", "SIZE="},    {"cfg/toolbar.xml", "KEYWORD=", "IDKEY="},
    };
    for (const Row& row : kRows) {
        WriteSample(m_installation);
        const std::string text = ReadBytes(m_installation.Directory().Path() / row.file);
        std::string changed = Replaced(text, row.before, row.after);
        ASSERT_NE(changed, text);
        if (std::string_view(row.after).empty()) {
            changed = Replaced(changed, "  </row>\n</ribbon>", "</ribbon>");
        }
        m_installation.Write(row.file, changed);
        std::size_t count = 0;
        for (const Diagnostic& finding : m_installation.Check()) {
            EXPECT_NE(finding.code, "wrong-kind") << row.file << ": " << row.before << " -> " << row.after;
            ++count;
        }
        EXPECT_GT(count, 0u) << row.file << ": " << row.before << " -> " << row.after;
    }
}

} // namespace
