// What a ribbon pop-up shows: lending, searches, state.
#include "afxribbonpanelmenu.h"

#include <algorithm>

#include "afxribbonbar.h"
#include "afxRibbonLabel.h"
#include "afxRibbonMainPanel.h"
#include "fx/window_guard.h"
#include "ribbon/element_metrics.h"
#include "ribbon/panel_menu_parts.h"

IMPLEMENT_DYNCREATE(CMFCRibbonPanelMenuBar, CMFCPopupMenuBar)

CMFCRibbonPanelMenuBar::CMFCRibbonPanelMenuBar() : m_parts(std::make_shared<RibbonPanelMenuParts>(*this)) {}

CMFCRibbonPanelMenuBar::CMFCRibbonPanelMenuBar(CMFCRibbonPanel* pPanel) : CMFCRibbonPanelMenuBar() {
    m_parts->mainPanel = DYNAMIC_DOWNCAST(CMFCRibbonMainPanel, pPanel);
    m_parts->look = m_parts->mainPanel != nullptr ? RibbonPopupLook::MainPanel : RibbonPopupLook::Panel;
    m_parts->source = pPanel;
}

CMFCRibbonPanelMenuBar::CMFCRibbonPanelMenuBar(CMFCRibbonCategory* pCategory, CSize size) : CMFCRibbonPanelMenuBar() {
    m_parts->look = RibbonPopupLook::Category;
    m_parts->category = pCategory;
    m_parts->categorySize = size;
}

CMFCRibbonPanelMenuBar::CMFCRibbonPanelMenuBar(const ElementArray& arButtons, BOOL bIsFloatyMode)
    : CMFCRibbonPanelMenuBar() {
    m_parts->look = bIsFloatyMode ? RibbonPopupLook::Lines : RibbonPopupLook::Menu;
    for (INT_PTR index = 0; index < arButtons.GetSize(); ++index) {
        m_parts->shown.push_back(arButtons[index]);
    }
}

CMFCRibbonPanelMenuBar::~CMFCRibbonPanelMenuBar() {
    if (GetSafeHwnd() != nullptr) {
        DestroyWindow();
    }
    GiveBack();
}

BOOL CMFCRibbonPanelMenuBar::CreateBar(CWnd* pParent) {
    if (GetSafeHwnd() != nullptr) {
        return TRUE;
    }
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    return CPane::CreateEx(0, windowClass, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0),
                           pParent, AFX_IDW_TOOLBAR);
}

CMFCRibbonPanelMenu* CMFCRibbonPanelMenuBar::GetMenu() const {
    return DYNAMIC_DOWNCAST(CMFCRibbonPanelMenu, CWnd::FromHandlePermanent(::GetParent(GetSafeHwnd())));
}

RibbonPopupLook CMFCRibbonPanelMenuBar::GetLook() const { return m_parts->look; }

// ---- lending

void CMFCRibbonPanelMenuBar::AddOwnElement(std::unique_ptr<CMFCRibbonBaseElement> element) {
    m_parts->shown.push_back(element.get());
    m_parts->owned.push_back(std::move(element));
}

void CMFCRibbonPanelMenuBar::LendElement(CMFCRibbonBaseElement* pElement) {
    m_parts->loans.push_back({pElement, pElement->IsCompactMode(), pElement->IsIntermediateMode(),
                              pElement->IsMenuMode(), pElement->GetOwnParentWnd(), pElement->GetParentMenu(),
                              pElement->GetRect()});
    // A window of the element's belongs to its former parent window.
    pElement->DestroyCtrl();
    pElement->SetHighlighted(FALSE);
    pElement->SetParentWnd(this);
    pElement->SetParentMenu(this);
    pElement->SetMenuMode(IsMenuMode());
    pElement->CleanUpSizes();
}

void CMFCRibbonPanelMenuBar::SetOpener(const CMFCRibbonBaseElement& opener) {
    const CWnd* target = opener.GetCommandTarget();
    m_parts->commandWindow = target != nullptr ? CWnd::FromHandlePermanent(target->GetSafeHwnd()) : nullptr;
    SetOwner(m_parts->commandWindow);
}

void CMFCRibbonPanelMenuBar::Lend() {
    if (std::exchange(m_parts->isLent, true)) {
        return;
    }
    if (m_parts->category != nullptr) {
        CMFCRibbonCategory& category = *m_parts->category;
        for (int index = 0; index < category.GetPanelCount(); ++index) {
            CMFCRibbonPanel& panel = *category.GetPanel(index);
            for (int position = 0; position < panel.GetCount(); ++position) {
                LendElement(panel.GetElement(position));
            }
            LendElement(&panel.GetLaunchButton());
            LendElement(&panel.GetDefaultButton());
        }
        LendElement(&category.GetScrollLeft());
        LendElement(&category.GetScrollRight());
        category.SetParentMenuBar(this);
        return;
    }
    CMFCRibbonCategory* category = nullptr;
    if (m_parts->source != nullptr) {
        category = m_parts->source->GetParentCategory();
        if (m_parts->mainPanel != nullptr) {
            m_parts->mainPanel->UpdateRecentFiles();
        }
        m_parts->source->SetParentMenuBar(this);
        for (int position = 0; position < m_parts->source->GetCount(); ++position) {
            m_parts->shown.push_back(m_parts->source->GetElement(position));
        }
    }
    m_parts->panel =
        std::make_unique<LentPanel>(m_parts->source != nullptr ? m_parts->source->GetName() : L"", IsMenuMode());
    m_parts->panel->Set(category, this);
    for (CMFCRibbonBaseElement* element : m_parts->shown) {
        m_parts->panel->Show(element);
        LendElement(element);
    }
    if (m_parts->look == RibbonPopupLook::Panel && m_parts->source->HasLaunchButton()) {
        CMFCRibbonLaunchButton& launch = m_parts->source->LaunchButton();
        m_parts->panel->ShowLaunchButton(launch);
        m_parts->shown.push_back(&launch);
        LendElement(&launch);
    }
}

void CMFCRibbonPanelMenuBar::GiveBack() {
    if (!std::exchange(m_parts->isLent, false)) {
        return;
    }
    CancelPress();
    PopTooltip();
    if (m_parts->access != nullptr) {
        m_parts->access->Disconnect();
    }
    const std::shared_ptr<RibbonPanelMenuParts> parts = m_parts;
    parts->pointer.ForgetHot();
    parts->pointer.ForgetReleased();
    // An edit that loses its window sends its command, whose handler may delete anything.
    while (!parts->loans.empty()) {
        const RibbonLoan loan = parts->loans.back();
        parts->loans.pop_back();
        parts->returning = loan.element;
        GiveBackElement(loan, *parts);
    }
    parts->returning = nullptr;
    parts->shown.clear();
    if (parts->panel != nullptr) {
        parts->panel->ForgetAll();
    }
    if (parts->source != nullptr) {
        parts->source->SetParentMenuBar(nullptr);
    }
    if (CMFCRibbonCategory* category = std::exchange(parts->category, nullptr)) {
        category->SetParentMenuBar(nullptr);
        category->SetRect(CRect(0, 0, 0, 0));
        category->HideElements(nullptr);
        category->MarkLayoutDirty();
    }
    parts->source = nullptr;
    parts->mainPanel = nullptr;
}

void CMFCRibbonPanelMenuBar::GiveBackElement(const RibbonLoan& loan, const RibbonPanelMenuParts& parts) {
    CMFCRibbonBaseElement& element = *loan.element;
    element.SetHighlighted(FALSE);
    element.SetPressed(FALSE);
    element.OnShow(FALSE);
    element.DestroyCtrl();
    if (parts.returning == nullptr) {
        return;
    }
    element.SetParentMenu(loan.parentMenu);
    element.SetParentWnd(loan.parentWindow);
    if (element.GetParentWnd() == nullptr) {
        // Outside of a bar the window of what opened the pop-up receives its command.
        element.SetParentWnd(parts.commandWindow);
    }
    element.SetMenuMode(loan.isMenuMode);
    element.SetCompactMode(loan.isCompact);
    element.SetIntermediateMode(loan.isIntermediate);
    element.SetRect(loan.rect);
    element.CleanUpSizes();
    element.OnAfterChangeRect(nullptr);
}

void CMFCRibbonPanelMenuBar::OnElementDestroyed(CMFCRibbonBaseElement* pElement) {
    m_parts->pointer.Forget(pElement);
    if (m_parts->access != nullptr) {
        m_parts->access->Forget(*pElement);
    }
    if (m_parts->returning == pElement) {
        m_parts->returning = nullptr;
    }
    std::erase_if(m_parts->loans, [pElement](const RibbonLoan& loan) { return loan.element == pElement; });
    std::erase(m_parts->shown, pElement);
    CMFCRibbonPanelMenu* menu = GetMenu();
    if (menu != nullptr && menu->GetParentMenu() != nullptr) {
        menu->GetParentMenu()->GetRibbonMenuBar().OnElementDestroyed(pElement);
    }
    if (m_parts->panel != nullptr) {
        m_parts->panel->Forget(pElement);
    }
    MarkLayoutDirty();
}

void CMFCRibbonPanelMenuBar::OnPanelDestroyed(CMFCRibbonPanel* pPanel) {
    if (m_parts->source == pPanel) {
        m_parts->source = nullptr;
        m_parts->mainPanel = nullptr;
    }
    if (CMFCRibbonPanelMenu* menu = GetMenu()) {
        menu->Dismiss();
    }
}

void CMFCRibbonPanelMenuBar::OnCategoryDestroyed() {
    m_parts->category = nullptr;
    if (CMFCRibbonPanelMenu* menu = GetMenu()) {
        menu->Dismiss();
    }
}

// ---- what it is

CMFCRibbonPanel* CMFCRibbonPanelMenuBar::GetPanel() const {
    return m_parts->source != nullptr ? m_parts->source : m_parts->panel.get();
}

CMFCRibbonCategory* CMFCRibbonPanelMenuBar::GetCategory() const { return m_parts->category; }

BOOL CMFCRibbonPanelMenuBar::IsMenuMode() const {
    return m_parts->look == RibbonPopupLook::Menu || m_parts->look == RibbonPopupLook::MainPanel;
}

BOOL CMFCRibbonPanelMenuBar::IsMainPanel() const { return m_parts->look == RibbonPopupLook::MainPanel; }

BOOL CMFCRibbonPanelMenuBar::IsRibbonPanelInRegularMode() const { return !IsMenuMode(); }

void CMFCRibbonPanelMenuBar::SetDefaultMenuLook(BOOL bSet) { m_parts->defaultMenuLook = bSet != FALSE; }

BOOL CMFCRibbonPanelMenuBar::IsDefaultMenuLook() const { return m_parts->defaultMenuLook; }

int CMFCRibbonPanelMenuBar::GetImageColumnWidth(const CMFCRibbonButton* pButton) const {
    return m_parts->mainPanel != nullptr ? m_parts->mainPanel->GetImageColumnWidth(pButton) : m_parts->imageColumn;
}

BOOL CMFCRibbonPanelMenuBar::HasLargeRows(const CMFCRibbonButton* pButton) const {
    if (m_parts->defaultMenuLook) {
        return FALSE;
    }
    if (m_parts->mainPanel != nullptr) {
        return m_parts->mainPanel->HasLargeRow(pButton);
    }
    return pButton->IsAlwaysLargeImage();
}

// ---- searches

CMFCRibbonBaseElement* CMFCRibbonPanelMenuBar::HitTest(CPoint point) const {
    if (m_parts->category != nullptr) {
        return m_parts->category->HitTest(point);
    }
    for (CMFCRibbonBaseElement* element : m_parts->shown) {
        CMFCRibbonBaseElement* hit = element->GetRect().IsRectEmpty() ? nullptr : element->HitTest(point);
        if (hit != nullptr) {
            return hit;
        }
    }
    return nullptr;
}

int CMFCRibbonPanelMenuBar::HitTestEx(CPoint point) const {
    if (m_parts->category != nullptr) {
        return m_parts->category->HitTestEx(point);
    }
    // The launch button, behind the elements, is none of them.
    const size_t count = m_parts->panel != nullptr ? static_cast<size_t>(m_parts->panel->GetCount()) : 0;
    for (size_t index = 0; index < count; ++index) {
        if (m_parts->shown[index]->GetRect().PtInRect(point)) {
            return static_cast<int>(index);
        }
    }
    return -1;
}

CMFCRibbonBaseElement* CMFCRibbonPanelMenuBar::FindByOrigin(CMFCRibbonBaseElement* pOrigin) const {
    for (const RibbonLoan& loan : m_parts->loans) {
        if (CMFCRibbonBaseElement* found = loan.element->Find(pOrigin)) {
            return found;
        }
        if (CMFCRibbonBaseElement* found = pOrigin != nullptr ? loan.element->FindByOriginal(pOrigin) : nullptr) {
            return found;
        }
    }
    return nullptr;
}

// Those that can be seen, buttons of groups instead of the groups.
void CMFCRibbonPanelMenuBar::GetElements(ElementArray& arElements) const {
    if (m_parts->category != nullptr) {
        m_parts->category->GetVisibleElements(arElements);
        return;
    }
    for (CMFCRibbonBaseElement* element : m_parts->shown) {
        if (!element->GetRect().IsRectEmpty()) {
            element->GetElements(arElements);
        }
    }
}

const std::vector<CMFCRibbonBaseElement*>& CMFCRibbonPanelMenuBar::GetShown() const { return m_parts->shown; }

CMFCRibbonBaseElement* CMFCRibbonPanelMenuBar::GetHighlighted() const { return m_parts->pointer.GetHot(); }

HWND CMFCRibbonPanelMenuBar::GetPopupWindow() const {
    const CMFCRibbonPanelMenu* menu = GetMenu();
    return menu != nullptr ? menu->GetSafeHwnd() : nullptr;
}

// ---- command updates

void CMFCRibbonPanelMenuBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    CMFCRibbonPanelMenu* menu = GetMenu();
    CFrameWnd* frame = menu != nullptr ? menu->GetCommandFrame() : nullptr;
    UpdateElements(frame != nullptr ? frame : pTarget, bDisableIfNoHndler && frame != nullptr);
}

// An update handler of the host's may take elements away.
void CMFCRibbonPanelMenuBar::UpdateElements(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    if (pTarget == nullptr || !m_parts->isLent) {
        return;
    }
    CMFCRibbonCmdUI update;
    update.m_pOther = this;
    const fx::WindowGuard guard(this);
    std::vector<CMFCRibbonBaseElement*> elements;
    for (const RibbonLoan& loan : m_parts->loans) {
        elements.push_back(loan.element);
    }
    for (CMFCRibbonBaseElement* element : elements) {
        const bool isStillLent = std::any_of(m_parts->loans.begin(), m_parts->loans.end(),
                                             [element](const RibbonLoan& loan) { return loan.element == element; });
        if (isStillLent) {
            element->OnUpdateCmdUI(&update, pTarget, bDisableIfNoHndler);
        }
        if (guard.IsGone()) {
            return;
        }
    }
}
