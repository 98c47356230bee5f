#include "popups/strip_draw.h"

#include "afxvisualmanager.h"
#include "fx/to_rect.h"
#include "popups/scroll_strips.h"

void toolbar::DrawStrips(CDC& dc, const ScrollStrips& strips, ScrollRoom room) {
    if (!strips.AreShown()) {
        return;
    }
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    manager->OnDrawMenuScrollButton(&dc, fx::ToRect(strips.Up()), FALSE, strips.Rows() < 0, FALSE, !room.up);
    manager->OnDrawMenuScrollButton(&dc, fx::ToRect(strips.Down()), TRUE, strips.Rows() > 0, FALSE, !room.down);
}
