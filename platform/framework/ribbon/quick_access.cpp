#include "afxribbonquickaccesstoolbar.h"

#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxvisualmanager.h"
#include "ribbon/bar_menus.h"
#include "ribbon/element_metrics.h"
#include "ribbon/metrics.h"
#include "visual/manager_instance.h"

// ---- the default state

CMFCRibbonQuickAccessToolBarDefaultState::CMFCRibbonQuickAccessToolBarDefaultState() = default;

void CMFCRibbonQuickAccessToolBarDefaultState::AddCommand(UINT uiCmd, BOOL bIsVisible) {
    m_arCommands.Add(uiCmd);
    m_arVisibleState.Add(bIsVisible);
}

void CMFCRibbonQuickAccessToolBarDefaultState::CopyFrom(const CMFCRibbonQuickAccessToolBarDefaultState& src) {
    if (&src != this) {
        m_arCommands.Copy(src.m_arCommands);
        m_arVisibleState.Copy(src.m_arVisibleState);
    }
}

void CMFCRibbonQuickAccessToolBarDefaultState::RemoveAll() {
    m_arCommands.RemoveAll();
    m_arVisibleState.RemoveAll();
}

void CMFCRibbonQuickAccessToolBarDefaultState::GetVisibleCommands(CList<UINT, UINT>& lstCommands) const {
    for (INT_PTR index = 0; index < m_arCommands.GetSize(); ++index) {
        if (m_arVisibleState[index]) {
            lstCommands.AddTail(m_arCommands[index]);
        }
    }
}

// ---- the button that opens the menu

IMPLEMENT_DYNCREATE(CMFCRibbonQuickAccessCustomizeButton, CMFCRibbonButton)

CString CMFCRibbonQuickAccessCustomizeButton::GetToolTipText() const {
    return m_strToolTip.IsEmpty() ? RibbonText(RibbonTextId::QuickAccessCustomize) : m_strToolTip;
}

CSize CMFCRibbonQuickAccessCustomizeButton::GetCompactSize(CDC* /*pDC*/) {
    const int height = afxGlobalData.ScalePixels(22);
    return {afxGlobalData.ScalePixels(13), height};
}

void CMFCRibbonQuickAccessCustomizeButton::OnDraw(CDC* pDC) {
    const COLORREF onFace = OnFillBackground(pDC);
    OnDrawBorder(pDC);
    // Below the ribbon, and on a face of its own, it does not lie on the caption.
    const CMFCRibbonBar* bar = GetTopLevelRibbonBar();
    const bool isOnCaption = bar == nullptr || bar->IsQuickAccessToolbarOnTop();
    const bool hasFace = IsHighlighted() || IsPressed() || IsFocused() || IsDroppedDown();
    const COLORREF color = isOnCaption && !hasFace
                               ? CMFCVisualManager::GetInstance()->GetRibbonQuickAccessToolBarTextColor(IsDisabled())
                               : ribbon::TextColor(pDC, onFace, IsDisabled());
    const visual::Look look = visual::CurrentLook();
    const int half = look.Px(3), step = look.Px(3); // of the line, and from it to the middle of the arrow
    const CPoint middle = m_rect.CenterPoint();
    visual::PaintSolid(*pDC, {middle.x - half, middle.y - step, middle.x + half + 1, middle.y - step + look.Line()},
                       visual::FromColorRef(color));
    CRect arrow = m_rect;
    arrow.OffsetRect(0, step / 2 + 1);
    visual::PaintChevron(*pDC, arrow, visual::ArrowDirection::Down, visual::FromColorRef(color), look);
}

void CMFCRibbonQuickAccessCustomizeButton::OnShowPopupMenu() {
    CMFCRibbonBar* bar = GetTopLevelRibbonBar();
    if (IsDroppedDown() || bar == nullptr) {
        ClosePopupMenu();
        return;
    }
    CMFCRibbonBaseElement::OnShowPopupMenu();
    CPoint corner(m_rect.left, m_rect.bottom);
    bar->ClientToScreen(&corner);
    bar->OnShowRibbonQATMenu(bar, corner.x, corner.y, this);
}

// ---- the toolbar

namespace {

/// An element without room has no rectangle, or one in the pop-up that shows it.
bool IsShownHere(const CMFCRibbonBaseElement& element) {
    return element.GetParentMenu() == nullptr && !element.GetRect().IsRectEmpty();
}

} // namespace

IMPLEMENT_DYNCREATE(CMFCRibbonQuickAccessToolBar, CMFCRibbonButtonsGroup)

CMFCRibbonQuickAccessToolBar::CMFCRibbonQuickAccessToolBar() : m_rectCommands(0, 0, 0, 0) {}

CMFCRibbonQuickAccessToolBar::~CMFCRibbonQuickAccessToolBar() = default;

CMFCRibbonBaseElement* CMFCRibbonQuickAccessToolBar::MakeCopy(CMFCRibbonBaseElement& source) const {
    if (!source.CanBeAddedToQuickAccessToolBar()) {
        return nullptr;
    }
    CObject* object = source.GetRuntimeClass()->CreateObject();
    CMFCRibbonBaseElement* copy = DYNAMIC_DOWNCAST(CMFCRibbonBaseElement, object);
    if (copy == nullptr) {
        delete object;
        return nullptr;
    }
    copy->CopyFrom(source);
    copy->CopyStateFrom(&source);
    copy->SetParentCategory(source.GetParentCategory());
    copy->SetParentRibbonBar(source.GetParentRibbonBar());
    copy->SetParentPanel(nullptr);
    copy->SetQATMode(TRUE);
    copy->SetVisible(TRUE);
    copy->SetInitialMode(TRUE);
    copy->SetCompactMode(TRUE);
    copy->SetIntermediateMode(!copy->IsCompactMode());
    auto* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, copy);
    if (button != nullptr && button->GetOriginal() == &source) {
        button->FollowOriginal();
    }
    return copy;
}

void CMFCRibbonQuickAccessToolBar::Append(CMFCRibbonBaseElement* copy, const CMFCRibbonBaseElement* source) {
    m_arButtons.Add(copy);
    if (source != nullptr) {
        m_copies[source] = copy;
        m_sources[copy] = source;
    }
}

BOOL CMFCRibbonQuickAccessToolBar::Add(CMFCRibbonBaseElement* pElem) {
    if (pElem == nullptr || HasCopyOf(pElem)) {
        return FALSE;
    }
    CMFCRibbonBaseElement* copy = MakeCopy(*pElem);
    if (copy == nullptr) {
        return FALSE;
    }
    Append(copy, pElem);
    return TRUE;
}

CMFCRibbonBaseElement* CMFCRibbonQuickAccessToolBar::FindCopyByID(UINT uiCmdID) const {
    for (int position = 0; position < GetCount(); ++position) {
        if (m_arButtons[position]->GetID() == uiCmdID && !m_arButtons[position]->IsSeparator()) {
            return m_arButtons[position];
        }
    }
    return nullptr;
}

BOOL CMFCRibbonQuickAccessToolBar::Remove(CMFCRibbonBaseElement* pElem) {
    const auto known = m_copies.find(pElem);
    const CMFCRibbonBaseElement* copy = known != m_copies.end() ? known->second : pElem;
    for (int position = 0; position < GetCount(); ++position) {
        if (m_arButtons[position] == copy) {
            DeleteAt(position);
            return TRUE;
        }
    }
    return FALSE;
}

void CMFCRibbonQuickAccessToolBar::DeleteAt(int position) {
    CMFCRibbonBaseElement* copy = m_arButtons[position];
    m_arButtons.RemoveAt(position);
    if (const auto known = m_sources.find(copy); known != m_sources.end()) {
        m_copies.erase(known->second);
        m_sources.erase(known);
    }
    delete copy;
}

void CMFCRibbonQuickAccessToolBar::RemoveAll() {
    m_copies.clear();
    m_sources.clear();
    CMFCRibbonButtonsGroup::RemoveAll();
}

BOOL CMFCRibbonQuickAccessToolBar::OnOriginalDestroyed(const CMFCRibbonBaseElement* original) {
    const auto known = m_copies.find(original);
    return known != m_copies.end() && Remove(known->second);
}

void CMFCRibbonQuickAccessToolBar::SetCommands(CMFCRibbonBar* pRibbonBar, const CList<UINT, UINT>& lstCommands) {
    if (pRibbonBar == nullptr) {
        RemoveAll();
        return;
    }
    Originals originals;
    for (POSITION position = lstCommands.GetHeadPosition(); position != nullptr;) {
        originals.emplace(lstCommands.GetNext(position), nullptr);
    }
    pRibbonBar->FindQuickAccessOriginals(originals);
    SetCommands(lstCommands, originals);
}

void CMFCRibbonQuickAccessToolBar::SetCommands(const CList<UINT, UINT>& commands, const Originals& originals) {
    RemoveAll();
    for (POSITION position = commands.GetHeadPosition(); position != nullptr;) {
        const UINT id = commands.GetNext(position);
        if (id == 0) {
            auto* separator = new CMFCRibbonSeparator;
            separator->SetParentRibbonBar(GetParentRibbonBar());
            separator->SetQATMode(TRUE);
            Append(separator, nullptr);
        } else if (const auto original = originals.find(id); original != originals.end()) {
            Add(original->second);
        }
    }
}

void CMFCRibbonQuickAccessToolBar::ReplaceCommands(const CList<UINT, UINT>& lstCommands) {
    SetCommands(GetParentRibbonBar(), lstCommands);
}

void CMFCRibbonQuickAccessToolBar::GetCommands(CList<UINT, UINT>& lstCommands) const {
    lstCommands.RemoveAll();
    for (int position = 0; position < GetCount(); ++position) {
        if (!m_arButtons[position]->IsSeparator()) {
            lstCommands.AddTail(m_arButtons[position]->GetID());
        }
    }
}

CSize CMFCRibbonQuickAccessToolBar::GetRegularSize(CDC* pDC) {
    CSize total = m_btnCustomize.GetRegularSize(pDC);
    for (int position = 0; position < GetCount(); ++position) {
        m_arButtons[position]->OnCalcTextSize(pDC);
        const CSize size = m_arButtons[position]->GetSize(pDC);
        total.cx += size.cx;
        total.cy = std::max(total.cy, size.cy);
    }
    return total;
}

void CMFCRibbonQuickAccessToolBar::OnAfterChangeRect(CDC* pDC) {
    const CRect none(0, 0, 0, 0);
    m_rectCommands = CRect(m_rect.left, m_rect.top, m_rect.left, m_rect.bottom);
    const int customizeWidth = m_btnCustomize.GetRegularSize(pDC).cx;
    const int end = m_rect.right - customizeWidth;
    int needed = 0;
    for (int position = 0; position < GetCount(); ++position) {
        needed += m_arButtons[position]->GetSize(pDC).cx;
    }
    const bool isTooNarrow = m_rect.left + needed > end;
    const int moreWidth = isTooNarrow ? m_btnMore.GetRegularSize(pDC).cx : 0;
    const auto place = [this, pDC](CMFCRibbonBaseElement& element, int left, CSize size) {
        const int height = std::min<int>(size.cy, m_rect.Height());
        const int top = m_rect.top + (m_rect.Height() - height) / 2;
        element.SetRect(CRect(left, top, left + size.cx, top + height));
        element.OnAfterChangeRect(pDC);
    };
    const auto hide = [pDC, none](CMFCRibbonBaseElement& element) {
        element.SetRect(none);
        element.OnAfterChangeRect(pDC);
    };
    bool full = m_rect.IsRectEmpty() != FALSE;
    for (int position = 0; position < GetCount(); ++position) {
        CMFCRibbonBaseElement& element = *m_arButtons[position];
        const CSize size = element.GetSize(pDC);
        full = full || m_rectCommands.right + size.cx > end - moreWidth;
        // What the pop-up of the rest shows has its place there.
        if (element.GetParentMenu() != nullptr) {
            full = true;
            continue;
        }
        if (full) {
            hide(element);
            continue;
        }
        place(element, m_rectCommands.right, size);
        m_rectCommands.right += size.cx;
    }
    if (m_rect.IsRectEmpty() || customizeWidth + moreWidth > m_rect.Width()) {
        hide(m_btnMore);
        hide(m_btnCustomize);
        return;
    }
    isTooNarrow ? place(m_btnMore, m_rectCommands.right, m_btnMore.GetRegularSize(pDC)) : hide(m_btnMore);
    place(m_btnCustomize, m_rectCommands.right + moreWidth, m_btnCustomize.GetRegularSize(pDC));
}

void CMFCRibbonQuickAccessToolBar::OnDraw(CDC* pDC) {
    const COLORREF previous =
        pDC->SetTextColor(CMFCVisualManager::GetInstance()->GetRibbonQuickAccessToolBarTextColor(FALSE));
    // The same images lie in the light panels below: on a dark row they need ground of their own.
    if (!m_rectCommands.IsRectEmpty()) {
        CMFCVisualManager::GetInstance()->OnDrawRibbonButtonsGroup(pDC, this, m_rectCommands);
    }
    for (int position = 0; position < GetCount(); ++position) {
        if (IsShownHere(*m_arButtons[position]) && pDC->RectVisible(m_arButtons[position]->GetRect())) {
            m_arButtons[position]->OnDraw(pDC);
        }
    }
    for (CMFCRibbonButton* button :
         {static_cast<CMFCRibbonButton*>(&m_btnMore), static_cast<CMFCRibbonButton*>(&m_btnCustomize)}) {
        if (!button->GetRect().IsRectEmpty()) {
            button->OnDraw(pDC);
        }
    }
    pDC->SetTextColor(previous);
}

CMFCRibbonBaseElement* CMFCRibbonQuickAccessToolBar::HitTest(CPoint point) {
    if (!m_rect.PtInRect(point)) {
        return nullptr;
    }
    for (int position = 0; position < GetCount(); ++position) {
        CMFCRibbonBaseElement* hit =
            IsShownHere(*m_arButtons[position]) ? m_arButtons[position]->HitTest(point) : nullptr;
        if (hit != nullptr) {
            return hit;
        }
    }
    CMFCRibbonBaseElement* more = m_btnMore.HitTest(point);
    return more != nullptr ? more : m_btnCustomize.HitTest(point);
}
