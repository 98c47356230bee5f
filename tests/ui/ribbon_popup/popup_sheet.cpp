// Writes pictures of a frame's pop-ups in all styles, for people to look at.   ribbon_popup_sheet DIR PERCENT
#include <afxvisualmanageroffice2007.h>

#include <string>

#include "tests/support/png_file.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

std::wstring g_directory;
int g_percent = 100;

class PopupSheet : public RibbonPopupTest {
protected:
    /// The application menu with more rows than the screen has room for, scrolled a little.
    void WriteHighMenu(CMFCRibbonApplicationButton& application, CMFCRibbonMainPanel& main, const std::wstring& name) {
        const int before = main.GetCount();
        for (UINT index = 0; index < 40; ++index) {
            main.Add(new CMFCRibbonButton(5200 + index, L"Another row", ::LoadIcon(nullptr, IDI_INFORMATION)));
            main.AddToRight(new CMFCRibbonButton(5300 + index, L"Another letter.txt"), 200);
        }
        Click(application);
        PopupBar().Scroll(3);
        Write(name);
        CMFCRibbonPanelMenu::DismissAll();
        while (main.GetCount() > before) {
            main.Remove(main.GetCount() - 1);
        }
        PumpPending();
    }
    /// The open pop-ups side by side.
    void Write(const std::wstring& name) {
        std::vector<CMFCRibbonPanelMenu*> menus;
        for (CMFCRibbonPanelMenu* menu = CMFCRibbonPanelMenu::GetDeepest(); menu != nullptr;
             menu = menu->GetParentMenu()) {
            menus.insert(menus.begin(), menu);
        }
        CSize total(10, 0);
        for (CMFCRibbonPanelMenu* menu : menus) {
            CRect rect;
            menu->GetWindowRect(rect);
            total.cx += rect.Width() + 10;
            total.cy = std::max<LONG>(total.cy, rect.Height() + 20);
        }
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), total.cx, -total.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        HGDIOBJ old = ::SelectObject(dc.GetSafeHdc(), bitmap);
        dc.FillSolidRect(CRect(CPoint(0, 0), total), RGB(255, 255, 255));
        int x = 10;
        for (CMFCRibbonPanelMenu* menu : menus) {
            CRect rect;
            menu->GetWindowRect(rect);
            dc.SetViewportOrg(x, 10);
            CMFCVisualManager::GetInstance()->OnDrawMenuBorder(&dc, menu, CRect(CPoint(0, 0), rect.Size()));
            CRect bar;
            menu->GetRibbonMenuBar().GetWindowRect(bar);
            dc.SetViewportOrg(x + bar.left - rect.left, 10 + bar.top - rect.top);
            ::IntersectClipRect(dc.GetSafeHdc(), 0, 0, bar.Width(), bar.Height());
            menu->GetRibbonMenuBar().DoPaint(&dc);
            ::SelectClipRgn(dc.GetSafeHdc(), nullptr);
            x += rect.Width() + 10;
        }
        ::SelectObject(dc.GetSafeHdc(), old);
        EXPECT_TRUE(WritePng(bitmap, g_directory + L"\\" + name + L".png"));
        ::DeleteObject(bitmap);
        WriteScreen(menus, L"screen-" + name);
    }
    /// As they stand on the screen, with their shadows; a program without display sees nothing there.
    void WriteScreen(const std::vector<CMFCRibbonPanelMenu*>& menus, const std::wstring& name) {
        CRect area(0, 0, 0, 0);
        for (CMFCRibbonPanelMenu* menu : menus) {
            CRect rect;
            menu->GetWindowRect(rect);
            area.UnionRect(area, rect);
        }
        area.InflateRect(16, 16);
        area.IntersectRect(area, CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)));
        PumpPending();
        CWindowDC screen(nullptr);
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, area.Width(), area.Height());
        CBitmap* old = dc.SelectObject(&bitmap);
        dc.BitBlt(0, 0, area.Width(), area.Height(), &screen, area.left, area.top, SRCCOPY);
        dc.SelectObject(old);
        EXPECT_TRUE(WritePng(bitmap, g_directory + L"\\" + name + L".png"));
    }
};

TEST_F(PopupSheet, AllStyles) {
    EXPECT_TRUE(afxGlobalData.SetRibbonImageScale(g_percent / 100.0));
    const wchar_t* names[] = {L"blue", L"black", L"aqua", L"silver"};
    const HICON icon = ::LoadIcon(nullptr, IDI_INFORMATION);
    Shapes().AddSubItem(new CMFCRibbonLabel(L"Heading"));
    Shapes().AddSubItem(new CMFCRibbonButton(5000, L"With icon\tCtrl+I", icon));
    auto* large = new CMFCRibbonButton(5001, L"Large row", icon, TRUE);
    large->SetAlwaysLargeImage();
    large->SetDescription(L"What the large row does");
    Shapes().AddSubItem(large);
    auto* split = new CMFCRibbonButton(5002, L"Split row", icon);
    split->AddSubItem(new CMFCRibbonButton(5003, L"x"));
    split->SetDefaultCommand();
    Shapes().AddSubItem(split);
    Shapes().AddSubItem(new CMFCRibbonCheckBox(5004, L"Check box"));
    Shapes().AddSubItem(new CMFCRibbonSlider(5005, 90));
    auto* group = new CMFCRibbonButtonsGroup;
    for (UINT i = 0; i < 3; ++i) {
        group->AddButton(new CMFCRibbonButton(5010 + i, L"", icon));
    }
    Shapes().AddSubItem(group);
    CMFCRibbonApplicationButton application;
    Bar().SetApplicationButton(&application, CSize(44, 24));
    CMFCRibbonMainPanel* main = Bar().AddMainCategory(L"Main", 0, 0);
    main->Add(new CMFCRibbonButton(5100, L"New", icon));
    main->Add(new CMFCRibbonButton(5101, L"Open", icon));
    main->Add(new CMFCRibbonSeparator(TRUE));
    main->Add(new CMFCRibbonButton(5102, L"Print", icon));
    main->AddToRight(new CMFCRibbonLabel(L"Recent documents"), 200);
    main->AddToRight(new CMFCRibbonButton(5103, L"1 Letter.txt"), 200);
    main->AddToBottom(new CMFCRibbonMainPanelButton(5104, L"Options", -1));
    main->AddToBottom(new CMFCRibbonMainPanelButton(5105, L"Exit", -1));
    m_frame->checkedCommand = kLine;
    for (int style = 0; style < 4; ++style) {
        CMFCVisualManagerOffice2007::SetStyle(static_cast<CMFCVisualManagerOffice2007::Style>(style));
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        const std::wstring suffix = std::wstring(names[style]) + L"-" + std::to_wstring(g_percent);
        SetClientWidth(1400);
        Bar().ForceRecalcLayout();
        Click(Shapes());
        PopupBar().Highlight(&SubItem(3));
        Press(VK_RIGHT);
        Write(L"sub-items-" + suffix);
        CMFCRibbonPanelMenu::DismissAll();
        Click(application);
        PopupBar().Highlight(main->GetElement(1));
        Write(L"main-" + suffix);
        CMFCRibbonPanelMenu::DismissAll();
        WriteHighMenu(application, *main, L"main-high-" + suffix);
        Collapse(0);
        Click(Bar().GetCategory(0)->GetPanel(0)->GetDefaultButton());
        Write(L"panel-" + suffix);
        CMFCRibbonPanelMenu::DismissAll();
        Click(Collapse(1).GetDefaultButton());
        Write(L"panel-text-" + suffix);
        CMFCRibbonPanelMenu::DismissAll();
    }
    Bar().SetApplicationButton(nullptr, CSize(0, 0));
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3) {
        std::fputs("usage: ribbon_popup_sheet DIR PERCENT\n", stderr);
        return 2;
    }
    g_directory.assign(arguments[1], arguments[1] + strlen(arguments[1]));
    g_percent = atoi(arguments[2]);
    const ScopedGdiplus gdiplus;
    int one = 1;
    testing::InitGoogleTest(&one, arguments);
    return RUN_ALL_TESTS();
}
