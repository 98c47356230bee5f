// What the ribbon file says of skins, and what the viewer has.
#include "demo/viewer_skins.h"
#include "menu_id_mgr.h"
#include "tests/ui/demo_ribbon/demo_ribbon.h"
#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

namespace {

class DemoSkinCommands : public KeyboardTest {
protected:
    DemoSkinCommands() { LoadDemoRibbon(Bar()); }

    std::vector<std::wstring> ParametersOf(const std::wstring& wanted) {
        std::vector<std::wstring> parameters;
        for (const UINT id : CommandsOf(DumpCategories(Bar()))) {
            std::wstring command, parameter;
            if (CMenuIdMgr::Ins()->GetCmd(static_cast<int>(id), command) && command == wanted &&
                CMenuIdMgr::Ins()->GetCmdParam(static_cast<int>(id), parameter)) {
                parameters.push_back(parameter);
            }
        }
        return parameters;
    }
};

// Otherwise no button of the two shows that it is the one in force.
TEST_F(DemoSkinCommands, TheIconsOfEverySkinHaveAButtonThatShowsThemChosen) {
    std::vector<std::wstring> styles;
    for (const ViewerSkin& skin : kViewerSkins) {
        styles.emplace_back(skin.iconStyle);
        EXPECT_TRUE(IsIconStyleOfSkin(skin.iconStyle));
    }
    EXPECT_THAT(ParametersOf(L"icons"), ::testing::UnorderedElementsAreArray(styles));
    EXPECT_FALSE(IsIconStyleOfSkin(L""));
}

TEST_F(DemoSkinCommands, EverySkinHasAButton) {
    const std::vector<std::wstring> names = ParametersOf(L"skin");
    for (const ViewerSkin& skin : kViewerSkins) {
        EXPECT_THAT(names, ::testing::Contains(std::wstring(skin.name)));
    }
}

} // namespace
