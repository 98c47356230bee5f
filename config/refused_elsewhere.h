#pragma once

#include "config/diagnostics.h"

/// Reports what other programs refuse a file for although the library reads it: an XML declaration that something
/// stands before, one that names another encoding than the file's first bytes show, and two dashes within a comment.
void ReportRefusedElsewhere(const FileDiagnostics& diagnostics);
