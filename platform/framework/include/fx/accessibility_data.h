#pragma once

#include "framework_api.h"

#include <afxwin.h>

/// What an assistive program is told of one ribbon element, or of one row inside it. Every element fills it in its
/// SetACCData; texts are without marks of mnemonics, the rectangle is in screen pixels.
class FRAMEWORK_API CAccessibilityData {
public:
    CString m_strName;
    CString m_strValue;         ///< text of an edit, position of a slider; empty: no value
    CString m_strDescription;   ///< what the element is for
    CString m_strKeys;          ///< keys that lead to it, as "Alt, H, P"
    CString m_strDefaultAction; ///< empty: there is none
    LONG m_nRole = 0;           ///< ROLE_SYSTEM_
    LONG m_nState = 0;          ///< STATE_SYSTEM_ bits
    CRect m_rect{0, 0, 0, 0};
};
