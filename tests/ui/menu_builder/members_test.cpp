#include "menu_fixture.h"

#include <stdexcept>

namespace {

TEST_F(MenuBuilder, AddMenuOfANullMenuDoesNothing) {
    m_creater.reset();
    m_creater.AddMenu(Node("<i KEYWORD='A'/>"), nullptr);
    EXPECT_EQ(TakenIds(), 0);
}

TEST_F(MenuBuilder, AddMenuAppendsALeafOrTheChildrenToTheGivenMenu) {
    m_creater.reset();
    CMenu other;
    ASSERT_TRUE(other.CreatePopupMenu());
    m_creater.AddMenu(Node("<i KEYWORD='A' MENUNAME=''/>"), &other);
    m_creater.AddMenu(Node("<g KEYWORD='G'><i KEYWORD='B' MENUNAME=''/><p KEYWORD='P' MENUNAME=''>"
                           "<i KEYWORD='C' MENUNAME=''/></p></g>"),
                      &other);
    EXPECT_EQ(Outline(other.m_hMenu), L"A#0 B#1 P{C#2}");
    EXPECT_EQ(TakenIds(), 4);
    EXPECT_EQ(Outline(), L"");
}

TEST_F(MenuBuilder, InsertAMenuAppendsOneElementAndLeavesTheCounter) {
    m_creater.reset();
    m_creater.InsertAMenu(Node("<i KEYWORD='A' MENUNAME='' HOTKEY='Ctrl+S' CMD='c'/>"), &m_creater);
    m_creater.InsertAMenu(Node("<i MENUNAME='Separator'/>"), &m_creater);
    m_creater.InsertAMenu(Node("<i/>"), &m_creater);
    EXPECT_EQ(Outline(), L"A#0 -");
    EXPECT_EQ(m_creater.m_vecCmd, (std::vector<std::wstring>{L"c", L""}));
    EXPECT_EQ(m_creater.m_nAccelCount, 1);
    EXPECT_EQ(TakenIds(), 0);
}

TEST_F(MenuBuilder, AddMenuThatThrowsKeepsTheShortcutsBefore) {
    m_creater.reset();
    EXPECT_THROW(
        m_creater.AddMenu(Node("<g><i KEYWORD='A' HOTKEY='Ctrl+A'/><i KEYWORD='B' HOTKEY='+'/></g>"), &m_creater),
        std::out_of_range);
    EXPECT_EQ(m_creater.m_nAccelCount, 1);
}

TEST_F(MenuBuilder, GetMenuInfoTellsWhetherThereAreAttributes) {
    CDynMenuCreater::_menuInfo info;
    EXPECT_FALSE(m_creater.GetMenuInfo(Node("<i/>"), info));
    EXPECT_TRUE(m_creater.GetMenuInfo(Node("<i CMD='c'/>"), info));
    EXPECT_EQ(info.strCmd, L"c");
}

TEST_F(MenuBuilder, CreateAccelLeavesTheCommand) {
    ACCEL accel{0xFF, 0xFFFF, 77};
    EXPECT_TRUE(OpenMenuCreater::CreateAccel(L"Ctrl+S", accel));
    EXPECT_EQ(accel.fVirt, 0x09);
    EXPECT_EQ(accel.key, 0x53);
    EXPECT_EQ(accel.cmd, 77);
    EXPECT_FALSE(OpenMenuCreater::CreateAccel(L"Ctrl+Shift", accel));
    EXPECT_EQ(accel.fVirt, 0x0D);
    EXPECT_EQ(accel.key, 0);
    EXPECT_TRUE(OpenMenuCreater::CreateAccel(L"S", accel));
    EXPECT_EQ(accel.fVirt, 0);
    EXPECT_EQ(accel.key, 0x53);
    EXPECT_TRUE(OpenMenuCreater::CreateAccel(L"Alt+F4", accel));
    EXPECT_EQ(accel.fVirt, 0x11);
    EXPECT_EQ(accel.key, 0x46);
}

TEST_F(MenuBuilder, ShiftStateOfACharacterIsDropped) {
    ACCEL accel{};
    EXPECT_TRUE(OpenMenuCreater::CreateAccel(L"Ctrl+A", accel));
    const WORD upper = accel.key;
    EXPECT_TRUE(OpenMenuCreater::CreateAccel(L"Ctrl+a", accel));
    EXPECT_EQ(accel.key, upper);
}

TEST_F(MenuBuilder, CharacterThatNoKeyTypesHasTheLowByteOfNoKey) {
    ACCEL accel{};
    EXPECT_TRUE(OpenMenuCreater::CreateAccel(L"Ctrl+键", accel));
    EXPECT_EQ(accel.key, 0xFF);
}

TEST_F(MenuBuilder, SetAccelFlagSetsAndClearsOneBit) {
    ACCEL accel{FVIRTKEY, 0, 0};
    OpenMenuCreater::SetAccelFlag(&accel, FCONTROL, 5);
    EXPECT_EQ(accel.fVirt, FVIRTKEY | FCONTROL);
    OpenMenuCreater::SetAccelFlag(&accel, FVIRTKEY, 0);
    EXPECT_EQ(accel.fVirt, FCONTROL);
    OpenMenuCreater::SetAccelFlag(nullptr, FCONTROL, 1);
}

} // namespace
