// Which categories a ribbon bar has, which of them it shows, and the searches through them.
#include "afxribbonbar.h"

#include "afxRibbonMainPanel.h"

#include <algorithm>
#include <utility>

#include "afxribbonpanelmenu.h"
#include "afxvisualmanager.h"
#include "fx/window_guard.h"
#include "ribbon/bar_parts.h"
#include "ribbon/element_walk.h"

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

namespace {

/// Closes what shows the active category, or was opened from it. The host hears of that and may do anything: false when
/// the bar has gone, or the category that is to follow.
bool ClosePopupsOfActive(CMFCRibbonBar& bar, CMFCRibbonCategory* next) {
    const RibbonBarParts& parts = bar.GetParts();
    const bool isInPopup = parts.ShownCategory() == nullptr;
    CMFCRibbonBaseElement* dropped = isInPopup ? nullptr : parts.active->GetDroppedDown();
    if (!isInPopup && dropped == nullptr) {
        return true;
    }
    const fx::WindowGuard guard(&bar);
    if (isInPopup) {
        CMFCRibbonPanelMenu::DismissAll();
    } else {
        dropped->ClosePopupMenu();
    }
    return guard.IsAlive() && (next == nullptr || bar.GetCategoryIndex(next) >= 0);
}

} // namespace

CMFCRibbonCategory* CMFCRibbonBar::AddCategory(LPCTSTR lpszName, UINT uiSmallImagesResID, UINT uiLargeImagesResID,
                                               CSize sizeSmallImage, CSize sizeLargeImage, int nInsertAt,
                                               CRuntimeClass* pRTI) {
    CRuntimeClass* runtimeClass = pRTI != nullptr ? pRTI : RUNTIME_CLASS(CMFCRibbonCategory);
    std::unique_ptr<CObject> object(runtimeClass->CreateObject());
    CMFCRibbonCategory* category = DYNAMIC_DOWNCAST(CMFCRibbonCategory, object.get());
    if (category == nullptr) {
        return nullptr;
    }
    category->CommonInit(this, lpszName, uiSmallImagesResID, uiLargeImagesResID, sizeSmallImage, sizeLargeImage);
    static_cast<void>(object.release()); // the list of categories owns it from here
    auto& categories = m_parts->categories;
    const bool appends = nInsertAt < 0 || static_cast<size_t>(nInsertAt) >= categories.size();
    categories.emplace(appends ? categories.end() : categories.begin() + nInsertAt, category);
    if (m_parts->active == nullptr) {
        SetActiveWithoutCheck(category);
    }
    MarkLayoutDirty();
    return category;
}

CMFCRibbonCategory* CMFCRibbonBar::AddContextCategory(LPCTSTR lpszName, LPCTSTR lpszContextName, UINT uiContextID,
                                                      AFX_RibbonCategoryColor clrContext, UINT uiSmallImagesResID,
                                                      UINT uiLargeImagesResID, CSize sizeSmallImage,
                                                      CSize sizeLargeImage, CRuntimeClass* pRTI) {
    if (uiContextID == 0) {
        return nullptr;
    }
    CMFCRibbonCategory* former = m_parts->active;
    CMFCRibbonCategory* category =
        AddCategory(lpszName, uiSmallImagesResID, uiLargeImagesResID, sizeSmallImage, sizeLargeImage, -1, pRTI);
    if (category == nullptr) {
        return nullptr;
    }
    category->SetContextID(uiContextID);
    category->SetVisible(FALSE);
    category->SetTabColor(clrContext);
    if (m_parts->active == category) {
        SetActiveWithoutCheck(former);
    }
    CString known;
    if (!GetContextName(uiContextID, known)) {
        auto caption = std::make_unique<CMFCRibbonContextCaption>();
        caption->SetParentRibbonBar(this);
        caption->SetText(lpszContextName);
        caption->SetContext(uiContextID, clrContext);
        m_parts->contexts.push_back({uiContextID, caption->GetText(), std::move(caption)});
    }
    return category;
}

CMFCRibbonMainPanel* CMFCRibbonBar::AddMainCategory(LPCTSTR lpszName, UINT uiSmallImagesResID, UINT uiLargeImagesResID,
                                                    CSize sizeSmallImage, CSize sizeLargeImage) {
    std::unique_ptr<CMFCRibbonCategory> category(
        static_cast<CMFCRibbonCategory*>(RUNTIME_CLASS(CMFCRibbonCategory)->CreateObject()));
    category->CommonInit(this, lpszName, uiSmallImagesResID, uiLargeImagesResID, sizeSmallImage, sizeLargeImage);
    auto* panel =
        static_cast<CMFCRibbonMainPanel*>(category->AddPanel(lpszName, nullptr, RUNTIME_CLASS(CMFCRibbonMainPanel)));
    if (m_parts->mainCategory != nullptr) {
        EndInput();
    }
    const std::unique_ptr<CMFCRibbonCategory> former = std::exchange(m_parts->mainCategory, std::move(category));
    return panel;
}

CMFCRibbonCategory* CMFCRibbonBar::GetMainCategory() const { return m_parts->mainCategory.get(); }

void CMFCRibbonBar::ShowContextCategories(UINT uiContextID, BOOL bShow) {
    for (int index = 0; index < GetCategoryCount(); ++index) {
        if (uiContextID != 0 && GetCategory(index)->GetContextID() == uiContextID) {
            ShowCategory(index, bShow);
        }
    }
}

BOOL CMFCRibbonBar::ActivateContextCategory(UINT uiContextID) {
    for (const auto& category : m_parts->categories) {
        if (uiContextID != 0 && category->GetContextID() == uiContextID && category->IsVisible()) {
            return SetActiveCategory(category.get());
        }
    }
    return FALSE;
}

BOOL CMFCRibbonBar::HideAllContextCategories() {
    BOOL hidden = FALSE;
    for (int index = 0; index < GetCategoryCount(); ++index) {
        if (GetCategory(index)->GetContextID() != 0 && GetCategory(index)->IsVisible()) {
            ShowCategory(index, FALSE);
            hidden = TRUE;
        }
    }
    return hidden;
}

BOOL CMFCRibbonBar::GetContextName(UINT uiContextID, CString& strName) const {
    for (const auto& context : m_parts->contexts) {
        if (context.id == uiContextID) {
            strName = context.name;
            return TRUE;
        }
    }
    return FALSE;
}

// What shows the category ends while bar and category are whole, and the category is out of the list before it goes:
// whoever hears of its end, or of that of one of its elements, may walk through the categories that are there.
BOOL CMFCRibbonBar::RemoveCategory(int nIndex) {
    CMFCRibbonCategory* category = GetCategory(nIndex);
    if (category == nullptr) {
        return FALSE;
    }
    EndUseOf(*category);
    const int place = GetCategoryIndex(category);
    if (place < 0) {
        return TRUE; // host code that ran meanwhile has removed it
    }
    m_parts->hotPanel = nullptr;
    if (m_parts->active == category) {
        m_parts->active = nullptr;
    }
    if (m_parts->activeBeforeContext == category) {
        m_parts->activeBeforeContext = nullptr;
    }
    {
        const std::unique_ptr<CMFCRibbonCategory> gone = std::move(m_parts->categories[static_cast<size_t>(place)]);
        m_parts->categories.erase(m_parts->categories.begin() + place);
    }
    if (m_parts->active == nullptr) {
        SetActiveWithoutCheck(FirstVisibleCategory());
    }
    MarkLayoutDirty();
    return TRUE;
}

void CMFCRibbonBar::RemoveAllCategories() {
    EndInput();
    m_parts->hotPanel = nullptr;
    m_parts->active = nullptr;
    m_parts->activeBeforeContext = nullptr;
    m_parts->quickAccess.RemoveAll();
    {
        const auto contexts = std::exchange(m_parts->contexts, {});
        const auto categories = std::exchange(m_parts->categories, {});
    }
    if (!m_parts->quickAccessChosen) {
        ApplyDefaultQuickAccess();
    }
    MarkLayoutDirty();
}

void CMFCRibbonBar::EndInput() {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    if (CMFCRibbonPanelMenu::IsAnyOpenOf(*this)) {
        CMFCRibbonPanelMenu::DismissAll();
    }
    m_parts->keyboard->Deactivate(RibbonKeyboard::Focus::GiveBack);
    CancelPress();
    PopTooltip();
}

// Others may go on: a menu of the host's, the key tips of the tabs.
void CMFCRibbonBar::EndUseOf(const CMFCRibbonCategory& category) {
    if (&category == m_parts->active) {
        EndInput();
    } else if (CMFCRibbonPanelMenu* menu = CMFCRibbonPanelMenu::GetOutermostOf(category)) {
        menu->Dismiss();
    }
}

void CMFCRibbonBar::OnPanelGoing(CMFCRibbonPanel& panel) {
    if (m_parts == nullptr) {
        return;
    }
    m_parts->hotPanel = nullptr;
    if (panel.GetParentCategory() == m_parts->active || panel.GetParentMenuBar() != nullptr) {
        EndInput();
    }
}

void CMFCRibbonBar::ShowCategory(int nIndex, BOOL bShow) {
    CMFCRibbonCategory* category = GetCategory(nIndex);
    if (category == nullptr || !category->IsVisible() == !bShow) {
        return;
    }
    category->SetVisible(bShow);
    MarkLayoutDirty();
    // Last: the host may do anything when pop-ups close.
    if (!bShow && m_parts->active == category) {
        CMFCRibbonCategory* former = m_parts->activeBeforeContext;
        const bool goesBack = category->GetContextID() != 0 && former != nullptr && former->IsVisible();
        SetActiveWithoutCheck(goesBack ? former : FirstVisibleCategory());
    } else if (bShow && m_parts->active == nullptr) {
        SetActiveWithoutCheck(category);
    }
}

BOOL CMFCRibbonBar::SetActiveCategory(CMFCRibbonCategory* pCategory, BOOL bForceRestore) {
    if (pCategory == nullptr || GetCategoryIndex(pCategory) < 0 || !pCategory->IsVisible()) {
        return FALSE;
    }
    if (bForceRestore && m_parts->minimized) {
        m_parts->minimized = false;
        MarkLayoutDirty();
    }
    SetActiveWithoutCheck(pCategory);
    return TRUE;
}

void CMFCRibbonBar::SetActiveWithoutCheck(CMFCRibbonCategory* category) {
    const bool closes = m_parts->active != category && m_parts->active != nullptr;
    if ((closes && !ClosePopupsOfActive(*this, category)) || m_parts->active == category) {
        return;
    }
    if (m_parts->active != nullptr) {
        CancelPress();
        m_parts->hotPanel = nullptr;
        CMFCRibbonBaseElement* hot = m_parts->pointer.GetHot();
        if (hot != nullptr && hot->GetParentPanel() != nullptr) {
            m_parts->pointer.ForgetHot();
            hot->SetHighlighted(FALSE);
        }
        m_parts->active->SetActive(FALSE);
    }
    m_parts->active = category;
    if (category != nullptr) {
        if (category->GetContextID() == 0) {
            m_parts->activeBeforeContext = category;
        }
        category->SetActive(TRUE);
    }
    MarkLayoutDirty();
}

void CMFCRibbonBar::OnTabPressed(CMFCRibbonTab& tab) {
    CMFCRibbonCategory* category = tab.GetParentCategory();
    if (category == nullptr) {
        return;
    }
    if (m_parts->minimized && tab.IsDroppedDown()) {
        tab.ClosePopupMenu();
        return;
    }
    const bool changes = !category->IsActive();
    if (changes && !SetActiveCategory(category)) {
        return;
    }
    const fx::WindowGuard guard(this);
    if (m_parts->minimized) {
        tab.OnShowPopupMenu();
    }
    // The host may do anything; it comes last.
    if (changes && guard.IsAlive()) {
        NotifyCategoryChanged();
    }
}

// The panels of a minimised bar, below its tabs.
void CMFCRibbonBar::OpenCategory(CMFCRibbonTab& tab) {
    CMFCRibbonCategory* category = tab.GetParentCategory();
    if (category == nullptr || category->GetParentMenuBar() != nullptr) {
        return;
    }
    CRect row;
    GetClientRect(row);
    row.top = row.bottom = tab.GetRect().bottom;
    const int border = CMFCVisualManager::GetInstance()->GetRibbonPopupBorderSize(nullptr);
    const CSize size(row.Width() - 2 * border, GetMetrics().CategoryHeight());
    auto* menu = new CMFCRibbonPanelMenu(category, size);
    menu->OpenAt(this, row, CMFCRibbonPanelMenu::Side::Below, &tab);
}

CMFCRibbonCategory* CMFCRibbonBar::FirstVisibleCategory() const {
    for (const auto& category : m_parts->categories) {
        if (category->IsVisible()) {
            return category.get();
        }
    }
    return nullptr;
}

CMFCRibbonCategory* CMFCRibbonBar::GetActiveCategory() const { return m_parts->active; }

CMFCRibbonCategory* CMFCRibbonBar::GetCategory(int nIndex) const {
    const bool exists = nIndex >= 0 && nIndex < GetCategoryCount();
    return exists ? m_parts->categories[static_cast<size_t>(nIndex)].get() : nullptr;
}

int CMFCRibbonBar::GetCategoryCount() const { return static_cast<int>(m_parts->categories.size()); }

int CMFCRibbonBar::GetVisibleCategoryCount() const {
    return static_cast<int>(std::count_if(m_parts->categories.begin(), m_parts->categories.end(),
                                          [](const auto& category) { return category->IsVisible() != FALSE; }));
}

int CMFCRibbonBar::GetCategoryIndex(CMFCRibbonCategory* pCategory) const {
    for (int index = 0; index < GetCategoryCount(); ++index) {
        if (GetCategory(index) == pCategory) {
            return index;
        }
    }
    return -1;
}

int CMFCRibbonBar::FindCategoryIndexByData(DWORD dwData) const {
    for (int index = 0; index < GetCategoryCount(); ++index) {
        if (GetCategory(index)->GetData() == dwData) {
            return index;
        }
    }
    return -1;
}

void CMFCRibbonBar::GetBarElements(ElementArray& arElements) const {
    for (const auto& element : m_parts->tabElements) {
        arElements.Add(element.get());
    }
}

CMFCRibbonBaseElement* CMFCRibbonBar::FindByID(UINT uiCmdID, BOOL bVisibleOnly, BOOL bExcludeQAT) const {
    for (const auto& category : m_parts->categories) {
        if (bVisibleOnly && !category->IsVisible()) {
            continue;
        }
        if (CMFCRibbonBaseElement* found = category->FindByID(uiCmdID, bVisibleOnly)) {
            return found;
        }
    }
    ElementArray own;
    GetBarElements(own);
    for (INT_PTR index = 0; index < own.GetSize(); ++index) {
        if (CMFCRibbonBaseElement* found = ribbon::FindByID(*own[index], uiCmdID, bVisibleOnly)) {
            return found;
        }
    }
    if (m_parts->applicationButton != nullptr) {
        if (CMFCRibbonBaseElement* found = ribbon::FindByID(*m_parts->applicationButton, uiCmdID, bVisibleOnly)) {
            return found;
        }
    }
    if (m_parts->mainCategory != nullptr) {
        if (CMFCRibbonBaseElement* found = m_parts->mainCategory->FindByID(uiCmdID, bVisibleOnly)) {
            return found;
        }
    }
    return bExcludeQAT ? nullptr : m_parts->quickAccess.FindByID(uiCmdID);
}

CMFCRibbonBaseElement* CMFCRibbonBar::FindByData(DWORD_PTR dwData, BOOL bVisibleOnly) const {
    for (const auto& category : m_parts->categories) {
        if (bVisibleOnly && !category->IsVisible()) {
            continue;
        }
        if (CMFCRibbonBaseElement* found = category->FindByData(dwData, bVisibleOnly)) {
            return found;
        }
    }
    ElementArray own;
    GetBarElements(own);
    for (INT_PTR index = 0; index < own.GetSize(); ++index) {
        if (CMFCRibbonBaseElement* found = ribbon::FindByData(*own[index], dwData, bVisibleOnly)) {
            return found;
        }
    }
    return nullptr;
}

void CMFCRibbonBar::GetElementsByID(UINT uiCmdID, ElementArray& arButtons) {
    arButtons.RemoveAll();
    for (const auto& category : m_parts->categories) {
        category->GetElementsByID(uiCmdID, arButtons);
    }
    ElementArray own;
    GetBarElements(own);
    for (INT_PTR index = 0; index < own.GetSize(); ++index) {
        own[index]->GetElementsByID(uiCmdID, arButtons);
    }
    if (m_parts->applicationButton != nullptr) {
        m_parts->applicationButton->GetElementsByID(uiCmdID, arButtons);
    }
    if (m_parts->mainCategory != nullptr) {
        m_parts->mainCategory->GetElementsByID(uiCmdID, arButtons);
    }
    m_parts->quickAccess.GetElementsByID(uiCmdID, arButtons);
}

void CMFCRibbonBar::GetItemIDsList(CList<UINT, UINT>& lstItems, BOOL bHiddenOnly) const {
    lstItems.RemoveAll();
    for (const auto& category : m_parts->categories) {
        category->GetItemIDsList(lstItems, bHiddenOnly);
    }
}

BOOL CMFCRibbonBar::SetElementKeys(UINT uiCmdID, LPCTSTR lpszKeys, LPCTSTR lpszMenuKeys) {
    ElementArray elements;
    GetElementsByID(uiCmdID, elements);
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        elements[index]->SetKeys(lpszKeys, lpszMenuKeys);
    }
    return elements.GetSize() > 0;
}

CMFCRibbonBaseElement* CMFCRibbonBar::GetDroppedDown() {
    if (CMFCRibbonBaseElement* dropped = GetQATDroppedDown()) {
        return dropped;
    }
    if (m_parts->applicationButton != nullptr && m_parts->applicationButton->IsDroppedDown()) {
        return m_parts->applicationButton;
    }
    ElementArray own;
    GetBarElements(own);
    for (INT_PTR index = 0; index < own.GetSize(); ++index) {
        if (CMFCRibbonBaseElement* dropped = own[index]->GetDroppedDown()) {
            return dropped;
        }
    }
    return m_parts->active != nullptr ? m_parts->active->GetDroppedDown() : nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonBar::HitTest(CPoint point, BOOL bCheckActiveCategory, BOOL bCheckPanelCaption) {
    EnsureLayout();
    if (m_parts->applicationButton != nullptr) {
        if (CMFCRibbonBaseElement* hit = m_parts->applicationButton->HitTest(point)) {
            return hit;
        }
    }
    if (CMFCRibbonBaseElement* hit = HitTestCaptionElements(point)) {
        return hit;
    }
    if (CMFCRibbonBaseElement* hit = m_parts->quickAccess.HitTest(point)) {
        return hit;
    }
    for (const auto& element : m_parts->tabElements) {
        if (CMFCRibbonBaseElement* hit = element->HitTest(point)) {
            return hit;
        }
    }
    for (const auto& category : m_parts->categories) {
        if (CMFCRibbonBaseElement* hit = category->GetTabElement().HitTest(point)) {
            return hit;
        }
    }
    if (bCheckActiveCategory && m_parts->ShownCategory() != nullptr) {
        return m_parts->active->HitTest(point, bCheckPanelCaption);
    }
    return nullptr;
}
