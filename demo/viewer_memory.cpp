#include "viewer_memory.h"

#include "varnhold/strings.h"

#include <shlobj.h>

#include <array>
#include <filesystem>
#include <numeric>

namespace {

constexpr wchar_t kFolder[] = L"Barwright\\Map viewer";
constexpr wchar_t kViewerFile[] = L"viewer.json";
constexpr wchar_t kBarsFile[] = L"bars.xml";

struct SourceRow {
    KeptFile::Source ofViewer;
    CUserSettings::Source ofBars;
    const char* trouble;
};
constexpr std::array<SourceRow, 2> kTroubles = {
    {{KeptFile::Source::LastGood, CUserSettings::Source::LastGood, "KeptFromBefore"},
     {KeptFile::Source::Damaged, CUserSettings::Source::Damaged, "KeptLost"}}};

std::wstring Listed(const std::vector<std::string>& names) {
    return std::accumulate(names.begin(), names.end(), std::wstring(),
                           [](const std::wstring& list, const std::string& name) {
                               return list.empty() ? string2wstring(name) : list + L", " + string2wstring(name);
                           });
}

} // namespace

ViewerMemory::ViewerMemory(const std::wstring& folder) {
    if (!folder.empty()) {
        const std::filesystem::path path(folder);
        m_file.emplace(path / kViewerFile);
        m_barsPath = (path / kBarsFile).wstring();
        m_bars.emplace(m_barsPath);
    }
}

std::wstring ViewerMemory::OwnFolder() {
    PWSTR folder = nullptr;
    const bool isKnown = SUCCEEDED(::SHGetKnownFolderPath(FOLDERID_RoamingAppData, 0, nullptr, &folder));
    const std::wstring path = isKnown ? (std::filesystem::path(folder) / kFolder).wstring() : std::wstring();
    ::CoTaskMemFree(folder);
    return path;
}

void ViewerMemory::Load(MapState& map) {
    if (!IsKept()) {
        return;
    }
    std::vector<std::string> unusable;
    const KeptFile::Source ofViewer = m_file->Read([&](const std::string& text) {
        auto read = ReadKept(text, m_viewer, map);
        unusable = read.value_or(std::vector<std::string>());
        return read.has_value();
    });
    const CUserSettings::Source ofBars = m_bars->Load();
    for (const SourceRow& row : kTroubles) {
        if (row.ofViewer == ofViewer) {
            AddTrouble(row.trouble, m_file->Path().wstring());
        }
        if (row.ofBars == ofBars) {
            AddTrouble(row.trouble, m_barsPath);
        }
    }
    if (!unusable.empty()) {
        AddTrouble("KeptPartly", Listed(unusable));
    }
}

bool ViewerMemory::Save(const MapState& map) {
    if (!IsKept()) {
        return true;
    }
    const bool isViewerWritten = m_file->Write(WriteKept(m_viewer, map)); // makes the folder
    if (!isViewerWritten) {
        AddTrouble("KeptUnwritten", m_file->Path().wstring());
    }
    const bool areBarsWritten = m_bars->Save();
    if (!areBarsWritten) {
        AddTrouble("KeptUnwritten", m_barsPath);
    }
    return isViewerWritten && areBarsWritten;
}
