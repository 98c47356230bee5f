#pragma once

#include "afxwin.h"

#include <vector>

class CMultiDocTemplate;

/// Holds the application's accelerator tables and answers which key belongs to a command. One object, made by
/// CWinAppEx::GetKeyboardManager or InitKeyboardManager.
class FRAMEWORK_API CKeyboardManager : public CObject {
public:
    CKeyboardManager();
    ~CKeyboardManager() override;

    /// Makes the table that of pDefaultFrame; with neither a template nor a frame that of the application's main frame.
    /// The frame's former table is destroyed. The manager takes the new table; when FALSE is returned (no frame), the
    /// caller keeps it.
    BOOL UpdateAccelTable(CMultiDocTemplate* pTemplate, HACCEL hAccelNew, CFrameWnd* pDefaultFrame = NULL);
    BOOL UpdateAccelTable(CMultiDocTemplate* pTemplate, LPACCEL lpAccel, int nSize, CFrameWnd* pDefaultFrame = NULL);

    /// Text of the first key of a command ("Ctrl+S"); FALSE when there is none.
    static BOOL FindDefaultAccelerator(UINT uiCmd, CString& str, CFrameWnd* pWndFrame, BOOL bIsDefaultFrame);
    /// TRUE when the frame's table holds the key with exactly these modifiers.
    static BOOL __stdcall IsKeyHandled(WORD nKey, BYTE fVirt, CFrameWnd* pWndFrame, BOOL bIsDefaultFrame);
    static BOOL __stdcall IsKeyPrintable(const UINT nChar);
    static UINT TranslateCharToUpper(const UINT nChar);
    /// All keys of a command instead of the first, with a delimiter ("; " when NULL).
    static void ShowAllAccelerators(BOOL bShowAll = TRUE, LPCTSTR lpszDelimiter = NULL);
    static BOOL IsShowAllAccelerators() { return s_isShowAll; }
    // Shortcuts that the user has chosen, below the application's registry section. pDefaultFrame NULL: the
    // application's main frame.
    /// FALSE: nothing was kept, or it is damaged; the frame's table is as it was.
    BOOL LoadState(LPCTSTR lpszProfileName = NULL, CFrameWnd* pDefaultFrame = NULL);
    BOOL SaveState(LPCTSTR lpszProfileName = NULL, CFrameWnd* pDefaultFrame = NULL);
    /// The tables that frames had before LoadState gave them others, or the user changed them.
    void ResetAll();
    /// Keeps the frame's table as what ResetAll goes back to, before the user changes a key of it; NULL: the
    /// application's main frame. One that is kept already stays.
    void KeepOriginalKeys(CFrameWnd* pFrame = NULL);

    /// Forgets cached tables.
    static void CleanUp();

private:
    struct Original {
        HWND frame;
        std::vector<ACCEL> keys;
    };
    std::vector<Original> m_originals; ///< of frames whose table LoadState or the user has changed
    static bool s_isShowAll;
    static CString s_delimiter;
};

/// The manager that exists now, or null.
FRAMEWORK_API extern CKeyboardManager* afxKeyboardManager;
