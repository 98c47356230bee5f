#pragma once

#include "add_ribbon_bar.h"
#include "library_context.h"
#include "menu_id_mgr.h"
#include "ribbon_icon_button.h"
#include "ribbon_label_ex.h"
#include "ribbon_slider_sync.h"
#include "ribbon_status_bar_ex.h"
#include "tests/support/icon_writer.h"
#include "tests/support/message_pump.h"
#include "tests/support/translation_tables.h"
#include "tests/support/ui_test.h"

#include <afxframewndex.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A bar that shows what a derived one works on.
class OpenStatusBarEx : public CMFCRibbonStatusBarEx {
public:
    using CMFCRibbonStatusBarEx::GetSizeGripWidth;
    using CMFCRibbonStatusBarEx::m_informationPlace;
    using CMFCRibbonStatusBarEx::m_rectSizeGrip;
    using CMFCRibbonStatusBarEx::RemoveAllEx;

    int layouts = 0;
    int paints = 0;
    std::function<void()> onLayout; ///< what the host does in the next one

    void RecalcLayout() override {
        ++layouts;
        if (const auto once = std::exchange(onLayout, nullptr)) {
            once();
        }
        CMFCRibbonStatusBarEx::RecalcLayout();
    }
    void DoPaint(CDC* dc) override {
        ++paints;
        CMFCRibbonStatusBarEx::DoPaint(dc);
    }
};

/// Lives on the stack: its window's end does not delete it. Keeps the commands that it gets.
class StatusHostFrame : public CFrameWndEx {
public:
    std::vector<UINT> commands;

protected:
    void PostNcDestroy() override {}
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && lParam == 0 && HIWORD(wParam) == 0) {
            commands.push_back(LOWORD(wParam));
            return 0;
        }
        return CFrameWndEx::WindowProc(message, wParam, lParam);
    }
};

/// A frame with an extended status bar, an installation directory of its own and an empty registry.
class ExtendedStatus : public testing::Test {
protected:
    using Record = CAddRibbonBar::_RibbonInfo;

    ExtendedStatus() {
        CMenuIdMgr::Destroy();
        CAddRibbonBar::m_smStatusExBtns.clear();
    }
    ~ExtendedStatus() override {
        if (frame.GetSafeHwnd() != nullptr) {
            frame.DestroyWindow();
        }
        CMenuIdMgr::Destroy();
        CAddRibbonBar::m_smStatusExBtns.clear();
        PumpPending();
    }
    void SetUp() override {
        ASSERT_TRUE(frame.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 900, 500)));
        ASSERT_TRUE(bar.Create(&frame));
        frame.RecalcLayout();
        PumpPending();
    }

    static Record Row(const std::wstring& keyword, const std::wstring& type = L"", const std::wstring& name = L"") {
        Record record;
        record.keyword = keyword;
        record.type = type;
        record.name = name.empty() ? keyword : name;
        record.tooltip = L"tip of " + keyword;
        return record;
    }
    static void Register(const std::wstring& keyword, int id) {
        CMenuIdMgr::Ins()->Add(keyword, id, keyword, L"", L"", L"", L"");
    }
    /// An application of that key, with the key as its name unless another is given.
    static void Application(const std::wstring& key, std::vector<Record> records, const std::wstring& name = L"") {
        CAddRibbonBar::m_smStatusExBtns[key] = {name.empty() ? key : name, std::move(records)};
    }
    /// Two applications: "one" has a label, a separator and the slider, "two" the slider and a button.
    static void TwoApplications() {
        Register(L"Place", 501);
        Register(L"Zoom", 502);
        Register(L"Light", 503);
        Application(L"one", {Row(L"Place", L"label"), Row(L"separator"), Row(L"Zoom", L"slider")});
        Application(L"two", {Row(L"Zoom", L"slider"), Row(L"Light", L"button")});
    }
    /// Which extended elements are set visible, in order, as '1' and '0'.
    std::string Shown() {
        std::string shown;
        for (int index = 0; index < bar.GetExCount(); ++index) {
            shown += bar.GetExElement(index)->IsVisible() ? '1' : '0';
        }
        return shown;
    }
    template <class Element>
    Element* ExElement(int index) {
        return DYNAMIC_DOWNCAST(Element, bar.GetExElement(index));
    }
    /// Writes an icon to where a configured path of that picture leads.
    static void WriteIcon16(const std::wstring& picture, std::string_view bytes = {}) {
        const std::filesystem::path file(GetIconPathStr(picture, 16).GetString());
        std::filesystem::create_directories(file.parent_path());
        const std::string icon = MakeIconFile({{16, {0xC81E1E, 0xC81E1E}}});
        const std::string_view written = bytes.empty() ? std::string_view(icon) : bytes;
        std::ofstream(file, std::ios::binary).write(written.data(), static_cast<std::streamsize>(written.size()));
    }
    CMFCRibbonButton& AddMain(LPCTSTR text) {
        auto* const button = new CMFCRibbonButton(900, text);
        bar.AddElement(button, L"");
        return *button;
    }

    TranslatedInstallation installation;
    StatusHostFrame frame;
    OpenStatusBarEx bar;
};
