#pragma once
// Programs ask by this name whether the header was included.
#define __AFXDD_H__

#include "fx/ddx.h"
