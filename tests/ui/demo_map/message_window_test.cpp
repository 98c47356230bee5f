// The viewer's messages: keys, clicks and answers are those of the system's message box.
#include "tests/support/message_pump.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/ui_test.h"

#include "message_window.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>

#include <afxglobals.h>

namespace {

constexpr int kNobodyAnswered = 99;
constexpr UINT_PTR kPatienceTimer = 7;
constexpr UINT kPatience = 5000; // milliseconds

DialogLook Look() {
    return {{RGB(60, 64, 73), RGB(241, 243, 249), RGB(190, 196, 210), RGB(44, 47, 55), RGB(110, 168, 254)}, L""};
}

void CALLBACK GiveUp(HWND window, UINT, UINT_PTR, DWORD) { CWnd::FromHandle(window)->EndModalLoop(kNobodyAnswered); }

void PressKeys(std::initializer_list<WPARAM> keys) {
    for (const WPARAM key : keys) {
        ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 0);
        ::PostMessageW(::GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000000));
    }
}

class MessageWindow : public testing::Test {
protected:
    using Act = std::function<void(CMessageWindow& window)>;

    MessageWindow() : m_appPath(m_directory.Prefix()) {
        m_directory.Write(
            "lang/en/table.xlf",
            R"(<xliff xmlns="urn:oasis:names:tc:xliff:document:2.0" version="2.0" srcLang="en">)"
            R"(<file id="Viewer"><unit id="a" name="ButtonYes"><segment><source>&amp;Yes</source></segment></unit>)"
            R"(<unit id="b" name="ButtonNo"><segment><source>&amp;No</source></segment></unit></file></xliff>)");
        EXPECT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    }
    ~MessageWindow() override { CMultiLanguageMgr::SetLanguage(L""); }

    /// `act` is posted as soon as all is in its place.
    int Ask(UINT style, const Act& act) { return Ask(m_owner, style, L"Go on?", act); }
    static int Ask(CWnd& owner, UINT style, const std::wstring& text, const Act& act) {
        CMessageWindow window(Look());
        return window
            .Ask(owner, L"Message", text, style,
                 [&] {
                     window.SetTimer(kPatienceTimer, kPatience, GiveUp);
                     act(window);
                 })
            .value_or(-1);
    }
    int AnswerToKeys(UINT style, std::initializer_list<WPARAM> keys) {
        return Ask(style, [&](CMessageWindow&) { PressKeys(keys); });
    }

    TestWindow m_owner{600, 400};

private:
    TemporaryDirectory m_directory;
    ScopedAppPath m_appPath;
};

TEST_F(MessageWindow, EnterTakesTheDefaultButton) {
    EXPECT_EQ(AnswerToKeys(MB_OK, {VK_RETURN}), IDOK);
    EXPECT_EQ(AnswerToKeys(MB_OKCANCEL, {VK_RETURN}), IDOK);
    EXPECT_EQ(AnswerToKeys(MB_OKCANCEL | MB_DEFBUTTON2, {VK_RETURN}), IDCANCEL);
    EXPECT_EQ(AnswerToKeys(MB_YESNO, {VK_RETURN}), IDYES);
    EXPECT_EQ(AnswerToKeys(MB_YESNO | MB_DEFBUTTON2, {VK_RETURN}), IDNO);
    EXPECT_EQ(AnswerToKeys(MB_YESNOCANCEL | MB_DEFBUTTON3, {VK_RETURN}), IDCANCEL);
}

TEST_F(MessageWindow, EscapeCancelsOrTakesALoneOkAndIsNoAnswerToYesOrNo) {
    EXPECT_EQ(AnswerToKeys(MB_OK, {VK_ESCAPE}), IDOK);
    EXPECT_EQ(AnswerToKeys(MB_OKCANCEL, {VK_ESCAPE}), IDCANCEL);
    EXPECT_EQ(AnswerToKeys(MB_YESNOCANCEL, {VK_ESCAPE}), IDCANCEL);
    EXPECT_EQ(AnswerToKeys(MB_YESNO, {VK_ESCAPE, VK_RETURN}), IDYES);
}

TEST_F(MessageWindow, ClosingItIsAsEscape) {
    const auto close = [](CMessageWindow& window) {
        window.PostMessage(WM_CLOSE);
        PressKeys({VK_RETURN});
    };
    EXPECT_EQ(Ask(MB_OK, close), IDOK);
    EXPECT_EQ(Ask(MB_YESNOCANCEL, close), IDCANCEL);
    EXPECT_EQ(Ask(MB_YESNO, close), IDYES) << "it stayed open for Enter";
}

TEST_F(MessageWindow, WhereItCannotBeClosedTheCaptionHasNoButtonForIt) {
    for (const UINT style : {MB_OK, MB_YESNO}) {
        LRESULT hit = HTNOWHERE;
        UINT state = 0;
        Ask(style, [&](CMessageWindow& window) {
            const CRect caption = window.CaptionOnScreen();
            hit = window.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(caption.right - 10, caption.CenterPoint().y));
            state = window.GetSystemMenu(FALSE)->GetMenuState(SC_CLOSE, MF_BYCOMMAND);
            PressKeys({VK_RETURN});
        });
        EXPECT_EQ(hit, style == MB_YESNO ? HTCAPTION : HTCLOSE);
        EXPECT_EQ((state & MF_GRAYED) != 0, style == MB_YESNO);
    }
}

TEST_F(MessageWindow, TabAndTheArrowsLeadToTheOtherButtons) {
    EXPECT_EQ(AnswerToKeys(MB_YESNO, {VK_TAB, VK_RETURN}), IDNO);
    EXPECT_EQ(AnswerToKeys(MB_YESNO, {VK_TAB, VK_TAB, VK_RETURN}), IDYES);
    EXPECT_EQ(AnswerToKeys(MB_YESNOCANCEL, {VK_RIGHT, VK_RETURN}), IDNO);
    EXPECT_EQ(AnswerToKeys(MB_YESNOCANCEL, {VK_LEFT, VK_RETURN}), IDCANCEL) << "from the first one to the last";
    EXPECT_EQ(AnswerToKeys(MB_YESNOCANCEL, {VK_DOWN, VK_DOWN, VK_RETURN}), IDCANCEL);
}

TEST_F(MessageWindow, InAMirroredOneTheArrowsGoTheOtherWay) {
    m_owner.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    EXPECT_EQ(AnswerToKeys(MB_YESNOCANCEL, {VK_LEFT, VK_RETURN}), IDNO);
    EXPECT_EQ(AnswerToKeys(MB_YESNOCANCEL, {VK_RIGHT, VK_RETURN}), IDCANCEL);
    EXPECT_EQ(AnswerToKeys(MB_YESNOCANCEL, {VK_DOWN, VK_RETURN}), IDNO);
}

TEST_F(MessageWindow, ALetterAnswers) {
    constexpr LPARAM alt = 1 << 29;
    EXPECT_EQ(Ask(MB_YESNO, [](CMessageWindow&) { ::PostMessageW(::GetFocus(), WM_SYSCHAR, 'n', alt); }), IDNO);
    EXPECT_EQ(Ask(MB_YESNO | MB_DEFBUTTON2, [](CMessageWindow&) { ::PostMessageW(::GetFocus(), WM_CHAR, 'y', 0); }),
              IDYES);
}

TEST_F(MessageWindow, AClickAnswers) {
    for (const int id : {IDYES, IDNO, IDCANCEL}) {
        const int answer = Ask(MB_YESNOCANCEL, [id](CMessageWindow& window) {
            const HWND button = ::GetDlgItem(window, id);
            ::PostMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
            ::PostMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
        });
        EXPECT_EQ(answer, id);
    }
}

TEST_F(MessageWindow, ItsOwnersTakeNoInputMeanwhile) {
    TestWindow above(200, 100, WS_POPUP | WS_VISIBLE);
    ::SetWindowLongPtrW(above, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(m_owner.GetSafeHwnd()));
    static std::vector<HWND> s_enabled;
    s_enabled.clear();
    Ask(above, MB_OK, L"x", [&](CMessageWindow& window) {
        window.SetTimer(kPatienceTimer + 1, 1, [](HWND shown, UINT, UINT_PTR, DWORD) {
            for (HWND owner = ::GetWindow(shown, GW_OWNER); owner != nullptr; owner = ::GetWindow(owner, GW_OWNER)) {
                if (::IsWindowEnabled(owner)) {
                    s_enabled.push_back(owner);
                }
            }
            PressKeys({VK_RETURN});
        });
    });
    EXPECT_TRUE(s_enabled.empty()) << s_enabled.size() << " of its owners took input";
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_TRUE(above.IsWindowEnabled());
}

TEST_F(MessageWindow, AnOwnerThatTookNoInputBeforeTakesNoneAfter) {
    m_owner.EnableWindow(FALSE);
    EXPECT_EQ(AnswerToKeys(MB_OK, {VK_RETURN}), IDOK);
    EXPECT_FALSE(m_owner.IsWindowEnabled());
}

TEST_F(MessageWindow, OfAMirroredOwnerItIsMirrored) {
    m_owner.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    CDialogWindow::Description shown;
    Ask(MB_OK, [&](CMessageWindow& window) {
        shown = window.Describe();
        PressKeys({VK_RETURN});
    });
    ASSERT_EQ(shown.parts.size(), 2u);
    EXPECT_EQ(shown.parts[1].onScreen.left, shown.parts[0].onScreen.left) << "the button stands at the texts' end";
}

TEST_F(MessageWindow, ALongPathIsBrokenSoThatItFits) {
    CDialogWindow::Description shown;
    Ask(m_owner, MB_OK, L"C:\\" + std::wstring(400, L'x') + L".json cannot be read.", [&](CMessageWindow& window) {
        shown = window.Describe();
        PressKeys({VK_RETURN});
    });
    const CRect& text = shown.parts[0].onScreen;
    EXPECT_LE(text.Width(), afxGlobalData.ScalePixels(420));
    EXPECT_GE(text.Height(), 4 * afxGlobalData.GetTextHeight());
}

TEST_F(MessageWindow, TheTextStandsAsItIs) {
    std::wstring text;
    Ask(m_owner, MB_OK, L"Cuts & bruises\nof %s", [&](CMessageWindow& window) {
        text = window.Describe().parts[0].text;
        PressKeys({VK_RETURN});
    });
    EXPECT_EQ(text, L"Cuts & bruises\nof %s");
}

} // namespace
