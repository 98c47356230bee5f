#pragma once

#include "afxtoolbarmenubutton.h"

#include <memory>

class CMFCToolBar;

namespace toolbar {

/// "Add or Remove Buttons": a row whose menu checks the buttons that the bar shows and ends with the reset of the bar.
/// The menu stays open while buttons are chosen.
std::unique_ptr<CMFCToolBarMenuButton> MakeChooseButtonsRow(CMFCToolBar& bar);

} // namespace toolbar
