#pragma once

#include "config/diagnostics.h"
#include "configuration_problems.h"

/// What a host hears of what a reader has reported.
ConfigurationProblem ToProblem(const Diagnostic& diagnostic);
