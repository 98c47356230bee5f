// What people who listen to the screen hear.
#include "tests/support/translation_tables.h"
#include "tests/ui/marked_combos/combo_fixture.h"

#include <fx/accessibility_data.h>
#include <oleacc.h>

namespace {

CAccessibilityData RowOf(CMFCRibbonComboBox& combo, int row) {
    CAccessibilityData data;
    EXPECT_TRUE(combo.SetACCRowData(row, data)) << row;
    return data;
}

TEST_F(RibbonCombos, ARowSaysWhetherItIsChecked) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SetItemCheck(1, true);
    const CAccessibilityData checked = RowOf(combo, 1);
    EXPECT_EQ(checked.m_strName, L"two");
    EXPECT_EQ(checked.m_strDescription, L"checked");
    EXPECT_TRUE(checked.m_nState & STATE_SYSTEM_CHECKED);
    const CAccessibilityData unchecked = RowOf(combo, 0);
    EXPECT_EQ(unchecked.m_strDescription, L"not checked");
    EXPECT_FALSE(unchecked.m_nState & STATE_SYSTEM_CHECKED);
}

TEST_F(RibbonCombos, ARowSaysItsLightAndItsColour) {
    auto& multi = Add<CMFCRibbonMultiCombo>();
    multi.SetItemInfo(1, RGB(0xFF, 0x80, 0x0A), true, false);
    EXPECT_EQ(RowOf(multi, 1).m_strDescription, L"light on, colour #FF800A");
    EXPECT_EQ(RowOf(multi, 2).m_strDescription, L"light off, colour #000000");
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    light.SetItemLight(0, true, false);
    EXPECT_EQ(RowOf(light, 0).m_strDescription, L"light on");
    EXPECT_EQ(RowOf(light, 1).m_strDescription, L"light off");
}

TEST_F(RibbonCombos, TheFaceSaysTheSelectedItemsState) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    CAccessibilityData before;
    combo.SetACCData(&m_host.Bar(), before);
    EXPECT_EQ(before.m_strDescription.Find(L"checked"), -1) << "nothing is selected";
    combo.SelectItem(2);
    combo.SetItemCheck(2, true);
    CAccessibilityData after;
    combo.SetACCData(&m_host.Bar(), after);
    EXPECT_EQ(after.m_strDescription.Right(7), L"checked");
    EXPECT_EQ(after.m_strDescription.Find(L"not"), -1);
}

TEST_F(RibbonCombos, RowsAndWordsAreHeardInThePeoplesLanguage) {
    const TranslatedInstallation installation;
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SetItemCheck(0, true);
    ASSERT_TRUE(installation.Translate("one checked", "Common"));
    EXPECT_EQ(RowOf(combo, 0).m_strName, L"<one>");
    EXPECT_EQ(RowOf(combo, 0).m_strDescription, L"<checked>");
}

TEST_F(RibbonCombos, ARowThatIsNotThereSaysNothing) {
    auto& check = Add<CMFCRibbonCheckComb>();
    auto& multi = Add<CMFCRibbonMultiCombo>(comboId + 1);
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 2);
    CMFCRibbonMultiCombo::rowInfo info{1, true};
    multi.SetItemInfo(3, info);
    for (CMFCRibbonComboBox* const combo :
         {static_cast<CMFCRibbonComboBox*>(&check), static_cast<CMFCRibbonComboBox*>(&multi),
          static_cast<CMFCRibbonComboBox*>(&light)}) {
        EXPECT_EQ(combo->GetACCRowCount(), 3);
        for (const int row : {-1, 3, 1000}) {
            CAccessibilityData data;
            EXPECT_FALSE(combo->SetACCRowData(row, data)) << row;
            EXPECT_TRUE(data.m_strDescription.IsEmpty());
        }
    }
}

} // namespace
