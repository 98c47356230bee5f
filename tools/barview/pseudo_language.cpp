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
    for (const char* const folder : {"cfg", "pic"}) {
        std::error_code ofFolder; // there need be no icons
        fs::copy(from / folder, made / folder, fs::copy_options::recursive, ofFolder);
    }
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
