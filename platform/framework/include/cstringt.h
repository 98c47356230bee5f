#pragma once

#include "fx/string.h"
