#include "configuration_files.h"

#include "configuration_problems.h"
#include "viewer_text.h"

#include "varnhold/file_op.h"
#include "varnhold/xml.h"

#include <array>

namespace {

struct FileRow {
    const wchar_t* path;
    bool mayBeMissing; ///< Then the working mode has no extras in the status bar.
    ConfiguredBars bars;
};
constexpr std::array<FileRow, 6> kFiles = {{{L"cfg\\keys.xml", false, ConfiguredBars::Menu},
                                            {L"cfg\\ribbon.xml", false, ConfiguredBars::Ribbon},
                                            {L"cfg\\menu.xml", false, ConfiguredBars::Menu},
                                            {L"cfg\\toolbar.xml", false, ConfiguredBars::ToolBars},
                                            {L"cfg\\status-edit.xml", true, ConfiguredBars::Ribbon},
                                            {L"cfg\\status-print.xml", true, ConfiguredBars::Ribbon}}};

constexpr std::array<const wchar_t*, 2> kTables = {L"common.xlf", L"viewer.xlf"};

/// False: the file cannot be read, or holds nothing.
bool Check(const std::wstring& path, std::vector<std::wstring>& broken) {
    CXmlDocumentWrapper document;
    if (!document.Load(path)) {
        broken.push_back(document.GetErrorText());
        return false;
    }
    if (!varnhold::XmlCursor(document).HasChildren()) {
        // Bars without anything in them are none that somebody meant: a file that is only begun, or not yet written.
        broken.push_back(path + L": " + ViewerText("FileWithoutElements"));
        return false;
    }
    return true;
}

/// A menu with a shortcut that names no key is well-formed, and cannot be loaded.
void CheckBars(const std::wstring& path, ConfiguredBars bars, std::vector<std::wstring>& broken) {
    for (const ConfigurationProblem& problem : FindLoadFaults(path, bars)) {
        broken.push_back(PlaceAndText(problem));
    }
}

} // namespace

std::wstring PlaceAndText(const ConfigurationProblem& problem) {
    return problem.file + L':' + std::to_wstring(problem.line) + L':' + std::to_wstring(problem.column) + L": " +
           problem.text;
}

std::vector<std::wstring> FindBrokenFiles(const std::wstring& language) {
    std::wstring folder;
    FileOp::GetAppPath(folder);
    std::vector<std::wstring> broken;
    for (const FileRow& file : kFiles) {
        const std::wstring path = folder + file.path;
        if ((!file.mayBeMissing || FileOp::FileExist(path)) && Check(path, broken)) {
            CheckBars(path, file.bars, broken);
        }
    }
    // A language without one of its tables would show keys instead of texts.
    const std::wstring tables = folder + L"lang\\" + language + L"\\";
    for (const wchar_t* const table : kTables) {
        Check(tables + table, broken);
    }
    return broken;
}
