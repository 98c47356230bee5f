#pragma once

#include "afxtoolbarmenubutton.h"

/// One of the buttons that a maximised MDI child has in the frame's menu bar: it sends SC_MINIMIZE, SC_RESTORE or
/// SC_CLOSE to the child.
class FRAMEWORK_API CMFCToolBarMenuButtonsButton : public CMFCToolBarButton {
    DECLARE_SERIAL(CMFCToolBarMenuButtonsButton)

public:
    CMFCToolBarMenuButtonsButton() = default;
    explicit CMFCToolBarMenuButtonsButton(UINT uiSystemCommand) : m_uiSystemCommand(uiSystemCommand) {}

    void CopyFrom(const CMFCToolBarButton& src) override;
    SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) override;
    void OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz = TRUE, BOOL bCustomizeMode = FALSE,
                BOOL bHighlight = FALSE, BOOL bDrawBorder = TRUE, BOOL bGrayDisabledButtons = TRUE) override;
    BOOL CanBeStored() const override { return FALSE; }

    UINT m_uiSystemCommand = 0;
};

/// The icon of a maximised MDI child in the frame's menu bar: it shows the child's system menu.
class FRAMEWORK_API CMFCToolBarSystemMenuButton : public CMFCToolBarMenuButton {
    DECLARE_SERIAL(CMFCToolBarSystemMenuButton)

public:
    CMFCToolBarSystemMenuButton() = default;
    explicit CMFCToolBarSystemMenuButton(HWND hChild) : m_hChild(hChild) {}

    void CopyFrom(const CMFCToolBarButton& src) override;
    SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) override;
    void OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz = TRUE, BOOL bCustomizeMode = FALSE,
                BOOL bHighlight = FALSE, BOOL bDrawBorder = TRUE, BOOL bGrayDisabledButtons = TRUE) override;
    /// Modal; what was chosen is posted to the child.
    BOOL OnClick(CWnd* pWnd, BOOL bDelay = TRUE) override;
    /// A double click closes the child.
    void OnDblClk(CWnd* pWnd) override;
    BOOL CanBeStored() const override { return FALSE; }

private:
    HICON GetIcon() const;

    HWND m_hChild = NULL;
};
