// What is built anew, and what stays.
#include "preview_frame.h"

#include "configuration_watch.h"
#include "frame_dump.h"
#include "library_context.h"
#include "menu_id_mgr.h"
#include "ribbon_bar_ex.h"
#include "ribbon_check_combo.h"
#include "ribbon_multi_combo.h"
#include "tests/support/gui_objects.h"
#include "tests/support/icon_writer.h"
#include "tests/support/message_pump.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/ui_test.h"
#include "toolbar_combos.h"
#include "window_combos.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <vector>

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

TEST_F(RebuiltBars, TwoCombosOfOneKindKeepWhatEachHasAlsoWhereTheyHaveOneCommand) {
    const std::string combos =
        "<ribbon><row KEYWORD='Main'><category KEYWORD='Map' NAME=''><panel KEYWORD='P' NAME=''>"
        "<i KEYWORD='Left' TYPE='qkRibbonMultiComb'/><i KEYWORD='Right' TYPE='qkRibbonMultiComb'/>"
        "<i KEYWORD='Same' TYPE='qkRibbonCheckComb'/><i KEYWORD='Same' TYPE='qkRibbonCheckComb'/>"
        "<i KEYWORD='Lit' TYPE='qkRibbonMultiComb2'/></panel></category></row></ribbon>";
    m_directory.Write("cfg/ribbon.xml", combos);
    ASSERT_TRUE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    const auto fill = [](CMFCRibbonComboBox& combo, const std::vector<const wchar_t*>& items, int chosen) {
        for (const wchar_t* const item : items) {
            combo.AddItem(item, 7);
        }
        combo.SelectItem(chosen);
    };
    const auto ofOneCommand = [this](const wchar_t* keyword) {
        int id = 0;
        CMenuIdMgr::Ins()->GetMenuId(keyword, id);
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        Ribbon().GetElementsByID(static_cast<UINT>(id), elements);
        std::vector<CMFCRibbonCheckComb*> combos;
        for (int i = 0; i < static_cast<int>(elements.GetSize()); ++i) {
            combos.push_back(DYNAMIC_DOWNCAST(CMFCRibbonCheckComb, elements[i]));
        }
        return combos;
    };
    fill(*Find<CMFCRibbonMultiCombo>(L"Left"), {L"a", L"b"}, 1);
    fill(*Find<CMFCRibbonMultiCombo>(L"Right"), {L"c", L"d", L"e"}, 2);
    fill(*Find<CMFCRibbonVesMultiCombo>(L"Lit"), {L"f"}, 0);
    Find<CMFCRibbonVesMultiCombo>(L"Lit")->SetItemLight(0, true, false);
    CMFCRibbonMultiCombo::rowInfo info = {};
    info.light = true;
    info.clr = RGB(1, 2, 3);
    Find<CMFCRibbonMultiCombo>(L"Right")->SetItemInfo(1, info);
    ASSERT_EQ(ofOneCommand(L"Same").size(), 2u);
    fill(*ofOneCommand(L"Same")[0], {L"first"}, 0);
    fill(*ofOneCommand(L"Same")[1], {L"second", L"third"}, 1);
    ofOneCommand(L"Same")[1]->SetItemCheck(1, true);
    const auto ofSecond = ofOneCommand(L"Same")[1]->GetCount();

    ASSERT_TRUE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    const auto* const left = Find<CMFCRibbonMultiCombo>(L"Left");
    const auto* const right = Find<CMFCRibbonMultiCombo>(L"Right");
    EXPECT_EQ(left->GetCount(), 2);
    EXPECT_EQ(left->GetCurSel(), 1);
    EXPECT_EQ(right->GetCount(), 3);
    EXPECT_EQ(right->GetCurSel(), 2);
    EXPECT_STREQ(right->GetItem(1), L"d");
    CMFCRibbonMultiCombo::rowInfo again = {};
    EXPECT_TRUE(right->GetItemInfo(1, again));
    EXPECT_EQ(again.light, info.light);
    EXPECT_EQ(again.clr, info.clr);
    bool isLit = false;
    EXPECT_TRUE(Find<CMFCRibbonVesMultiCombo>(L"Lit")->GetItemLight(0, isLit) && isLit);
    ASSERT_EQ(ofOneCommand(L"Same").size(), 2u);
    EXPECT_STREQ(ofOneCommand(L"Same")[0]->GetItem(0), L"first");
    EXPECT_EQ(ofOneCommand(L"Same")[1]->GetCount(), ofSecond);
    EXPECT_EQ(ofOneCommand(L"Same")[1]->GetCurSel(), 1);
    bool isChecked = false;
    EXPECT_TRUE(ofOneCommand(L"Same")[1]->GetItemCheck(1, isChecked) && isChecked);
}

TEST_F(RebuiltBars, ThePathThatIsShownStaysAndTakesTheCategoriesThatItsFileHasNow) {
    m_directory.Write("cfg/ribbon2.xml", "<ribbon><row KEYWORD='Main'><category KEYWORD='Other' NAME=''><panel "
                                         "KEYWORD='O' NAME=''><i KEYWORD='Only' NAME='' TYPE='BUTTON'/></panel>"
                                         "</category></row></ribbon>");
    m_options.ribbonFiles.emplace_back(L"cfg\\ribbon2.xml");
    ASSERT_TRUE(m_frame->Rebuild({{L"cfg\\ribbon2.xml"}}));
    auto& ribbon = dynamic_cast<CMFCRibbonBarEx&>(Ribbon());
    ASSERT_TRUE(ribbon.ShowPath(L"ribbon2"));
    ASSERT_TRUE(ribbon.ShowPath(L"ribbon"));
    ribbon.SetActiveCategory(ribbon.GetCategory(1)); // Tools
    const auto shown = [&ribbon] {
        std::wstring names;
        for (int i = 0; i < ribbon.GetCategoryCount(); ++i) {
            const CMFCRibbonCategory& category = *ribbon.GetCategory(i);
            names +=
                category.IsVisible() ? std::wstring(category.GetName()) + (category.IsActive() ? L"* " : L" ") : L"";
        }
        return names;
    };
    ASSERT_EQ(shown(), L"Map Tools* ");
    std::string text = kRibbon;
    text.insert(text.find("<category"), "<category KEYWORD='New' NAME=''><panel KEYWORD='N' NAME=''><i KEYWORD='Newer' "
                                        "NAME='' TYPE='BUTTON'/></panel></category>");
    m_directory.Write("cfg/ribbon.xml", text);
    ASSERT_TRUE(m_frame->Rebuild({{L"cfg\\ribbon.xml"}}));
    EXPECT_EQ(ribbon.Path(), L"ribbon");
    EXPECT_EQ(shown(), L"New Map Tools* ");
    EXPECT_TRUE(ribbon.ShowPath(L"ribbon2"));
    EXPECT_EQ(shown(), L"Other* ");
    EXPECT_TRUE(ribbon.ShowPath(L"ribbon"));
    EXPECT_EQ(shown(), L"New Map Tools* ");
}

/// With two files of toolbars, of which the first has two.
class RebuiltToolBars : public RebuiltBars {
protected:
    RebuiltToolBars() {
        m_directory.Write("cfg/toolbar.xml", kTwo);
        m_directory.Write("cfg/toolbar2.xml",
                          "<bars><g KEYWORD='H'><b PROMPT='Other'><i TYPE='button' KEYWORD='Far' PROMPT='Far' "
                          "PICPATH='pic\\a.ico'/></b></g></bars>");
        m_options.toolBarFiles.emplace_back(L"cfg\\toolbar2.xml");
        EXPECT_TRUE(m_frame->RebuildAll());
        PumpPending();
    }
    static constexpr const char* kTwo =
        "<bars><g KEYWORD='G'><b PROMPT='One'><i TYPE='button' KEYWORD='Open' PROMPT='Open' PICPATH='pic\\a.ico'/>"
        "<i TYPE='qkLayerCheckCtrl' KEYWORD='Checks'/><i TYPE='qkLayerMultiCtrl' KEYWORD='Colours'/>"
        "<i TYPE='qkLayerMultiCtrl2' KEYWORD='Lights'/></b><b PROMPT='Two'><i TYPE='button' KEYWORD='Save' "
        "PROMPT='Save' PICPATH='pic\\a.ico'/></b></g></bars>";

    CMFCToolBar* Bar(const wchar_t* title) {
        for (const auto& [group, bar] : m_frame->Sources().toolBars) {
            CString text;
            bar->GetWindowText(text);
            if (text == title) {
                return const_cast<CMFCToolBar*>(bar);
            }
        }
        return nullptr;
    }
    bool Rebuild(const char* text = kTwo) {
        m_directory.Write("cfg/toolbar.xml", text);
        const bool isRebuilt = m_frame->Rebuild({{L"cfg\\toolbar.xml"}});
        PumpPending();
        return isRebuilt;
    }
    static CRect PlaceOf(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }
    template <class Combo>
    Combo* ComboOf(const wchar_t* keyword) {
        int id = 0;
        CMenuIdMgr::Ins()->GetMenuId(keyword, id);
        return DYNAMIC_DOWNCAST(Combo, CMFCToolBarComboBoxButton::GetByCmd(static_cast<UINT>(id)));
    }
};

TEST_F(RebuiltToolBars, OnlyThoseOfTheFileThatHasChangedAreBuiltAnew) {
    const CMFCToolBar* const other = Bar(L"Other");
    const HWND window = Bar(L"One")->GetSafeHwnd();
    ASSERT_TRUE(Rebuild());
    EXPECT_EQ(Bar(L"Other"), other);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(m_frame->Sources().toolBars.size(), 3u);
}

TEST_F(RebuiltToolBars, EachStaysDockedWhereTheUserPutIt) {
    m_frame->DockPane(Bar(L"Two"), AFX_IDW_DOCKBAR_LEFT);
    m_frame->DockPane(Bar(L"One"), AFX_IDW_DOCKBAR_BOTTOM);
    PumpPending();
    const CRect one = PlaceOf(*Bar(L"One")), two = PlaceOf(*Bar(L"Two")), other = PlaceOf(*Bar(L"Other"));
    ASSERT_NE(one.top, other.top);
    ASSERT_TRUE(Rebuild());
    EXPECT_EQ(PlaceOf(*Bar(L"One")), one);
    EXPECT_EQ(PlaceOf(*Bar(L"Two")), two);
    EXPECT_EQ(PlaceOf(*Bar(L"Other")), other);
}

TEST_F(RebuiltToolBars, AFloatingOneStaysWhereItFloatsAndAHiddenOneHidden) {
    Bar(L"One")->FloatPane(CRect(300, 200, 600, 260));
    m_frame->ShowPane(Bar(L"Two"), FALSE, FALSE, FALSE);
    PumpPending();
    ASSERT_TRUE(Bar(L"One")->IsFloating());
    const CRect place = PlaceOf(*Bar(L"One")->GetParentMiniFrame());
    ASSERT_TRUE(Rebuild());
    ASSERT_TRUE(Bar(L"One")->IsFloating());
    EXPECT_EQ(PlaceOf(*Bar(L"One")->GetParentMiniFrame()).TopLeft(), place.TopLeft());
    EXPECT_FALSE(Bar(L"Two")->IsVisible());
    EXPECT_TRUE(Bar(L"One")->IsVisible());
}

TEST_F(RebuiltToolBars, CombosKeepTheirItemsMarksAndSelections) {
    auto* const checks = ComboOf<CMFCCheckCombo>(L"Checks");
    auto* const colours = ComboOf<CMFCMultiCombo>(L"Colours");
    auto* const lights = ComboOf<CMFCMultiCombo2>(L"Lights");
    for (CMFCToolBarComboBoxButton* const combo :
         std::initializer_list<CMFCToolBarComboBoxButton*>{checks, colours, lights}) {
        ASSERT_NE(combo, nullptr);
        combo->AddItem(L"Roads", 0);
        combo->AddItem(L"Rivers", 0);
        combo->SelectItem(1, FALSE);
    }
    checks->SetCheck(1, 1, FALSE);
    ASSERT_NE(checks->GetComboBox(), nullptr);
    ASSERT_NE(colours->GetComboBox(), nullptr);
    colours->SetLightOn(0, true, false);
    colours->SetItemLock(1, true, false);
    colours->SetItemColor(1, RGB(10, 20, 30), false);
    lights->SetLightOn(1, true, false);
    ASSERT_TRUE(Rebuild());
    auto* const later = ComboOf<CMFCCheckCombo>(L"Checks");
    ASSERT_NE(later, nullptr);
    EXPECT_EQ(later->GetCount(), 2);
    EXPECT_EQ(later->GetCurSel(), 1);
    EXPECT_TRUE(later->GetCheck(1));
    EXPECT_FALSE(later->GetCheck(0));
    const auto* const laterColours = ComboOf<CMFCMultiCombo>(L"Colours");
    ASSERT_NE(laterColours, nullptr);
    const auto* const window = DYNAMIC_DOWNCAST(CMultiCombo, laterColours->GetComboBox());
    ASSERT_NE(window, nullptr);
    EXPECT_STREQ(laterColours->GetItem(0), L"Roads");
    EXPECT_TRUE(laterColours->GetLightOn(0));
    EXPECT_FALSE(laterColours->GetLightOn(1));
    EXPECT_TRUE(laterColours->GetItemLock(1));
    COLORREF color = 0;
    EXPECT_EQ(window->GetItemColor(1, color), 1);
    EXPECT_EQ(color, RGB(10, 20, 30));
    EXPECT_TRUE(ComboOf<CMFCMultiCombo2>(L"Lights")->GetLightOn(1));
    EXPECT_FALSE(ComboOf<CMFCMultiCombo2>(L"Lights")->GetLightOn(0));
}

TEST_F(RebuiltToolBars, OneThatIsNewIsDockedAndOneThatHasGoneIsRemoved) {
    const HWND window = Bar(L"Two")->GetSafeHwnd();
    ASSERT_TRUE(Rebuild("<bars><g KEYWORD='G'><b PROMPT='One'><i TYPE='button' KEYWORD='Open' PROMPT='Open'/></b>"
                        "<b PROMPT='Three'><i TYPE='button' KEYWORD='Third' PROMPT='Third'/></b></g></bars>"));
    EXPECT_EQ(Bar(L"Two"), nullptr);
    EXPECT_FALSE(::IsWindow(window));
    ASSERT_NE(Bar(L"Three"), nullptr);
    EXPECT_TRUE(Bar(L"Three")->IsDocked());
    EXPECT_NE(Bar(L"Three")->GetDlgCtrlID(), Bar(L"One")->GetDlgCtrlID());
    EXPECT_NE(Bar(L"Three")->GetDlgCtrlID(), Bar(L"Other")->GetDlgCtrlID());
}

TEST_F(RebuiltToolBars, AFileThatHasGoneTakesItsToolbarsAlong) {
    m_options.toolBarFiles.pop_back();
    ASSERT_TRUE(m_frame->Rebuild({{L"cfg\\toolbar2.xml"}}));
    EXPECT_EQ(Bar(L"Other"), nullptr);
    EXPECT_NE(Bar(L"One"), nullptr);
}

TEST_F(RebuiltToolBars, IconsThatNobodyNeedsAnyMoreDoNotPileUp) {
    // Where the library looks: it asks for the installation directory once in the process.
    const std::filesystem::path icon(GetIconPathStr(L"pic\\a.ico", 16).GetString());
    std::filesystem::create_directories(icon.parent_path());
    const std::string bytes = MakeIconFile(16, {0xFF0000, 0x00FF00});
    std::ofstream(icon, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(m_frame->RebuildAll());
    ASSERT_NE(CMFCToolBar::GetUserImages(), nullptr);
    const int before = CMFCToolBar::GetUserImages()->GetCount();
    for (int i = 0; i < 40; ++i) {
        ASSERT_TRUE(Rebuild());
        EXPECT_LE(CMFCToolBar::GetUserImages()->GetCount(), 4 * before);
    }
    std::filesystem::remove_all(icon.parent_path().parent_path().parent_path());
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
