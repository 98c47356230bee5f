#pragma once

#include "check_drop_down.h"
#include "combos/mark_sizes.h"
#include "host_messages.h"
#include "library_context.h"
#include "ribbon_check_combo.h"
#include "ribbon_multi_combo.h"
#include "tests/support/pointer.h"
#include "tests/support/ribbon_host.h"
#include <fx/scoped_change.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

/// What a host was told, one text for each message: "sent CHECK 'two' 1", "posted COLOUR #1 0000ff".
using Told = std::vector<std::string>;

inline const std::vector<UINT>& ComboMessages() {
    static const std::vector<UINT> messages{WM_COMBO_CHECK_CHANGED, WM_COMBO_COLOR_PICK, WM_COMBO_LIGHT_CHANGED,
                                            WM_COMBO_ITEM_ACTION, WM_VESCOMBO_LIGHT_CHANGED};
    return messages;
}

inline bool CarriesText(UINT message) {
    return message != WM_COMBO_COLOR_PICK && std::ranges::count(ComboMessages(), message) != 0;
}

inline std::string Describe(const HostMessage& one) {
    const std::string how = one.isPosted ? "posted " : "sent ";
    const std::string text = " '" + std::string(one.text.begin(), one.text.end()) + "' ";
    switch (one.message) {
    case WM_COMBO_CHECK_CHANGED:
        return how + "CHECK" + text + std::to_string(one.lParam);
    case WM_COMBO_COLOR_PICK:
        return how + "COLOUR #" + std::to_string(static_cast<int>(one.wParam)) + " " + std::to_string(one.lParam);
    case WM_COMBO_LIGHT_CHANGED:
        return how + "LIGHT" + text + std::to_string(one.lParam);
    case WM_COMBO_ITEM_ACTION:
        return how + "ACTION" + text + std::to_string(one.lParam);
    case WM_VESCOMBO_LIGHT_CHANGED:
        return how + "LIGHT-ONLY" + text + std::to_string(one.lParam);
    case WM_COMMAND:
        return how + "COMMAND " + std::to_string(one.wParam);
    default:
        return how + std::to_string(one.message);
    }
}

constexpr UINT comboId = 700;
const wchar_t* const someItems[] = {L"one", L"two", L"three", L"four"};

/// Whoever is in the foreground loses it to programs that start beside this one, and an open list closes then. Who
/// never was has nothing to lose.
inline void LeaveForeground() {
    ::SetForegroundWindow(::GetDesktopWindow());
    PumpPending();
}

/// A host with combos at 100 %, whose class-wide values are the initial ones again afterwards.
class RibbonCombos : public testing::Test {
protected:
    RibbonCombos() {
        LeaveForeground();
        m_host.Frame().listensTo = [](UINT message) { return std::ranges::count(ComboMessages(), message) != 0; };
        m_host.Frame().carriesText = CarriesText;
    }
    ~RibbonCombos() override {
        CMFCPopupMenu::CloseAll();
        m_host.Destroy();
        PumpPending();
        afxGlobalData.SetRibbonImageScale(0);
    }
    /// Without texts of the translation service: every key is its own text.
    template <class Combo>
    Combo& Add(UINT id = comboId, int itemCount = 3) {
        Combo& combo = m_host.Add(std::make_unique<Combo>(id, FALSE, 120, L"Label", -1));
        for (int i = 0; i < itemCount; ++i) {
            combo.AddItem(someItems[i]);
        }
        m_host.LayOut();
        return combo;
    }
    /// Another element with the id on the quick access toolbar.
    template <class Combo>
    Combo& AddToQuickAccess(UINT id = comboId) {
        CList<UINT, UINT> commands;
        commands.AddTail(id);
        m_host.Bar().SetQuickAccessCommands(commands, TRUE);
        PumpPending();
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        m_host.Bar().GetElementsByID(id, elements);
        for (INT_PTR i = 0; i < elements.GetSize(); ++i) {
            if (elements[i]->IsQATMode()) {
                return dynamic_cast<Combo&>(*elements[i]);
            }
        }
        throw std::runtime_error("the quick access toolbar has no such combo");
    }

    /// All that was told since the last call, in order.
    Told TakeTold() {
        PumpPending();
        Told told;
        for (const HostMessage& one : m_host.Frame().received) {
            told.push_back(Describe(one));
        }
        m_host.Frame().received.clear();
        return told;
    }
    void Answer(LRESULT result) {
        m_host.Frame().onMessage = [result](const HostMessage&) { return result; };
    }

    /// The open list's rows; null while none is open.
    static CMFCPopupMenuBarEx* Rows() {
        CMFCPopupMenu* const active = CMFCPopupMenu::GetActiveMenu();
        return active ? DYNAMIC_DOWNCAST(CMFCPopupMenuBarEx, active->GetMenuBar()) : nullptr;
    }
    /// Drops the list by a press on the arrow, as people do.
    CMFCPopupMenuBarEx& Open(CMFCRibbonComboBox& combo) {
        const CPoint arrow = combo.GetMenuRect().CenterPoint();
        m_pointer.Click(combo.GetParentWnd()->GetSafeHwnd(), arrow);
        PumpPending();
        if (!Rows()) {
            throw std::runtime_error("no list is open");
        }
        return *Rows();
    }
    void ClickRow(int row, int x, int yInRow = 6) {
        if (CMFCPopupMenuBarEx* const rows = Rows()) {
            m_pointer.Click(rows->GetSafeHwnd(), CPoint(x, rows->GetRowRect(row).top + yInRow));
        }
    }
    void DoubleClickRow(int row, int x, int yInRow = 6) {
        if (CMFCPopupMenuBarEx* const rows = Rows()) {
            m_pointer.DoubleClick(rows->GetSafeHwnd(), CPoint(x, rows->GetRowRect(row).top + yInRow));
        }
    }
    void ClickFace(CMFCRibbonComboBox& combo, int x) {
        const CRect edit = combo.GetEditRect();
        m_pointer.Click(combo.GetParentWnd()->GetSafeHwnd(), CPoint(edit.left + x, edit.CenterPoint().y));
        PumpPending();
    }
    static void Key(UINT key) {
        if (CMFCPopupMenu* const active = CMFCPopupMenu::GetActiveMenu()) {
            active->OnChainKey(WM_KEYDOWN, key);
        }
    }
    static std::string ChecksOf(const CMFCRibbonCheckComb& combo) {
        std::string checks;
        for (int i = 0; i < static_cast<int>(combo.GetCount()); ++i) {
            bool isChecked = false;
            checks += !combo.GetItemCheck(i, isChecked) ? '?' : isChecked ? '1' : '0';
        }
        return checks;
    }
    template <class Combo>
    static std::string LightsOf(const Combo& combo) {
        std::string lights;
        for (int i = 0; i < static_cast<int>(combo.GetCount()); ++i) {
            bool isOn = false;
            lights += !combo.GetItemLight(i, isOn) ? '?' : isOn ? '1' : '0';
        }
        return lights;
    }

    // The image scale is the screen's until it is set.
    const bool m_isScaled = afxGlobalData.SetRibbonImageScale(1.0) != FALSE;
    fx::ScopedChange<MarkSizes> m_sizes{MarkSizes::Current(), MarkSizes()};
    fx::ScopedChange<int> m_checkHeight{CMFCRibbonCheckComb::m_nStaticDropDownHeight, 560};
    fx::ScopedChange<int> m_multiHeight{CMFCRibbonMultiCombo::m_nStaticDropDownHeight, 560};
    RibbonHost m_host;
    Pointer m_pointer;
};
