// Which extended elements CreateAllExBtns makes of the records.
#include "extended_status.h"

#include <afxvisualmanager.h>

namespace {

class CreateAllExBtns : public ExtendedStatus {};

TEST_F(CreateAllExBtns, MakesTheElementsInTheOrderOfKeysAndRecords) {
    TwoApplications();
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 5);
    EXPECT_NE(ExElement<CMFCRibbonLabelEx>(0), nullptr);
    EXPECT_NE(ExElement<CMFCRibbonSeparator>(1), nullptr);
    EXPECT_NE(ExElement<CMFCRibbonSliderSync>(2), nullptr);
    EXPECT_NE(ExElement<CMFCRibbonSliderSync>(3), nullptr);
    EXPECT_NE(ExElement<CMFCRibbonSmallButton>(4), nullptr);
    EXPECT_EQ(bar.GetExElement(0)->GetID(), 501u);
    EXPECT_EQ(bar.GetExElement(2)->GetID(), 502u);
    EXPECT_EQ(bar.GetExElement(3)->GetID(), 502u);
    EXPECT_EQ(bar.GetExElement(4)->GetID(), 503u);
    EXPECT_EQ(bar.GetCount(), 0);
}

TEST_F(CreateAllExBtns, AllAreVisibleUntilAnApplicationIsNamed) {
    TwoApplications();
    bar.CreateAllExBtns();
    EXPECT_EQ(Shown(), "11111");
}

TEST_F(CreateAllExBtns, ASeparatorIsKnownInAnyLetterCaseAndStandsUpright) {
    Application(L"one", {Row(L"Separator"), Row(L"SEPARATOR"), Row(L"sePaRatoR")});
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 3);
    for (int index = 0; index < 3; ++index) {
        ASSERT_NE(ExElement<CMFCRibbonSeparator>(index), nullptr);
        EXPECT_FALSE(ExElement<CMFCRibbonSeparator>(index)->IsHorizontal());
    }
}

TEST_F(CreateAllExBtns, AKeywordThatIsNotRegisteredIsSkipped) {
    Register(L"Known", 501);
    Application(L"one", {Row(L"Unknown", L"label"), Row(L"Known", L"label"), Row(L"", L"label")});
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 1);
    EXPECT_EQ(bar.GetExElement(0)->GetID(), 501u);
}

TEST_F(CreateAllExBtns, TypesAreKnownInAnyLetterCaseAndAnyOtherIsAButton) {
    const std::pair<const wchar_t*, CRuntimeClass*> kinds[] = {
        {L"LABEL", RUNTIME_CLASS(CMFCRibbonLabelEx)},      {L"Label", RUNTIME_CLASS(CMFCRibbonLabelEx)},
        {L"SLIDER", RUNTIME_CLASS(CMFCRibbonSliderSync)},  {L"sLider", RUNTIME_CLASS(CMFCRibbonSliderSync)},
        {L"BUTTON", RUNTIME_CLASS(CMFCRibbonSmallButton)}, {L"", RUNTIME_CLASS(CMFCRibbonSmallButton)},
        {L"edit", RUNTIME_CLASS(CMFCRibbonSmallButton)}};
    std::vector<Record> records;
    for (int index = 0; index < 7; ++index) {
        const std::wstring keyword = L"K" + std::to_wstring(index);
        Register(keyword, 600 + index);
        records.push_back(Row(keyword, kinds[index].first));
    }
    Application(L"one", records);
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 7);
    for (int index = 0; index < 7; ++index) {
        EXPECT_EQ(bar.GetExElement(index)->GetRuntimeClass(), kinds[index].second) << index;
    }
}

TEST_F(CreateAllExBtns, ALabelHasTextTooltipAndCommandAndIsNotRight) {
    Register(L"Place", 501);
    Application(L"one", {Row(L"Place", L"label", L"12 N")});
    bar.CreateAllExBtns();
    const auto* const label = ExElement<CMFCRibbonLabelEx>(0);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetID(), 501u);
    EXPECT_STREQ(label->GetText(), L"12 N");
    EXPECT_EQ(label->GetToolTipText(), L"tip of Place");
    EXPECT_FALSE(label->IsRight());
    EXPECT_FALSE(label->IsMultiLine());
}

TEST_F(CreateAllExBtns, ASliderHasTheWidthOfItsRecordOr50) {
    std::vector<Record> records;
    const int widths[] = {120, 1, 0, -7};
    for (int index = 0; index < 4; ++index) {
        const std::wstring keyword = L"K" + std::to_wstring(index);
        Register(keyword, 600 + index);
        records.push_back(Row(keyword, L"slider"));
        records.back().width = widths[index];
    }
    Application(L"one", records);
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 4);
    const int expected[] = {120, 1, 50, 50};
    for (int index = 0; index < 4; ++index) {
        EXPECT_EQ(ExElement<CMFCRibbonSliderSync>(index)->GetWidth(), expected[index]) << index;
    }
    EXPECT_STREQ(bar.GetExElement(0)->GetText(), L"K0");
    EXPECT_EQ(bar.GetExElement(0)->GetToolTipText(), L"tip of K0");
}

TEST_F(CreateAllExBtns, AButtonWhoseIconLoadsHasNoText) {
    Register(L"Light", 503);
    WriteIcon16(L"pic\\light.ico");
    Record record = Row(L"Light", L"button", L"Light");
    record.picPath = L"pic\\light.ico";
    Application(L"one", {record});
    bar.CreateAllExBtns();
    const auto* const button = ExElement<CMFCRibbonSmallButton>(0);
    ASSERT_NE(button, nullptr);
    EXPECT_STREQ(button->GetText(), L"");
    EXPECT_EQ(button->GetIconPath(TRUE), GetIconPathStr(record.picPath, 16));
    EXPECT_EQ(button->GetIconPath(FALSE), L"");
    EXPECT_FALSE(button->IsAlwaysShowDescription());
    EXPECT_EQ(button->GetToolTipText(), L"tip of Light");
}

TEST_F(CreateAllExBtns, AButtonWhoseIconCannotBeLoadedHasItsText) {
    Register(L"Light", 503);
    Register(L"Broken", 504);
    WriteIcon16(L"pic\\broken.ico", "no icon");
    Record missing = Row(L"Light", L"button", L"Light");
    missing.picPath = L"pic\\missing.ico";
    Record broken = Row(L"Broken", L"button", L"Broken");
    broken.picPath = L"pic\\broken.ico";
    Application(L"one", {missing, broken});
    bar.CreateAllExBtns();
    EXPECT_STREQ(bar.GetExElement(0)->GetText(), L"Light");
    EXPECT_STREQ(bar.GetExElement(1)->GetText(), L"Broken");
}

TEST_F(CreateAllExBtns, AButtonWhoseIconLiesOutsideOfTheInstallationHasItsText) {
    Register(L"Light", 503);
    const CString usual = GetIconPathStr(L"", 16);
    const ScopedAppPath app(std::wstring(usual.Left(usual.GetLength() - 3)) + L"app\\"); // without "\16"
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {{L"app\\pic\\..\\inside.ico", L""},
                                                               {L"app\\..\\outside.ico", L"Light"},
                                                               {L"app\\pic\\..\\..\\outside.ico", L"Light"},
                                                               {L"app\\pic/../../../outside.ico", L"Light"}};
    for (const auto& [path, text] : cases) {
        WriteIcon16(path); // a sound one
        Record record = Row(L"Light", L"button", L"Light");
        record.picPath = path;
        Application(L"one", {record});
        bar.RemoveAllEx();
        bar.CreateAllExBtns();
        ASSERT_EQ(bar.GetExCount(), 1);
        EXPECT_STREQ(bar.GetExElement(0)->GetText(), text) << path;
    }
}

TEST_F(CreateAllExBtns, AButtonWhoseIconIsTooLargeHasItsText) {
    Register(L"Light", 503);
    WriteIcon16(L"pic\\large.ico", MakeIconFile({{1032, {0xC81E1E, 0xC81E1E}}}));
    Record record = Row(L"Light", L"button", L"Light");
    record.picPath = L"pic\\large.ico";
    Application(L"one", {record});
    bar.CreateAllExBtns();
    EXPECT_STREQ(bar.GetExElement(0)->GetText(), L"Light");
}

TEST_F(CreateAllExBtns, AButtonIsInSmallMode) {
    Register(L"Light", 503);
    Application(L"one", {Row(L"Light", L"button")});
    bar.CreateAllExBtns();
    EXPECT_FALSE(bar.GetExElement(0)->HasLargeMode());
}

TEST_F(CreateAllExBtns, WhatSeveralApplicationsHaveIsBuiltOnceAndCopied) {
    TwoApplications();
    bar.CreateAllExBtns();
    CMFCRibbonBaseElement* const first = bar.GetExElement(2);
    CMFCRibbonBaseElement* const copy = bar.GetExElement(3);
    EXPECT_EQ(copy->GetOriginal(), first);
    EXPECT_EQ(copy->GetRuntimeClass(), first->GetRuntimeClass());
    EXPECT_EQ(copy->GetID(), first->GetID());
    EXPECT_STREQ(copy->GetText(), first->GetText());
    EXPECT_EQ(copy->GetToolTipText(), first->GetToolTipText());
    EXPECT_EQ(first->GetOriginal(), nullptr);
}

TEST_F(CreateAllExBtns, ACopyIsWhatTheFirstRecordSaysWhateverItsOwnDoes) {
    Register(L"Zoom", 502);
    Application(L"one", {Row(L"Zoom", L"slider", L"First")});
    Application(L"two", {Row(L"Zoom", L"label", L"Second")});
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 2);
    EXPECT_NE(ExElement<CMFCRibbonSliderSync>(1), nullptr);
    EXPECT_STREQ(bar.GetExElement(1)->GetText(), L"First");
}

TEST_F(CreateAllExBtns, ACopiedLabelIsALabelWithTheSameTextAndTooltip) {
    Register(L"Place", 501);
    Application(L"one", {Row(L"Place", L"label", L"12 N")});
    Application(L"two", {Row(L"Place", L"label", L"not this")});
    bar.CreateAllExBtns();
    const auto* const copy = ExElement<CMFCRibbonLabelEx>(1);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->GetOriginal(), bar.GetExElement(0));
    EXPECT_EQ(copy->GetID(), 501u);
    EXPECT_STREQ(copy->GetText(), L"12 N");
    EXPECT_EQ(copy->GetToolTipText(), L"tip of Place");
}

TEST_F(CreateAllExBtns, KeywordsOfCommandsAreComparedWithTheirLetterCase) {
    Register(L"Zoom", 502);
    Register(L"ZOOM", 504);
    Application(L"one", {Row(L"Zoom", L"slider"), Row(L"ZOOM", L"slider"), Row(L"zoom", L"slider")});
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 2) << "the third one is not registered";
    EXPECT_EQ(bar.GetExElement(1)->GetID(), 504u);
    EXPECT_EQ(bar.GetExElement(1)->GetOriginal(), nullptr) << "another command, no copy";
}

TEST_F(CreateAllExBtns, ASeparatorIsOneThoughACommandHasItsKeyword) {
    Register(L"Separator", 505);
    Application(L"one", {Row(L"Separator", L"label"), Row(L"Separator", L"label")});
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 2);
    for (int index = 0; index < 2; ++index) {
        EXPECT_NE(ExElement<CMFCRibbonSeparator>(index), nullptr);
        EXPECT_EQ(bar.GetExElement(index)->GetOriginal(), nullptr);
    }
}

TEST_F(CreateAllExBtns, ATypeSeparatorIsAButton) {
    Register(L"Line", 505);
    Application(L"one", {Row(L"Line", L"Separator")});
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 1);
    EXPECT_NE(ExElement<CMFCRibbonSmallButton>(0), nullptr);
}

TEST_F(CreateAllExBtns, TheElementsStandInNoContextMenuOfTheBars) {
    TwoApplications();
    bar.CreateAllExBtns();
    EXPECT_FALSE(bar.OnShowRibbonContextMenu(&bar, 20, 20, nullptr)) << "nothing has a label there";
}

TEST_F(CreateAllExBtns, CalledAgainItBuildsAllOnceMoreForTheSameApplications) {
    TwoApplications();
    bar.CreateAllExBtns();
    bar.CreateAllExBtns();
    EXPECT_EQ(bar.GetExCount(), 10);
    bar.SetExEleApp(L"two");
    EXPECT_EQ(Shown(), "0001100011");
}

TEST_F(CreateAllExBtns, AKeywordTwiceInOneApplicationIsCopiedToo) {
    Register(L"Zoom", 502);
    Application(L"one", {Row(L"Zoom", L"slider"), Row(L"Zoom", L"slider")});
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 2);
    EXPECT_EQ(bar.GetExElement(1)->GetOriginal(), bar.GetExElement(0));
}

TEST_F(CreateAllExBtns, ACopiedButtonDrawsTheIconOfTheFirst) {
    Register(L"Light", 503);
    WriteIcon16(L"pic\\light.ico");
    Record record = Row(L"Light", L"button");
    record.picPath = L"pic\\light.ico";
    Application(L"one", {record});
    Application(L"two", {record});
    bar.CreateAllExBtns();
    const auto* const copy = ExElement<CMFCRibbonSmallButton>(1);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->GetImageSize(CMFCRibbonBaseElement::RibbonImageSmall),
              bar.GetExElement(0)->GetImageSize(CMFCRibbonBaseElement::RibbonImageSmall));
    EXPECT_FALSE(copy->HasLargeMode());
}

TEST_F(CreateAllExBtns, AllCopiesOfASliderMoveTogetherAndSendOneCommand) {
    Register(L"Zoom", 502);
    for (const wchar_t* const key : {L"one", L"three", L"two"}) {
        Application(key, {Row(L"Zoom", L"slider")});
    }
    bar.CreateAllExBtns();
    ASSERT_EQ(bar.GetExCount(), 3);
    for (int moved = 0; moved < 3; ++moved) {
        frame.commands.clear();
        const int position = 20 + moved;
        ExElement<CMFCRibbonSliderSync>(moved)->SetPosSync(position, TRUE);
        ExElement<CMFCRibbonSliderSync>(moved)->NotifyCommandSync();
        for (int index = 0; index < 3; ++index) {
            EXPECT_EQ(ExElement<CMFCRibbonSliderSync>(index)->GetPos(), position);
            EXPECT_EQ(bar.GetExElement(index)->GetToolTipText(), std::to_wstring(position).c_str());
        }
        EXPECT_EQ(frame.commands, std::vector<UINT>{502u});
    }
}

TEST_F(CreateAllExBtns, EntriesOfOneDisplayNameAreOneApplication) {
    Register(L"Place", 501);
    Register(L"Light", 503);
    Application(L"a.xml", {Row(L"Place", L"label")}, L"Shared");
    Application(L"b.xml", {Row(L"Light", L"button")}, L"Shared");
    bar.SetExEleApp(L"b.xml");
    EXPECT_EQ(Shown(), "11");
}

TEST_F(CreateAllExBtns, WithoutRecordsMakesNothing) {
    bar.CreateAllExBtns();
    Application(L"one", {});
    bar.CreateAllExBtns();
    EXPECT_EQ(bar.GetExCount(), 0);
}

TEST_F(CreateAllExBtns, RemoveAllExDeletesAllOfThemInAnyOrderOfCopies) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    bar.RemoveAllEx();
    EXPECT_EQ(bar.GetExCount(), 0);
    bar.SetExEleApp(L"two");
    bar.EnsureLayout();
    bar.RemoveAllEx();
    EXPECT_EQ(bar.GetExCount(), 0);
}

TEST_F(CreateAllExBtns, RemoveAllExLeavesTheMainElements) {
    AddMain(L"Main");
    TwoApplications();
    bar.CreateAllExBtns();
    bar.RemoveAllEx();
    EXPECT_EQ(bar.GetCount(), 1);
}

TEST_F(CreateAllExBtns, TheRowsOfALoadedFileBecomeElements) {
    CAddRibbonBar builder;
    CMFCRibbonBar ribbon(FALSE);
    ASSERT_TRUE(ribbon.Create(&frame));
    installation.Directory().Write("ribbon.xml",
                                   "<ribbon><r KEYWORD='Tabs'><c KEYWORD='C' NAME=''><p KEYWORD='P' NAME=''>"
                                   "<e KEYWORD='Zoom' TYPE='SLIDER' CMD='z'/></p></c></r><s KEYWORD='StatusEx_btns'>"
                                   "<e KEYWORD='Separator'/><e KEYWORD='Zoom' TYPE='slider' WIDTH='70'/></s></ribbon>");
    ASSERT_TRUE(builder.Load(L"ribbon.xml", &ribbon, TRUE));
    bar.SetExEleApp(L"ribbon.xml");
    ASSERT_EQ(bar.GetExCount(), 2);
    EXPECT_EQ(ExElement<CMFCRibbonSliderSync>(1)->GetWidth(), 70);
    ribbon.DestroyWindow();
}

} // namespace
