#pragma once

#include "toolbar/help_field.h"

namespace toolbar {

/// The field of a menu bar in which the user asks for help (CMFCMenuBar::EnableHelpCombobox). The bar places it; in a
/// vertical one it has no room. It is not among the buttons that users' settings keep.
class HelpCombo : public CMFCToolBarComboBoxButton, public HelpField {
    DECLARE_SERIAL(HelpCombo)

public:
    HelpCombo() = default;
    /// width: pixels at 96 DPI.
    HelpCombo(UINT command, const CString& prompt, int width);

    /// What stands in it while it is empty and inactive.
    CString GetPrompt() const override { return m_prompt; }
    CMFCToolBarComboBoxEdit* CreateEdit(CWnd* pWndParent, const CRect& rect, DWORD dwEditStyle) override;
    void CopyFrom(const CMFCToolBarButton& src) override;
    BOOL CanBeStored() const override { return FALSE; }
    BOOL IsEditable() const override { return FALSE; }
    SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) override;

    void OnMove() override;
    void OnSize(int iSize) override;
    CMFCToolBarComboBoxButton& Combo() override { return *this; }
    void Hold() override { m_isHeld = true; }
    void Settle() override;

private:
    bool m_isHeld = true;
    CString m_prompt;
};

} // namespace toolbar
