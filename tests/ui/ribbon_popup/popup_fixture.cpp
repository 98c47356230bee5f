#include "tests/ui/ribbon_popup/popup_fixture.h"

#include <stdexcept>

RibbonPopupTest::RibbonPopupTest() : RibbonBarTest(Activation::Inactive) {
    CMFCRibbonPanel* panel = Bar().GetCategory(0)->GetPanel(0);
    m_shapes = new CMFCRibbonButton(kShapes, L"Shapes");
    m_shapes->AddSubItem(new CMFCRibbonButton(kLine, L"Line"));
    m_shapes->AddSubItem(new CMFCRibbonButton(kStar, L"Star"));
    m_shapes->AddSubItem(new CMFCRibbonSeparator(TRUE));
    auto* more = new CMFCRibbonButton(kMore, L"More");
    more->AddSubItem(new CMFCRibbonButton(kCircle, L"Circle"));
    more->AddSubItem(new CMFCRibbonButton(kSquare, L"Square"));
    m_shapes->AddSubItem(more);
    m_shapes->AddSubItem(new CMFCRibbonButton(kOff, L"Off"));
    auto* hidden = new CMFCRibbonButton(kHidden, L"Hidden");
    hidden->SetVisible(FALSE);
    m_shapes->AddSubItem(hidden);
    panel->Add(m_shapes);
    m_split = new CMFCRibbonButton(kSplit, L"Split");
    m_split->AddSubItem(new CMFCRibbonButton(kOne, L"One"));
    m_split->SetDefaultCommand();
    panel->Add(m_split);
    m_frame->disabledCommand = kOff;
    Bar().RecalcLayout();
    PumpPending();
}

RibbonPopupTest::~RibbonPopupTest() {
    CMFCRibbonPanelMenu::DismissAll();
    PumpPending();
}

CMFCRibbonPanelMenu& RibbonPopupTest::Popup() {
    if (CMFCRibbonPanelMenu* menu = CMFCRibbonPanelMenu::GetDeepest()) {
        return *menu;
    }
    throw std::runtime_error("no pop-up is open");
}

int RibbonPopupTest::OpenCount() {
    int count = 0;
    for (CMFCRibbonPanelMenu* menu = CMFCRibbonPanelMenu::GetDeepest(); menu != nullptr; menu = menu->GetParentMenu()) {
        ++count;
    }
    return count;
}

void RibbonPopupTest::Click(const CMFCRibbonBaseElement& element) { Click(element, element.GetRect().CenterPoint()); }

void RibbonPopupTest::Click(const CMFCRibbonBaseElement& element, CPoint at) {
    if (element.GetRect().IsRectEmpty()) {
        throw std::runtime_error("the element is not shown");
    }
    m_pointer.Click(element.GetParentWnd()->GetSafeHwnd(), at);
    PumpPending();
}

void RibbonPopupTest::MoveOver(const CMFCRibbonBaseElement& element) {
    m_pointer.MoveTo(element.GetParentWnd()->GetSafeHwnd(), element.GetRect().CenterPoint());
}

void RibbonPopupTest::Press(UINT key) {
    Keys(m_window).Press(key);
    PumpPending();
}

CMFCRibbonBaseElement* RibbonPopupTest::FindInQuickAccess(const CRuntimeClass* kind) {
    const CRect toolbar = Bar().GetQuickAccessToolbarLocation();
    for (int x = toolbar.left; x < toolbar.right; ++x) {
        CMFCRibbonBaseElement* hit = Bar().HitTest(CPoint(x, toolbar.CenterPoint().y));
        if (hit != nullptr && hit->IsKindOf(kind)) {
            return hit;
        }
    }
    return nullptr;
}

CMFCRibbonPanel& RibbonPopupTest::OpenCollapsedPanel() {
    CMFCRibbonPanel& panel = Collapse(0);
    Click(panel.GetDefaultButton());
    return panel;
}
