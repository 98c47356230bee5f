// A program whose string table has texts of its own under two of the framework's ids.
#include "tests/ui/ribbon_bar/ribbon_frame.h"

#include <set>
#include <string>

#include "afxRibbonLabel.h"
#include "afxribbonpanelmenu.h"

namespace {

class HostTextTest : public RibbonBarTest {
protected:
    std::set<std::wstring> MenuTexts() {
        CRect rect = Bar().GetQuickAccessToolbarLocation();
        Bar().ClientToScreen(rect);
        EXPECT_TRUE(Bar().OnShowRibbonQATMenu(&Bar(), rect.left, rect.bottom, nullptr));
        CMFCRibbonPanelMenu* menu = CMFCRibbonPanelMenu::GetDeepest();
        std::set<std::wstring> texts;
        if (menu != nullptr) {
            CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
            menu->GetRibbonMenuBar().GetElements(elements);
            for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
                texts.insert(static_cast<LPCTSTR>(elements[index]->GetShownText()));
            }
        }
        CMFCRibbonPanelMenu::DismissAll();
        PumpPending();
        return texts;
    }
};

TEST_F(HostTextTest, TheProgramsTextComesBeforeTheFrameworks) {
    SetQuickAccessDefault({commands::cut});
    EXPECT_TRUE(MenuTexts().contains(L"What stands here"));
    EXPECT_FALSE(MenuTexts().contains(L"Customize Quick Access Toolbar"));
}

TEST_F(HostTextTest, TextsThatTheProgramDoesNotHaveAreTheFrameworks) {
    SetQuickAccessDefault({commands::cut});
    const std::set<std::wstring> texts = MenuTexts();
    EXPECT_TRUE(texts.contains(L"Mi&nimize the Ribbon")) << "it stands in the same block of the table";
    EXPECT_TRUE(texts.contains(L"&Show Quick Access Toolbar Below the Ribbon"));
}

TEST_F(HostTextTest, TheNamesForAssistiveProgramsAreTheProgramsToo) {
    CAccessibilityData data;
    ASSERT_TRUE(Element(commands::paste).SetACCData(&Bar(), data));
    EXPECT_STREQ(data.m_strDefaultAction, L"Push");
    ASSERT_TRUE(Element(commands::options).SetACCData(&Bar(), data));
    EXPECT_STREQ(data.m_strDefaultAction, L"Check") << "the program does not have it";
}

} // namespace
