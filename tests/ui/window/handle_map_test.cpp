#include "afxpriv.h"
#include "tests/support/message_pump.h"
#include "tests/support/ui_test.h"

#include <thread>

namespace {

/// A window that no object stands for.
class ForeignWindow {
public:
    explicit ForeignWindow(HWND parent)
        : m_handle(
              ::CreateWindowEx(0, L"STATIC", L"foreign", WS_CHILD, 0, 0, 10, 10, parent, nullptr, nullptr, nullptr)) {}
    ~ForeignWindow() { ::DestroyWindow(m_handle); }
    ForeignWindow(const ForeignWindow&) = delete;
    ForeignWindow& operator=(const ForeignWindow&) = delete;
    HWND Handle() const { return m_handle; }

private:
    HWND m_handle;
};

TEST(HandleMap, AForeignWindowHasNoPermanentObject) {
    TestWindow parent;
    ForeignWindow foreign(parent.m_hWnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(foreign.Handle()), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(parent.m_hWnd), &parent);
}

TEST(HandleMap, FromHandleGivesTheSameTemporaryUntilIdle) {
    TestWindow parent;
    ForeignWindow foreign(parent.m_hWnd);
    CWnd* temporary = CWnd::FromHandle(foreign.Handle());
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(CWnd::FromHandle(foreign.Handle()), temporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(foreign.Handle()), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
}

TEST(HandleMap, IdleDeletesTemporaryObjectsAndLeavesTheirWindows) {
    TestWindow parent;
    TestWindow other;
    ForeignWindow foreign(parent.m_hWnd);
    // The mark belongs to the object: it is gone with it.
    CWnd::FromHandle(foreign.Handle())->SetOwner(&other);
    EXPECT_EQ(CWnd::FromHandle(foreign.Handle())->GetOwner(), &other);
    RunIdle();
    EXPECT_TRUE(::IsWindow(foreign.Handle()));
    EXPECT_EQ(CWnd::FromHandle(foreign.Handle())->GetOwner(), &parent);
}

/// Its handler keeps a temporary object over a modal loop, in which another handler asks for one, too.
class Holder : public TestWindow {
public:
    Holder() : m_outer(m_hWnd), m_inner(m_hWnd) {}

    bool m_isHeldAlive = false;
    bool m_isOtherGone = false;

protected:
    LRESULT OnRun(WPARAM, LPARAM) {
        CWnd* const held = CWnd::FromHandle(m_outer.Handle());
        held->SetOwner(&m_mark);
        CFont* const font = CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
        PostMessage(WM_APP + 2);
        RunModalLoop();
        m_isHeldAlive = CWnd::FromHandle(m_outer.Handle())->GetOwner() == &m_mark &&
                        CWnd::FromHandle(m_outer.Handle()) == held &&
                        CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))) == font;
        m_isOtherGone = CWnd::FromHandle(m_inner.Handle())->GetOwner() == this;
        return 0;
    }
    LRESULT OnAsk(WPARAM, LPARAM) {
        CWnd::FromHandle(m_inner.Handle())->SetOwner(&m_mark);
        return 0;
    }
    LRESULT OnKickIdle(WPARAM, LPARAM count) {
        AfxGetThread()->OnIdle(static_cast<LONG>(count));
        if (count == 2) {
            EndModalLoop(0);
        }
        return count < 2;
    }
    DECLARE_MESSAGE_MAP()

private:
    TestWindow m_mark;
    ForeignWindow m_outer;
    ForeignWindow m_inner;
};

BEGIN_MESSAGE_MAP(Holder, CWnd)
ON_MESSAGE(WM_APP + 1, &Holder::OnRun)
ON_MESSAGE(WM_APP + 2, &Holder::OnAsk)
ON_MESSAGE(WM_KICKIDLE, &Holder::OnKickIdle)
END_MESSAGE_MAP()

TEST(HandleMap, IdleInAModalLoopDeletesWhatNoRunningHandlerHolds) {
    Holder holder;
    holder.SendMessage(WM_APP + 1);
    EXPECT_TRUE(holder.m_isHeldAlive);
    EXPECT_TRUE(holder.m_isOtherGone);
}

TEST(HandleMap, IdleLeavesPermanentObjects) {
    TestWindow window;
    RunIdle();
    EXPECT_EQ(CWnd::FromHandle(window.m_hWnd), &window);
}

TEST(HandleMap, IdleDeletesTemporaryMenus) {
    CMenu bar;
    bar.CreateMenu();
    const HMENU popup = ::CreatePopupMenu();
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup), L"popup");
    CMenu* temporary = bar.GetSubMenu(0);
    ASSERT_NE(temporary, nullptr);
    RunIdle();
    EXPECT_TRUE(::IsMenu(popup));
    EXPECT_EQ(bar.GetSubMenu(0)->m_hMenu, popup);
}

TEST(HandleMap, AnAttachedObjectTakesTheWindowAndADetachedOneLeavesIt) {
    TestWindow parent;
    ForeignWindow foreign(parent.m_hWnd);
    {
        CWnd object;
        EXPECT_FALSE(object.Attach(nullptr));
        EXPECT_TRUE(object.Attach(foreign.Handle()));
        EXPECT_EQ(CWnd::FromHandlePermanent(foreign.Handle()), &object);
        EXPECT_EQ(object.Detach(), foreign.Handle());
        EXPECT_EQ(object.m_hWnd, nullptr);
    }
    EXPECT_TRUE(::IsWindow(foreign.Handle()));
}

TEST(HandleMap, AnotherThreadDoesNotSeeThisThreadsObjects) {
    TestWindow window;
    CWnd* seen = &window;
    std::thread([&seen, handle = window.m_hWnd] { seen = CWnd::FromHandlePermanent(handle); }).join();
    EXPECT_EQ(seen, nullptr);
}

TEST(Family, TheOwnerIsTheOneSetElseTheParent) {
    TestWindow parent;
    TestWindow owner;
    CWnd child;
    ASSERT_TRUE(child.Create(L"STATIC", L"", 0, CRect(0, 0, 5, 5), &parent, 1));
    EXPECT_EQ(child.GetOwner(), &parent);
    child.SetOwner(&owner);
    EXPECT_EQ(child.GetOwner(), &owner);
    EXPECT_EQ(child.GetParent(), &parent);
    child.SetOwner(nullptr);
    EXPECT_EQ(child.GetOwner(), &parent);
}

TEST(Family, TopLevelParentGoesThroughOwnersAndParentOwnerDoesNot) {
    TestWindow top;
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 20, 20, top.m_hWnd, nullptr));
    CWnd child;
    ASSERT_TRUE(child.Create(L"STATIC", L"", 0, CRect(0, 0, 5, 5), &popup, 1));
    EXPECT_EQ(child.GetTopLevelParent(), &top);
    EXPECT_EQ(child.GetParentOwner(), &popup);
    EXPECT_EQ(child.GetTopLevelOwner(), &top);
    EXPECT_EQ(child.GetParentFrame(), nullptr);
}

TEST(Family, ADescendantIsFoundAtAnyDepth) {
    TestWindow top;
    CWnd middle;
    ASSERT_TRUE(middle.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 50, 50), &top, 1));
    ForeignWindow foreign(middle.m_hWnd);
    ::SetWindowLongPtr(foreign.Handle(), GWLP_ID, 55);
    CWnd* found = top.GetDescendantWindow(55);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->m_hWnd, foreign.Handle());
    EXPECT_EQ(top.GetDescendantWindow(55, TRUE), nullptr);
    EXPECT_EQ(top.GetDescendantWindow(1), &middle);
}

TEST(Family, ANullObjectHasANullHandle) {
    const CWnd* none = nullptr;
    EXPECT_EQ(none->GetSafeHwnd(), nullptr);
}

} // namespace
