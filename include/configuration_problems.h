#pragma once

#include "barwright_api.h"

#include <boost/function.hpp>

#include <cstddef>
#include <string>
#include <vector>

/// Something in a configuration file that the library passes over without a word: it is ignored, or has another effect
/// than it seems to have. docs/diagnostics.md tells the codes.
struct ConfigurationProblem {
    enum class Severity { Note, Warning, Error };

    /// Another place that has to do with it.
    struct Place {
        std::wstring file;
        std::size_t line = 1;
        std::size_t column = 1;
        std::wstring text;
    };

    /// The full path; lines and columns count from 1, columns in characters.
    std::wstring file;
    std::size_t line = 1;
    std::size_t column = 1;
    Severity severity = Severity::Warning;
    /// Stands for the kind of problem and does not change between versions.
    std::string code;
    std::wstring text;
    /// How to mend it, in plain words; may be empty.
    std::wstring fix;
    std::vector<Place> related;
};

/// Takes the problems of a file, one by one in the order of their places, when the Load of a builder (CAddRibbonBar,
/// CDynMenuCreater, CDynToolBarCreater) ends, in its thread. May not throw, and may not load anything itself.
typedef boost::function<void(const ConfigurationProblem& problem)> ConfigurationProblemSink;

/// Which bars a file is for.
enum class ConfiguredBars { Ribbon, Menu, ToolBars };

/// Why nothing would be built of a file that is loaded now, for a host that builds its bars anew while it runs and
/// keeps what it shows as long as a file is broken: the file cannot be read or is no XML, there is no element in it, or
/// a shortcut of a menu names no key, which ends its loading by an exception unless its command is another file's.
/// Empty: it can be loaded. `path`: the full path. Builds and registers nothing. User-interface thread.
BARWRIGHT_API std::vector<ConfigurationProblem> FindLoadFaults(const std::wstring& path, ConfiguredBars bars);

/// The same of the tables of a language: why CMultiLanguageMgr::SetLanguage would refuse it. Empty without a code.
BARWRIGHT_API std::vector<ConfigurationProblem> FindLanguageFaults(const std::wstring& code);

/// Replaces the sink and returns the earlier one. The first one is empty: then nobody looks for problems, and loading
/// takes no longer. It hears what the program barcheck finds in the file, in the language in force and beside all other
/// files of the installation, except what is wrong with a translation table by itself. User-interface thread.
BARWRIGHT_API ConfigurationProblemSink SetConfigurationProblemSink(const ConfigurationProblemSink& sink);

/// "file:line:column: severity: text [code]", and the fix in brackets behind it.
BARWRIGHT_API std::wstring FormatConfigurationProblem(const ConfigurationProblem& problem);
