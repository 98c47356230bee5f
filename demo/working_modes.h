#pragma once

#include "map_state.h"

#include <string>
#include <vector>

class CAddRibbonBar;
class CMFCRibbonBarEx;

/// The viewer's working modes as paths of its ribbon. Each shows the pages that it needs, the tabs that lead to the
/// other modes, and its own quick access toolbar. The ribbon is the frame's and outlives this.
///
/// In the ribbon's file the categories of the modes stand behind those for looking at the map, in the order edit,
/// print, browse: the last one has no page, its tab leads back.
class WorkingModes {
public:
    explicit WorkingModes(CMFCRibbonBarEx& ribbon) : m_ribbon(ribbon) {}

    /// After the ribbon was built: declares the paths, once, and shows the one of the mode. `category` is active where
    /// it is one of the mode's; -1: as the path remembers.
    void Attach(const CAddRibbonBar& builder, MapMode mode, int category);
    /// Before the ribbon is built anew: keeps what the user made of the quick access toolbar.
    void KeepQuickAccess();
    /// Shows the mode's categories, at its own page.
    void Show(MapMode mode);

    /// The name by which configured commands mean a mode ("edit"), and back; browsing for any other name.
    static const wchar_t* NameOf(MapMode mode);
    static MapMode ModeOf(const std::wstring& name);

private:
    void Declare(const CAddRibbonBar& builder);
    void OfferQuickAccess(MapMode mode);
    int PositionOf(const wchar_t* keyword) const;

    CMFCRibbonBarEx& m_ribbon;
    std::vector<unsigned int> m_commands[3]; ///< Of each mode, at first.
};
