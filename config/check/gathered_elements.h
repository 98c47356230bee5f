#pragma once

#include "config/diagnostics.h"
#include "config/met_element.h"

#include <memory>
#include <set>
#include <vector>

/// An element of one of the files that are checked together.
struct GatheredElement {
    /// The file's full path; lives as long as the sink that gathered.
    const std::wstring* file = nullptr;
    MetElement element;
};

/// Keeps what readers report and meet, in reading order.
class GatheringSink : public DiagnosticsSink {
public:
    GatheringSink() = default;
    GatheringSink(GatheringSink&&) = default; // elements point into the sink
    GatheringSink& operator=(GatheringSink&&) = default;

    void Report(const Diagnostic& diagnostic) override { m_findings.push_back(diagnostic); }
    void Meet(const std::wstring& file, const MetElement& element) override {
        m_elements.push_back({&*m_files.insert(file).first, element});
    }

    const std::vector<GatheredElement>& Elements() const { return m_elements; }
    /// From now on all elements of the file are passed over.
    void PassOver(const std::wstring& file);
    /// The value of the element's attribute counts as reported.
    void MarkReported(std::size_t index, AttributeUse use);
    /// Puts all elements from that one on before the others, and returns how many they are.
    std::size_t PutFirst(std::size_t from);
    std::vector<Diagnostic>& Findings() { return m_findings; }
    const std::vector<Diagnostic>& Findings() const { return m_findings; }

private:
    std::set<std::wstring> m_files;
    std::vector<GatheredElement> m_elements;
    std::vector<Diagnostic> m_findings;
};

/// A file with many elements at a wrong depth lacks a level, or has one too many: that is one fault. Of what was
/// reported about how its elements stand the first word about that stays, and its elements are passed over.
void JoinShiftedLevels(GatheringSink& sink);

/// The same for the problems of several elements together.
void ReportTogether(DiagnosticsSink& sink, const std::wstring& file, varnhold::TextPosition position,
                    std::string_view code, std::wstring text, std::wstring fix = {},
                    std::vector<RelatedPlace> related = {});

/// Where the attribute stands, or the element when it has none.
varnhold::TextPosition PlaceOf(const MetElement& element, AttributeUse use);
RelatedPlace PlaceOf(const GatheredElement& gathered, AttributeUse use, std::wstring text);
