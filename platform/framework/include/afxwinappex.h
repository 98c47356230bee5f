#pragma once

#include "afxusertool.h"
#include "afxwin.h"

#include <memory>

class CContextMenuManager;
class CFrameImpl;
class CFrameWndEx;
class CMDIFrameWndEx;
class CKeyboardManager;
class CTooltipManager;
class CUserToolsManager;

namespace fx {
template <class Base>
class BarFrameOf;
} // namespace fx

/// An application with the managers of customisable bars and with settings kept in sections of its registry key.
///
/// The managers are made by InitXxxManager or by the first GetXxxManager and die with the application object.
class FRAMEWORK_API CWinAppEx : public CWinApp {
    DECLARE_DYNAMIC(CWinAppEx)
public:
    explicit CWinAppEx(BOOL bResourceSmartUpdate = FALSE);
    ~CWinAppEx() override;

    int ExitInstance() override;
    /// Enables and carries out the commands of user tools that nobody before the application has handled.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Registry base: the section below which everything of this object lies. "Workspace" unless set.
    LPCTSTR SetRegistryBase(LPCTSTR lpszSectionName = NULL);
    LPCTSTR GetRegistryBase();
    /// The base, szSectionAdd and nothing else: a path below the application's key.
    CString GetRegSectionPath(LPCTSTR szSectionAdd = _T(""));

    int GetInt(LPCTSTR lpszEntry, int nDefault = 0);
    CString GetString(LPCTSTR lpszEntry, LPCTSTR lpzDefault = _T(""));
    /// The caller deletes *ppData with delete[].
    BOOL GetBinary(LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL GetObject(LPCTSTR lpszEntry, CObject& obj);
    BOOL WriteInt(LPCTSTR lpszEntry, int nValue);
    BOOL WriteString(LPCTSTR lpszEntry, LPCTSTR lpszValue);
    BOOL WriteBinary(LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    BOOL WriteObject(LPCTSTR lpszEntry, CObject& obj);
    int GetSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nDefault = 0);
    CString GetSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = _T(""));
    BOOL GetSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL GetSectionObject(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, CObject& obj);
    BOOL WriteSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nValue);
    BOOL WriteSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    BOOL WriteSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    BOOL WriteSectionObject(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, CObject& obj);
    fx::StateStore* GetStateStore() override;
    BOOL IsStateExists(LPCTSTR lpszSectionName);
    /// Deletes the section's settings.
    virtual BOOL CleanState(LPCTSTR lpszSectionName = NULL);

    /// FALSE: there was one already.
    BOOL InitKeyboardManager();
    BOOL InitTooltipManager();
    BOOL InitContextMenuManager();
    CKeyboardManager* GetKeyboardManager();
    CTooltipManager* GetTooltipManager();
    CContextMenuManager* GetContextMenuManager();
    /// Makes the manager of the user's tools; see CUserToolsManager. FALSE: there is one already, the ids are none, or
    /// the class is not one of tools.
    BOOL EnableUserTools(const UINT uiCmdToolsDummy, const UINT uiCmdFirst, const UINT uiCmdLast,
                         CRuntimeClass* pToolRTC = RUNTIME_CLASS(CUserTool), UINT uArgMenuID = 0,
                         UINT uInitDirMenuID = 0);
    /// NULL without EnableUserTools.
    CUserToolsManager* GetUserToolsManager();

    /// Shows a menu resource at a screen point by GetContextMenuManager; its commands go to pWnd's frame. FALSE when
    /// the menu is missing.
    virtual BOOL ShowPopupMenu(UINT uiMenuResId, const CPoint& point, CWnd* pWnd);

    /// Where the frame's panes are and what they keep, the frame's place and size, the user's tools, and what holds for
    /// all toolbars;
    /// below lpszSectionName or, without one, the present base section. CFrameWndEx::LoadFrame calls it for its frame,
    /// and closing the main frame saves, where the application has a registry key. Shortcuts are the host's to keep
    /// (CKeyboardManager::SaveState): ids of configured commands change from one configuration to the next. FALSE:
    /// nothing was kept, or a part of it is damaged; that part is as the program made it, the rest is restored.
    BOOL LoadState(CMDIFrameWndEx* pFrame, LPCTSTR lpszSectionName = NULL);
    BOOL LoadState(CFrameWndEx* pFrame, LPCTSTR lpszSectionName = NULL);
    virtual BOOL LoadState(LPCTSTR lpszSectionName = NULL, CFrameImpl* pFrameImpl = NULL);
    virtual BOOL SaveState(LPCTSTR lpszSectionName = NULL, CFrameImpl* pFrameImpl = NULL);
    BOOL SaveState(CMDIFrameWndEx* pFrame, LPCTSTR lpszSectionName = NULL);
    BOOL SaveState(CFrameWndEx* pFrame, LPCTSTR lpszSectionName = NULL);

    virtual BOOL OnViewDoubleClick(CWnd* pWnd, int iViewId);
    virtual BOOL OnWorkspaceIdle(CWnd*);
    BOOL IsResourceSmartUpdate() const { return m_bResourceSmartUpdate; }
    void EnableLoadWindowPlacement(BOOL bEnable = TRUE) { m_bLoadWindowPlacement = bEnable; }
    int GetDataVersion() const { return m_iSavedVersion; }
    int GetDataVersionMajor() const { return HIWORD(m_iSavedVersion); }
    int GetDataVersionMinor() const { return LOWORD(m_iSavedVersion); }

    BOOL m_bForceImageReset = FALSE;

protected:
    virtual void PreLoadState() {}
    virtual void LoadCustomState() {}
    virtual void PreSaveState() {}
    virtual void SaveCustomState() {}
    /// The main frame closes; saves its state.
    virtual void OnClosingMainFrame(CFrameImpl* pFrameImpl);
    /// Gives the frame its place and size of the last run, on a monitor that exists. One that is not shown yet stays
    /// hidden, and m_nCmdShow says how it was. FALSE: nothing was kept.
    virtual BOOL ReloadWindowPlacement(CFrameWnd* pFrame);
    virtual BOOL LoadWindowPlacement(CRect& rectNormalPosition, int& nFlags, int& nShowCmd);
    virtual BOOL StoreWindowPlacement(const CRect& rectNormalPosition, int nFlags, int nShowCmd);

    BOOL m_bResourceSmartUpdate;
    BOOL m_bLoadWindowPlacement = TRUE;
    int m_iSavedVersion = -1;
    CString m_strRegSection;

private:
    template <class Base>
    friend class fx::BarFrameOf;
    void KeepFramePlacement(const CFrameWnd& frame);

    struct Managers;
    std::unique_ptr<Managers> m_managers;
};
