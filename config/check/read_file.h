#pragma once

#include "config/configuration_kind.h"
#include "config/diagnostics.h"

#include <string>

/// Reads a configuration file to its end as the builder of its bars does, and builds nothing. False when it cannot be
/// loaded.
bool ReadConfigurationFile(const std::wstring& fullPath, ConfigurationKind kind, DiagnosticsSink& sink);
