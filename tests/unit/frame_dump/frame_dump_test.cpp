#include "frame_dump.h"

#include "add_ribbon_bar.h"
#include "menu_id_mgr.h"
#include "skin_visual_managers.h"
#include "tests/support/ui_test.h"
#include "toolbar_combos.h"
#include <fx/scoped_change.h>

#include <gtest/gtest.h>

namespace {

using nlohmann::ordered_json;

class FrameDump : public testing::Test {
protected:
    FrameDump() { CMenuIdMgr::Destroy(); }
    ~FrameDump() override { CMenuIdMgr::Destroy(); }

    static std::vector<int> RegisteredIds() {
        std::vector<int> ids;
        const ordered_json dump = DumpFrame({});
        for (const ordered_json& entry : dump["registry"]) {
            ids.push_back(entry["id"]);
        }
        return ids;
    }
};

TEST_F(FrameDump, WithoutBarsEveryListIsEmpty) {
    const ordered_json expected = {
        {"nextCommandId", CMenuIdMgr::s_AddBeginID},
        {"registry", ordered_json::array()},
        {"ribbon",
         {{"categories", ordered_json::array()},
          {"quickAccess", ordered_json::array()},
          {"commands", ordered_json::array()}}},
        {"menu", ordered_json::array()},
        {"accelerators", ordered_json::array()},
        {"toolbars", ordered_json::array()},
        {"skin",
         {{"manager", "CMFCVisualManager"}, {"colours", ordered_json::object()}, {"images", ordered_json::array()}}},
        {"statusExtras", ordered_json::array()},
        {"status", {{"app", "application"}, {"elements", ordered_json::array()}, {"extended", ordered_json::array()}}}};
    EXPECT_EQ(DumpFrame({.application = L"application"}).dump(), expected.dump());
}

TEST_F(FrameDump, ASkinShowsItsManagerEveryGetterAndItsPictures) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CQKVisualManagerOffice2007Silver));
    const ordered_json skin = DumpFrame({})["skin"];
    CMFCVisualManager::SetDefaultManager(nullptr);
    EXPECT_EQ(skin["manager"], "CQKVisualManagerOffice2007Silver");
    EXPECT_EQ(skin["colours"].size(), 38u);
    EXPECT_EQ(skin["colours"]["GetPanelTextColor"].dump(), "[34,41,69]");
    EXPECT_EQ(skin["images"].size(), 16u);
    EXPECT_EQ(skin["images"][7], "pic\\skin\\silver\\paneldown16.png");
}

TEST_F(FrameDump, CommandsOfTheHostAreListedUnderAnyIdOfAMessage) {
    for (const int id : {0xFFFF, 41000, 500, 0}) {
        CMenuIdMgr::Ins()->Add(L"K" + std::to_wstring(id), id, L"name", L"cmd", L"tip", L"param", L"help");
    }
    EXPECT_EQ(RegisteredIds(), (std::vector<int>{0, 500, 41000, 0xFFFF}));
    const ordered_json expected = {{"id", 500},    {"keyword", "K500"}, {"name", "name"}, {"tooltip", "tip"},
                                   {"cmd", "cmd"}, {"param", "param"},  {"help", "help"}};
    EXPECT_EQ(DumpFrame({})["registry"][1].dump(), expected.dump());
}

TEST_F(FrameDump, CounterMayHaveGoneBeyondTheIdsOfMessages) {
    const fx::ScopedChange counter(CMenuIdMgr::s_AddBeginID, 70001u);
    for (const int id : {70001, 70000, 65536}) {
        CMenuIdMgr::Ins()->Add(L"K" + std::to_wstring(id), id, L"", L"", L"", L"", L"");
    }
    EXPECT_EQ(RegisteredIds(), (std::vector<int>{65536, 70000}));
    EXPECT_EQ(DumpFrame({})["nextCommandId"], 70001);
}

TEST_F(FrameDump, StatusRecordsShowEveryFieldUnderItsOwnName) {
    const CAddRibbonBar::_RibbonInfo record{true, L"name", L"type", L"tip",  L"key", L"pic", L"dis",
                                            16,   L"cmd",  L"par",  L"help", false,  true,   {L"a", L"", L"\x5730"},
                                            50};
    const fx::ScopedChange extras(
        CAddRibbonBar::m_smStatusExBtns,
        decltype(CAddRibbonBar::m_smStatusExBtns){{L"cfg\\b.xml", {L"StatusEx_btns", {}}},
                                                  {L"cfg\\a.xml", {L"StatusEx_btns", {record, {}}}}});
    const ordered_json got = DumpFrame({})["statusExtras"];
    ASSERT_EQ(got.size(), 2u);
    EXPECT_EQ(got[0]["path"], "cfg\\a.xml");
    EXPECT_EQ(got[0]["row"], "StatusEx_btns");
    ASSERT_EQ(got[0]["records"].size(), 2u);
    const ordered_json expected = {{"groupBefore", true}, {"name", "name"},
                                   {"type", "type"},      {"tooltip", "tip"},
                                   {"keyword", "key"},    {"picPath", "pic"},
                                   {"picDisPath", "dis"}, {"size", 16},
                                   {"cmd", "cmd"},        {"param", "par"},
                                   {"help", "help"},      {"acceptF1", false},
                                   {"cateTab", true},     {"valueGroup", {"a", "", "\xE5\x9C\xB0"}},
                                   {"width", 50}};
    EXPECT_EQ(got[0]["records"][0].dump(), expected.dump());
    EXPECT_EQ(got[1]["path"], "cfg\\b.xml");
    EXPECT_TRUE(got[1]["records"].empty());
}

TEST_F(FrameDump, MenuIsListedWithPopupsAndSeparators) {
    CMenu menu;
    CMenu popup;
    ASSERT_TRUE(menu.CreateMenu() && popup.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 41000, L"&Open");
    menu.AppendMenu(MF_SEPARATOR);
    popup.AppendMenu(MF_STRING, 41001, L"保存");
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), L"More");
    const ordered_json expected =
        ordered_json::array({{{"id", 41000}, {"text", "&Open"}},
                             {{"separator", true}},
                             {{"text", "More"}, {"popup", ordered_json::array({{{"id", 41001}, {"text", "保存"}}})}}});
    EXPECT_EQ(DumpFrame({.menus = {&menu}})["menu"].dump(), expected.dump());
}

TEST_F(FrameDump, MenusNestAsDeepAsAFileMay) {
    constexpr int kDepth = 500;
    CMenu menu;
    ASSERT_TRUE(menu.CreateMenu());
    HMENU innermost = menu.m_hMenu;
    for (int depth = 0; depth < kDepth; ++depth) {
        const HMENU popup = ::CreatePopupMenu();
        ::AppendMenuW(innermost, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), L"P");
        innermost = popup;
    }
    const ordered_json dump = DumpFrame({.menus = {&menu}});
    const ordered_json* items = &dump["menu"];
    for (int depth = 0; depth < kDepth; ++depth) {
        items = &(*items)[0]["popup"];
    }
    EXPECT_TRUE(items->empty());
    EXPECT_FALSE(dump.dump().empty());
}

TEST_F(FrameDump, AcceleratorsAreListedInTheOrderOfTheTable) {
    ACCEL entries[] = {{FVIRTKEY | FCONTROL, 'S', 41000}, {0, 'q', 41001}};
    const HACCEL table = ::CreateAcceleratorTableW(entries, 2);
    const ordered_json expected = ordered_json::array(
        {{{"virt", 9}, {"key", 0x53}, {"cmd", 41000}}, {{"virt", 0}, {"key", 0x71}, {"cmd", 41001}}});
    EXPECT_EQ(DumpFrame({.accelerators = table})["accelerators"].dump(), expected.dump());
    ::DestroyAcceleratorTable(table);
}

TEST_F(FrameDump, ToolbarsAreListedWithGroupTitleIdAndButtons) {
    TestWindow parent;
    CMFCToolBar bar;
    ASSERT_TRUE(bar.Create(&parent, WS_CHILD | CBRS_TOP, 45007));
    bar.SetWindowText(L"Drawing");
    bar.InsertButton(CMFCToolBarButton(41000, 2, L"Line", TRUE));
    bar.InsertSeparator();
    bar.InsertButton(CMFCToolBarButton(41001, -1, L""));
    const ordered_json expected = {{{"group", "edit"},
                                    {"title", "Drawing"},
                                    {"controlId", 45007},
                                    {"visible", false},
                                    {"buttons",
                                     {{{"class", "CMFCToolBarButton"}, {"id", 41000}, {"text", "Line"}, {"image", 2}},
                                      {{"separator", true}},
                                      {{"class", "CMFCToolBarButton"}, {"id", 41001}, {"text", ""}, {"image", -1}}}}}};
    EXPECT_EQ(DumpFrame({.toolBars = {{L"edit", &bar}}})["toolbars"].dump(), expected.dump());
    bar.DestroyWindow();
}

TEST_F(FrameDump, TheStatusBarsElementsStandInTheirAreas) {
    CMFCRibbonStatusBar bar;
    bar.AddElement(new CMFCRibbonButton(7, L"main"), L"");
    bar.AddExtendedElement(new CMFCRibbonButton(8, L"extended"), L"", FALSE);
    const ordered_json status = DumpFrame({.statusBar = &bar, .application = L"file"})["status"];
    EXPECT_EQ(status["app"], "file");
    ASSERT_EQ(status["elements"].size(), 1u);
    EXPECT_EQ(status["elements"][0]["id"], 7);
    EXPECT_EQ(status["elements"][0]["visible"], true);
    ASSERT_EQ(status["extended"].size(), 1u);
    EXPECT_EQ(status["extended"][0]["text"], "extended");
    EXPECT_EQ(status["extended"][0]["visible"], false);
}

TEST_F(FrameDump, CombosOfToolbarsListTheirItemsAsThoseOfTheRibbonDo) {
    TestWindow parent;
    CMFCToolBar bar;
    ASSERT_TRUE(bar.Create(&parent, WS_CHILD | CBRS_TOP, 45008));
    bar.InsertButton(CMFCCheckCombo(41000, -1));
    bar.InsertButton(CMFCMultiCombo(41001, -1));
    bar.InsertButton(CMFCMultiCombo2(41002, -1));
    for (int i = 0; i < 3; ++i) {
        auto* const combo = DYNAMIC_DOWNCAST(CMFCToolBarComboBoxButton, bar.GetButton(i));
        combo->AddItem(L"One");
        combo->AddItem(L"Two");
        combo->SelectItem(1, FALSE);
    }
    DYNAMIC_DOWNCAST(CMFCCheckCombo, bar.GetButton(0))->SetCheck(1, 1, 0);
    DYNAMIC_DOWNCAST(CMFCMultiCombo, bar.GetButton(1))->SetItemColor(0, RGB(1, 2, 3), false);
    DYNAMIC_DOWNCAST(CMFCMultiCombo, bar.GetButton(1))->SetLightOn(1, true, false);
    DYNAMIC_DOWNCAST(CMFCMultiCombo2, bar.GetButton(2))->SetLightOn(0, true, false);
    const ordered_json buttons = DumpFrame({.toolBars = {{L"layers", &bar}}})["toolbars"][0]["buttons"];
    const auto item = [](const char* text, const ordered_json& state) {
        return ordered_json{{"text", text}, {"state", state}};
    };
    EXPECT_EQ(buttons[0]["items"].dump(),
              ordered_json::array({item("One", {{"check", false}}), item("Two", {{"check", true}})}).dump());
    EXPECT_EQ(buttons[1]["items"].dump(), ordered_json::array({item("One", {{"clr", RGB(1, 2, 3)}, {"light", false}}),
                                                               item("Two", {{"light", true}})})
                                              .dump());
    EXPECT_EQ(buttons[2]["items"].dump(),
              ordered_json::array({item("One", {{"light", true}}), item("Two", {{"light", false}})}).dump());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(buttons[static_cast<std::size_t>(i)]["selected"], 1);
    }
    bar.DestroyWindow();
}

} // namespace
