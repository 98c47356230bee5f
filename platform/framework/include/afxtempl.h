#pragma once
// Programs ask by this name whether the header was included.
#define __AFXTEMPL_H__

// The collection templates.

#include "afx.h"
#include "fx/array.h"
#include "fx/list.h"
#include "fx/map.h"
#include "fx/typed_pointers.h"
