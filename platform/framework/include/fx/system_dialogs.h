#pragma once

#include "fx/print.h"

#include <vector>

/// The system's dialog for the names of files. The object keeps the answer until the next DoModal.
class FRAMEWORK_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// lpszFilter: pairs of name and pattern, each ending in "|", and one "|" more. lpszDefExt: what a name without an
    /// extension gets, without its point; NULL: nothing. The virtual functions below are called for derived classes,
    /// and where bVistaStyle is FALSE.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = NULL, LPCTSTR lpszFileName = NULL,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = NULL,
                         CWnd* pParentWnd = NULL, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    ~CFileDialog() override;

    /// IDOK or IDCANCEL; CommDlgExtendedError says whether the latter was a mistake.
    INT_PTR DoModal() override;

    /// Of "C:\\maps\\coast.map": all of it, "coast.map", "map", "coast" and "C:\\maps". The folder and the path of a
    /// dialog that is shown are those that it shows. With OFN_ALLOWMULTISELECT the first of the chosen ones.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    CString GetFolderPath() const;
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    /// All that were chosen, one by one; NULL behind the last.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

    const OPENFILENAME& GetOFN() const { return m_ofn; }
    OPENFILENAME& GetOFN() { return m_ofn; }

    // Of a dialog that is shown, by the system's numbers of its controls.
    void SetControlText(int nID, LPCSTR lpsz);
    void SetControlText(int nID, const wchar_t* lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCSTR lpsz);
    /// A dialog resource that is shown within the system's.
    void SetTemplate(UINT nWin3ID, UINT nWin4ID);
    void SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID);

    /// What the system is asked for and what it answers. lpstrFile may be replaced by a longer buffer of the caller's.
    OPENFILENAME m_ofn = {};

protected:
    /// TRUE keeps the dialog open; the base has no objection to a name.
    virtual BOOL OnFileNameOK();
    /// OFN_SHAREWARN (the base: the system warns), OFN_SHARENOWARN or OFN_SHAREFALLTHROUGH.
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();

private:
    static UINT_PTR CALLBACK Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT OnNotice(const OFNOTIFY& notice);
    /// What the open dialog answers to one of its messages for texts, empty when there is none.
    CString AskDialog(UINT message) const;

    BOOL m_isOpening;
    bool m_needsHook;
    CString m_extension;
    std::vector<wchar_t> m_filter;
    std::vector<wchar_t> m_file;
};

/// The system's dialog for a colour.
class FRAMEWORK_API CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)

public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = NULL);

    INT_PTR DoModal() override;
    COLORREF GetColor() const { return m_cc.rgbResult; }
    /// In a dialog that is shown.
    void SetCurrentColor(COLORREF clr);
    /// Sixteen, the program's, white at first; the user changes them in any of these dialogs.
    static COLORREF* PASCAL GetSavedCustomColors();

    CHOOSECOLOR m_cc = {};

protected:
    /// TRUE keeps the dialog open. GetColor is what was chosen.
    virtual BOOL OnColorOK();

private:
    static UINT_PTR CALLBACK Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
};

/// The system's dialog for a font.
class FRAMEWORK_API CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)

public:
    /// lplfInitial: what is chosen at first; NULL: nothing.
    explicit CFontDialog(LPLOGFONT lplfInitial = NULL, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = NULL, CWnd* pParentWnd = NULL);

    INT_PTR DoModal() override;
    void GetCurrentFont(LPLOGFONT lplf) const { *lplf = m_lf; }
    CString GetFaceName() const { return m_lf.lfFaceName; }
    CString GetStyleName() const { return m_styleName; }
    /// In tenths of a point.
    int GetSize() const { return m_cf.iPointSize; }
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return static_cast<int>(m_lf.lfWeight); }
    BOOL IsStrikeOut() const { return m_lf.lfStrikeOut != 0; }
    BOOL IsUnderline() const { return m_lf.lfUnderline != 0; }
    BOOL IsBold() const { return m_lf.lfWeight > FW_MEDIUM; }
    BOOL IsItalic() const { return m_lf.lfItalic != 0; }

    CHOOSEFONT m_cf = {};
    LOGFONT m_lf = {};

private:
    TCHAR m_styleName[LF_FACESIZE] = {};
};
