#pragma once
// Programs ask by this name whether the header was included.
#define __AFXDISP_H__

// Object linking and embedding, as far as a program without objects of its own needs it.
#include "afxwin.h"

/// Readies the calling thread for OLE (clipboard, drag and drop); InitInstance calls it. FALSE when the system refuses,
/// as it does in a thread with another model. AfxWinTerm undoes it; a second call changes nothing.
FRAMEWORK_API BOOL AFXAPI AfxOleInit();

/// Windows of this framework hold no controls of foreign classes: programs that ask for it compile and run, and a
/// dialog template that names such a control still cannot be created.
FRAMEWORK_API void AFXAPI AfxEnableControlContainer();
