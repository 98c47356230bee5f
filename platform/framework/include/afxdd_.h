#pragma once

#include "fx/ddx.h"
