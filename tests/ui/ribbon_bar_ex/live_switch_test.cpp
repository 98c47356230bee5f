// The skins switched while the whole frame is in use: what is shown afterwards is what a frame shows that was made in
// that skin, and nothing is left behind.
#include "ribbon_bar_ex.h"
#include "ribbon_check_combo.h"
#include "tests/support/canvas.h"
#include "tests/support/collapsed_panel.h"
#include "tests/support/gui_objects.h"
#include "tests/support/message_pump.h"
#include "tests/support/picture_file.h"
#include "tests/support/pointer.h"

#include <afxcontrolbars.h>
#include <afxribboncheckbox.h>
#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonpanelmenu.h>
#include <afxribbonslider.h>

#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int kBlack = 0;
constexpr int kSilver = 1;
constexpr UINT kFirstId = 2000;
constexpr UINT kMenuId = 2100;

/// A frame whose caption is the bar's, with a toolbar below.
class WholeFrame : public CFrameWndEx {
public:
    CMFCRibbonBarEx bar{TRUE};
    CMFCToolBar tools;
    CMFCRibbonButton* menuButton = nullptr;
    CMFCRibbonCheckComb* combo = nullptr;

    bool Make() {
        if (!Create(nullptr, L"Whole frame", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(0, 0, 900, 420)) ||
            !bar.Create(this) || !tools.CreateEx(this, TBSTYLE_FLAT)) {
            return false;
        }
        Fill();
        RecalcLayout();
        ShowWindow(SW_SHOW);
        PumpPending();
        return true;
    }

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (code != CN_UPDATE_COMMAND_UI || extra == nullptr) {
            return CFrameWndEx::OnCmdMsg(id, code, extra, info);
        }
        auto& update = *static_cast<CCmdUI*>(extra);
        update.Enable(id % 5 != 4);
        update.SetCheck(id % 5 == 3);
        return TRUE;
    }

private:
    void Fill() {
        CMFCRibbonCategory* const home = bar.AddCategory(L"Home", 0, 0);
        CMFCRibbonPanel* const first = home->AddPanel(L"Collapses");
        for (UINT id = kFirstId; id < kFirstId + 5; ++id) {
            first->Add(new CMFCRibbonButton(id, (L"Button " + std::to_wstring(id)).c_str()));
        }
        CMFCRibbonPanel* const second = home->AddPanel(L"Elements");
        menuButton = new CMFCRibbonButton(kMenuId, L"Menu");
        for (UINT id = kMenuId + 1; id < kMenuId + 6; ++id) {
            menuButton->AddSubItem(new CMFCRibbonButton(id, (L"Row " + std::to_wstring(id)).c_str()));
        }
        second->Add(menuButton);
        combo = new CMFCRibbonCheckComb(kMenuId + 10, FALSE, 110);
        for (const wchar_t* const item : {L"First", L"Second", L"Third"}) {
            combo->AddItem(item);
        }
        second->Add(combo);
        auto* const edit = new CMFCRibbonEdit(kMenuId + 11, 90, L"Edit");
        edit->SetEditText(L"text");
        second->Add(edit);
        second->Add(new CMFCRibbonCheckBox(kMenuId + 13, L"Checked"));
        second->Add(new CMFCRibbonLabel(L"Label"));
        second->Add(new CMFCRibbonSlider(kMenuId + 15, 90));
        bar.AddCategory(L"View", 0, 0)->AddPanel(L"Panel")->Add(new CMFCRibbonButton(kMenuId + 20, L"Other"));
        bar.setPath(L"all", 0, 1, {kFirstId, kFirstId + 3});
        bar.ShowPath(L"all");
        for (UINT id = kMenuId + 30; id < kMenuId + 35; ++id) {
            CMFCToolBarButton button(id, -1, (L"Tool " + std::to_wstring(id)).c_str());
            button.m_bText = TRUE;
            tools.InsertButton(button);
        }
        tools.EnableDocking(CBRS_ALIGN_ANY);
        EnableDocking(CBRS_ALIGN_ANY);
        DockPane(&tools);
    }
};

/// What the windows of a frame show, one after the other.
struct Picture {
    CSize size;
    std::unique_ptr<Canvas> canvas;
    std::string what;
};

std::vector<Picture> PhotographWindows(CWnd& frame) {
    PumpPending();
    std::vector<Picture> pictures;
    const auto photograph = [&pictures](CWnd& window) {
        ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        CRect rect;
        window.GetWindowRect(rect);
        Picture picture{rect.Size(), std::make_unique<Canvas>(rect.Size()), window.GetRuntimeClass()->m_lpszClassName};
        const HDC source = ::GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE);
        CRgn shape; // rounded corners show what lies behind
        shape.CreateRectRgn(0, 0, 0, 0);
        if (::GetWindowRgn(window, shape) != ERROR) {
            picture.canvas->Dc()->SelectClipRgn(&shape);
        }
        ::BitBlt(picture.canvas->Dc()->GetSafeHdc(), 0, 0, rect.Width(), rect.Height(), source, 0, 0, SRCCOPY);
        ::ReleaseDC(window, source);
        pictures.push_back(std::move(picture));
    };
    photograph(frame);
    if (CMFCPopupMenu* const popup = CMFCPopupMenu::GetActiveMenu(); popup != nullptr) {
        photograph(*popup);
    }
    return pictures;
}

testing::AssertionResult ShowTheSame(const std::vector<Picture>& one, const std::vector<Picture>& other) {
    if (one.size() != other.size()) {
        return testing::AssertionFailure() << one.size() << " windows against " << other.size();
    }
    for (std::size_t index = 0; index < one.size(); ++index) {
        const Picture& left = one[index];
        const Picture& right = other[index];
        if (left.size != right.size) {
            return testing::AssertionFailure() << left.what << ": " << left.size.cx << " x " << left.size.cy
                                               << " against " << right.size.cx << " x " << right.size.cy;
        }
        long differing = 0;
        CRect where(0, 0, 0, 0);
        for (int y = 0; y < left.size.cy; ++y) {
            for (int x = 0; x < left.size.cx; ++x) {
                if (left.canvas->At(x, y) != right.canvas->At(x, y)) {
                    ++differing;
                    where.UnionRect(where, CRect(x, y, x + 1, y + 1));
                }
            }
        }
        if (differing != 0) {
            return testing::AssertionFailure()
                   << left.what << ": " << differing << " pixels of " << left.size.cx << " x " << left.size.cy << " in "
                   << where.left << "," << where.top << " to " << where.right << "," << where.bottom << ", the first "
                   << std::hex << left.canvas->At(where.left, where.top) << " against "
                   << right.canvas->At(where.left, where.top);
        }
    }
    return testing::AssertionSuccess();
}

/// How the frame is in use.
struct Use {
    const char* name;
    void (*begin)(WholeFrame& frame, Pointer& pointer);
    bool opensPopup = false;
};

void DoNothing(WholeFrame& /*frame*/, Pointer& /*pointer*/) {}

CPoint MiddleOf(const CMFCRibbonBaseElement& element) { return CRect(element.GetRect()).CenterPoint(); }

void OpenMenu(WholeFrame& frame, Pointer& pointer) { pointer.Click(frame.bar, MiddleOf(*frame.menuButton)); }

void DropList(WholeFrame& frame, Pointer& /*pointer*/) { frame.combo->DropDownList(); }

void OpenPanel(WholeFrame& frame, Pointer& pointer) {
    CMFCRibbonPanel& panel = CollapsePanel(*frame.bar.GetCategory(0), 0, [&frame](int width) {
        frame.SetWindowPos(nullptr, 0, 0, width, 420, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        PumpPending();
    });
    pointer.Click(frame.bar, MiddleOf(panel.GetDefaultButton()));
}

void Minimize(WholeFrame& frame, Pointer& /*pointer*/) {
    frame.bar.ToggleMimimizeState();
    frame.RecalcLayout();
}

void OpenPage(WholeFrame& frame, Pointer& pointer) {
    Minimize(frame, pointer);
    PumpPending();
    pointer.Click(frame.bar, CRect(frame.bar.GetCategory(0)->GetTabRect()).CenterPoint());
}

void Maximize(WholeFrame& frame, Pointer& /*pointer*/) { frame.ShowWindow(SW_MAXIMIZE); }

void ShowTips(WholeFrame& frame, Pointer& /*pointer*/) { frame.bar.ShowKeyTips(); }

void GoBelow(WholeFrame& frame, Pointer& /*pointer*/) {
    frame.bar.SetQuickAccessToolbarOnTop(FALSE);
    frame.RecalcLayout();
}

void OpenQuickAccessMenu(WholeFrame& frame, Pointer& /*pointer*/) {
    CRect rect;
    frame.bar.GetWindowRect(rect);
    frame.bar.OnShowRibbonQATMenu(&frame.bar, rect.left + 100, rect.top + 40, nullptr);
}

constexpr Use kOpenUses[] = {{"OpenMenu", OpenMenu, true},
                             {"DroppedList", DropList, true},
                             {"CollapsedPanel", OpenPanel, true},
                             {"PageOfMinimizedRibbon", OpenPage, true},
                             {"MaximizedFrame", Maximize}};
constexpr Use kOtherUses[] = {{"AtRest", DoNothing},
                              {"MinimizedRibbon", Minimize},
                              {"KeyTips", ShowTips},
                              {"QuickAccessBelow", GoBelow},
                              {"QuickAccessMenu", OpenQuickAccessMenu, true}};

class LiveSwitch : public testing::TestWithParam<Use> {
protected:
    LiveSwitch() { ::SetCursorPos(890, 590); }
    ~LiveSwitch() override {
        Close();
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        CMFCVisualManagerOffice2007::CleanStyle();
    }
    /// A frame made in the skin, in use.
    void Open(int style) {
        // As a host starts: the skin first, then its windows.
        CMFCRibbonBarEx().ChangeSkinColor(style, true);
        m_frame = new WholeFrame;
        ASSERT_TRUE(m_frame->Make());
        m_window = m_frame->GetSafeHwnd();
        GetParam().begin(*m_frame, m_pointer);
        PumpPending();
        m_popup = ActivePopup();
        ASSERT_EQ(m_popup != nullptr, GetParam().opensPopup);
    }
    static HWND ActivePopup() {
        CMFCPopupMenu* const popup = CMFCPopupMenu::GetActiveMenu();
        return popup != nullptr && popup->IsWindowVisible() ? popup->GetSafeHwnd() : nullptr;
    }
    /// The frame, and the pop-up that has been open since Open.
    std::vector<Picture> Photograph() const {
        EXPECT_EQ(ActivePopup(), m_popup);
        std::vector<Picture> pictures = PhotographWindows(*m_frame);
        EXPECT_EQ(pictures.size(), GetParam().opensPopup ? 2U : 1U);
        return pictures;
    }
    void Close() {
        CMFCPopupMenu::CloseAll();
        if (::IsWindow(m_window)) {
            m_frame->DestroyWindow();
        }
        PumpPending();
        m_window = nullptr;
    }
    static void Save(const std::vector<Picture>& pictures, const std::wstring& name) {
        for (std::size_t index = 0; index < pictures.size(); ++index) {
            pictures[index].canvas->Close();
            const std::string use = GetParam().name;
            SavePicture(pictures[index].canvas->Bitmap(),
                        std::wstring(use.begin(), use.end()) + L"-" + name + L"-" + std::to_wstring(index) + L".png");
        }
    }

    WholeFrame* m_frame = nullptr;
    HWND m_window = nullptr;
    HWND m_popup = nullptr; ///< that the use has opened
    Pointer m_pointer;
};

TEST_P(LiveSwitch, EverythingShowsWhatAFrameShowsThatWasMadeInTheSkin) {
    for (const int style : {kSilver, kBlack}) {
        Open(style);
        const std::vector<Picture> fresh = Photograph();
        Close();
        Open(style == kSilver ? kBlack : kSilver);
        m_frame->bar.ChangeSkinColor(style, true);
        const std::vector<Picture> switched = Photograph();
        EXPECT_TRUE(ShowTheSame(fresh, switched)) << "style " << style;
        // And after a way there and back.
        m_frame->bar.ChangeSkinColor(style == kSilver ? kBlack : kSilver, true);
        PumpPending();
        m_frame->bar.ChangeSkinColor(style, true);
        EXPECT_TRUE(ShowTheSame(fresh, Photograph())) << "style " << style;
        Save(fresh, L"fresh" + std::to_wstring(style));
        Save(switched, L"switched" + std::to_wstring(style));
        Close();
    }
}

/// The uses in which something stands open, or is another size.
class ManySwitches : public LiveSwitch {};

TEST_P(ManySwitches, AThousandSwitchesLeaveNothingBehindAndShowWhatTheFirstSkinShowed) {
    Open(kSilver);
    const std::vector<Picture> fresh = Photograph();
    EXPECT_TRUE(RepeatedLeavesNothingBehind(10, 1000, [this](int round) {
        m_frame->bar.ChangeSkinColor(round % 2, round % 3 == 0);
        if (round % 20 < 2) {
            PumpPending(); // paints
        }
    }));
    EXPECT_TRUE(ShowTheSame(fresh, Photograph())) << "the last one was to silver";
}

std::string NameOf(const testing::TestParamInfo<Use>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Open, LiveSwitch, testing::ValuesIn(kOpenUses), NameOf);
INSTANTIATE_TEST_SUITE_P(Other, LiveSwitch, testing::ValuesIn(kOtherUses), NameOf);
INSTANTIATE_TEST_SUITE_P(, ManySwitches, testing::ValuesIn(kOpenUses), NameOf);

} // namespace
