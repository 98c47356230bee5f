#include "config/check/language_texts.h"

#include "config/check/file_kind.h"
#include "config/check/gathered_elements.h"
#include "config/check/spoilt_texts.h"
#include "config/load_document.h"
#include "config/refused_elsewhere.h"
#include "config/ribbon_attributes.h"
#include "config/suggestion.h"
#include "config/syntax_hint.h"

#include <varnhold/language_files.h>
#include <varnhold/letter_case.h>
#include <varnhold/strings.h>

#include <algorithm>
#include <set>
#include <utility>

namespace {

using varnhold::TextPosition;
using varnhold::TranslationProblem;

constexpr std::wstring_view kToolTipSuffix = L".tooltip";

std::string_view CodeOf(TranslationProblem problem) {
    switch (problem) {
    case TranslationProblem::Unreadable:
        return "unreadable-file";
    case TranslationProblem::Empty:
        return "empty-file";
    case TranslationProblem::Encoding:
        return "xml-encoding";
    case TranslationProblem::Syntax:
        return "xml-syntax";
    default:
        return "bad-table";
    }
}

/// Empty where the text says it all.
std::wstring FixOf(TranslationProblem problem) {
    switch (problem) {
    case TranslationProblem::NotXliff:
        return L"a table begins with <xliff version=\"2.0\">; barcheck DIR --extract LANG writes one";
    case TranslationProblem::UnitWithoutSegment:
        return L"put <segment> around source and target";
    case TranslationProblem::SecondText:
        return L"remove one of the two";
    case TranslationProblem::ForeignInline:
        return L"write the text without it; marks around a part of a text are <pc>";
    default:
        return {};
    }
}

/// Takes the files of one language.
class TextReader : public varnhold::TranslationFileVisitor {
public:
    TextReader(LanguageTexts& texts, DiagnosticsSink& sink) : m_texts(texts), m_sink(sink) {}

    void Read(const std::wstring& path) {
        m_file = path;
        m_isForeign = false;
        m_untranslated.clear();
        m_translated = 0;
        m_duplicates.clear();
        m_units = 0;
        m_spoilt.Clear();
        ReportRefusedElsewhere(FileDiagnostics(m_file, m_sink));
        m_texts.isUsable = varnhold::ReadTranslationFile(path, m_texts.code, *this) && m_texts.isUsable;
        ReportDuplicates();
        ReportSpoilt();
        m_ofFiles.push_back({m_file, std::move(m_untranslated), m_translated});
    }

    /// When all files are read: a folder of the wrong name is one fault, and what is foreign in it is not known.
    void ReportLanguage() const {
        for (const Untranslated& file : m_ofFiles) {
            if (m_otherLanguages.empty()) {
                ReportUntranslated(file);
            }
        }
        for (const OtherLanguage& one : m_otherLanguages) {
            FileDiagnostics(one.place.file, m_sink)
                .Report(CodeOf(TranslationProblem::OtherLanguage), one.place.position, one.place.text,
                        one.others.empty() ? L"mend trgLang, or put the file into the folder of its language"
                                           : L"give the folder the name of its language, or mend trgLang in its files",
                        one.others);
        }
    }

    void VisitSourceLanguage(bool isForeign) override { m_isForeign = isForeign; }

    void VisitUnit(const varnhold::TranslationUnit& unit, const varnhold::TextPlace& place) override {
        const FileDiagnostics diagnostics(m_file, m_sink);
        const std::wstring key = string2wstring(unit.key);
        const TextPosition position = place.GetPosition();
        auto& section = unit.section == kRibbonSection ? m_texts.commands : m_otherTexts[std::string(unit.section)];
        const auto [placed, isNew] = section.try_emplace(key);
        ++m_units;
        if (!isNew) {
            m_texts.lostUnits += unit.section == kRibbonSection ? 1 : 0; // it may have another one's key
            m_duplicates.push_back({key, position, placed->second.file, placed->second.position});
        }
        placed->second = {unit.text, m_file, position};
        m_spoilt.Take(unit.text, position);
        if (m_isForeign && !unit.isTranslated) {
            m_untranslated.emplace_back(key, position);
        } else {
            ++m_translated;
        }
        if (unit.section != kRibbonSection) {
            m_texts.otherSections.try_emplace(string2wstring(unit.section), placed->second);
            return;
        }
        if (unit.text.empty() && !key.ends_with(kToolTipSuffix)) {
            diagnostics.Report("bad-table", position, L"the unit " + Quoted(key) + L" has no text",
                               L"write it into source or target");
        }
    }

    void VisitFaultyUnit(std::string_view section, const std::string& key) override {
        if (section == kRibbonSection) {
            m_texts.leftOut.insert(string2wstring(key));
        }
    }
    bool IsThorough() const override { return true; }
    void VisitOddity(const varnhold::XmlOddity& oddity) override {
        ReportOddity(oddity, FileDiagnostics(m_file, m_sink));
    }

    void VisitProblem(TranslationProblem problem, TextPosition position, const std::wstring& text) override {
        const TextPosition place{std::max<std::size_t>(1, position.line), std::max<std::size_t>(1, position.column)};
        m_texts.hasLostSection = m_texts.hasLostSection || problem == TranslationProblem::FileWithoutId;
        m_texts.lostUnits += problem == TranslationProblem::UnitWithoutKey ? 1 : 0;
        if (problem == TranslationProblem::OtherLanguage) {
            TakeOtherLanguage({m_file, place, text});
            return;
        }
        const SyntaxHint hint =
            problem == TranslationProblem::Syntax ? HintForSyntax(m_file, place, text) : SyntaxHint{place, {}};
        FileDiagnostics(m_file, m_sink)
            .Report(CodeOf(problem), hint.position, hint.text.empty() ? text : hint.text,
                    hint.fix.empty() ? FixOf(problem) : hint.fix);
    }

private:
    struct Duplicate {
        std::wstring key;
        TextPosition position;
        std::wstring earlierFile;
        TextPosition earlier;
    };
    struct Untranslated {
        std::wstring file;
        /// Keys and places.
        std::vector<std::pair<std::wstring, TextPosition>> units;
        std::size_t translated = 0;
    };
    struct OtherLanguage {
        RelatedPlace place;
        std::vector<RelatedPlace> others;
    };

    /// One thing to say of the whole file: it was saved so.
    void ReportSpoilt() const {
        const FileDiagnostics diagnostics(m_file, m_sink);
        if (const SpoiltTexts::Kind& misread = m_spoilt.Misread(); misread.count > 0) {
            diagnostics.Report("bad-table", misread.first,
                               std::to_wstring(misread.count) +
                                   L" texts of this file are UTF-8 that was read as another encoding, and saved again",
                               L"take an earlier copy, or let a program read it as UTF-8 before it saves it");
        }
        if (const SpoiltTexts::Kind& lost = m_spoilt.Lost(); lost.count > 0) {
            diagnostics.Report("bad-table", lost.first,
                               L"question marks stand in the place of letters in " + std::to_wstring(lost.count) +
                                   L" texts of this file: it was saved in an encoding that does not have them",
                               L"take an earlier copy, and save it as UTF-8");
        }
    }

    void TakeOtherLanguage(const RelatedPlace& place) {
        for (OtherLanguage& one : m_otherLanguages) {
            if (one.place.text == place.text) {
                one.others.push_back({place.file, place.position, L"so is it here"});
                return;
            }
        }
        m_otherLanguages.push_back({place, {}});
    }

    /// A file that is a copy of another one is one thing to say.
    void ReportDuplicates() const {
        constexpr std::size_t few = 3;
        const FileDiagnostics diagnostics(m_file, m_sink);
        const bool areOfOneFile = std::ranges::all_of(m_duplicates, [this](const Duplicate& one) {
            return one.earlierFile == m_duplicates.front().earlierFile && one.earlierFile != m_file;
        });
        if (areOfOneFile && m_duplicates.size() > few && 2 * m_duplicates.size() > m_units) {
            const Duplicate& first = m_duplicates.front();
            diagnostics.Report("duplicate-text", first.position,
                               std::to_wstring(m_duplicates.size()) +
                                   L" units of this file stand in another one, too: those of this file count",
                               L"is one of the two files a copy? then remove it",
                               {{first.earlierFile, first.earlier, L"the first of them there"}});
            return;
        }
        for (const Duplicate& one : m_duplicates) {
            diagnostics.Report("duplicate-text", one.position,
                               L"there is another unit " + Quoted(one.key) + L" in this section; the later one counts",
                               L"remove one of the two", {{one.earlierFile, one.earlier, L"the earlier one"}});
        }
    }

    /// Where nothing is translated, that is one thing to say.
    void ReportUntranslated(const Untranslated& file) const {
        constexpr std::size_t few = 3;
        const FileDiagnostics diagnostics(file.file, m_sink);
        if (file.translated == 0 && file.units.size() > few) {
            diagnostics.Report("untranslated-text", file.units.front().second,
                               L"none of the " + std::to_wstring(file.units.size()) + L" units has a target",
                               L"translate them, or let srcLang be the language of the texts");
            return;
        }
        for (const auto& [key, position] : file.units) {
            diagnostics.Report("untranslated-text", position, L"the unit " + Quoted(key) + L" has no target",
                               L"translate it");
        }
    }

    LanguageTexts& m_texts;
    DiagnosticsSink& m_sink;
    std::wstring m_file;
    bool m_isForeign = false;
    /// Of the file that is read: keys and places.
    std::vector<std::pair<std::wstring, TextPosition>> m_untranslated;
    std::size_t m_translated = 0;
    std::vector<Duplicate> m_duplicates;
    std::size_t m_units = 0;
    SpoiltTexts m_spoilt;
    std::vector<Untranslated> m_ofFiles;
    std::vector<OtherLanguage> m_otherLanguages;
    std::map<std::string, std::map<std::wstring, PlacedText>> m_otherTexts;
};

std::wstring InLanguageFolder(const std::wstring& code, const std::wstring& name) {
    return L"lang\\" + code + L'\\' + name;
}

/// Files that were meant to be tables, and that nobody reads. Whether there are any.
bool ReportUnread(const InstallationFiles& files, const std::wstring& folder, bool isOfLanguage,
                  DiagnosticsSink& sink) {
    const std::wstring start = folder + L'\\';
    bool areAny = false;
    for (const std::wstring& name : files.FilesIn(folder)) {
        constexpr std::wstring_view others[] = {L".xliff", L".xlif", L".xlff", L".xlf.txt", L".xliff.txt"};
        const bool isOtherName =
            std::ranges::any_of(others, [&name](std::wstring_view ending) { return EndsWith(name, ending); });
        if (isOtherName || (!isOfLanguage && IsTableName(name))) {
            areAny = true;
            ReportTogether(sink, *files.Find(start + name), {1, 1}, "bad-table",
                           L"this is not read: tables have the extension .xlf and lie in the folder of their language",
                           isOtherName ? L"give it the extension .xlf" : L"put it into the folder of its language");
        }
    }
    return areAny;
}

} // namespace

std::vector<LanguageTexts> ReadLanguages(const InstallationFiles& files, const std::wstring& only,
                                         DiagnosticsSink& sink) {
    std::vector<LanguageTexts> languages;
    if (only.empty()) {
        ReportUnread(files, L"lang", false, sink);
    }
    for (const std::wstring& code : files.FoldersIn(L"lang")) {
        if (!only.empty() && !varnhold::EqualsIgnoringCase(code, only)) {
            continue;
        }
        LanguageTexts texts;
        texts.code = code;
        TextReader reader(texts, sink);
        bool isLanguage = false;
        texts.hasUnread = ReportUnread(files, L"lang\\" + code, true, sink);
        for (const std::wstring& name : files.FilesIn(L"lang\\" + code)) {
            if (IsTableName(name)) {
                isLanguage = true;
                reader.Read(*files.Find(InLanguageFolder(code, name)));
            }
        }
        reader.ReportLanguage();
        if (isLanguage) {
            languages.push_back(std::move(texts));
        }
    }
    if (languages.empty() && !only.empty()) {
        ReportTogether(sink, files.FullPath(L"lang\\" + only), {1, 1}, "missing-file",
                       L"there are no tables of the language " + Quoted(only));
    }
    return languages;
}

std::optional<FolderStamp> StampOfLanguage(const InstallationFiles& files, const std::wstring& language) {
    FolderStamp stamp;
    for (const std::wstring& name : files.FilesIn(L"lang\\" + language)) {
        const std::optional<FileStamp> ofFile = files.StampOf(InLanguageFolder(language, name));
        if (!ofFile) {
            return std::nullopt;
        }
        stamp.emplace_back(name, *ofFile);
    }
    return stamp;
}
