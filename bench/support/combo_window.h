#pragma once

#include <afxcontrolbars.h>
#include <afxvisualmanageroffice2007.h>

#include "library_context.h"
#include "ribbon_multi_combo.h"

#include <vector>

/// A frame whose ribbon shows several multi combos with one command id. Destroys itself with its window.
class ComboWindow : public CFrameWndEx {
public:
    ComboWindow() : m_ribbon(FALSE) {}

    bool Make(int combos) {
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        if (!Create(nullptr, L"bench", WS_OVERLAPPEDWINDOW, CRect(0, 0, 1200, 900)) || !m_ribbon.Create(this))
            return false;
        CMFCRibbonPanel* const panel = m_ribbon.AddCategory(L"Home", 0, 0)->AddPanel(L"Panel");
        for (int i = 0; i < combos; ++i) {
            auto* const combo = new CMFCRibbonMultiCombo(700, FALSE, 120);
            panel->Add(combo);
            m_combos.push_back(combo);
        }
        ShowWindow(SW_SHOW);
        UpdateWindow();
        return true;
    }
    CMFCRibbonMultiCombo& Combo() { return *m_combos.front(); }
    void Fill(int items) {
        Combo().RemoveAll();
        for (int i = 0; i < items; ++i)
            Combo().AddItem(L"item", static_cast<DWORD_PTR>(i));
    }

private:
    CMFCRibbonBar m_ribbon;
    std::vector<CMFCRibbonMultiCombo*> m_combos; // the ribbon's
};
