#pragma once

#include "fx/frame.h"

/// A small frame without menu, table or bars of its own, owned by another window: floating bars and pop-up menus. As
/// every frame it is made with new and deletes itself after WM_NCDESTROY.
class FRAMEWORK_API CMiniFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMiniFrameWnd)

public:
    CMiniFrameWnd();
    ~CMiniFrameWnd() override;

    /// Both return FALSE when the window could not be made. A null class name means an ordinary one with an arrow
    /// cursor.
    virtual BOOL Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd = NULL, UINT nID = 0);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT& rect,
                          CWnd* pParentWnd = NULL, UINT nID = 0);
};
