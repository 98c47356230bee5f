#include "config/diagnostics.h"

namespace {

class DroppingSink : public DiagnosticsSink {
public:
    bool IsListening() const noexcept override { return false; }
    void Report(const Diagnostic&) override {}
};

} // namespace

DiagnosticsSink& DroppedDiagnostics() {
    static DroppingSink sink;
    return sink;
}

FileDiagnostics Unreported() { return FileDiagnostics({}, DroppedDiagnostics()); }

void FileDiagnostics::Warn(varnhold::TextPosition position, std::string_view code, std::wstring text) const {
    if (IsListening()) {
        m_sink.Report({m_file, position, DiagnosticSeverity::Warning, code, std::move(text)});
    }
}

void FileDiagnostics::Fail(varnhold::TextPosition position, std::string_view code, std::wstring text) const {
    if (IsListening()) {
        m_sink.Report({m_file, position, DiagnosticSeverity::Error, code, std::move(text)});
    }
}
