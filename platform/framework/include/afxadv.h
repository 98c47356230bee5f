#pragma once
// Programs ask by this name whether the header was included.
#define __AFXADV_H__

#include "afxwin.h"

#include <vector>

/// Length to which paths of recent files are shortened for display, unless the list was told another.
#define AFX_ABBREV_FILENAME_LEN 30

/// The files that a program had open last, the newest first; each at most once. Kept in the application's settings.
class FRAMEWORK_API CRecentFileList {
public:
    /// nStart: the number of the first file in menus, less one. lpszSection, lpszEntryFormat ("File%d", from 1): where
    /// the settings have them. nSize: how many there are at most. nMaxDispLen: characters that a menu shows.
    CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                    int nMaxDispLen = AFX_ABBREV_FILENAME_LEN);
    CRecentFileList(const CRecentFileList&) = delete;
    CRecentFileList& operator=(const CRecentFileList&) = delete;
    virtual ~CRecentFileList();

    /// Puts the file's full path in front.
    virtual void Add(LPCTSTR lpszPathName);
    virtual void Remove(int nIndex);
    /// Room for paths; those behind the last file are empty.
    int GetSize() const { return static_cast<int>(m_paths.size()); }
    CString& operator[](int nIndex);

    /// What a menu shows of a path: without the directory when that is lpszCurDir (nCurDir characters, with its
    /// backslash at the end), else the path, without directory and then without extension where it is too long. FALSE:
    /// there is no such file. A name that is too long even so is empty unless bAtLeastName.
    virtual BOOL GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                BOOL bAtLeastName = TRUE) const;
    /// Puts the files in the place of the menu item with the list's first command; they have the commands from there
    /// on. Without files the item stays, disabled. What is no menu item is enabled when there is a file.
    virtual void UpdateMenu(CCmdUI* pCmdUI);

    virtual void ReadList();
    virtual void WriteList();

private:
    std::vector<CString> m_paths;
    UINT m_nStart;
    CString m_strSection;
    CString m_strEntryFormat;
    CString m_strOriginal; // the text of the item that stands for the list
    int m_nMaxDispLen;
};
