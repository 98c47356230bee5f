#include "library_context.h"
#include "ribbon_check_combo.h"
#include "ribbon_icon_button.h"
#include "ribbon_multi_combo.h"
#include "tests/support/canvas.h"
#include "tests/support/scoped_value.h"
#include "tests/ui/icon_button/button_flags.h"
#include "tests/ui/ribbon_builder/ribbon_fixture.h"

#include <varnhold/xml.h>

namespace {

constexpr std::uint32_t red = 0xFF0000;
constexpr std::uint32_t green = 0x00FF00;
constexpr std::uint32_t blue = 0x0000FF;
constexpr std::uint32_t yellow = 0xFFFF00;

/// Reads an element from a literal and gives it to the builder as the host would.
class XmlElement {
public:
    explicit XmlElement(const std::string& xml) { EXPECT_TRUE(m_document.LoadFromMemory(xml)) << xml; }
    CXmlNodeWrapper Node() const { return m_document.GetDocumentElement(); }

private:
    CXmlDocumentWrapper m_document;
};

RibbonInfo InfoOf(const wchar_t* type) {
    RibbonInfo info;
    info.type = type;
    info.name = L"name";
    info.tooltip = L"tip";
    info.picPath = L"pic\\a.ico";
    return info;
}

std::unique_ptr<CMFCRibbonBaseElement> Make(const RibbonInfo& info, const CAddRibbonBar* owner = nullptr) {
    return std::unique_ptr<CMFCRibbonBaseElement>(CAddRibbonBar::CreateACtrl(7, info, owner));
}

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

TEST_F(RibbonBuilder, ButtonTakesBothIconSizesAndASmallOneThe16PixelIcon) {
    // Below this test's installation directory where it is the first in its process to ask.
    const CString largeFile = GetIconPathStr(L"pic\\a.ico", 32);
    const CString smallFile = GetIconPathStr(L"pic\\a.ico", 16);
    RibbonInfo info = InfoOf(L"BUTTON");
    auto button = Make(info);
    auto* icon = DYNAMIC_DOWNCAST(CMFCRibbonUNIcoButton, button.get());
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->GetRuntimeClass(), RUNTIME_CLASS(CMFCRibbonUNIcoButton));
    EXPECT_EQ(icon->GetIconPath(TRUE), largeFile);
    EXPECT_EQ(icon->GetIconPath(FALSE), smallFile);
    EXPECT_EQ(icon->GetID(), 7u);
    EXPECT_EQ(CString(icon->GetText()), L"name");
    EXPECT_EQ(icon->GetToolTipText(), L"tip");
    EXPECT_TRUE(icon->HasLargeMode());

    info.size = 16;
    button = Make(info);
    icon = DYNAMIC_DOWNCAST(CMFCRibbonSmallButton, button.get());
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->GetIconPath(TRUE), smallFile);
    EXPECT_TRUE(icon->GetIconPath(FALSE).IsEmpty());
    EXPECT_FALSE(icon->HasLargeMode());

    for (const int size : {0, 15, 17, 24, 32, -16}) {
        info.size = size;
        EXPECT_EQ(Make(info)->GetRuntimeClass(), RUNTIME_CLASS(CMFCRibbonUNIcoButton)) << size;
    }
}

TEST_F(RibbonBuilder, ButtonsOwnTheirIconsBlendNoneAndShowNoDescription) {
    for (const int size : {16, 32}) {
        RibbonInfo info = InfoOf(L"BUTTON");
        info.size = size;
        const auto made = Make(info);
        const auto& button = static_cast<const CMFCRibbonUNIcoButton&>(*made);
        EXPECT_TRUE(ButtonFlags::DestroysIcons(button)) << size;
        EXPECT_FALSE(ButtonFlags::BlendsIcons(button)) << size;
        EXPECT_FALSE(button.IsAlwaysShowDescription()) << size;
    }
}

void WriteIcon(const CString& path, int side, std::uint32_t colour) {
    const std::filesystem::path file(path.GetString());
    std::filesystem::create_directories(file.parent_path());
    const std::string bytes = MakeIconFile(side, {colour, colour});
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// A red icon at the path of the button's large picture and a blue one at its alternate.
void WriteLargeIcons(const CMFCRibbonUNIcoButton& button) {
    CString path = button.GetIconPath(TRUE);
    WriteIcon(path, 32, red);
    ASSERT_GT(path.Replace(L"modle", L"modle_0"), 0);
    WriteIcon(path, 32, blue);
}

std::uint32_t ColourDrawn(CMFCRibbonUNIcoButton& button, CMFCRibbonBaseElement::RibbonImageType type) {
    Canvas canvas;
    const int side = type == CMFCRibbonBaseElement::RibbonImageLarge ? 32 : 16;
    button.DrawImage(canvas.Dc(), type, CRect(0, 0, side, side));
    return canvas.At(4, 4);
}

/// The colour of the large picture while the skin style selects the alternates.
std::uint32_t AlternateColour(CMFCRibbonUNIcoButton& button) {
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    const std::uint32_t colour = ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageLarge);
    CMFCRibbonUNIcoButton::SetSkinStyle(CString());
    return colour;
}

TEST_F(RibbonBuilder, ButtonsAlternateIconsAreFormed) {
    RibbonInfo info = InfoOf(L"BUTTON");
    info.picPath = L"skin\\modle\\a.ico";
    for (const int size : {16, 32}) {
        info.size = size;
        const auto made = Make(info);
        auto& button = static_cast<CMFCRibbonUNIcoButton&>(*made);
        WriteLargeIcons(button);
        EXPECT_EQ(AlternateColour(button), blue) << size;
    }
}

/// An image of one colour in a category's list.
void AddImage(CMFCToolBarImages& images, const TemporaryDirectory& directory, int side, std::uint32_t colour) {
    images.SetImageSize(CSize(side, side));
    const std::wstring file = directory.Write("image.ico", MakeIconFile(side, {colour, colour}));
    const auto icon = static_cast<HICON>(::LoadImageW(nullptr, file.c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE));
    EXPECT_EQ(images.AddIcon(icon, TRUE), 0);
    ::DestroyIcon(icon);
}

TEST_F(RibbonBuilder, ButtonWhoseLargeFileIsMissingDrawsFromItsImageIndexes) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' TYPE='BUTTON' PICPATH='late\\a.ico'/>")));
    CMFCRibbonCategory& category = *m_bar.GetCategory(0);
    AddImage(category.GetLargeImages(), m_installation.Directory(), 32, red);
    AddImage(category.GetSmallImages(), m_installation.Directory(), 16, blue);
    auto& button = static_cast<CMFCRibbonUNIcoButton&>(*Element(0));
    button.SetImageIndex(0, TRUE);
    button.SetImageIndex(0, FALSE);
    WriteIcon(button.GetIconPath(FALSE), 16, green);
    EXPECT_EQ(ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageLarge), red);
    EXPECT_EQ(ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageSmall), blue) << "not from the small file either";
    WriteIcon(button.GetIconPath(TRUE), 32, yellow);
    EXPECT_EQ(ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageLarge), yellow);
    EXPECT_EQ(ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageSmall), green);
}

TEST_F(RibbonBuilder, CategoryHasImagesOf16And32Pixels) {
    ASSERT_TRUE(Load("<r><c KEYWORD='A' NAME=''/><c KEYWORD='B' NAME='' CateTab='Y'/></r>"));
    for (int index : {0, 1}) {
        EXPECT_EQ(m_bar.GetCategory(index)->GetImageSize(FALSE), CSize(16, 16));
        EXPECT_EQ(m_bar.GetCategory(index)->GetImageSize(TRUE), CSize(32, 32));
        EXPECT_EQ(m_bar.GetCategory(index)->GetImageCount(TRUE), 0);
    }
}

TEST_F(RibbonBuilder, F1HintIsGivenToButtonsWhoseOwnerAndRecordWantIt) {
    EXPECT_EQ(CAddRibbonBar::m_strHelpF1, L"\u6309F1\u952E\u83B7\u5F97\u6B64\u529F\u80FD\u89C6\u9891");
    for (const int size : {16, 32}) {
        RibbonInfo info = InfoOf(L"BUTTON");
        info.size = size;
        m_builder.SetCreateF1Tip(true);
        EXPECT_EQ(Make(info, &m_builder)->GetDescription(), CAddRibbonBar::m_strHelpF1);
        EXPECT_EQ(Make(info, nullptr)->GetDescription(), L"");
        info.acceptF1 = false;
        EXPECT_EQ(Make(info, &m_builder)->GetDescription(), L"");
        info.acceptF1 = true;
        m_builder.SetCreateF1Tip(false);
        EXPECT_FALSE(m_builder.getAcceptF1());
        EXPECT_EQ(Make(info, &m_builder)->GetDescription(), L"");
    }
}

TEST_F(RibbonBuilder, F1HintIsForButtonsOnly) {
    for (const wchar_t* type :
         {L"slider", L"label", L"edit", L"qkRibbonCheckComb", L"qkRibbonMultiComb", L"qkRibbonMultiComb2"})
        EXPECT_EQ(Make(InfoOf(type), &m_builder)->GetDescription(), L"") << type;
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

TEST_F(RibbonBuilder, SliderIsAsWideAsConfiguredOrFifty) {
    for (const auto& [width, expected] : {std::pair{120, 120}, {1, 1}, {0, 50}, {-5, 50}}) {
        RibbonInfo info = InfoOf(L"SLIDER");
        info.width = width;
        const auto made = Make(info);
        const auto* const slider = DYNAMIC_DOWNCAST(CMFCRibbonSlider, made.get());
        ASSERT_NE(slider, nullptr);
        const CMFCRibbonSlider same(7, expected);
        EXPECT_EQ(slider->GetWidth(), same.GetWidth()) << width;
        EXPECT_EQ(slider->GetID(), 7u);
        EXPECT_EQ(CString(slider->GetText()), L"name");
        EXPECT_EQ(slider->GetToolTipText(), L"tip");
    }
}

TEST_F(RibbonBuilder, EditIsAsWideAsConfiguredOrFiftyAndHoldsTheName) {
    for (const auto& [width, expected] : {std::pair{120, 120}, {1, 1}, {0, 50}, {-5, 50}}) {
        RibbonInfo info = InfoOf(L"edit");
        info.width = width;
        const auto made = Make(info);
        auto* const edit = DYNAMIC_DOWNCAST(CMFCRibbonEdit, made.get());
        ASSERT_NE(edit, nullptr);
        EXPECT_EQ(edit->GetWidth(), CMFCRibbonEdit(7, expected).GetWidth()) << width;
        EXPECT_EQ(edit->GetID(), 7u);
        EXPECT_EQ(edit->GetEditText(), L"name");
        EXPECT_EQ(CString(edit->GetText()), L"");
        EXPECT_EQ(edit->GetImageIndex(FALSE), -1);
        EXPECT_EQ(edit->GetImageIndex(TRUE), -1);
        EXPECT_EQ(edit->GetToolTipText(), L"tip");
    }
}

TEST_F(RibbonBuilder, LabelHasNameAndIdAndNothingMore) {
    const auto made = Make(InfoOf(L"Label"));
    const auto* const label = DYNAMIC_DOWNCAST(CMFCRibbonLabel, made.get());
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(CString(label->GetText()), L"name");
    EXPECT_EQ(label->GetID(), 7u);
    EXPECT_NE(label->GetToolTipText(), L"tip");
    EXPECT_FALSE(label->IsMultiLine());
}

template <class Combo>
std::unique_ptr<Combo> MakeCombo(const wchar_t* type) {
    RibbonInfo info = InfoOf(type);
    info.width = 300;
    std::unique_ptr<CMFCRibbonBaseElement> made = Make(info);
    auto* const combo = DYNAMIC_DOWNCAST(Combo, made.get());
    EXPECT_NE(combo, nullptr);
    if (combo)
        static_cast<void>(made.release());
    return std::unique_ptr<Combo>(combo);
}

void ExpectBuiltCombo(CMFCRibbonComboBox& combo) {
    EXPECT_EQ(combo.GetID(), 7u);
    EXPECT_FALSE(combo.HasEditBox());
    EXPECT_EQ(combo.GetWidth(), CMFCRibbonComboBox(7, FALSE).GetWidth()) << "the usual width, whatever the file says";
    EXPECT_EQ(combo.GetImageIndex(FALSE), -1);
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(CString(combo.GetText()), L"name");
    EXPECT_EQ(combo.GetToolTipText(), L"tip");
}

TEST_F(RibbonBuilder, ACheckComboAndAMultiComboDropInTheirClassesStaticHeight) {
    const ScopedValue checkHeight(CMFCRibbonCheckComb::m_nStaticDropDownHeight, 321);
    const ScopedValue multiHeight(CMFCRibbonMultiCombo::m_nStaticDropDownHeight, 123);
    const auto check = MakeCombo<CMFCRibbonCheckComb>(L"qkRibbonCheckComb");
    ASSERT_NE(check, nullptr);
    ExpectBuiltCombo(*check);
    EXPECT_EQ(check->GetDropDownHeight(), 321);
    check->SetStaticDropDownHeight(333);
    EXPECT_EQ(CMFCRibbonCheckComb::m_nStaticDropDownHeight, 333) << "it uses the static height";
    const auto multi = MakeCombo<CMFCRibbonMultiCombo>(L"qkRibbonMultiComb");
    ASSERT_NE(multi, nullptr);
    ExpectBuiltCombo(*multi);
    EXPECT_EQ(multi->GetDropDownHeight(), 123);
    multi->SetStaticDropDownHeight(111);
    EXPECT_EQ(CMFCRibbonMultiCombo::m_nStaticDropDownHeight, 111);
}

TEST_F(RibbonBuilder, ALightOnlyComboKeepsItsDropDownHeight) {
    const auto light = MakeCombo<CMFCRibbonVesMultiCombo>(L"qkRibbonMultiComb2");
    ASSERT_NE(light, nullptr);
    ExpectBuiltCombo(*light);
    EXPECT_EQ(light->GetDropDownHeight(), CMFCRibbonComboBox(7, FALSE).GetDropDownHeight());
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

TEST_F(RibbonBuilder, UnknownTypesMakeNothing) {
    for (const wchar_t* type : {L"", L"lamp", L"GROUP", L"BUTTON ", L"buttons", L"qkRibbonMultiComb3", L"CheckComb"})
        EXPECT_EQ(Make(InfoOf(type)), nullptr) << type;
}

TEST_F(RibbonBuilder, IconsThatAreMissingDoNotStopTheBuild) {
    ASSERT_TRUE(
        Load(Panel("<e KEYWORD='1' TYPE='BUTTON' PICPATH='no\\such.ico'/><e KEYWORD='2' TYPE='BUTTON' PICPATH=''/>"
                   "<e KEYWORD='3' TYPE='BUTTON' PICPATH='a&#x3C;b|*?.ico'/><e KEYWORD='4' TYPE='BUTTON'/>")));
    EXPECT_EQ(FirstPanel()->GetCount(), 4);
}

class ButtonFromKey : public RibbonBuilder {
protected:
    void SetUp() override {
        RibbonBuilder::SetUp();
        ASSERT_TRUE(m_installation.Translate("K L"));
    }
    std::unique_ptr<CMFCRibbonUNIcoButton> Make(const std::wstring& keyword, int keepLarge = 0) {
        m_id = -7;
        return std::unique_ptr<CMFCRibbonUNIcoButton>(
            CAddRibbonBar::CreateBtnFromKey(&m_bar, keyword, 5, m_id, keepLarge));
    }
    int m_id = -7;
};

const char* const keyButton = "<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' PICPATH='pic\\a.ico' AcceptF1='N'/>";

TEST_F(ButtonFromKey, CopiesTheCommandsButton) {
    m_builder.SetCreateF1Tip(false);
    ASSERT_TRUE(Load(Panel(keyButton)));
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(m_id, m_firstId + 1);
    EXPECT_EQ(button->GetID(), static_cast<UINT>(m_id));
    EXPECT_EQ(CString(button->GetText()), L"<K>");
    EXPECT_EQ(button->GetToolTipText(), L"tip of <K>");
    EXPECT_EQ(button->GetDescription(), CAddRibbonBar::m_strHelpF1) << "always";
    const auto* const found = static_cast<CMFCRibbonUNIcoButton*>(Element(0));
    EXPECT_EQ(button->GetIconPath(TRUE), found->GetIconPath(TRUE));
    EXPECT_EQ(button->GetIconPath(FALSE), found->GetIconPath(FALSE));
    EXPECT_EQ(button->GetRuntimeClass(), RUNTIME_CLASS(CMFCRibbonUNIcoButton));
}

TEST_F(ButtonFromKey, NameAndTooltipAreTheRegisteredOnesWhateverTheFoundButtonShows) {
    ASSERT_TRUE(Load(Panel(keyButton)));
    Element(0)->SetText(L"another text");
    Element(0)->SetToolTipText(L"another tip");
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(CString(button->GetText()), L"<K>");
    EXPECT_EQ(button->GetToolTipText(), L"tip of <K>");
}

TEST_F(ButtonFromKey, TakesThePathsOfTheVisibleOneOfTwo) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' PICPATH='pic\\a.ico'/>"
                           "<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' PICPATH='pic\\b.ico'/>")));
    EXPECT_EQ(Make(L"K")->GetIconPath(TRUE).Right(5), L"a.ico");
    Element(0)->SetVisible(FALSE);
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->GetIconPath(TRUE).Right(5), L"b.ico");
}

TEST_F(ButtonFromKey, LeavesIconsAndDescriptionFlagsOff) {
    ASSERT_TRUE(Load(Panel(keyButton)));
    const auto button = Make(L"K", 1);
    ASSERT_NE(button, nullptr);
    EXPECT_FALSE(ButtonFlags::DestroysIcons(*button));
    EXPECT_FALSE(ButtonFlags::BlendsIcons(*button));
    EXPECT_FALSE(button->IsAlwaysShowDescription());
}

TEST_F(ButtonFromKey, LastArgumentKeepsTheLargePath) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' PICPATH='skin\\modle\\k.ico'/>")));
    WriteLargeIcons(static_cast<CMFCRibbonUNIcoButton&>(*Element(0)));
    const auto kept = Make(L"K", 1);
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(AlternateColour(*kept), red);
    const auto formed = Make(L"K", 0);
    ASSERT_NE(formed, nullptr);
    EXPECT_EQ(AlternateColour(*formed), blue);
}

TEST_F(ButtonFromKey, IsFoundOnTheQuickAccessToolbarToo) {
    ASSERT_TRUE(Load("<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='K'/></r>" + Panel(keyButton)));
    const CString path = static_cast<CMFCRibbonUNIcoButton*>(Element(0))->GetIconPath(TRUE);
    m_bar.ShowCategory(0, FALSE);
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->GetIconPath(TRUE), path);
}

TEST_F(ButtonFromKey, OfASmallButtonIsAnOrdinaryOneWithTheSmallOnesPaths) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' SIZE='16' PICPATH='pic\\a.ico'/>")));
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->GetRuntimeClass(), RUNTIME_CLASS(CMFCRibbonUNIcoButton));
    EXPECT_EQ(button->GetIconPath(TRUE).Right(12), L"pic\\16\\a.ico");
    EXPECT_TRUE(button->GetIconPath(FALSE).IsEmpty());
    EXPECT_TRUE(button->HasLargeMode());
}

TEST_F(ButtonFromKey, IsFoundAmongSubItemsAndMembersOfGroups) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='B' TYPE='BUTTON'><s KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON'/></e>"
                           "<e KEYWORD='G' TYPE='GROUP'><s KEYWORD='L' NAME='' TOOLTIP='' TYPE='BUTTON'/></e>")));
    EXPECT_NE(Make(L"K"), nullptr);
    EXPECT_NE(Make(L"L"), nullptr);
}

TEST_F(ButtonFromKey, IsNullWithoutABar) {
    ASSERT_TRUE(Load(Panel(keyButton)));
    int id = -7;
    EXPECT_EQ(CAddRibbonBar::CreateBtnFromKey(nullptr, L"K", 0, id, 0), nullptr);
    EXPECT_EQ(id, -7);
}

TEST_F(ButtonFromKey, IsNullForAnUnknownKeyword) {
    ASSERT_TRUE(Load(Panel(keyButton)));
    EXPECT_EQ(Make(L"unknown"), nullptr);
    EXPECT_EQ(m_id, -7);
}

TEST_F(ButtonFromKey, IsNullForAKeywordWithoutATooltip) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TYPE='BUTTON'/>")));
    EXPECT_EQ(Make(L"K"), nullptr);
    EXPECT_EQ(m_id, -7);
}

TEST_F(ButtonFromKey, IsNullWhereTheBarHasNoSuchElementButTellsTheId) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='lamp'/>")));
    EXPECT_EQ(Make(L"K"), nullptr);
    EXPECT_EQ(m_id, m_firstId + 1);
}

TEST_F(ButtonFromKey, IsNullForAnElementOfAnotherKind) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='edit'/>")));
    EXPECT_EQ(Make(L"K"), nullptr);
    EXPECT_EQ(m_id, m_firstId + 1);
}

TEST_F(ButtonFromKey, IsNullForAHiddenButton) {
    ASSERT_TRUE(Load(Panel(keyButton), 0));
    EXPECT_EQ(Make(L"K"), nullptr);
}

} // namespace
