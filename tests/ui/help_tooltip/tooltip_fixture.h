#pragma once

#include "add_ribbon_bar.h"
#include "library_context.h"
#include "menu_id_mgr.h"
#include "ribbon_icon_button.h"
#include "tooltip_ctrl_ex.h"

#include "skins/tooltip_screen.h"

#include "tests/support/icon_handle.h"
#include "tests/support/icon_writer.h"
#include "tests/support/ribbon_host.h"
#include "tests/support/temporary_directory.h"

#include <afxtooltipmanager.h>

#include <memory>
#include <string>

inline void PrintTo(const CRect& rect, std::ostream* out) {
    *out << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
}

/// The folder of the help videos, which the library asks for once in a process: it is recorded for the first tooltip
/// and taken away again, for the registry is that of all tests of a machine.
class HelpFolder {
public:
    static HelpFolder& Get() {
        static HelpFolder folder;
        return folder;
    }
    void Write(const std::string& name) const { m_directory.Write("Media/" + name, "video"); }
    void Remove(const std::string& name) const { std::filesystem::remove_all(m_directory.Path() / "Media" / name); }

private:
    HelpFolder() {
        constexpr const wchar_t* key = L"Software\\HALVORN\\Tessaly";
        const HANDLE turn = ::CreateMutexW(nullptr, FALSE, L"barwright-media-folder-test");
        ::WaitForSingleObject(turn, INFINITE);
        const std::wstring path = m_directory.Path().wstring();
        EXPECT_EQ(::RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, L"FlashPath", REG_SZ, path.c_str(),
                                    static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
        const CToolTipCtrlEx first;
        ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, key);
        ::ReleaseMutex(turn);
        ::CloseHandle(turn);
    }

    TemporaryDirectory m_directory;
};

/// A monitor, a pointer.
class FakeScreen : public TooltipScreen {
public:
    FakeScreen() { Use(this); }
    FakeScreen(const FakeScreen&) = delete;
    FakeScreen& operator=(const FakeScreen&) = delete;
    ~FakeScreen() override { Use(nullptr); }

    CRect WorkAreaAt(CPoint point) const override {
        asked = point;
        return point.x < 0 ? second : first;
    }
    CPoint Pointer() const override { return pointer; }
    int PointerHeight() const override { return 32; }

    CRect first = CRect(0, 0, 1600, 1160);
    CRect second = CRect(-1280, 0, 0, 900);
    CPoint pointer = CPoint(300, 200);
    mutable CPoint asked = CPoint(0, 0);
};

/// Opens what the tests look at.
class ShownTip : public CToolTipCtrlEx {
public:
    using CToolTipCtrlEx::GetIconSize;
    using CToolTipCtrlEx::m_iconSize;
    using CToolTipCtrlEx::m_margin;
    using CToolTipCtrlEx::m_Params;
    using CToolTipCtrlEx::m_pHotButton;
    using CToolTipCtrlEx::OnDrawDescription;
    using CToolTipCtrlEx::OnDrawLabel;
    using CToolTipCtrlEx::OnShow;
};

/// A ribbon with an icon-file button, "Open", and a tooltip on it. Its help file does not exist until AddHelp.
class HelpTooltip : public testing::Test {
protected:
    static constexpr UINT kCommand = 41500;
    static constexpr COLORREF kIconColour = RGB(0, 0, 200);

    void SetUp() override {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0));
        CMenuIdMgr::Ins()->Add(L"OpenKey", kCommand, L"Open", L"", L"", L"", L"open.swf");
        const IconColours blue{0x0000C8, 0x0000C8};
        m_icon32 = m_directory.Write("32.ico", MakeIconFile(32, blue)).c_str();
        m_icon16 = m_directory.Write("16.ico", MakeIconFile(16, blue)).c_str();
        CMFCToolTipInfo look;
        look.m_bRoundedCorners = TRUE;
        look.m_clrFill = RGB(250, 250, 250);
        look.m_clrText = RGB(10, 10, 10);
        look.m_clrBorder = RGB(120, 120, 120);
        m_tip.SetParams(&look);
        ASSERT_TRUE(m_tip.Create(&m_host.Bar(), TTS_ALWAYSTIP | TTS_NOPREFIX));
        UseLargeIcon();
        m_tip.SetDescription(CAddRibbonBar::m_strHelpF1);
    }
    ~HelpTooltip() override {
        m_tip.DestroyWindow();
        m_help.Remove("open.swf");
        CToolTipCtrlEx::m_hIconLargeBottom = nullptr;
        CToolTipCtrlEx::m_hIconSmallBottom = nullptr;
        CToolTipCtrlEx::m_sStrGlobleDesciption.Empty();
        CMenuIdMgr::Destroy();
        afxGlobalData.SetRibbonImageScale(0);
    }
    void AddHelp() const { m_help.Write("open.swf"); }
    void UseLargeIcon() {
        UseButton(std::make_unique<CMFCRibbonUNIcoButton>(kCommand, L"Open", m_icon32, FALSE, m_icon16));
    }
    void UseSmallIcon() {
        auto button = std::make_unique<CMFCRibbonSmallButton>(kCommand, L"Open", m_icon16, FALSE, CString());
        button->SetSmallMode();
        UseButton(std::move(button));
    }
    void UseButton(std::unique_ptr<CMFCRibbonButton> button) {
        m_button = &m_host.Add(std::move(button));
        m_tip.SetHotRibbonButton(m_button);
    }
    /// Shows the tooltip anew; its window on the screen.
    CRect Show(CPoint place = CPoint(60, 200), const wchar_t* label = L"Open (Ctrl+O)") {
        Hide();
        m_tip.SetLocation(place);
        TOOLINFO tool = Tool(label);
        m_tip.SendMessage(TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&tool));
        m_tip.SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
        m_tip.SendMessage(TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
        m_tip.UpdateWindow();
        CRect rect;
        m_tip.GetWindowRect(rect);
        return rect;
    }
    void Hide() {
        TOOLINFO tool = Tool(L"");
        m_tip.SendMessage(TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&tool));
    }
    TOOLINFO Tool(const wchar_t* label) {
        TOOLINFO info{};
        info.cbSize = sizeof info;
        info.hwnd = m_host.BarWindow();
        info.uId = 1;
        info.uFlags = TTF_TRACK; // no cursor moves here
        info.rect = CRect(0, 0, 1000, 100);
        info.lpszText = const_cast<wchar_t*>(label);
        return info;
    }
    CSize LabelSize() {
        CClientDC dc(&m_tip);
        return m_tip.OnDrawLabel(&dc, CRect(0, 0, 0, 0), TRUE);
    }
    CSize DescriptionSize() {
        CClientDC dc(&m_tip);
        return m_tip.OnDrawDescription(&dc, CRect(0, 0, 0, 0), TRUE);
    }

    const HelpFolder& m_help = HelpFolder::Get(); // before the first tooltip
    TemporaryDirectory m_directory;
    CString m_icon32, m_icon16;
    RibbonHost m_host;
    FakeScreen m_screen;
    ShownTip m_tip;
    CMFCRibbonButton* m_button = nullptr;
};
