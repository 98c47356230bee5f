#pragma once

#include "fx/simple_string.h"
