#pragma once

#include "barwright_api.h"
#include "menu_info.h"

#include <afxwin.h>

#include <string>
#include <vector>

class CXmlNodeWrapper;

/// Builds a menu from a menu configuration file, enters its commands in CMenuIdMgr and collects its shortcuts. The
/// object is the top-level menu itself. The host makes one, on the user-interface thread, calls Load, gives GetMenu to
/// its frame or menu bar and then calls SetAppAccelTable.
///
/// The object owns the menu until the host detaches it or hands it to a window that destroys its menu; popups belong
/// to the menu that they stand in. An object may load again: the former menu is then destroyed.
class BARWRIGHT_API CDynMenuCreater : public CMenu {
public:
    using _menuInfo = MenuInfo;

    CDynMenuCreater();
    ~CDynMenuCreater() override;

    /// Builds the menu anew. `path` is relative to the installation directory (FileOp::GetAppPath). False, with an
    /// empty menu, for an empty path, an unknown installation directory and, after a message box, for a file that
    /// cannot be loaded. Throws std::out_of_range when a shortcut names no key behind a "+" ("Ctrl+"); the menu is then
    /// empty as well, and what was registered before stays registered.
    bool Load(std::wstring path);

    /// The object itself, never null.
    CMenu* GetMenu() { return this; }

    /// The next command id that a builder takes, CMenuIdMgr::s_AddBeginID.
    static unsigned int GetNextBeginId();

    /// Makes the accelerators of the main frame at the time of Load, followed by those of the file, the application's.
    /// The first of two with the same keys counts, and one whose command id is above 65,535 is left out: its entry has
    /// the low 16 bits, which are another command's. Once for each Load; does nothing without accelerators, or when the
    /// application is no CWinAppEx. The entries are not released: what was handed over stays readable for ever.
    void SetAppAccelTable();

    /// Puts `count` entries behind the main frame's accelerators. `accel`, made with new[], is taken over and becomes
    /// null. Where there is no frame with accelerators the entries alone become the application's, and the caller
    /// keeps the array. Does nothing for a null array, or when the application is no CWinAppEx.
    static void AddAppAccelTable(ACCEL*& accel, int count);

protected:
    /// Back to an empty menu that begins with the next free id, and to the main frame's accelerators.
    void reset();
    /// Appends an element without children, or the children of one that has some, to a menu. A null menu does nothing.
    /// The next free id of the process is moved on by one more than was used.
    void AddMenu(const CXmlNodeWrapper& node, CMenu* menu);
    /// Appends one element without children.
    void InsertAMenu(const CXmlNodeWrapper& node, CMenu* menu);
    /// Reads an element's attributes; fields that it does not name stay. False when it has none.
    bool GetMenuInfo(const CXmlNodeWrapper& node, _menuInfo& info);

    /// Fills `fVirt` and `key` from a text such as "Ctrl+S"; `cmd` stays. False when no key is named. Throws
    /// std::out_of_range where an empty piece stands for the key.
    static bool CreateAccel(const std::wstring& text, ACCEL& accel);
    /// Sets the flag in the entry's `fVirt`, or clears it when `set` is 0. A null entry does nothing.
    static void SetAccelFlag(ACCEL* accel, BYTE flag, int set);

    /// The id of the next command that is entered.
    unsigned int m_nCurId = 0;
    /// The id that the load began with.
    unsigned int m_nBeginId = 0;
    int m_nAccelCount = 0;
    ACCEL* m_pAccel = nullptr;

public:
    /// The path given to the last Load.
    std::wstring m_strPath;
    /// The command text, often empty, of each element that the last Load read, in reading order.
    std::vector<std::wstring> m_vecCmd;

private:
    class Building;

    void DestroyOwnMenu();

    /// Of m_pAccel, the indexes of entries whose command id had more than 16 bits.
    std::vector<int> m_cutShortcuts;
};
