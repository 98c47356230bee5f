#pragma once

#include <afxRibbonMainPanel.h>
#include <afxribbonpanelmenu.h>

#include "tests/support/keys.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

/// The ribbon of RibbonBarTest with a button that has sub-items in its first panel, and helpers for pop-ups.
class RibbonPopupTest : public RibbonBarTest {
protected:
    static constexpr UINT kShapes = 1100; // opens: Line, Star, separator, More (Circle, Square), Off, Hidden
    static constexpr UINT kLine = 1101;
    static constexpr UINT kStar = 1102;
    static constexpr UINT kMore = 1103;
    static constexpr UINT kCircle = 1104;
    static constexpr UINT kSquare = 1105;
    static constexpr UINT kOff = 1106;
    static constexpr UINT kHidden = 1107;
    static constexpr UINT kSplit = 1110; // sends its own command, opens: One
    static constexpr UINT kOne = 1111;

    RibbonPopupTest();
    ~RibbonPopupTest() override;

    CMFCRibbonButton& Shapes() { return *m_shapes; }
    CMFCRibbonButton& Split() { return *m_split; }
    CMFCRibbonButton& SubItem(int index) { return static_cast<CMFCRibbonButton&>(*Shapes().GetSubItems()[index]); }
    /// The pop-up opened last; throws when none is open.
    static CMFCRibbonPanelMenu& Popup();
    static CMFCRibbonPanelMenuBar& PopupBar() { return Popup().GetRibbonMenuBar(); }
    static int OpenCount();
    /// Clicks the middle of an element in whatever window shows it.
    void Click(const CMFCRibbonBaseElement& element);
    void Click(const CMFCRibbonBaseElement& element, CPoint at);
    void MoveOver(const CMFCRibbonBaseElement& element);
    void Press(UINT key);
    /// The shown element of that class in the quick access toolbar; null when there is none.
    CMFCRibbonBaseElement* FindInQuickAccess(const CRuntimeClass* kind);
    /// Collapses the first panel of the active category and opens it.
    CMFCRibbonPanel& OpenCollapsedPanel();

private:
    CMFCRibbonButton* m_shapes = nullptr;
    CMFCRibbonButton* m_split = nullptr;
};
