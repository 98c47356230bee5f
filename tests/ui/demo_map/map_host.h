#pragma once

#include "demo/map_data.h"
#include "tests/support/message_pump.h"
#include "tests/support/ui_test.h"

#include <fx/gdi_plus.h>

/// A map without any data: all that is seen of it is the colour around it. Its pictures need GDI+.
class MapHost : public testing::Test {
protected:
    MapHost() { EXPECT_TRUE(fx::StartGdiPlus()); }
    ~MapHost() override { PumpPending(); }

    TestWindow parent{1000, 700};
    MapData data;
    MapState state;
};
