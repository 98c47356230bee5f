#include "config/check/text_check.h"

#include "config/suggestion.h"
#include "varnhold/letter_case.h"

#include <map>

namespace {

/// Whether an entity's name follows, as in "&nbsp;": that is no letter but a reference that nobody knows, and reported.
bool IsUnknownEntity(std::wstring_view behind) {
    const std::size_t end = behind.find_first_not_of(L"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
    return end != behind.npos && end > 1 && behind[end] == L';';
}

/// The letter that a menu text marks by "&", in small letters; 0 when it marks none. "&&" is a sign of its own.
wchar_t MarkedLetter(std::wstring_view text) {
    for (std::size_t at = text.find(L'&'); at != text.npos && at + 1 < text.size(); at = text.find(L'&', at + 2)) {
        if (text[at + 1] != L'&' && !IsUnknownEntity(text.substr(at + 1))) {
            return varnhold::LowerAscii(text[at + 1]);
        }
    }
    return 0;
}

/// What the menu shows of an item in a language, as the library puts it together.
std::wstring ShownText(const MetElement& element, const LanguageTexts* language) {
    std::wstring text;
    if (element.Has(AttributeUse::Name)) {
        const std::wstring keyword(element.ValueOf(AttributeUse::Keyword));
        text = keyword;
        if (language) {
            const auto found = language->commands.find(keyword);
            text = found == language->commands.end() ? keyword : found->second.text;
        }
    }
    const std::wstring_view letter = element.ValueOf(AttributeUse::ShortKey);
    return letter.empty() ? text : text + L"(&" + std::wstring(letter) + L")";
}

AttributeUse PlaceOfLetter(const MetElement& element) {
    return element.Has(AttributeUse::ShortKey) ? AttributeUse::ShortKey : AttributeUse::Keyword;
}

/// An item whose letter an earlier one of its menu has.
struct Clash {
    const GatheredElement* earlier = nullptr;
    wchar_t letter = 0;
    std::vector<std::wstring> languages;
};

using Clashes = std::map<const GatheredElement*, Clash>;

void FindClashes(std::span<const GatheredElement> elements, const LanguageTexts* language, Clashes& clashes) {
    // By level, the letters of the menu that is open there.
    std::vector<std::map<wchar_t, const GatheredElement*>> open;
    const std::wstring* file = nullptr;
    for (const GatheredElement& gathered : elements) {
        const MetElement& element = gathered.element;
        const bool isPopup = element.role == ElementRole::Popup;
        if (element.isPassedOver || (!isPopup && element.role != ElementRole::MenuItem)) {
            continue;
        }
        if (file != gathered.file) {
            open.clear();
            file = gathered.file;
        }
        open.resize(element.depth);
        const bool isReported = element.IsReported(AttributeUse::ShortKey) || element.IsReported(AttributeUse::Keyword);
        if (const wchar_t letter = isReported ? L'\0' : MarkedLetter(ShownText(element, language)); letter != 0) {
            const auto [holder, isNew] = open.back().try_emplace(letter, &gathered);
            if (!isNew) {
                Clash& clash = clashes[&gathered];
                clash.earlier = holder->second;
                clash.letter = letter;
                clash.languages.push_back(language ? language->code : L"");
            }
        }
    }
}

} // namespace

void CheckAccessKeys(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                     DiagnosticsSink& sink) {
    Clashes clashes;
    for (const LanguageTexts& language : languages) {
        FindClashes(elements, &language, clashes);
    }
    if (languages.empty()) {
        FindClashes(elements, nullptr, clashes);
    }
    for (const auto& [gathered, clash] : clashes) {
        std::wstring where;
        if (clash.languages.size() < languages.size()) {
            for (const std::wstring& language : clash.languages) {
                where += (where.empty() ? L" in " : L", ") + language;
            }
        }
        ReportTogether(
            sink, *gathered->file, PlaceOf(gathered->element, PlaceOfLetter(gathered->element)), "access-key-clash",
            L"the letter " + std::wstring(1, clash.letter) + L" belongs to another item of this menu" + where,
            L"take another letter for one of them",
            {PlaceOf(*clash.earlier, PlaceOfLetter(clash.earlier->element), L"the other one")});
    }
}
