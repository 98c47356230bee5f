// The customize dialog in the skins. Written as pictures for people to look at, too, when BARWRIGHT_PICTURES names a
// folder.
#include "tests/ui/skins/skin_fixture.h"

#include "tests/support/message_pump.h"
#include "tests/support/picture_file.h"

#include <afxcontrolbars.h>
#include <afxToolBarsCustomizeDialog.h>
#include <afxusertoolsmanager.h>

#include <commctrl.h>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

namespace {

class ToolFrame : public CFrameWndEx {
public:
    CMFCToolBar first, second;

    bool Make(DWORD exStyle) {
        if (!CFrameWndEx::Create(nullptr, L"Dialogs", WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 200), nullptr, nullptr,
                                 exStyle) ||
            !first.CreateEx(this) || !second.CreateEx(this)) {
            return false;
        }
        first.SetWindowText(L"Standard");
        second.SetWindowText(L"Drawing");
        EnableDocking(CBRS_ALIGN_ANY);
        for (CMFCToolBar* const bar : {&first, &second}) {
            for (const UINT id : {3001u, 3002u, 3003u}) {
                CMFCToolBarButton button(id, -1, L"Command");
                button.m_bText = TRUE;
                bar->InsertButton(button);
            }
            bar->EnableDocking(CBRS_ALIGN_ANY);
            DockPane(bar);
        }
        ShowWindow(SW_SHOWNOACTIVATE);
        PumpPending();
        return true;
    }

protected:
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (code == CN_UPDATE_COMMAND_UI) {
            static_cast<CCmdUI*>(extra)->Enable(TRUE);
            return TRUE;
        }
        return CFrameWndEx::OnCmdMsg(id, code, extra, info);
    }
};

enum Page : int { kCommandsPage, kToolBarsPage, kToolsPage, kKeyboardPage, kMenuPage, kOptionsPage };

// The controls of the pages.
constexpr int kFirstList = 1001;
constexpr int kSecondList = 1002;
constexpr int kNameField = 1006;
constexpr int kRemove = 1007;
constexpr int kFirstOption = 1001;

class SkinDialog : public SkinTest {
protected:
    ~SkinDialog() override {
        if (::IsWindow(m_dialogWindow)) {
            ::SendMessageW(m_dialogWindow, WM_CLOSE, 0, 0);
        }
        if (m_frame != nullptr) {
            m_frame->DestroyWindow();
        }
        PumpPending();
    }
    void Open(DWORD exStyle = 0) {
        auto& app = static_cast<CWinAppEx&>(*AfxGetApp());
        app.GetKeyboardManager();
        app.EnableUserTools(4000, 4001, 4010);
        m_frame = new ToolFrame;
        ASSERT_TRUE(m_frame->Make(exStyle));
        m_dialog = new CMFCToolBarsCustomizeDialog(m_frame, FALSE, AFX_CUSTOMIZE_TEXT_LABELS);
        for (UINT id = 3001; id < 3030; ++id) {
            m_dialog->AddButton(id % 2 == 0 ? L"Shapes" : L"Files",
                                CMFCToolBarButton(id, -1, (L"Command " + std::to_wstring(id)).c_str()));
        }
        m_dialog->EnableUserDefinedToolbars();
        ASSERT_TRUE(m_dialog->Create());
        m_dialogWindow = m_dialog->m_hWnd;
        PumpPending();
    }
    void Close() {
        ::SendMessageW(m_dialogWindow, WM_CLOSE, 0, 0);
        m_frame->DestroyWindow();
        m_frame = nullptr;
        PumpPending();
    }
    void GoTo(Page page) {
        ASSERT_TRUE(m_dialog->SetActivePage(page));
        PumpPending();
    }
    HWND Item(int id) const { return ::GetDlgItem(m_dialog->GetActivePage()->m_hWnd, id); }

    /// A window with its borders as it stands on the screen, whichever way it runs.
    static std::unique_ptr<Canvas> PictureOf(HWND window) {
        ::RedrawWindow(window, nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
        PumpPending();
        CRect rect;
        ::GetWindowRect(window, &rect);
        auto canvas = std::make_unique<Canvas>(rect.Size());
        const HDC source = ::GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE);
        ::SetLayout(source, 0);
        ::BitBlt(*canvas->Dc(), 0, 0, rect.Width(), rect.Height(), source, 0, 0, SRCCOPY);
        ::ReleaseDC(window, source);
        canvas->Close();
        return canvas;
    }
    /// Against black, as eyes see it: 21 for white.
    static double Lightness(std::uint32_t pixel) { return visual::Contrast(0xFF000000 | pixel, 0xFF000000); }

    /// Where a box's tick turns, as a share of the box's width from its left. The box is what differs from the ground
    /// between two columns of the picture; the tick is looked for inside of its border.
    static double TurnOfTick(const Canvas& picture, int left, int right, int top, int bottom) {
        const std::uint32_t ground = picture.At(left, top);
        CRect box(0, 0, 0, 0);
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                if (picture.At(x, y) != ground) {
                    box.UnionRect(box, CRect(x, y, x + 1, y + 1));
                }
            }
        }
        const int border = std::max(box.Width() / 5, 2);
        const std::uint32_t inside = picture.At(box.left + border, box.top + border);
        double sum = 0, weight = 0;
        for (int y = box.bottom - border; y >= box.top + border && weight == 0; --y) {
            for (int x = box.left + border; x < box.right - border; ++x) {
                if (std::abs(Lightness(picture.At(x, y)) - Lightness(inside)) > 2.0) {
                    sum += x - box.left + 0.5;
                    weight += 1;
                }
            }
        }
        EXPECT_GT(weight, 0) << "no tick";
        return sum / std::max(weight, 1.0) / std::max(static_cast<double>(box.Width()), 1.0);
    }

    ToolFrame* m_frame = nullptr;                    ///< deletes itself with its window
    CMFCToolBarsCustomizeDialog* m_dialog = nullptr; ///< deletes itself
    HWND m_dialogWindow = nullptr;
};

constexpr double kBright = 9.0; ///< against black: what only texts and marks of a dark window are
constexpr DWORD kDirections[] = {0, WS_EX_LAYOUTRTL};

TEST_F(SkinDialog, EveryPageIsDarkInTheBlackSkinAndBrightInTheSilverOne) {
    constexpr int kTexts = 15; // per cent of a window that texts, signs and the system's scroll bars may take
    for (const auto& [isBlack, scale] :
         {std::pair(true, 1.0), std::pair(false, 1.0), std::pair(true, 1.5), std::pair(false, 1.5)}) {
        for (const DWORD direction : kDirections) {
            afxGlobalData.SetRibbonImageScale(scale);
            UseSkin(isBlack);
            Open(direction);
            for (int page = 0; page < m_dialog->GetPageCount(); ++page) {
                GoTo(static_cast<Page>(page));
                const HWND window = m_dialog->GetPage(page)->m_hWnd;
                const std::unique_ptr<Canvas> picture = PictureOf(window);
                const CSize size = picture->Size();
                int bright = 0;
                for (int i = 0; i < size.cx * size.cy; ++i) {
                    bright += Lightness(picture->At(i % size.cx, i / size.cx)) > kBright ? 1 : 0;
                }
                const int share = bright * 100 / (size.cx * size.cy);
                EXPECT_EQ(share < kTexts, isBlack) << page << ": " << share << " per cent";
                EXPECT_EQ(share > 100 - 2 * kTexts, !isBlack) << page << ": " << share << " per cent";
                SavePicture(PictureOf(m_dialogWindow)->Bitmap(),
                            std::wstring(isBlack ? L"dialog-black" : L"dialog-silver") + (scale > 1 ? L"-150" : L"") +
                                (direction != 0 ? L"-mirrored-" : L"-") + std::to_wstring(page) + L".png");
            }
            Close();
        }
    }
}

TEST_F(SkinDialog, SelectedRowsOfTheBlackSkinAreDarkAndToldFromTheOthers) {
    for (const DWORD direction : kDirections) {
        Use<OpenBlackSkin>();
        Open(direction);
        for (const auto& [page, id] : {std::pair(kCommandsPage, kFirstList), std::pair(kCommandsPage, kSecondList),
                                       std::pair(kToolBarsPage, kFirstList)}) {
            GoTo(page);
            const std::unique_ptr<Canvas> picture = PictureOf(Item(id));
            // Rows are not so long that their middle has a text.
            const int middle = picture->Size().cx / 2 + (direction != 0 ? -30 : 30);
            const std::uint32_t selected = picture->At(middle, 7), other = picture->At(middle, picture->Size().cy - 5);
            EXPECT_LT(Lightness(selected), 5.0) << page << " " << id;
            EXPECT_NE(selected, other) << page << " " << id;
        }
        Close();
    }
}

TEST_F(SkinDialog, FieldsOfTheBlackSkinHaveDarkBordersAndArrows) {
    for (const DWORD direction : kDirections) {
        Use<OpenBlackSkin>();
        Open(direction);
        for (const auto& [page, id] : {std::pair(kCommandsPage, kFirstList), std::pair(kToolBarsPage, kFirstList),
                                       std::pair(kToolsPage, kNameField), std::pair(kKeyboardPage, kFirstList)}) {
            GoTo(page);
            const std::unique_ptr<Canvas> picture = PictureOf(Item(id));
            const int width = picture->Size().cx, height = picture->Size().cy;
            for (const CPoint edge : {CPoint(0, height / 2), CPoint(width - 1, height / 2), CPoint(width / 3, 0),
                                      CPoint(width / 3, height - 1), CPoint(width - 5, 3), CPoint(4, 3)}) {
                EXPECT_LT(Lightness(picture->At(edge.x, edge.y)), kBright) << page << " " << id << " " << edge.x;
            }
        }
        Close();
    }
}

TEST_F(SkinDialog, WhatIsDisabledInTheBlackSkinIsSeenAtThreeToOne) {
    Use<OpenBlackSkin>();
    Open();
    GoTo(kKeyboardPage);
    const HWND remove = Item(kRemove), page = ::GetParent(remove);
    ASSERT_FALSE(::IsWindowEnabled(remove));
    const HDC dc = ::GetDC(page);
    ::SendMessageW(page, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(remove));
    const std::uint32_t text = Pixel(::GetTextColor(dc));
    ::ReleaseDC(page, dc);
    const std::uint32_t face = PictureOf(remove)->At(3, 3);
    EXPECT_GE(visual::Contrast(0xFF000000 | text, 0xFF000000 | face), 3.0);
}

TEST_F(SkinDialog, TicksStandTheSameWayInBothDirections) {
    for (const bool isBlack : {true, false}) {
        for (const DWORD direction : kDirections) {
            UseSkin(isBlack);
            Open(direction);
            GoTo(kToolBarsPage);
            constexpr WPARAM kOther = 1; // which is not selected
            const HWND list = Item(kFirstList);
            CRect bounds(LVIR_BOUNDS, 0, 0, 0), label(LVIR_LABEL, 0, 0, 0), client;
            ::SendMessageW(list, LVM_GETITEMRECT, kOther, reinterpret_cast<LPARAM>(&bounds));
            ::SendMessageW(list, LVM_GETITEMRECT, kOther, reinterpret_cast<LPARAM>(&label));
            ::GetClientRect(list, &client);
            ASSERT_GT(label.left, bounds.left);
            const std::unique_ptr<Canvas> rows = PictureOf(list);
            const int border = (rows->Size().cy - client.Height()) / 2, width = rows->Size().cx - 2 * border;
            const int left = direction != 0 ? width - label.left : bounds.left;
            EXPECT_LT(TurnOfTick(*rows, border + left, border + left + label.left - bounds.left, border + bounds.top,
                                 border + bounds.bottom),
                      0.5)
                << isBlack << direction;
            GoTo(kOptionsPage);
            const HWND option = Item(kFirstOption);
            ::SendMessageW(option, BM_SETCHECK, BST_CHECKED, 0);
            const std::unique_ptr<Canvas> box = PictureOf(option);
            constexpr int kBox = 15;
            const int from = direction != 0 ? box->Size().cx - kBox : 0;
            EXPECT_LT(TurnOfTick(*box, from, from + kBox, 0, box->Size().cy), 0.5) << isBlack << direction;
            Close();
        }
    }
}

} // namespace
