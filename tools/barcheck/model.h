#pragma once

#include <nlohmann/json.hpp>

#include <string>

/// What the files of an installation build, worked out without building it: what barview's dump says but for places,
/// sizes, states, the skin and the status bar. In a process that has built nothing before; `language` empty: none is in
/// force. A file that cannot be loaded builds nothing. The key of an accelerator that is neither letter nor digit is
/// left out: the user's keyboard says it. `directory`: with its closing separator. Sets the installation directory and
/// the language of the process.
nlohmann::ordered_json ModelOf(const std::wstring& directory, const std::wstring& language);
