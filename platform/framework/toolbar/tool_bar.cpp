// A toolbar's window, the sizes that toolbars share, looks.
#include "afxtoolbar.h"

#include "afxcustomizebutton.h"
#include "afxtoolbarmenubutton.h"
#include "afxtooltipmanager.h"
#include "afxvisualmanager.h"
#include "toolbar/metrics.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CMFCToolBar, CMFCBaseToolBar)

BEGIN_MESSAGE_MAP(CMFCToolBar, CMFCBaseToolBar)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_SIZE()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_CANCELMODE()
ON_WM_CAPTURECHANGED()
ON_WM_SYSCOLORCHANGE()
ON_WM_SETTINGCHANGE()
ON_NOTIFY_EX(TTN_NEEDTEXTW, 0, &CMFCToolBar::OnNeedTipText)
ON_REGISTERED_MESSAGE(AFX_WM_UPDATETOOLTIPS, &CMFCToolBar::OnUpdateToolTips)
END_MESSAGE_MAP()

CSize CMFCToolBar::m_sizeButton(23, 22);
CSize CMFCToolBar::m_sizeImage(16, 15);
CSize CMFCToolBar::m_sizeMenuButton(-1, -1);
CSize CMFCToolBar::m_sizeMenuImage(-1, -1);
COLORREF CMFCToolBar::m_clrTextHot = static_cast<COLORREF>(-1);
BOOL CMFCToolBar::m_bShowTooltips = TRUE;
BOOL CMFCToolBar::m_bShowShortcutKeys = FALSE;
BOOL CMFCToolBar::m_bLargeIcons = FALSE;
const CMFCToolBarButton* CMFCToolBar::m_pLastCommandButton = nullptr;

namespace {

/// A button is at least so much larger than its image.
constexpr SIZE buttonBorder{7, 6};

CObList& AllToolBars() {
    static CObList bars;
    return bars;
}

CSize RoomFor(SIZE button, SIZE image) {
    return CSize(std::max(button.cx, image.cx + buttonBorder.cx), std::max(button.cy, image.cy + buttonBorder.cy));
}

} // namespace

CMFCToolBar::CMFCToolBar() = default;

CMFCToolBar::~CMFCToolBar() {
    DestroyWindow();
    CMFCToolBar::RemoveAllButtons();
    for (CObList* const list : {&m_OrigButtons, &m_OrigResetButtons}) {
        while (!list->IsEmpty()) {
            delete list->RemoveHead();
        }
    }
}

BOOL CMFCToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, TBSTYLE_FLAT, dwStyle, CRect(1, 1, 1, 1), nID);
}

BOOL CMFCToolBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders, UINT nID) {
    m_dwCtrlStyle = dwCtrlStyle;
    SetBorders(&rcBorders);
    return CMFCBaseToolBar::CreateEx(0, nullptr, dwStyle, CRect(0, 0, 0, 0), pParentWnd, nID, AFX_DEFAULT_PANE_STYLE);
}

BOOL CMFCToolBar::PreCreateWindow(CREATESTRUCT& cs) { return CMFCBaseToolBar::PreCreateWindow(cs); }

int CMFCToolBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CMFCBaseToolBar::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    if (!m_bMenuMode) {
        AllToolBars().AddTail(this);
    }
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position))->OnChangeParentWnd(this);
    }
    return 0;
}

void CMFCToolBar::OnDestroy() {
    CTooltipManager::DeleteToolTip(m_pToolTip);
    if (POSITION position = AllToolBars().Find(this)) {
        AllToolBars().RemoveAt(position);
    }
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position))->OnChangeParentWnd(nullptr);
    }
    CMFCBaseToolBar::OnDestroy();
}

CMFCToolBar* __stdcall CMFCToolBar::FromHandlePermanent(HWND hwnd) {
    return DYNAMIC_DOWNCAST(CMFCToolBar, CWnd::FromHandlePermanent(hwnd));
}

const CObList& CMFCToolBar::GetAllToolbars() { return AllToolBars(); }

void __stdcall CMFCToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage) {
    m_sizeImage = sizeImage;
    m_sizeButton = RoomFor(sizeButton, sizeImage);
    // A list that has images keeps their size.
    for (CMFCToolBarImages* images : {&m_Images, &m_ColdImages, &m_DisabledImages}) {
        if (images->GetCount() == 0) {
            images->SetImageSize(sizeImage);
        }
    }
    for (POSITION position = AllToolBars().GetHeadPosition(); position;) {
        static_cast<CMFCToolBar*>(AllToolBars().GetNext(position))->AdjustLayout();
    }
}

void __stdcall CMFCToolBar::SetMenuSizes(SIZE sizeButton, SIZE sizeImage) {
    m_sizeMenuButton = sizeButton;
    m_sizeMenuImage = sizeImage;
    for (CMFCToolBarImages* images : {&m_MenuImages, &m_DisabledMenuImages}) {
        if (images->GetCount() == 0) {
            images->SetImageSize(sizeImage);
        }
    }
}

void CMFCToolBar::SetLockedSizes(SIZE sizeButton, SIZE sizeImage, BOOL) {
    m_sizeImageLocked = sizeImage;
    m_sizeButtonLocked = RoomFor(sizeButton, sizeImage);
    for (CMFCToolBarImages* images : {&m_ImagesLocked, &m_ColdImagesLocked, &m_DisabledImagesLocked}) {
        if (images->GetCount() == 0) {
            images->SetImageSize(sizeImage);
        }
    }
}

void CMFCToolBar::SetHeight(int cyHeight) {
    m_cyHeight = cyHeight;
    if (m_hWnd) {
        AdjustLayout();
    }
}

CSize CMFCToolBar::GetButtonSize() const {
    return m_bLocked && m_sizeButtonLocked != CSize(0, 0) ? m_sizeButtonLocked : m_sizeButton;
}

CSize CMFCToolBar::GetImageSize() const {
    return m_bLocked && m_sizeImageLocked != CSize(0, 0) ? m_sizeImageLocked : m_sizeImage;
}

CSize CMFCToolBar::GetMenuButtonSize() { return m_sizeMenuButton.cx >= 0 ? m_sizeMenuButton : m_sizeButton; }

CSize CMFCToolBar::GetMenuImageSize() { return m_sizeMenuImage.cx >= 0 ? m_sizeMenuImage : m_sizeImage; }

int CMFCToolBar::GetRowHeight() const {
    return m_cyHeight > 0 ? m_cyHeight : toolbar::Scaled(static_cast<int>(GetButtonSize().cy));
}

int CMFCToolBar::GetColumnWidth() const { return toolbar::Scaled(static_cast<int>(GetButtonSize().cx)); }

COLORREF CMFCToolBar::GetHotTextColor() {
    return m_clrTextHot != static_cast<COLORREF>(-1) ? m_clrTextHot : ::GetSysColor(COLOR_HIGHLIGHT);
}

void CMFCToolBar::EnableDocking(DWORD dwAlignment) { CMFCBaseToolBar::EnableDocking(dwAlignment); }

void CMFCToolBar::EnableTextLabels(BOOL bEnable) {
    if (m_bTextLabels == bEnable) {
        return;
    }
    m_bTextLabels = bEnable;
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        auto* button = static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        if (bEnable && button->m_strText.IsEmpty()) {
            OnSetDefaultButtonText(button);
        }
        button->m_bText = bEnable;
    }
    AdjustLayout();
}

// The part behind the line break is the command's short text.
BOOL CMFCToolBar::OnSetDefaultButtonText(CMFCToolBarButton* pButton) {
    CString text;
    if (pButton->m_nID == 0 || !text.LoadString(pButton->m_nID)) {
        return FALSE;
    }
    const int lineEnd = text.Find(L'\n');
    if (lineEnd < 0) {
        return FALSE;
    }
    pButton->m_strText = text.Mid(lineEnd + 1);
    return !pButton->m_strText.IsEmpty();
}

void CMFCToolBar::OnChangeVisualManager() {
    if (m_bRoundShape) {
        m_bRoundShape = FALSE;
        if (m_hWnd) {
            SetWindowRgn(nullptr, FALSE);
        }
    }
    if (m_hWnd) {
        AdjustDockedLayout();
    }
    UpdateImagesColor();
}

void CMFCToolBar::OnGlobalFontsChanged() {
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position))->OnGlobalFontsChanged();
    }
    if (m_hWnd) {
        AdjustLayout();
    }
}

void CMFCToolBar::OnSysColorChange() {
    CMFCBaseToolBar::OnSysColorChange();
    UpdateImagesColor();
    RedrawWindow();
}

void CMFCToolBar::OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
    CMFCBaseToolBar::OnSettingChange(uFlags, lpszSection);
    AdjustLayout();
}
