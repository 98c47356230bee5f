// Skins that change while windows stand open.
#include "tests/ui/skins/skin_fixture.h"

#include "tests/support/gui_objects.h"
#include "tests/support/message_pump.h"
#include "tests/support/ribbon_host.h"

#include <afxpopupmenu.h>
#include <afxribboncheckbox.h>
#include <afxribboncombobox.h>
#include <afxribbonslider.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// Ends the pop-ups that are open.
void ClosePopups() {
    CMFCPopupMenu::CloseAll();
    PumpPending();
}

/// The pixels of a window as it stands on the screen.
class WindowPicture {
public:
    explicit WindowPicture(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        m_width = rect.Width();
        Canvas canvas(rect.Size());
        const HDC source = ::GetWindowDC(window.GetSafeHwnd());
        ::BitBlt(*canvas.Dc(), 0, 0, rect.Width(), rect.Height(), source, 0, 0, SRCCOPY);
        ::ReleaseDC(window.GetSafeHwnd(), source);
        CRgn shape;
        shape.CreateRectRgn(0, 0, 0, 0);
        const bool isShaped = ::GetWindowRgn(window.GetSafeHwnd(), shape) != ERROR;
        canvas.Close();
        BITMAP info{};
        ::GetObjectW(canvas.Bitmap(), sizeof(info), &info);
        const auto* const bits = static_cast<const std::uint32_t*>(info.bmBits);
        m_pixels.assign(bits, bits + static_cast<std::ptrdiff_t>(info.bmWidth) * info.bmHeight);
        for (std::size_t i = 0; i < m_pixels.size(); ++i) {
            const int x = static_cast<int>(i) % m_width, y = static_cast<int>(i) / m_width;
            const bool isSeen = !isShaped || shape.PtInRegion(x, y);
            m_pixels[i] = isSeen ? m_pixels[i] & 0xFFFFFF : 0;
        }
    }

    /// Where the two are not the same; empty: nowhere.
    std::string DifferenceFrom(const WindowPicture& other) const {
        if (m_width != other.m_width || m_pixels.size() != other.m_pixels.size()) {
            return "size";
        }
        CRect bounds(0, 0, 0, 0);
        for (std::size_t i = 0; i < m_pixels.size(); ++i) {
            const int x = static_cast<int>(i) % m_width, y = static_cast<int>(i) / m_width;
            if (m_pixels[i] != other.m_pixels[i]) {
                bounds.UnionRect(bounds, CRect(x, y, x + 1, y + 1));
            }
        }
        std::ostringstream text;
        if (!bounds.IsRectEmpty()) {
            text << "[" << bounds.left << ", " << bounds.top << ", " << bounds.right << ", " << bounds.bottom << "]";
        }
        return text.str();
    }

private:
    int m_width = 0;
    std::vector<std::uint32_t> m_pixels;
};

/// A frame whose ribbon holds an element of every kind.
class FullFrame {
public:
    FullFrame() {
        m_button = &m_host.Add(std::make_unique<CMFCRibbonButton>(100, L"Command"));
        m_button->AddSubItem(std::make_unique<CMFCRibbonButton>(101, L"First").release());
        m_button->AddSubItem(std::make_unique<CMFCRibbonButton>(102, L"Second").release());
        m_host.Add(std::make_unique<CMFCRibbonCheckBox>(103, L"Check"));
        auto& combo = m_host.Add(std::make_unique<CMFCRibbonComboBox>(104, FALSE, 90));
        combo.AddItem(L"One");
        combo.SelectItem(0);
        m_host.Add(std::make_unique<CMFCRibbonEdit>(105, 80));
        m_host.Add(std::make_unique<CMFCRibbonSlider>(106, 100)).SetPos(40);
        m_host.Bar()
            .AddCategory(L"Second", 0, 0)
            ->AddPanel(L"Other")
            ->Add(std::make_unique<CMFCRibbonButton>(107, L"Other").release());
        m_host.LayOut();
    }

    void OpenPopup() {
        m_button->OnShowPopupMenu();
        PumpPending();
    }
    CMFCRibbonBar& Bar() { return m_host.Bar(); }
    CWnd& Window() { return m_host.Frame(); }

    /// Everything that the window shows, its borders too.
    WindowPicture Picture() {
        // What was invalidated, no more.
        ::RedrawWindow(Window().GetSafeHwnd(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        PumpPending();
        return WindowPicture(Window());
    }

private:
    RibbonHost m_host;
    CMFCRibbonButton* m_button = nullptr;
};

/// How the frame stands while the skins change.
struct Standing {
    const char* name;
    void (*enter)(FullFrame&);
};

const Standing kStandings[] = {
    {"plain", [](FullFrame&) {}},
    {"maximised", [](FullFrame& frame) { frame.Window().ShowWindow(SW_MAXIMIZE); }},
    {"ribbon minimised", [](FullFrame& frame) { frame.Bar().ToggleMimimizeState(); }},
    {"narrow, panels collapsed",
     [](FullFrame& frame) { frame.Window().SetWindowPos(nullptr, 0, 0, 260, 300, SWP_NOZORDER); }},
};

class SkinSwitching : public SkinTest {
protected:
    static WindowPicture FreshPicture(bool isBlack, const Standing& standing) {
        UseSkin(isBlack);
        FullFrame frame;
        standing.enter(frame);
        return frame.Picture();
    }
};

TEST_F(SkinSwitching, NoColourOfTheOtherSkinStaysOnTheFrame) {
    for (const Standing& standing : kStandings) {
        for (const bool isBlack : {true, false}) {
            const WindowPicture fresh = FreshPicture(isBlack, standing);
            UseSkin(!isBlack);
            FullFrame frame;
            standing.enter(frame);
            const WindowPicture other = frame.Picture();
            UseSkin(isBlack);
            EXPECT_EQ(frame.Picture().DifferenceFrom(fresh), "")
                << standing.name << (isBlack ? ", to black" : ", to silver");
            EXPECT_NE(other.DifferenceFrom(fresh), "") << "the skins are told apart";
        }
    }
}

TEST_F(SkinSwitching, NothingStaysBehindAnOpenPopup) {
    for (const bool isBlack : {true, false}) {
        const WindowPicture fresh = FreshPicture(isBlack, kStandings[0]);
        UseSkin(!isBlack);
        FullFrame frame;
        frame.OpenPopup();
        ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
        UseSkin(isBlack);
        PumpPending();
        ClosePopups();
        EXPECT_EQ(frame.Picture().DifferenceFrom(fresh), "") << isBlack;
    }
}

TEST_F(SkinSwitching, ManySwitchesWithAnOpenPopupLeaveNothingBehind) {
    constexpr int kFirst = 10, kSwitches = 60;
    UseSkin(true);
    FullFrame frame;
    frame.OpenPopup();
    EXPECT_TRUE(RepeatedLeavesNothingBehind(kFirst, kSwitches, [&frame](int round) {
        UseSkin(round % 2 == 0);
        ::RedrawWindow(frame.Window().GetSafeHwnd(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }));
    ClosePopups();
}

} // namespace
