#pragma once

#define IDR_MAINFRAME 128
