#include "menu_model.h"

#include "config/menu_diagnosis.h"
#include "config/menu_file.h"
#include "config/shortcut_text.h"

#include <varnhold/letter_case.h>
#include <varnhold/strings.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace {

using nlohmann::ordered_json;

/// The first of a menu's recent files (ID_FILE_MRU_FILE1).
constexpr std::uint32_t kFirstRecentFile = 0xE110;

CommandRecord RecordOf(const MenuInfo& info) {
    return {info.strKeyword, info.strToolTip, info.strCmd, info.strParam, {}};
}

/// The number of the key where every keyboard has the same.
ordered_json KeyOf(wchar_t character) {
    const bool isSmall = character >= L'a' && character <= L'z';
    const bool isPlain = (character >= L'A' && character <= L'Z') || (character >= L'0' && character <= L'9');
    if (!isSmall && !isPlain) {
        return nullptr;
    }
    return static_cast<int>(isSmall ? character - L'a' + L'A' : character);
}

} // namespace

/// Puts what a file has into a menu of its own, level by level.
class MenuModel::Reading : public MenuFileVisitor {
public:
    explicit Reading(CommandModel& commands) : m_commands(commands), m_nextId(commands.nextId) {}

    void VisitItem(const MenuInfo& info, std::size_t level) override {
        CloseDownTo(level);
        Append(info);
        SkipAnId();
    }

    void VisitPopup(const MenuInfo& info, std::size_t level) override {
        CloseDownTo(level);
        m_commands.Add(0, info.strName, RecordOf(info));
        m_open.back().push_back({{"text", wstring2String(info.strText)}});
        m_open.push_back(ordered_json::array());
    }

    void LeaveBranch() override { SkipAnId(); }

    /// Where a shortcut ended the reading: no id that a command has is given again.
    void KeepIds() { m_commands.nextId = std::max(m_commands.nextId, m_nextId + 1); }

    ordered_json TakeMenu() {
        CloseDownTo(0);
        return std::move(m_open.front());
    }
    const ordered_json& Accelerators() const { return m_accelerators; }

private:
    void CloseDownTo(std::size_t level) {
        while (m_open.size() > level + 1) {
            ordered_json items = std::move(m_open.back());
            m_open.pop_back();
            m_open.back().back()["popup"] = std::move(items);
        }
    }

    void Append(const MenuInfo& info) {
        ordered_json& menu = m_open.back();
        if (info.bSeparator) {
            menu.push_back({{"separator", true}});
            return;
        }
        const auto item = [&info](std::uint32_t id) {
            return ordered_json{{"id", id}, {"text", wstring2String(info.strText)}};
        };
        const bool isRecentFiles = info.strKeyword == kRecentFilesKeyword;
        if (!isRecentFiles) {
            if (const std::uint32_t* const known = m_commands.Find(info.strKeyword)) {
                menu.push_back(item(*known));
                return;
            }
            m_commands.Add(m_nextId, info.strName, RecordOf(info));
        }
        AddShortcut(info.strHotKey);
        if (!info.strKeyword.empty()) {
            menu.push_back(item(isRecentFiles ? kFirstRecentFile : m_nextId++));
        }
    }

    void AddShortcut(const std::wstring& text) {
        if (text.empty()) {
            return;
        }
        const ShortcutText shortcut = ReadShortcutText(text);
        if (shortcut.character == 0) {
            return;
        }
        ordered_json entry = {{"virt", shortcut.flags}};
        if (ordered_json key = KeyOf(shortcut.character); !key.is_null()) {
            entry["key"] = std::move(key);
        }
        entry["cmd"] = m_nextId;
        m_accelerators.push_back(std::move(entry));
    }

    void SkipAnId() { m_commands.nextId = m_nextId + 1; }

    CommandModel& m_commands;
    std::uint32_t m_nextId;
    /// The items of the menu and of the popups that are being read.
    std::vector<ordered_json> m_open{ordered_json::array()};
    ordered_json m_accelerators = ordered_json::array();
};

void MenuModel::Load(const std::wstring& fullPath) {
    Reading reading(m_commands);
    try {
        if (!LoadMenuFile(fullPath, reading, DroppedDiagnostics())) {
            return;
        }
    } catch (const std::out_of_range&) {
        reading.KeepIds();
        return;
    }
    for (ordered_json& item : reading.TakeMenu()) {
        m_menu.push_back(std::move(item));
    }
    for (const ordered_json& accelerator : reading.Accelerators()) {
        m_accelerators.push_back(accelerator);
    }
}
