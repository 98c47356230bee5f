#pragma once

#include <windows.h>

namespace toolbar {

/// The customize dialog's texts among those of the framework.
enum CustomizeText : UINT {
    kTitleText = 17203,
    kCommandsTab,
    kToolBarsTab,
    kKeyboardTab,
    kOptionsTab,
    kCloseText,
    kHelpText,
    kCategoriesText,
    kCommandsText,
    kDragText,
    kAllCommandsText,
    kToolBarsText,
    kResetBarText,
    kResetAllBarsText,
    kNewText,
    kRenameText,
    kDeleteText,
    kTextLabelsText,
    kCategoryText,
    kCurrentKeysText,
    kNewKeyText,
    kAssignedToText,
    kAssignText,
    kRemoveText,
    kResetAllKeysText,
    kTooltipsText,
    kKeysInTooltipsText,
    kLargeIconsText,
    kMenuShadowsText,
    kBarNameText,
    kOkText,
    kCancelText,
    kAskResetBarText,
    kAskResetAllBarsText,
    kAskResetAllKeysText,
    kAskDeleteText,
    kUnassignedText,
    kNewBarTitle,
    kRenameBarTitle,
    kDefaultBarName,
};

} // namespace toolbar
