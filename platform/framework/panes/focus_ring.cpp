// Where F6 leads in a frame: from the document to the ribbon, through the panes, and back.
#include "afxDockingManager.h"

#include "afxbasepane.h"
#include "window/focus.h"

namespace {

bool Holds(HWND window, HWND focus) { return window != nullptr && (window == focus || ::IsChild(window, focus)); }

/// What gets the focus in the pane: the ribbon or a status bar itself, the first tab stop of every other one. Null:
/// nothing does.
HWND FocusIn(CBasePane& pane) {
    const HWND window = pane.GetSafeHwnd();
    if (!fx::CanTakeFocus(window)) {
        return nullptr;
    }
    if (pane.LeadsFocusItself()) {
        return window;
    }
    // Without any tab stop the system answers some window all the same.
    const HWND inside = pane.CanFocus() ? ::GetNextDlgTabItem(window, nullptr, FALSE) : nullptr;
    const bool isStop = fx::CanTakeFocus(inside) && (::GetWindowLongPtr(inside, GWL_STYLE) & WS_TABSTOP) != 0;
    return isStop ? inside : nullptr;
}

} // namespace

void CDockingManager::RememberDocumentFocus(HWND hWnd) {
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position != nullptr;) {
        const auto* pane = static_cast<CBasePane*>(m_lstControlBars.GetNext(position));
        if (Holds(pane->GetSafeHwnd(), hWnd)) {
            return;
        }
    }
    m_documentFocus = hWnd;
}

// Another document may have come to the front meanwhile. A frame hands its focus on to its view.
HWND CDockingManager::DocumentFocus() const {
    CFrameWnd* const active = m_pParentWnd->GetActiveFrame();
    const HWND document = active != nullptr ? active->GetSafeHwnd() : m_pParentWnd->GetSafeHwnd();
    return fx::CanTakeFocus(m_documentFocus) && Holds(document, m_documentFocus) ? m_documentFocus : document;
}

HWND CDockingManager::FindNextFocus(HWND hFrom, BOOL bForward) {
    if (m_pParentWnd == nullptr) {
        return nullptr;
    }
    RememberDocumentFocus(hFrom);
    std::vector<HWND> stops;
    size_t at = static_cast<size_t>(-1);
    for (const bool isRibbonWanted : {true, false}) {
        for (POSITION position = m_lstControlBars.GetHeadPosition(); position != nullptr;) {
            auto& pane = *static_cast<CBasePane*>(m_lstControlBars.GetNext(position));
            const HWND stop = (pane.IsFrameRibbon() != FALSE) == isRibbonWanted ? FocusIn(pane) : nullptr;
            if (stop == nullptr) {
                continue;
            }
            at = Holds(pane.GetSafeHwnd(), hFrom) ? stops.size() : at;
            stops.push_back(stop);
        }
    }
    if (stops.empty()) {
        return nullptr;
    }
    // In no pane: in the document, the last stop.
    at = at < stops.size() ? at : stops.size();
    stops.push_back(DocumentFocus());
    return stops[(at + (bForward ? 1 : stops.size() - 1)) % stops.size()];
}
