#include "working_modes.h"

#include "add_ribbon_bar.h"
#include "menu_id_mgr.h"
#include "ribbon_bar_ex.h"
#include "ribbon_category_ex.h"

#include <afxribbonquickaccesstoolbar.h>

#include <algorithm>
#include <array>
#include <list>
#include <set>

namespace {

struct ModeRow {
    MapMode mode;
    const wchar_t* name;
    const wchar_t* category; ///< Its tab leads there.
    std::vector<const wchar_t*> quickAccess;
};

/// In the order of MapMode. What browsing offers for quick access stands in the ribbon's file.
const std::array<ModeRow, 3> kModes = {
    {{MapMode::Browse, L"browse", L"CatBrowse", {}},
     {MapMode::Edit, L"edit", L"CatEdit", {L"MarkAdd", L"MarkUndo", L"ZoomIn", L"ZoomOut"}},
     {MapMode::Print, L"print", L"CatPrint", {L"PageSave", L"PageCopy", L"ZoomIn", L"ZoomOut"}}}};

/// Beside the commands of the mode, for those who want them there.
constexpr std::array<const wchar_t*, 3> kOfferedForQuickAccess = {L"BookmarkAdd", L"PictureCopy", L"LayersShown"};

const ModeRow& RowOf(MapMode mode) { return kModes[static_cast<std::size_t>(mode)]; }

std::vector<unsigned int> IdsOf(const std::vector<const wchar_t*>& keywords) {
    std::vector<unsigned int> ids;
    for (const wchar_t* const keyword : keywords) {
        int id = 0;
        if (CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
            ids.push_back(static_cast<unsigned int>(id));
        }
    }
    return ids;
}

} // namespace

const wchar_t* WorkingModes::NameOf(MapMode mode) { return RowOf(mode).name; }

MapMode WorkingModes::ModeOf(const std::wstring& name) {
    const auto row = std::find_if(kModes.begin(), kModes.end(), [&](const ModeRow& one) { return name == one.name; });
    return row != kModes.end() ? row->mode : MapMode::Browse;
}

int WorkingModes::PositionOf(const wchar_t* keyword) const {
    int id = 0;
    if (!CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
        return -1;
    }
    for (int position = 0; position < m_ribbon.GetCategoryCount(); ++position) {
        const auto* const category = DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, m_ribbon.GetCategory(position));
        if (category != nullptr && category->GetID() == static_cast<UINT>(id)) {
            return position;
        }
    }
    return -1;
}

void WorkingModes::Declare(const CAddRibbonBar& builder) {
    const int edit = PositionOf(RowOf(MapMode::Edit).category);
    const int print = PositionOf(RowOf(MapMode::Print).category);
    const int browse = PositionOf(RowOf(MapMode::Browse).category);
    const int last = m_ribbon.GetCategoryCount() - 1;
    // A ribbon without the categories of the modes shows all that it has in each of them.
    const bool hasModes = edit >= 0 && print > edit && browse > print;
    const std::array<std::pair<int, int>, 3> ranges = {
        {{0, hasModes ? print : last}, {hasModes ? edit : 0, last}, {hasModes ? print : 0, last}}};
    for (const ModeRow& row : kModes) {
        const auto index = static_cast<std::size_t>(row.mode);
        m_commands[index] = IdsOf(row.quickAccess);
        if (row.mode == MapMode::Browse) {
            builder.GetQAToolBar(m_commands[index]);
        }
        m_ribbon.setPath(row.name, ranges[index].first, ranges[index].second,
                         {m_commands[index].begin(), m_commands[index].end()});
    }
}

void WorkingModes::Attach(const CAddRibbonBar& builder, MapMode mode, int category) {
    if (!m_ribbon.havPath(NameOf(mode))) {
        Declare(builder);
    }
    m_ribbon.ShowPath(NameOf(mode));
    OfferQuickAccess(mode);
    CMFCRibbonCategory* const wanted = m_ribbon.GetCategory(category);
    if (wanted != nullptr && wanted->IsVisible()) {
        m_ribbon.SetActiveCategory(wanted);
    }
}

void WorkingModes::KeepQuickAccess() {
    if (!m_ribbon.Path().empty()) {
        m_ribbon.UpdateCurQATollBar(L"");
    }
}

void WorkingModes::Show(MapMode mode) {
    KeepQuickAccess();
    std::set<std::wstring> own;
    const int position = PositionOf(RowOf(mode).category);
    if (mode != MapMode::Browse && position >= 0) {
        own.insert(m_ribbon.GetCategory(position)->GetName());
    }
    m_ribbon.ShowPath(NameOf(mode), &own);
    // The keyboard and the wheel bring a mode's page to the front before its command comes.
    if (mode == MapMode::Browse && DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, m_ribbon.GetActiveCategory()) != nullptr) {
        m_ribbon.SetActiveCategory(m_ribbon.GetCategory(0));
    }
    OfferQuickAccess(mode);
    m_ribbon.ForceRecalcLayout();
}

/// What the toolbar's menu lists, and what the toolbar goes back to.
void WorkingModes::OfferQuickAccess(MapMode mode) {
    CMFCRibbonQuickAccessToolBarDefaultState offered;
    for (const unsigned int id : m_commands[static_cast<std::size_t>(mode)]) {
        offered.AddCommand(id, TRUE);
    }
    for (const unsigned int id : IdsOf({kOfferedForQuickAccess.begin(), kOfferedForQuickAccess.end()})) {
        offered.AddCommand(id, FALSE);
    }
    m_ribbon.SetQuickAccessDefaultState(offered);
}
