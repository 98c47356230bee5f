#pragma once
// Programs ask by this name whether the header was included.
#define __AFXCVIEW_H__

/// Views that are lists and trees.
#include "afxcmn.h"
#include "fx/control_view.h"
