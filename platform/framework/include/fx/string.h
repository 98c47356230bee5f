#pragma once

// CString: the class and the bodies of its members.
#include "fx/string_functions.h"
