#pragma once

#include <varnhold/xml.h>

#include <optional>
#include <span>
#include <string_view>

/// What a configuration file describes.
enum class ConfigurationKind { Ribbon, Menu, ToolBars };

/// "ribbon file" and so on.
std::wstring_view NameOf(ConfigurationKind kind);
/// What the names of such files begin with: "ribbon", "menu", "toolbar".
std::wstring_view FileNameStart(ConfigurationKind kind);

/// The kind that the attributes of a document tell: most of its elements have one that no other kind of file has.
ConfigurationKind KindByAttributes(const varnhold::XmlCursor& documentElement);

/// The kind of a document that is read as `expected`, where it is clearly of another one: nearly all its elements have
/// attributes of that kind and stand as that kind has them, and nothing speaks for the expected one. A file of the
/// expected kind with mistakes in it, many alike ones too, is none of those. Elements may have any names.
std::optional<ConfigurationKind> OtherKindOf(const varnhold::XmlCursor& documentElement, ConfigurationKind expected);

/// A kind that has all attributes of these names; none when no kind has.
std::optional<ConfigurationKind> KindWithAttributes(std::span<const std::string_view> names);
