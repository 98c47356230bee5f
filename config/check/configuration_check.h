#pragma once

#include "config/check/gathered_elements.h"
#include "config/configuration_kind.h"
#include "config/diagnostics.h"

#include <string>
#include <vector>

/// What is to be checked.
struct CheckRequest {
    /// The installation directory, with its closing separator.
    std::wstring directory;
    /// Relative to it, in the order in which they are loaded. None: cfg\ribbon*.xml, cfg\status*.xml, cfg\menu*.xml,
    /// cfg\toolbar*.xml and cfg\keys*.xml, each in name order. Translation tables may be among them: then nothing is
    /// said of others, and where there is nothing else, nothing of the configuration files either.
    std::vector<std::wstring> files;
    /// The one language whose tables count; empty: all that are there.
    std::wstring language;
};

/// Reads the files alone, into the sink. False when one of them could not be loaded.
bool GatherConfiguration(const CheckRequest& request, GatheringSink& sink);

/// Reads the files of an installation as the library does and says all that is wrong with them, each fault once. The
/// findings name files relative to the directory, with "/", and are in the order in which the files are read, each file
/// from its beginning to its end.
std::vector<Diagnostic> CheckConfiguration(const CheckRequest& request);
