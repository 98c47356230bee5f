#pragma once

#include <afxvisualmanageroffice2007.h>

#include "bench_frame.h"
#include "library_context.h"
#include "ribbon_check_combo.h"
#include "ribbon_multi_combo.h"

#include <vector>

/// Its ribbon shows several multi combos with one command id and as many check combos with another.
class ComboWindow : public CBenchFrame {
public:
    static constexpr int copies = 3; // of each of the two

    bool Make() override {
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        if (!CBenchFrame::Make()) {
            return false;
        }
        CMFCRibbonPanel* const panel = m_ribbon.AddCategory(L"Home", 0, 0)->AddPanel(L"Panel");
        for (int i = 0; i < copies; ++i) {
            auto* const combo = new CMFCRibbonMultiCombo(700, FALSE, 120);
            panel->Add(combo);
            m_combos.push_back(combo);
            auto* const checkCombo = new CMFCRibbonCheckComb(701, FALSE, 120);
            panel->Add(checkCombo);
            m_checkCombos.push_back(checkCombo);
        }
        ShowWindow(SW_SHOW);
        UpdateWindow();
        return true;
    }
    CMFCRibbonMultiCombo& Combo() { return *m_combos.front(); }
    CMFCRibbonCheckComb& CheckCombo() { return *m_checkCombos.front(); }
    void Fill(int items) {
        Combo().RemoveAll();
        CheckCombo().RemoveAll();
        for (int i = 0; i < items; ++i) {
            Combo().AddItem(L"item", static_cast<DWORD_PTR>(i));
            CheckCombo().AddItem(L"item", static_cast<DWORD_PTR>(i));
        }
    }
    /// Drops the multi combo's list with room for that many rows and gives its window, null when none dropped.
    CMFCPopupMenuBar* OpenList(int rows) {
        Combo().SetDropDownHeight(rows * afxGlobalData.GetTextHeight() + 4);
        Combo().DropDownList();
        CMFCPopupMenu* const list = CMFCPopupMenu::GetActiveMenu();
        return list != nullptr ? list->GetMenuBar() : nullptr;
    }

private:
    std::vector<CMFCRibbonMultiCombo*> m_combos; // the ribbon's, as the next
    std::vector<CMFCRibbonCheckComb*> m_checkCombos;
};
