#pragma once

#include "config/diagnostics.h"
#include "ribbon_info.h"

class CXmlNodeWrapper;

/// Reads the attributes of one element of a ribbon file into a record, which is reset first but for `picDisPath`, `cmd`
/// and `param`: those stay where the element does not set them. Attributes are taken in document order; translations
/// are looked up under the keyword read so far. False when the element has no attributes, or when SIZE or WIDTH is not
/// a number: then nothing after it is read.
bool ReadRibbonInfo(const CXmlNodeWrapper& node, RibbonInfo& info, const FileDiagnostics& diagnostics);
