#include "bars/kept_marks.h"
#include "dyn_toolbar_creater.h"
#include "kept_bar_states.h"
#include "toolbar_combos.h"
#include "window_combos.h"

#include <afxDockingManager.h>
#include <afxglobalutils.h>
#include <afxPaneFrameWnd.h>

#include <algorithm>

namespace {

void TakeMark(const CMFCCheckCombo& combo, int index, kept::Marks<CMFCCheckCombo>& marks) {
    marks.emplace_back(
        [index, check = combo.GetCheck(index) ? 1 : 0](CMFCCheckCombo& to) { to.SetCheck(index, check, FALSE); });
}

/// Lights and locks are bits of the items' data, colours are the window's.
template <class Window, class Combo>
void TakeColor(const Combo& combo, int index, kept::Marks<Combo>& marks) {
    const auto* const window = dynamic_cast<const Window*>(combo.GetComboBox());
    COLORREF color = 0;
    if (window && window->GetItemColor(index, color) != 0) {
        marks.emplace_back([index, color](Combo& to) { to.SetItemColor(index, color, false); });
    }
}

void TakeMark(const CMFCMultiCombo& combo, int index, kept::Marks<CMFCMultiCombo>& marks) {
    marks.emplace_back(
        [index, isLit = combo.GetLightOn(index), isLocked = combo.GetItemLock(index)](CMFCMultiCombo& to) {
            to.SetLightOn(index, isLit, false);
            if (to.GetItemLock(index) != isLocked) {
                to.SetItemLock(index, isLocked, false);
            }
        });
    TakeColor<CMultiCombo>(combo, index, marks);
}

void TakeMark(const CMFCMultiCombo2& combo, int index, kept::Marks<CMFCMultiCombo2>& marks) {
    marks.emplace_back(
        [index, isLit = combo.GetLightOn(index)](CMFCMultiCombo2& to) { to.SetLightOn(index, isLit, false); });
    TakeColor<CVesMultiCombo>(combo, index, marks);
}

template <class Combo>
void CopyItems(CMFCToolBarButton& from, CMFCToolBarButton& to) {
    const auto* const earlier = dynamic_cast<const Combo*>(&from);
    auto* const later = dynamic_cast<Combo*>(&to);
    if (!earlier || !later || later->GetCount() != 0) {
        return;
    }
    kept::Items<Combo> items(*earlier);
    for (int index = 0; index < static_cast<int>(earlier->GetCount()); ++index) {
        TakeMark(*earlier, index, items.marks);
    }
    items.GiveTo(*later);
    later->SelectItem(items.chosen, FALSE);
}

/// Each of the later ones has the state of the next of the same command.
void CopyCombos(const CMFCToolBar& from, const CMFCToolBar& to) {
    int next = 0;
    for (int i = 0; i < to.GetCount(); ++i) {
        CMFCToolBarButton& later = *to.GetButton(i);
        for (int k = 0; k < from.GetCount(); ++k) {
            CMFCToolBarButton& earlier = *from.GetButton((next + k) % from.GetCount());
            if (earlier.m_nID != later.m_nID || earlier.GetRuntimeClass() != later.GetRuntimeClass()) {
                continue;
            }
            CopyItems<CMFCCheckCombo>(earlier, later);
            CopyItems<CMFCMultiCombo>(earlier, later);
            CopyItems<CMFCMultiCombo2>(earlier, later);
            next = (next + k + 1) % from.GetCount();
            break;
        }
    }
}

void PutInPlaceOf(CDockingManager& manager, CMFCToolBar& earlier, CMFCToolBar& later) {
    const bool isVisible = earlier.IsVisible() != FALSE;
    if (const CPaneFrameWnd* const miniFrame = earlier.GetParentMiniFrame()) {
        CRect rect;
        miniFrame->GetWindowRect(&rect);
        later.FloatPane(rect, DM_UNKNOWN, isVisible);
    } else {
        manager.DockPaneLeftOf(&later, &earlier);
    }
    later.ShowPane(isVisible ? TRUE : FALSE, TRUE, FALSE);
}

} // namespace

void ReplaceToolBars(CFrameWnd& frame, const CDynToolBarCreater& earlier, const CDynToolBarCreater& later) {
    CDockingManager* const manager = CGlobalUtils().GetDockingManager(&frame);
    if (!manager) {
        return;
    }
    auto former = earlier.GetGroupedToolBars();
    former.remove_if([](const auto& one) { return !one.second->GetSafeHwnd(); });
    std::list<CMFCToolBar*> removed;
    std::list<std::pair<CMFCToolBar*, int>> numbered;
    std::list<CMFCToolBar*> added;
    for (const auto& [group, bar] : later.GetGroupedToolBars()) {
        const auto found = std::ranges::find_if(former, [&, &group = group, &bar = bar](const auto& one) {
            return one.first == group && earlier.GetName(one.second) == later.GetName(bar);
        });
        if (found == former.end()) {
            added.push_back(bar);
            continue;
        }
        CMFCToolBar& place = *found->second;
        PutInPlaceOf(*manager, place, *bar);
        CopyCombos(place, *bar);
        numbered.emplace_back(bar, place.GetDlgCtrlID());
        removed.push_back(&place);
        former.erase(found); // toolbars of one name follow each other
    }
    std::ranges::transform(former, std::back_inserter(removed), [](const auto& one) { return one.second; });
    for (CMFCToolBar* const bar : removed) {
        manager->RemovePaneFromDockManager(bar, FALSE, FALSE, FALSE, nullptr);
        bar->DestroyWindow();
    }
    for (const auto& [bar, id] : numbered) {
        bar->SetDlgCtrlID(id);
    }
    for (CMFCToolBar* const bar : added) {
        manager->DockPane(bar);
    }
}
