#pragma once

#include <memory>
#include <vector>

#include "afxribbonbutton.h"

/// The marked letter of a text as a capital; empty when none is marked.
CString MnemonicOf(const CString& text);

/// Gives the host the chance to fill the menu and to set the states of its items, as before any menu opens.
void AskHostForMenu(CWnd* target, HMENU menu);

/// The items of a menu as elements of a ribbon pop-up, submenus as sub-items; none for what is no menu.
std::vector<std::unique_ptr<CMFCRibbonBaseElement>> MakeMenuItems(HMENU menu);

/// The element is such an item, or a copy of one.
bool IsMenuItem(const CMFCRibbonBaseElement& element);

/// Ids, texts, separators and submenus of a menu, without the states: two menus of one content have the same items.
CString ContentOf(HMENU menu);

/// An item of the menu, and the items in it, are enabled and checked as they are there. Others stay as they are.
void TakeMenuState(CMFCRibbonBaseElement& element, HMENU menu);
