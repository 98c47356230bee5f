#pragma once

#include "config/check/configuration_check.h"
#include "config/check/installation_files.h"

#include <optional>
#include <string_view>

/// cfg\ribbon*.xml, cfg\menu*.xml and cfg\toolbar*.xml, each kind in name order, relative to the directory: what
/// barview shows.
std::vector<std::wstring> ShownFiles(const InstallationFiles& files);

/// Those, and what programs name besides: cfg\status*.xml, ribbon files with rows of status-bar buttons, behind the
/// ribbon, and cfg\keys*.xml, menu files with shortcuts, at the end.
std::vector<std::wstring> ConfigurationFiles(const InstallationFiles& files);

/// Files in cfg that would be among those, if an editor had not put its own ending behind their names.
std::vector<std::wstring> FilesOfOtherEndings(const InstallationFiles& files);

/// The kind of that name, as a file's name begins with it ("ribbon", "menu", "toolbar"); none of another.
std::optional<ConfigurationKind> KindNamed(std::wstring_view name);

/// Whether a file's name has that ending, and something before it. Letter case says nothing, as in the file system.
bool EndsWith(std::wstring_view name, std::wstring_view end);

/// Whether the name is that of a translation table.
bool IsTableName(std::wstring_view name);

/// By the beginning of the file's name; of any other name, by the attributes in it that only one kind of file has.
ConfigurationKind KindOfFile(const std::wstring& fullPath);

/// By the same: whether it is a menu file that is loaded before all others, for its shortcuts, and never shown.
bool IsShortcutFile(const std::wstring& fullPath);
