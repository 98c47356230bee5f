#pragma once

#include "toolbar/customize_texts.h"

#include "afxwin.h"

namespace toolbar {

/// Asks in a modal dialog for a name; `proposed` is what it begins with. Empty: the user has left it.
CString AskName(CWnd& parent, CustomizeText title, CustomizeText label, const CString& proposed);

} // namespace toolbar
