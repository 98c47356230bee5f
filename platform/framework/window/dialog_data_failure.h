#pragma once

#include "afxwin.h"

/// Tells the user what is wrong with the control that was prepared last and fails by an exception. The application's
/// own string with this id wins over the built-in text.
[[noreturn]] void FailDataExchange(CDataExchange& exchange, UINT messageId, LPCTSTR otherwise);
