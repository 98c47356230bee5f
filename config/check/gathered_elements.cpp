#include "config/check/gathered_elements.h"

#include <algorithm>
#include <iterator>
#include <map>

void GatheringSink::PassOver(const std::wstring& file) {
    for (GatheredElement& gathered : m_elements) {
        gathered.element.isPassedOver = gathered.element.isPassedOver || *gathered.file == file;
    }
}

void GatheringSink::MarkReported(std::size_t index, AttributeUse use) { m_elements[index].element.MarkReported(use); }

std::size_t GatheringSink::PutFirst(std::size_t from) {
    std::rotate(m_elements.begin(), m_elements.begin() + static_cast<std::ptrdiff_t>(from), m_elements.end());
    return m_elements.size() - from;
}

void JoinShiftedLevels(GatheringSink& sink) {
    constexpr std::size_t many = 3;
    constexpr std::string_view telling = "wrong-depth";
    constexpr std::string_view ofLevels[] = {"missing-caption", "missing-type", "missing-keyword", "children-lost",
                                             "empty-group",     "row-keyword",  "no-attributes",   "inherited-value"};
    std::map<std::wstring, std::size_t> shifted;
    for (const Diagnostic& finding : sink.Findings()) {
        shifted[finding.file] += finding.code == telling ? 1 : 0;
    }
    for (const auto& [file, count] : shifted) {
        if (count < many) {
            continue;
        }
        bool isTold = false;
        std::erase_if(sink.Findings(), [&, &file = file](const Diagnostic& finding) {
            const bool isFirst = !isTold && finding.file == file && finding.code == telling;
            isTold = isTold || isFirst;
            return finding.file == file && !isFirst &&
                   (finding.code == telling || std::ranges::find(ofLevels, finding.code) != std::end(ofLevels));
        });
        sink.PassOver(file);
    }
}

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
