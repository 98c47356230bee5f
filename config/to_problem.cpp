#include "config/to_problem.h"

ConfigurationProblem ToProblem(const Diagnostic& diagnostic) {
    ConfigurationProblem problem{diagnostic.file,
                                 diagnostic.position.line,
                                 diagnostic.position.column,
                                 static_cast<ConfigurationProblem::Severity>(diagnostic.severity),
                                 std::string(diagnostic.code),
                                 diagnostic.text,
                                 diagnostic.fix,
                                 {}};
    for (const RelatedPlace& place : diagnostic.related) {
        problem.related.push_back({place.file, place.position.line, place.position.column, place.text});
    }
    return problem;
}
static_assert(static_cast<int>(DiagnosticSeverity::Note) == static_cast<int>(ConfigurationProblem::Severity::Note));
static_assert(static_cast<int>(DiagnosticSeverity::Error) == static_cast<int>(ConfigurationProblem::Severity::Error));
