#pragma once
// Programs ask by this name whether the header was included.
#define __AFXEXT_H__

#include "afxcmn.h"
#include "afxwin.h"
#include "fx/control_bar.h"
#include "fx/control_view.h"
#include "fx/form_view.h"
#include "fx/print.h"
#include "fx/print_preview.h"
#include "fx/status_bar.h"

class CDocument;
class CDocTemplate;
class CView;

/// What a frame's creation hands down to its client window.
struct CCreateContext {
    CRuntimeClass* m_pNewViewClass = NULL;
    CDocument* m_pCurrentDoc = NULL;
    CDocTemplate* m_pNewDocTemplate = NULL;
    CView* m_pLastView = NULL;
    CFrameWnd* m_pCurrentFrame = NULL;
};
