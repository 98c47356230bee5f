#include "afxribbonbar.h"

#include <optional>
#include <utility>

#include "afxglobals.h"
#include "afxribbonpanelmenu.h"
#include "afxtooltipmanager.h"
#include "afxvisualmanager.h"
#include "fx/registered_messages.h"
#include "fx/window_dc.h"
#include "ribbon/asking_for_states.h"
#include "ribbon/drawing_scope.h"
#include "ribbon/paint_buffer.h"

IMPLEMENT_DYNAMIC(CMFCRibbonBar, CPane)

BEGIN_MESSAGE_MAP(CMFCRibbonBar, CPane)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_MOUSEWHEEL()
ON_WM_CANCELMODE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_MESSAGE(WM_GETOBJECT, &CMFCRibbonBar::OnGetObject)
ON_MESSAGE(kRibbonAccessAction, &CMFCRibbonBar::OnAccessAction)
ON_WM_CAPTURECHANGED()
ON_WM_NCHITTEST()
ON_WM_TIMER()
ON_WM_SETTINGCHANGE()
ON_NOTIFY_EX(TTN_NEEDTEXT, 0, OnNeedTipText)
ON_REGISTERED_MESSAGE(AFX_WM_UPDATETOOLTIPS, OnUpdateToolTips)
END_MESSAGE_MAP()

CMFCRibbonBar::CMFCRibbonBar(BOOL bReplaceFrameCaption)
    : m_rectCaption(0, 0, 0, 0), m_parts(std::make_unique<RibbonBarParts>(*this)) {
    m_parts->keyboard = std::make_unique<RibbonKeyboard>(*this, *m_parts);
    m_parts->access = std::make_unique<RibbonBarAccess>(*this);
    m_parts->replacesCaption = bReplaceFrameCaption != FALSE;
    m_parts->quickAccess.SetParentRibbonBar(this);
    m_parts->quickAccess.GetCustomizeButton().SetParentRibbonBar(this);
    m_parts->quickAccess.GetMoreButton().SetParentRibbonBar(this);
    m_parts->tabScrollLeft.SetLeftScroll(TRUE);
    m_parts->tabScrollLeft.SetParentRibbonBar(this);
    m_parts->tabScrollRight.SetParentRibbonBar(this);
}

CMFCRibbonBar::~CMFCRibbonBar() {
    // The window first: its messages still need the parts.
    if (GetSafeHwnd() != nullptr) {
        DestroyWindow();
    }
    if (m_parts->applicationButton != nullptr) {
        m_parts->applicationButton->SetParentRibbonBar(nullptr);
    }
    m_parts->quickAccess.RemoveAll();
    m_parts.reset();
}

BOOL CMFCRibbonBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) { return CreateEx(pParentWnd, 0, dwStyle, nID); }

BOOL CMFCRibbonBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CPane::CreateEx(0, windowClass, dwStyle | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), pParentWnd,
                         nID, dwCtrlStyle)) {
        return FALSE;
    }
    SetPaneAlignment(CBRS_ALIGN_TOP);
    // The ribbon stands for the menu that the frame's resource may have: Alt is for key tips. A host may show it again.
    CFrameWnd* frame = DYNAMIC_DOWNCAST(CFrameWnd, pParentWnd);
    if (frame != nullptr && (frame->GetStyle() & WS_CHILD) == 0) {
        frame->SetMenuBarState(AFX_MBS_HIDDEN);
    }
    return TRUE;
}

int CMFCRibbonBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CPane::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    if (m_parts->tooltips) {
        EnableToolTips(TRUE, m_parts->tooltipDescriptions);
    }
    MarkLayoutDirty();
    return 0;
}

void CMFCRibbonBar::OnDestroy() {
    CancelPress();
    CMFCRibbonPanelMenu::DismissAll();
    m_parts->keyboard->Deactivate(RibbonKeyboard::Focus::Leave);
    m_parts->access->Disconnect();
    CTooltipManager::DeleteToolTip(m_pToolTip);
    for (const auto& category : m_parts->categories) {
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        category->GetElements(elements);
        for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
            elements[index]->DestroyCtrl();
        }
    }
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> own;
    GetBarElements(own);
    for (INT_PTR index = 0; index < own.GetSize(); ++index) {
        own[index]->DestroyCtrl();
    }
    CPane::OnDestroy();
}

void CMFCRibbonBar::OnElementDestroyed(CMFCRibbonBaseElement* pElement) {
    if (m_parts == nullptr) {
        return;
    }
    m_parts->pointer.Forget(pElement);
    if (m_parts->menuSubject == pElement) {
        m_parts->menuSubject = nullptr;
    }
    if (m_parts->applicationButton == pElement) {
        m_parts->applicationButton = nullptr;
    }
    ForgetElement(*pElement);
}

// ---- painting

void CMFCRibbonBar::OnPaint() {
    EnsureLayout();
    // What has come since the last idle time must not be seen enabled and unchecked first.
    std::optional<AskingForStates> asking;
    if (m_parts->states == RibbonBarParts::States::Unknown) {
        asking.emplace(*this, *m_parts);
        SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        if (asking->IsBarGone()) {
            return;
        }
        EnsureLayout();
    }
    RibbonWindowPaint paint(*this);
    m_parts->waitsForPaint = false; // what is invalidated from here on is painted next time
    DoPaint(&paint.GetDC());
}

BOOL CMFCRibbonBar::OnEraseBkgnd(CDC* /*pDC*/) { return TRUE; }

void CMFCRibbonBar::DoPaint(CDC* pDC) {
    EnsureLayout();
    const RibbonBarArrangement& places = m_parts->arrangement;
    CRect client;
    GetClientRect(client);
    CRect clip;
    if (pDC->GetClipBox(clip) == NULLREGION || clip.IsRectEmpty()) {
        clip = client;
    }
    const DrawingScope drawing(m_parts->isDrawing);
    RibbonFontScope font(*pDC);
    const int previousMode = pDC->SetBkMode(TRANSPARENT);
    CMFCVisualManager* manager = CMFCVisualManager::GetInstance();
    manager->OnFillBarBackground(pDC, this, client, clip);

    CRect above(0, 0, client.right, places.tabRow.bottom);
    if (!m_rectCaption.IsRectEmpty()) {
        DrawCaption(pDC);
        above.top = m_rectCaption.bottom;
    }
    const COLORREF text = manager->OnDrawRibbonTabsFrame(pDC, this, above);
    pDC->SetTextColor(text == static_cast<COLORREF>(-1) ? afxGlobalData.clrBarText : text);

    const auto draw = [pDC](CMFCRibbonBaseElement& element) {
        if (!element.GetRect().IsRectEmpty() && pDC->RectVisible(element.GetRect())) {
            element.OnDraw(pDC);
        }
    };
    for (const auto& context : m_parts->contexts) {
        draw(*context.caption);
    }
    if (m_parts->ShownCategory() != nullptr && pDC->RectVisible(m_parts->active->GetRect())) {
        m_parts->active->OnDraw(pDC);
    }
    for (const auto& category : m_parts->categories) {
        if (category->IsVisible()) {
            draw(category->GetTabElement());
        }
    }
    for (const auto& element : m_parts->tabElements) {
        draw(*element);
    }
    draw(m_parts->tabScrollLeft);
    draw(m_parts->tabScrollRight);
    for (const auto* buttons : {&m_parts->captionButtons, &m_parts->childButtons}) {
        for (const auto& button : *buttons) {
            draw(*button);
        }
    }
    draw(m_parts->quickAccess);
    if (m_parts->applicationButton != nullptr) {
        draw(*m_parts->applicationButton);
    }
    m_parts->keyboard->DrawFocus(*pDC);
    pDC->SetBkMode(previousMode);
}

// ---- what the bar is

bool CMFCRibbonBar::IsMinimized() const { return m_parts->minimized; }

RibbonElementKeys& CMFCRibbonBar::GetElementKeys() { return *m_parts->keyboard; }

DWORD CMFCRibbonBar::GetHideFlags() const {
    return (m_parts->minimized ? AFX_RIBBONBAR_HIDE_ELEMENTS : 0) |
           (m_parts->hiddenForSize ? AFX_RIBBONBAR_HIDE_ALL : 0);
}

int CMFCRibbonBar::GetCaptionHeight() const { return m_rectCaption.Height(); }

int CMFCRibbonBar::GetCategoryHeight() const { return m_parts->arrangement.category.Height(); }

BOOL CMFCRibbonBar::IsReplaceFrameCaption() const { return m_parts->replacesCaption; }

// The caption row is drawn by the visual manager, never left to the system's glass.
BOOL CMFCRibbonBar::IsTransparentCaption() const { return FALSE; }

bool CMFCRibbonBar::HasWindows7Look() const { return m_parts->windows7Look; }

BOOL CMFCRibbonBar::IsWindows7Look() const { return m_parts->windows7Look; }

void CMFCRibbonBar::SetWindows7Look(BOOL bWindows7Look, BOOL bRecalc) {
    if (m_parts->windows7Look == (bWindows7Look != FALSE)) {
        return;
    }
    m_parts->windows7Look = bWindows7Look != FALSE;
    MarkLayoutDirty();
    if (bRecalc) {
        ForceRecalcLayout();
    }
}

int CMFCRibbonBar::GetTabTrancateRatio() const { return m_parts->arrangement.tabReduction; }

BOOL CMFCRibbonBar::IsShowGroupBorder(CMFCRibbonButtonsGroup* pGroup) const { return pGroup != &m_parts->quickAccess; }

const RibbonMetrics& CMFCRibbonBar::GetMetrics() const { return m_parts->metrics; }

void CMFCRibbonBar::SetApplicationButton(CMFCRibbonApplicationButton* pButton, CSize sizeButton) {
    if (m_parts->applicationButton != nullptr && m_parts->applicationButton != pButton) {
        m_parts->applicationButton->SetParentRibbonBar(nullptr);
    }
    m_parts->applicationButton = pButton;
    m_parts->applicationButtonSize = sizeButton;
    if (pButton != nullptr) {
        pButton->SetParentRibbonBar(this);
    }
    MarkLayoutDirty();
}

CMFCRibbonApplicationButton* CMFCRibbonBar::GetApplicationButton() const { return m_parts->applicationButton; }

void CMFCRibbonBar::AddToTabs(CMFCRibbonBaseElement* pElement) {
    if (pElement == nullptr) {
        return;
    }
    pElement->SetParentRibbonBar(this);
    m_parts->tabElements.emplace_back(pElement);
    MarkLayoutDirty();
}

// Whoever hears of an element's end may walk through those that are there.
void CMFCRibbonBar::RemoveAllFromTabs() {
    EndInput();
    const auto gone = std::exchange(m_parts->tabElements, {});
    MarkLayoutDirty();
}

// A category that has dropped down from its tab has its elements with it, and would stay above its place in the bar.
void CMFCRibbonBar::ToggleMimimizeState() {
    if (m_parts->minimized && CMFCRibbonPanelMenu::IsAnyOpenOf(*this)) {
        CMFCRibbonPanelMenu::DismissAll();
    }
    m_parts->minimized = !m_parts->minimized;
    ForceRecalcLayout();
}
