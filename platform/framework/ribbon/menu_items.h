#pragma once

#include <memory>
#include <vector>

#include "afxribbonbutton.h"

/// The text without the marks of mnemonics; the marked letter becomes the key, where none is set yet.
CString TakeMnemonic(const CString& text, CString& key);

/// Gives the host the chance to fill the menu and to set the states of its items, as before any menu opens.
void AskHostForMenu(CWnd* target, HMENU menu);

/// The items of a menu as elements of a ribbon pop-up, submenus as sub-items. They belong to the bar and the category
/// of the button.
std::vector<std::unique_ptr<CMFCRibbonBaseElement>> MakeMenuItems(HMENU menu, const CMFCRibbonButton& button);
