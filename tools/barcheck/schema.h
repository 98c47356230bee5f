#pragma once

#include "config/check/configuration_check.h"

#include <string>

/// An XML schema (XSD 1.0) for one kind of file, for editors that complete and check while one types. Attributes and
/// their values come from the readers' tables; names are written as there or in capitals. The readers take any name of
/// an element, a schema cannot: it has the ones of the guides.
std::string SchemaOf(ConfigurationKind kind);
