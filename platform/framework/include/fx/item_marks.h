#pragma once

#include "framework_api.h"

#include "fx/string.h"

class CMFCRibbonComboBox;

/// What a class that derives from CMFCRibbonComboBox derives from too when its items have marks beside their texts, as
/// checks or lights. Assistive programs hear of the marks, the list is as wide as the whole element, and a panel that
/// lacks room leaves the edit area wide enough for the marks and a word.
class RibbonItemMarks {
public:
    /// The marks of an item in words, which are heard behind the description. `isChecked`, FALSE before: one of them is
    /// a check, and set.
    virtual CString GetItemStateText(int index, BOOL& isChecked) const = 0;

protected:
    RibbonItemMarks() = default;
    RibbonItemMarks(const RibbonItemMarks&) = default;
    RibbonItemMarks& operator=(const RibbonItemMarks&) = default;
    ~RibbonItemMarks() = default;
};

namespace fx {

/// Draws the face and the item's row in the open list, of index -1 the rows of all items. Of a changed mark assistive
/// programs hear where the element speaks of the item now; false: they were told nothing.
FRAMEWORK_API bool ShowItemMark(CMFCRibbonComboBox& combo, int index, bool isChanged = true);

} // namespace fx
