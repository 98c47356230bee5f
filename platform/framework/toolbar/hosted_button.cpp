#include "toolbar/hosted_control.h"

namespace toolbar {

CMFCToolBarButton* ButtonWith(const CMFCToolBar& bar, HWND control) {
    for (POSITION position = bar.GetAllButtons().GetHeadPosition(); position;) {
        const auto* const object = static_cast<const CMFCToolBarButton*>(bar.GetAllButtons().GetNext(position));
        auto* const button = const_cast<CMFCToolBarButton*>(object);
        if (button->IsOwnerOf(control)) {
            return button;
        }
    }
    return nullptr;
}

} // namespace toolbar
