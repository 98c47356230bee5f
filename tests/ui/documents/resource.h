#pragma once

#define IDR_PLAN 128
#define IDR_NOTE 129
#define IDR_MAIN 130
