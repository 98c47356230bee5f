#pragma once

#include <memory>
#include <vector>

#include "afxribboncategory.h"
#include "afxRibbonPanel.h"
#include "afxribbonpanelmenu.h"
#include "fx/wheel_rest.h"
#include "popups/scroll_strips.h"
#include "ribbon/access.h"
#include "ribbon/edit_tool.h"
#include "ribbon/menu_geometry.h"
#include "ribbon/pointer.h"

/// A panel of elements that are another's: it forgets them before it goes.
class LentPanel : public CMFCRibbonPanel {
public:
    LentPanel(LPCTSTR name, bool isMenu) : CMFCRibbonPanel(name) { m_bMenuMode = isMenu; }
    ~LentPanel() override {
        m_arElements.RemoveAll();
        m_pParentMenuBar = nullptr;
    }

    void Set(CMFCRibbonCategory* category, CMFCRibbonPanelMenuBar* bar) {
        m_pParent = category;
        m_pParentMenuBar = bar;
    }
    /// Its columns look as they do in the ribbon.
    void FollowColumnsOf(const CMFCRibbonPanel& panel) {
        m_bCenterColumnVert = panel.IsCenterColumnVert();
        m_bJustifyColumns = panel.IsJustifyColumns();
    }
    void Show(CMFCRibbonBaseElement* element) { m_arElements.Add(element); }
    void ShowLaunchButton(CMFCRibbonLaunchButton& button) { m_launch = &button; }
    void Forget(const CMFCRibbonBaseElement* element) {
        if (m_launch == element) {
            m_launch = nullptr;
        }
        for (INT_PTR index = m_arElements.GetSize(); index-- > 0;) {
            if (m_arElements[index] == element) {
                m_arElements.RemoveAt(index);
            }
        }
    }
    bool IsLent() const override { return false; }
    void ForgetAll() {
        m_arElements.RemoveAll();
        m_launch = nullptr;
    }

private:
    CMFCRibbonLaunchButton& LaunchButton() override { return m_launch != nullptr ? *m_launch : m_btnLaunch; }

    CMFCRibbonLaunchButton* m_launch = nullptr; // of the panel whose elements are shown
};

/// What an element was like before it was lent.
struct RibbonLoan {
    CMFCRibbonBaseElement* element;
    BOOL isCompact;
    BOOL isIntermediate;
    BOOL isMenuMode;
    CWnd* parentWindow;                 // its own, not the bar's
    CMFCRibbonPanelMenuBar* parentMenu; // a pop-up of panels lends on what one of them holds
    CRect rect;
};

/// What a ribbon pop-up shows and what it knows of the pointer.
struct RibbonPanelMenuParts {
    explicit RibbonPanelMenuParts(CMFCRibbonPanelMenuBar& bar) : pointer(bar, bar) {}

    RibbonPopupLook look = RibbonPopupLook::Menu;
    CMFCRibbonPanel* source = nullptr; // whose elements are shown
    CMFCRibbonCategory* category = nullptr;
    CMFCRibbonMainPanel* mainPanel = nullptr;
    CSize categorySize{0, 0};
    std::unique_ptr<LentPanel> panel;
    std::vector<std::unique_ptr<CMFCRibbonBaseElement>> owned;
    std::vector<CMFCRibbonBaseElement*> shown; // top level, in order
    std::vector<RibbonLoan> loans;
    bool isLent = false;
    CWnd* commandWindow = nullptr; // of what opened the pop-up
    bool defaultMenuLook = false;

    bool layoutDirty = true;
    bool isLayingOut = false;
    CSize room{0, 0};
    CSize size{0, 0};
    ribbon::MenuList list;
    std::vector<fx::Size> rows;
    int imageColumn = 0;

    RibbonPointer pointer;
    CMFCRibbonBaseElement* returning = nullptr; // goes back to its container now
    CPoint lastMove{-1, -1};
    toolbar::ScrollStrips strips;
    fx::WheelRest wheel;

    std::unique_ptr<RibbonAccess> access; // null until an assistive program asks

    CToolTipCtrl* tooltip = nullptr; // the window's; null until it is needed
    CString tooltipText;             // lent to the tooltip while it shows
    RibbonEditTool editTool;
};
