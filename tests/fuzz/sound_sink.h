#pragma once

#include "config/check/gathered_elements.h"
#include "config/diagnostic_codes.h"
#include "targets.h"

/// Demands of each finding what holds for all of them.
inline void DemandSound(const Diagnostic& finding) {
    Demand(FindDiagnosticCode(finding.code) != nullptr);
    Demand(!finding.text.empty() && !finding.file.empty());
    Demand(finding.position.line >= 1 && finding.position.column >= 1);
    for (const RelatedPlace& place : finding.related) {
        Demand(!place.file.empty() && place.position.line >= 1 && place.position.column >= 1);
    }
}

/// Keeps what readers report, and looks at it.
class SoundSink : public GatheringSink {
public:
    void Report(const Diagnostic& diagnostic) override {
        DemandSound(diagnostic);
        GatheringSink::Report(diagnostic);
    }
};
