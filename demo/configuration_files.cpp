#include "configuration_files.h"

#include "viewer_text.h"

#include "varnhold/file_op.h"
#include "varnhold/xml.h"

#include <array>

namespace {

struct FileRow {
    const wchar_t* path;
    bool mayBeMissing; ///< Then the working mode has no extras in the status bar.
};
constexpr std::array<FileRow, 6> kFiles = {{{L"cfg\\keys.xml", false},
                                            {L"cfg\\ribbon.xml", false},
                                            {L"cfg\\menu.xml", false},
                                            {L"cfg\\toolbar.xml", false},
                                            {L"cfg\\status-edit.xml", true},
                                            {L"cfg\\status-print.xml", true}}};

constexpr std::array<const wchar_t*, 2> kTables = {L"common.xlf", L"viewer.xlf"};

void Check(const std::wstring& path, std::vector<std::wstring>& broken) {
    CXmlDocumentWrapper document;
    if (!document.Load(path)) {
        broken.push_back(document.GetErrorText());
    } else if (!varnhold::XmlCursor(document).HasChildren()) {
        // Bars without anything in them are none that somebody meant: a file that is only begun, or not yet written.
        broken.push_back(path + L": " + ViewerText("FileWithoutElements"));
    }
}

} // namespace

std::vector<std::wstring> FindBrokenFiles(const std::wstring& language) {
    std::wstring folder;
    FileOp::GetAppPath(folder);
    std::vector<std::wstring> broken;
    for (const FileRow& file : kFiles) {
        const std::wstring path = folder + file.path;
        if (!file.mayBeMissing || FileOp::FileExist(path)) {
            Check(path, broken);
        }
    }
    // A language without one of its tables would show keys instead of texts.
    const std::wstring tables = folder + L"lang\\" + language + L"\\";
    for (const wchar_t* const table : kTables) {
        Check(tables + table, broken);
    }
    return broken;
}
