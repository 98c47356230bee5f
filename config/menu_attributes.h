#pragma once

#include "config/diagnostics.h"
#include "config/met_element.h"
#include "menu_info.h"

#include <span>

class CTranslationSection;

/// The attributes that a menu file has.
std::span<const AttributeRule> MenuAttributeRules();

/// Reads the attributes of the element that a cursor is at into a record; fields that the element does not name keep
/// what they held, `bSeparator` and `strText` aside. Attributes are taken in document order; translations are looked up
/// in `translations` under the keyword read so far. False, and the record as it was, when there are no attributes.
bool ReadMenuInfo(varnhold::XmlCursor& element, MenuInfo& info, const CTranslationSection& translations,
                  const FileDiagnostics& diagnostics);
