#pragma once

#include "afxtoolbarcomboboxbutton.h"

namespace toolbar {

/// What a menu bar knows of the field in which the user asks for help: a button that is one derives from this too. So
/// the bar finds and places it without the classes that make it.
class HelpField {
public:
    virtual CMFCToolBarComboBoxButton& Combo() = 0;
    /// The bar has found its place: its windows go there.
    virtual void Settle() = 0;

protected:
    ~HelpField() = default;
};

} // namespace toolbar
