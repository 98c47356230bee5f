// The label that tells the host of clicks.
#include "host_messages.h"
#include "ribbon_label_ex.h"
#include "tests/support/buried.h"
#include "tests/support/canvas.h"
#include "tests/support/collapsed_panel.h"
#include "tests/support/counted_faults.h"
#include "tests/support/pointer.h"
#include "tests/support/ribbon_host.h"
#include "tests/support/translation_tables.h"
#include <fx/scoped_change.h>

#include <afxvisualmanager.h>

#include <algorithm>

namespace {

constexpr COLORREF noColor = 0xFFFFFFFF;

class LabelEx : public testing::Test {
protected:
    ~LabelEx() override { afxGlobalData.SetRibbonImageScale(0); }
    void SetUp() override { ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0)); }

    void Draw(CMFCRibbonLabelEx& label, CRect rect = CRect(10, 10, 190, 40)) {
        m_canvas.Clear();
        label.OnCalcTextSize(m_canvas.Dc());
        label.SetRect(rect);
        label.OnDraw(m_canvas.Dc());
    }
    /// The first column with a pixel of the text colour; -1 when there is none, as in the next three.
    int FirstColumn(std::uint32_t color) const { return OrNone(m_canvas.BoundsOf(color), &RECT::left); }
    int LastColumn(std::uint32_t color) const { return OrNone(m_canvas.BoundsOf(color), &RECT::right, 1); }
    int FirstRow(std::uint32_t color) const { return OrNone(m_canvas.BoundsOf(color), &RECT::top); }
    int LastRow(std::uint32_t color) const { return OrNone(m_canvas.BoundsOf(color), &RECT::bottom, 1); }
    static int OrNone(const CRect& bounds, LONG RECT::*edge, int beyond = 0) {
        return bounds.IsRectEmpty() ? -1 : static_cast<int>(bounds.*edge) - beyond;
    }

    static constexpr int side = 200;
    static constexpr std::uint32_t pureRed = 0xFF0000;
    Canvas m_canvas{side};
};

TEST_F(LabelEx, IsPlainAndLeftAtFirst) {
    CMFCRibbonLabelEx label(L"text");
    EXPECT_STREQ(label.GetText(), L"text");
    EXPECT_FALSE(label.IsMultiLine());
    EXPECT_FALSE(label.IsRight());
    label.SetRight(true);
    EXPECT_TRUE(label.IsRight());
    EXPECT_TRUE(CMFCRibbonLabelEx(L"text", TRUE).IsMultiLine());
}

TEST_F(LabelEx, AColorOverridesTheSkins) {
    CMFCRibbonLabelEx label(L"IIII");
    label.SetTextColor(RGB(255, 0, 0));
    Draw(label);
    EXPECT_GE(FirstColumn(pureRed), 10);
}

TEST_F(LabelEx, WithoutAColorTheContextsOwnIsUsed) {
    CMFCRibbonLabelEx label(L"IIII");
    m_canvas.Dc()->SetTextColor(RGB(0, 0, 255));
    label.SetTextColor(RGB(255, 0, 0));
    label.SetTextColor(noColor);
    Draw(label);
    EXPECT_EQ(FirstColumn(pureRed), -1);
    EXPECT_GE(FirstColumn(0x0000FF), 10);
}

TEST_F(LabelEx, BlackIsAColorToo) {
    CMFCRibbonLabelEx label(L"IIII");
    m_canvas.Dc()->SetTextColor(RGB(0, 0, 255));
    label.SetTextColor(RGB(0, 0, 0));
    Draw(label);
    EXPECT_GE(FirstColumn(0), 10);
    EXPECT_EQ(FirstColumn(0x0000FF), -1);
}

TEST_F(LabelEx, TheOffsetMovesTheTextByItsPixels) {
    CMFCRibbonLabelEx label(L"IIII");
    label.SetTextColor(RGB(255, 0, 0));
    Draw(label);
    const int without = FirstColumn(pureRed);
    ASSERT_GE(without, 0);
    for (const int offset : {6, 1, 40, -3}) {
        label.SetLeftOffset(offset);
        Draw(label);
        EXPECT_EQ(FirstColumn(pureRed), without + offset);
    }
}

TEST_F(LabelEx, ColorFontAndModeOfTheContextAreGivenBack) {
    CDC* const dc = m_canvas.Dc();
    dc->SetTextColor(RGB(1, 2, 3));
    dc->SetBkMode(OPAQUE);
    const HGDIOBJ font = ::GetCurrentObject(dc->GetSafeHdc(), OBJ_FONT);
    CMFCRibbonLabelEx label(L"text");
    label.SetTextColor(RGB(255, 0, 0));
    for (const BOOL menu : {FALSE, TRUE}) {
        label.SetMenuMode(menu);
        Draw(label);
        EXPECT_EQ(dc->GetTextColor(), RGB(1, 2, 3));
        EXPECT_EQ(dc->GetBkMode(), OPAQUE);
        EXPECT_EQ(::GetCurrentObject(dc->GetSafeHdc(), OBJ_FONT), font);
    }
}

TEST_F(LabelEx, AnEmptyRectangleDrawsNothing) {
    CMFCRibbonLabelEx label(L"text");
    Draw(label, CRect(10, 10, 10, 40));
    EXPECT_EQ(m_canvas.Extent(), CSize(0, 0));
}

TEST_F(LabelEx, AMenuLabelLeavesTheLastTwoRowsFree) {
    CMFCRibbonLabelEx label(L"text");
    label.SetMenuMode(TRUE);
    Draw(label, CRect(10, 10, 190, 40));
    EXPECT_EQ(m_canvas.Extent(), CSize(190, 38)) << "the frame is filled over the whole width, but for two rows";
}

/// Notes what labels ask of it, and has a colour for menus.
class LabelManager : public CMFCVisualManager {
    DECLARE_DYNCREATE(LabelManager)
public:
    void OnDrawRibbonLabel(CDC*, CMFCRibbonLabel*, CRect rect) override { labels.push_back(rect); }
    COLORREF OnDrawMenuLabel(CDC*, CRect rect) override {
        menuLabels.push_back(rect);
        return RGB(255, 0, 0);
    }
    static LabelManager& Get() { return dynamic_cast<LabelManager&>(*CMFCVisualManager::GetInstance()); }
    std::vector<CRect> labels;
    std::vector<CRect> menuLabels;
};
IMPLEMENT_DYNCREATE(LabelManager, CMFCVisualManager)

TEST_F(LabelEx, TheSkinPaintsBehindTheTextAndColoursItInMenus) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(LabelManager));
    CMFCRibbonLabelEx label(L"IIII");
    const CRect rect(10, 10, 190, 40);
    Draw(label, rect);
    EXPECT_EQ(LabelManager::Get().labels, std::vector<CRect>{rect});
    EXPECT_EQ(FirstColumn(pureRed), -1);
    label.SetMenuMode(TRUE);
    Draw(label, rect);
    EXPECT_EQ(LabelManager::Get().menuLabels, (std::vector<CRect>{CRect(10, 10, 190, 38)}));
    EXPECT_EQ(LabelManager::Get().labels.size(), 1u) << "not both";
    EXPECT_GE(FirstColumn(pureRed), 10);
    label.SetTextColor(RGB(0, 0, 255));
    Draw(label, rect);
    EXPECT_EQ(FirstColumn(pureRed), -1) << "a colour of its own counts more";
    EXPECT_GE(FirstColumn(0x0000FF), 10);
    CMFCVisualManager::SetDefaultManager(nullptr);
}

TEST_F(LabelEx, TheTextIsBoldInAMenu) {
    CMFCRibbonLabelEx label(L"WWWWWWWW");
    label.SetTextColor(RGB(255, 0, 0));
    Draw(label);
    const int regular = LastColumn(pureRed) - FirstColumn(pureRed);
    label.SetMenuMode(TRUE);
    Draw(label);
    EXPECT_GT(LastColumn(pureRed) - FirstColumn(pureRed), regular);
}

TEST_F(LabelEx, TheTextBeginsBehindTheMargin) {
    struct Open : CMFCRibbonLabelEx {
        using CMFCRibbonLabelEx::CMFCRibbonLabelEx;
        void SetMargin(int margin) { m_szMargin.cx = margin; }
    };
    Open label(L"\x2588\x2588");
    label.SetTextColor(RGB(255, 0, 0));
    Draw(label);
    int columns[2] = {};
    for (const int margin : {0, 7}) {
        label.SetMargin(margin);
        m_canvas.Clear();
        label.OnDraw(m_canvas.Dc());
        columns[margin / 7] = FirstColumn(pureRed);
    }
    ASSERT_GE(columns[0], 10);
    EXPECT_EQ(columns[1], columns[0] + 7);
}

TEST_F(LabelEx, AMultiLineLabelBreaksItsTextAndCentresIt) {
    CMFCRibbonLabelEx label(L"IIIIII IIIIII IIIIII", TRUE);
    label.SetTextColor(RGB(255, 0, 0));
    Draw(label, CRect(10, 10, 70, 190));
    const int first = FirstRow(pureRed);
    const int last = LastRow(pureRed);
    ASSERT_GE(first, 0);
    const int line = afxGlobalData.GetTextHeight();
    EXPECT_GT(last - first, line) << "more than one line";
    EXPECT_NEAR((first + last) / 2.0, 100, line) << "in the middle of the height";
    EXPECT_LT(last - first, 120);
}

TEST_F(LabelEx, AMultiLineTextThatIsHigherThanTheLabelStartsAtItsTop) {
    CMFCRibbonLabelEx label(L"I I I I I I I I I I I I", TRUE);
    label.SetTextColor(RGB(255, 0, 0));
    Draw(label, CRect(10, 50, 24, 80));
    EXPECT_GE(FirstRow(pureRed), 50);
}

TEST_F(LabelEx, AMultiLineLabelIsASingleLineInAMenu) {
    CMFCRibbonLabelEx label(L"IIIIII IIIIII IIIIII", TRUE);
    label.SetTextColor(RGB(255, 0, 0));
    label.SetMenuMode(TRUE);
    Draw(label, CRect(10, 10, 70, 190));
    EXPECT_LE(LastRow(pureRed) - FirstRow(pureRed), afxGlobalData.GetTextHeight());
}

TEST_F(LabelEx, TheTextIsTranslatedAtEveryPaintAndMeasuredSo) {
    const TranslatedInstallation installation;
    CMFCRibbonLabelEx label(L"I");
    label.SetTextColor(RGB(255, 0, 0));
    label.OnCalcTextSize(m_canvas.Dc());
    const int before = label.GetRegularSize(m_canvas.Dc()).cx;
    Draw(label);
    EXPECT_LT(LastColumn(pureRed), 60);
    ASSERT_TRUE(installation.Translate("I", "Common", "WWWWWW"));
    EXPECT_GT(label.GetRegularSize(m_canvas.Dc()).cx, 3 * before);
    Draw(label);
    EXPECT_GT(LastColumn(pureRed), 60) << "the longer text is drawn";
    EXPECT_STREQ(label.GetText(), L"I");
}

TEST_F(LabelEx, TheTranslationIsThatOfTheCommonSection) {
    const TranslatedInstallation installation;
    CMFCRibbonLabelEx label(L"I");
    const int before = label.GetRegularSize(m_canvas.Dc()).cx;
    ASSERT_TRUE(installation.Translate("I", "RibbonBarCfg", "WWWWWW"));
    EXPECT_EQ(label.GetRegularSize(m_canvas.Dc()).cx, before);
}

TEST_F(LabelEx, ACopyHasEverythingThatWasSet) {
    CMFCRibbonLabelEx label(L"IIII", TRUE);
    label.SetRight(true);
    label.SetTextColor(RGB(255, 0, 0));
    label.SetLeftOffset(6);
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CMFCRibbonLabelEx)->CreateObject());
    auto* const copy = DYNAMIC_DOWNCAST(CMFCRibbonLabelEx, made.get());
    ASSERT_NE(copy, nullptr);
    copy->CopyFrom(label);
    EXPECT_STREQ(copy->GetText(), L"IIII");
    EXPECT_TRUE(copy->IsMultiLine());
    EXPECT_TRUE(copy->IsRight());
    Draw(label);
    const int column = FirstColumn(pureRed);
    ASSERT_GE(column, 0);
    Draw(*copy);
    EXPECT_EQ(FirstColumn(pureRed), column);
}

// ---- clicks

class LabelClick : public testing::Test {
protected:
    void SetUp() override {
        m_host.Frame().listensTo = [](UINT message) { return message == 0x46F; };
        m_label = &m_host.Add(std::make_unique<Buried<CMFCRibbonLabelEx>>(L"A label to click"));
        ASSERT_FALSE(m_label->GetRect().IsRectEmpty());
    }

    RibbonHost m_host;
    Pointer m_pointer;
    CMFCRibbonLabelEx* m_label = nullptr;
};

TEST_F(LabelClick, TellsTheOwnerOfTheBarOnceAtThePress) {
    m_pointer.MoveTo(m_host.BarWindow(), m_label->GetRect().CenterPoint());
    m_pointer.Press();
    ASSERT_EQ(m_host.Frame().received.size(), 1u);
    const HostMessage told = m_host.Frame().received[0];
    EXPECT_EQ(told.message, 0x46Fu);
    EXPECT_EQ(told.wParam, reinterpret_cast<WPARAM>(m_label));
    EXPECT_EQ(told.lParam, 0);
    EXPECT_FALSE(told.isPosted);
    m_pointer.Release();
    PumpPending();
    EXPECT_EQ(m_host.Frame().received.size(), 1u) << "neither another message nor a command";
}

TEST_F(LabelClick, GoesToTheOwnerThatWasSet) {
    RibbonHost other;
    other.Frame().listensTo = m_host.Frame().listensTo;
    m_host.Bar().SetOwner(&other.Frame());
    m_label->OnLButtonDown(m_label->GetRect().CenterPoint());
    EXPECT_TRUE(m_host.Frame().received.empty());
    EXPECT_EQ(other.Frame().received.size(), 1u);
    m_host.Bar().SetOwner(&m_host.Frame());
}

TEST_F(LabelClick, ADisabledLabelIsSilent) {
    m_label->SetDisabled(TRUE);
    m_pointer.Click(m_host.BarWindow(), m_label->GetRect().CenterPoint());
    EXPECT_TRUE(m_host.Frame().received.empty());
}

TEST_F(LabelClick, IsPressedBeforeTheHostIsTold) {
    BOOL wasPressed = FALSE;
    m_host.Frame().onMessage = [&](const HostMessage&) -> LRESULT {
        wasPressed = m_label->IsPressed();
        return 0;
    };
    m_label->OnLButtonDown(m_label->GetRect().CenterPoint());
    EXPECT_EQ(m_host.Frame().received.size(), 1u);
    EXPECT_TRUE(wasPressed);
}

TEST_F(LabelClick, AHostMayCloseItsWindowInTheAnswer) {
    const CountedFaults faults;
    m_host.Frame().onMessage = [this](const HostMessage&) -> LRESULT {
        m_host.Destroy();
        return 0;
    };
    m_pointer.Click(m_host.BarWindow(), m_label->GetRect().CenterPoint());
    EXPECT_FALSE(m_host.IsAlive());
    EXPECT_EQ(faults.Get(), 0);
}

TEST_F(LabelClick, AHostMayRemoveTheLabelInTheAnswer) {
    const CountedFaults faults;
    m_host.Frame().onMessage = [this](const HostMessage&) -> LRESULT {
        m_host.Bar().RemoveCategory(0);
        return 0;
    };
    m_pointer.Click(m_host.BarWindow(), m_label->GetRect().CenterPoint());
    PumpPending();
    EXPECT_EQ(m_host.Bar().GetCategoryCount(), 0);
    EXPECT_EQ(faults.Get(), 0);
}

TEST_F(LabelClick, WithoutABarNobodyIsTold) {
    const fx::ScopedChange<CWnd*> mainWindow{AfxGetApp()->m_pMainWnd, &m_host.Frame()};
    CWnd neverMade;
    CMFCRibbonLabelEx loose(L"text");
    loose.SetRect(CRect(0, 0, 50, 20));
    for (CWnd* const parent : {static_cast<CWnd*>(nullptr), &neverMade}) {
        loose.SetParentWnd(parent);
        loose.OnLButtonDown(CPoint(5, 5));
    }
    EXPECT_TRUE(m_host.Frame().received.empty());
    // What has a bar's window as its parent tells that one's owner.
    loose.SetParentWnd(&m_host.Bar());
    loose.OnLButtonDown(CPoint(5, 5));
    EXPECT_EQ(m_host.Frame().received.size(), 1u);
}

TEST_F(LabelClick, InTheWindowOfAnotherBarTellsThatOnesOwner) {
    // As on a status bar: a child of the frame that is no ribbon bar.
    CWnd bar;
    ASSERT_TRUE(bar.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 100, 20), &m_host.Frame(), 1));
    CMFCRibbonLabelEx label(L"text");
    label.SetRect(CRect(0, 0, 50, 20));
    label.SetParentWnd(&bar);
    label.OnLButtonDown(CPoint(5, 5));
    ASSERT_EQ(m_host.Frame().received.size(), 1u);
    EXPECT_EQ(m_host.Frame().received[0].wParam, reinterpret_cast<WPARAM>(&label));
    RibbonHost other;
    other.Frame().listensTo = m_host.Frame().listensTo;
    bar.SetOwner(&other.Frame());
    label.OnLButtonDown(CPoint(5, 5));
    EXPECT_EQ(m_host.Frame().received.size(), 1u);
    EXPECT_EQ(other.Frame().received.size(), 1u);
    bar.DestroyWindow();
}

TEST_F(LabelClick, InThePopupOfACollapsedPanelTellsTheOwnerOfTheBar) {
    m_host.Add(std::make_unique<CMFCRibbonButton>(800, L"A button with a long text"));
    OpenCollapsedPanel(m_host, m_pointer);
    CWnd* const popup = m_label->GetParentWnd();
    ASSERT_NE(popup, nullptr);
    ASSERT_NE(popup, &m_host.Bar());
    ASSERT_FALSE(m_label->GetRect().IsRectEmpty());
    m_pointer.Click(popup->GetSafeHwnd(), m_label->GetRect().CenterPoint());
    ASSERT_EQ(m_host.Frame().received.size(), 1u);
    EXPECT_EQ(m_host.Frame().received[0].wParam, reinterpret_cast<WPARAM>(m_label));
    CMFCPopupMenu::CloseAll();
    PumpPending();
}

} // namespace
