#pragma once

#include "combos/item_states.h"
#include "combos/mark_geometry.h"
#include "combos/synchronise.h"
#include "combos/type_key_map.h"

#include <afxribbonbar.h>
#include <afxribboncombobox.h>
#include <fx/to_rect.h>

#include <memory>
#include <vector>

/// What the three ribbon combos with marks have in common.

/// The elements of the same ribbon bar with the combo's command id; null for one of another class.
template <class Combo>
std::vector<Combo*> ElementsWithIdOf(const Combo& combo) {
    std::vector<Combo*> found;
    CMFCRibbonBar* const bar = combo.GetTopLevelRibbonBar();
    if (!bar) {
        return found;
    }
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    bar->GetElementsByID(combo.GetID(), elements);
    for (INT_PTR i = 0; i < elements.GetSize(); ++i) {
        found.push_back(dynamic_cast<Combo*>(elements[i]));
    }
    return found;
}

/// The panel that shows the combo is no longer hot: the open list is.
void CoolPanelOf(const CMFCRibbonComboBox& combo);

/// What such a combo keeps beside the items, and how its copies get it. Combo: the element's class; State: its nested
/// class that derives from this and has `Of(combo)`, the pointer that is expired once the combo is gone; Row: the state
/// of one item. A class with m_nStaticDropDownHeight may use it.
template <class Combo, class State, class Row>
struct MarkedComboState {
    ItemStates<Row> rows;
    TypeKeyMap keys;
    bool usesStaticHeight = false;
    SynchronisedFlag synchronised;

    /// Does to every copy of the combo what was done to it.
    template <class Operation>
    static void ChangeCopies(Combo& combo, Operation operation) {
        SynchroniseCopies(
            combo, [](Combo& one) -> SynchronisedFlag& { return State::Of(one)->synchronised; },
            [&combo] { return ElementsWithIdOf(combo); }, operation);
    }

    static void AddItem(Combo& combo, LPCTSTR text, DWORD_PTR data) {
        combo.CMFCRibbonComboBox::AddItem(text, data);
        ChangeCopies(combo, [text, data](Combo& copy) { copy.AddItem(text, data); });
    }
    static void RemoveAll(Combo& combo) {
        const std::weak_ptr<State> life = State::Of(combo);
        combo.RemoveAllItems(); // closes an open list, of which the host hears
        if (!life.expired()) {
            ChangeCopies(combo, [](Combo& copy) { copy.RemoveAll(); });
        }
    }
    /// Takes over all that a copy of `src` has; without states when that is of another class.
    static void CopyFrom(Combo& combo, const CMFCRibbonBaseElement& src) {
        const std::weak_ptr<State> life = State::Of(combo);
        const auto* const source = dynamic_cast<const Combo*>(&src);
        const bool isOther = source && source != &combo;
        if (isOther) {
            State::Of(combo)->TakeOver(*State::Of(*source));
        }
        combo.CMFCRibbonComboBox::CopyFrom(src); // closes an open list, of which the host hears
        if (!life.expired() && isOther) {
            TakeStaticHeight(combo);
        }
    }

    // ---- the height that the lists of a class share

    static void UseStaticHeight(Combo& combo, bool use) {
        State::Of(combo)->usesStaticHeight = use;
        TakeStaticHeight(combo);
    }
    static void SetStaticHeight(Combo& combo, int height) {
        if (!State::Of(combo)->usesStaticHeight) {
            return;
        }
        Combo::m_nStaticDropDownHeight = height;
        combo.SetDropDownHeight(height);
    }
    /// Before the list opens: that of another combo may have been resized.
    static void PrepareToDrop(Combo& combo) {
        CoolPanelOf(combo);
        TakeStaticHeight(combo);
    }

private:
    void TakeOver(const MarkedComboState& source) {
        rows = source.rows;
        keys = source.keys;
        usesStaticHeight = source.usesStaticHeight;
    }
    static void TakeStaticHeight(Combo& combo) {
        if constexpr (requires { Combo::m_nStaticDropDownHeight; }) {
            if (State::Of(combo)->usesStaticHeight) {
                combo.SetDropDownHeight(Combo::m_nStaticDropDownHeight);
            }
        }
    }
};

inline int CountOf(const CMFCRibbonComboBox& combo) { return static_cast<int>(combo.GetCount()); }

/// The window that gets the combo's messages; null when there is none (any more).
HWND HostOf(const CMFCRibbonBaseElement& combo);
/// Sends a message whose wParam is the text. The receiver may have destroyed everything when it comes back. 0 when the
/// window is gone.
LRESULT TellHost(HWND host, UINT message, const CString& text, LPARAM lParam);

/// Selects the item of a row that was clicked; a click below the rows selects nothing.
void SelectRow(CMFCRibbonComboBox& combo, int index);

/// Empty for an index without an item.
CString TextOf(const CMFCRibbonComboBox& combo, int index);
/// As people read it.
CString DisplayedTextOf(const CMFCRibbonComboBox& combo, int index);
/// The item's text, in the colours of the device context.
void DrawTextOf(const CMFCRibbonComboBox& combo, CDC& dc, int index, const fx::Rect& place);

/// The list that a combo with marks drops; empty, and not opened yet.
std::unique_ptr<CMFCDropDownListBox> MakeMarkedList(CMFCRibbonComboBox& combo, const std::vector<fx::Rect>& zones);
/// The width that the item's row needs in the list: `marksWidth` and the text as people read it. The list's font is
/// selected.
int RowWidthOf(const CMFCRibbonComboBox& combo, CDC& dc, int index, int marksWidth);

/// Draws the element, and the item's row in its open list, after its mark has changed, and tells assistive programs.
/// Index -1: the marks of all items. False: the element does not speak of that item now.
bool ShowMarkChange(CMFCRibbonComboBox& combo, int index);
/// A word as people read it.
CString Displayed(const wchar_t* word);
