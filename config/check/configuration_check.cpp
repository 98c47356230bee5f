#include "config/check/configuration_check.h"

#include "config/check/command_check.h"
#include "config/check/file_kind.h"
#include "config/check/gathered_elements.h"
#include "config/check/icon_check.h"
#include "config/check/installation_files.h"
#include "config/check/text_check.h"
#include "config/menu_file.h"
#include "config/ribbon_file.h"
#include "config/toolbar_file.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace {

/// Reads a file to its end and builds nothing.
class MenuReading : public MenuFileVisitor {
    void VisitItem(const MenuInfo& /*info*/, std::size_t /*level*/) override {}
    void VisitPopup(const MenuInfo& /*info*/, std::size_t /*level*/) override {}
    void LeaveBranch() override {}
};

class ToolBarReading : public ToolBarFileVisitor {
    void VisitGroup(const ToolBarInfo& /*info*/) override {}
    bool VisitToolBar(const ToolBarInfo& /*info*/) override { return true; }
    void VisitButton(const ToolBarInfo& /*info*/) override {}
};

bool ReadFile(const std::wstring& fullPath, ConfigurationKind kind, DiagnosticsSink& sink) {
    switch (kind) {
    case ConfigurationKind::Ribbon: {
        RibbonRecords rows;
        return LoadRibbonFile(fullPath, rows, sink);
    }
    case ConfigurationKind::Menu: {
        MenuReading reading;
        return LoadMenuFile(fullPath, reading, sink);
    }
    case ConfigurationKind::ToolBars:
        break;
    }
    ToolBarReading reading;
    return LoadToolBarFile(fullPath, reading, sink);
}

struct FileToRead {
    std::wstring fullPath;
    ConfigurationKind kind = ConfigurationKind::Ribbon;
};

std::vector<FileToRead> FilesToRead(const CheckRequest& request, const InstallationFiles& files) {
    std::vector<FileToRead> found;
    const std::vector<std::wstring> names = request.files.empty() ? ConfigurationFiles(files) : request.files;
    for (const std::wstring& name : names) {
        const std::wstring path = files.Find(name).value_or(files.FullPath(name));
        found.push_back({path, KindOfFile(path)});
    }
    // The order in which a program loads them.
    std::ranges::stable_sort(found, {}, &FileToRead::kind);
    return found;
}

/// Each file in the order of its reading, from the beginning to the end.
void Sort(std::vector<Diagnostic>& findings, const std::vector<FileToRead>& files) {
    std::map<std::wstring, std::size_t> order;
    for (const FileToRead& file : files) {
        order.emplace(file.fullPath, order.size());
    }
    const auto key = [&](const Diagnostic& finding) {
        const auto found = order.find(finding.file);
        return std::tuple(found == order.end() ? order.size() : found->second, std::wstring_view(finding.file),
                          finding.position.line, finding.position.column);
    };
    std::ranges::stable_sort(findings, [&](const Diagnostic& a, const Diagnostic& b) { return key(a) < key(b); });
}

/// Whether a keyword may have been meant that nobody knows: its text would seem unused.
bool LostKeywords(const std::vector<Diagnostic>& findings) {
    return std::ranges::any_of(findings, [](const Diagnostic& finding) {
        const bool isUnclear = finding.code == "unknown-attribute" && finding.fix.empty();
        return isUnclear || finding.code == "missing-keyword" || finding.code == "stray-text" ||
               finding.code == "empty-file";
    });
}

} // namespace

bool GatherConfiguration(const CheckRequest& request, GatheringSink& sink) {
    const std::vector<FileToRead> files = FilesToRead(request, InstallationFiles(request.directory));
    bool isComplete = !files.empty();
    for (const FileToRead& file : files) {
        isComplete = ReadFile(file.fullPath, file.kind, sink) && isComplete;
    }
    return isComplete;
}

std::vector<Diagnostic> CheckConfiguration(const CheckRequest& request) {
    const InstallationFiles files(request.directory);
    GatheringSink sink;
    const std::vector<FileToRead> toRead = FilesToRead(request, files);
    bool isComplete = true;
    for (const FileToRead& file : toRead) {
        isComplete = ReadFile(file.fullPath, file.kind, sink) && isComplete;
    }
    if (toRead.empty()) {
        ReportTogether(sink, files.FullPath(L"cfg\\ribbon.xml"), {1, 1}, "missing-file",
                       L"there is no cfg\\ribbon*.xml, cfg\\menu*.xml or cfg\\toolbar*.xml");
        isComplete = false;
    }
    const std::vector<LanguageTexts> languages = ReadLanguages(files, request.language, sink);
    // Whoever names files has others, whose keywords are not known here.
    const bool knowsAllKeywords = isComplete && request.files.empty() && !LostKeywords(sink.Findings());
    const std::set<std::wstring> meant = CheckTexts(sink.Elements(), languages, knowsAllKeywords, sink);
    CheckCommands(sink.Elements(), isComplete, meant, sink);
    CheckTextLengths(sink.Elements(), languages, sink);
    CheckAccessKeys(sink.Elements(), languages, sink);
    CheckIcons(sink.Elements(), files, sink);
    std::vector<Diagnostic> findings = std::move(sink.Findings());
    Sort(findings, toRead);
    for (Diagnostic& finding : findings) {
        finding.file = files.RelativeName(finding.file);
        for (RelatedPlace& place : finding.related) {
            place.file = files.RelativeName(place.file);
        }
    }
    return findings;
}
