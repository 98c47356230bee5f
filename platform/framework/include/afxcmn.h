#pragma once
// Programs ask by this name whether the header was included.
#define __AFXCMN_H__

/// The common controls.
#include "afxwin.h"
#include "fx/header_control.h"
#include "fx/image_list.h"
#include "fx/list_control.h"
#include "fx/progress_control.h"
#include "fx/rich_edit_control.h"
#include "fx/slider_control.h"
#include "fx/spin_control.h"
#include "fx/status_bar_control.h"
#include "fx/tab_control.h"
#include "fx/tool_bar_control.h"
#include "fx/tool_tip_control.h"
#include "fx/tree_control.h"
