#include "config/check/configuration_check.h"

#include "config/check/command_check.h"
#include "config/check/file_kind.h"
#include "config/check/gathered_elements.h"
#include "config/check/icon_check.h"
#include "config/check/installation_files.h"
#include "config/check/kept_readings.h"
#include "config/check/missing_file_check.h"
#include "config/check/read_file.h"
#include "config/check/text_check.h"
#include "config/check/twin_check.h"
#include "config/diagnostic_codes.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <span>
#include <tuple>
#include <utility>

namespace {

struct FileToRead {
    std::wstring fullPath;
    ConfigurationKind kind = ConfigurationKind::Ribbon;
    /// What was met in it when it was read by somebody else; null: it is to be read.
    const GatheringSink* gathered = nullptr;
};

void Repeat(const GatheringSink& gathered, DiagnosticsSink& sink) {
    for (const Diagnostic& finding : gathered.Findings()) {
        sink.Report(finding);
    }
    for (const GatheredElement& element : gathered.Elements()) {
        sink.Meet(*element.file, element.element);
    }
}

/// The full paths of the files that are named, without those that are named twice; of configuration files or of tables.
std::vector<std::wstring> NamedFiles(const CheckRequest& request, const InstallationFiles& files,
                                     bool (*isWanted)(std::wstring_view)) {
    std::vector<std::wstring> paths;
    for (const std::wstring& name : request.files) {
        std::wstring path = files.Find(name).value_or(files.FullPath(name));
        if (isWanted(name) && std::ranges::find(paths, path) == paths.end()) {
            paths.push_back(std::move(path));
        }
    }
    return paths;
}

bool IsConfigurationName(std::wstring_view name) { return !IsTableName(name); }

/// What is to be read, and what is to be spoken of.
struct Selection {
    std::vector<FileToRead> files;
    /// The installation's other configuration files.
    std::vector<FileToRead> others;
    /// Empty: all of them.
    std::vector<std::wstring> tables;
    bool namesFiles = false;
};

/// In the order in which a program loads them, except that files of shortcuts, which come first there, are at the end.
std::vector<FileToRead> InOrder(const std::vector<std::wstring>& paths) {
    std::vector<FileToRead> files;
    files.reserve(paths.size());
    for (const std::wstring& path : paths) {
        files.push_back({path, KindOfFile(path)});
    }
    std::ranges::stable_sort(
        files, {}, [](const FileToRead& file) { return std::pair(IsShortcutFile(file.fullPath), file.kind); });
    return files;
}

Selection Select(const CheckRequest& request, const InstallationFiles& files) {
    std::vector<std::wstring> usual;
    for (const std::wstring& name : ConfigurationFiles(files)) {
        usual.push_back(*files.Find(name));
    }
    const std::vector<std::wstring> named = NamedFiles(request, files, IsConfigurationName);
    Selection selection;
    selection.tables = NamedFiles(request, files, IsTableName);
    selection.namesFiles = !named.empty();
    selection.files = InOrder(named.empty() ? usual : named);
    if (!named.empty()) {
        std::erase_if(usual,
                      [&named](const std::wstring& path) { return std::ranges::find(named, path) != named.end(); });
        selection.others = InOrder(usual);
    }
    return selection;
}

/// Passes everything on, and hears whether a file is of another kind than it is read as.
class KindWatch : public DiagnosticsSink {
public:
    explicit KindWatch(DiagnosticsSink& sink) : m_sink(sink) {}
    void Report(const Diagnostic& diagnostic) override {
        m_hasWrongKind = m_hasWrongKind || diagnostic.code == kWrongKind;
        m_sink.Report(diagnostic);
    }
    void Meet(const std::wstring& file, const MetElement& element) override { m_sink.Meet(file, element); }
    bool HasWrongKind() const { return m_hasWrongKind; }

private:
    DiagnosticsSink& m_sink;
    bool m_hasWrongKind = false;
};

/// Reads the file, or repeats what was met in it when it was as it is now. False when it cannot be loaded.
bool ReadOnce(const FileToRead& file, const InstallationFiles& files, KeptReadings& kept, DiagnosticsSink& sink) {
    const FileReading& reading =
        kept.files.Get(file.fullPath, files.StampOf(files.RelativeName(file.fullPath)), [&file] {
            FileReading read;
            read.isLoaded = ReadConfigurationFile(file.fullPath, file.kind, read.gathered);
            return read;
        });
    Repeat(reading.gathered, sink);
    return reading.isLoaded;
}

/// Where files are read from: `kept` is null where nothing is kept.
struct Source {
    const InstallationFiles& installation;
    KeptReadings* kept = nullptr;
};

/// Whether all that the files should hold is known.
bool ReadFiles(const std::vector<FileToRead>& files, const Source& source, DiagnosticsSink& sink) {
    KindWatch watch(sink);
    bool isComplete = true;
    for (const FileToRead& file : files) {
        if (file.gathered) {
            Repeat(*file.gathered, watch);
        } else if (source.kept) {
            isComplete = ReadOnce(file, source.installation, *source.kept, watch) && isComplete;
        } else {
            isComplete = ReadConfigurationFile(file.fullPath, file.kind, watch) && isComplete;
        }
    }
    return isComplete && !watch.HasWrongKind();
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

/// The keywords of all elements of the files, which are not reported.
bool AddKeywordsOf(const std::vector<FileToRead>& files, const Source& source, std::set<std::wstring>& keywords) {
    class Silent : public GatheringSink {
    public:
        void Report(const Diagnostic& /*diagnostic*/) override {}
    };
    Silent sink;
    const bool isComplete = ReadFiles(files, source, sink);
    for (const GatheredElement& gathered : sink.Elements()) {
        const ElementRole role = gathered.element.role;
        if (role != ElementRole::QuickAccessItem && role != ElementRole::StatusButton) {
            keywords.emplace(gathered.element.ValueOf(AttributeUse::Keyword));
        }
    }
    return isComplete;
}

/// Where tables are named, what is said of anything that is not named is dropped; tables that are not there are told.
void KeepNamed(std::vector<Diagnostic>& findings, const Selection& selection, const InstallationFiles& files) {
    if (selection.tables.empty()) {
        return;
    }
    std::erase_if(findings, [&selection](const Diagnostic& finding) {
        const bool isNamed = selection.namesFiles && std::ranges::find(selection.files, finding.file,
                                                                       &FileToRead::fullPath) != selection.files.end();
        return !isNamed && std::ranges::find(selection.tables, finding.file) == selection.tables.end();
    });
    GatheringSink missing;
    for (const std::wstring& table : selection.tables) {
        if (!files.Find(files.RelativeName(table))) {
            ReportTogether(missing, table, {1, 1}, "missing-file", L"there is no such table");
        }
    }
    std::ranges::move(missing.Findings(), std::back_inserter(findings));
}

/// How many elements of files of shortcuts there are.
std::size_t PutShortcutsFirst(GatheringSink& sink) {
    const auto isShown = [](const GatheredElement& gathered) { return !IsShortcutFile(*gathered.file); };
    return sink.PutFirst(static_cast<std::size_t>(std::ranges::count_if(sink.Elements(), isShown)));
}

/// Whether there are files that are not read because of what an editor has put behind their names.
bool ReportMisnamed(const InstallationFiles& files, DiagnosticsSink& sink) {
    const std::vector<std::wstring> misnamed = FilesOfOtherEndings(files);
    for (const std::wstring& path : misnamed) {
        const std::wstring name = path.substr(path.rfind(L'\\') + 1);
        ReportTogether(sink, files.FullPath(path), {1, 1}, "missing-file",
                       L"this is not read: the name of a configuration file ends in .xml",
                       L"call it " + name.substr(0, name.rfind(L'.')) +
                           L"; the system hides the ending that an editor puts behind");
    }
    return !misnamed.empty();
}

bool HasFinding(GatheringSink& sink, std::string_view code) {
    return std::ranges::find(sink.Findings(), code, &Diagnostic::code) != sink.Findings().end();
}

/// What is to be checked, and what is known of it besides its files.
struct Checking {
    Source source;
    Selection selection;
    /// Empty: all that there are.
    std::wstring language;
    std::set<std::wstring> registered;
    /// False: it has no texts yet.
    bool hasTexts = true;
};

/// What is wrong with tables by themselves is told where nothing is kept; a program that loads file after file tells it
/// elsewhere.
std::span<const LanguageTexts> TextsOf(const Checking& checking, std::vector<LanguageTexts>& read,
                                       DiagnosticsSink& sink) {
    const InstallationFiles& files = checking.source.installation;
    if (!checking.hasTexts) {
        return {};
    }
    if (!checking.source.kept) {
        read = ReadLanguages(files, checking.language, sink);
        return read;
    }
    return checking.source.kept->languages.Get(checking.language, StampOfLanguage(files, checking.language), [&] {
        return ReadLanguages(files, checking.language, DroppedDiagnostics());
    });
}

/// Reads the files, and then says what takes all of them together.
void CheckTogether(const Checking& checking, GatheringSink& sink) {
    const InstallationFiles& files = checking.source.installation;
    const Selection& selection = checking.selection;
    bool isComplete = ReadFiles(selection.files, checking.source, sink);
    const bool areMisnamed = !selection.namesFiles && ReportMisnamed(files, sink);
    isComplete = isComplete && !areMisnamed;
    if (selection.files.empty() && !areMisnamed) {
        ReportTogether(sink, files.FullPath(L"cfg\\ribbon.xml"), {1, 1}, "missing-file",
                       L"there is no cfg\\ribbon*.xml, cfg\\menu*.xml or cfg\\toolbar*.xml",
                       MendOfMissingConfiguration(files));
        isComplete = false;
    }
    JoinShiftedLevels(sink);
    std::size_t lostKeywords = CountLostKeywords(sink);
    std::vector<LanguageTexts> read;
    const std::span<const LanguageTexts> languages = TextsOf(checking, read, sink);
    if (!selection.namesFiles) {
        if (checking.hasTexts && languages.empty() && checking.language.empty() && !HasFinding(sink, "bad-table")) {
            ReportMissingTables(sink.Elements(), files, sink);
        }
        constexpr std::size_t all = 1'000'000; // keywords of files that were not read
        const bool isAnyMissing =
            !selection.files.empty() && !areMisnamed &&
            ReportMissingKinds(sink.Elements(), files, languages, isComplete ? lostKeywords : all, sink);
        isComplete = isComplete && !isAnyMissing;
    }
    // Whoever names files has others, whose keywords are not known here.
    const bool knowsAllKeywords = isComplete && !selection.namesFiles;
    const std::set<std::wstring> meant = CheckTexts(sink.Elements(), languages, sink);
    CheckTextLengths(sink.Elements(), languages, sink);
    CheckTwins(sink);
    // From here on in the order in which commands are registered. No menu shows what a file of shortcuts has.
    const std::size_t shortcuts = PutShortcutsFirst(sink);
    CheckAccessKeys(std::span(sink.Elements()).subspan(shortcuts), languages, sink);
    std::set<std::wstring> known = meant;
    known.insert(checking.registered.begin(), checking.registered.end());
    isComplete = AddKeywordsOf(selection.others, checking.source, known) && isComplete;
    if (lostKeywords > 0) {
        AddKeywordsWithTexts(languages, known);
    }
    CheckCommands(sink.Elements(), isComplete, known, sink);
    if (knowsAllKeywords) {
        // Whoever has another's keyword lacks its own.
        lostKeywords += static_cast<std::size_t>(
            std::ranges::count(sink.Findings(), std::string_view("duplicate-keyword"), &Diagnostic::code));
        CheckUnusedTexts(sink.Elements(), languages, meant, lostKeywords, sink);
    }
    CheckIcons(sink.Elements(), files, checking.source.kept ? &checking.source.kept->icons : nullptr, sink);
}

/// Whether it is about the file, or about what the file needs of a table.
bool IsAbout(const Diagnostic& finding, const std::wstring& file) {
    return finding.file == file ||
           (IsTableName(finding.file) &&
            std::ranges::find(finding.related, file, &RelatedPlace::file) != finding.related.end());
}

/// All files that the installation has, with this one among them, or it alone where it is none of them.
Selection SelectLoaded(const LoadedFile& loaded, const InstallationFiles& files) {
    Selection selection = Select({files.Directory(), {}, {}}, files);
    const std::wstring& path = *loaded.gathered.Elements().front().file;
    const auto own = std::ranges::find(selection.files, FoldedPath(path),
                                       [](const FileToRead& file) { return FoldedPath(file.fullPath); });
    if (own != selection.files.end()) {
        own->fullPath = path;
        own->gathered = &loaded.gathered;
    } else {
        selection.namesFiles = true;
        selection.others = std::exchange(selection.files, {{path, ConfigurationKind::Ribbon, &loaded.gathered}});
    }
    return selection;
}

} // namespace

bool GatherConfiguration(const CheckRequest& request, GatheringSink& sink) {
    const InstallationFiles installation(request.directory);
    const std::vector<FileToRead> files = Select(request, installation).files;
    return ReadFiles(files, {installation}, sink) && !files.empty();
}

std::vector<Diagnostic> CheckConfiguration(const CheckRequest& request) {
    const InstallationFiles files(request.directory);
    GatheringSink sink;
    const Checking checking{{files}, Select(request, files), request.language, {}};
    CheckTogether(checking, sink);
    std::vector<Diagnostic> findings = std::move(sink.Findings());
    KeepNamed(findings, checking.selection, files);
    Sort(findings, checking.selection.files);
    for (Diagnostic& finding : findings) {
        finding.file = files.RelativeName(finding.file);
        for (RelatedPlace& place : finding.related) {
            place.file = files.RelativeName(place.file);
        }
    }
    return findings;
}

std::vector<Diagnostic> CheckLoadedFile(const std::wstring& directory, const LoadedFile& loaded, KeptReadings& kept) {
    const InstallationFiles files(directory);
    if (kept.directory != directory) {
        kept = {directory, {}, {}, {}};
    }
    Checking checking{
        {files, &kept}, SelectLoaded(loaded, files), loaded.language, loaded.registered, !loaded.language.empty()};
    if (checking.selection.namesFiles) {
        // Status-bar buttons are made later, and what they stand for may come until then.
        for (const GatheredElement& gathered : loaded.gathered.Elements()) {
            if (gathered.element.role == ElementRole::StatusButton) {
                checking.registered.emplace(gathered.element.ValueOf(AttributeUse::Keyword));
            }
        }
    }
    GatheringSink sink;
    CheckTogether(checking, sink);
    std::vector<Diagnostic>& findings = sink.Findings();
    const std::wstring& file = *loaded.gathered.Elements().front().file;
    std::erase_if(findings, [&file](const Diagnostic& finding) { return !IsAbout(finding, file); });
    return std::move(findings);
}
