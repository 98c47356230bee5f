#include "checked_installation.h"
#include "config/diagnostic_codes.h"
#include "model.h"
#include "model_difference.h"
#include "random_edit.h"

#include <varnhold/xml.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <set>

namespace {

namespace fs = std::filesystem;

/// How many edits are tried; BARWRIGHT_MUTATIONS asks for another number.
int EditCount() {
    const char* const asked = std::getenv("BARWRIGHT_MUTATIONS");
    return asked ? std::atoi(asked) : BARWRIGHT_EDITS;
}

/// So many edits that give no finding are shown before the rest is left.
constexpr int kMostSilent = 40;

std::string ReadBytes(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
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

void ExpectSound(const CheckedInstallation& installation, const std::vector<Diagnostic>& findings) {
    FileLines files;
    for (const Diagnostic& finding : findings) {
        const std::string what = CheckedInstallation::Describe(finding);
        EXPECT_NE(FindDiagnosticCode(finding.code), nullptr) << what;
        EXPECT_FALSE(finding.text.empty()) << what;
        ExpectInFile(installation, files, finding.file, finding.position, what);
        for (const RelatedPlace& place : finding.related) {
            ExpectInFile(installation, files, place.file, place.position, what);
        }
    }
}

/// The line where the texts begin to differ, of each.
std::string DifferentLines(const std::string& before, const std::string& after) {
    const auto place = std::ranges::mismatch(before, after);
    const std::size_t start = before.rfind('\n', static_cast<std::size_t>(place.in1 - before.begin())) + 1;
    const auto line = [start](const std::string& text) {
        return start > text.size() ? std::string() : text.substr(start, text.find('\n', start) - start);
    };
    return "    " + line(before) + "\n -> " + line(after);
}

/// The demo's files.
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
    return files;
}

/// Kinds of values (see ChangedKinds) that people change on purpose: no checker can know what was meant. Looked through
/// one by one; what is not here must give a finding.
const std::map<std::string, const char*>& MeantChanges() {
    static const std::map<std::string, const char*> s_meant = {
        {"text", "what a text says, in a table, as PROMPT, or as the letter of SHORTKEY"},
        {"name", "the same of the command"},
        {"tooltip", "likewise"},
        {"title", "the PROMPT of a toolbar"},
        {"help", "the name of a help file, which follows the text where none is written"},
        {"cmd", "what the program is told"},
        {"param", "likewise"},
        {"commands", "the list of what the program is told"},
        {"group", "a group's name, by which the program finds its toolbars"},
        {"image", "a place in the list of icons; a path that leads to none is missing-icon"},
        {"keyword", "the command at an id: it changes with what is left out before it"},
        {"id", "likewise"},
        {"nextCommandId", "likewise"},
        {"+registry", "a keyword of its own in a toolbar whose icon no like command has"},
        {"-registry", "the last element of a keyword left out"},
        {"-elements", "a whole element left out"},
        {"-children", "likewise"},
        {"-panels", "likewise"},
        {"-categories", "likewise"},
        {"-popup", "likewise"},
        {"-menu", "likewise"},
        {"-buttons", "likewise"},
        {"+buttons", "a piece of one toolbar moved into another"},
        {"-commands", "its command with it"},
        {"-quickAccess", "a quick access command left out"},
        {"-records", "a status-bar button left out"},
        {"-toolbars", "a toolbar left out"},
    };
    return s_meant;
}

/// Whether an edit that gave no finding may have changed what it changed.
bool IsMeant(const std::set<std::string>& kinds) {
    return std::ranges::all_of(kinds, [](const std::string& kind) { return MeantChanges().contains(kind); });
}

class Mutation : public testing::Test {
protected:
    Mutation() {
        for (const auto& [name, text] : m_files) {
            m_installation.Write(name, text);
        }
        WriteMissingIcons(m_installation);
    }

    /// What is built in each language.
    nlohmann::ordered_json Models() const {
        nlohmann::ordered_json models = nlohmann::ordered_json::array();
        for (const wchar_t* const language : {L"en", L"zh-CN"}) {
            models.push_back(ModelOf(m_installation.Directory().Prefix(), language));
        }
        return models;
    }

    const CheckedInstallation m_installation;
    const std::map<std::string, std::string> m_files = Files();
};

TEST_F(Mutation, AnEditThatChangesWhatIsBuiltGivesFindingsThatLieInTheFilesOrMayBeMeant) {
    const nlohmann::ordered_json before = Models();
    ASSERT_EQ(m_installation.Findings(), "");
    Random random(20260822); // the same edits every time
    int found = 0;
    int silent = 0;
    for (int i = 0; i < EditCount() && silent < kMostSilent; ++i) {
        const auto chosen = std::next(m_files.begin(), static_cast<std::ptrdiff_t>(Below(random, m_files.size())));
        const Edit edit = EditAtRandom(chosen->second, random);
        m_installation.Write(chosen->first, edit.text);
        SCOPED_TRACE("edit " + std::to_string(i) + " of " + chosen->first);
        if (const std::vector<Diagnostic> findings = m_installation.Check(); !findings.empty()) {
            ++found;
            ExpectSound(m_installation, findings);
        } else if (const std::set<std::string> kinds = ChangedKinds(before, Models()); !IsMeant(kinds)) {
            ++silent;
            ADD_FAILURE() << "no finding, and this is not built as before: " << testing::PrintToString(kinds) << "\n"
                          << DifferentLines(chosen->second, edit.text);
        }
        m_installation.Write(chosen->first, chosen->second);
    }
    RecordProperty("edits", EditCount());
    RecordProperty("found", found);
    EXPECT_GT(found, EditCount() / 3); // many edits are of comments and of what texts say
}

} // namespace
