#pragma once

#include "afxtoolbar.h"

namespace toolbar {

/// Whether the user may draw the button's image anew: the customize dialog, which has the editor, is open, and there is
/// a list of users' images that can be written to (CMFCToolBar::SetUserImages). `images`: the list of the button's
/// image, null: it has none.
bool MayEditImage(const CMFCToolBarButton& button, const CMFCToolBarImages* images);

/// Lets the user change the image, which is one of the user's from then on and is kept in their file; other buttons
/// keep theirs. Modal: the bar may be gone afterwards.
void EditImage(CMFCToolBar& bar, CMFCToolBarButton& button, const CMFCToolBarImages& images);

} // namespace toolbar
