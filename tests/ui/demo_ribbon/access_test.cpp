// What an assistive program hears of every element of the viewer, beside what the dump says of it.
#include "tests/ui/demo_ribbon/demo_ribbon.h"
#include "tests/ui/ribbon_access/accessible.h"

#include <map>

#include "afxRibbonEdit.h"
#include "afxribbonpanelmenu.h"
#include "afxribbonslider.h"
#include "menu_id_mgr.h"
#include "ribbon_check_combo.h"
#include "ribbon_multi_combo.h"
#include "varnhold/strings.h"

namespace {

using nlohmann::ordered_json;

struct Kind {
    LONG role;
    const wchar_t* action;
};

const std::map<std::string, Kind> kinds = {
    {"CMFCRibbonUNIcoButton", {ROLE_SYSTEM_PUSHBUTTON, L"Press"}},
    {"CMFCRibbonSmallButton", {ROLE_SYSTEM_PUSHBUTTON, L"Press"}},
    {"CMFCRibbonEdit", {ROLE_SYSTEM_TEXT, L"Edit"}},
    {"CMFCRibbonSlider", {ROLE_SYSTEM_SLIDER, L""}},
    {"CMFCRibbonLabel", {ROLE_SYSTEM_STATICTEXT, L""}},
    {"CMFCRibbonCheckComb", {ROLE_SYSTEM_COMBOBOX, L"Open"}},
    {"CMFCRibbonMultiCombo", {ROLE_SYSTEM_COMBOBOX, L"Open"}},
    {"CMFCRibbonVesMultiCombo", {ROLE_SYSTEM_COMBOBOX, L"Open"}},
    {"CMFCRibbonButtonsGroup", {ROLE_SYSTEM_TOOLBAR, L""}},
    {"CMFCRibbonSeparator", {ROLE_SYSTEM_SEPARATOR, L""}},
};

std::wstring TextIn(const ordered_json& element, const char* key) {
    return string2wstring(element[key].get<std::string>());
}

bool IsGroup(const ordered_json& element) { return element["class"] == "CMFCRibbonButtonsGroup"; }
bool HasMenu(const ordered_json& element) { return !IsGroup(element) && element.contains("children"); }
bool IsCombo(const ordered_json& element) { return element.contains("items"); }

const ordered_json& SelectedItem(const ordered_json& combo) {
    return combo["items"][combo["selected"].get<std::size_t>()];
}

/// A combo's marks in words; nothing for what has none.
std::wstring WordsOf(const ordered_json& element) {
    if (!IsCombo(element)) {
        return {};
    }
    const ordered_json& state = SelectedItem(element)["state"];
    if (state.contains("check")) {
        return state["check"].get<bool>() ? L"checked" : L"not checked";
    }
    std::wstring light = state["light"].get<bool>() ? L"light on" : L"light off";
    if (!state.contains("clr")) {
        return light;
    }
    const auto color = state["clr"].get<COLORREF>();
    CString words;
    words.Format(L"%s, colour #%02X%02X%02X", light.c_str(), GetRValue(color), GetGValue(color), GetBValue(color));
    return words.GetString();
}

class DemoAccessTest : public AccessTest {
protected:
    DemoAccessTest() {
        LoadDemoRibbon(Bar());
        SetClientWidth(1600);
        // Not everything as it begins.
        m_checked = IdOf(L"LayerCoast");
        m_frame->checkedCommand = m_checked;
        m_frame->disabledCommand = IdOf(L"ZoomNext");
        Find<CMFCRibbonSlider>(L"ZoomSlider").SetPos(35);
        Find<CMFCRibbonEdit>(L"PlaceEdit").SetEditText(L"51.5, 0");
        Find<CMFCRibbonCheckComb>(L"LayersShown").SetItemCheck(1, true);
        Find<CMFCRibbonMultiCombo>(L"LayerColors").SetItemInfo(1, RGB(1, 2, 254), true, false);
        Find<CMFCRibbonVesMultiCombo>(L"LabelLights").SetItemLight(1, false, false);
        PumpPending();
    }

    static UINT IdOf(const wchar_t* keyword) {
        for (UINT id = commands::firstHandled + 2000; id <= commands::lastHandled; ++id) {
            std::wstring mark;
            if (CMenuIdMgr::Ins()->GetMenuMark(static_cast<int>(id), mark) && mark == keyword) {
                return id;
            }
        }
        throw std::runtime_error("no command has the keyword");
    }
    template <class T>
    T& Find(const wchar_t* keyword) {
        return dynamic_cast<T&>(Element(IdOf(keyword)));
    }

    /// Where the values come from that no dump has: of the element with the id in the shown category, if it has one.
    CMFCRibbonBaseElement* ElementOf(const ordered_json& element) {
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> found;
        if (const UINT id = element["id"].get<UINT>(); id != 0) {
            Bar().GetElementsByID(id, found);
        }
        // A command may have elements in several categories.
        for (INT_PTR index = 0; index < found.GetSize(); ++index) {
            if (found[index]->GetParentCategory() == Bar().GetActiveCategory() && !found[index]->IsQATMode()) {
                return found[index];
            }
        }
        return found.IsEmpty() ? nullptr : found[0];
    }

    static CRect OnScreen(const ordered_json& rect, const CWnd& window) {
        CRect result(rect[0], rect[1], rect[2], rect[3]);
        window.ClientToScreen(result);
        return result;
    }

    std::wstring ValueOf(const ordered_json& element) {
        if (IsCombo(element)) {
            return TextIn(SelectedItem(element), "text");
        }
        if (element.contains("pos")) {
            return std::to_wstring(element["pos"].get<int>());
        }
        const auto* edit = dynamic_cast<const CMFCRibbonEdit*>(ElementOf(element));
        return edit != nullptr ? static_cast<LPCTSTR>(edit->GetEditText()) : L"";
    }

    /// The letters one after the other, from the document.
    std::wstring KeysTo(const ordered_json& element) {
        const CMFCRibbonBaseElement* found = ElementOf(element);
        const CString keys = found != nullptr ? found->GetKeyTipText(FALSE) : CString();
        if (keys.IsEmpty()) {
            return {};
        }
        const CString tab = Bar().GetActiveCategory()->GetTab().GetKeyTipText(FALSE);
        return std::wstring(L"Alt, ") + static_cast<LPCTSTR>(tab) + L", " + static_cast<LPCTSTR>(keys);
    }

    /// Everything that an element and a menu's row have in common.
    void ExpectSays(const Accessible& object, const ordered_json& element, const CWnd& window) {
        ++m_compared;
        EXPECT_EQ(object.Location(), OnScreen(element["rect"], window));
        const std::wstring text = TextIn(element, "text");
        EXPECT_EQ(object.Name(), text.empty() ? TextIn(element, "tooltip") : text);
        const std::wstring description = TextIn(element, "description");
        const std::wstring words = WordsOf(element);
        EXPECT_EQ(object.Description(),
                  description.empty() || words.empty() ? description + words : description + L", " + words);
        const LONG state = object.State();
        EXPECT_EQ((state & STATE_SYSTEM_UNAVAILABLE) == 0, element["enabled"].get<bool>());
        EXPECT_EQ((state & STATE_SYSTEM_CHECKED) != 0, element["id"].get<UINT>() == m_checked);
        EXPECT_EQ((state & STATE_SYSTEM_INVISIBLE) == 0, element["visible"].get<bool>());
        EXPECT_EQ((state & STATE_SYSTEM_HASPOPUP) != 0, HasMenu(element) || IsCombo(element));
    }

    /// What an assistive program hears of the element is what the dump says of it.
    void ExpectIs(const Accessible& object, const ordered_json& element) {
        SCOPED_TRACE(element.dump());
        ExpectSays(object, element, Bar());
        const Kind& kind = kinds.at(element["class"].get<std::string>());
        EXPECT_EQ(object.Role(), HasMenu(element) ? ROLE_SYSTEM_SPLITBUTTON : kind.role);
        EXPECT_EQ(object.Action(), kind.action);
        EXPECT_EQ(object.Value(), ValueOf(element));
        EXPECT_EQ(object.Keys(), KeysTo(element));
        m_withKeys += object.Keys().empty() ? 0 : 1;
        if (!IsGroup(element)) {
            return;
        }
        const auto& members = element["children"];
        ASSERT_EQ(object.ChildCount(), static_cast<long>(members.size()));
        for (std::size_t place = 0; place < members.size(); ++place) {
            ExpectIs(object.ChildAt(static_cast<LONG>(place) + 1), members[place]);
        }
    }

    /// The open menu's rows are the sub-items.
    void ExpectMenuIs(const ordered_json& button) {
        CMFCRibbonPanelMenu* const menu = CMFCRibbonPanelMenu::GetDeepest();
        ASSERT_NE(menu, nullptr);
        const CWnd& window = menu->GetRibbonMenuBar();
        IAccessible* object = nullptr;
        ASSERT_EQ(::AccessibleObjectFromWindow(window.GetSafeHwnd(), static_cast<DWORD>(OBJID_CLIENT),
                                               __uuidof(IAccessible), reinterpret_cast<void**>(&object)),
                  S_OK);
        const Accessible root(object);
        EXPECT_EQ(root.Role(), ROLE_SYSTEM_MENUPOPUP);
        EXPECT_EQ(root.Name(), TextIn(button, "text"));
        const auto& rows = button["children"];
        ASSERT_EQ(root.ChildCount(), static_cast<long>(rows.size()));
        for (std::size_t place = 0; place < rows.size(); ++place) {
            SCOPED_TRACE(rows[place].dump());
            const Accessible row = root.ChildAt(static_cast<LONG>(place) + 1);
            ExpectSays(row, rows[place], window);
            EXPECT_EQ(row.Role(), ROLE_SYSTEM_MENUITEM);
            EXPECT_EQ(row.Action(), L"Press");
            EXPECT_EQ(row.Value(), L"");
            EXPECT_EQ(row.Parent(), root);
        }
    }

    /// The panels of the shown category as the dump has them now.
    ordered_json Panels() {
        const int index = Bar().GetCategoryIndex(Bar().GetActiveCategory());
        return DumpCategories(Bar())[static_cast<std::size_t>(index)]["panels"];
    }

    UINT m_checked = 0;
    int m_compared = 0;
    int m_withKeys = 0;
};

TEST_F(DemoAccessTest, TheTreeIsTheDumpElementByElement) {
    for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
        Bar().SetActiveCategory(Bar().GetCategory(index));
        PumpPending();
        const ordered_json panels = Panels();
        const Accessible page = Part(ROLE_SYSTEM_PROPERTYPAGE);
        ASSERT_EQ(page.Name(), static_cast<LPCTSTR>(CString(Bar().GetCategory(index)->GetName())));
        ASSERT_EQ(page.ChildCount(), static_cast<long>(panels.size()));
        for (std::size_t place = 0; place < panels.size(); ++place) {
            const Accessible grouping = page.ChildAt(static_cast<LONG>(place) + 1);
            EXPECT_EQ(grouping.Role(), ROLE_SYSTEM_GROUPING);
            EXPECT_EQ(grouping.Name(), TextIn(panels[place], "name"));
            const auto& elements = panels[place]["elements"];
            ASSERT_EQ(grouping.ChildCount(), static_cast<long>(elements.size()));
            for (std::size_t element = 0; element < elements.size(); ++element) {
                ExpectIs(grouping.ChildAt(static_cast<LONG>(element) + 1), elements[element]);
            }
        }
    }
    EXPECT_GT(m_compared, 50);
    EXPECT_GT(m_withKeys, 50);
}

TEST_F(DemoAccessTest, TheRowsOfEveryMenuAreTheSubItemsOfTheDump) {
    m_frame->checkedCommand = m_checked = IdOf(L"LineThick");
    m_frame->disabledCommand = IdOf(L"CityCairo");
    int menus = 0;
    for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
        Bar().SetActiveCategory(Bar().GetCategory(index));
        PumpPending();
        const ordered_json before = Panels();
        for (std::size_t panel = 0; panel < before.size(); ++panel) {
            for (std::size_t place = 0; place < before[panel]["elements"].size(); ++place) {
                if (!HasMenu(before[panel]["elements"][place])) {
                    continue;
                }
                ++menus;
                ElementOf(before[panel]["elements"][place])->OnShowPopupMenu();
                PumpPending();
                ExpectMenuIs(Panels()[panel]["elements"][place]);
                CMFCPopupMenu::CloseAll();
                PumpPending();
            }
        }
    }
    EXPECT_EQ(menus, 5);
    EXPECT_GT(m_compared, 15);
}

} // namespace
