#pragma once

#include "kept_file.h"
#include "kept_state.h"
#include "user_settings.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What the viewer keeps from one run to the next: a file of its own, viewer.json, beside the one of the bars'
/// settings, bars.xml. Without a folder there is neither. Where the toolbars are docked is in the registry, in the
/// application's hands.
class ViewerMemory {
public:
    /// What the user is to be told: keys of the section Viewer, each with the name that goes into the text.
    struct Trouble {
        const char* key;
        std::wstring name;
    };

    explicit ViewerMemory(const std::wstring& folder);
    /// The user's own folder for programs' settings, with the viewer's name below it; empty when there is none.
    static std::wstring OwnFolder();

    bool IsKept() const { return m_file.has_value(); }
    /// Reads both files; the map's part goes into `map`.
    void Load(MapState& map);
    /// False when something could not be written; the trouble says what.
    bool Save(const MapState& map);

    KeptViewer& Viewer() { return m_viewer; }
    const KeptViewer& Viewer() const { return m_viewer; }
    /// Null without a folder.
    CUserSettings* Bars() { return m_bars ? &*m_bars : nullptr; }

    void AddTrouble(const char* key, const std::wstring& name) { m_troubles.push_back({key, name}); }
    /// What there is to tell since it was last asked for.
    std::vector<Trouble> TakeTroubles() { return std::exchange(m_troubles, {}); }

private:
    KeptViewer m_viewer;
    std::optional<KeptFile> m_file;
    std::wstring m_barsPath;
    std::optional<CUserSettings> m_bars;
    std::vector<Trouble> m_troubles;
};
