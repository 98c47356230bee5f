// The caption that the system draws, which is to be as dark as the look of what the frame holds.
#include "tests/support/import_spy.h"
#include "tests/support/module_imports.h"
#include "tests/ui/frame_caption/caption_frame.h"

#include "afxvisualmanager.h"
#include "fx/dark_caption.h"

#include <dwmapi.h>

#include <map>
#include <memory>

namespace {

/// What the framework last asked of the system for each window.
std::map<HWND, bool> g_isDark;
/// The attributes that the system knows end here.
constexpr DWORD kToday = 100;
DWORD g_lastKnown = kToday;

HRESULT WINAPI NoteAttribute(HWND window, DWORD attribute, LPCVOID value, DWORD size) {
    if (attribute > g_lastKnown || size != sizeof(BOOL)) {
        return E_INVALIDARG;
    }
    g_isDark[window] = *static_cast<const BOOL*>(value) != FALSE;
    return S_OK;
}

/// A look whose lists are as dark as `ground`.
class LookOfGround : public CMFCVisualManager {
    DECLARE_DYNCREATE(LookOfGround)

public:
    static inline COLORREF ground = RGB(20, 20, 20);
    COLORREF OnFillCommandsListBackground(CDC* dc, CRect rect, BOOL) override {
        dc->FillSolidRect(rect, ground);
        return RGB(128, 128, 128);
    }
};
IMPLEMENT_DYNCREATE(LookOfGround, CMFCVisualManager)

class DarkCaption : public ::testing::Test {
protected:
    DarkCaption() {
        void** const slot = FindImport(::GetModuleHandleW(L"bwframework.dll"), "DwmSetWindowAttribute");
        if (slot != nullptr) {
            spy = std::make_unique<ImportSpy<decltype(NoteAttribute)>>(*slot, NoteAttribute);
        }
        g_isDark.clear();
        g_lastKnown = kToday;
    }
    ~DarkCaption() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
    }
    static void Look(COLORREF ground) {
        LookOfGround::ground = ground;
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(LookOfGround));
    }
    std::unique_ptr<ImportSpy<decltype(NoteAttribute)>> spy;
};

TEST_F(DarkCaption, AFrameIsShownWithTheCaptionOfItsLook) {
    ASSERT_TRUE(spy);
    Look(RGB(20, 20, 20));
    CaptionFrame<CFrameWndEx> frame(FALSE);
    frame.Show();
    ASSERT_TRUE(g_isDark.contains(frame.m_hWnd));
    EXPECT_TRUE(g_isDark[frame.m_hWnd]);
}

TEST_F(DarkCaption, FollowsEveryChangeOfTheLook) {
    ASSERT_TRUE(spy);
    Look(RGB(240, 240, 240));
    CaptionFrame<CMDIFrameWndEx> frame(FALSE);
    frame.Show();
    EXPECT_FALSE(g_isDark[frame.m_hWnd]);
    Look(RGB(20, 20, 20));
    EXPECT_TRUE(g_isDark[frame.m_hWnd]);
    Look(RGB(240, 240, 240));
    EXPECT_FALSE(g_isDark[frame.m_hWnd]);
}

TEST_F(DarkCaption, IsAskedOfEarlierSystemsByTheNumberThatTheyKnow) {
    ASSERT_TRUE(spy);
    TestWindow window;
    g_lastKnown = 19;
    EXPECT_TRUE(fx::SetDarkCaption(window.m_hWnd, true));
    EXPECT_TRUE(g_isDark[window.m_hWnd]);
}

TEST_F(DarkCaption, ASystemWithoutItLeavesTheWindowAsItIs) {
    ASSERT_TRUE(spy);
    TestWindow window;
    g_lastKnown = 18;
    EXPECT_FALSE(fx::SetDarkCaption(window.m_hWnd, true));
    EXPECT_TRUE(g_isDark.empty());
}

} // namespace
