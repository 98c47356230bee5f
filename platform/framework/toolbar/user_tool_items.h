#pragma once

class CMFCPopupMenu;

namespace toolbar {

/// Puts the user's tools in the place of the command that stands for them (CWinAppEx::EnableUserTools). A menu without
/// that command, and one that is opened while there are no tools, stays as it is.
void ShowUserTools(CMFCPopupMenu& menu);

} // namespace toolbar
