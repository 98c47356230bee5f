#pragma once

#include "fx/scroll_view.h"

/// A view whose window is made from a dialog resource, a child without a border. It scrolls when the frame is smaller
/// than the dialog. Its controls exchange data (DoDataExchange) as those of a dialog do, first in OnInitialUpdate.
class FRAMEWORK_API CFormView : public CScrollView {
    DECLARE_DYNAMIC(CFormView)

public:
    /// FALSE until the controls have been filled for the first time.
    BOOL IsInitDlgCompleted() const { return m_isFilled; }

    /// FALSE, and the object deletes itself, when there is no such resource.
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwRequestedStyle, const RECT& rect,
                CWnd* pParentWnd, UINT nID, CCreateContext* pContext = NULL) override;
    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    explicit CFormView(LPCTSTR lpszTemplateName);
    explicit CFormView(UINT nIDTemplate);

    /// Nothing: the controls draw themselves.
    void OnDraw(CDC* pDC) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()

private:
    LPCTSTR m_template;
    CCreateContext* m_creation = NULL; ///< while the window is made
    BOOL m_isFilled = FALSE;
};
