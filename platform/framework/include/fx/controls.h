#pragma once

/// The controls of the system's window classes.
#include "fx/button_control.h"
#include "fx/combo_box.h"
#include "fx/edit_control.h"
#include "fx/list_box.h"
#include "fx/scroll_bar.h"
#include "fx/static_control.h"
