#include "config/load_document.h"

#include "config/broken_bytes.h"
#include "config/diagnostic_codes.h"
#include "config/refused_elsewhere.h"
#include "config/suggestion.h"
#include "config/syntax_hint.h"

#include <varnhold/file_op.h>
#include <varnhold/letter_case.h>

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

/// What a server sends in the place of a file that is not there, or that nobody may have.
bool IsWebPage(const CXmlDocumentWrapper& document) {
    varnhold::XmlCursor at(document);
    return varnhold::EqualsIgnoringCase(std::wstring_view(at.GetName()), std::wstring_view(L"html")) &&
           at.ToFirstChild() &&
           (varnhold::EqualsIgnoringCase(std::wstring_view(at.GetName()), std::wstring_view(L"head")) ||
            varnhold::EqualsIgnoringCase(std::wstring_view(at.GetName()), std::wstring_view(L"body")));
}

void ReportWebPage(const CXmlDocumentWrapper& document, ConfigurationKind kind, const FileDiagnostics& diagnostics) {
    const std::wstring expected(NameOf(kind));
    diagnostics.Report(kWrongKind, varnhold::XmlCursor(document).GetPosition(),
                       L"this is a web page in the place of a " + expected + L": nothing in it is built",
                       L"put the " + expected + L" here; a server sends a page where it has no such file");
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
    std::wstring fix = oddity.kind == XmlOddityKind::LooseText ? HintForLooseText(diagnostics.File(), oddity.position)
                       : oddity.kind == XmlOddityKind::BrokenCharacter ? HintForBrokenBytes(diagnostics.File())
                                                                       : L"";
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
    } else if (IsWebPage(document)) {
        ReportWebPage(document, kind, diagnostics);
        diagnostics.StopListening();
    } else {
        ReportRefusedElsewhere(diagnostics);
        ReportOddities(document, diagnostics);
    }
    return isLoaded;
}
