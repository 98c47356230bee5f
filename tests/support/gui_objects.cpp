#include "tests/support/gui_objects.h"

#include "fx/gdi_objects.h"

#include "tools/dump/process_objects.h"

#include <ostream>

GuiObjects CountGuiObjects() {
    AfxDeleteTemporaryGdiObjects();
    const ProcessObjects held = CountProcessObjects();
    return {.gdi = held.gdi,
            .wrapped = AfxGdiObjectCount(),
            .icons = held.icons,
            .menus = held.menus,
            .windows = held.windows};
}

std::ostream& operator<<(std::ostream& out, const GuiObjects& objects) {
    return out << objects.gdi << " GDI objects, " << objects.wrapped << " of wrappers, " << objects.icons << " icons, "
               << objects.menus << " menus, " << objects.windows << " windows";
}
