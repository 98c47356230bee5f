#include <afxcontrolbars.h>

#include "ribbon_states.h"

#include "ribbon_category_ex.h"
#include "ribbon_check_combo.h"
#include "ribbon_multi_combo.h"

namespace {

/// The element of a command in a ribbon that was built anew; null where it is of another class now.
template <class Element>
Element* FindElement(CMFCRibbonBar& ribbon, UINT id) {
    return DYNAMIC_DOWNCAST(Element, ribbon.FindByID(id, FALSE, TRUE));
}

using Giver = std::function<void(CMFCRibbonBar&)>;

Giver TakeSlider(const CMFCRibbonSlider& slider) {
    return [id = slider.GetID(), low = slider.GetRangeMin(), high = slider.GetRangeMax(),
            place = slider.GetPos()](CMFCRibbonBar& ribbon) {
        if (auto* const found = FindElement<CMFCRibbonSlider>(ribbon, id)) {
            found->SetRange(low, high);
            found->SetPos(place);
        }
    };
}

void CopyMark(const CMFCRibbonCheckComb& combo, int index,
              std::vector<std::function<void(CMFCRibbonCheckComb&)>>& marks) {
    bool isChecked = false;
    if (combo.GetItemCheck(index, isChecked)) {
        marks.emplace_back([index, isChecked](CMFCRibbonCheckComb& to) { to.SetItemCheck(index, isChecked); });
    }
}

void CopyMark(const CMFCRibbonMultiCombo& combo, int index,
              std::vector<std::function<void(CMFCRibbonMultiCombo&)>>& marks) {
    CMFCRibbonMultiCombo::rowInfo info = {};
    if (combo.GetItemInfo(index, info)) {
        marks.emplace_back([index, info](CMFCRibbonMultiCombo& to) {
            CMFCRibbonMultiCombo::rowInfo copy = info;
            to.SetItemInfo(index, copy);
        });
    }
}

void CopyMark(const CMFCRibbonVesMultiCombo& combo, int index,
              std::vector<std::function<void(CMFCRibbonVesMultiCombo&)>>& marks) {
    bool isLit = false;
    if (combo.GetItemLight(index, isLit)) {
        marks.emplace_back([index, isLit](CMFCRibbonVesMultiCombo& to) { to.SetItemLight(index, isLit, false); });
    }
}

template <class Combo>
void TakeCombo(CMFCRibbonBaseElement& element, std::vector<Giver>& givers) {
    auto* const combo = DYNAMIC_DOWNCAST(Combo, &element);
    if (!combo || combo->GetCount() == 0) {
        return;
    }
    std::vector<std::pair<CString, DWORD_PTR>> items;
    std::vector<std::function<void(Combo&)>> marks;
    for (int index = 0; index < static_cast<int>(combo->GetCount()); ++index) {
        items.emplace_back(combo->GetItem(index), combo->GetItemData(index));
        CopyMark(*combo, index, marks);
    }
    givers.emplace_back([id = combo->GetID(), items, marks, chosen = combo->GetCurSel()](CMFCRibbonBar& ribbon) {
        auto* const found = FindElement<Combo>(ribbon, id);
        if (!found || found->GetCount() != 0) {
            return;
        }
        for (const auto& [text, data] : items) {
            found->AddItem(text, data);
        }
        for (const auto& mark : marks) {
            mark(*found);
        }
        found->SelectItem(chosen);
    });
}

void Take(CMFCRibbonBaseElement& element, std::vector<Giver>& givers) {
    if (const auto* const slider = DYNAMIC_DOWNCAST(CMFCRibbonSlider, &element)) {
        givers.push_back(TakeSlider(*slider));
    }
    TakeCombo<CMFCRibbonCheckComb>(element, givers);
    TakeCombo<CMFCRibbonMultiCombo>(element, givers);
    TakeCombo<CMFCRibbonVesMultiCombo>(element, givers);
    if (element.IsKindOf(RUNTIME_CLASS(CMFCRibbonEdit)) && !element.IsKindOf(RUNTIME_CLASS(CMFCRibbonComboBox))) {
        const auto& edit = *DYNAMIC_DOWNCAST(CMFCRibbonEdit, &element);
        givers.emplace_back([id = edit.GetID(), text = edit.GetEditText()](CMFCRibbonBar& ribbon) {
            if (auto* const found = FindElement<CMFCRibbonEdit>(ribbon, id)) {
                found->SetEditText(text);
            }
        });
    }
}

UINT IdOf(CMFCRibbonCategory* category) {
    const auto* const extended = DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, category);
    return extended ? extended->GetID() : 0;
}

} // namespace

RibbonStates::RibbonStates(CMFCRibbonBar& ribbon) {
    for (int i = 0; i < ribbon.GetCategoryCount(); ++i) {
        CMFCRibbonCategory* const category = ribbon.GetCategory(i);
        if (category->IsActive()) {
            m_activeId = IdOf(category);
            m_activeName = category->GetName();
            m_activeIndex = i;
        }
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        category->GetElements(elements);
        for (int k = 0; k < static_cast<int>(elements.GetSize()); ++k) {
            Take(*elements[k], m_givers);
        }
    }
}

void RibbonStates::GiveTo(CMFCRibbonBar& ribbon) const {
    for (const auto& give : m_givers) {
        give(ribbon);
    }
    CMFCRibbonCategory* active =
        m_activeIndex >= 0 && m_activeIndex < ribbon.GetCategoryCount() ? ribbon.GetCategory(m_activeIndex) : nullptr;
    for (int i = 0; i < ribbon.GetCategoryCount(); ++i) {
        CMFCRibbonCategory* const category = ribbon.GetCategory(i);
        if (m_activeId != 0 ? IdOf(category) == m_activeId : m_activeName == category->GetName()) {
            active = category;
            break;
        }
    }
    if (active && active->IsVisible()) {
        ribbon.SetActiveCategory(active);
    }
}
