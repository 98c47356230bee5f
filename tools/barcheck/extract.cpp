#include "extract.h"

#include "config/check/configuration_check.h"
#include "config/check/installation_files.h"
#include "config/check/language_texts.h"
#include "config/check/translation_extract.h"

#include <varnhold/file_op.h>
#include <varnhold/letter_case.h>
#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;

fs::path NativePath(const std::wstring& path) {
#ifdef _WIN32
    return path;
#else
    return wstring2String(path);
#endif
}

std::string ReadBytes(const std::wstring& path) {
    std::ifstream stream(NativePath(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool WriteBytes(const std::wstring& path, const std::string& bytes) {
    std::error_code ignored;
    fs::create_directories(NativePath(path).parent_path(), ignored);
    std::ofstream stream(NativePath(path), std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return stream.flush().good();
}

/// The language whose texts the others are translated from: English where it is there, otherwise the first other one.
const LanguageTexts* SourceOf(const std::vector<LanguageTexts>& languages, const std::wstring& language) {
    const LanguageTexts* source = nullptr;
    for (const LanguageTexts& texts : languages) {
        const bool isSame = varnhold::EqualsIgnoringCase(texts.code, language);
        if (!isSame && (!source || varnhold::EqualsIgnoringCase(texts.code, L"en"))) {
            source = &texts;
        }
    }
    return source;
}

/// The table that the language's commands are in; empty where there is none.
std::wstring TableOf(const LanguageTexts* texts) {
    return texts && !texts->commands.empty() ? texts->commands.begin()->second.file : std::wstring();
}

/// What stands in UTF-8 starts with these bytes, or with none.
constexpr std::string_view kMark = "\xEF\xBB\xBF";

} // namespace

bool ExtractTexts(const BarcheckOptions& options, std::wstring& message) {
    const InstallationFiles files(options.directory);
    GatheringSink sink;
    if (!GatherConfiguration({options.directory, options.files, {}}, sink)) {
        message = L"a file could not be read, and its texts would seem unused: check it first";
        return false;
    }
    const std::vector<LanguageTexts> languages = ReadLanguages(files, {}, sink);
    const auto own = std::ranges::find_if(languages, [&](const LanguageTexts& texts) {
        return varnhold::EqualsIgnoringCase(texts.code, options.extract);
    });
    const LanguageTexts* const texts = own == languages.end() ? nullptr : &*own;
    if (texts && !texts->isUsable) {
        message = L"a table of this language is broken: mend it first";
        return false;
    }
    const LanguageTexts* const source = SourceOf(languages, options.extract);
    std::wstring path = TableOf(texts);
    std::string table;
    if (path.empty()) { // none of the language's tables has texts of commands yet
        const std::wstring name = L"lang\\" + (texts ? texts->code : options.extract) + L"\\commands.xlf";
        path = files.Find(name).value_or(files.FullPath(name));
    }
    if (!FileOp::FileExist(path)) {
        table = EmptyTable(source ? source->code : options.extract, options.extract);
    } else {
        const std::string bytes = ReadBytes(path);
        const std::size_t mark = bytes.starts_with(kMark) ? kMark.size() : 0;
        if (!varnhold::ReadXmlText(path, table) || bytes.substr(mark) != table) {
            message = files.RelativeName(path) + L" is not in UTF-8: save it so first";
            return false;
        }
    }
    TableCompletion completion{CollectAskedTexts(sink.Elements(), options.directory), {}, {}, {}};
    for (const GatheredElement& gathered : sink.Elements()) {
        completion.keywords.emplace(gathered.element.ValueOf(AttributeUse::Keyword));
    }
    if (source) {
        for (const auto& [key, text] : source->commands) {
            completion.sources.emplace(key, text.text);
        }
    }
    if (texts) {
        for (const auto& [key, text] : texts->commands) {
            if (text.file != path) {
                completion.elsewhere.insert(key);
            }
        }
    }
    CompletionCounts counts;
    if (!CompleteTable(table, completion, counts) || !WriteBytes(path, table)) {
        message = files.RelativeName(path) + L" was not written";
        return false;
    }
    message = files.RelativeName(path) + L": " + std::to_wstring(counts.added) + L" new, " +
              std::to_wstring(counts.kept) + L" kept, " + std::to_wstring(counts.unused) + L" unused";
    return true;
}
