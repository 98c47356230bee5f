#pragma once

#include "afxtoolbarcomboboxbutton.h"

class CMFCMenuBar;

namespace toolbar {

/// What a menu bar knows of the field in which the user asks for help: a button that is one derives from this too. So
/// the bar finds and places it without the classes that make it.
class HelpField {
public:
    virtual CMFCToolBarComboBoxButton& Combo() = 0;
    /// The bar looks for its place: until that is found its windows stay where they are.
    virtual void Hold() = 0;
    /// The bar has found its place: its windows go there, and from then on with it.
    virtual void Settle() = 0;

protected:
    ~HelpField() = default;
};

/// Of the bar's field, if it has one.
void HoldHelpField(const CMFCMenuBar& bar);

} // namespace toolbar
