#include "pseudo_language.h"

#include <varnhold/language_files.h>
#include <varnhold/letter_case.h>
#include <varnhold/markup.h>
#include <varnhold/strings.h>

#include <chrono>
#include <cwctype>
#include <filesystem>
#include <fstream>
#include <map>

namespace fs = std::filesystem;

namespace {

constexpr std::wstring_view kPlain = L"AEIOUYNCSZaeiouyncsz";
constexpr std::wstring_view kMarked = L"ÂÉÎÖÛÝÑÇŠŽâéîöûýñçšž";

/// All texts of a language's tables, by section and key.
class AllTexts : public varnhold::TranslationFileVisitor {
public:
    void VisitUnit(const varnhold::TranslationUnit& unit, const varnhold::TextPlace& /*place*/) override {
        texts[std::string(unit.section)][unit.key] = unit.text;
    }
    void VisitProblem(varnhold::TranslationProblem /*problem*/, varnhold::TextPosition /*position*/,
                      const std::wstring& /*text*/) override {}

    std::map<std::string, std::map<std::string, std::wstring>> texts;
};

std::string PseudoTable(const AllTexts& all) {
    using varnhold::EscapedMarkup;
    std::string table = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xliff "
                        "xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" version=\"2.0\" srcLang=\"en\">\n";
    int number = 0;
    for (const auto& [section, texts] : all.texts) {
        table += "<file id=\"" + EscapedMarkup(section) + "\">\n";
        for (const auto& [key, text] : texts) {
            table += "<unit id=\"u" + std::to_string(++number) + "\" name=\"" + EscapedMarkup(key) +
                     "\"><segment><source xml:space=\"preserve\">" + EscapedMarkup(wstring2String(PseudoText(text))) +
                     "</source></segment></unit>\n";
        }
        table += "</file>\n";
    }
    return table + "</xliff>\n";
}

/// Files may name icons and others anywhere below the directory. Not the tables, nor the programs that lie there.
bool IsOfInstallation(const fs::path& relative) {
    constexpr std::wstring_view programs[] = {L".exe", L".dll", L".pdb", L".lib", L".a"};
    const std::wstring extension = relative.extension().wstring();
    return !varnhold::EqualsIgnoringCase(relative.begin()->wstring(), L"lang") &&
           std::ranges::none_of(programs, [&extension](std::wstring_view program) {
               return varnhold::EqualsIgnoringCase(extension, program);
           });
}

/// The same files under other names where the disk can do that, otherwise copies; what cannot be read is left out.
void MirrorFolder(const fs::path& from, const fs::path& made, bool (*isWanted)(const fs::path& relative)) {
    std::error_code error;
    fs::recursive_directory_iterator entry(from, fs::directory_options::skip_permission_denied, error);
    for (const fs::recursive_directory_iterator end; !error && entry != end; entry.increment(error)) {
        const fs::path relative = entry->path().lexically_relative(from);
        std::error_code ofEntry;
        if (!isWanted(relative)) {
            entry.disable_recursion_pending();
        } else if (entry->is_directory(ofEntry)) {
            fs::create_directories(made / relative, ofEntry);
        } else if (entry->is_regular_file(ofEntry)) {
            fs::create_hard_link(entry->path(), made / relative, ofEntry);
            if (ofEntry) {
                fs::copy_file(entry->path(), made / relative, ofEntry);
            }
        }
    }
}

} // namespace

std::wstring PseudoText(const std::wstring& text) {
    if (text.empty()) {
        return text;
    }
    std::wstring marked;
    bool isKept = false; // a name of something that is put in
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool follows = i > 0 && (text[i - 1] == L'&' || text[i - 1] == L'%');
        isKept = text[i] == L'{' || (isKept && text[i] != L'}');
        const std::size_t known = follows || isKept ? kPlain.npos : kPlain.find(text[i]);
        marked += known == kPlain.npos ? text[i] : kMarked[known];
    }
    constexpr std::size_t third = 3;
    return L"[" + marked + std::wstring((text.size() + third - 1) / third, L'~') + L"]";
}

PseudoInstallation::PseudoInstallation(const std::wstring& directory, const std::wstring& language) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    const fs::path made = fs::temp_directory_path() / ("barview-" + std::to_string(now));
    const fs::path from(directory);
    std::error_code error;
    fs::create_directories(made / "lang" / kPseudoLanguage, error);
    MirrorFolder(from, made, IsOfInstallation);
    AllTexts texts;
    std::error_code ofTables;
    for (const auto& entry : fs::directory_iterator(from / "lang" / language, ofTables)) {
        if (varnhold::EqualsIgnoringCase(entry.path().extension().wstring(), L".xlf")) {
            varnhold::ReadTranslationFile(entry.path().wstring(), language, texts);
        }
    }
    std::ofstream table(made / "lang" / kPseudoLanguage / "all.xlf", std::ios::binary);
    table << PseudoTable(texts);
    m_directory = table.flush().good() ? (made / "").wstring() : std::wstring();
}

PseudoInstallation::~PseudoInstallation() {
    std::error_code ignored;
    if (!m_directory.empty()) {
        fs::remove_all(m_directory, ignored);
    }
}
