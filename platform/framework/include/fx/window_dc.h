#pragma once

// Device contexts of a window. pWnd null means the whole screen (not for CPaintDC). They throw CResourceException.

#include "fx/dc.h"

/// The client area, for drawing outside of WM_PAINT.
class FRAMEWORK_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

/// The whole window with its frame.
class FRAMEWORK_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

/// Begins and ends the painting of a window: only in the answer to WM_PAINT.
class FRAMEWORK_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};
