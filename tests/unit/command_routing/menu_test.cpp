#include <gtest/gtest.h>

#include "afxwin.h"
#include "tests/support/ui_test.h"

namespace {

TEST(Menu, TheDestructorDestroysTheMenu) {
    HMENU handle = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        handle = menu.m_hMenu;
        EXPECT_TRUE(::IsMenu(handle));
    }
    EXPECT_FALSE(::IsMenu(handle));
}

TEST(Menu, ADetachedMenuOutlivesItsObject) {
    HMENU handle = nullptr;
    {
        CMenu menu;
        menu.CreateMenu();
        handle = menu.Detach();
        EXPECT_EQ(menu.m_hMenu, nullptr);
        EXPECT_EQ(CMenu::FromHandlePermanent(handle), nullptr);
    }
    EXPECT_TRUE(::IsMenu(handle));
    ::DestroyMenu(handle);
}

TEST(Menu, AnAppendedPopupBelongsToTheMenuOnceItIsDetached) {
    HMENU popupHandle = nullptr;
    {
        CMenu bar;
        bar.CreateMenu();
        {
            CMenu popup;
            popup.CreatePopupMenu();
            popup.AppendMenu(MF_STRING, 5, L"five");
            popupHandle = popup.m_hMenu;
            bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), L"popup");
        }
        EXPECT_TRUE(::IsMenu(popupHandle));
    }
    EXPECT_FALSE(::IsMenu(popupHandle));
}

TEST(Menu, ASubMenuIsATemporaryObjectThatOwnsNothing) {
    CMenu bar;
    bar.CreateMenu();
    CMenu popup;
    popup.CreatePopupMenu();
    const HMENU popupHandle = popup.Detach();
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popupHandle), L"popup");
    CMenu* found = bar.GetSubMenu(0);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->m_hMenu, popupHandle);
    EXPECT_EQ(CMenu::FromHandlePermanent(popupHandle), nullptr);
    EXPECT_EQ(bar.GetSubMenu(0), found);
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(popupHandle));
    EXPECT_EQ(bar.GetSubMenu(1), nullptr);
}

TEST(Menu, APermanentObjectIsFoundByItsHandle) {
    CMenu menu;
    menu.CreatePopupMenu();
    EXPECT_EQ(CMenu::FromHandle(menu.m_hMenu), &menu);
    EXPECT_EQ(CMenu::FromHandlePermanent(menu.m_hMenu), &menu);
    EXPECT_EQ(CMenu::FromHandle(nullptr), nullptr);
}

TEST(Menu, ItemTextsOfAnyLengthComeBackWhole) {
    CMenu menu;
    menu.CreatePopupMenu();
    const std::wstring longText(700, L'x');
    menu.AppendMenu(MF_STRING, 7, longText.c_str());
    CString text;
    EXPECT_EQ(menu.GetMenuString(7, text, MF_BYCOMMAND), 700);
    EXPECT_STREQ(text, longText.c_str());
    EXPECT_EQ(menu.GetMenuString(8, text, MF_BYCOMMAND), 0);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(Menu, APopupRunnerAnswersInsteadOfTheUser) {
    CountingPopupMenu answer(42);
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 42, L"answer");
    EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 10, 20, nullptr), 42);
    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.LastItemCount(), 1);
    EXPECT_EQ(answer.LastPoint().y, 20);
}

TEST(Menu, ANullObjectHasANullHandle) {
    const CMenu* none = nullptr;
    EXPECT_EQ(none->GetSafeHmenu(), nullptr);
}

} // namespace
