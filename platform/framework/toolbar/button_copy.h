#pragma once

#include "afxtoolbarbutton.h"

#include <memory>

namespace toolbar {

/// A button of the same class with the same contents; null: its class makes none.
std::unique_ptr<CMFCToolBarButton> CopyOf(const CMFCToolBarButton& button);

} // namespace toolbar
