// What the bar answers when its tooltip asks for a text. The cursor decides about which element, so it is real.
#include "menu_id_mgr.h"
#include "tests/support/translation_tables.h"
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

#include <afxtooltipctrl.h>
#include <afxtooltipmanager.h>

namespace {

class ExtendedTooltip : public ExtendedBarTest {
protected:
    ExtendedTooltip() {
        CMenuIdMgr::Destroy();
        CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, RUNTIME_CLASS(CMFCToolTipCtrl));
        Bar().EnableToolTips(TRUE, TRUE);
        Button(0, 1).SetToolTipText(L"Shows more");
        PutOn(Button(0, 1));
    }
    ~ExtendedTooltip() override {
        CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, nullptr);
        CMenuIdMgr::Destroy();
    }
    void PutOn(CMFCRibbonBaseElement& element) { PutCursor(OnScreen(element.GetRect())); }

    struct Answer {
        BOOL handled;
        std::wstring text;
    };
    Answer Ask(HWND from) {
        NMTTDISPINFO info{};
        info.hdr.hwndFrom = from;
        info.hdr.code = TTN_NEEDTEXT;
        class Opened : public CMFCRibbonBarEx {
        public:
            static BOOL Ask(CMFCRibbonBarEx& bar, NMHDR& header) {
                LRESULT result = 1;
                return (bar.*(&Opened::OnNeedTipText))(0, &header, &result);
            }
        };
        const BOOL handled = Opened::Ask(Bar(), info.hdr);
        return {handled, info.lpszText != nullptr ? std::wstring(info.lpszText) : std::wstring()};
    }
    std::wstring Tip() { return Ask(Bar().GetToolTipCtrl()->GetSafeHwnd()).text; }
    std::wstring Description() {
        class Opened : public CMFCToolTipCtrl {
        public:
            static const CString& Of(const CMFCToolTipCtrl& control) { return control.*(&Opened::m_strDescription); }
        };
        const auto* const own = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, Bar().GetToolTipCtrl());
        return own != nullptr ? std::wstring(Opened::Of(*own).GetString()) : L"none";
    }
    /// Whose image and help the tooltip shows.
    const CMFCRibbonButton* ElementOfTheTip() {
        class Opened : public CMFCToolTipCtrl {
        public:
            static CMFCRibbonButton* Of(const CMFCToolTipCtrl& control) { return control.*(&Opened::m_pRibbonButton); }
        };
        const auto* const own = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, Bar().GetToolTipCtrl());
        return own != nullptr ? Opened::Of(*own) : nullptr;
    }
    static void Register(UINT id, const wchar_t* command) {
        CMenuIdMgr::Ins()->Add(L"Key" + std::to_wstring(id), static_cast<int>(id), L"Name", command, L"Tip", L"", L"");
    }
};

TEST_F(ExtendedTooltip, AnElementWithoutACommandTextHasItsTooltipAlone) {
    EXPECT_EQ(Tip(), L"Shows more");
    Register(ButtonId(0, 1), L"");
    EXPECT_EQ(Tip(), L"Shows more") << "an empty command text is none";
}

TEST_F(ExtendedTooltip, TheCommandTextStandsBehindTheTranslatedColon) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("Colon", "Common"));
    Register(ButtonId(0, 1), L"ZOOM");
    EXPECT_EQ(Tip(), L"Shows more<Colon>ZOOM");
}

TEST_F(ExtendedTooltip, WithoutATranslationTheKeyStandsForTheColon) {
    CMultiLanguageMgr::SetLanguage(L"");
    Register(ButtonId(0, 1), L"ZOOM");
    EXPECT_EQ(Tip(), L"Shows moreColonZOOM");
}

TEST_F(ExtendedTooltip, TheElementsOwnTooltipDoesNotGrow) {
    Register(ButtonId(0, 1), L"ZOOM");
    const std::wstring first = Tip();
    EXPECT_EQ(Tip(), first);
    EXPECT_STREQ(Button(0, 1).GetToolTipText(), L"Shows more");
}

TEST_F(ExtendedTooltip, TheElementUnderTheCursorCounts) {
    Button(0, 2).SetToolTipText(L"Another");
    PutOn(Button(0, 2));
    EXPECT_EQ(Tip(), L"Another");
}

TEST_F(ExtendedTooltip, AnElementWithoutATooltipEndsTheHandling) {
    PutCursor(OnScreen(Bar().GetCategory(1)->GetTabRect())); // a tab that has room for its name
    const Answer answer = Ask(Bar().GetToolTipCtrl()->GetSafeHwnd());
    EXPECT_TRUE(answer.handled);
    EXPECT_EQ(answer.text, L"");
}

TEST_F(ExtendedTooltip, BesideEverythingThereIsNoText) {
    PutCursor(CPoint(700, 550));
    EXPECT_EQ(Tip(), L"");
}

TEST_F(ExtendedTooltip, WithTooltipsOffEveryNotificationIsHandledWithoutAText) {
    Bar().EnableToolTips(FALSE);
    const Answer answer = Ask(m_frame->GetSafeHwnd());
    EXPECT_TRUE(answer.handled);
    EXPECT_EQ(answer.text, L"");
}

TEST_F(ExtendedTooltip, NotificationsOfOtherControlsAreNotTheBars) {
    const Answer answer = Ask(m_frame->GetSafeHwnd());
    EXPECT_FALSE(answer.handled);
    EXPECT_EQ(answer.text, L"");
}

TEST_F(ExtendedTooltip, WhileAPopUpIsOpenThereIsNoText) {
    const HMENU items = ::CreatePopupMenu();
    ::AppendMenuW(items, MF_STRING, 8001, L"Row");
    auto* const menu = new CMFCPopupMenu;
    ASSERT_TRUE(menu->Create(m_frame, 500, 400, items));
    EXPECT_EQ(Tip(), L"");
    menu->CloseMenu();
    EXPECT_EQ(Tip(), L"Shows more");
}

TEST_F(ExtendedTooltip, TheElementsDescriptionIsPassedOn) {
    Button(0, 1).SetDescription(L"Press F1");
    EXPECT_EQ(Tip(), L"Shows more");
    EXPECT_EQ(Description(), L"Press F1");
}

TEST_F(ExtendedTooltip, WithDescriptionsOffNoneIsPassedOn) {
    Bar().EnableToolTips(TRUE, FALSE);
    Button(0, 1).SetDescription(L"Press F1");
    EXPECT_EQ(Tip(), L"Shows more");
    EXPECT_EQ(Description(), L"");
}

/// Wants no image in its tooltip.
class ImagelessButton : public CMFCRibbonButton {
public:
    using CMFCRibbonButton::CMFCRibbonButton;
    BOOL IsDrawTooltipImage() const override { return FALSE; }
};

// Whether there is help for it, and where the tooltip opens, depends on the element.
TEST_F(ExtendedTooltip, AnElementThatShowsNoImageIsTheTooltipsAllTheSame) {
    EXPECT_EQ(Tip(), L"Shows more");
    EXPECT_EQ(ElementOfTheTip(), &Button(0, 1));
    auto* const imageless = new ImagelessButton(9100, L"Plain");
    imageless->SetToolTipText(L"Shows nothing");
    Bar().GetCategory(0)->GetPanel(0)->Add(imageless);
    LayOut();
    PutOn(*imageless);
    EXPECT_EQ(Tip(), L"Shows nothing");
    EXPECT_EQ(ElementOfTheTip(), imageless);
}

TEST_F(ExtendedTooltip, ATooltipOfTheSystemsOwnGetsTheTextAlone) {
    CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, nullptr);
    Bar().EnableToolTips(TRUE, TRUE);
    ASSERT_NE(Bar().GetToolTipCtrl(), nullptr);
    ASSERT_FALSE(Bar().GetToolTipCtrl()->IsKindOf(RUNTIME_CLASS(CMFCToolTipCtrl)));
    Button(0, 1).SetDescription(L"Press F1");
    EXPECT_EQ(Tip(), L"Shows more");
}

// ---- the text that the framework gives its own button

class FrameworksTooltip : public ExtendedTooltip {
protected:
    FrameworksTooltip() {
        Bar().setPath(L"all", 0, 5, {ButtonId(0, 0)});
        Bar().ShowPath(L"all");
        LayOut();
        const CRect all = Bar().GetQuickAccessToolbarLocation();
        CPoint onButton((Bar().GetQATCommandsLocation().right + all.right) / 2, all.CenterPoint().y);
        m_button = Bar().HitTest(onButton);
        Bar().ClientToScreen(&onButton);
        PutCursor(onButton);
        EXPECT_TRUE(m_frameworks.LoadString(17096));
    }
    CMFCRibbonBaseElement* m_button = nullptr;
    CString m_frameworks;
};

TEST_F(FrameworksTooltip, TheFrameworksTextIsReplaced) {
    ASSERT_NE(m_button, nullptr);
    EXPECT_EQ(m_button->GetToolTipText(), m_frameworks) << "until the tooltip was asked for";
    EXPECT_EQ(Tip(), L"更改皮肤");
    EXPECT_STREQ(m_button->GetToolTipText(), L"更改皮肤") << "of the element";
    EXPECT_EQ(Tip(), L"更改皮肤");
}

TEST_F(FrameworksTooltip, AnyElementThatSaysTheFrameworksTextGetsTheOtherOne) {
    Button(0, 1).SetToolTipText(m_frameworks);
    PutOn(Button(0, 1));
    Register(ButtonId(0, 1), L"SKIN");
    CMultiLanguageMgr::SetLanguage(L"");
    EXPECT_EQ(Tip(), L"更改皮肤ColonSKIN");
    EXPECT_STREQ(Button(0, 1).GetToolTipText(), L"更改皮肤");
}

} // namespace
