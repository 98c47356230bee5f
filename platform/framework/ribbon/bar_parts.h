#pragma once

#include <memory>
#include <vector>

#include "afxribbonbar.h"
#include "fx/to_rect.h"
#include "fx/wheel_rest.h"
#include "ribbon/access.h"
#include "ribbon/bar_layout.h"
#include "ribbon/edit_tool.h"
#include "ribbon/font_scope.h"
#include "ribbon/keyboard.h"
#include "ribbon/panel_layout.h"
#include "ribbon/pointer.h"

struct RibbonCategoryParts {
    std::vector<std::unique_ptr<CMFCRibbonPanel>> panels;
    std::vector<std::unique_ptr<CMFCRibbonBaseElement>> hidden;
    std::vector<RibbonPanelLadder> ladders; // one a panel, as last measured
    std::vector<int> collapseOrder;
    int firstPanel = 0;       // leftmost panel in view while the category scrolls
    int wantedFirstPanel = 0; // as the user scrolled; forgotten as soon as nothing has to scroll
    bool measured = false;
    UINT smallImagesId = 0;
    UINT largeImagesId = 0;
    double imageScale = 0.0; // at which the images were loaded; 0: not yet
};

/// What a ribbon bar consists of and what it knows of the pointer.
struct RibbonBarParts {
    explicit RibbonBarParts(CMFCRibbonBar& bar) : pointer(bar, bar) {}

    RibbonMetrics metrics = RibbonMetrics::FromFont(13, 1.0);
    RibbonBarShape shape;
    RibbonBarArrangement arrangement;
    bool layoutDirty = true;
    bool waitsForPaint = false; // all of the window was invalidated, and has not been painted since
    enum class States { Unknown, Asking, Known };
    States states = States::Unknown; // of the commands of what is shown
    bool isLayingOut = false;
    bool isDrawing = false;
    bool isAskingForRoom = false;
    int laidOutWidth = -1;

    bool replacesCaption = false;
    bool captionActive = true;
    bool windows7Look = false;
    bool minimized = false;
    bool hiddenForSize = false;
    bool quickAccessOnTop = true;
    bool tooltips = true;
    bool tooltipDescriptions = true;
    int tooltipWidthRegular = 0;
    int tooltipWidthLargeImage = 0;
    CString tooltipText;            // lent to the tooltip control while it shows
    CRect tooltipPlace{0, 0, 0, 0}; // of the tool: that of the element under the pointer
    RibbonEditTool editTool;

    CMFCRibbonApplicationButton* applicationButton = nullptr; // the host's
    CSize applicationButtonSize{0, 0};                        // at 96 DPI
    CMFCRibbonQuickAccessToolBarDefaultState quickAccessDefault;
    bool quickAccessChosen = false;       // SetQuickAccessCommands was called: the default state does not apply
    std::vector<UINT> quickAccessMissing; // commands of the default state that no element has
    CMFCRibbonQuickAccessToolBar quickAccess;

    // Nothing here outlives the element: each tells the bar when it goes.
    RibbonPointer pointer;
    CMFCRibbonBaseElement* menuSubject = nullptr; // whose context menu is open
    CMFCRibbonPanel* hotPanel = nullptr;
    fx::WheelRest wheel;

    CMFCRibbonCategory* active = nullptr;
    CMFCRibbonCategory* activeBeforeContext = nullptr; // where the bar goes back to when the context is hidden
    /// The active category where the bar itself shows it, not a pop-up.
    CMFCRibbonCategory* ShownCategory() const {
        return active != nullptr && active->GetParentMenuBar() == nullptr ? active : nullptr;
    }
    struct Context {
        UINT id;
        CString name;
        std::unique_ptr<CMFCRibbonContextCaption> caption;
    };
    std::vector<Context> contexts;
    std::vector<std::unique_ptr<CMFCRibbonCaptionButton>> captionButtons; // the frame's
    std::vector<std::unique_ptr<CMFCRibbonCaptionButton>> childButtons;   // of the maximised MDI child
    CRibbonCategoryScroll tabScrollLeft;
    CRibbonCategoryScroll tabScrollRight;
    HWND activeChild = nullptr;
    std::vector<std::unique_ptr<CMFCRibbonBaseElement>> tabElements;
    std::vector<std::unique_ptr<CMFCRibbonCategory>> categories;
    std::unique_ptr<CMFCRibbonCategory> mainCategory;
    std::unique_ptr<RibbonKeyboard> keyboard; // never null
    std::unique_ptr<RibbonAccess> access;     // never null
};
