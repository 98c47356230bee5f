#pragma once

#include "ribbon_info.h"

class CMFCRibbonBaseElement;

/// Whether a button gets the F1 hint as its description, where its record accepts it.
enum class F1Hint { No, Yes };

/// Makes the ribbon element that a record describes; the caller owns it. Null for a type that is not known.
CMFCRibbonBaseElement* CreateRibbonElement(unsigned int id, const RibbonInfo& info, F1Hint hint);
