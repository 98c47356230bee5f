#include <algorithm>

#include "afxvisualmanager.h"
#include "afxvisualmanageroffice2007.h"
#include "tests/support/picture_file.h"
#include "tests/ui/ribbon_keys/keyboard_fixture.h"

namespace {

/// The key tips on the screen: their rectangles in the bar's client pixels, and the elements that they belong to.
struct ShownTip {
    CRect rect;
    CMFCRibbonKeyTip* tip;
};

std::vector<ShownTip> CollectTips(CMFCRibbonBar& bar) {
    struct Search {
        CMFCRibbonBar& bar;
        std::vector<ShownTip> tips;
    } search{bar, {}};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto* found = reinterpret_cast<Search*>(parameter);
            CMFCRibbonKeyTip* tip = DYNAMIC_DOWNCAST(CMFCRibbonKeyTip, CWnd::FromHandlePermanent(window));
            if (tip != nullptr && ::IsWindowVisible(window)) {
                CRect rect;
                tip->GetWindowRect(rect);
                found->bar.ScreenToClient(rect);
                found->tips.push_back({rect, tip});
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.tips;
}

class KeyTipPicture : public KeyboardTest {
protected:
    ~KeyTipPicture() override {
        afxGlobalData.SetRibbonImageScale(0);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager));
    }

    /// Bar and tips as on the screen; written for people to look at when BARWRIGHT_PICTURES names a folder.
    void Save(const std::wstring& name) {
        CRect client;
        Bar().GetClientRect(client);
        client.bottom += afxGlobalData.ScalePixels(20);
        CClientDC screen(&Bar());
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, client.Width(), client.Height());
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap* former = dc.SelectObject(&bitmap);
        Bar().DoPaint(&dc);
        for (const ShownTip& shown : CollectTips(Bar())) {
            shown.tip->GetElement()->OnDrawKeyTip(&dc, shown.rect, shown.tip->IsMenu());
        }
        dc.SelectObject(former);
        SavePicture(static_cast<HBITMAP>(bitmap.GetSafeHandle()), name);
    }
};

TEST_F(KeyTipPicture, TipsCanBeReadInEverySkinAndAtEveryScale) {
    Bar().SetQuickAccessCommands(CommandList{commands::paste, commands::bold});
    Bar().SetElementKeys(commands::bold, L"FB");
    Bar().SetElementKeys(commands::italic, L"FI");
    for (const auto style :
         {CMFCVisualManagerOffice2007::Office2007_ObsidianBlack, CMFCVisualManagerOffice2007::Office2007_Silver}) {
        CMFCVisualManagerOffice2007::SetStyle(style);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        for (const int percent : {100, 150}) {
            afxGlobalData.SetRibbonImageScale(percent / 100.0);
            Bar().ForceRecalcLayout();
            Bar().SetKeyboardNavigationLevel(Bar().GetCategory(0));
            PumpPending();
            const std::vector<ShownTip> tips = CollectTips(Bar());
            EXPECT_GT(tips.size(), 7u);
            CClientDC dc(&Bar());
            for (const ShownTip& shown : tips) {
                const CSize text = dc.GetTextExtent(shown.tip->GetKeys());
                EXPECT_GT(shown.rect.Width(), text.cx);
                for (const ShownTip& other : tips) {
                    CRect both;
                    both.IntersectRect(shown.rect, other.rect);
                    EXPECT_TRUE(shown.tip == other.tip ||
                                2 * both.Width() * both.Height() < shown.rect.Width() * shown.rect.Height())
                        << "one hides the other";
                }
            }
            const std::wstring name = std::to_wstring(static_cast<int>(style)) + L"-" + std::to_wstring(percent);
            Save(L"keys-elements-" + name + L".png");
            Bar().SetKeyboardNavigationLevel(&Bar());
            PumpPending();
            Save(L"keys-tabs-" + name + L".png");
            Press({VK_DOWN, VK_RIGHT});
            Save(L"keys-focus-" + name + L".png");
            Press(VK_ESCAPE);
        }
    }
}

} // namespace
