#include "ribbon_label_ex.h"

#include "commands/menu_fonts.h"
#include "host_messages.h"

#include <afxmenubar.h>
#include <afxribbonbar.h>
#include <afxvisualmanager.h>
#include <fx/dc_scope.h>
#include <fx/window_guard.h>

#include <varnhold/language.h>

#include <algorithm>
#include <utility>

IMPLEMENT_DYNCREATE(CMFCRibbonLabelEx, CMFCRibbonLabel)

namespace {

constexpr COLORREF noColor = 0xFFFFFFFF;
/// The line below a label in a menu stays free, in pixels.
constexpr int menuBottomMargin = 2;

/// Centres the lines of a text that may be broken: the rectangle narrowed at top and bottom alike.
CRect CentredLines(CDC* dc, const CString& text, CRect rect, UINT format) {
    CRect needed = rect;
    const int height = dc->DrawText(text, needed, format | DT_CALCRECT);
    rect.DeflateRect(0, std::max(0, (rect.Height() - height) / 2));
    return rect;
}

HWND OwnerOf(const CWnd* window) {
    const CWnd* owner = window && window->GetSafeHwnd() ? window->GetOwner() : nullptr;
    return owner ? owner->GetSafeHwnd() : nullptr;
}

} // namespace

CMFCRibbonLabelEx::CMFCRibbonLabelEx(LPCTSTR text, BOOL multiLine)
    : CMFCRibbonLabel(text, multiLine), m_isMultiLine(multiLine != FALSE) {}

CString CMFCRibbonLabelEx::GetShownText() const {
    return CMultiLanguageMgr::translation(GetText(), "Common", -1).c_str();
}

void CMFCRibbonLabelEx::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonLabel::CopyFrom(src);
    const auto* const source = DYNAMIC_DOWNCAST(CMFCRibbonLabelEx, &src);
    if (!source) {
        m_isMultiLine = IsWholeRowHeight() != FALSE; // as the platform's label then is
        return;
    }
    m_isMultiLine = source->m_isMultiLine;
    m_right = source->m_right;
    m_textColor = source->m_textColor;
    m_leftOffset = source->m_leftOffset;
}

void CMFCRibbonLabelEx::SetLeftOffset(int offset) {
    if (std::exchange(m_leftOffset, offset) != offset) {
        MarkLayoutDirty();
    }
}

// The room is that of the text which will be shown, at its place.
CSize CMFCRibbonLabelEx::GetRegularSize(CDC* dc) {
    CSize size = CMFCRibbonLabel::GetRegularSize(dc);
    size.cx += std::max(0, m_leftOffset);
    return size;
}

void CMFCRibbonLabelEx::OnDraw(CDC* dc) {
    if (GetRect().IsRectEmpty()) {
        return;
    }
    CMFCVisualManager* const visual = CMFCVisualManager::GetInstance();
    const fx::DcSelection font(*dc, IsMenuMode() ? BoldMenuFont() : CMFCMenuBar::GetMenuFont().GetSafeHandle());
    const fx::TextColour colour(*dc, dc->GetTextColor());
    CRect rect = GetRect();
    if (IsMenuMode()) {
        rect.bottom -= menuBottomMargin;
        dc->SetTextColor(visual->OnDrawMenuLabel(dc, rect));
    } else {
        visual->OnDrawRibbonLabel(dc, this, rect);
        if (IsDisabled()) {
            dc->SetTextColor(visual->GetToolbarDisabledTextColor());
        }
    }
    rect.DeflateRect(m_szMargin.cx, 0);

    const CString text = GetShownText();
    UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
    if (m_isMultiLine && !IsMenuMode()) {
        format = DT_WORDBREAK | DT_NOPREFIX;
        rect = CentredLines(dc, text, rect, format);
    }
    if (m_textColor != noColor) {
        dc->SetTextColor(m_textColor);
    }
    rect.left += m_leftOffset;
    DrawRibbonText(dc, text, rect, format);
}

// The host may delete this label: the message comes last.
void CMFCRibbonLabelEx::OnLButtonDown(CPoint point) {
    const CWnd* holder = GetTopLevelRibbonBar();
    const fx::WindowGuard host(OwnerOf(holder ? holder : GetParentWnd()));
    CMFCRibbonLabel::OnLButtonDown(point);
    if (host.IsAlive()) {
        ::SendMessageW(host.Handle(), WM_RIBBON_LABEL_CLICKED, reinterpret_cast<WPARAM>(this), 0);
    }
}
