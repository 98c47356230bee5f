// What a loaded bar shows: the icon files of its buttons, in the bar and on the quick access toolbar.
#include "elements/icon_file.h"
#include "library_context.h"
#include "ribbon_icon_button.h"
#include "tests/support/canvas.h"
#include "tests/support/gui_objects.h"
#include "tests/ui/ribbon_builder/ribbon_fixture.h"

namespace {

constexpr std::uint32_t red = 0xFF0000;
constexpr std::uint32_t green = 0x00FF00;
constexpr std::uint32_t blue = 0x0000FF;
constexpr std::uint32_t yellow = 0xFFFF00;
constexpr int largePicture = 32 * 32;
constexpr int smallPicture = 16 * 16;

class ShownRibbon : public RibbonBuilder {
protected:
    ~ShownRibbon() override { CMFCRibbonUNIcoButton::SetSkinStyle(CString()); }

    void SetUp() override {
        RibbonBuilder::SetUp();
        WriteIcon(L"pic\\modle\\a.ico", 32, red);
        WriteIcon(L"pic\\modle\\a.ico", 16, green);
        WriteIcon(L"pic\\modle_0\\a.ico", 32, blue);
        WriteIcon(L"pic\\modle_0\\a.ico", 16, yellow);
    }
    /// Where the library looks for it, which is below the first test's directory for as long as the process lives.
    static std::filesystem::path IconPath(const std::wstring& name, int side) {
        return GetIconPathStr(name, side).GetString();
    }
    static void WriteIcon(const std::wstring& name, int side, std::uint32_t colour) {
        const std::filesystem::path path = IconPath(name, side);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << MakeIconFile(side, {colour, colour});
    }
    const std::string oneButton = "<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='K'/></r>" +
                                  Panel("<e KEYWORD='K' TYPE='BUTTON' PICPATH='pic\\modle\\a.ico'/>");

    void LoadOneButton() {
        ASSERT_TRUE(Load(oneButton));
        m_frame.RecalcLayout();
    }
    /// Each with files of its own.
    void LoadTwelveButtons() {
        std::string elements;
        for (int index = 0; index < 12; ++index) {
            const std::string number = std::to_string(index);
            for (const int side : {32, 16}) {
                WriteIcon(L"pic\\modle\\" + std::to_wstring(index) + L".ico", side, red);
            }
            elements += "<e KEYWORD='" + number + "' TYPE='BUTTON' PICPATH='pic\\modle\\" + number + ".ico'/>";
        }
        ASSERT_TRUE(Load(Panel(elements)));
        m_frame.RecalcLayout();
    }
    CMFCRibbonBaseElement* QuickAccessCopy() {
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        m_bar.GetElementsByID(Element(0)->GetID(), elements);
        for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
            if (elements[index]->IsQATMode()) {
                return elements[index];
            }
        }
        return nullptr;
    }
    /// How many pixels of the element have the colour when the bar is painted now.
    int Count(const CMFCRibbonBaseElement& element, std::uint32_t colour) {
        CRect client;
        m_bar.GetClientRect(client);
        Canvas canvas(client.Size());
        m_bar.DoPaint(canvas.Dc());
        int count = 0;
        const CRect rect = element.GetRect();
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                count += canvas.At(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }
};

TEST_F(ShownRibbon, ButtonShowsItsLargeFileAndItsQuickAccessCopyTheSmallOne) {
    LoadOneButton();
    EXPECT_EQ(Count(*Element(0), red), largePicture);
    ASSERT_NE(QuickAccessCopy(), nullptr);
    EXPECT_EQ(QuickAccessCopy()->GetOriginal(), Element(0));
    EXPECT_EQ(Count(*QuickAccessCopy(), green), smallPicture);
}

TEST_F(ShownRibbon, AnotherSkinStyleShowsAtTheNextPaintInTheBarAndInItsCopies) {
    LoadOneButton();
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(Count(*Element(0), blue), largePicture);
    EXPECT_EQ(Count(*QuickAccessCopy(), yellow), smallPicture);
    CMFCRibbonUNIcoButton::SetSkinStyle(L"1");
    EXPECT_EQ(Count(*Element(0), red), largePicture);
    EXPECT_EQ(Count(*QuickAccessCopy(), green), smallPicture);
}

TEST_F(ShownRibbon, ADisabledCopyIsGreyWhileItsEnabledOriginalIsNot) {
    LoadOneButton();
    QuickAccessCopy()->SetDisabled(TRUE);
    Element(0)->SetDisabled(FALSE);
    EXPECT_EQ(Count(*QuickAccessCopy(), green), 0);
    EXPECT_EQ(Count(*Element(0), red), largePicture);
    QuickAccessCopy()->SetDisabled(FALSE);
    Element(0)->SetDisabled(TRUE);
    EXPECT_EQ(Count(*QuickAccessCopy(), green), smallPicture);
    EXPECT_EQ(Count(*Element(0), red), 0);
}

TEST_F(ShownRibbon, AFileWrittenAnewShowsAtTheNextPaint) {
    LoadOneButton();
    WriteIcon(L"pic\\modle\\a.ico", 32, yellow);
    EXPECT_EQ(Count(*Element(0), yellow), largePicture);
    std::filesystem::remove(IconPath(L"pic\\modle\\a.ico", 32));
    EXPECT_EQ(Count(*Element(0), yellow), 0);
}

TEST_F(ShownRibbon, ASmallButtonShowsThe16PixelFile) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' TYPE='BUTTON' SIZE='16' PICPATH='pic\\modle\\a.ico'/>")));
    m_frame.RecalcLayout();
    // The one file serves both forms: read at 32 pixels, drawn with 16.
    EXPECT_EQ(Count(*Element(0), green), smallPicture);
}

TEST_F(ShownRibbon, QuickAccessButtonsHaveTheirPlacesOnceTheFileIsLoaded) {
    m_frame.ShowWindow(SW_SHOWNOACTIVATE);
    // Before anything but the file's loading asks for a layout.
    ASSERT_TRUE(Load(oneButton));
    ASSERT_NE(QuickAccessCopy(), nullptr);
    EXPECT_FALSE(QuickAccessCopy()->GetRect().IsRectEmpty());
    EXPECT_TRUE(m_bar.GetQuickAccessToolbarLocation().PtInRect(QuickAccessCopy()->GetRect().CenterPoint()));
}

TEST_F(ShownRibbon, EachPaintReadsTwoFilesForEachShownButtonAndKeepsNoIcon) {
    LoadTwelveButtons();
    const std::size_t before = FileIcon::GetReadCount();
    Count(*Element(0), red);
    EXPECT_EQ(FileIcon::GetReadCount(), before + 24);
    EXPECT_EQ(FileIcon::GetAliveCount(), 0u);
}

TEST_F(ShownRibbon, ThePointerFromButtonToButtonReadsTheFilesOfThoseTwoAndNoMore) {
    LoadTwelveButtons();
    m_frame.ShowWindow(SW_SHOWNOACTIVATE);
    m_bar.UpdateWindow();
    const auto moveTo = [this](int index) {
        const CPoint point = Element(index)->GetRect().CenterPoint();
        m_bar.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
        m_bar.UpdateWindow();
    };
    moveTo(0);
    for (const int next : {1, 11, 4}) {
        const std::size_t before = FileIcon::GetReadCount();
        moveTo(next);
        EXPECT_EQ(FileIcon::GetReadCount(), before + 4) << next;
    }
    const std::size_t before = FileIcon::GetReadCount();
    moveTo(4);
    EXPECT_EQ(FileIcon::GetReadCount(), before) << "at rest";
}

/// A file of that many buttons, a hundred in a category, with twenty different pictures.
std::string ManyButtons(int count) {
    std::string rows = "<r>";
    for (int index = 0; index < count; ++index) {
        const std::string number = std::to_string(index);
        if (index % 100 == 0) {
            rows += (index > 0 ? "</c>" : "") + ("<c KEYWORD='C" + number) + "'>";
        }
        if (index % 10 == 0) {
            rows += "<p KEYWORD='P" + number + "'>";
        }
        rows += "<e KEYWORD='K" + number + "' TYPE='BUTTON' PICPATH='pic\\modle\\" + std::to_string(index % 20) +
                ".ico' SIZE='" + (index % 4 == 0 ? "32" : "16") + "'/>";
        if (index % 10 == 9) {
            rows += "</p>";
        }
    }
    return rows + "</c></r>";
}

TEST_F(ShownRibbon, ObjectsOfTheSystemDoNotGrowWithTheNumberOfButtons) {
    for (int picture = 0; picture < 20; ++picture) {
        const std::wstring name = L"pic\\modle\\" + std::to_wstring(picture) + L".ico";
        WriteIcon(name, 32, red);
        WriteIcon(name, 16, green);
    }
    m_frame.ShowWindow(SW_SHOWNOACTIVATE);
    m_bar.UpdateWindow();
    const GuiObjects bare = CountGuiObjects();
    GuiObjects painted[2];
    for (const int count : {1000, 5000}) {
        const GuiObjects empty = CountGuiObjects();
        CAddRibbonBar builder;
        ASSERT_TRUE(Load(builder, ManyButtons(count), 1, "many.xml"));
        EXPECT_EQ(CountGuiObjects(), empty) << count << " buttons loaded";
        m_frame.RecalcLayout();
        for (int category = 0; category < m_bar.GetCategoryCount(); ++category) {
            m_bar.SetActiveCategory(m_bar.GetCategory(category));
            m_bar.UpdateWindow();
        }
        GuiObjects& objects = painted[count == 1000 ? 0 : 1];
        objects = CountGuiObjects();
        // What was painted may be kept, up to a limit that knows no number of buttons.
        EXPECT_LE(objects.gdi, bare.gdi + 100);
        objects.gdi = bare.gdi;
        m_bar.RemoveAllCategories();
    }
    EXPECT_EQ(painted[0], painted[1]) << "windows, menus, icons, wrappers";
}

} // namespace
