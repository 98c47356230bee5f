// What is built anew, and what stays.
#include "preview_frame.h"

#include "configuration_watch.h"
#include "frame_dump.h"
#include "menu_id_mgr.h"
#include "ribbon_check_combo.h"
#include "tests/support/gui_objects.h"
#include "tests/support/icon_writer.h"
#include "tests/support/message_pump.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/ui_test.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>

#include <cstdlib>

#include <psapi.h>

namespace {

constexpr const char* kRibbon =
    "<ribbon><row KEYWORD='Main'><category KEYWORD='Map' NAME=''><panel KEYWORD='Views' NAME=''>"
    "<i KEYWORD='Open' NAME='' TYPE='BUTTON' PICPATH='pic\\a.ico'/><i KEYWORD='Scale' TYPE='SLIDER' WIDTH='90'/>"
    "<i KEYWORD='Place' TYPE='edit'/></panel></category>"
    "<category KEYWORD='Tools' NAME=''><panel KEYWORD='Layers' NAME=''><i KEYWORD='List' TYPE='qkRibbonCheckComb'/>"
    "</panel></category></row></ribbon>";
constexpr const char* kMenu =
    "<menu><g><p KEYWORD='File' MENUNAME=''><i KEYWORD='Open' MENUNAME='' PicPath='pic\\a.ico'/>"
    "<i KEYWORD='Save' MENUNAME='' HOTKEY='Ctrl+S'/></p></g></menu>";
constexpr const char* kBars = "<bars><g KEYWORD='G'><b PROMPT='One'><i TYPE='button' KEYWORD='Open' PROMPT='Open' "
                              "PICPATH='pic\\a.ico'/><i TYPE='qkLayerCheckCtrl' KEYWORD='Bar'/></b></g></bars>";

class RebuiltBars : public testing::Test {
protected:
    RebuiltBars() : m_path(m_directory.Prefix()) {
        for (const auto& [name, text] : {std::pair("cfg/ribbon.xml", kRibbon), std::pair("cfg/menu.xml", kMenu),
                                         std::pair("cfg/toolbar.xml", kBars)}) {
            m_directory.Write(name, text);
        }
        for (const int side : {16, 32}) {
            m_directory.Write("pic/" + std::to_string(side) + "/a.ico", MakeIconFile(side, {0xFF0000, 0x00FF00}));
        }
        CMenuIdMgr::Destroy();
        m_options.directory = m_directory.Prefix();
        m_options.ribbonFiles = {L"cfg\\ribbon.xml"};
        m_options.menuFiles = {L"cfg\\menu.xml"};
        m_options.toolBarFiles = {L"cfg\\toolbar.xml"};
        m_frame = new CPreviewFrame(m_options);
        EXPECT_TRUE(m_frame->CreateFrame());
        EXPECT_TRUE(m_frame->Build());
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        PumpPending();
    }
    ~RebuiltBars() override {
        m_frame->DestroyWindow(); // deletes itself
        PumpPending();
        CMenuIdMgr::Destroy();
        CMFCToolBar::SetUserImages(nullptr);
    }

    CMFCRibbonBar& Ribbon() { return *m_frame->Sources().ribbon; }
    template <class Element>
    Element* Find(const wchar_t* keyword) {
        int id = 0;
        CMenuIdMgr::Ins()->GetMenuId(keyword, id);
        return DYNAMIC_DOWNCAST(Element, Ribbon().FindByID(static_cast<UINT>(id), FALSE, TRUE));
    }
    CString Title() const {
        CString title;
        m_frame->GetWindowText(title);
        return title;
    }

    const TemporaryDirectory m_directory;
    const ScopedAppPath m_path;
    BarviewOptions m_options;
    CPreviewFrame* m_frame = nullptr;
};

TEST_F(RebuiltBars, SlidersCombosEditsAndTheActiveTabStayAsTheUserLeftThem) {
    Find<CMFCRibbonSlider>(L"Scale")->SetRange(0, 200);
    Find<CMFCRibbonSlider>(L"Scale")->SetPos(150);
    Find<CMFCRibbonEdit>(L"Place")->SetEditText(L"Oslo");
    auto* const list = Find<CMFCRibbonCheckComb>(L"List");
    list->AddItem(L"Roads");
    list->AddItem(L"Rivers");
    list->SetItemCheck(0, false);
    list->SetItemCheck(1, true);
    list->SelectItem(1);
    Ribbon().SetActiveCategory(Ribbon().GetCategory(1));
    m_directory.Write("cfg/ribbon.xml",
                      std::string(kRibbon).insert(std::string(kRibbon).find("<i "), "<i KEYWORD='New' NAME='' "
                                                                                    "TYPE='BUTTON'/>"));
    ASSERT_TRUE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    EXPECT_NE(Find<CMFCRibbonButton>(L"New"), nullptr);
    EXPECT_EQ(Find<CMFCRibbonSlider>(L"Scale")->GetPos(), 150);
    EXPECT_EQ(Find<CMFCRibbonSlider>(L"Scale")->GetRangeMax(), 200);
    EXPECT_EQ(Find<CMFCRibbonEdit>(L"Place")->GetEditText(), L"Oslo");
    auto* const again = Find<CMFCRibbonCheckComb>(L"List");
    EXPECT_EQ(again->GetCount(), 2);
    EXPECT_EQ(again->GetCurSel(), 1);
    bool isChecked = false;
    EXPECT_TRUE(again->GetItemCheck(1, isChecked) && isChecked);
    EXPECT_TRUE(again->GetItemCheck(0, isChecked) && !isChecked);
    EXPECT_TRUE(Ribbon().GetCategory(1)->IsActive());
}

TEST_F(RebuiltBars, OnlyTheBarsWhoseFileHasChangedAreBuiltAnew) {
    const CMFCRibbonBaseElement* const element = Find<CMFCRibbonButton>(L"Open");
    const CMFCToolBar* const bar = m_frame->Sources().toolBars.front().second;
    m_directory.Write("cfg/menu.xml", kMenu);
    ASSERT_TRUE(m_frame->Rebuild({{L"cfg\\menu.xml"}}));
    EXPECT_EQ(Find<CMFCRibbonButton>(L"Open"), element);
    EXPECT_EQ(m_frame->Sources().toolBars.front().second, bar);
}

TEST_F(RebuiltBars, ABrokenFileLeavesThemAndTheCaptionSaysWhatIsWrongUntilItIsMended) {
    const CMFCRibbonBaseElement* const element = Find<CMFCRibbonButton>(L"Open");
    m_directory.Write("cfg/ribbon.xml", "<ribbon>\n</row>");
    EXPECT_FALSE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    EXPECT_EQ(Find<CMFCRibbonButton>(L"Open"), element);
    EXPECT_EQ(Title().Left(17), L"cfg/ribbon.xml:2:");
    m_directory.Write("cfg/ribbon.xml", kRibbon);
    EXPECT_TRUE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    EXPECT_EQ(Title(), m_options.directory.c_str());
}

TEST_F(RebuiltBars, AShortcutThatNamesNoKeyIsABrokenFileAndTheMenusStay) {
    m_directory.Write("cfg/menu.xml", "<menu><g><p KEYWORD='File' MENUNAME=''>\n"
                                      "<i KEYWORD='Save' MENUNAME='' HOTKEY='Ctrl+'/></p></g></menu>");
    EXPECT_FALSE(m_frame->Rebuild({{L"cfg\\menu.xml"}}));
    EXPECT_EQ(m_frame->Sources().menus.front()->GetMenuItemCount(), 1u);
    EXPECT_EQ(Title().Left(19), L"cfg/menu.xml:2:31: ");
    m_directory.Write("cfg/menu.xml", kMenu);
    EXPECT_TRUE(m_frame->Rebuild({{L"cfg\\menu.xml"}}));
    EXPECT_EQ(Title(), m_options.directory.c_str());
}

TEST_F(RebuiltBars, AFileWithoutAnElementIsABrokenFile) {
    const CMFCRibbonBaseElement* const element = Find<CMFCRibbonButton>(L"Open");
    m_directory.Write("cfg/ribbon.xml", "<ribbon/>");
    EXPECT_FALSE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    EXPECT_EQ(Find<CMFCRibbonButton>(L"Open"), element);
    EXPECT_EQ(Title().Left(20), L"cfg/ribbon.xml:1:1: ");
}

TEST_F(RebuiltBars, OfTwoFilesThatChangeAtOnceTheGoodOneIsBuiltAndTheOtherWaits) {
    std::string menu = kMenu;
    menu.replace(menu.find("'Save'"), 6, "'Keep'");
    m_directory.Write("cfg/menu.xml", menu);
    m_directory.Write("cfg/ribbon.xml", "<ribbon>");
    EXPECT_TRUE(m_frame->Rebuild({{L"cfg\\menu.xml", L"cfg\\ribbon.xml"}}));
    EXPECT_FALSE(m_frame->IsWaiting(L"cfg\\menu.xml"));
    EXPECT_TRUE(m_frame->IsWaiting(L"cfg\\ribbon.xml"));
    int id = 0;
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"Keep", id));
    EXPECT_EQ(Title().Left(15), L"cfg/ribbon.xml:");
}

TEST_F(RebuiltBars, AGoodChangeOfAnotherFileLeavesTheCaptionThatSaysWhatIsBroken) {
    m_directory.Write("cfg/ribbon.xml", "<ribbon>");
    EXPECT_FALSE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    m_directory.Write("cfg/menu.xml", kMenu);
    EXPECT_TRUE(m_frame->Rebuild({{L"cfg\\menu.xml"}}));
    EXPECT_EQ(Title().Left(15), L"cfg/ribbon.xml:");
    m_directory.Write("cfg/ribbon.xml", kRibbon);
    EXPECT_TRUE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    EXPECT_EQ(Title(), m_options.directory.c_str());
}

TEST_F(RebuiltBars, TextsThatChangeWhileAFileIsBrokenAreThereWhenItIsMended) {
    const auto write = [this](const std::string& text) {
        m_directory.Write("lang/en/a.xlf",
                          "<xliff version='2.0'><file id='RibbonBarCfg'>\n<unit id='Map'><segment><source>" + text +
                              "</source></segment></unit></file></xliff>");
    };
    m_options.language = L"en";
    write("First");
    EXPECT_TRUE(m_frame->Rebuild({{L"lang\\en\\a.xlf"}}));
    EXPECT_STREQ(Ribbon().GetCategory(0)->GetName(), L"First");
    m_directory.Write("cfg/ribbon.xml", "<ribbon>");
    EXPECT_FALSE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    write("Second");
    EXPECT_TRUE(m_frame->Rebuild({{L"lang\\en\\a.xlf"}})); // menus and toolbars
    EXPECT_STREQ(Ribbon().GetCategory(0)->GetName(), L"First");
    // A broken table, at last, leaves its texts in force; the caption says so.
    m_directory.Write("cfg/ribbon.xml", kRibbon);
    m_directory.Write("lang/en/a.xlf", "<xliff version='2.0'>\n<file></xliff>");
    EXPECT_TRUE(m_frame->Rebuild({{L"cfg\\ribbon.xml", L"lang\\en\\a.xlf"}}));
    EXPECT_STREQ(Ribbon().GetCategory(0)->GetName(), L"Second");
    EXPECT_EQ(Title().Left(19), L"lang/en/a.xlf:2:7: ");
    write("Third");
    EXPECT_TRUE(m_frame->Rebuild({{L"lang\\en\\a.xlf"}}));
    EXPECT_STREQ(Ribbon().GetCategory(0)->GetName(), L"Third");
    EXPECT_EQ(Title(), m_options.directory.c_str());
    CMultiLanguageMgr::SetLanguage(L"");
}

SIZE_T WorkingSet() {
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof(counters);
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return counters.WorkingSetSize;
}

TEST_F(RebuiltBars, NothingIsLeftBehind) {
    const char* const asked = std::getenv("BARWRIGHT_REBUILDS");
    const int times = asked ? std::atoi(asked) : 60;
    const auto rebuild = [this](int count) {
        for (int i = 0; i < count; ++i) {
            ASSERT_TRUE(m_frame->RebuildAll());
            PumpPending();
        }
    };
    rebuild(20); // caches fill once
    const std::uint32_t nextId = CMenuIdMgr::s_AddBeginID;
    const SIZE_T before = WorkingSet();
    EXPECT_TRUE(LeavesNothingBehind([&] { rebuild(times); }));
    EXPECT_EQ(CMenuIdMgr::s_AddBeginID, nextId);
    const SIZE_T after = WorkingSet();
    RecordProperty("kilobytes_before", static_cast<int>(before / 1024));
    RecordProperty("kilobytes_after", static_cast<int>(after / 1024));
    EXPECT_GT(before, 0u);
    EXPECT_LT(after, before + (SIZE_T(1) << 20));
}

} // namespace
