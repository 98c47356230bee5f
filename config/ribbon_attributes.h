#pragma once

#include "config/diagnostics.h"
#include "config/met_element.h"
#include "config/ribbon_record.h"

class CTranslationSection;
class CXmlNodeWrapper;

/// The section of the translation tables with the texts of the ribbon files.
inline constexpr char kRibbonSection[] = "RibbonBarCfg";

/// The attributes that a ribbon file has.
std::span<const AttributeRule> RibbonAttributeRules();

/// Reads the attributes of one element of a ribbon file into a record, which is reset first but for `picDisPath`, `cmd`
/// and `param`: those stay where the element does not set them. Attributes are taken in document order; translations
/// are looked up under the keyword read so far. False when the element has no attributes, or when SIZE or WIDTH is not
/// a number: then nothing after it is read.
bool ReadRibbonInfo(const CXmlNodeWrapper& node, RibbonInfo& info, const FileDiagnostics& diagnostics);

/// The values that were read last, as they stand in the file and as texts in the arena: neighbours often say the same,
/// and then share one text.
struct LastText {
    std::string_view read;
    std::wstring_view text = kNoText;
};
struct LastTexts {
    LastText type;
    LastText picPath;
    LastText picDisPath;
    LastText cmd;
    LastText param;
    LastText help;
};

/// What the many elements of one file are read with.
struct RibbonReading {
    /// The texts of kRibbonSection.
    const CTranslationSection& translations;
    /// Where the texts of the records go.
    TextArena& arena;
    LastTexts& last;
    const FileDiagnostics& diagnostics;
};

/// The same from the element that a cursor is at, for a record that holds nothing yet, `picDisPath`, `cmd` and `param`
/// aside.
bool ReadNewRibbonInfo(varnhold::XmlCursor& element, RibbonTexts& info, const RibbonReading& reading);
