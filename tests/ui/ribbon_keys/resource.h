#pragma once

#define IDR_FRAME_MENU 6100
