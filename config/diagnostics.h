#pragma once

#include <varnhold/xml.h>

#include <string>
#include <string_view>
#include <vector>

struct MetElement;

enum class DiagnosticSeverity { Note, Warning, Error };

/// Another place that has to do with a problem.
struct RelatedPlace {
    std::wstring file;
    varnhold::TextPosition position;
    std::wstring text;
};

/// Something in a configuration file that a reader skipped, that has no effect or another one than it seems to have.
struct Diagnostic {
    std::wstring file;
    varnhold::TextPosition position;
    DiagnosticSeverity severity = DiagnosticSeverity::Warning;
    /// One of DiagnosticCodes(): stands for the kind of problem and does not change between versions.
    std::string_view code;
    std::wstring text;
    /// How to mend it, in plain words; may be empty.
    std::wstring fix;
    std::vector<RelatedPlace> related;
};

/// Takes what the readers report.
class DiagnosticsSink {
public:
    virtual ~DiagnosticsSink() = default;
    /// False: Report would drop everything, so readers need not look for problems.
    virtual bool IsListening() const noexcept { return true; }
    virtual void Report(const Diagnostic& diagnostic) = 0;
    /// An element of a file, after what is wrong with it by itself was reported. Good until the call returns.
    virtual void Meet(const std::wstring& /*file*/, const MetElement& /*element*/) {}
};

/// The library's own sink: it drops everything.
DiagnosticsSink& DroppedDiagnostics();

/// A sink together with the file that is being read.
class FileDiagnostics {
public:
    FileDiagnostics(std::wstring file, DiagnosticsSink& sink)
        : m_file(std::move(file)), m_sink(sink), m_isListening(sink.IsListening()) {}

    bool IsListening() const noexcept { return m_isListening; }
    /// For a file of which everything has been said: from now on the sink hears nothing of it.
    void StopListening() noexcept { m_isListening = false; }
    const std::wstring& File() const noexcept { return m_file; }
    /// The severity is the code's own.
    void Report(std::string_view code, varnhold::TextPosition position, std::wstring text, std::wstring fix = {},
                std::vector<RelatedPlace> related = {}) const;
    void Meet(const MetElement& element) const { m_sink.Meet(m_file, element); }

private:
    std::wstring m_file;
    DiagnosticsSink& m_sink;
    bool m_isListening;
};

/// For the library's reading of a single element: whatever is wrong with it is not reported.
FileDiagnostics Unreported();
