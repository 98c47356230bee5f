#include "afxtoolbarbutton.h"

#include "afxcommandmanager.h"
#include "afxtoolbar.h"
#include "afxtoolbarmenubutton.h"

IMPLEMENT_SERIAL(CMFCToolBarButton, CObject, VERSIONABLE_SCHEMA | 1)

BOOL CMFCToolBarButton::m_bWrapText = TRUE;

namespace {

CList<UINT, UINT>& ProtectedCommands() {
    static CList<UINT, UINT> commands;
    return commands;
}

} // namespace

CMFCToolBarButton::CMFCToolBarButton() = default;

CMFCToolBarButton::CMFCToolBarButton(UINT uiID, int iImage, LPCTSTR lpszText, BOOL bUserButton, BOOL bLocked)
    : m_nID(uiID), m_strText(lpszText ? lpszText : L""), m_bUserButton(bUserButton), m_bLocked(bLocked) {
    CMFCToolBarButton::SetImage(iImage);
}

CMFCToolBarButton::~CMFCToolBarButton() = default;

void CMFCToolBarButton::CopyFrom(const CMFCToolBarButton& src) {
    m_nID = src.m_nID;
    m_nStyle = src.m_nStyle;
    m_strText = src.m_strText;
    m_bImage = src.m_bImage;
    m_bText = src.m_bText;
    m_bTextBelow = src.m_bTextBelow;
    m_bUserButton = src.m_bUserButton;
    m_bWholeText = src.m_bWholeText;
    m_bWrap = src.m_bWrap;
    m_iImage = src.m_iImage;
    m_iUserImage = src.m_iUserImage;
    m_bLocked = src.m_bLocked;
    m_bIsHidden = src.m_bIsHidden;
    m_bVisible = src.m_bVisible;
    m_bExtraSize = src.m_bExtraSize;
    m_bDisableFill = src.m_bDisableFill;
}

BOOL CMFCToolBarButton::CompareWith(const CMFCToolBarButton& other) const {
    return GetRuntimeClass() == other.GetRuntimeClass() && m_nID == other.m_nID &&
           m_bUserButton == other.m_bUserButton && GetImage() == other.GetImage() &&
           (m_nID != 0 || m_strText == other.m_strText);
}

void CMFCToolBarButton::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (ar.IsLoading()) {
        ar >> m_nID >> m_nStyle >> m_strText >> m_bImage >> m_bText >> m_bTextBelow >> m_bUserButton >> m_bWrap >>
            m_iImage >> m_iUserImage >> m_bIsHidden;
        // What the user pressed last time is not pressed now.
        m_nStyle &= ~static_cast<UINT>(TBBS_PRESSED | TBBS_CHECKED | TBBS_DISABLED | TBBS_INDETERMINATE);
    } else {
        ar << m_nID << m_nStyle << m_strText << m_bImage << m_bText << m_bTextBelow << m_bUserButton << m_bWrap
           << m_iImage << m_iUserImage << m_bIsHidden;
    }
}

BOOL CMFCToolBarButton::IsDrawImage() const { return m_bImage && GetImage() >= 0; }

void CMFCToolBarButton::SetImage(int iImage) {
    (m_bUserButton ? m_iUserImage : m_iImage) = iImage;
    if (!m_bLocked && iImage >= 0) {
        GetCmdMgr()->SetCmdImage(m_nID, iImage, m_bUserButton);
    }
}

void CMFCToolBarButton::ResetImageToDefault() {
    if (m_nID == 0) {
        return;
    }
    m_bUserButton = FALSE;
    m_iUserImage = -1;
    m_iImage = CMFCToolBar::GetDefaultImage(m_nID);
}

void CMFCToolBarButton::SetStyle(UINT nStyle) { m_nStyle = nStyle; }

void CMFCToolBarButton::Show(BOOL bShow) {
    m_bIsHidden = !bShow;
    OnShow(bShow);
}

void CMFCToolBarButton::SetRect(const CRect rect) {
    if (m_rect != rect) {
        m_rect = rect;
        OnMove();
    }
}

namespace {

/// The neighbour of a button in its bar, hidden ones passed over: null at the end of a group.
const CMFCToolBarButton* Neighbour(const CMFCToolBarButton& button, int step) {
    const auto* bar = DYNAMIC_DOWNCAST(CMFCToolBar, button.GetParentWnd());
    for (int i = bar ? bar->ButtonToIndex(&button) + step : -1; bar && i >= 0 && i < bar->GetCount(); i += step) {
        const CMFCToolBarButton* next = bar->GetButton(i);
        if (!next->IsHidden()) {
            return (next->m_nStyle & TBBS_SEPARATOR) ? nullptr : next;
        }
    }
    return nullptr;
}

} // namespace

BOOL CMFCToolBarButton::IsFirstInGroup() const { return Neighbour(*this, -1) == nullptr; }

BOOL CMFCToolBarButton::IsLastInGroup() const { return Neighbour(*this, 1) == nullptr; }

void CMFCToolBarButton::OnChangeParentWnd(CWnd* pWndParent) { m_pWndParent = pWndParent; }

BOOL CMFCToolBarButton::ExportToMenuButton(CMFCToolBarMenuButton& menuButton) const {
    if (m_strText.IsEmpty() && m_nID != 0) {
        CString text;
        if (text.LoadString(m_nID)) {
            const int lineEnd = text.Find(L'\n');
            menuButton.m_strText = lineEnd >= 0 ? text.Mid(lineEnd + 1) : text;
        }
    }
    return TRUE;
}

void CMFCToolBarButton::SetProtectedCommands(const CList<UINT, UINT>& lstCmds) {
    CList<UINT, UINT>& commands = ProtectedCommands();
    commands.RemoveAll();
    for (POSITION position = lstCmds.GetHeadPosition(); position;) {
        commands.AddTail(lstCmds.GetNext(position));
    }
}

const CList<UINT, UINT>& CMFCToolBarButton::GetProtectedCommands() { return ProtectedCommands(); }
