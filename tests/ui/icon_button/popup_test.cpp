// Buttons with icon files inside pop-ups: they draw their icons there and run their commands.
#include <afxribbonpanelmenu.h>

#include "elements/icon_file.h"
#include "ribbon_icon_button.h"
#include "tests/support/canvas.h"
#include "tests/support/churn_memory.h"
#include "tests/support/command_list.h"
#include "tests/support/icon_writer.h"
#include "tests/support/pointer.h"
#include "tests/support/ribbon_host.h"
#include "tests/support/translation_tables.h"

namespace {

constexpr std::uint32_t red = 0xFF0000;
constexpr std::uint32_t green = 0x00FF00;
constexpr UINT menuId = 700;
constexpr UINT iconId = 701;

class IconButtonInPopup : public testing::Test {
protected:
    IconButtonInPopup() {
        m_large = m_directory.Write("pic/large.ico", MakeIconFile(32, {red, red})).c_str();
        m_small = m_directory.Write("pic/small.ico", MakeIconFile(16, {green, green})).c_str();
    }
    ~IconButtonInPopup() override {
        CMFCRibbonPanelMenu::DismissAll();
        PumpPending();
        EXPECT_EQ(FileIcon::GetAliveCount(), 0u) << "an icon was not released";
    }
    std::unique_ptr<CMFCRibbonUNIcoButton> MakeButton() const {
        return std::make_unique<CMFCRibbonUNIcoButton>(iconId, L"Layer", m_large, FALSE, m_small);
    }
    static CMFCRibbonPanelMenuBar& PopupBar() { return CMFCRibbonPanelMenu::GetDeepest()->GetRibbonMenuBar(); }
    /// How many pixels of the colour the open pop-up shows inside the element.
    int CountPixels(const CMFCRibbonBaseElement& element, std::uint32_t colour) {
        m_canvas.Clear();
        PopupBar().DoPaint(m_canvas.Dc());
        const CRect rect = element.GetRect();
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                count += m_canvas.At(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }
    void Click(const CMFCRibbonBaseElement& element) {
        m_pointer.Click(element.GetParentWnd()->GetSafeHwnd(), element.GetRect().CenterPoint());
        PumpPending();
    }

    TemporaryDirectory m_directory;
    CString m_large;
    CString m_small;
    Canvas m_canvas{512};
    Pointer m_pointer;
    RibbonHost m_host;
};

TEST_F(IconButtonInPopup, ARowOfAMenuShowsTheSmallIconAndRunsItsCommand) {
    auto menu = std::make_unique<CMFCRibbonButton>(menuId, L"Layers");
    menu->AddSubItem(MakeButton().release());
    CMFCRibbonButton& button = m_host.Add(std::move(menu));
    Click(button);
    ASSERT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    CMFCRibbonBaseElement& row = *button.GetSubItems()[0];
    EXPECT_EQ(CountPixels(row, green), 16 * 16);
    EXPECT_EQ(CountPixels(row, red), 0);
    Click(row);
    EXPECT_EQ(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    EXPECT_EQ(m_host.Frame().CountCommands(iconId), 1);
}

TEST_F(IconButtonInPopup, ACollapsedPanelShowsTheLargeIconAndRunsItsCommand) {
    CMFCRibbonUNIcoButton& button = m_host.Add(MakeButton());
    CMFCRibbonPanel& panel = *button.GetParentPanel();
    panel.ShowPopup();
    ASSERT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    EXPECT_EQ(button.GetParentWnd(), &PopupBar());
    EXPECT_EQ(CountPixels(button, red), 32 * 32);
    Click(button);
    EXPECT_EQ(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    EXPECT_EQ(m_host.Frame().CountCommands(iconId), 1);
}

TEST_F(IconButtonInPopup, ACopyInTheQuickAccessPopupShowsItsIconAndRunsItsCommand) {
    auto other = std::make_unique<CMFCRibbonUNIcoButton>(iconId + 1, L"Other", m_large, FALSE, m_small);
    m_host.Add(MakeButton());
    CMFCRibbonUNIcoButton& original = m_host.Add(std::move(other));
    CMFCRibbonUNIcoButton copy;
    copy.CopyFrom(original);
    copy.SetOriginal(&original);
    copy.SetParentRibbonBar(&m_host.Bar());
    CMFCRibbonPanelMenu::ElementArray elements;
    elements.Add(&copy);
    auto* menu = new CMFCRibbonPanelMenu(elements, TRUE);
    ASSERT_TRUE(menu->OpenAt(&m_host.Bar(), CRect(10, 10, 30, 30), CMFCRibbonPanelMenu::Side::Below));
    EXPECT_GT(CountPixels(copy, green) + CountPixels(copy, red), 0);
    Click(copy);
    EXPECT_EQ(m_host.Frame().CountCommands(iconId + 1), 1);
    CMFCRibbonPanelMenu::DismissAll();
    PumpPending();
}

/// The bar's quick access toolbar has a copy of a button that opens two icon-file buttons.
class CopyOfAMenuButton : public IconButtonInPopup {
protected:
    CopyOfAMenuButton() {
        auto menu = std::make_unique<CMFCRibbonButton>(menuId, L"Layers");
        menu->AddSubItem(MakeButton().release());
        menu->AddSubItem(new CMFCRibbonUNIcoButton(iconId + 1, L"Other", m_large, FALSE, m_small));
        m_button = &m_host.Add(std::move(menu));
        m_host.Bar().SetQuickAccessCommands(CommandList{menuId});
        PumpPending();
    }
    CMFCRibbonButton& Copy() {
        const CPoint point = m_host.Bar().GetQATCommandsLocation().CenterPoint();
        return static_cast<CMFCRibbonButton&>(*m_host.Bar().HitTest(point));
    }

    CMFCRibbonButton* m_button = nullptr;
};

TEST_F(CopyOfAMenuButton, OpensAndPaintsWhatItsOriginalStillHas) {
    m_button->RemoveSubItem(0);
    ChurnMemory();
    Click(Copy());
    ASSERT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    ASSERT_EQ(Copy().GetSubItems().GetSize(), 1);
    EXPECT_EQ(CountPixels(*Copy().GetSubItems()[0], green), 16 * 16);
    // And what goes while its row is shown.
    m_button->RemoveAllSubItems();
    ChurnMemory();
    m_canvas.Clear();
    if (CMFCRibbonPanelMenu::GetDeepest() != nullptr) {
        PopupBar().DoPaint(m_canvas.Dc());
    }
    PumpPending();
    EXPECT_EQ(Copy().GetSubItems().GetSize(), 0);
}

TEST_F(CopyOfAMenuButton, ACopyOfTheHostsPaintsNoPictureOfAnOriginalThatIsGone) {
    CMFCRibbonButton copy;
    copy.CopyFrom(*m_button);
    copy.SetParentRibbonBar(&m_host.Bar());
    m_button->RemoveAllSubItems();
    ChurnMemory();
    CMFCRibbonPanelMenu::ElementArray elements;
    elements.Add(copy.GetSubItems()[0]);
    elements.Add(copy.GetSubItems()[1]);
    auto* menu = new CMFCRibbonPanelMenu(elements);
    ASSERT_TRUE(menu->OpenAt(&m_host.Bar(), CRect(10, 10, 30, 30), CMFCRibbonPanelMenu::Side::Below));
    EXPECT_EQ(CountPixels(*elements[0], green), 0) << "its alternates were the original's";
    Click(*elements[1]);
    EXPECT_EQ(m_host.Frame().CountCommands(iconId + 1), 1);
    CMFCRibbonPanelMenu::DismissAll();
    PumpPending();
}

} // namespace
