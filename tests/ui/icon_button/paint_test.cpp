// What buttons that one window paints have in common, and what the next paint shows of files that changed in between.
#include "tests/support/gui_objects.h"
#include "tests/ui/icon_button/icon_fixture.h"

#include <fx/paint_round.h>

#include <filesystem>
#include <functional>
#include <vector>

namespace {

/// Does what it is told in the answer to WM_PAINT.
class PaintedWindow : public TestWindow {
public:
    void Paint(std::function<void()> action) {
        m_action = std::move(action);
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        m_action = nullptr;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_PAINT || !m_action) {
            return TestWindow::WindowProc(message, wParam, lParam);
        }
        const CPaintDC dc(this);
        m_action();
        return 0;
    }

private:
    std::function<void()> m_action;
};

/// When the file was last written, read and set to a hundred nanoseconds.
class WriteTime {
public:
    explicit WriteTime(const CString& path) : m_path(path) {
        WIN32_FILE_ATTRIBUTE_DATA data;
        EXPECT_TRUE(::GetFileAttributesExW(m_path, GetFileExInfoStandard, &data));
        m_time = data.ftLastWriteTime;
    }
    void PutBack() const {
        const HANDLE file = ::CreateFileW(m_path, FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_TRUE(::SetFileTime(file, nullptr, nullptr, &m_time));
        ::CloseHandle(file);
    }

private:
    CString m_path;
    FILETIME m_time;
};

class IconPaint : public IconButton {
protected:
    /// The colours that the button's large picture has in one paint of the window, drawn so many times.
    std::uint32_t Painted(CMFCRibbonUNIcoButton& button, int count = 1) {
        std::uint32_t colour = 0;
        m_window.Paint([&] {
            for (int i = 0; i < count; ++i) {
                colour = ColourDrawn(button, Large);
            }
        });
        return colour;
    }

    PaintedWindow m_window;
};

TEST_F(IconPaint, ReadsEachFileOnceForAllThatItDraws) {
    const auto first = MakeButton(), second = MakeButton();
    const std::size_t before = FileIcon::GetReadCount();
    m_window.Paint([&] {
        for (CMFCRibbonUNIcoButton* const button : {first.get(), second.get(), first.get()}) {
            EXPECT_EQ(ColourDrawn(*button, Large), red);
            EXPECT_EQ(ColourDrawn(*button, Small), green);
        }
        EXPECT_EQ(FileIcon::GetReadCount(), before + 2);
        EXPECT_EQ(FileIcon::GetAliveCount(), 2u);
    });
    EXPECT_EQ(FileIcon::GetAliveCount(), 0u) << "nothing is kept until the next one";
    Painted(*first);
    EXPECT_EQ(FileIcon::GetReadCount(), before + 4) << "which reads them anew";
}

TEST_F(IconPaint, DisabledButtonsOfOneFileAreGreyedFromOneList) {
    const auto first = MakeButton(), second = MakeButton();
    first->SetDisabled(TRUE);
    second->SetDisabled(TRUE);
    const std::uint32_t grey = ColourDrawn(*first, Large);
    const std::size_t before = FileIcon::GetListCount();
    m_window.Paint([&] {
        for (CMFCRibbonUNIcoButton* const button : {first.get(), second.get(), first.get()}) {
            EXPECT_EQ(ColourDrawn(*button, Large), grey);
        }
        EXPECT_EQ(FileIcon::GetListCount(), before + 1);
        ColourDrawn(*second, Small);
        EXPECT_EQ(FileIcon::GetListCount(), before + 2) << "each file, and each size, has its own";
    });
    WriteIcon("pic/modle/large.ico", 32, blue);
    EXPECT_NE(Painted(*second), grey) << "the next paint makes them anew";
    EXPECT_EQ(FileIcon::GetListCount(), before + 3);
}

TEST_F(IconPaint, AReplacedADeletedAndARestoredFileEachShowAtTheVeryNextPaint) {
    const auto button = MakeButton();
    EXPECT_EQ(Painted(*button), red);
    WriteIcon("pic/modle/large.ico", 32, blue);
    EXPECT_EQ(Painted(*button), blue);
    std::filesystem::remove(m_large.GetString());
    EXPECT_EQ(Painted(*button), Canvas::background);
    WriteIcon("pic/modle/large.ico", 32, red);
    EXPECT_EQ(Painted(*button), red);
}

TEST_F(IconPaint, AReplacementOfTheSameLengthAndTheSameTimeIsSeen) {
    const auto button = MakeButton();
    EXPECT_EQ(Painted(*button), red);
    const WriteTime time(m_large);
    for (const std::uint32_t colour : {blue, yellow, red}) {
        WriteIcon("pic/modle/large.ico", 32, colour);
        time.PutBack();
        EXPECT_EQ(Painted(*button), colour);
    }
}

TEST_F(IconPaint, AFileThatWasMissingShowsAtTheVeryNextPaint) {
    const CString path = m_large + L".later";
    CMFCRibbonUNIcoButton button(1, L"", path);
    EXPECT_EQ(Painted(button), Canvas::background);
    WriteIcon("pic/modle/large.ico.later", 32, yellow);
    EXPECT_EQ(Painted(button), yellow);
}

TEST_F(IconPaint, AChangeWhileItGoesOnShowsAtTheNextSoThatEqualButtonsStayEqual) {
    const auto first = MakeButton(), second = MakeButton();
    m_window.Paint([&] {
        EXPECT_EQ(ColourDrawn(*first, Large), red);
        WriteIcon("pic/modle/large.ico", 32, blue);
        EXPECT_EQ(ColourDrawn(*second, Large), red);
    });
    EXPECT_EQ(Painted(*second), blue);
}

TEST_F(IconPaint, AnotherWindowPaintedInTheMiddleOfItSharesNothingWithIt) {
    const auto button = MakeButton();
    PaintedWindow other;
    m_window.Paint([&] {
        EXPECT_EQ(ColourDrawn(*button, Large), red);
        WriteIcon("pic/modle/large.ico", 32, blue);
        other.Paint([&] { EXPECT_EQ(ColourDrawn(*button, Large), blue); });
        EXPECT_EQ(FileIcon::GetAliveCount(), 0u);
        EXPECT_TRUE(fx::IsPainting());
        WriteIcon("pic/modle/large.ico", 32, yellow);
        EXPECT_EQ(ColourDrawn(*button, Large), yellow);
    });
    EXPECT_FALSE(fx::IsPainting());
}

TEST_F(IconPaint, TheSkinStyleMayChangeWhileItGoesOn) {
    const auto button = MakeButton();
    m_window.Paint([&] {
        EXPECT_EQ(ColourDrawn(*button, Large), red);
        CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
        EXPECT_EQ(ColourDrawn(*button, Large), blue);
        CMFCRibbonUNIcoButton::SetSkinStyle(CString());
        EXPECT_EQ(ColourDrawn(*button, Large), red);
    });
}

TEST_F(IconPaint, HoldsNoMoreThan500IconsHoweverManyFilesItDraws) {
    std::vector<std::unique_ptr<CMFCRibbonUNIcoButton>> buttons;
    for (int i = 0; i < 600; ++i) {
        const CString path = WriteIcon("many/" + std::to_string(i) + ".ico", 32, static_cast<std::uint32_t>(i) + 1);
        buttons.push_back(std::make_unique<CMFCRibbonUNIcoButton>(1, L"", path));
    }
    std::size_t most = 0;
    m_window.Paint([&] {
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            EXPECT_EQ(ColourDrawn(*buttons[i], Large), i + 1);
            most = std::max(most, FileIcon::GetAliveCount());
        }
    });
    EXPECT_EQ(most, 500u);
    EXPECT_EQ(FileIcon::GetAliveCount(), 0u);
}

TEST_F(IconPaint, LeavesNoHandleBehindWhateverHappensToTheFiles) {
    const auto button = MakeButton();
    const auto paint = [&](int round) {
        constexpr int kinds = 4;
        switch (round % kinds) {
        case 0:
            WriteIcon("pic/modle/large.ico", 32, blue);
            break;
        case 1:
            std::filesystem::remove(m_large.GetString());
            break;
        case 2:
            m_directory.Write("pic/modle/large.ico", "no icon");
            break;
        default:
            WriteIcon("pic/modle/large.ico", 48, red);
        }
        button->SetDisabled(round % 3 == 0);
        Painted(*button, 3);
    };
    EXPECT_TRUE(RepeatedLeavesNothingBehind(12, 240, paint));
}

} // namespace
