// docking_gallery DIR [PERCENT]: writes docking-SKIN-PERCENT.png of a frame with toolbars on all sides, one without
// room, and one that floats in two rows, for people to look at.
#include "afxcontrolbars.h"
#include "skin_visual_managers.h"
#include "tests/support/icon_handle.h"
#include "tests/support/message_pump.h"
#include "tests/support/png_file.h"
#include "tests/support/ui_test.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr int kIcons = 6;

class GalleryFrame : public CFrameWndEx {
public:
    ~GalleryFrame() override { DestroyWindow(); }

protected:
    // Nobody handles the commands, and nothing shall be disabled for it.
    BOOL OnCmdMsg(UINT, int, void*, AFX_CMDHANDLERINFO*) override { return TRUE; }
    void PostNcDestroy() override {}
};

void AddIcons() {
    CMFCToolBarImages& images = *CMFCToolBar::GetImages();
    images.SetImageSize(CSize(16, 16));
    for (int index = 0; index < kIcons; ++index) {
        const COLORREF color = RGB(200 - 30 * index, 40 + 30 * index, 160);
        const HICON icon = MakeIcon(16, color, [index](int x, int y) { return (x * (index + 2) + y * 3) % 7 > 2; });
        images.AddIcon(icon);
        ::DestroyIcon(icon);
    }
}

void Fill(CMFCToolBar& bar, CFrameWndEx& frame, UINT id, LPCTSTR name, int buttons) {
    bar.Create(&frame, AFX_DEFAULT_TOOLBAR_STYLE, id);
    bar.SetWindowText(name);
    for (int index = 0; index < buttons; ++index) {
        if (index % 4 == 3) {
            bar.InsertSeparator();
        }
        CMFCToolBarButton button(id * 100 + static_cast<UINT>(index), index % kIcons, L"Command");
        bar.InsertButton(button);
    }
    bar.SetButtonStyle(1, TBBS_CHECKBOX | TBBS_CHECKED);
    bar.SetButtonStyle(2, TBBS_BUTTON | TBBS_DISABLED);
    bar.EnableDocking(CBRS_ALIGN_ANY);
}

/// A combo box that takes text, an edit and the button at the end, which is there always.
void FillWithFields(CMFCToolBar& bar) {
    CMFCToolBarComboBoxButton combo(9001, 0, CBS_DROPDOWN, 80);
    combo.AddItem(L"Rivers");
    combo.AddItem(L"Roads");
    combo.SelectItem(1, FALSE);
    bar.InsertButton(combo);
    CMFCToolBarEditBoxButton edit(9002, 1, ES_AUTOHSCROLL, 70);
    edit.SetContents(L"1:25000");
    bar.InsertButton(edit);
    CMFCToolBarEditBoxButton disabled(9003, 1, ES_AUTOHSCROLL, 50);
    disabled.SetContents(L"off");
    disabled.m_nStyle |= TBBS_DISABLED;
    bar.InsertButton(disabled);
    bar.EnableCustomizeButton(TRUE, 9004, CString(L"Customize..."));
}

/// A message, a text with an icon, progress with and without its number, and one that is off.
void FillStatusBar(CMFCStatusBar& bar) {
    bar.SetIndicators(nullptr, 5);
    bar.SetPaneText(0, L"Ready");
    bar.SetPaneInfo(0, 0, SBPS_STRETCH | SBPS_NOBORDERS, 40);
    bar.SetPaneText(1, L"Layer 3");
    const HICON icon =
        MakeIcon(16, RGB(60, 120, 200), [](int x, int y) { return (x - 8) * (x - 8) + (y - 8) * (y - 8) < 50; });
    bar.SetPaneIcon(1, icon);
    ::DestroyIcon(icon);
    bar.EnablePaneProgressBar(2, 100, TRUE);
    bar.SetPaneProgress(2, 40);
    bar.EnablePaneProgressBar(3);
    bar.SetPaneProgress(3, 75);
    bar.SetPaneText(4, L"Warning");
    bar.SetPaneTextColor(4, RGB(200, 30, 30));
}

bool WriteScreen(const CRect& rect, const std::wstring& path) {
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, rect.Width(), rect.Height());
    const HGDIOBJ before = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, rect.Width(), rect.Height(), screen, rect.left, rect.top, SRCCOPY);
    ::SelectObject(memory, before);
    const bool isWritten = WritePng(bitmap, path);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return isWritten;
}

bool WriteSkin(const std::wstring& path, CRuntimeClass* skin, int percent) {
    CMFCVisualManager::SetDefaultManager(skin);
    GalleryFrame frame;
    const int width = 640 * percent / 100;
    if (!frame.Create(nullptr, L"Docking", WS_OVERLAPPEDWINDOW, CRect(20, 20, 20 + width, 20 + width * 2 / 3))) {
        return false;
    }
    frame.EnableDocking(CBRS_ALIGN_ANY);
    CWnd view;
    const HBRUSH ground = ::GetSysColorBrush(COLOR_APPWORKSPACE);
    view.Create(AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, nullptr, ground), nullptr, WS_CHILD | WS_VISIBLE,
                CRect(0, 0, 5, 5), &frame, AFX_IDW_PANE_FIRST);
    std::array<CMFCToolBar, 6> bars;
    const LPCTSTR names[] = {L"Standard", L"Layers", L"Draw", L"Measure", L"Objects", L"Snap"};
    const int buttons[] = {9, 7, 8, 6, 10, 24};
    for (std::size_t index = 0; index < bars.size(); ++index) {
        Fill(bars[index], frame, static_cast<UINT>(11 + index), names[index], buttons[index]);
    }
    FillWithFields(bars[0]);
    CMFCStatusBar status;
    status.Create(&frame);
    FillStatusBar(status);
    frame.DockPane(bars.data());
    frame.DockPane(&bars[1], AFX_IDW_DOCKBAR_TOP);
    frame.DockPane(&bars[2], AFX_IDW_DOCKBAR_LEFT);
    frame.DockPane(&bars[3], AFX_IDW_DOCKBAR_BOTTOM);
    frame.DockPane(&bars[5], AFX_IDW_DOCKBAR_TOP);
    frame.ShowWindow(SW_SHOW);
    frame.RecalcLayout();
    bars[4].FloatPane(CRect(CPoint(20 + width / 3, 20 + width / 3), CSize(0, 0)));
    CPaneFrameWnd& miniFrame = *bars[4].GetParentMiniFrame();
    bars[4].FloatPane(CRect(CPoint(20 + width / 3, 20 + width / 3),
                            miniFrame.SizeAround(bars[4].StretchPane(150 * percent / 100, FALSE))));
    PumpPending();
    CRect window;
    frame.GetWindowRect(&window);
    return WriteScreen(window, path);
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 2) {
        std::fputs("docking_gallery DIR [PERCENT]\n", stderr);
        return 2;
    }
    UiTestEnvironment environment;
    environment.SetUp();
    const int percent = count > 2 ? std::wcstol(arguments[2], nullptr, 10) : 100;
    afxGlobalData.SetRibbonImageScale(percent / 100.0);
    const ScopedGdiplus gdiplus;
    AddIcons();
    const std::wstring folder = std::wstring(arguments[1]) + L"\\docking-";
    const std::wstring end = L"-" + std::to_wstring(percent) + L".png";
    const bool isWritten =
        WriteSkin(folder + L"black" + end, RUNTIME_CLASS(CQKVisualManagerOffice2007Black), percent) &&
        WriteSkin(folder + L"silver" + end, RUNTIME_CLASS(CQKVisualManagerOffice2007Silver), percent);
    CMFCVisualManager::SetDefaultManager(nullptr);
    environment.TearDown();
    return isWritten ? 0 : 1;
}
