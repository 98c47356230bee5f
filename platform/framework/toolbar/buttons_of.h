#pragma once

#include "afxtoolbar.h"

#include <vector>

namespace toolbar {

/// The command's buttons of that class in all toolbars.
template <class Button>
std::vector<Button*> ButtonsOf(UINT command) {
    CObList all;
    CMFCToolBar::GetCommandButtons(command, all);
    std::vector<Button*> buttons;
    for (POSITION position = all.GetHeadPosition(); position != nullptr;) {
        if (auto* const button = DYNAMIC_DOWNCAST(Button, all.GetNext(position))) {
            buttons.push_back(button);
        }
    }
    return buttons;
}

} // namespace toolbar
