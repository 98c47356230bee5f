#pragma once

#include <string_view>

/// An XML schema for translation tables: what the reader takes of XLIFF 2, with the core of the standard around it, and
/// elements and attributes of other namespaces let pass where the standard lets them. Stricter than the reader in what
/// other programs refuse: the order of elements, ids that are missing or not unique.
std::string_view TableSchema();
