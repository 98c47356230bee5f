#pragma once
// Programs ask by this name whether the header was included.
#define __AFXDLGS_H__

/// Property sheets (dialogs of pages with tabs, and wizards) and the system's dialogs for printers, files, colours and
/// fonts.
#include "afxcmn.h"
#include "fx/print.h"
#include "fx/property_page.h"
#include "fx/property_sheet.h"
#include "fx/system_dialogs.h"
