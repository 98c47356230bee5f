// The system's dialogs for files, colours and fonts: what a program asks of them and hears from them.
#include "plans.h"

#include "afxdlgs.h"

#include <algorithm>
#include <string>

namespace {

/// Presses a button of the next dialog that the system shows on this thread, once it is there.
class Press {
public:
    explicit Press(int button) {
        s_button = button;
        s_pressed = 0;
        m_timer = ::SetTimer(nullptr, 0, 50, &Press::OnTimer);
    }
    ~Press() { ::KillTimer(nullptr, m_timer); }
    Press(const Press&) = delete;
    Press& operator=(const Press&) = delete;
    static int Count() { return s_pressed; }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        HWND found = nullptr;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM answer) -> BOOL {
                wchar_t name[16] = {};
                ::GetClassNameW(window, name, 16);
                if (std::wstring(name) != L"#32770" || !::IsWindowVisible(window)) {
                    return TRUE;
                }
                *reinterpret_cast<HWND*>(answer) = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&found));
        if (found != nullptr) {
            ++s_pressed;
            ::PostMessageW(found, WM_COMMAND, static_cast<WPARAM>(s_button), 0);
        }
    }
    static inline int s_button = 0, s_pressed = 0;
    UINT_PTR m_timer = 0;
};

TEST(FileDialog, AFilterIsGivenToTheSystemWithZerosForItsBars) {
    const CFileDialog dialog(TRUE, L"map", nullptr, 0, L"Maps (*.map)|*.map|All files|*.*||");
    const std::wstring expected(L"Maps (*.map)\0*.map\0All files\0*.*\0\0", 34);
    EXPECT_EQ(std::wstring(dialog.m_ofn.lpstrFilter, expected.size()), expected);
    EXPECT_STREQ(dialog.m_ofn.lpstrDefExt, L"map");
    EXPECT_EQ(CFileDialog(FALSE).m_ofn.lpstrFilter, nullptr);
    EXPECT_EQ(CFileDialog(FALSE).m_ofn.lpstrDefExt, nullptr);
    EXPECT_EQ(&dialog.GetOFN(), &dialog.m_ofn);
}

TEST(FileDialog, ThePartsOfAPathAreToldApart) {
    const CFileDialog dialog(TRUE, nullptr, L"C:\\maps\\coast.new.map");
    EXPECT_EQ(dialog.GetPathName(), L"C:\\maps\\coast.new.map");
    EXPECT_EQ(dialog.GetFileName(), L"coast.new.map");
    EXPECT_EQ(dialog.GetFileExt(), L"map");
    EXPECT_EQ(dialog.GetFileTitle(), L"coast.new");
    EXPECT_EQ(dialog.GetFolderPath(), L"C:\\maps");
    const CFileDialog empty(TRUE);
    EXPECT_TRUE(empty.GetPathName().IsEmpty() && empty.GetFileExt().IsEmpty() && empty.GetFolderPath().IsEmpty());
    EXPECT_EQ(empty.GetStartPosition(), nullptr);
}

TEST(FileDialog, SeveralFilesHaveTheirFolderInFront) {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    const std::wstring chosen(L"C:\\maps\0a.map\0b.map\0\0", 21);
    std::copy(chosen.begin(), chosen.end(), dialog.m_ofn.lpstrFile);
    POSITION place = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(place), L"C:\\maps\\a.map");
    ASSERT_NE(place, nullptr);
    EXPECT_EQ(dialog.GetNextPathName(place), L"C:\\maps\\b.map");
    EXPECT_EQ(place, nullptr);
    EXPECT_EQ(dialog.GetFileName(), L"a.map");
}

TEST(FileDialog, OneOfManyThatWereAllowedIsAWholePath) {
    const CFileDialog dialog(TRUE, nullptr, L"C:\\maps\\a.map", OFN_ALLOWMULTISELECT);
    POSITION place = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(place), L"C:\\maps\\a.map");
    EXPECT_EQ(place, nullptr);
}

/// Refuses the first choice, and writes down what it hears.
class StrictDialog : public CFileDialog {
public:
    using CFileDialog::CFileDialog;
    int m_ready = 0, m_asked = 0;
    CString m_seen;

protected:
    void OnInitDone() override { ++m_ready; }
    BOOL OnFileNameOK() override {
        m_seen = GetPathName();
        return ++m_asked == 1;
    }
};

TEST(FileDialog, ADerivedClassHearsOfTheDialogAndMayKeepItOpen) {
    const TemporaryDirectory folder;
    const std::wstring path = folder.Write("coast.map", "map");
    StrictDialog dialog(TRUE, L"map", path.c_str());
    const Press press(IDOK);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_ready, 1);
    EXPECT_EQ(dialog.m_asked, 2);
    EXPECT_EQ(dialog.GetPathName().CompareNoCase(path.c_str()), 0) << wstring2String(dialog.GetPathName().GetString());
    EXPECT_EQ(dialog.m_seen.CompareNoCase(path.c_str()), 0);
    EXPECT_EQ(dialog.m_hWnd, nullptr) << "the system's window is gone";
}

TEST(FileDialog, WhoLeavesItHasChosenNothing) {
    const Press press(IDCANCEL);
    EXPECT_EQ(CFileDialog(FALSE).DoModal(), IDCANCEL);
    EXPECT_GT(Press::Count(), 0);
}

class NotedColors : public CColorDialog {
public:
    using CColorDialog::CColorDialog;
    int m_asked = 0;
    COLORREF m_seen = 0;

protected:
    BOOL OnColorOK() override {
        m_seen = GetColor();
        return ++m_asked == 1;
    }
};

TEST(ColorDialog, TheColourThatWasGivenIsChosenUnlessAnotherIs) {
    CColorDialog dialog(RGB(12, 34, 56));
    const Press press(IDOK);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetColor(), RGB(12, 34, 56));
}

TEST(ColorDialog, ADerivedClassMayKeepItOpen) {
    NotedColors dialog(RGB(12, 34, 56));
    const Press press(IDOK);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_asked, 2);
    EXPECT_EQ(dialog.m_seen, RGB(12, 34, 56));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ColorDialog, TheProgramsOwnColoursAreWhiteAtFirstAndKept) {
    COLORREF* const colors = CColorDialog::GetSavedCustomColors();
    EXPECT_EQ(colors[15], RGB(255, 255, 255));
    EXPECT_EQ(CColorDialog().m_cc.lpCustColors, colors);
}

TEST(FontDialog, TheFontThatWasGivenIsChosenUnlessAnotherIs) {
    LOGFONT font{};
    font.lfHeight = -20;
    font.lfWeight = FW_BOLD;
    font.lfItalic = TRUE;
    lstrcpynW(font.lfFaceName, L"Tahoma", LF_FACESIZE);
    CFontDialog dialog(&font);
    EXPECT_EQ(dialog.GetFaceName(), L"Tahoma");
    EXPECT_TRUE(dialog.IsBold() && dialog.IsItalic());
    EXPECT_FALSE(dialog.IsUnderline() || dialog.IsStrikeOut());
    EXPECT_EQ(dialog.GetWeight(), FW_BOLD);
    const Press press(IDCANCEL);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    LOGFONT current{};
    dialog.GetCurrentFont(&current);
    EXPECT_EQ(current.lfHeight, -20);
}

} // namespace
