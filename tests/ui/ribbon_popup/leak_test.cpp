// What hundreds of pop-ups leave behind: nothing. A program beside the test that takes the foreground closes one now
// and then, which is no reason to count less of them.
#include <gtest/gtest.h>

#include <oleacc.h>

#include <functional>

#include "tests/support/gui_objects.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

class PopupsInUse : public RibbonPopupTest {
protected:
    PopupsInUse() : m_isInitialized(SUCCEEDED(::CoInitialize(nullptr))) {}
    ~PopupsInUse() override {
        if (m_isInitialized) {
            ::CoUninitialize();
        }
    }

    void ExpectNothingLeft(const std::function<void()>& open) {
        Show(open, 5);
        EXPECT_TRUE(LeavesNothingBehind([&] { EXPECT_GT(Show(open, 150), 75) << "most of them were seen"; }));
    }

private:
    /// How many were still open when they had been used.
    int Show(const std::function<void()>& open, int times) {
        int seen = 0;
        for (int i = 0; i < times; ++i) {
            open();
            if (OpenCount() > 0) {
                Use();
                ++seen;
            }
            CMFCRibbonPanelMenu::DismissAll();
            PumpPending();
        }
        return seen;
    }
    void Use() {
        CMFCRibbonPanelMenuBar& bar = PopupBar();
        const HWND window = bar;
        CMFCRibbonPanelMenu::ElementArray elements;
        bar.GetElements(elements);
        m_pointer.MoveTo(window, elements[0]->GetRect().CenterPoint());
        void* object = nullptr;
        if (SUCCEEDED(::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                                   &object))) {
            static_cast<IAccessible*>(object)->Release();
        }
        ::UpdateWindow(window);
    }

    bool m_isInitialized;
};

TEST_F(PopupsInUse, MenusWithNestedOnesLeaveNothingBehind) {
    ExpectNothingLeft([this] {
        Shapes().OnShowPopupMenu();
        SubItem(3).OnShowPopupMenu();
    });
}

TEST_F(PopupsInUse, PanelsWithEditsLeaveNothingBehind) {
    CMFCRibbonPanel& panel = Collapse(1); // with an edit
    ExpectNothingLeft([&] { panel.ShowPopup(); });
}

TEST_F(PopupsInUse, ApplicationMenusWithRecentFilesLeaveNothingBehind) {
    CMFCRibbonApplicationButton button;
    Bar().SetApplicationButton(&button, CSize(44, 24));
    CMFCRibbonMainPanel* main = Bar().AddMainCategory(L"Main", 0, 0);
    main->Add(new CMFCRibbonButton(kLine, L"New"));
    main->AddRecentFilesList(L"Recent");
    main->AddToBottom(new CMFCRibbonMainPanelButton(kStar, L"Exit", -1));
    Bar().RecalcLayout();
    PumpPending();
    ExpectNothingLeft([&] { button.OnShowPopupMenu(); });
    Bar().SetApplicationButton(nullptr, CSize(0, 0));
}

} // namespace
