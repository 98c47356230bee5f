#include "config/check/gathered_elements.h"

void ReportTogether(DiagnosticsSink& sink, const std::wstring& file, varnhold::TextPosition position,
                    std::string_view code, std::wstring text, std::wstring fix, std::vector<RelatedPlace> related) {
    FileDiagnostics(file, sink).Report(code, position, std::move(text), std::move(fix), std::move(related));
}

varnhold::TextPosition PlaceOf(const MetElement& element, AttributeUse use) {
    const MetAttribute* const attribute = element.Find(use);
    return attribute ? attribute->position : element.position;
}

RelatedPlace PlaceOf(const GatheredElement& gathered, AttributeUse use, std::wstring text) {
    return {*gathered.file, PlaceOf(gathered.element, use), std::move(text)};
}
