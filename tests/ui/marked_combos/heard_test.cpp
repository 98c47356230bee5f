// What people who listen to the screen hear of the face and of the open list, and what typing finds.
#include "tests/support/translation_tables.h"
#include "tests/ui/marked_combos/combo_fixture.h"
#include "tests/ui/marked_combos/heard_events.h"

#include <fx/accessibility_data.h>

namespace {

class HeardCombos : public RibbonCombos {
protected:
    CAccessibilityData FaceOf(CMFCRibbonComboBox& combo) {
        CAccessibilityData data;
        EXPECT_TRUE(combo.SetACCData(&m_host.Bar(), data));
        return data;
    }
    static std::wstring LastWords(const CAccessibilityData& data) {
        const std::wstring words = data.m_strDescription.GetString();
        const std::size_t comma = words.rfind(L", ");
        return comma == std::wstring::npos ? words : words.substr(comma + 2);
    }
    static void Type(const wchar_t* text) {
        for (; *text; ++text) {
            CMFCPopupMenu::GetActiveMenu()->OnChainKey(WM_CHAR, *text);
        }
    }
    static bool MustDraw(int row) {
        CRect waiting;
        Rows()->GetUpdateRect(waiting);
        CRect common;
        return common.IntersectRect(waiting, Rows()->GetRowRect(row)) != FALSE;
    }
};

using AnyCombo = testing::Types<CMFCRibbonCheckComb, CMFCRibbonMultiCombo, CMFCRibbonVesMultiCombo>;
template <class Combo>
class EveryMarkedCombo : public HeardCombos {
protected:
    Combo& m_combo = this->template Add<Combo>();
    const TranslatedInstallation m_installation;
    void SetUp() override { ASSERT_TRUE(m_installation.Translate("one two three", "Common")); }
};
TYPED_TEST_SUITE(EveryMarkedCombo, AnyCombo);

TYPED_TEST(EveryMarkedCombo, TypingFindsRowsByTheTextThatIsSeen) {
    this->Open(this->m_combo);
    this->Type(L"<th");
    EXPECT_EQ(this->Rows()->GetHotRow(), 2);
    CMFCPopupMenu::CloseAll();
    this->Open(this->m_combo);
    this->Type(L"t");
    EXPECT_EQ(this->Rows()->GetHotRow(), -1) << "nothing that is seen begins with it";
}

TYPED_TEST(EveryMarkedCombo, TheValueIsTheTextThatIsSeen) {
    EXPECT_EQ(this->FaceOf(this->m_combo).m_strValue, L"");
    this->m_combo.SelectItem(1);
    EXPECT_EQ(this->FaceOf(this->m_combo).m_strValue, L"<two>");
    this->Open(this->m_combo);
    this->Key(VK_DOWN);
    EXPECT_EQ(this->FaceOf(this->m_combo).m_strValue, L"<three>");
}

TYPED_TEST(EveryMarkedCombo, AValueIsTakenAsItWasHeardAndAsTheHostsText) {
    EXPECT_TRUE(this->m_combo.PutACCValue(L"<three>"));
    EXPECT_EQ(this->m_combo.GetCurSel(), 2);
    EXPECT_TRUE(this->m_combo.PutACCValue(L"two"));
    EXPECT_EQ(this->m_combo.GetCurSel(), 1);
    EXPECT_FALSE(this->m_combo.PutACCValue(L"<four>"));
    EXPECT_EQ(this->m_combo.GetCurSel(), 1);
}

TYPED_TEST(EveryMarkedCombo, TheSpaceBarOnARowIsHeard) {
    this->Answer(1);
    this->m_combo.SelectItem(1);
    this->Open(this->m_combo);
    HeardEvents events(this->m_host.BarWindow());
    this->Key(VK_SPACE);
    EXPECT_EQ(events.CountOf(EVENT_OBJECT_STATECHANGE), 1);
    this->Key(VK_SPACE);
    EXPECT_EQ(events.CountOf(EVENT_OBJECT_DESCRIPTIONCHANGE), 1);
}

TYPED_TEST(EveryMarkedCombo, TheOpenListIsAsWideAsTheLongestTextThatIsSeen) {
    this->m_combo.RemoveAll();
    ASSERT_TRUE(this->m_installation.Translate("key", "Common", std::string(60, 'W')));
    this->m_combo.AddItem(L"key");
    const auto width = [this] {
        CRect client;
        this->Open(this->m_combo).GetClientRect(client);
        CMFCPopupMenu::CloseAll();
        return client.Width();
    };
    const int alone = width();
    for (int i = 0; i < 400; ++i) {
        this->m_combo.AddItem(L"iiiiiii");
    }
    EXPECT_EQ(width(), alone);
}

TEST_F(HeardCombos, ATextFieldIsHeardAsItStandsThere) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("one two three", "Common"));
    auto& combo = m_host.Add(std::make_unique<CMFCRibbonCheckComb>(comboId, TRUE, 120, L"Label", -1));
    for (const wchar_t* item : {L"one", L"two", L"three"}) {
        combo.AddItem(item);
    }
    m_host.LayOut();
    combo.SelectItem(1);
    EXPECT_EQ(FaceOf(combo).m_strValue, L"two");
    EXPECT_TRUE(combo.PutACCValue(L"<three>"));
    EXPECT_EQ(combo.GetEditText(), L"three");
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_TRUE(combo.PutACCValue(L"other"));
    EXPECT_EQ(combo.GetEditText(), L"other");
}

TEST_F(HeardCombos, TheOpenListSpeaksOfTheHotRowsState) {
    auto& check = Add<CMFCRibbonCheckComb>();
    auto& multi = Add<CMFCRibbonMultiCombo>(comboId + 1);
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 2);
    check.SetItemCheck(0, true);
    multi.SetItemInfo(0, RGB(255, 0, 0), true, false);
    light.SetItemLight(0, true, false);
    const std::pair<CMFCRibbonComboBox*, const wchar_t*> expected[] = {
        {&check, L"checked"}, {&multi, L"colour #FF0000"}, {&light, L"light on"}};
    for (const auto& [combo, words] : expected) {
        combo->SelectItem(1);
        EXPECT_NE(LastWords(FaceOf(*combo)), words);
        Open(*combo);
        Key(VK_UP);
        EXPECT_EQ(FaceOf(*combo).m_strValue, L"one");
        EXPECT_EQ(LastWords(FaceOf(*combo)), words);
        CMFCPopupMenu::CloseAll();
        EXPECT_NE(LastWords(FaceOf(*combo)), words);
    }
}

TEST_F(HeardCombos, AClickOnTheFacesMarkIsHeard) {
    auto& check = Add<CMFCRibbonCheckComb>();
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    HeardEvents events(m_host.BarWindow());
    for (CMFCRibbonComboBox* const combo :
         {static_cast<CMFCRibbonComboBox*>(&check), static_cast<CMFCRibbonComboBox*>(&light)}) {
        combo->SelectItem(1);
        ClickFace(*combo, 8);
        EXPECT_EQ(events.CountOf(EVENT_OBJECT_DESCRIPTIONCHANGE), 1);
        ClickFace(*combo, 8);
        EXPECT_EQ(events.CountOf(EVENT_OBJECT_STATECHANGE), 3) << "pressed, changed, let go";
    }
}

TEST_F(HeardCombos, ALightThatTheHostDoesNotAllowIsNotHeard) {
    auto& multi = Add<CMFCRibbonMultiCombo>();
    multi.SelectItem(1);
    Open(multi);
    HeardEvents events(m_host.BarWindow());
    Answer(0);
    Key(VK_SPACE);
    EXPECT_EQ(events.CountOf(EVENT_OBJECT_STATECHANGE), 0);
}

TEST_F(HeardCombos, WhatTheHostSetsIsHeardWhenItIsOfTheItemThatIsShown) {
    auto& multi = Add<CMFCRibbonMultiCombo>();
    multi.SelectItem(1);
    HeardEvents events(m_host.BarWindow());
    multi.SetItemClr(2, RGB(1, 2, 3), true);
    EXPECT_EQ(events.CountOf(EVENT_OBJECT_DESCRIPTIONCHANGE), 0);
    multi.SetItemClr(1, RGB(1, 2, 3), true);
    EXPECT_EQ(events.CountOf(EVENT_OBJECT_DESCRIPTIONCHANGE), 1);
    multi.SetItemLight(1, true, false);
    EXPECT_EQ(events.CountOf(EVENT_OBJECT_DESCRIPTIONCHANGE), 0) << "not drawn yet";
}

TEST_F(HeardCombos, AnOpenListDrawsWhatTheHostSets) {
    auto& check = Add<CMFCRibbonCheckComb>();
    auto& multi = Add<CMFCRibbonMultiCombo>(comboId + 1);
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 2);
    const auto opened = [this](CMFCRibbonComboBox& combo) {
        CMFCPopupMenu::CloseAll();
        Open(combo).UpdateWindow();
        ASSERT_FALSE(MustDraw(2));
    };
    opened(check);
    check.SetItemCheck(2, true);
    EXPECT_FALSE(MustDraw(2));
    check.Redraw();
    EXPECT_TRUE(MustDraw(2));
    opened(multi);
    multi.SetItemClr(2, RGB(255, 0, 0), true);
    EXPECT_TRUE(MustDraw(2));
    opened(multi);
    multi.SetItemLight(2, true, true);
    EXPECT_TRUE(MustDraw(2));
    opened(light);
    light.SetItemLight(2, true, true);
    EXPECT_TRUE(MustDraw(2));
}

TEST_F(HeardCombos, TheOpenListOfACopyDrawsWhatTheHostSets) {
    auto& multi = Add<CMFCRibbonMultiCombo>();
    auto& copy = AddToQuickAccess<CMFCRibbonMultiCombo>();
    Open(copy).UpdateWindow();
    ASSERT_FALSE(MustDraw(2));
    multi.SetItemClr(2, RGB(255, 0, 0), true);
    EXPECT_TRUE(MustDraw(2));
}

} // namespace
