// Where the pop-ups are found by those who know them by their interface only.
#include "fx/ribbon_host.h"

namespace {

RibbonPopups* g_provided = nullptr; // lives as long as the library

} // namespace

RibbonPopups& RibbonPopups::Get() { return *g_provided; }

void RibbonPopups::Provide(RibbonPopups& popups) { g_provided = &popups; }
