#include "config/diagnostics.h"

#include "config/diagnostic_codes.h"

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

void FileDiagnostics::Report(std::string_view code, varnhold::TextPosition position, std::wstring text,
                             std::wstring fix, std::vector<RelatedPlace> related) const {
    if (IsListening()) {
        m_sink.Report({m_file, position, SeverityOf(code), code, std::move(text), std::move(fix), std::move(related)});
    }
}
