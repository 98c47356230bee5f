#pragma once

#include "afxusertool.h"

class CMFCPopupMenu;

/// The user's tools of an application, each with one of the command ids that CWinAppEx::EnableUserTools sets aside.
/// Menus show them in place of the command uiCmdToolsDummy, and their commands are carried out by the application
/// without a handler of the host. CWinAppEx owns the manager and keeps the tools with its state.
class FRAMEWORK_API CUserToolsManager : public CObject {
public:
    CUserToolsManager();
    /// pToolRTC: CUserTool, or a class derived from it that can be created dynamically. The menus are resources whose
    /// commands the page "Tools" offers for arguments and directories: the string of a command's id is put in; 0: none.
    CUserToolsManager(const UINT uiCmdToolsDummy, const UINT uiCmdFirst, const UINT uiCmdLast,
                      CRuntimeClass* pToolRTC = RUNTIME_CLASS(CUserTool), UINT uArgMenuID = 0, UINT uInitDirMenuID = 0);
    ~CUserToolsManager() override;
    CUserToolsManager(const CUserToolsManager&) = delete;
    CUserToolsManager& operator=(const CUserToolsManager&) = delete;

    /// A tool with the first id that is free, at the end of the list; the manager owns it. NULL: all ids are taken, or
    /// the class cannot be created.
    CUserTool* CreateNewTool();
    /// Deletes the tool. FALSE: it is none of the list.
    BOOL RemoveTool(CUserTool* pTool);
    /// One place; FALSE: it is the first (last) one already, or none of the list.
    BOOL MoveToolUp(CUserTool* pTool);
    BOOL MoveToolDown(CUserTool* pTool);

    /// CUserTool, in the order of the menus.
    const CObList& GetUserTools() const { return m_lstUserTools; }
    CUserTool* FindTool(UINT uiCmdId) const;
    /// FALSE: no tool has the command, or it could not be started.
    BOOL InvokeTool(UINT uiCmdId);
    /// The id is among those that tools may have, whether one has it or not.
    BOOL IsUserToolCmd(UINT uiCmdId) const { return uiCmdId >= m_uiCmdFirst && uiCmdId <= m_uiCmdLast; }
    UINT GetToolsEntryCmd() const { return m_uiCmdToolsDummy; }
    int GetMaxTools() const;

    // For the fields of the page "Tools".
    UINT GetArgumentsMenuID() const { return m_uArgMenuID; }
    UINT GetInitialDirMenuID() const { return m_uInitDirMenuID; }
    /// Of the file dialog that chooses a program.
    void SetFilter(const CString& strFilter) { m_strFilter = strFilter; }
    const CString& GetFilter() const { return m_strFilter; }
    void SetDefExt(const CString& strDefExt) { m_strDefExt = strDefExt; }
    const CString& GetDefExt() const { return m_strDefExt; }

    /// The tools, below the application's registry section. FALSE: nothing was kept, or it is damaged or has commands
    /// that are not set aside; then the tools stay as they are.
    BOOL LoadState(LPCTSTR lpszProfileName = NULL);
    BOOL SaveState(LPCTSTR lpszProfileName = NULL);

private:
    BOOL MoveTool(CUserTool* pTool, int nPlaces);
    void RemoveAll();

    CObList m_lstUserTools; ///< owned
    CString m_strFilter, m_strDefExt;
    CRuntimeClass* m_pToolRTC = NULL;
    UINT m_uiCmdToolsDummy = 0;
    UINT m_uiCmdFirst = 0xFFFF, m_uiCmdLast = 0; ///< no id lies between them
    UINT m_uArgMenuID = 0, m_uInitDirMenuID = 0;
};

/// The manager of the running application; NULL until CWinAppEx::EnableUserTools has made it.
FRAMEWORK_API extern CUserToolsManager* afxUserToolsManager;
