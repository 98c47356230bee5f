#pragma once

#include "config/diagnostics.h"
#include "ribbon_info.h"

class CTranslationSection;
class CXmlNodeWrapper;

/// The section of the translation tables with the texts of the ribbon files.
inline constexpr char c_ribbonSection[] = "RibbonBarCfg";

/// Reads the attributes of one element of a ribbon file into a record, which is reset first but for `picDisPath`, `cmd`
/// and `param`: those stay where the element does not set them. Attributes are taken in document order; translations
/// are looked up under the keyword read so far. False when the element has no attributes, or when SIZE or WIDTH is not
/// a number: then nothing after it is read.
bool ReadRibbonInfo(const CXmlNodeWrapper& node, RibbonInfo& info, const FileDiagnostics& diagnostics);

/// The same for a record that holds nothing yet, `picDisPath`, `cmd` and `param` aside, with the texts of
/// c_ribbonSection: for the many elements of one file.
bool ReadNewRibbonInfo(const CXmlNodeWrapper& node, RibbonInfo& info, const CTranslationSection& texts,
                       const FileDiagnostics& diagnostics);
