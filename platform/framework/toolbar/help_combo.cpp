#include "toolbar/help_combo.h"

#include "fx/dc_scope.h"
#include "fx/window_dc.h"
#include "toolbar/field_look.h"

#include <memory>

namespace toolbar {

IMPLEMENT_SERIAL(HelpCombo, CMFCToolBarComboBoxButton, VERSIONABLE_SCHEMA | 1)

namespace {

/// Shows the combo's prompt while there is nothing in it and nobody types.
class PromptEdit : public CMFCToolBarComboBoxEdit {
public:
    using CMFCToolBarComboBoxEdit::CMFCToolBarComboBoxEdit;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const HWND window = m_hWnd;
        const LRESULT result = CMFCToolBarComboBoxEdit::WindowProc(message, wParam, lParam);
        switch (message) {
        case WM_PAINT:
            DrawPrompt();
            break;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_SETTEXT:
            ::InvalidateRect(window, nullptr, TRUE); // who heard of it may have destroyed the window, and this with it
            break;
        default:
            break;
        }
        return result;
    }

private:
    void DrawPrompt() {
        const CString prompt = m_combo.GetPrompt();
        if (prompt.IsEmpty() || GetWindowTextLength() > 0 || ::GetFocus() == m_hWnd) {
            return;
        }
        CRect room;
        GetRect(&room);
        CClientDC dc(this);
        const fx::DcSelection font(dc.m_hDC, static_cast<HFONT>(afxGlobalData.fontRegular));
        ColorField(dc, false);
        const fx::TextColour colour(dc, HintColor(dc));
        dc.DrawText(prompt, room, DT_SINGLELINE | DT_LEFT | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
};

} // namespace

HelpCombo::HelpCombo(UINT command, const CString& prompt, int width)
    : CMFCToolBarComboBoxButton(command, -1, CBS_DROPDOWN, width), m_prompt(prompt) {}

CMFCToolBarComboBoxEdit* HelpCombo::CreateEdit(CWnd* pWndParent, const CRect& rect, DWORD dwEditStyle) {
    auto edit = std::make_unique<PromptEdit>(*this);
    return edit->Create(dwEditStyle, rect, pWndParent, m_nID) ? edit.release() : nullptr;
}

void HelpCombo::CopyFrom(const CMFCToolBarButton& src) {
    CMFCToolBarComboBoxButton::CopyFrom(src);
    if (const auto* const other = DYNAMIC_DOWNCAST(HelpCombo, &src)) {
        m_prompt = other->m_prompt;
    }
}

// While a bar is laid out its buttons lie in a row for a moment; windows that followed would be seen there.
void HelpCombo::OnMove() {
    if (!m_isHeld) {
        CMFCToolBarComboBoxButton::OnMove();
    }
}

void HelpCombo::OnSize(int iSize) {
    if (!m_isHeld) {
        CMFCToolBarComboBoxButton::OnSize(iSize);
    }
}

void HelpCombo::Settle() {
    m_isHeld = false;
    CMFCToolBarComboBoxButton::OnMove();
}

SIZE HelpCombo::OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) {
    const SIZE size = CMFCToolBarComboBoxButton::OnCalculateSize(pDC, sizeDefault, bHorz);
    return bHorz ? size : SIZE{0, 0};
}

} // namespace toolbar
