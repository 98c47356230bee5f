#pragma once

#include "config/check/gathered_elements.h"
#include "config/configuration_kind.h"
#include "config/diagnostics.h"

#include <set>
#include <string>
#include <vector>

struct KeptReadings;

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

/// A file that a running program has just loaded.
struct LoadedFile {
    /// What its reader reported and met; at least one element.
    const GatheringSink& gathered;
    /// The language in force; empty: there are no texts.
    std::wstring language;
    /// Keywords that references in it lead to, because the program has registered them.
    std::set<std::wstring> registered;
};

/// Reads the files alone, into the sink. False when one of them could not be loaded.
bool GatherConfiguration(const CheckRequest& request, GatheringSink& sink);

/// Reads the files of an installation as the library does and says all that is wrong with them, each fault once. The
/// findings name files relative to the directory, with "/", and are in the order in which the files are read, each file
/// from its beginning to its end.
std::vector<Diagnostic> CheckConfiguration(const CheckRequest& request);

/// The same of the one file alone, as if all others that the installation has were loaded, too. Findings about what the
/// file needs of a table stand in the table. They name files by full paths and are in no order. What is read of the
/// others is kept for the next file.
std::vector<Diagnostic> CheckLoadedFile(const std::wstring& directory, const LoadedFile& loaded, KeptReadings& kept);
