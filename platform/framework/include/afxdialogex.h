#pragma once

#include "afxwin.h"

/// A dialog with a background colour or picture.
class FRAMEWORK_API CDialogEx : public CDialog {
    DECLARE_DYNAMIC(CDialogEx)

public:
    enum BackgroundLocation {
        BACKGR_TILE,
        BACKGR_TOPLEFT,
        BACKGR_TOPRIGHT,
        BACKGR_BOTTOMLEFT,
        BACKGR_BOTTOMRIGHT,
    };

    CDialogEx();
    CDialogEx(UINT nIDTemplate, CWnd* pParent = NULL);
    CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    ~CDialogEx() override;

    /// (COLORREF)-1 takes the colour away.
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);
    /// With bAutoDestroy the dialog deletes the bitmap. NULL takes the picture away.
    void SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location = BACKGR_TILE, BOOL bAutoDestroy = TRUE,
                            BOOL bRepaint = TRUE);
    BOOL SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location = BACKGR_TILE, BOOL bRepaint = TRUE);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void ReleaseBitmap();

    HBITMAP m_bitmap = nullptr;
    bool m_isBitmapOwned = false;
    BackgroundLocation m_location = BACKGR_TILE;
    COLORREF m_color = static_cast<COLORREF>(-1);
    HBRUSH m_brush = nullptr;
};
