#include "varnhold/language.h"

#include "src/file_system.h"
#include "src/language_tables.h"
#include "varnhold/file_op.h"
#include "varnhold/letter_case.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>
#include <utility>

namespace {

using varnhold::EntryKind;
using varnhold::LanguageTables;

struct State {
    std::mutex mutex;
    std::shared_ptr<const LanguageTables> tables; // never changed once it is here
    std::wstring language;
    CMultiLanguageMgr::ProblemSink sink;
    std::vector<std::pair<int, CMultiLanguageMgr::ChangeListener>> listeners;
    int lastListener = 0;
};

State& GetState() {
    static State state;
    return state;
}

std::shared_ptr<const LanguageTables> GetTables() {
    const std::lock_guard<std::mutex> lock(GetState().mutex);
    return GetState().tables;
}

CMultiLanguageMgr::ProblemSink GetSink() {
    const std::lock_guard<std::mutex> lock(GetState().mutex);
    return GetState().sink;
}

void Report(const std::wstring& problem) {
    if (const CMultiLanguageMgr::ProblemSink sink = GetSink()) {
        sink(problem);
    }
}

constexpr int kTooltipNumber = 0;

/// Null where there is no entry.
const std::wstring* FindText(const LanguageTables& tables, std::string_view section, std::string_view keyword,
                             int number) {
    if (number < kTooltipNumber) {
        return tables.Find(section, keyword);
    }
    const std::string suffix = number == kTooltipNumber ? ".tooltip" : '.' + std::to_string(number);
    std::array<char, 128> room;
    if (keyword.size() + suffix.size() > room.size()) {
        return tables.Find(section, std::string(keyword) + suffix);
    }
    const auto end = std::copy(suffix.begin(), suffix.end(), std::copy(keyword.begin(), keyword.end(), room.begin()));
    return tables.Find(section, {room.begin(), end});
}

/// The text of a missing entry, for which there is no function to ask.
void TakeDefault(std::string_view keyword, int number, std::wstring& text) {
    if (CTranslationSection::ShowsMissingKey(number)) {
        string2wstring(keyword, text);
    } else {
        text.clear();
    }
}

bool IsTableName(const std::wstring& name) {
    constexpr std::wstring_view extension = L".xlf";
    return name.size() > extension.size() &&
           varnhold::EqualsIgnoringCase(std::wstring_view(name).substr(name.size() - extension.size()), extension);
}

/// False when the installation directory is unknown.
bool GetLanguageFolder(std::wstring& path) {
    if (!FileOp::GetAppPath(path)) {
        return false;
    }
    path += L"lang";
    path += varnhold::kSeparator;
    return true;
}

std::vector<std::wstring> ListTables(const std::wstring& folder) {
    std::vector<std::wstring> names = varnhold::ListFolder(folder, EntryKind::Files);
    names.erase(std::remove_if(names.begin(), names.end(), [](const std::wstring& name) { return !IsTableName(name); }),
                names.end());
    return names;
}

/// Reads all tables of a language; null when there are none or one is broken. `code` becomes the folder's spelling.
std::shared_ptr<const LanguageTables> ReadTables(std::wstring& code) {
    std::wstring folder;
    if (!GetLanguageFolder(folder)) {
        Report(L"the installation directory is unknown");
        return nullptr;
    }
    // Looked up among the folders that are there: a code never becomes part of a path by itself.
    const std::vector<std::wstring> folders = varnhold::ListFolder(folder, EntryKind::Folders);
    const auto found = std::find_if(folders.begin(), folders.end(),
                                    [&](const std::wstring& name) { return varnhold::EqualsIgnoringCase(name, code); });
    const std::wstring path = folder + (found == folders.end() ? code : *found) + varnhold::kSeparator;
    const std::vector<std::wstring> names = found == folders.end() ? std::vector<std::wstring>() : ListTables(path);
    if (names.empty()) {
        Report(path + L": there are no tables of this language");
        return nullptr;
    }
    code = *found;
    const auto tables = std::make_shared<LanguageTables>();
    const CMultiLanguageMgr::ProblemSink sink = GetSink();
    bool complete = true;
    for (const std::wstring& name : names) {
        complete = tables->AddFile(path + name, code, sink) && complete;
    }
    return complete ? tables : nullptr;
}

void TellListeners() {
    std::vector<int> numbers;
    {
        const std::lock_guard<std::mutex> lock(GetState().mutex);
        for (const auto& entry : GetState().listeners) {
            numbers.push_back(entry.first);
        }
    }
    for (const int number : numbers) {
        CMultiLanguageMgr::ChangeListener listener;
        {
            const std::lock_guard<std::mutex> lock(GetState().mutex);
            for (const auto& entry : GetState().listeners) {
                if (entry.first == number) {
                    listener = entry.second;
                }
            }
        }
        if (listener) {
            listener();
        }
    }
}

} // namespace

std::wstring CMultiLanguageMgr::translation(const std::wstring& text, const std::string& section, int number) {
    return translationW(wstring2String(text), number, section);
}

std::wstring CMultiLanguageMgr::translation(const wchar_t* text, const std::string& section, int number) {
    return translation(std::wstring(text ? text : L""), section, number);
}

std::wstring CMultiLanguageMgr::translationW(const std::string& keyword, int number, const std::string& section,
                                             const Fallback& fallback) {
    if (const std::shared_ptr<const LanguageTables> tables = GetTables()) {
        if (const std::wstring* text = FindText(*tables, section, keyword, number)) {
            return *text;
        }
    }
    if (fallback) {
        return fallback(keyword, number, section);
    }
    std::wstring text;
    TakeDefault(keyword, number, text);
    return text;
}

CTranslationSection::CTranslationSection(std::string_view section) : m_tables(GetTables()), m_section(section) {}

CTranslationSection::~CTranslationSection() = default;

void CTranslationSection::Translate(std::string_view keyword, int number, std::wstring& text) const {
    if (const std::wstring* found = Find(keyword, number)) {
        text = *found;
    } else {
        TakeDefault(keyword, number, text);
    }
}

const std::wstring* CTranslationSection::Find(std::string_view keyword, int number) const {
    return m_tables ? FindText(*m_tables, m_section, keyword, number) : nullptr;
}

bool CMultiLanguageMgr::SetLanguage(const std::wstring& code) {
    std::wstring language = code;
    std::shared_ptr<const LanguageTables> tables;
    if (!code.empty()) {
        tables = ReadTables(language);
        if (!tables) {
            return false;
        }
    }
    {
        const std::lock_guard<std::mutex> lock(GetState().mutex);
        GetState().tables.swap(tables);
        GetState().language = language;
    }
    tables.reset(); // the old ones, outside the lock
    TellListeners();
    return true;
}

std::wstring CMultiLanguageMgr::GetLanguage() {
    const std::lock_guard<std::mutex> lock(GetState().mutex);
    return GetState().language;
}

std::vector<std::wstring> CMultiLanguageMgr::Languages() {
    std::vector<std::wstring> codes;
    std::wstring folder;
    if (!GetLanguageFolder(folder)) {
        return codes;
    }
    for (std::wstring& code : varnhold::ListFolder(folder, EntryKind::Folders)) {
        if (!ListTables(folder + code).empty()) {
            codes.push_back(std::move(code));
        }
    }
    return codes;
}

int CMultiLanguageMgr::AddChangeListener(const ChangeListener& listener) {
    const std::lock_guard<std::mutex> lock(GetState().mutex);
    GetState().listeners.emplace_back(++GetState().lastListener, listener);
    return GetState().lastListener;
}

void CMultiLanguageMgr::RemoveChangeListener(int number) {
    const std::lock_guard<std::mutex> lock(GetState().mutex);
    auto& listeners = GetState().listeners;
    listeners.erase(std::remove_if(listeners.begin(), listeners.end(),
                                   [number](const auto& entry) { return entry.first == number; }),
                    listeners.end());
}

CMultiLanguageMgr::ProblemSink CMultiLanguageMgr::SetProblemSink(const ProblemSink& sink) {
    const std::lock_guard<std::mutex> lock(GetState().mutex);
    return std::exchange(GetState().sink, sink);
}
