#include "config/load_document.h"

#include "config/diagnostic_codes.h"
#include "config/suggestion.h"
#include "config/syntax_hint.h"

#include <varnhold/file_op.h>

#include <algorithm>
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
        ReportLateDeclaration(diagnostics);
        ReportOddities(document, diagnostics);
    }
    return isLoaded;
}

void ReportLateDeclaration(const FileDiagnostics& diagnostics) {
    std::string text;
    if (!varnhold::ReadXmlText(diagnostics.File(), text)) {
        return;
    }
    constexpr std::string_view declaration = "<?xml ";
    const std::string_view before = std::string_view(text).substr(0, text.find_first_not_of(" \t\r\n"));
    if (before.empty() || !std::string_view(text).substr(before.size()).starts_with(declaration)) {
        return;
    }
    const std::size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0
    diagnostics.Report(
        "xml-syntax", {1 + static_cast<std::size_t>(std::ranges::count(before, '\n')), 1 + before.size() - lineStart},
        L"something stands before the declaration: here it is passed over, elsewhere the file is refused",
        L"let <?xml begin the file, without a blank or a line before it");
}
