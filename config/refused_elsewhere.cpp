#include "config/refused_elsewhere.h"

#include "config/suggestion.h"

#include <varnhold/letter_case.h>
#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

constexpr std::string_view kDeclaration = "<?xml ";

void ReportLateDeclaration(std::string_view text, const FileDiagnostics& diagnostics) {
    const std::string_view before = text.substr(0, text.find_first_not_of(" \t\r\n"));
    if (before.empty() || !text.substr(before.size()).starts_with(kDeclaration)) {
        return;
    }
    const std::size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0
    diagnostics.Report(
        "xml-syntax", {1 + static_cast<std::size_t>(std::ranges::count(before, '\n')), 1 + before.size() - lineStart},
        L"something stands before the declaration: here it is passed over, elsewhere the file is refused",
        L"let <?xml begin the file, without a blank or a line before it");
}

/// What the first bytes of a file show of its encoding, before anything in it can be read.
struct FirstBytes {
    std::string_view bytes;
    std::wstring_view encoding;
    bool isMark;
    /// In small letters.
    std::array<std::string_view, 3> names;
};
using namespace std::string_view_literals;
constexpr FirstBytes kFirstBytes[] = {
    {"\xEF\xBB\xBF"sv, L"UTF-8", true, {"utf-8", "utf8"}},
    {"\xFF\xFE"sv, L"UTF-16", true, {"utf-16", "utf16", "utf-16le"}},
    {"\xFE\xFF"sv, L"UTF-16", true, {"utf-16", "utf16", "utf-16be"}},
    {"<\0"sv, L"UTF-16", false, {"utf-16", "utf16", "utf-16le"}},
    {"\0<"sv, L"UTF-16", false, {"utf-16", "utf16", "utf-16be"}},
};

/// Null for a file that begins with its declaration alone, byte by byte.
const FirstBytes* FindFirstBytes(const std::wstring& fullPath) {
#ifdef _WIN32
    const std::filesystem::path native(fullPath);
#else
    const std::filesystem::path native(wstring2String(fullPath));
#endif
    std::array<char, 3> read{};
    std::ifstream stream(native, std::ios::binary);
    stream.read(read.data(), read.size());
    const std::string_view bytes(read.data(), static_cast<std::size_t>(stream.gcount()));
    const auto* const found =
        std::ranges::find_if(kFirstBytes, [bytes](const FirstBytes& one) { return bytes.starts_with(one.bytes); });
    return found == std::end(kFirstBytes) ? nullptr : found;
}

/// Where the name of the encoding begins and ends in a text that a declaration begins; nothing where it names none.
std::string_view DeclaredEncoding(std::string_view text) {
    constexpr std::string_view attribute = "encoding";
    if (!text.starts_with(kDeclaration)) {
        return {};
    }
    const std::string_view declaration = text.substr(0, text.find("?>"));
    const std::size_t name = declaration.find(attribute);
    const std::size_t open = name == declaration.npos ? name : declaration.find_first_of("\"'", name);
    if (open == declaration.npos) {
        return {};
    }
    const std::size_t close = declaration.find(declaration[open], open + 1);
    return close == declaration.npos ? std::string_view() : declaration.substr(open + 1, close - open - 1);
}

void ReportForeignEncoding(std::string_view text, const FileDiagnostics& diagnostics) {
    const std::string_view declared = DeclaredEncoding(text);
    const FirstBytes* const first = declared.empty() ? nullptr : FindFirstBytes(diagnostics.File());
    const bool isForeign = first && std::ranges::none_of(first->names, [declared](std::string_view name) {
                               return varnhold::EqualsIgnoringCase(declared, name);
                           });
    if (!isForeign) {
        return;
    }
    const std::wstring encoding(first->encoding);
    const std::size_t place = static_cast<std::size_t>(declared.data() - text.data());
    diagnostics.Report("xml-encoding", {1, 1 + place},
                       L"the declaration says " + Quoted(string2wstring(std::string(declared))) + L", and " +
                           (first->isMark ? L"the file's byte-order mark says " : L"its first bytes say ") + encoding +
                           L", which counts; other programs refuse the file",
                       encoding == L"UTF-8" ? L"write encoding=\"UTF-8\""
                                            : L"save the file as UTF-8, or write encoding=\"" + encoding + L"\"");
}

/// Where the text at an offset stands.
varnhold::TextPosition PositionOf(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, offset);
    const std::size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0
    const auto isStart = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return {1 + static_cast<std::size_t>(std::ranges::count(before, '\n')),
            1 + static_cast<std::size_t>(std::ranges::count_if(before.substr(lineStart), isStart))};
}

/// What is not read as markup, and where it ends. The dashes that begin a comment within another one are left to those
/// who say that none can stand there.
struct Section {
    std::string_view opening;
    std::string_view closing;
    bool isComment;
};
constexpr Section kSections[] = {{"<!--", "-->", true}, {"<![CDATA[", "]]>", false}, {"<?", "?>", false}};

void ReportDashes(std::string_view text, const FileDiagnostics& diagnostics) {
    constexpr std::string_view dashes = "--";
    for (std::size_t at = text.find('<'); at != text.npos; at = text.find('<', at)) {
        const std::string_view rest = text.substr(at);
        const auto* const section =
            std::ranges::find_if(kSections, [rest](const Section& one) { return rest.starts_with(one.opening); });
        if (section == std::end(kSections)) {
            ++at;
            continue;
        }
        const std::size_t start = at + section->opening.size();
        const std::size_t end = std::min(text.find(section->closing, start), text.size());
        const std::string_view inside =
            text.substr(start, std::min(end + 1, text.size()) - start); // with "-" of "--->"
        const std::size_t found = section->isComment ? inside.find(dashes) : inside.npos;
        if (found != inside.npos && inside.find(kSections[0].opening) == inside.npos) {
            diagnostics.Report("xml-syntax", PositionOf(text, start + found),
                               L"two dashes stand within a comment: here they are passed over, elsewhere the file is "
                               L"refused",
                               L"write one, or others such as =");
            return;
        }
        at = end;
    }
}

} // namespace

void ReportRefusedElsewhere(const FileDiagnostics& diagnostics) {
    std::string text;
    if (varnhold::ReadXmlText(diagnostics.File(), text)) {
        ReportLateDeclaration(text, diagnostics);
        ReportForeignEncoding(text, diagnostics);
        ReportDashes(text, diagnostics);
    }
}
