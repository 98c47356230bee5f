// Toolbars of files that nobody would write: what means something is built, and nothing else is touched.
#include "tests/ui/toolbar_builder/builder_fixture.h"

#include "library_context.h"

#include <filesystem>
#include <fstream>

namespace {

TEST_F(ToolBarBuilder, ABrokenFileLeavesTheBarsOfTheOneBeforeAndTakesNoIds) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'><i TYPE='button' KEYWORD='A'/></b></g>"));
    const std::list<CMFCToolBar*> before = creater.GetAllToolBar();
    const std::uint32_t windowId = CDynToolBarCreater::s_ToolbarIndex;
    for (const char* const broken :
         {"<g KEYWORD='H'><b PROMPT='2'><i TYPE='button' KEYWORD='B'/></b>", "<", "</bars>"}) {
        EXPECT_FALSE(Load(broken)) << broken;
        EXPECT_EQ(creater.GetAllToolBar(), before) << broken;
    }
    EXPECT_EQ(CDynToolBarCreater::s_ToolbarIndex, windowId);
    EXPECT_EQ(TakenIds(), 1);
}

TEST_F(ToolBarBuilder, ATitleOfManyThousandLettersIsTheBarsAndFindsIt) {
    const std::string title(60000, 't');
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='" + title + "'/></g>"));
    EXPECT_EQ(creater.GetToolBar(L"G", std::wstring(60000, L'T').c_str()), &First());
}

TEST_F(ToolBarBuilder, KeywordsAndCaptionsOfAMegabyteAreCommandsLikeOthers) {
    const std::string text(1 << 20, 'k');
    ASSERT_TRUE(Load("<g KEYWORD='" + text + "'><b><i TYPE='button' KEYWORD='" + text + "' PROMPT='" + text +
                     "' TOOLTIP='" + text + "'/></b></g>"));
    int id = 0;
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetMenuId(std::wstring(1 << 20, L'k'), id));
    EXPECT_EQ(First().GetButton(0)->m_strText.GetLength(), 1 << 20);
    creater.DockPane(&frame);
    frame.RecalcLayout();
    First().UpdateWindow();
}

TEST_F(ToolBarBuilder, FilesThatAreNoIconsGiveNoImage) {
    const std::filesystem::path file(GetIconPathStr(L"pic\\bad.ico", 16).GetString());
    std::filesystem::create_directories(file.parent_path());
    int number = 0;
    for (const std::string& bytes : {std::string(), std::string("text"), std::string("\0\0\1\0\1\0", 6),
                                     std::string("\0\0\1\0\xFF\xFF", 6) + std::string(2000, '\xFF')}) {
        std::ofstream(file, std::ios::binary | std::ios::trunc)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='" + std::to_string(number) +
                         "'><i TYPE='button' KEYWORD='A' PICPATH='pic\\bad.ico'/></b></g>"));
        EXPECT_EQ(creater.GetAllToolBar().back()->GetButton(0)->GetImage(), -1) << number;
        ++number;
    }
}

TEST_F(ToolBarBuilder, ThousandsOfButtonsAreBuiltInTheirOrder) {
    std::string buttons;
    for (int i = 0; i < 3000; ++i) {
        buttons +=
            "<i TYPE='" + std::string(i % 10 == 9 ? "separate" : "button") + "' KEYWORD='K" + std::to_string(i) + "'/>";
    }
    ASSERT_TRUE(Load("<g KEYWORD='G'><b>" + buttons + "</b></g>"));
    ASSERT_EQ(First().GetCount(), 3000);
    EXPECT_EQ(TakenIds(), 2700);
    EXPECT_EQ(First().GetButton(2998)->m_nID, m_firstId + 2699u);
    EXPECT_TRUE(First().GetButton(2999)->m_nStyle & TBBS_SEPARATOR);
}

TEST_F(ToolBarBuilder, HundredsOfBarsAreFoundEachInItsGroup) {
    std::string groups;
    for (int i = 0; i < 200; ++i) {
        groups += "<g KEYWORD='G" + std::to_string(i % 20) + "'><b PROMPT='B" + std::to_string(i) + "'/></g>";
    }
    ASSERT_TRUE(Load(groups));
    EXPECT_EQ(creater.GetAllToolBar().size(), 200u);
    for (int i = 0; i < 200; ++i) {
        const std::wstring group = L"G" + std::to_wstring(i % 20);
        const std::wstring title = L"b" + std::to_wstring(i);
        EXPECT_NE(creater.GetToolBar(group, title.c_str()), nullptr) << i;
        EXPECT_EQ(creater.GetToolBar(L"G" + std::to_wstring((i + 1) % 20), title.c_str()), nullptr) << i;
    }
}

} // namespace
