// The elements of a file: which are built, in which order, with which ids, texts and help files.
#include "ribbon_check_combo.h"
#include "tests/ui/ribbon_builder/ribbon_fixture.h"

#include <varnhold/xml.h>

namespace {

/// Reads an element from a literal and gives it to the builder as the host would.
class XmlElement {
public:
    explicit XmlElement(const std::string& xml) { EXPECT_TRUE(m_document.LoadFromMemory(xml)) << xml; }
    CXmlNodeWrapper Node() const { return m_document.GetDocumentElement(); }

private:
    CXmlDocumentWrapper m_document;
};

TEST_F(RibbonBuilder, EveryKindOfElementIsBuiltInOrder) {
    ASSERT_TRUE(Load(
        Panel("<e KEYWORD='1' TYPE='BUTTON'/><e KEYWORD='2' TYPE='button' SIZE='16'/><e KEYWORD='3' TYPE='slider'/>"
              "<e KEYWORD='4' TYPE='LABEL'/><e KEYWORD='5' TYPE='Edit'/>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton 1 #1 SmallButton 2 #2 Slider 3 #3 Label 4 #4 Edit 5 #5)]");
}

TEST_F(RibbonBuilder, CombosWithMarksAreBuiltLikeAnyElement) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='1' TYPE='qkRibbonCheckComb'/><e KEYWORD='2' TYPE='QKRIBBONMULTICOMB'/>"
                           "<e KEYWORD='3' TYPE='qkribbonmulticomb2'/><e KEYWORD='G' TYPE='GROUP'><s KEYWORD='4' "
                           "TYPE='qkRibbonCheckComb'/>"
                           "</e><e KEYWORD='5' TYPE='qkRibbonMultiComb'><s KEYWORD='6' TYPE='BUTTON'/></e>")));
    EXPECT_EQ(Outline(), L"[C #0 (P CheckComb 1 #1 MultiCombo 2 #2 VesMultiCombo 3 #3 ButtonsGroup{CheckComb 4 #5})]")
        << "a combo takes no sub-items";
}

TEST_F(RibbonBuilder, NamesAndTooltipsComeFromTheTranslationService) {
    ASSERT_TRUE(m_installation.Translate("C P K"));
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON'/>")));
    EXPECT_EQ(Outline(), L"[<C> #0 (<P> UNIcoButton K #1)]");
    EXPECT_EQ(CString(Element(0)->GetText()), L"<K>");
    EXPECT_EQ(Element(0)->GetToolTipText(), L"tip of <K>");
}

TEST_F(RibbonBuilder, EveryCommandIsRegisteredWithItsTexts) {
    ASSERT_TRUE(m_installation.Translate("K"));
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' CMD='do' PARAM='with' help='own.swf'/>")));
    const CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    int id = 0;
    std::wstring text;
    ASSERT_TRUE(registry.GetMenuId(L"K", id));
    EXPECT_EQ(id, m_firstId + 1);
    EXPECT_TRUE(registry.GetMenuName(L"K", text));
    EXPECT_EQ(text, L"<K>");
    EXPECT_TRUE(registry.GetToolTip(id, text));
    EXPECT_EQ(text, L"tip of <K>");
    EXPECT_TRUE(registry.GetCmd(id, text));
    EXPECT_EQ(text, L"do");
    EXPECT_TRUE(registry.GetCmdParam(id, text));
    EXPECT_EQ(text, L"with");
    EXPECT_EQ(HelpOf(L"K"), L"own.swf");
}

TEST_F(RibbonBuilder, CategoryIsExtendedAndCarriesItsIdUnlessCateTabIsYes) {
    ASSERT_TRUE(Load(
        "<r><c KEYWORD='A' NAME=''/><c KEYWORD='B' NAME='' CateTab='y'/><c KEYWORD='C' NAME='' CateTab='N'/></r>"));
    EXPECT_EQ(Outline(), L"[A #0][B][C #1]");
    int id = 0;
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetMenuId(L"B", id));
}

TEST_F(RibbonBuilder, CategoryOfRegisteredKeywordOffersNoHelpFile) {
    ASSERT_TRUE(
        Load(Panel("<e KEYWORD='X' TYPE='BUTTON' AcceptF1='N'/>") + "<r><c KEYWORD='X' help='category.swf'/></r>"));
    EXPECT_EQ(HelpOf(L"X"), L"");
}

TEST_F(RibbonBuilder, PanelsTakeNoIds) {
    ASSERT_TRUE(Load("<r><c KEYWORD='A'><p KEYWORD='P1'/><p KEYWORD='P2'/></c></r>"));
    EXPECT_EQ(TakenIds(), 1);
    int id = 0;
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetMenuId(L"P1", id));
}

TEST_F(RibbonBuilder, KeywordInTwoElementsIsRegisteredOnceAndBothGetItsId) {
    ASSERT_TRUE(
        Load(Panel("<e KEYWORD='K' TYPE='BUTTON' CMD='first'/><e KEYWORD='K' TYPE='BUTTON' SIZE='16' CMD='second'/>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton K #1 SmallButton K #1)]");
    std::wstring cmd;
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetCmd(m_firstId + 1, cmd));
    EXPECT_EQ(cmd, L"first");
    EXPECT_EQ(TakenIds(), 2);
}

TEST_F(RibbonBuilder, SecondElementsHelpFileIsStoredOnlyIfTheFirstHadNone) {
    ASSERT_TRUE(
        Load(Panel("<e KEYWORD='K' TYPE='BUTTON' AcceptF1='N'/><e KEYWORD='K' TYPE='BUTTON' help='second.swf'/>"
                   "<e KEYWORD='K' TYPE='BUTTON' help='third.swf'/>"
                   "<e KEYWORD='L' TYPE='BUTTON' help='first.swf'/><e KEYWORD='L' TYPE='BUTTON' help='second.swf'/>")));
    EXPECT_EQ(HelpOf(L"K"), L"second.swf");
    EXPECT_EQ(HelpOf(L"L"), L"first.swf");
}

TEST_F(RibbonBuilder, SubItemOffersItsHelpFileToo) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' TYPE='BUTTON' AcceptF1='N'/><e KEYWORD='B' TYPE='BUTTON'>"
                           "<s KEYWORD='K' TYPE='BUTTON' help='sub.swf'/></e>"
                           "<e KEYWORD='G' TYPE='GROUP'><s KEYWORD='K' TYPE='BUTTON' help='member.swf'/></e>")));
    EXPECT_EQ(HelpOf(L"K"), L"sub.swf");
}

TEST_F(RibbonBuilder, UnknownTypeAddsNothingButConsumesAnId) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='a' TYPE='lamp'/><e KEYWORD='b'/><e KEYWORD='c' TYPE='BUTTON'/>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton c #3)]");
    int id = 0;
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"a", id));
}

TEST_F(RibbonBuilder, UnknownTypeOfARegisteredKeywordConsumesNoId) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='C' TYPE='lamp'/>")));
    EXPECT_EQ(TakenIds(), 1);
}

TEST_F(RibbonBuilder, ElementWithoutKeywordConsumesAnIdThatLeadsNowhere) {
    ASSERT_TRUE(Load(Panel("<e TYPE='BUTTON'/><e KEYWORD='K' TYPE='BUTTON'/>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton UNIcoButton K #2)]");
    EXPECT_EQ(Element(0)->GetID(), static_cast<UINT>(m_firstId + 1));
}

TEST_F(RibbonBuilder, ElementThatCannotBeReadIsUsedAsFarAsItWasRead) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' TYPE='BUTTON' SIZE='16px' CMD='never'/><e/>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton K #1)]");
    EXPECT_EQ(TakenIds(), 3);
}

TEST_F(RibbonBuilder, GroupWithThreeChildrenIsOneGroupOfThreeButtons) {
    ASSERT_TRUE(
        Load(Panel("<e KEYWORD='G' TYPE='GROUP'><s KEYWORD='1' TYPE='BUTTON' SIZE='16'/><s KEYWORD='2' TYPE='BUTTON'/>"
                   "<s KEYWORD='3' TYPE='edit'/></e>")));
    EXPECT_EQ(FirstPanel()->GetCount(), 1);
    EXPECT_EQ(Outline(), L"[C #0 (P ButtonsGroup{SmallButton 1 #2, UNIcoButton 2 #3, Edit 3 #4})]");
}

TEST_F(RibbonBuilder, GroupIsKnownInAnyLetterCaseAndNeedsChildren) {
    ASSERT_TRUE(
        Load(Panel("<e KEYWORD='G' TYPE='group'><s KEYWORD='1' TYPE='BUTTON'/></e><e KEYWORD='H' TYPE='GROUP'/>")));
    EXPECT_EQ(Outline(), L"[C #0 (P ButtonsGroup{UNIcoButton 1 #2})]");
}

TEST_F(RibbonBuilder, ButtonWithChildrenGetsThemAsSubItems) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='B' TYPE='button'><s KEYWORD='1' TYPE='BUTTON'/><s KEYWORD='2' TYPE='lamp'/>"
                           "<s KEYWORD='3' TYPE='label'/></e>"
                           "<e KEYWORD='S' TYPE='BUTTON' SIZE='16'><s KEYWORD='4' TYPE='BUTTON' SIZE='16'/></e>")));
    EXPECT_EQ(Outline(),
              L"[C #0 (P UNIcoButton B #1{UNIcoButton 1 #2, Label 3 #4} SmallButton S #5{SmallButton 4 #6})]");
}

TEST_F(RibbonBuilder, GroupsDoNotNest) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='G' TYPE='GROUP'><s KEYWORD='H' TYPE='GROUP'><t KEYWORD='T' TYPE='BUTTON'/></s>"
                           "<s KEYWORD='1' TYPE='BUTTON'/></e>"
                           "<e KEYWORD='B' TYPE='BUTTON'><s KEYWORD='I' TYPE='GROUP'/></e>")));
    EXPECT_EQ(Outline(), L"[C #0 (P ButtonsGroup{UNIcoButton 1 #3} UNIcoButton B #4)]");
    int id = 0;
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"H", id)) << "it takes its id all the same";
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetMenuId(L"T", id)) << "too deep to be read";
}

TEST_F(RibbonBuilder, GroupWhoseMembersAreAllUnknownIsAddedEmpty) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='G' TYPE='GROUP'><s KEYWORD='1' TYPE='lamp'/></e>")));
    EXPECT_EQ(Outline(), L"[C #0 (P ButtonsGroup{})]");
    EXPECT_EQ(TakenIds(), 3);
}

TEST_F(RibbonBuilder, LabelWithChildrenAddsNothingAndReadsNoneOfThem) {
    ASSERT_TRUE(Load(Panel(
        "<e KEYWORD='L' TYPE='label'><s KEYWORD='1' TYPE='BUTTON'/></e><e KEYWORD='E' TYPE='edit'><s KEYWORD='2'/></e>"
        "<e KEYWORD='X' TYPE='lamp'><s KEYWORD='3' TYPE='BUTTON'/></e>")));
    EXPECT_EQ(Outline(), L"[C #0 (P)]");
    EXPECT_EQ(TakenIds(), 4);
}

TEST_F(RibbonBuilder, SubItemKeepsTheCommandOfItsElement) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='B' TYPE='BUTTON' CMD='do' PARAM='p'><s KEYWORD='1' TYPE='BUTTON'/></e>")));
    std::wstring text;
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetCmd(m_firstId + 2, text));
    EXPECT_EQ(text, L"do");
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetCmdParam(m_firstId + 2, text));
    EXPECT_EQ(text, L"p");
}

TEST_F(RibbonBuilder, GroupBeforePutsASeparatorBeforeTheElement) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='1' TYPE='BUTTON'/><e KEYWORD='2' TYPE='BUTTON' GROUPBEFORE='Y'/>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton 1 #1 Separator UNIcoButton 2 #2)]");
}

TEST_F(RibbonBuilder, GroupBeforeOfAPanelsFirstElementPutsNone) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='1' TYPE='BUTTON' GROUPBEFORE='Y'/><e KEYWORD='2' TYPE='BUTTON'/>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton 1 #1 UNIcoButton 2 #2)]");
}

TEST_F(RibbonBuilder, SeparatorStandsAlsoBeforeAnElementThatIsNotBuilt) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='1' TYPE='BUTTON'/><e KEYWORD='2' TYPE='lamp' GROUPBEFORE='Y'/>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton 1 #1 Separator)]");
}

TEST_F(RibbonBuilder, GroupBeforeOfASubItemIsIgnored) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='B' TYPE='BUTTON'><s KEYWORD='1' TYPE='BUTTON' GROUPBEFORE='Y'/></e>"
                           "<e KEYWORD='G' TYPE='GROUP'><s KEYWORD='2' TYPE='BUTTON' GROUPBEFORE='Y'/></e>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton B #1{UNIcoButton 1 #2} ButtonsGroup{UNIcoButton 2 #4})]");
}

TEST_F(RibbonBuilder, AddListAddsOneElementToAPanel) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='A' TYPE='BUTTON'/>")));
    const XmlElement element(
        "<e KEYWORD='B' TYPE='BUTTON' CMD='do' GROUPBEFORE='Y'><s KEYWORD='1' TYPE='BUTTON'/></e>");
    m_builder.AddList(element.Node(), FirstPanel());
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton A #1 Separator UNIcoButton B #2{UNIcoButton 1 #3})]");
    EXPECT_EQ(m_builder.m_cmdList, (std::vector<std::wstring>{L"", L"", L"", L"do", L"do"}));
}

TEST_F(RibbonBuilder, AddListToANullPanelDoesNothing) {
    const XmlElement element("<e KEYWORD='B' TYPE='BUTTON'/>");
    m_builder.AddList(element.Node(), nullptr);
    EXPECT_EQ(TakenIds(), 0);
}

TEST_F(RibbonBuilder, GetRowInfoReadsOneElementIntoARecord) {
    CAddRibbonBar::_RibbonInfo info;
    info.cmd = L"kept";
    EXPECT_TRUE(m_builder.GetRowInfo(XmlElement("<e KEYWORD='K' SIZE='16'/>").Node(), info));
    EXPECT_EQ(info.keyword, L"K");
    EXPECT_EQ(info.size, 16);
    EXPECT_EQ(info.cmd, L"kept");
    EXPECT_FALSE(m_builder.GetRowInfo(XmlElement("<e/>").Node(), info));
    EXPECT_FALSE(m_builder.GetRowInfo(XmlElement("<e SIZE=''/>").Node(), info));
}

TEST_F(RibbonBuilder, ASubItemGoesOntoTheQuickAccessToolbarToo) {
    ASSERT_TRUE(Load("<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='S'/><i KEYWORD='B'/></r>" +
                     Panel("<e KEYWORD='B' TYPE='BUTTON'><s KEYWORD='S' TYPE='BUTTON'/></e>")));
    EXPECT_EQ(QuickAccessIds(), (std::vector<UINT>{2, 1}));
}

TEST_F(RibbonBuilder, AConfiguredComboGoesOntoTheQuickAccessToolbar) {
    ASSERT_TRUE(Load("<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='K'/></r>" +
                     Panel("<e KEYWORD='K' TYPE='qkRibbonCheckComb'/>")));
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> copies;
    m_bar.GetElementsByID(Element(0)->GetID(), copies);
    ASSERT_EQ(copies.GetSize(), 2);
    auto& combo = static_cast<CMFCRibbonCheckComb&>(*Element(0));
    combo.AddItem(L"one");
    combo.SetItemCheck(0, true);
    for (INT_PTR i = 0; i < copies.GetSize(); ++i) {
        bool isChecked = false;
        auto* const copy = DYNAMIC_DOWNCAST(CMFCRibbonCheckComb, copies[i]);
        ASSERT_NE(copy, nullptr);
        EXPECT_TRUE(copy->GetItemCheck(0, isChecked));
        EXPECT_TRUE(isChecked);
    }
}

TEST_F(RibbonBuilder, IconsThatAreMissingDoNotStopTheBuild) {
    ASSERT_TRUE(
        Load(Panel("<e KEYWORD='1' TYPE='BUTTON' PICPATH='no\\such.ico'/><e KEYWORD='2' TYPE='BUTTON' PICPATH=''/>"
                   "<e KEYWORD='3' TYPE='BUTTON' PICPATH='a&#x3C;b|*?.ico'/><e KEYWORD='4' TYPE='BUTTON'/>")));
    EXPECT_EQ(FirstPanel()->GetCount(), 4);
}

TEST_F(RibbonBuilder, CategoryHasImagesOf16And32Pixels) {
    ASSERT_TRUE(Load("<r><c KEYWORD='A' NAME=''/><c KEYWORD='B' NAME='' CateTab='Y'/></r>"));
    for (int index : {0, 1}) {
        EXPECT_EQ(m_bar.GetCategory(index)->GetImageSize(FALSE), CSize(16, 16));
        EXPECT_EQ(m_bar.GetCategory(index)->GetImageSize(TRUE), CSize(32, 32));
        EXPECT_EQ(m_bar.GetCategory(index)->GetImageCount(TRUE), 0);
    }
}

TEST_F(RibbonBuilder, LoadedButtonsGetTheF1HintUnlessRefused) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='1' TYPE='BUTTON'/><e KEYWORD='2' TYPE='BUTTON' AcceptF1='n'/>")));
    EXPECT_EQ(Element(0)->GetDescription(), CAddRibbonBar::m_strHelpF1);
    EXPECT_EQ(Element(1)->GetDescription(), L"");
}

TEST_F(RibbonBuilder, BuilderWithoutF1HintsLoadsButtonsWithoutThem) {
    m_builder.SetCreateF1Tip(false);
    ASSERT_TRUE(Load(Panel("<e KEYWORD='1' TYPE='BUTTON'/><e KEYWORD='2' TYPE='BUTTON' AcceptF1='Y'>"
                           "<s KEYWORD='3' TYPE='BUTTON'/></e>")));
    EXPECT_EQ(Element(0)->GetDescription(), L"");
    EXPECT_EQ(Element(1)->GetDescription(), L"");
    const auto* const button = static_cast<CMFCRibbonButton*>(Element(1));
    EXPECT_EQ(button->GetSubItems()[0]->GetDescription(), L"");
    m_builder.SetCreateF1Tip(true);
    ASSERT_TRUE(Load(Panel("<e KEYWORD='2' TYPE='BUTTON'><s KEYWORD='3' TYPE='BUTTON'/></e>"), 1, "again.xml"));
    const auto* const again = static_cast<CMFCRibbonButton*>(m_bar.GetCategory(1)->GetPanel(0)->GetElement(0));
    EXPECT_EQ(again->GetSubItems()[0]->GetDescription(), CAddRibbonBar::m_strHelpF1);
}

} // namespace
