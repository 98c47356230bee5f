#include <afxcontrolbars.h>

#include "batch.h"
#include "forget_icons.h"

#include "add_ribbon_bar.h"
#include "dyn_toolbar_creater.h"
#include "menu_id_mgr.h"

#include "varnhold/strings.h"

#include <filesystem>
#include <fstream>

namespace {

constexpr std::uint32_t kFirstCommand = 41000;
constexpr std::uint32_t kFirstToolBar = 45000;

/// Paths that begin with a slash are those of the system below Wine, whose root is a drive there.
std::wstring FullPath(const std::string& text) {
    const std::wstring path = string2wstring(text);
    return path.empty() || path.front() != L'/' ? path : L"Z:" + path;
}

} // namespace

std::optional<std::vector<BatchEntry>> ReadBatch(const std::wstring& path, std::wstring& error) {
    std::ifstream file{std::filesystem::path(path)};
    if (!file) {
        error = L"not read: " + path;
        return std::nullopt;
    }
    std::vector<BatchEntry> entries;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        const std::size_t tab = line.find('\t');
        if (line.empty()) {
            continue;
        }
        if (tab == 0 || tab == std::string::npos || tab + 1 == line.size()) {
            error = L"no directory, tab and file: " + string2wstring(line);
            return std::nullopt;
        }
        BatchEntry entry{FullPath(line.substr(0, tab)), FullPath(line.substr(tab + 1))};
        if (entry.directory.back() != L'\\' && entry.directory.back() != L'/') {
            entry.directory += L'\\';
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

void ForgetConfiguration() {
    CMenuIdMgr::Destroy();
    CMenuIdMgr::s_AddBeginID = kFirstCommand;
    CDynToolBarCreater::s_ToolbarIndex = kFirstToolBar;
    CAddRibbonBar::m_smStatusExBtns.clear();
    ForgetIcons();
}

bool EnterDirectory(const std::wstring& directory) { return ::SetCurrentDirectoryW(directory.c_str()) != FALSE; }

void NameDirectory(nlohmann::ordered_json& dump, const std::wstring& directory) {
    const std::string current = wstring2String(kCurrentDirectory);
    for (auto& image : dump["skin"]["images"]) {
        const auto path = image.get<std::string>();
        if (path.rfind(current, 0) == 0) {
            image = wstring2String(directory) + path.substr(current.size());
        }
    }
}
