#pragma once

#include <afxwin.h>

class CMFCRibbonBaseElement;

/// The small window that shows which keys lead to a ribbon element. Whoever collects the tips of a level (AddToKeyList)
/// owns them; the element must outlive its tip. The window takes no input and no activation.
class FRAMEWORK_API CMFCRibbonKeyTip : public CWnd {
    DECLARE_DYNAMIC(CMFCRibbonKeyTip)

public:
    /// bIsMenu: the tip of a split button's menu.
    explicit CMFCRibbonKeyTip(CMFCRibbonBaseElement* pElement, BOOL bIsMenu = FALSE);
    ~CMFCRibbonKeyTip() override;

    CMFCRibbonBaseElement* GetElement() const { return m_pElement; }
    BOOL IsMenu() const { return m_bIsMenu; }
    /// Capitals; set by the level, because they depend on all of its tips.
    const CString& GetKeys() const { return m_strKeys; }
    void SetKeys(const CString& strKeys) { m_strKeys = strKeys; }

    /// Shows the window at the element, or moves it there. FALSE when the element is not shown or has no keys.
    BOOL Show();
    void Hide();

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CMFCRibbonBaseElement* m_pElement;
    BOOL m_bIsMenu;
    CString m_strKeys;
};
