#pragma once
// Programs ask by this name whether the header was included.
#define __AFX_H__

// Root of the framework: objects, run-time classes, strings, exceptions, files, archives, diagnostics.

#include "atltypes.h"
#include "fx/archive.h"
#include "fx/base.h"
#include "fx/diagnostics.h"
#include "fx/dump_context.h"
#include "fx/exceptions.h"
#include "fx/file.h"
#include "fx/file_find.h"
#include "fx/module_state.h"
#include "fx/object.h"
#include "fx/stdio_file.h"
#include "fx/string.h"
