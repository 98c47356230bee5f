// Black means dark: in the black skin nothing but texts, signs and lit marks is bright. Written as pictures for people
// to look at, too, when BARWRIGHT_PICTURES names a folder.
#include "tests/ui/skins/skin_fixture.h"

#include "tests/support/message_pump.h"
#include "tests/support/picture_file.h"

#include <afxcontrolbars.h>
#include <afxpopupmenu.h>
#include <afxtoolbar.h>

#include <string>

namespace {

constexpr UINT kOpen = 3001, kChecked = 3002, kRadio = 3003, kDisabled = 3004, kMore = 3005;

/// A frame with a docked toolbar whose commands have every state.
class DressedFrame : public CFrameWndEx {
public:
    CMFCToolBar bar;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        if (CFrameWndEx::OnCreate(create) == -1 || !bar.Create(this)) {
            return -1;
        }
        EnableDocking(CBRS_ALIGN_ANY);
        bar.EnableDocking(CBRS_ALIGN_ANY);
        DockPane(&bar);
        return 0;
    }
    afx_msg void OnBarCommand(UINT) {}
    afx_msg void OnUpdateBarCommand(CCmdUI* state) {
        state->Enable(state->m_nID != kDisabled);
        if (state->m_nID == kRadio) {
            state->SetRadio(TRUE);
        } else {
            state->SetCheck(state->m_nID == kChecked ? 1 : 0);
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DressedFrame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(3000, 3999, OnBarCommand)
ON_UPDATE_COMMAND_UI_RANGE(3000, 3999, OnUpdateBarCommand)
END_MESSAGE_MAP()

class DarkSkin : public SkinTest {
protected:
    void Dress() {
        m_frame = new DressedFrame;
        ASSERT_TRUE(m_frame->Create(nullptr, L"Dark", WS_OVERLAPPEDWINDOW, CRect(0, 0, 460, 240)));
        CMFCToolBarButton buttons[] = {{kOpen, -1, L"Open"}, {kChecked, -1, L"Checked"}, {kDisabled, -1, L"Disabled"}};
        for (CMFCToolBarButton& button : buttons) {
            button.m_bText = TRUE;
            m_frame->bar.InsertButton(button);
        }
        m_frame->bar.InsertSeparator(1);
        m_frame->bar.AdjustLayout();
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        m_frame->RecalcLayout();
        PumpPending();
    }
    ~DarkSkin() override {
        CMFCPopupMenu::CloseAll();
        if (m_frame != nullptr) {
            m_frame->DestroyWindow();
        }
        PumpPending();
    }

    CMFCPopupMenu* OpenMenu() {
        const HMENU more = ::CreatePopupMenu(), menu = ::CreatePopupMenu();
        ::AppendMenuW(more, MF_STRING, kMore, L"Deep");
        ::AppendMenuW(menu, MF_STRING, kOpen, L"&Open\tCtrl+O");
        ::AppendMenuW(menu, MF_STRING, kChecked, L"&Checked");
        ::AppendMenuW(menu, MF_STRING, kRadio, L"&Radio");
        ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        ::AppendMenuW(menu, MF_STRING, kDisabled, L"&Disabled");
        ::AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(more), L"&More");
        auto* const popup = new CMFCPopupMenu; // deletes itself with its window
        const BOOL isOpen = popup->Create(m_frame, 60, 90, menu);
        ::DestroyMenu(menu);
        PumpPending();
        return isOpen ? popup : nullptr;
    }

    /// Share of the window's pixels, per cent, that are as bright as a light skin's grounds.
    static int BrightShare(const CWnd& window, const std::wstring& name) {
        ::RedrawWindow(window.GetSafeHwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        CRect rect;
        window.GetWindowRect(&rect);
        Canvas canvas(rect.Size());
        const HDC source = ::GetWindowDC(window.GetSafeHwnd());
        ::BitBlt(*canvas.Dc(), 0, 0, rect.Width(), rect.Height(), source, 0, 0, SRCCOPY);
        ::ReleaseDC(window.GetSafeHwnd(), source);
        int bright = 0;
        for (int y = 0; y < rect.Height(); ++y) {
            for (int x = 0; x < rect.Width(); ++x) {
                bright += visual::Contrast(0xFF000000 | canvas.At(x, y), 0xFF000000) > 9.0 ? 1 : 0;
            }
        }
        canvas.Close();
        SavePicture(canvas.Bitmap(), name);
        return bright * 100 / (rect.Width() * rect.Height());
    }

    DressedFrame* m_frame = nullptr; ///< deletes itself with its window
};

constexpr int kTexts = 15; // per cent of a window that texts and signs may take

TEST_F(DarkSkin, ToolbarsOfTheBlackSkinAreDarkAndThoseOfTheSilverOneAreNot) {
    Use<OpenBlackSkin>();
    Dress();
    EXPECT_LT(BrightShare(m_frame->bar, L"toolbar-black.png"), kTexts);
    Use<OpenSilverSkin>();
    EXPECT_GT(BrightShare(m_frame->bar, L"toolbar-silver.png"), 100 - 2 * kTexts);
}

TEST_F(DarkSkin, MenusOfTheBlackSkinAreDarkAndThoseOfTheSilverOneAreNot) {
    Use<OpenBlackSkin>();
    Dress();
    CMFCPopupMenu* const black = OpenMenu();
    ASSERT_NE(black, nullptr);
    black->GetMenuBar()->OnKey(VK_DOWN);
    EXPECT_LT(BrightShare(*black, L"menu-black.png"), kTexts);
    CMFCPopupMenu::CloseAll();
    Use<OpenSilverSkin>();
    CMFCPopupMenu* const silver = OpenMenu();
    ASSERT_NE(silver, nullptr);
    silver->GetMenuBar()->OnKey(VK_DOWN);
    EXPECT_GT(BrightShare(*silver, L"menu-silver.png"), 100 - 2 * kTexts);
}

} // namespace
