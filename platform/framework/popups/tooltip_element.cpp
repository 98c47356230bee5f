#include "popups/tooltip_element.h"

namespace tooltip {

namespace {

const ElementPicture* g_picture = nullptr;

} // namespace

void SetElementPicture(const ElementPicture& picture) { g_picture = &picture; }
const ElementPicture* GetElementPicture() { return g_picture; }

} // namespace tooltip
