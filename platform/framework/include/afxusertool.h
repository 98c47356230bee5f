#pragma once

#include "afxwin.h"

/// A command that starts another program: what the user has written down on the page "Tools" of the customize dialog.
/// CUserToolsManager makes, owns and numbers it.
class FRAMEWORK_API CUserTool : public CObject {
    DECLARE_SERIAL(CUserTool)

public:
    CUserTool();
    ~CUserTool() override;
    CUserTool(const CUserTool&) = delete;
    CUserTool& operator=(const CUserTool&) = delete;

    /// As the menu shows it, with "&" before the mnemonic.
    CString m_strLabel;
    /// Follow the program on its command line as they are.
    CString m_strArguments;
    /// Where the program starts; empty: where this one is.
    CString m_strInitialDirectory;

    /// Starts the program. FALSE: there is none, or the system could not start it.
    virtual BOOL Invoke();
    /// The program: a file that the system can start. Its icon becomes that of the tool.
    void SetCommand(LPCTSTR lpszCmd);
    const CString& GetCommand() const { return m_strCommand; }
    UINT GetCommandId() const { return m_uiCmdId; }

    /// Takes the icon from the program, else the default one. The icon is the tool's; NULL: it has none.
    virtual HICON SetToolIcon();
    /// In its small size, in the middle of the rectangle.
    void DrawToolIcon(CDC* pDC, const CRect& rectImage);

    void Serialize(CArchive& ar) override;

protected:
    /// A new icon for a program without one. The caller destroys it; NULL: tools without an icon show none.
    virtual HICON LoadDefaultIcon();

private:
    friend class CUserToolsManager;

    CString m_strCommand;
    HICON m_hIcon = NULL; ///< owned
    UINT m_uiCmdId = 0;
};
