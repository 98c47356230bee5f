// What elements with values of their own add to the dump.
#include "frame_dump.h"

#include "check_drop_down.h"
#include "ribbon_check_combo.h"
#include "ribbon_label_ex.h"
#include "ribbon_multi_combo.h"
#include "ribbon_slider_sync.h"
#include "tests/support/ribbon_host.h"
#include <fx/scoped_change.h>

#include <afxribbonbuttonsgroup.h>

#include <gtest/gtest.h>

namespace {

using nlohmann::ordered_json;

constexpr UINT elementId = 700;

class OwnValues : public testing::Test {
protected:
    ~OwnValues() override {
        CMFCPopupMenu::CloseAll();
        m_host.Destroy();
        PumpPending();
    }
    template <class Element>
    Element& Add(std::unique_ptr<Element> element) {
        return m_host.Add(std::move(element));
    }
    template <class Combo>
    Combo& AddCombo() {
        Combo& combo = Add(std::make_unique<Combo>(elementId, FALSE, 120, L"Label"));
        for (const wchar_t* const text : {L"one", L"\x5730\x56FE", L"three"}) {
            combo.AddItem(text);
        }
        return combo;
    }
    ordered_json Dumped() {
        return DumpFrame({.ribbon = &m_host.Bar()})["ribbon"]["categories"][0]["panels"][0]["elements"][0];
    }
    /// The values that not every element has.
    ordered_json DumpedOwn() {
        ordered_json own = Dumped();
        for (const char* const key :
             {"class", "id", "text", "tooltip", "description", "visible", "enabled", "large", "rect"}) {
            EXPECT_EQ(own.erase(key), 1u) << key;
        }
        return own;
    }

    fx::ScopedChange<int> m_checkHeight{CMFCRibbonCheckComb::m_nStaticDropDownHeight, 560};
    RibbonHost m_host;
};

TEST_F(OwnValues, ACheckCombosItemsHaveTheirChecksAndNoneWhereNoneIsKept) {
    auto& combo = AddCombo<CMFCRibbonCheckComb>();
    combo.SetItemCheck(0, true);
    combo.SetItemCheck(2, false);
    combo.SelectItem(2);
    combo.SetDropDownHeight(123);
    const ordered_json expected = {{"items",
                                    {{{"text", "one"}, {"state", {{"check", true}}}},
                                     {{"text", "\xE5\x9C\xB0\xE5\x9B\xBE"}},
                                     {{"text", "three"}, {"state", {{"check", false}}}}}},
                                   {"selected", 2},
                                   {"dropDownHeight", 123}};
    EXPECT_EQ(DumpedOwn().dump(), expected.dump());
}

TEST_F(OwnValues, AMultiCombosItemsHaveColourAndLight) {
    auto& combo = AddCombo<CMFCRibbonMultiCombo>();
    combo.SetItemClr(0, RGB(1, 2, 3), false);
    combo.SetItemInfo(1, 0, true, false);
    combo.SetDropDownHeight(99);
    const ordered_json expected = {{"items",
                                    {{{"text", "one"}, {"state", {{"clr", RGB(1, 2, 3)}, {"light", false}}}},
                                     {{"text", "\xE5\x9C\xB0\xE5\x9B\xBE"}, {"state", {{"clr", 0}, {"light", true}}}},
                                     {{"text", "three"}}}},
                                   {"selected", -1},
                                   {"dropDownHeight", 99}};
    EXPECT_EQ(DumpedOwn().dump(), expected.dump());
}

TEST_F(OwnValues, ALightOnlyCombosItemsHaveTheirLights) {
    auto& combo = AddCombo<CMFCRibbonVesMultiCombo>();
    combo.SetItemLight(1, true, false);
    const ordered_json items = DumpedOwn()["items"];
    EXPECT_FALSE(items[0].contains("state"));
    EXPECT_EQ(items[1]["state"].dump(), R"({"light":true})");
    combo.SetDropDownHeight(210);
    EXPECT_EQ(Dumped()["dropDownHeight"], 210);
}

TEST_F(OwnValues, AnEmptyComboHasAnEmptyListOfItems) {
    Add(std::make_unique<CMFCRibbonCheckComb>(elementId, FALSE, 120));
    EXPECT_EQ(DumpedOwn()["items"].dump(), "[]");
}

TEST_F(OwnValues, TheDropDownHeightIsTheOneThatAUserGaveTheList) {
    auto& combo = AddCombo<CMFCRibbonCheckComb>();
    for (int i = 0; i < 100; ++i) {
        combo.AddItem(L"item");
    }
    combo.UserStaticDropDownHeight(true);
    EXPECT_EQ(Dumped()["dropDownHeight"], 560);
    combo.EnableDropDownListResize(TRUE);
    combo.DropDownList();
    CMFCPopupMenu* const list = CMFCPopupMenu::GetActiveMenu();
    ASSERT_NE(list, nullptr);
    CRect rect;
    list->GetWindowRect(&rect);
    list->SetWindowPos(nullptr, 0, 0, rect.Width(), 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CMFCPopupMenu::CloseAll();
    EXPECT_EQ(Dumped()["dropDownHeight"], 300);
}

TEST_F(OwnValues, ALabelSaysWhetherItStandsAtTheRight) {
    auto& label = Add(std::make_unique<CMFCRibbonLabelEx>(L"label"));
    EXPECT_EQ(DumpedOwn().dump(), R"({"right":false})");
    label.SetRight(true);
    EXPECT_EQ(DumpedOwn().dump(), R"({"right":true})");
}

TEST_F(OwnValues, ASliderHasItsPositionAndRange) {
    auto& slider = Add(std::make_unique<CMFCRibbonSliderSync>(elementId, 70));
    slider.SetRange(-5, 20);
    slider.SetPos(7, FALSE);
    EXPECT_EQ(DumpedOwn().dump(), R"({"pos":7,"min":-5,"max":20})");
}

TEST_F(OwnValues, MembersOfAGroupHaveTheirs) {
    auto group = std::make_unique<CMFCRibbonButtonsGroup>();
    auto combo = std::make_unique<CMFCRibbonMultiCombo>(elementId, FALSE, 120);
    combo->AddItem(L"one");
    combo->SetItemLight(0, true, false);
    group->AddButton(combo.release());
    auto slider = std::make_unique<CMFCRibbonSlider>(elementId + 1, 70);
    slider->SetRange(1, 9);
    group->AddButton(slider.release());
    Add(std::move(group));
    const ordered_json members = Dumped()["children"];
    ASSERT_EQ(members.size(), 2u);
    EXPECT_EQ(members[0]["items"].dump(), R"([{"text":"one","state":{"clr":0,"light":true}}])");
    EXPECT_EQ(members[1]["min"], 1);
    EXPECT_EQ(members[1]["max"], 9);
}

TEST_F(OwnValues, AButtonHasNone) {
    Add(std::make_unique<CMFCRibbonButton>(elementId, L"button"));
    EXPECT_EQ(DumpedOwn().dump(), ordered_json::object().dump());
}

} // namespace
