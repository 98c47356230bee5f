#pragma once

#include "config/check/configuration_check.h"
#include "config/met_element.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the reference says of one attribute of one kind of file. Texts are UTF-8.
struct AttributeGuide {
    AttributeUse use;
    /// The elements that it has a meaning on.
    std::string_view elements;
    std::string_view type;
    /// What is read where it is missing, as one would write it; kNoDefault where no value says the same.
    std::string_view defaultValue;
    /// The default in words.
    std::string_view missing;
    std::string_view meaning;
    /// The codes of what can be wrong with it (DiagnosticCodes), beside those that every attribute can have.
    std::vector<std::string_view> codes;
};

inline constexpr std::string_view kNoDefault = "\x01";

/// Of each attribute that the file kind's reader knows, in the order of the reference.
std::span<const AttributeGuide> AttributeGuides(ConfigurationKind kind);

/// The attributes that the file kind's reader knows.
std::span<const AttributeRule> AttributeRules(ConfigurationKind kind);

/// The page with all of them (Markdown).
std::string AttributeReference();
