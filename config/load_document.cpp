#include "config/load_document.h"

#include "config/diagnostic_codes.h"
#include "config/suggestion.h"
#include "config/syntax_hint.h"

#include <varnhold/file_op.h>
#include <varnhold/letter_case.h>
#include <varnhold/strings.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

using varnhold::TextPosition;
using varnhold::XmlError;
using varnhold::XmlOddity;
using varnhold::XmlOddityKind;

std::string_view CodeOf(XmlError error, const std::wstring& fullPath) {
    switch (error) {
    case XmlError::Empty:
        return "empty-file";
    case XmlError::Encoding:
        return "xml-encoding";
    case XmlError::Syntax:
        return "xml-syntax";
    default:
        return FileOp::FileExist(fullPath) ? "unreadable-file" : "missing-file";
    }
}

struct OddityText {
    XmlOddityKind kind;
    std::string_view code;
    const wchar_t* text;
    const wchar_t* fix;
};
constexpr OddityText kOddities[] = {
    {XmlOddityKind::DocumentType, "xml-doctype", L"the document type definition is skipped, with its entities",
     L"remove it"},
    {XmlOddityKind::BrokenCharacter, "xml-encoding",
     L"from here on there are bytes that the file's encoding does not have",
     L"save the file in the encoding that its first line names, best UTF-8"},
    {XmlOddityKind::LooseText, "stray-text", L"this text belongs to no element and is skipped",
     L"is a \"<\" missing? otherwise make it a comment"},
    {XmlOddityKind::UnknownReference, "xml-reference", L"\"&\" begins no reference that is known; it stays as it is",
     L"write &amp; for the sign itself"},
    {XmlOddityKind::BareMarkup, "xml-syntax",
     L"\"<\" stands in a value; here it counts as a sign, elsewhere the file is refused",
     L"write &lt; for the sign itself, or close the value before it"},
};

void ReportOddities(const CXmlDocumentWrapper& document, const FileDiagnostics& diagnostics) {
    for (const XmlOddity& oddity : document.FindOddities()) {
        ReportOddity(oddity, diagnostics);
    }
    const varnhold::XmlCursor root(document);
    if (!root.HasChildren()) {
        diagnostics.Report("empty-file", root.GetPosition(),
                           L"there is no element in the document element; nothing is built");
    }
}

void ReportKind(const CXmlDocumentWrapper& document, ConfigurationKind kind, ConfigurationKind other,
                const FileDiagnostics& diagnostics) {
    const std::wstring written(NameOf(other));
    diagnostics.Report(kWrongKind, varnhold::XmlCursor(document).GetPosition(),
                       L"this is a " + written + L" in the place of a " + std::wstring(NameOf(kind)) +
                           L": nothing in it is built as it is meant",
                       L"put the " + std::wstring(NameOf(kind)) + L" here; the name of a " + written +
                           L" begins with " + Quoted(FileNameStart(other)));
}

/// Where no place is known it is the beginning of the file.
TextPosition PlaceOf(const CXmlDocumentWrapper& document) {
    return {std::max<std::size_t>(1, document.GetErrorLine()), std::max<std::size_t>(1, document.GetErrorColumn())};
}

void ReportError(const CXmlDocumentWrapper& document, const std::wstring& fullPath,
                 const FileDiagnostics& diagnostics) {
    SyntaxHint hint{PlaceOf(document), {}};
    if (document.GetError() == XmlError::Syntax) {
        hint = HintForSyntax(fullPath, hint.position, document.GetErrorReason());
    }
    diagnostics.Report(CodeOf(document.GetError(), fullPath), hint.position,
                       hint.text.empty() ? document.GetErrorReason() : hint.text, hint.fix);
}

} // namespace

void ReportOddity(const XmlOddity& oddity, const FileDiagnostics& diagnostics) {
    const auto* const found = std::ranges::find(kOddities, oddity.kind, &OddityText::kind);
    std::wstring fix =
        oddity.kind == XmlOddityKind::LooseText ? HintForLooseText(diagnostics.File(), oddity.position) : L"";
    if (fix.empty()) {
        fix = found->fix;
    }
    diagnostics.Report(found->code, oddity.position, found->text, std::move(fix));
}

bool LoadDocument(const std::wstring& fullPath, ConfigurationKind kind, FileDiagnostics& diagnostics,
                  CXmlDocumentWrapper& document) {
    const bool isLoaded = document.Load(fullPath);
    if (!diagnostics.IsListening()) {
        return isLoaded;
    }
    if (!isLoaded) {
        ReportError(document, fullPath, diagnostics);
    } else if (const auto other = OtherKindOf(varnhold::XmlCursor(document), kind)) {
        ReportKind(document, kind, *other, diagnostics);
        diagnostics.StopListening();
    } else {
        ReportDeclaration(diagnostics);
        ReportOddities(document, diagnostics);
    }
    return isLoaded;
}

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

} // namespace

void ReportDeclaration(const FileDiagnostics& diagnostics) {
    std::string text;
    if (varnhold::ReadXmlText(diagnostics.File(), text)) {
        ReportLateDeclaration(text, diagnostics);
        ReportForeignEncoding(text, diagnostics);
    }
}
