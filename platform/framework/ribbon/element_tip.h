#pragma once

#include <afxcmn.h>

class CMFCRibbonBaseElement;

/// Answers TTN_NEEDTEXT with an element's tip. A tooltip that has descriptions gets the element's name, with the keys
/// of its command, as the title and the tip below it; one that has none gets the tip alone. `lent` takes the text and
/// stays where it is while the tooltip shows.
void FillRibbonTooltip(CToolTipCtrl& control, NMHDR& request, CMFCRibbonBaseElement& element, bool showsDescription,
                       CString& lent);
