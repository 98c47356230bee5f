// frame_gallery DIR [PERCENT [WIDTH [rtl|minimized|below]...]]: writes frame-STYLE-PERCENT-WIDTH[-WORD]....png of a
// frame with everything that a ribbon can show in each style, for people to look at. below: the quick access toolbar.
#include "afxcontrolbars.h"
#include "afxglobals.h"
#include "afxMDIChildWndEx.h"
#include "afxMDIFrameWndEx.h"
#include "afxribbonbar.h"
#include "afxribboncheckbox.h"
#include "afxRibbonEdit.h"
#include "afxRibbonLabel.h"
#include "afxribbonslider.h"
#include "afxvisualmanageroffice2007.h"
#include "fx/window_dc.h"
#include "tests/support/command_list.h"
#include "tests/support/icon_handle.h"
#include "tests/support/message_pump.h"
#include "tests/support/png_file.h"
#include "tests/support/ui_test.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

HICON MakeStripedIcon(int side, COLORREF color) {
    return MakeIcon(side, color, [side](int x, int y) {
        return x > 1 && y > 1 && x < side - 2 && y < side - 2 && (x + y) % 7 != 0;
    });
}

CMFCRibbonButton* MakeButton(UINT id, LPCTSTR text, COLORREF color) {
    return new CMFCRibbonButton(id, text, MakeStripedIcon(32, color), FALSE, MakeStripedIcon(16, color), TRUE);
}

class GalleryFrame : public CMDIFrameWndEx {
public:
    ~GalleryFrame() override { DestroyWindow(); }

    void Fill() {
        CMFCRibbonCategory* home = bar.AddCategory(L"Home", 0, 0);
        CMFCRibbonPanel* clipboard = home->AddPanel(L"Clipboard");
        auto* paste = MakeButton(1, L"Paste", RGB(200, 120, 30));
        paste->AddSubItem(new CMFCRibbonButton(2, L"Paste special"));
        paste->SetDefaultCommand();
        clipboard->Add(paste);
        clipboard->Add(MakeButton(3, L"Cut", RGB(180, 30, 30)));
        clipboard->Add(MakeButton(4, L"Copy", RGB(30, 90, 180)));
        clipboard->Add(MakeButton(5, L"Format Painter", RGB(30, 150, 60)));
        CMFCRibbonPanel* text = home->AddPanel(L"Text");
        auto* group = new CMFCRibbonButtonsGroup;
        for (UINT id = 10; id < 15; ++id) {
            group->AddButton(new CMFCRibbonButton(id, L"", MakeStripedIcon(16, RGB(id * 9, 80, 90)), FALSE,
                                                  MakeStripedIcon(16, RGB(id * 9, 80, 90))));
        }
        text->Add(group);
        text->AddSeparator();
        auto* edit = new CMFCRibbonEdit(20, 70, L"Size:");
        edit->SetEditText(L"12 pt");
        text->Add(edit);
        text->Add(new CMFCRibbonLabel(L"A label"));
        auto* slider = new CMFCRibbonSlider(21, 100);
        slider->SetZoomButtons();
        slider->SetPos(40);
        text->Add(slider);
        text->AddSeparator();
        text->Add(new CMFCRibbonCheckBox(22, L"Ruler"));
        text->Add(new CMFCRibbonCheckBox(23, L"Grid lines"));
        text->Add(new CMFCRibbonCheckBox(24, L"Guides"));
        CMFCRibbonPanel* styles = home->AddPanel(L"States");
        const LPCTSTR names[] = {L"Plain", L"Hot", L"Pressed", L"Checked", L"Disabled"};
        for (UINT index = 0; index < 5; ++index) {
            styles->Add(MakeButton(30 + index, names[index], RGB(60, 60 + index * 30, 160)));
        }
        CMFCRibbonPanel* small = home->AddPanel(L"Small states");
        for (UINT index = 0; index < 5; ++index) {
            small->Add(new CMFCRibbonButton(40 + index, names[index],
                                            MakeStripedIcon(16, RGB(60, 60 + index * 30, 160)), FALSE,
                                            MakeStripedIcon(16, RGB(60, 60 + index * 30, 160))));
        }
        for (CMFCRibbonPanel* panel : {clipboard, text, styles, small}) {
            panel->EnableLaunchButton(50 + static_cast<UINT>(home->GetPanelIndex(panel)));
        }
        bar.AddCategory(L"Insert", 0, 0)->AddPanel(L"Pictures");
        bar.AddCategory(L"Page layout", 0, 0)->AddPanel(L"Page");
        bar.AddContextCategory(L"Design", L"Table tools", 77, AFX_CategoryColor_Orange, 0, 0)->AddPanel(L"Cells");
        bar.AddContextCategory(L"Layout", L"Table tools", 77, AFX_CategoryColor_Orange, 0, 0)->AddPanel(L"Rows");
        bar.AddContextCategory(L"Format", L"Picture tools", 78, AFX_CategoryColor_Green, 0, 0)->AddPanel(L"Borders");
        bar.ShowContextCategories(77);
        bar.ShowContextCategories(78);
        bar.SetQuickAccessCommands(CommandList{1, 3, 4});
        application.SetText(L"File");
        bar.SetApplicationButton(&application, CSize(45, 45));
    }

    void ShowStates() {
        for (const UINT first : {30u, 40u}) {
            const auto element = [this, first](UINT index) { return bar.FindByID(first + index, TRUE, TRUE); };
            if (element(4) == nullptr) {
                return;
            }
            element(1)->SetHighlighted(TRUE);
            element(2)->SetPressed(TRUE);
            element(3)->SetChecked(TRUE);
            element(4)->SetDisabled(TRUE);
        }
        bar.FindByID(51, TRUE, TRUE)->SetDisabled(TRUE);
        bar.FindByID(52, TRUE, TRUE)->SetHighlighted(TRUE);
        bar.FindByID(53, TRUE, TRUE)->SetPressed(TRUE);
        bar.FindByID(23, TRUE, TRUE)->SetChecked(TRUE);
        bar.FindByID(24, TRUE, TRUE)->SetDisabled(TRUE);
        bar.FindByID(11, TRUE, TRUE)->SetChecked(TRUE);
        bar.FindByID(12, TRUE, TRUE)->SetHighlighted(TRUE);
    }

    CMFCRibbonBar bar{TRUE};
    CMFCRibbonApplicationButton application;

protected:
    // Nobody handles the commands, and nothing shall be disabled for it.
    BOOL OnCmdMsg(UINT, int, void*, AFX_CMDHANDLERINFO*) override { return TRUE; }
    void PostNcDestroy() override {}
};

bool WritePicture(CWnd& window, const std::wstring& path) {
    CRect rect;
    window.GetWindowRect(&rect);
    CBitmap bitmap;
    CWindowDC source(&window);
    // As on the screen, also for a mirrored window.
    ::SetLayout(source.GetSafeHdc(), 0);
    CDC memory;
    memory.CreateCompatibleDC(&source);
    bitmap.CreateCompatibleBitmap(&source, rect.Width(), rect.Height());
    CBitmap* const earlier = memory.SelectObject(&bitmap);
    memory.BitBlt(0, 0, rect.Width(), rect.Height(), &source, 0, 0, SRCCOPY);
    memory.SelectObject(earlier);
    return WritePng(static_cast<HBITMAP>(bitmap.GetSafeHandle()), path);
}

bool WriteFrame(const std::wstring& directory, int style, const wchar_t* name, int percent, int width,
                const std::set<std::wstring>& words) {
    CMFCVisualManagerOffice2007::SetStyle(static_cast<CMFCVisualManagerOffice2007::Style>(style));
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    GalleryFrame frame;
    if (!frame.Create(nullptr, L"Report - Writer", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                      CRect(0, 0, width, 250 * percent / 100), nullptr, nullptr,
                      words.count(L"rtl") != 0 ? WS_EX_LAYOUTRTL : 0) ||
        !frame.bar.Create(&frame)) {
        return false;
    }
    frame.Fill();
    auto* child = new CMDIChildWndEx;
    child->Create(nullptr, L"Sheet", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW | WS_MAXIMIZE, CRect(0, 0, 200, 100),
                  &frame);
    child->MDIMaximize();
    frame.bar.SetQuickAccessToolbarOnTop(words.count(L"below") == 0);
    if (words.count(L"minimized") != 0) {
        frame.bar.ToggleMimimizeState();
    }
    frame.ShowWindow(SW_SHOW);
    frame.RecalcLayout();
    PumpPending();
    frame.ShowStates();
    frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
    std::wstring file =
        directory + L"\\frame-" + name + L"-" + std::to_wstring(percent) + L"-" + std::to_wstring(width);
    for (const std::wstring& word : words) {
        file += L"-" + word;
    }
    return WritePicture(frame, file + L".png");
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 2) {
        std::fputs("usage: frame_gallery DIR [PERCENT [WIDTH [rtl|minimized|below]...]]\n", stderr);
        return 2;
    }
    UiTestEnvironment environment;
    environment.SetUp();
    const ScopedGdiplus gdiplus;
    if (!gdiplus.IsStarted()) {
        return 1;
    }
    const int percent = count > 2 ? std::stoi(arguments[2]) : 100;
    const int width = count > 3 ? std::stoi(arguments[3]) : 1280;
    afxGlobalData.SetRibbonImageScale(percent / 100.0);
    const std::set<std::wstring> words(arguments + std::min(count, 4), arguments + count);
    const wchar_t* styles[] = {L"blue", L"black", L"aqua", L"silver"};
    int failures = 0;
    for (int style = 0; style < 4; ++style) {
        failures += WriteFrame(arguments[1], style, styles[style], percent, width, words) ? 0 : 1;
    }
    environment.TearDown();
    return failures == 0 ? 0 : 1;
}
