#include "toolbar/button_copy.h"

std::unique_ptr<CMFCToolBarButton> toolbar::CopyOf(const CMFCToolBarButton& button) {
    std::unique_ptr<CMFCToolBarButton> copy(static_cast<CMFCToolBarButton*>(button.GetRuntimeClass()->CreateObject()));
    if (copy) {
        copy->CopyFrom(button);
    }
    return copy;
}
