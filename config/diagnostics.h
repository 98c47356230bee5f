#pragma once

#include <varnhold/xml.h>

#include <string>
#include <string_view>

enum class DiagnosticSeverity { Warning, Error };

/// Something in a configuration file that a reader skipped or that has no effect.
struct Diagnostic {
    std::wstring file;
    varnhold::TextPosition position;
    DiagnosticSeverity severity = DiagnosticSeverity::Warning;
    /// Stands for the kind of problem, in words joined by hyphens; does not change between versions.
    std::string_view code;
    std::wstring text;
};

/// Takes what the readers report.
class DiagnosticsSink {
public:
    virtual ~DiagnosticsSink() = default;
    /// False: Report would drop everything, so readers need not look for problems.
    virtual bool IsListening() const noexcept { return true; }
    virtual void Report(const Diagnostic& diagnostic) = 0;
};

/// The library's own sink: it drops everything.
DiagnosticsSink& DroppedDiagnostics();

/// A sink together with the file that is being read.
class FileDiagnostics {
public:
    FileDiagnostics(std::wstring file, DiagnosticsSink& sink) : m_file(std::move(file)), m_sink(sink) {}

    bool IsListening() const noexcept { return m_sink.IsListening(); }
    void Warn(varnhold::TextPosition position, std::string_view code, std::wstring text) const;
    void Fail(varnhold::TextPosition position, std::string_view code, std::wstring text) const;

private:
    std::wstring m_file;
    DiagnosticsSink& m_sink;
};

/// For the library's reading of a single element: whatever is wrong with it is not reported.
FileDiagnostics Unreported();
