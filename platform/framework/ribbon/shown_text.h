#pragma once

#include "fx/string.h"

class CMFCRibbonBaseElement;

/// Texts and names as hosts give them, "&Save && close\nsc": a mark stands before a mnemonic, and the letters of a key
/// tip stand behind a line break.
namespace ribbon {

/// As it is drawn: without marks of mnemonics.
CString PlainText(const CString& text);

/// What the element shows. A label calls nothing: its ampersands are drawn.
CString PlainTextOf(const CMFCRibbonBaseElement& element);

/// A text that is drawn as it is written, for a button that would take its ampersands for marks.
CString MarkedText(const CString& plain);

struct NameAndKeys {
    CString name;
    CString keys;
    bool hasKeys = false; // a line break was there, even without letters behind it
};
/// Null gives an empty name.
NameAndKeys SplitKeys(LPCTSTR given);

} // namespace ribbon
