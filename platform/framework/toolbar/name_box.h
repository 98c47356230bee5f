#pragma once

#include "toolbar/customize_texts.h"

#include "afxwin.h"

namespace toolbar {

/// Asks in a modal dialog for the name of a toolbar; `proposed` is what it begins with. Empty: the user has left it.
CString AskBarName(CWnd& parent, CustomizeText title, const CString& proposed);

} // namespace toolbar
