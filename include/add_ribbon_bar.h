#pragma once

#include "barwright_api.h"
#include "ribbon_info.h"

#include <afxtempl.h>
#include <afxwin.h>

#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonPanel;
class CMFCRibbonUNIcoButton;
class CXmlNodeWrapper;
struct RibbonRecord;

/// Fills a ribbon bar from a ribbon configuration file and enters every command that the file names in CMenuIdMgr. The
/// host makes one for each file and bar while it creates its frame, on the user-interface thread, calls Load, and may
/// then ask what the file brought. The bar owns everything that is built; the object owns nothing in it and may go at
/// any time.
///
/// Only a file that cannot be loaded is told to the user. Elements that cannot be read or built are skipped.
class BARWRIGHT_API CAddRibbonBar {
public:
    using _RibbonInfo = RibbonInfo;

    /// The installation directory with its closing separator; set by the first object made, if it was empty.
    static CString m_sAppPath;
    /// The hint that configured buttons get as their description: F1 shows a video of the command.
    static CString m_strHelpF1;
    /// Extra status-bar buttons by the path that was given to Load: the keyword of their row and their records. A later
    /// Load of the same path replaces them.
    static std::map<std::wstring, std::pair<std::wstring, std::vector<_RibbonInfo>>> m_smStatusExBtns;

    /// The path given to the last Load that could read its file.
    std::wstring m_cfgPath;
    /// The command text, often empty, of each category, panel, element and sub-item that the last Load met, in reading
    /// order.
    std::vector<std::wstring> m_cmdList;

    CAddRibbonBar();

    /// Adds the categories of a file to the bar. `path` is relative to the installation directory (FileOp::GetAppPath).
    /// `show` 0 hides what was added; any other value shows it and, where the file has quick access commands, sets
    /// them. False for an empty path, a null bar, an unknown installation directory, and, after a message box, for a
    /// file that cannot be loaded.
    ///
    /// Loading a second file with the same object adds to its quick access keywords. A file without categories leaves
    /// the indexes of the last one, so with `show` 0 it hides that one's categories again.
    bool Load(const std::wstring& path, CMFCRibbonBar* bar, int show);

    /// Reads one element of a file. `picDisPath`, `cmd` and `param` keep what they held where the element does not set
    /// them. False when the element has no attributes or its SIZE or WIDTH is not a number; the record then holds what
    /// was read before that.
    bool GetRowInfo(const CXmlNodeWrapper& node, _RibbonInfo& info) const;

    /// Reads an element, enters its command and adds what it describes, with its sub-items, to the panel, which owns
    /// it. A null panel does nothing.
    void AddList(const CXmlNodeWrapper& node, CMFCRibbonPanel* panel);

    /// Makes the element that a record describes; the caller owns it. Null for an unknown type. `owner` decides about
    /// the F1 hint and may be null: no hint.
    static CMFCRibbonBaseElement* CreateACtrl(unsigned int id, const _RibbonInfo& info, const CAddRibbonBar* owner);

    /// Makes another button for a command that has a visible icon-file button in the bar; the caller owns and places
    /// it. `id` becomes the command id. `spare` is not used; `keepLargePath` is passed on to the button. Null for a
    /// null bar, a keyword that is not registered or has no tooltip (`id` is then untouched), and where the bar has no
    /// such button.
    static CMFCRibbonUNIcoButton* CreateBtnFromKey(CMFCRibbonBar* bar, const std::wstring& keyword, int spare, int& id,
                                                   int keepLargePath);

    /// Positions of the first and the last category that Load added; both -1 before. Returns how many they are.
    int GetAddIndex(int& first, int& last) const;

    /// The command ids of the quick access keywords that are registered; returns how many.
    int GetQAToolBar(std::vector<unsigned int>& ids) const;
    /// All quick access keywords in reading order, unknown and empty ones included.
    const std::vector<std::wstring>& GetQAToolBar() const { return m_qaKeywords; }

    /// Appends the ids at the tail of the list.
    static void vector2List(const std::vector<unsigned int>& ids, CList<UINT, UINT>& list);

    /// Whether buttons that are made from now on get the F1 hint; true at first.
    void SetCreateF1Tip(bool create) { m_bCreateF1Tip = create; }
    bool getAcceptF1() const { return m_bCreateF1Tip; }

private:
    void AddRow(const RibbonRecord& row, CMFCRibbonBar& bar);
    void AddCategory(const RibbonRecord& category, CMFCRibbonBar& bar);
    void AddElement(const RibbonRecord& element, CMFCRibbonPanel& panel);
    CMFCRibbonBaseElement* CreateWithSubItems(const RibbonInfo& element, std::span<const RibbonRecord> subItems,
                                              unsigned int id);
    void HideAddedCategories(CMFCRibbonBar& bar) const;
    void ShowQuickAccessCommands(CMFCRibbonBar& bar) const;

    std::vector<std::wstring> m_qaKeywords;
    int m_firstAddedCategory = -1;
    int m_lastAddedCategory = -1;
    bool m_bCreateF1Tip = true;
};
