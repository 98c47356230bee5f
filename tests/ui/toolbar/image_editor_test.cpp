// The image editor as a dialog, and the way to it from a button.
#include "afximageeditordialog.h"
#include "tests/ui/toolbar/bar_frame.h"
#include "toolbar/pixel_image.h"

#include <filesystem>
#include <functional>

namespace {

constexpr int kPicture = 1001;
constexpr int kPalette = 1002;
constexpr int kUndo = 1004;
constexpr int kFirstTool = 1010;
constexpr int kEraser = 6;
constexpr int kSide = 8;
constexpr std::uint32_t kRed = 0xFFC00000;

/// Does something with the editor as soon as it is open, once.
class WhileOpen {
public:
    explicit WhileOpen(std::function<void(HWND dialog)> what) : m_what(std::move(what)) {
        s_current = this;
        m_timer = ::SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) { s_current->Look(); });
    }
    ~WhileOpen() {
        ::KillTimer(nullptr, m_timer);
        s_current = nullptr;
        EXPECT_TRUE(m_isDone) << "it never opened";
    }
    WhileOpen(const WhileOpen&) = delete;
    WhileOpen& operator=(const WhileOpen&) = delete;

private:
    void Look() {
        const HWND dialog = ::GetActiveWindow();
        const bool isEditor = ::GetDlgItem(dialog, kFirstTool + kEraser) != nullptr;
        if (!m_isDone && isEditor && ::IsWindowVisible(dialog)) {
            m_isDone = true;
            m_what(dialog);
        }
    }

    std::function<void(HWND)> m_what;
    UINT_PTR m_timer = 0;
    bool m_isDone = false;
    static WhileOpen* s_current;
};

WhileOpen* WhileOpen::s_current = nullptr;

CPoint SquareCenter(HWND picture, fx::Point pixel, fx::Size image) {
    CRect client;
    ::GetClientRect(picture, &client);
    const fx::Rect square = toolbar::PixelGrid(image, {client.Width(), client.Height()}).SquareOf(pixel);
    return {(square.left + square.right) / 2, (square.top + square.bottom) / 2};
}

void Push(HWND dialog, int id) { ::SendMessageW(::GetDlgItem(dialog, id), BM_CLICK, 0, 0); }

class ImageEditorTest : public ToolBarTest {
protected:
    ImageEditorTest() {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = kSide;
        info.bmiHeader.biHeight = -kSide;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        m_bits = static_cast<std::uint32_t*>(bits);
        std::fill_n(m_bits, kSide * kSide, 0u);
        At(0, 0) = kRed;
    }
    std::uint32_t& At(int x, int y) { return m_bits[y * kSide + x]; }
    INT_PTR Edit(std::function<void(HWND dialog)> what) {
        const WhileOpen open(std::move(what));
        CMFCImageEditorDialog editor(&m_bitmap, m_frame);
        return editor.DoModal();
    }
    void ClickPixel(HWND dialog, fx::Point pixel) {
        const HWND picture = ::GetDlgItem(dialog, kPicture);
        m_pointer.Click(picture, SquareCenter(picture, pixel, {kSide, kSide}));
    }

    CBitmap m_bitmap;
    std::uint32_t* m_bits = nullptr; ///< the bitmap's, from the top
};

TEST_F(ImageEditorTest, OkWritesWhatWasDrawn) {
    EXPECT_EQ(Edit([this](HWND dialog) {
                  ClickPixel(dialog, {3, 2});
                  EXPECT_EQ(At(3, 2), 0u) << "not before";
                  Push(dialog, IDOK);
              }),
              IDOK);
    EXPECT_EQ(At(3, 2), 0xFF000000);
    EXPECT_EQ(At(0, 0), kRed);
    EXPECT_EQ(At(4, 2), 0u) << "still clear";
}

TEST_F(ImageEditorTest, CancelLeavesTheBitmap) {
    EXPECT_EQ(Edit([this](HWND dialog) {
                  ClickPixel(dialog, {3, 2});
                  Push(dialog, IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(At(3, 2), 0u);
}

TEST_F(ImageEditorTest, TheToolsColoursAndTheWayBackWork) {
    Edit([this](HWND dialog) {
        EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dialog, kUndo)));
        Push(dialog, kFirstTool + kEraser);
        ClickPixel(dialog, {0, 0});
        Push(dialog, kFirstTool + 1); // the filling
        const HWND palette = ::GetDlgItem(dialog, kPalette);
        CRect client;
        ::GetClientRect(palette, &client);
        m_pointer.Click(palette, CPoint(client.right - 4, 4)); // the last of the first row: purple
        ClickPixel(dialog, {5, 5});
        EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dialog, kUndo)));
        Push(dialog, kUndo);
        Push(dialog, kFirstTool + 2); // a line
        const HWND picture = ::GetDlgItem(dialog, kPicture);
        m_pointer.Drag(picture, SquareCenter(picture, {1, 1}, {kSide, kSide}),
                       SquareCenter(picture, {1, 4}, {kSide, kSide}));
        Push(dialog, IDOK);
    });
    EXPECT_EQ(At(0, 0), 0u) << "erased";
    EXPECT_EQ(At(5, 5), 0u) << "the filling was taken back";
    for (int y = 1; y <= 4; ++y) {
        EXPECT_EQ(At(1, y), 0xFF800080) << y;
    }
}

// ---- from a button

class ButtonImageTest : public ImageEditorTest {
protected:
    ButtonImageTest() {
        WriteStrip();
        m_users.SetImageSize(CSize(16, 15));
        EXPECT_TRUE(m_users.Load(m_path.c_str()));
        EXPECT_TRUE(CMFCToolBar::SetUserImages(&m_users));
        auto* const dialog = new CMFCToolBarsCustomizeDialog(m_frame);
        EXPECT_TRUE(dialog->Create());
        m_dialog = dialog->m_hWnd;
    }
    ~ButtonImageTest() override {
        ::SendMessageW(m_dialog, WM_CLOSE, 0, 0);
        PumpPending();
        CMFCToolBar::SetUserImages(nullptr);
        GetCmdMgr()->ClearCmdImage(3002);
        std::filesystem::remove(m_path);
    }
    /// One green image.
    void WriteStrip() const {
        CFile file(m_path.c_str(), CFile::modeCreate | CFile::modeWrite);
        const BITMAPFILEHEADER header = {0x4D42, 0, 0, 0, sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER)};
        BITMAPINFOHEADER info{};
        info.biSize = sizeof(info);
        info.biWidth = 16;
        info.biHeight = 15;
        info.biPlanes = 1;
        info.biBitCount = 32;
        file.Write(&header, sizeof(header));
        file.Write(&info, sizeof(info));
        for (int pixel = 0; pixel < 16 * 15; ++pixel) {
            const std::uint32_t color = 0xFF00C000;
            file.Write(&color, sizeof(color));
        }
    }
    /// Chooses "Edit Button Image..." in the menu of the button.
    void ChooseEdit(int index) {
        CRect rect;
        Bar().GetItemRect(index, rect);
        CPoint point = rect.CenterPoint();
        Bar().ClientToScreen(&point);
        Bar().SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Bar().m_hWnd), MAKELPARAM(point.x, point.y));
        CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
        ASSERT_NE(menu, nullptr);
        constexpr int kRow = 2;
        ASSERT_EQ(menu->GetMenuItem(kRow)->m_strText, L"&Edit Button Image...");
        ASSERT_FALSE(menu->GetMenuItem(kRow)->m_nStyle & TBBS_DISABLED);
        menu->GetMenuBar()->GetItemRect(kRow, rect);
        m_pointer.Click(menu->GetMenuBar()->m_hWnd, rect.CenterPoint());
        PumpPending();
    }
    static void DrawAndLeave(HWND dialog, Pointer& pointer, int how) {
        const HWND picture = ::GetDlgItem(dialog, kPicture);
        pointer.Click(picture, SquareCenter(picture, {7, 7}, {16, 15}));
        Push(dialog, how);
    }
    COLORREF PixelOf(CMFCToolBarImages& images, int index, int x, int y) {
        CClientDC screen(nullptr);
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 16, 15);
        CBitmap* const before = dc.SelectObject(&bitmap);
        dc.FillSolidRect(0, 0, 16, 15, RGB(255, 255, 255));
        images.DrawEx(&dc, CRect(0, 0, 16, 15), index);
        const COLORREF pixel = dc.GetPixel(x, y);
        dc.SelectObject(before);
        return pixel;
    }

    std::wstring m_path = (std::filesystem::temp_directory_path() /
                           (L"barwright-images-" + std::to_wstring(::GetCurrentProcessId()) + L".bmp"))
                              .wstring();
    CMFCToolBarImages m_users;
    HWND m_dialog = nullptr;
};

TEST_F(ButtonImageTest, AChangedImageIsTheUsersAndIsKeptInTheirFile) {
    const COLORREF other = PixelOf(*CMFCToolBar::GetImages(), 1, 1, 1);
    {
        const WhileOpen open([this](HWND dialog) { DrawAndLeave(dialog, m_pointer, IDOK); });
        ChooseEdit(1);
    }
    const CMFCToolBarButton& button = *Bar().GetButton(1);
    EXPECT_TRUE(button.m_bUserButton);
    ASSERT_EQ(button.GetImage(), 1);
    ASSERT_EQ(m_users.GetCount(), 2);
    EXPECT_EQ(PixelOf(m_users, 1, 7, 7), RGB(0, 0, 0));
    EXPECT_EQ(PixelOf(m_users, 1, 1, 1), other) << "the rest is what it was";
    EXPECT_EQ(PixelOf(*CMFCToolBar::GetImages(), 1, 7, 7), other) << "and so is the program's image";
    EXPECT_FALSE(Bar().GetButton(0)->m_bUserButton);
    CMFCToolBarImages again;
    again.SetImageSize(CSize(16, 15));
    ASSERT_TRUE(again.Load(m_path.c_str()));
    ASSERT_EQ(again.GetCount(), 2);
    EXPECT_EQ(PixelOf(again, 1, 7, 7), RGB(0, 0, 0));
}

TEST_F(ButtonImageTest, AUsersImageIsChangedInItsPlace) {
    for (int time = 0; time < 2; ++time) {
        const WhileOpen open([this](HWND dialog) { DrawAndLeave(dialog, m_pointer, IDOK); });
        ChooseEdit(1);
    }
    EXPECT_EQ(m_users.GetCount(), 2);
    EXPECT_EQ(Bar().GetButton(1)->GetImage(), 1);
}

TEST_F(ButtonImageTest, CancelLeavesTheButtonAsItWas) {
    {
        const WhileOpen open([this](HWND dialog) { DrawAndLeave(dialog, m_pointer, IDCANCEL); });
        ChooseEdit(1);
    }
    EXPECT_FALSE(Bar().GetButton(1)->m_bUserButton);
    EXPECT_EQ(m_users.GetCount(), 1);
}

TEST_F(ButtonImageTest, AButtonThatGoesWhileItsImageIsDrawnIsLeftAlone) {
    {
        const WhileOpen open([this](HWND dialog) {
            Bar().RemoveAllButtons();
            DrawAndLeave(dialog, m_pointer, IDOK);
        });
        ChooseEdit(1);
    }
    EXPECT_EQ(m_users.GetCount(), 1);
    EXPECT_EQ(Bar().GetCount(), 0);
}

TEST_F(ButtonImageTest, ResetBringsTheProgramsImageBack) {
    {
        const WhileOpen open([this](HWND dialog) { DrawAndLeave(dialog, m_pointer, IDOK); });
        ChooseEdit(1);
    }
    Bar().GetButton(1)->ResetImageToDefault();
    EXPECT_FALSE(Bar().GetButton(1)->m_bUserButton);
}

} // namespace
