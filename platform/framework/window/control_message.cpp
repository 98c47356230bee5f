#include "window/control_message.h"

namespace control {

void EnsureCommonControls() {
    static const bool isDone = [] {
        const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_COOL_CLASSES | ICC_USEREX_CLASSES};
        return InitCommonControlsEx(&classes) != FALSE;
    }();
    static_cast<void>(isDone);
}

} // namespace control
