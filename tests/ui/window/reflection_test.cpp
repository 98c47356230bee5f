#include "tests/support/ui_test.h"

#include "fx/dc.h"

namespace {

constexpr UINT ControlId = 50;
using Log = std::vector<std::wstring>;

Log g_log;

class Control : public CWnd {
public:
    BOOL m_takes = TRUE;
    HBRUSH m_brush = nullptr;
    HWND m_measured = nullptr;

protected:
    afx_msg void OnReflectedClick() { g_log.push_back(L"control click"); }
    afx_msg BOOL OnReflectedFocus() {
        g_log.push_back(L"control focus");
        return m_takes;
    }
    afx_msg void OnReflectedNotify(NMHDR*, LRESULT* result) {
        g_log.push_back(L"control notify");
        *result = 5;
    }
    afx_msg BOOL OnReflectedNotifyEx(NMHDR*, LRESULT* result) {
        g_log.push_back(L"control notify ex");
        *result = 6;
        return m_takes;
    }
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind) {
        g_log.push_back(L"control colour");
        EXPECT_NE(dc, nullptr);
        EXPECT_EQ(kind, static_cast<UINT>(CTLCOLOR_BTN));
        return m_brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT) { g_log.push_back(L"control draw"); }
    afx_msg void HScroll(UINT, UINT position) { g_log.push_back(L"control scroll " + std::to_wstring(position)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Control, CWnd)
ON_CONTROL_REFLECT(BN_CLICKED, &Control::OnReflectedClick)
ON_CONTROL_REFLECT_EX(BN_SETFOCUS, &Control::OnReflectedFocus)
ON_NOTIFY_REFLECT(NM_CLICK, &Control::OnReflectedNotify)
ON_NOTIFY_REFLECT_EX(NM_DBLCLK, &Control::OnReflectedNotifyEx)
ON_WM_CTLCOLOR_REFLECT()
ON_WM_DRAWITEM_REFLECT()
ON_WM_HSCROLL_REFLECT()
END_MESSAGE_MAP()

class Parent : public TestWindow {
public:
    Parent() {
        g_log.clear();
        EXPECT_TRUE(m_control.Create(L"BUTTON", L"", WS_VISIBLE, CRect(0, 0, 50, 20), this, ControlId));
    }
    ~Parent() override { m_control.DestroyWindow(); }
    LRESULT Notify(UINT code) {
        NMHDR header = {m_control.m_hWnd, ControlId, code};
        return SendMessage(WM_NOTIFY, ControlId, reinterpret_cast<LPARAM>(&header));
    }
    void Command(UINT code) {
        SendMessage(WM_COMMAND, MAKEWPARAM(ControlId, code), reinterpret_cast<LPARAM>(m_control.m_hWnd));
    }
    LRESULT AskColour() {
        const HDC dc = ::GetDC(m_control.m_hWnd);
        const LRESULT brush =
            SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(m_control.m_hWnd));
        ::ReleaseDC(m_control.m_hWnd, dc);
        return brush;
    }

    Control m_control;

protected:
    afx_msg void OnClick() { g_log.push_back(L"parent click"); }
    afx_msg void OnFocus() { g_log.push_back(L"parent focus"); }
    afx_msg void OnNotification(NMHDR*, LRESULT* result) {
        g_log.push_back(L"parent notify");
        *result = 9;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
ON_BN_CLICKED(ControlId, &Parent::OnClick)
ON_CONTROL(BN_SETFOCUS, ControlId, &Parent::OnFocus)
ON_NOTIFY(NM_CLICK, ControlId, &Parent::OnNotification)
ON_NOTIFY(NM_DBLCLK, ControlId, &Parent::OnNotification)
ON_NOTIFY(NM_RCLICK, ControlId, &Parent::OnNotification)
END_MESSAGE_MAP()

class ColouringParent : public Parent {
public:
    HBRUSH m_brush = nullptr;

protected:
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd* wnd, UINT kind) {
        g_log.push_back(L"parent colour");
        EXPECT_EQ(wnd, &m_control);
        EXPECT_EQ(kind, static_cast<UINT>(CTLCOLOR_BTN));
        return m_brush;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ColouringParent, Parent)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

/// Names the one question for a colour that it answers by its own number.
class ButtonColouringParent : public Parent {
protected:
    afx_msg LRESULT OnColourOfButton(WPARAM, LPARAM control) {
        g_log.push_back(L"parent colour of button");
        EXPECT_EQ(reinterpret_cast<HWND>(control), m_control.m_hWnd);
        return 7;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ButtonColouringParent, Parent)
ON_MESSAGE(WM_CTLCOLORBTN, &ButtonColouringParent::OnColourOfButton)
END_MESSAGE_MAP()

TEST(Reflection, ANotificationThatTheControlHandlesDoesNotReachTheParent) {
    Parent parent;
    EXPECT_EQ(parent.Notify(NM_CLICK), 5);
    EXPECT_EQ(g_log, Log{L"control notify"});
}

TEST(Reflection, AnExtendedHandlerThatAnswersFalseLetsTheParentHaveTheNotification) {
    Parent parent;
    parent.m_control.m_takes = FALSE;
    EXPECT_EQ(parent.Notify(NM_DBLCLK), 9);
    EXPECT_EQ(g_log, (Log{L"control notify ex", L"parent notify"}));
}

TEST(Reflection, AnExtendedHandlerThatAnswersTrueKeepsIt) {
    Parent parent;
    EXPECT_EQ(parent.Notify(NM_DBLCLK), 6);
    EXPECT_EQ(g_log, Log{L"control notify ex"});
}

TEST(Reflection, ANotificationWithoutAReflectingHandlerIsTheParents) {
    Parent parent;
    EXPECT_EQ(parent.Notify(NM_RCLICK), 9);
    EXPECT_EQ(g_log, Log{L"parent notify"});
}

TEST(Reflection, ACommandCodeThatTheControlHandlesDoesNotReachTheParent) {
    Parent parent;
    parent.Command(BN_CLICKED);
    EXPECT_EQ(g_log, Log{L"control click"});
}

TEST(Reflection, AnExtendedControlHandlerDecidesWhetherTheParentGetsTheCode) {
    Parent parent;
    parent.Command(BN_SETFOCUS);
    EXPECT_EQ(g_log, Log{L"control focus"});
    parent.m_control.m_takes = FALSE;
    parent.Command(BN_SETFOCUS);
    EXPECT_EQ(g_log, (Log{L"control focus", L"control focus", L"parent focus"}));
}

TEST(Reflection, TheParentsColourHandlerComesFirst) {
    ColouringParent parent;
    parent.m_brush = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    EXPECT_EQ(parent.AskColour(), reinterpret_cast<LRESULT>(parent.m_brush));
    EXPECT_EQ(g_log, Log{L"parent colour"});
}

TEST(Reflection, AMapMayNameOneQuestionForAColourByItsNumber) {
    ButtonColouringParent parent;
    EXPECT_EQ(parent.AskColour(), 7);
    EXPECT_EQ(g_log, Log{L"parent colour of button"});
    const HDC dc = ::GetDC(parent.m_hWnd);
    EXPECT_NE(
        parent.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(parent.m_hWnd)), 7)
        << "another one";
    ::ReleaseDC(parent.m_hWnd, dc);
}

TEST(Reflection, AParentWithoutAColourHandlerAsksTheControl) {
    Parent parent;
    parent.m_control.m_brush = static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    EXPECT_EQ(parent.AskColour(), reinterpret_cast<LRESULT>(parent.m_control.m_brush));
    EXPECT_EQ(g_log, Log{L"control colour"});
}

TEST(Reflection, ANullBrushOfTheControlGivesTheSystemsColour) {
    Parent parent;
    const LRESULT brush = parent.AskColour();
    EXPECT_EQ(g_log, Log{L"control colour"});
    EXPECT_NE(brush, 0);
}

TEST(Reflection, AnOwnerDrawnControlDrawsItself) {
    Parent parent;
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_BUTTON;
    item.CtlID = ControlId;
    item.hwndItem = parent.m_control.m_hWnd;
    EXPECT_EQ(parent.SendMessage(WM_DRAWITEM, ControlId, reinterpret_cast<LPARAM>(&item)), TRUE);
    EXPECT_EQ(g_log, Log{L"control draw"});
}

TEST(Reflection, AScrollBarsMessageGoesBackToIt) {
    Parent parent;
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 12), reinterpret_cast<LPARAM>(parent.m_control.m_hWnd));
    EXPECT_EQ(g_log, Log{L"control scroll 12"});
}

TEST(Reflection, APermanentMenuDrawsAndMeasuresItsItems) {
    class DrawnMenu : public CMenu {
    public:
        void DrawItem(LPDRAWITEMSTRUCT) override { g_log.push_back(L"menu draw"); }
        void MeasureItem(LPMEASUREITEMSTRUCT measure) override {
            g_log.push_back(L"menu measure");
            measure->itemHeight = 33;
        }
    };
    Parent parent;
    DrawnMenu popup;
    popup.CreatePopupMenu();
    popup.AppendMenu(MF_OWNERDRAW, 70);
    CMenu bar;
    bar.CreateMenu();
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.m_hMenu), L"popup");
    parent.SetMenu(&bar);
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_MENU;
    measure.itemID = 70;
    parent.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(measure.itemHeight, 33u);
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_MENU;
    item.hwndItem = reinterpret_cast<HWND>(popup.m_hMenu);
    parent.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(g_log, (Log{L"menu measure", L"menu draw"}));
    parent.SetMenu(nullptr);
    bar.RemoveMenu(0, MF_BYPOSITION);
}

} // namespace
