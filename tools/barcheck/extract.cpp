#include "extract.h"

#include "config/check/configuration_check.h"
#include "config/check/file_kind.h"
#include "config/check/installation_files.h"
#include "config/check/language_texts.h"
#include "config/check/translation_extract.h"

#include <varnhold/letter_case.h>
#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

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

/// As it was, where it cannot be written as a whole.
bool WriteBytes(const std::wstring& path, const std::string& bytes) {
    std::error_code error;
    fs::create_directories(NativePath(path).parent_path(), error);
    const fs::path made = NativePath(path + L".new");
    std::ofstream stream(made, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    bool isWritten = stream.good();
    if (isWritten) {
        fs::rename(made, NativePath(path), error);
        isWritten = !error;
    }
    if (!isWritten) {
        fs::remove(made, error);
    }
    return isWritten;
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

/// What stands in UTF-8 starts with these bytes, or with none.
constexpr std::string_view kMark = "\xEF\xBB\xBF";

struct Table {
    std::wstring path;
    std::string bytes;
    /// In UTF-8, without mark; empty where the file does not exist.
    std::string text;
    bool hasMark = false;
    std::vector<std::wstring> keys;
};

/// A table's file; false when it is not in UTF-8, and what is written into it might not be what its encoding says.
bool ReadTable(const std::wstring& path, Table& table) {
    table.path = path;
    table.bytes = ReadBytes(path);
    table.hasMark = table.bytes.starts_with(kMark);
    const bool isUtf8 =
        varnhold::ReadXmlText(path, table.text) && table.bytes.substr(table.hasMark ? kMark.size() : 0) == table.text;
    table.keys = CommandKeysOf(table.text);
    return isUtf8;
}

/// The tables of the language that texts of commands are in, or the one that they are to be written into. False, with
/// a message, when one of them is not in UTF-8.
bool ReadTables(const InstallationFiles& files, const std::wstring& code, std::vector<Table>& tables,
                std::wstring& message) {
    const std::wstring folder = L"lang\\" + code + L"\\";
    const auto isRefused = [&](const std::wstring& path, Table& table) {
        if (ReadTable(path, table) || table.keys.empty()) {
            return false;
        }
        message = files.RelativeName(path) + L" is not in UTF-8: save it so first";
        return true;
    };
    for (const std::wstring& name : files.FilesIn(L"lang\\" + code)) {
        if (!IsTableName(name)) {
            continue;
        }
        Table table;
        if (isRefused(*files.Find(folder + name), table)) {
            return false;
        }
        if (!table.keys.empty()) {
            tables.push_back(std::move(table));
        }
    }
    if (!tables.empty()) {
        return true;
    }
    const std::wstring name = folder + L"commands.xlf";
    Table& table = tables.emplace_back();
    if (const std::optional<std::wstring> path = files.Find(name)) {
        if (!ReadTable(*path, table)) {
            message = files.RelativeName(*path) + L" is not in UTF-8: save it so first";
            return false;
        }
    } else {
        table.path = files.FullPath(name);
    }
    return true;
}

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
    std::vector<Table> tables;
    if (!ReadTables(files, texts ? texts->code : options.extract, tables, message)) {
        return false;
    }
    if (tables.front().text.empty()) {
        tables.front().text = EmptyTable(source ? source->code : options.extract, options.extract);
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
    std::vector<std::vector<std::wstring>> keys;
    std::ranges::transform(tables, std::back_inserter(keys), &Table::keys);
    const std::vector<std::size_t> tableOf = TablesForTexts(completion.asked, keys);
    // Nothing is written until everything can be.
    for (std::size_t i = 0; i < tables.size(); ++i) {
        Table& table = tables[i];
        completion.elsewhere.clear();
        for (std::size_t text = 0; text < tableOf.size(); ++text) {
            if (tableOf[text] != i) {
                completion.elsewhere.insert(completion.asked[text].key);
            }
        }
        CompletionCounts counts;
        if (!CompleteTable(table.text, completion, counts)) {
            message = files.RelativeName(table.path) + L" was not written";
            return false;
        }
        message += (i == 0 ? L"" : L"\n") + files.RelativeName(table.path) + L": " + std::to_wstring(counts.added) +
                   L" new, " + std::to_wstring(counts.kept) + L" kept, " + std::to_wstring(counts.unused) + L" unused";
    }
    for (const Table& table : tables) {
        const std::string bytes = std::string(table.hasMark ? kMark : "") + table.text;
        if (bytes != table.bytes && !WriteBytes(table.path, bytes)) {
            message = files.RelativeName(table.path) + L" was not written";
            return false;
        }
    }
    return true;
}
