#include "dyn_menu_creater.h"

#include "config/accelerators.h"
#include "config/command_id.h"
#include "config/load_watch.h"
#include "config/menu_attributes.h"
#include "config/menu_diagnosis.h"
#include "config/menu_file.h"
#include "config/menu_handles.h"
#include "config/menu_icon.h"
#include "config/missing_file_message.h"
#include "config/ribbon_attributes.h"
#include "config/shortcut_text.h"
#include "menu_id_mgr.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>

#include <algorithm>
#include <new>

static_assert(ShortcutVirtualKey == FVIRTKEY && ShortcutShift == FSHIFT && ShortcutControl == FCONTROL &&
              ShortcutAlt == FALT);
static_assert(sizeof(ACCEL) == 6);

namespace {

/// The caller owns the array.
ACCEL* NewAccelerators(std::size_t count) {
    auto* const entries = new (std::nothrow) ACCEL[count];
    if (!entries) {
        AfxThrowInvalidArgException();
    }
    return entries;
}

} // namespace

/// Builds menus while a file is read. Shortcuts are kept apart until the end, so that the array of the creater grows
/// once and not with each of them.
class CDynMenuCreater::Building : public MenuFileVisitor {
public:
    Building(CDynMenuCreater& creater, HMENU top) : m_creater(creater), m_menus{top} {}
    Building(const Building&) = delete;
    Building& operator=(const Building&) = delete;
    ~Building() override {
        for (const HMENU menu : m_lost) {
            DestroyMenuTree(menu);
        }
    }

    void VisitItem(const MenuInfo& info, std::size_t level) override {
        Append(info, m_menus[level]);
        SkipAnId();
    }

    void VisitPopup(const MenuInfo& info, std::size_t level) override {
        m_creater.m_vecCmd.push_back(info.strCmd);
        CMenuIdMgr::Ins()->Add(info.strKeyword, 0, info.strName, info.strCmd, info.strToolTip, info.strParam, {});
        m_menus.resize(level + 1);
        const HMENU popup = ::CreatePopupMenu();
        if (!::AppendMenuW(m_menus[level], MF_POPUP, reinterpret_cast<UINT_PTR>(popup), info.strText.c_str())) {
            // The menu is full: what follows goes into a menu that nobody sees.
            m_lost.push_back(popup);
        }
        m_menus.push_back(popup);
    }

    void LeaveBranch() override { SkipAnId(); }

    void Append(const MenuInfo& info, HMENU menu) {
        m_creater.m_vecCmd.push_back(info.bSeparator ? std::wstring() : info.strCmd);
        if (info.bSeparator) {
            ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
            return;
        }
        const bool isRecentFiles = info.strKeyword == kRecentFilesKeyword;
        const auto kept = isRecentFiles ? std::nullopt : KeptCommandId(info.strKeyword);
        const UINT next = kept.value_or(m_creater.m_nCurId);
        if (!isRecentFiles) {
            CMenuIdMgr& registry = *CMenuIdMgr::Ins();
            int id = 0;
            if (registry.GetMenuId(info.strKeyword, id)) {
                AppendItem(menu, static_cast<UINT>(id), info);
                GiveCommandIcon(static_cast<UINT>(id), info.strPicPath);
                return;
            }
            registry.Add(info.strKeyword, static_cast<int>(next), info.strName, info.strCmd, info.strToolTip,
                         info.strParam, {});
        }
        AddShortcut(info.strHotKey, next);
        if (info.strKeyword.empty()) {
            return;
        }
        m_creater.m_nCurId += isRecentFiles || kept ? 0 : 1;
        AppendItem(menu, isRecentFiles ? ID_FILE_MRU_FILE1 : next, info);
    }

    /// Puts the shortcuts behind those that the creater has.
    void Finish() {
        if (m_shortcuts.empty()) {
            return;
        }
        const auto before = static_cast<std::size_t>(m_creater.m_nAccelCount);
        ACCEL* const entries = NewAccelerators(before + m_shortcuts.size());
        std::copy_n(m_creater.m_pAccel, before, entries);
        std::copy(m_shortcuts.begin(), m_shortcuts.end(), entries + before);
        for (const std::size_t cut : m_cut) {
            m_creater.m_cutShortcuts.push_back(static_cast<int>(before + cut));
        }
        m_cut.clear();
        delete[] m_creater.m_pAccel;
        m_creater.m_pAccel = entries;
        m_creater.m_nAccelCount += static_cast<int>(m_shortcuts.size());
        m_shortcuts.clear();
    }

private:
    static void AppendItem(HMENU menu, UINT id, const MenuInfo& info) {
        ::AppendMenuW(menu, MF_STRING, id, info.strText.c_str());
    }

    void AddShortcut(const std::wstring& text, UINT command) {
        ACCEL shortcut{};
        if (!text.empty() && CreateAccel(text, shortcut)) {
            shortcut.cmd = static_cast<WORD>(command);
            if (shortcut.cmd != command) {
                m_cut.push_back(m_shortcuts.size());
            }
            m_shortcuts.push_back(shortcut);
        }
    }

    /// Whoever takes ids next leaves one out.
    void SkipAnId() const { CMenuIdMgr::s_AddBeginID = m_creater.m_nCurId + 1; }

    CDynMenuCreater& m_creater;
    /// By level, the menu that was opened last.
    std::vector<HMENU> m_menus;
    std::vector<HMENU> m_lost;
    std::vector<ACCEL> m_shortcuts;
    /// Of them, those whose command has another's low 16 bits.
    std::vector<std::size_t> m_cut;
};

CDynMenuCreater::CDynMenuCreater() = default;

CDynMenuCreater::~CDynMenuCreater() {
    DestroyOwnMenu();
    delete[] m_pAccel;
}

unsigned int CDynMenuCreater::GetNextBeginId() { return CMenuIdMgr::s_AddBeginID; }

void CDynMenuCreater::DestroyOwnMenu() {
    if (m_hMenu) {
        DestroyMenuTree(Detach());
    }
}

void CDynMenuCreater::reset() {
    DestroyOwnMenu();
    delete[] m_pAccel;
    m_pAccel = nullptr;
    CreateMenu();
    m_nBeginId = m_nCurId = CMenuIdMgr::s_AddBeginID;
    m_nAccelCount = 0;
    m_cutShortcuts.clear();
    if (const CFrameWnd* const frame = FrameWithAccelerators()) {
        const std::vector<ACCEL> entries = AcceleratorsOf(*frame);
        m_pAccel = NewAccelerators(entries.size());
        std::copy(entries.begin(), entries.end(), m_pAccel);
        m_nAccelCount = static_cast<int>(entries.size());
    }
    m_strPath.clear();
    m_vecCmd.clear();
}

bool CDynMenuCreater::Load(std::wstring path) {
    reset();
    if (path.empty()) {
        return false;
    }
    m_strPath = std::move(path);
    std::wstring directory;
    if (!FileOp::GetAppPath(directory)) {
        return false;
    }
    const std::wstring fullPath = directory + m_strPath;
    Building building(*this, m_hMenu);
    LoadWatch watch;
    try {
        if (!LoadMenuFile(fullPath, building, watch.Sink())) {
            ShowMissingFileMessage(fullPath);
            return false;
        }
    } catch (...) {
        // Nothing half-built stays behind, and no id that a command has is given again.
        CMenuIdMgr::s_AddBeginID = std::max(CMenuIdMgr::s_AddBeginID, m_nCurId + 1);
        reset();
        throw;
    }
    building.Finish();
    return true;
}

void CDynMenuCreater::AddMenu(const CXmlNodeWrapper& node, CMenu* menu) {
    if (!menu) {
        return;
    }
    Building building(*this, menu->m_hMenu);
    try {
        ReadMenuBranch(varnhold::XmlCursor(node), building, Unreported());
    } catch (...) {
        building.Finish();
        throw;
    }
    building.Finish();
}

void CDynMenuCreater::InsertAMenu(const CXmlNodeWrapper& node, CMenu* menu) {
    _menuInfo info;
    if (!menu || !GetMenuInfo(node, info)) {
        return;
    }
    Building building(*this, menu->m_hMenu);
    building.Append(info, menu->m_hMenu);
    building.Finish();
}

bool CDynMenuCreater::GetMenuInfo(const CXmlNodeWrapper& node, _menuInfo& info) {
    varnhold::XmlCursor element(node);
    return ReadMenuInfo(element, info, CTranslationSection(kRibbonSection), Unreported());
}

bool CDynMenuCreater::CreateAccel(const std::wstring& text, ACCEL& accel) {
    accel.fVirt = 0;
    accel.key = 0;
    const ShortcutText shortcut = ReadShortcutText(text);
    SetAccelFlag(&accel, shortcut.flags, TRUE);
    if (shortcut.character == 0) {
        return false;
    }
    // The high byte, with the shift keys that the character takes, is dropped.
    accel.key = LOBYTE(::VkKeyScanW(shortcut.character));
    return true;
}

void CDynMenuCreater::SetAccelFlag(ACCEL* accel, BYTE flag, int set) {
    if (!accel) {
        return;
    }
    accel->fVirt = static_cast<BYTE>(set != 0 ? accel->fVirt | flag : accel->fVirt & ~flag);
}

void CDynMenuCreater::SetAppAccelTable() {
    if (!TakesAccelerators() || !m_pAccel) {
        return;
    }
    std::vector<ACCEL> installed;
    for (int index = 0; index < m_nAccelCount; ++index) {
        if (!std::ranges::binary_search(m_cutShortcuts, index)) {
            installed.push_back(m_pAccel[index]);
        }
    }
    InstallAccelerators(installed.data(), static_cast<int>(installed.size()));
    m_pAccel = nullptr;
}

void CDynMenuCreater::AddAppAccelTable(ACCEL*& accel, int count) {
    if (!TakesAccelerators() || !accel) {
        return;
    }
    CFrameWnd* const frame = FrameWithAccelerators();
    if (!frame) {
        InstallAccelerators(accel, count);
        return;
    }
    std::vector<ACCEL> merged = AcceleratorsOf(*frame);
    merged.insert(merged.end(), accel, accel + std::max(count, 0));
    delete[] accel;
    accel = nullptr;
    // The keyboard manager destroys the frame's former table.
    InstallAccelerators(merged.data(), static_cast<int>(merged.size()));
}
