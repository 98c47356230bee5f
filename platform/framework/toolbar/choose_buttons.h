#pragma once

#include "afxtoolbarmenubutton.h"

#include <memory>

class CMFCToolBar;

namespace toolbar {

/// "Add or Remove Buttons": a row whose menu checks the buttons that the bar shows and ends with the reset of the bar.
/// The menu stays open while buttons are chosen.
std::unique_ptr<CMFCToolBarMenuButton> MakeChooseButtonsRow(CMFCToolBar& bar);

/// A text without its keys and its mnemonic, which may stand in brackets behind it: "Open(&O)\tCtrl+O".
CString ReadableText(CString text);
/// What the user reads of a button: its text or that of its command, without mnemonics and keys; empty: nothing.
CString ReadableText(const CMFCToolBarButton& button);

} // namespace toolbar
