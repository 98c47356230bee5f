#pragma once

// The collection templates.

#include "afx.h"
#include "fx/array.h"
#include "fx/list.h"
#include "fx/map.h"
#include "fx/typed_pointers.h"
