#pragma once

#include "varnhold/xml.h"

#include <string>
#include <string_view>

namespace varnhold {

/// One text of a translation table, as CMultiLanguageMgr takes it.
struct TranslationUnit {
    std::string_view section;
    std::string key;
    std::wstring text;
    /// Whether every segment that has a source has a target, too.
    bool isTranslated = false;
};

/// Says where something stands that was read just now; working it out takes time.
class TextPlace {
public:
    virtual ~TextPlace() = default;
    virtual TextPosition GetPosition() const = 0;
};

/// What is wrong with a table. The first four keep the whole file from being read.
enum class TranslationProblem {
    Unreadable,
    Empty,
    Encoding,
    Syntax,
    NotXliff,
    OtherLanguage, ///< the file says that it is of another language than its folder; it is read all the same
    FileWithoutId,
    UnitWithoutKey,
    UnitWithoutSegment,
    SecondText,   ///< a segment has two sources or two targets; told to thorough visitors alone, as what follows
    ForeignInline ///< a source or target holds an element that no text of XLIFF 2 has: it is left out with what is in
                  ///< it
};

/// Takes what stands in a table, in document order. Good until the call returns.
class TranslationFileVisitor {
public:
    virtual ~TranslationFileVisitor() = default;
    virtual void VisitUnit(const TranslationUnit& unit, const TextPlace& place) = 0;
    virtual void VisitProblem(TranslationProblem problem, TextPosition position, const std::wstring& text) = 0;
    /// A unit that is left out, after the problem was told.
    virtual void VisitFaultyUnit(std::string_view /*section*/, const std::string& /*key*/) {}
    /// Whether it wants to hear of oddities, too: they take time to find.
    virtual bool IsThorough() const { return false; }
    /// Before the units.
    virtual void VisitOddity(const XmlOddity& /*oddity*/) {}
    /// Whether the table names a source language, and it is another one than the folder's.
    virtual void VisitSourceLanguage(bool /*isForeign*/) {}
};

/// Reads one XLIFF 2 file of a language (its folder's name). False when it cannot be read or is no such file.
VARNHOLD_API bool ReadTranslationFile(const std::wstring& path, const std::wstring& language,
                                      TranslationFileVisitor& visitor);

/// The same from the text of a file; `language` empty: whichever it says.
VARNHOLD_API bool ReadTranslationText(std::string_view text, const std::wstring& language,
                                      TranslationFileVisitor& visitor);

} // namespace varnhold
