#pragma once

#include "scroll_bar_base.h"

#include "skins/scroll_timers.h"

#include "tests/support/png_file.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/ui_test.h"

#include <varnhold/file_op.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

/// A clock that stands until it is told to go on; then the timers that are due fire in their order.
class FakeClock : public ScrollTimers {
public:
    FakeClock() { Use(this); }
    FakeClock(const FakeClock&) = delete;
    FakeClock& operator=(const FakeClock&) = delete;
    ~FakeClock() override { Use(nullptr); }

    void Start(CWnd& bar, UINT_PTR id, UINT milliseconds) override {
        m_timers[id] = {bar.m_hWnd, milliseconds, m_now + milliseconds};
    }
    void Stop(CWnd& /*bar*/, UINT_PTR id) override { m_timers.erase(id); }

    bool IsRunning(UINT_PTR id) const { return m_timers.count(id) != 0; }
    UINT PeriodOf(UINT_PTR id) const { return m_timers.at(id).period; }
    void Advance(UINT milliseconds) {
        const unsigned until = m_now + milliseconds;
        for (auto next = Next(); next != m_timers.end() && next->second.due <= until; next = Next()) {
            m_now = next->second.due;
            next->second.due += next->second.period;
            const HWND window = next->second.window;
            ::SendMessageW(window, WM_TIMER, next->first, 0);
        }
        m_now = until;
    }

private:
    struct Timer {
        HWND window = nullptr;
        UINT period = 0;
        unsigned due = 0;
    };
    using Timers = std::map<UINT_PTR, Timer>;
    Timers::iterator Next() {
        return std::min_element(m_timers.begin(), m_timers.end(),
                                [](const auto& a, const auto& b) { return a.second.due < b.second.due; });
    }

    unsigned m_now = 0;
    Timers m_timers;
};

/// A bar with a content that is nothing but a position.
class TestBar : public CScrollBarBase {
public:
    int position = 0;
    int limit = 100;
    int stepLength = 1;
    std::vector<int> moves;
    std::function<void()> onMove;

    int GetBaseScrollPos() override { return position; }
    int GetBaseScrollLimit() override { return limit; }
    int GetStepLength() override { return stepLength; }
    void ScrollBaseMove(int steps) override {
        moves.push_back(steps);
        position = std::clamp(position + steps * stepLength, 0, std::max(limit, 0));
        if (onMove) {
            onMove();
        }
    }

    bool MakeIn(CWnd& parent, CSize size) {
        const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
        return Create(windowClass, nullptr, WS_CHILD | WS_VISIBLE, CRect(CPoint(0, 0), size), &parent, 1) != FALSE;
    }
    CPoint ThumbMiddle() const { return m_thumb.CenterPoint(); }

    using CScrollBarBase::m_bkColor;
    using CScrollBarBase::m_client;
    using CScrollBarBase::m_currentPaths;
    using CScrollBarBase::m_dragOrigin;
    using CScrollBarBase::m_firstArrow;
    using CScrollBarBase::m_firstArrowPressed;
    using CScrollBarBase::m_hover;
    using CScrollBarBase::m_isTracking;
    using CScrollBarBase::m_isVertical;
    using CScrollBarBase::m_lastThumbPosition;
    using CScrollBarBase::m_pixelsPerStep;
    using CScrollBarBase::m_secondArrow;
    using CScrollBarBase::m_secondArrowPressed;
    using CScrollBarBase::m_sideColor;
    using CScrollBarBase::m_skin;
    using CScrollBarBase::m_thumb;
    using CScrollBarBase::m_thumbPosition;
    using CScrollBarBase::m_thumbPressed;
    using CScrollBarBase::m_totalLength;
    using CScrollBarBase::m_track;
};

inline void SendMouse(CWnd& window, UINT message, CPoint point) {
    window.SendMessage(message, 0, MAKELPARAM(point.x, point.y));
}

/// What a window's client area shows.
class Shown {
public:
    explicit Shown(const CWnd& window) : m_window(window.m_hWnd), m_dc(::GetDC(m_window)) {}
    ~Shown() { ::ReleaseDC(m_window, m_dc); }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    COLORREF At(int x, int y) const { return ::GetPixel(m_dc, x, y); }
    COLORREF At(CPoint point) const { return At(point.x, point.y); }
    std::set<COLORREF> Colours(const CRect& rect) const {
        std::set<COLORREF> colours;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                colours.insert(At(x, y));
            }
        }
        return colours;
    }

private:
    HWND m_window;
    HDC m_dc;
};

/// The file was written that long ago.
inline std::filesystem::file_time_type SetWritten(const std::filesystem::path& file, std::chrono::seconds age) {
    const auto written = std::filesystem::file_time_type::clock::now() - age;
    std::filesystem::last_write_time(file, written);
    return written;
}

/// Writes an opaque PNG whose pixels the function colours; an hour old, as those of an installation are.
inline void WriteSkinPicture(const TemporaryDirectory& folder, const std::string& name, CSize size,
                             const std::function<COLORREF(int x, int y)>& colour) {
    Gdiplus::Bitmap picture(size.cx, size.cy, PixelFormat32bppARGB);
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            const COLORREF c = colour(x, y);
            picture.SetPixel(x, y, Gdiplus::Color(GetRValue(c), GetGValue(c), GetBValue(c)));
        }
    }
    const std::wstring path = folder.Write(name, "");
    const CLSID png{0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    ASSERT_EQ(picture.Save(path.c_str(), &png, nullptr), Gdiplus::Ok);
    SetWritten(path, std::chrono::hours(1));
}

/// A vertical bar of 20 x 200 pixels, half of whose content it shows, in an installation with small pictures.
class ScrollBarTest : public testing::Test {
protected:
    inline static const CSize kThumbSize = CSize(18, 60);
    inline static const CSize kArrowSize = CSize(6, 4);

    ScrollBarTest() : m_path(m_folder.Prefix()) {
        WritePictures("black", 0);
        WritePictures("silver", 100);
    }
    /// Row (or column) i of a thumb has i as its red; its blue says which picture it is.
    static COLORREF ThumbColour(int base, int kind, int row) { return RGB(row, base, 50 + kind); }
    static COLORREF ArrowColour(int base, int kind) { return RGB(200, base + kind, 10); }
    enum Kind { Up, Down, Left, Right, Vertical, VerticalClick, Horizon, HorizonClick };

    void Open(CSize size = CSize(20, 200), int total = 400) {
        ASSERT_TRUE(m_bar.MakeIn(m_parent, size));
        m_bar.SetSkin(0);
        m_bar.SetTotalLength(total);
        m_bar.InitThumb();
        m_bar.UpdateWindow();
    }
    void Press(CPoint point) { SendMouse(m_bar, WM_LBUTTONDOWN, point); }
    void Move(CPoint point) { SendMouse(m_bar, WM_MOUSEMOVE, point); }
    void Release(CPoint point = CPoint(0, 0)) { SendMouse(m_bar, WM_LBUTTONUP, point); }
    void Leave() { m_bar.SendMessage(WM_MOUSELEAVE); }

    ScopedGdiplus m_gdiplus;
    TemporaryDirectory m_folder;
    ScopedAppPath m_path;
    FakeClock m_clock;
    TestWindow m_parent;
    TestBar m_bar;

private:
    void WritePictures(const std::string& skin, int base) {
        constexpr std::array<const char*, 4> arrows = {"upArrow", "downArrow", "leftArrow", "rightArrow"};
        const std::string folder = "pic/skin/" + skin + "/";
        for (int i = 0; i < 4; ++i) {
            WriteSkinPicture(m_folder, folder + arrows[i] + ".png", kArrowSize,
                             [&](int, int) { return ArrowColour(base, i); });
        }
        constexpr std::array<const char*, 2> vertical = {"verticalNormal", "verticalClick"};
        constexpr std::array<const char*, 2> horizontal = {"horizonNormal", "horizonClick"};
        for (int i = 0; i < 2; ++i) {
            WriteSkinPicture(m_folder, folder + vertical[i] + ".png", kThumbSize,
                             [&](int, int y) { return ThumbColour(base, Vertical + i, y); });
            WriteSkinPicture(m_folder, folder + horizontal[i] + ".png", CSize(kThumbSize.cy, kThumbSize.cx),
                             [&](int x, int) { return ThumbColour(base, Horizon + i, x); });
        }
    }
};
