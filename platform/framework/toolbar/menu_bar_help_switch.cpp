// Gives a menu bar the field in which the user asks for help, or takes it away. Apart from the bar's own files: nothing
// that a menu bar without such a field needs leads to combos.
#include "afxmenubar.h"

#include "toolbar/help_combo.h"

void CMFCMenuBar::EnableHelpCombobox(UINT uiID, LPCTSTR lpszPrompt, int nComboBoxWidth) {
    if (const int index = ButtonToIndex(GetHelpCombobox()); index >= 0) {
        RemoveButton(index);
    }
    if (uiID != 0) {
        // Behind all others, so that the menu's own buttons keep their indexes.
        InsertButton(new toolbar::HelpCombo(uiID, CString(lpszPrompt), nComboBoxWidth));
    }
    AdjustLayout();
}
