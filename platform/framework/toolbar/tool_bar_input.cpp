// Mouse, commands and their state, tooltips.
#include "afxtoolbar.h"

#include "afxext.h"
#include "afxtoolbarmenubutton.h"
#include "core/letters.h"
#include "fx/window_guard.h"
#include "toolbar/metrics.h"
#include "window/command_id.h"

namespace {

bool IsPressable(const CMFCToolBarButton* button) {
    return button && !(button->m_nStyle & (TBBS_SEPARATOR | TBBS_DISABLED)) && !button->IsHidden();
}

/// A button of a toolbar as an update handler sees it.
class ToolBarCmdUI : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        ChangeStyle(TBBS_DISABLED, bOn ? 0 : TBBS_DISABLED);
    }
    void SetCheck(int nCheck) override {
        const UINT look = nCheck == 1 ? TBBS_CHECKED : nCheck == 2 ? TBBS_INDETERMINATE : 0u;
        ChangeStyle(TBBS_CHECKED | TBBS_INDETERMINATE, look);
    }
    void SetRadio(BOOL bOn) override {
        SetCheck(bOn ? 1 : 0);
        if (CMFCToolBarButton* button = Button()) {
            button->SetRadio();
        }
    }
    void SetText(LPCTSTR lpszText) override {
        CMFCToolBarButton* button = Button(); // null when the handler has taken it away
        if (button && button->m_strText != lpszText) {
            button->m_strText = lpszText;
            if (button->IsDrawText()) {
                Bar()->AdjustLayout();
            }
        }
    }

private:
    CMFCToolBar* Bar() const { return static_cast<CMFCToolBar*>(m_pOther); }
    CMFCToolBarButton* Button() const { return Bar()->GetButton(static_cast<int>(m_nIndex)); }
    void ChangeStyle(UINT mask, UINT bits) {
        const int index = static_cast<int>(m_nIndex);
        Bar()->SetButtonStyle(index, (Bar()->GetButtonStyle(index) & ~mask) | bits);
    }
};

} // namespace

void CMFCToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    if (IsCustomizeMode() && !m_bMenuMode) {
        return; // the buttons are there to be moved
    }
    ToolBarCmdUI state;
    state.m_pOther = this;
    const bool hasWindow = m_hWnd != nullptr;
    const fx::WindowGuard guard(this);
    for (state.m_nIndex = 0; state.m_nIndex < static_cast<UINT>(GetCount()); ++state.m_nIndex) {
        state.m_nIndexMax = static_cast<UINT>(GetCount());
        const CMFCToolBarButton* button = GetButton(static_cast<int>(state.m_nIndex));
        const bool opensMenu = button->m_nID == 0 || button->m_nID == static_cast<UINT>(-1);
        if (opensMenu || (button->m_nStyle & TBBS_SEPARATOR)) {
            continue;
        }
        state.m_nID = button->m_nID;
        if (!IsCommandPermitted(state.m_nID)) {
            state.Enable(FALSE);
            continue;
        }
        const auto* menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
        const BOOL hasMenu = menuButton && !menuButton->GetCommands().IsEmpty();
        // The bar's own handlers first: one of a derived bar decides.
        if (!CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr)) {
            state.DoUpdate(pTarget, bDisableIfNoHndler && !hasMenu);
        }
        if (hasWindow && guard.IsGone()) {
            return; // a handler has closed the menu, or destroyed the bar
        }
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

void CMFCToolBar::SetHighlighted(int iIndex) {
    if (iIndex == m_iHighlighted) {
        return;
    }
    InvalidateButton(m_iHighlighted);
    m_iHighlighted = iIndex;
    InvalidateButton(m_iHighlighted);
    OnChangeHot(iIndex);
}

BOOL CMFCToolBar::SetHot(CMFCToolBarButton* pMenuButton) {
    const int index = pMenuButton ? ButtonToIndex(pMenuButton) : -1;
    if (pMenuButton && index < 0) {
        return FALSE;
    }
    SetHighlighted(index);
    return TRUE;
}

BOOL CMFCToolBar::IsPureMenuButton(CMFCToolBarButton* pButton) const {
    const auto* button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, pButton);
    return button && (button->m_nID == 0 || button->m_nID == static_cast<UINT>(-1)) && !button->GetCommands().IsEmpty();
}

CMFCToolBarMenuButton* CMFCToolBar::GetDroppedDownMenu(int* pIndex) const {
    int index = 0;
    for (POSITION position = m_Buttons.GetHeadPosition(); position; ++index) {
        CObject* object = const_cast<CObject*>(static_cast<const CObject*>(m_Buttons.GetNext(position)));
        auto* button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, object);
        if (button && button->IsDroppedDown()) {
            if (pIndex) {
                *pIndex = index;
            }
            return button;
        }
    }
    return nullptr;
}

void CMFCToolBar::Deactivate() {
    if (CMFCToolBarMenuButton* open = GetDroppedDownMenu()) {
        open->OnCancelMode();
    }
    SetHighlighted(-1);
}

CWnd* CMFCToolBar::GetCommandTarget() const {
    CWnd* owner = GetOwner();
    if (m_bRouteCommandsViaFrame || !owner) {
        return GetTopLevelFrame();
    }
    return owner;
}

BOOL CMFCToolBar::ProcessCommand(CMFCToolBarButton* pButton) {
    const UINT id = pButton ? pButton->m_nID : 0;
    CWnd* target = GetCommandTarget();
    if (!IsPressable(pButton) || !fx::IsSendableCommand(id) || !IsCommandPermitted(id) || !target) {
        return FALSE;
    }
    m_pLastCommandButton = pButton;
    // The handler may destroy this bar.
    target->SendMessage(WM_COMMAND, id, 0);
    return TRUE;
}

void CMFCToolBar::ClickButton(int iIndex, BOOL bSendCommand) {
    CMFCToolBarButton* button = GetButton(iIndex);
    if (!IsPressable(button)) {
        return;
    }
    if (button->m_nStyle & TBSTYLE_CHECK) {
        SetButtonStyle(iIndex, button->m_nStyle ^ TBBS_CHECKED);
    }
    const fx::WindowGuard guard(this);
    if (button->OnClickUp() || !bSendCommand || OnSendCommand(button)) {
        return;
    }
    ProcessCommand(button);
    if (guard.IsAlive()) {
        UpdateWindow();
    }
}

void CMFCToolBar::OnMouseMove(UINT nFlags, CPoint point) {
    CMFCBaseToolBar::OnMouseMove(nFlags, point);
    const int hit = HitTest(point);
    OnOverflowMouse(WM_MOUSEMOVE, point);
    if (m_iButtonCapture >= 0) {
        // Only the pressed button takes part until it is let go.
        const UINT style = GetButtonStyle(m_iButtonCapture);
        const UINT pressed = hit == m_iButtonCapture ? TBBS_PRESSED : 0;
        SetButtonStyle(m_iButtonCapture, (style & ~static_cast<UINT>(TBBS_PRESSED)) | pressed);
        return;
    }
    if (!m_bTracked) {
        TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, m_hWnd, 0};
        m_bTracked = ::TrackMouseEvent(&track);
    }
    SetHighlighted(IsPressable(GetButton(hit)) ? hit : -1); // whoever is told may open a menu, and end this
}

void CMFCToolBar::OnMouseLeave() {
    m_bTracked = FALSE;
    OnOverflowMouse(WM_MOUSELEAVE, {0, 0});
    if (m_iButtonCapture < 0) {
        SetHighlighted(-1);
    }
}

void CMFCToolBar::OnLButtonDown(UINT nFlags, CPoint point) {
    CMFCBaseToolBar::OnLButtonDown(nFlags, point);
    if (BeginButtonDrag(point) || OnOverflowMouse(WM_LBUTTONDOWN, point)) {
        return;
    }
    const int hit = HitTest(point);
    CMFCToolBarButton* button = GetButton(hit);
    if (!button && IsDocked()) {
        BeginDrag(point); // by whatever is not a button
    }
    if (!IsPressable(button)) {
        return;
    }
    const fx::WindowGuard guard(this);
    const BOOL isDone = button->OnClick(this, TRUE);
    if (guard.IsGone() || GetButton(hit) != button) {
        return; // whoever heard of the click has taken the bar or the button away
    }
    if (isDone) {
        InvalidateButton(hit);
        return;
    }
    m_iButtonCapture = hit;
    SetHighlighted(hit);
    SetButtonStyle(hit, button->m_nStyle | TBBS_PRESSED);
    SetCapture();
}

void CMFCToolBar::OnLButtonUp(UINT nFlags, CPoint point) {
    CMFCBaseToolBar::OnLButtonUp(nFlags, point);
    const int pressed = m_iButtonCapture;
    if (pressed < 0) {
        return;
    }
    m_iButtonCapture = -1;
    SetButtonStyle(pressed, GetButtonStyle(pressed) & ~static_cast<UINT>(TBBS_PRESSED));
    ::ReleaseCapture();
    if (HitTest(point) == pressed) {
        ClickButton(pressed, TRUE);
    } else {
        SetHighlighted(-1);
    }
}

void CMFCToolBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
    const int hit = HitTest(point);
    CMFCToolBarButton* button = GetButton(hit);
    if (!button) {
        CMFCBaseToolBar::OnLButtonDblClk(nFlags, point);
        return;
    }
    const fx::WindowGuard guard(this);
    button->OnDblClk(this);
    if (guard.IsAlive()) {
        // The second click of a fast user.
        OnLButtonDown(nFlags, point);
    }
}

void CMFCToolBar::OnCancelMode() {
    CMFCBaseToolBar::OnCancelMode();
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position))->OnCancelMode();
    }
    if (m_iButtonCapture >= 0) {
        ::ReleaseCapture();
    }
    SetHighlighted(-1);
}

void CMFCToolBar::OnCaptureChanged(CWnd*) {
    const int pressed = m_iButtonCapture;
    m_iButtonCapture = -1;
    if (pressed >= 0) {
        SetButtonStyle(pressed, GetButtonStyle(pressed) & ~static_cast<UINT>(TBBS_PRESSED));
    }
}

BOOL CMFCToolBar::TranslateChar(UINT nChar) {
    const wchar_t wanted = fx::UpperCase(static_cast<wchar_t>(nChar));
    for (int i = 0; i < GetCount(); ++i) {
        CMFCToolBarButton* button = GetButton(i);
        if (!IsPressable(button) || toolbar::MnemonicOf(button->m_strText) != wanted) {
            continue;
        }
        if (!button->OnClick(this, TRUE)) {
            ClickButton(i, TRUE);
        }
        return TRUE;
    }
    return FALSE;
}
