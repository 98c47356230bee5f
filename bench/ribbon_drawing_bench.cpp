// A ribbon of 1,600 pixels that shows 100 buttons with icon files: painting it in every way that a user causes, beside
// two floors: the icon draws and text draws of the same paint and nothing else, once with each icon file read and
// decoded for it, and once with all pictures in memory. Changing the skin has a floor of its own: the skin's pictures
// read and decoded, and the whole window drawn with them. The pictures lie beside the program.
#include <afxvisualmanageroffice2007.h>

#include "bench_frame.h"
#include "draw_calls.h"
#include "ribbon_bar_ex.h"
#include "ribbon_icon_button.h"
#include "scenario.h"
#include "skin_visual_managers.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <gdiplus.h>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kIconFiles = 20;
constexpr int kWidth = 1600, kNarrowWidth = 1500, kBarHeight = 150;
constexpr int kPanels = 5, kButtonsInAPanel = 20, kButtons = kPanels * kButtonsInAPanel;

ScenarioDirectory& Scenario() {
    static ScenarioDirectory directory;
    return directory;
}

CString IconPath(int side, int index) {
    static const bool isMade = (Scenario().AddRibbonFile(100, kIconFiles), true);
    const std::wstring path =
        ScenarioIcon(Scenario().Path().wstring() + L"\\", side, static_cast<std::size_t>(index) % kIconFiles);
    return isMade ? path.c_str() : L"";
}

/// As at the start: whatever was kept from earlier paints is dropped.
void ForgetPaints() { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007)); }

class CPaintedFrame : public CBenchFrameWith<CMFCRibbonBarEx> {
public:
    bool Make() override {
        ForgetPaints();
        if (!CBenchFrameWith::Make()) {
            return false;
        }
        AddCategory(L"One");
        AddCategory(L"Two");
        m_ribbon.SetActiveCategory(m_ribbon.GetCategory(0));
        SetClientWidth(kWidth);
        ShowWindow(SW_SHOW);
        UpdateWindow();
        return true;
    }
    void SetClientWidth(int width) {
        CRect window, client;
        GetWindowRect(window);
        GetClientRect(client);
        SetWindowPos(nullptr, 0, 0, width + window.Width() - client.Width(), 900, SWP_NOZORDER | SWP_NOMOVE);
    }

protected:
    /// The frame may be wider than the screen.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = CFrameWndEx::WindowProc(message, wParam, lParam);
        if (message == WM_GETMINMAXINFO) {
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMaxTrackSize = {4 * kWidth, 4 * kWidth};
        }
        return result;
    }

private:
    void AddCategory(LPCTSTR name) {
        CMFCRibbonCategory* const category = m_ribbon.AddCategory(name, 0, 0);
        for (int panel = 0; panel < kPanels; ++panel) {
            CMFCRibbonPanel* const added = category->AddPanel(L"Panel");
            for (int i = 0; i < kButtonsInAPanel; ++i) {
                const int index = panel * kButtonsInAPanel + i;
                added->Add(new CMFCRibbonUNIcoButton(
                    static_cast<UINT>(41000 + index), std::wstring(1, static_cast<wchar_t>(L'A' + index % 26)).c_str(),
                    IconPath(32, index), FALSE, IconPath(16, index), TRUE, FALSE, FALSE));
            }
        }
    }
};

CPaintedFrame* g_frame = nullptr;

CMFCRibbonBarEx& Ribbon() { return g_frame->m_ribbon; }

void PaintWhole() { Ribbon().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

void SwitchTab() {
    const int next = 1 - Ribbon().GetCategoryIndex(Ribbon().GetActiveCategory());
    Ribbon().SetActiveCategory(Ribbon().GetCategory(next));
    Ribbon().UpdateWindow();
}

/// Another width each time, as when a user drags the frame's border: nothing kept from the last width helps.
void Resize() {
    static int step = 0;
    step = (step + 37) % (kWidth - kNarrowWidth + 1);
    g_frame->SetClientWidth(kWidth - step);
    Ribbon().UpdateWindow();
}

void MovePointerTo(int panel, int button) {
    const CMFCRibbonPanel* const shown = Ribbon().GetActiveCategory()->GetPanel(panel);
    const CPoint point = shown->GetElement(button)->GetRect().CenterPoint();
    Ribbon().SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
    Ribbon().UpdateWindow();
}

void Hover() {
    static int next = 0;
    next = 1 - next;
    MovePointerTo(2, next == 0 ? 0 : kButtonsInAPanel - 1);
}

/// The panel under the pointer has a ground of its own, so that two panels change with all that lies on them.
void HoverAcrossPanels() {
    static int next = 0;
    next = 1 - next;
    MovePointerTo(next == 0 ? 1 : 3, 0);
}

void FirstPaint() { PaintWhole(); }

void SwitchSkin() {
    Ribbon().ChangeSkinColor(1 - Ribbon().GetSkinStyle(), true);
    g_frame->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

struct Action {
    const char* name;
    void (*run)();
    void (*prepare)();
};
constexpr Action kActions[] = {
    {"first paint", FirstPaint, ForgetPaints},
    {"full repaint", PaintWhole, nullptr},
    {"tab switch", SwitchTab, nullptr},
    {"relayout on resize", Resize, nullptr},
    {"hover", Hover, nullptr},
    {"hover across panels", HoverAcrossPanels, nullptr},
    // The last one: the skins stay in force.
    {"skin switch", SwitchSkin, nullptr},
};

DrawCalls CallsOf(const Action& action) {
    constexpr int runs = 4;
    DrawCalls calls{};
    for (int i = 0; i < runs; ++i) {
        if (action.prepare) {
            action.prepare();
        }
        const DrawCallCounter counter;
        action.run();
        if (i < runs / 2) { // what happens every time, not what happens the first time
            continue;
        }
        calls.icons += counter.Calls().icons;
        calls.texts += counter.Calls().texts;
    }
    return {calls.icons / (runs / 2), calls.texts / (runs / 2)};
}

void Run(benchmark::State& state, const Action& action) {
    const DrawCalls calls = CallsOf(action);
    for (auto _ : state) {
        if (action.prepare) {
            state.PauseTiming();
            action.prepare();
            state.ResumeTiming();
        }
        action.run();
    }
    state.counters["icons"] = static_cast<double>(calls.icons);
    state.counters["texts"] = static_cast<double>(calls.texts);
}

HICON LoadOne(int side, std::size_t index) {
    return static_cast<HICON>(
        ::LoadImageW(nullptr, IconPath(side, static_cast<int>(index)), IMAGE_ICON, side, side, LR_LOADFROMFILE));
}

/// The icon files of so many buttons in both sizes, loaded by the system.
class FloorIcons {
public:
    explicit FloorIcons(long buttons) : m_files(std::min<std::size_t>(kIconFiles, static_cast<std::size_t>(buttons))) {
        for (std::size_t i = 0; i < m_files; ++i) {
            m_large[i] = LoadOne(32, i);
            m_small[i] = LoadOne(16, i);
        }
    }
    ~FloorIcons() {
        for (std::size_t i = 0; i < m_files; ++i) {
            ::DestroyIcon(m_large[i]);
            ::DestroyIcon(m_small[i]);
        }
    }
    FloorIcons(const FloorIcons&) = delete;
    FloorIcons& operator=(const FloorIcons&) = delete;

    HICON SmallOne(long button) const { return m_small[static_cast<std::size_t>(button) % m_files]; }

private:
    std::size_t m_files;
    std::array<HICON, kIconFiles> m_large, m_small;
};

/// A bitmap as large as what is drawn of the window.
class FloorCanvas {
public:
    explicit FloorCanvas(CWnd& window = Ribbon(), CSize size = CSize(kWidth, kBarHeight))
        : m_window(&window), m_size(size) {
        m_memory.CreateCompatibleDC(&m_window);
        m_bitmap.CreateCompatibleBitmap(&m_window, size.cx, size.cy);
        m_previous = m_memory.SelectObject(&m_bitmap);
        m_font = m_memory.SelectObject(&afxGlobalData.fontRegular);
    }
    ~FloorCanvas() {
        m_memory.SelectObject(m_font);
        m_memory.SelectObject(m_previous);
    }
    FloorCanvas(const FloorCanvas&) = delete;
    FloorCanvas& operator=(const FloorCanvas&) = delete;

    void Fill(CRect rect, COLORREF color) { m_memory.FillSolidRect(rect, color); }
    void Stretch(CRect rect, HDC picture, CSize pictureSize) {
        const BLENDFUNCTION over{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        ::AlphaBlend(m_memory, rect.left, rect.top, rect.Width(), rect.Height(), picture, 0, 0, pictureSize.cx,
                     pictureSize.cy, over);
    }
    void Show() { m_window.BitBlt(0, 0, m_size.cx, m_size.cy, &m_memory, 0, 0, SRCCOPY); }

    void Draw(const DrawCalls& calls, const FloorIcons& icons) {
        for (long i = 0; i < calls.icons; ++i) {
            ::DrawIconEx(m_memory.GetSafeHdc(), 16 * static_cast<int>(i % 90), 20, icons.SmallOne(i), 16, 16, 0,
                         nullptr, DI_NORMAL);
        }
        for (long i = 0; i < calls.texts; ++i) {
            CRect rect(15 * static_cast<int>(i % 100), 60, 15 * static_cast<int>(i % 100) + 40, 80);
            m_memory.DrawText(L"B", 1, rect, DT_SINGLELINE | DT_NOPREFIX);
        }
    }

private:
    CClientDC m_window;
    CSize m_size;
    CDC m_memory;
    CBitmap m_bitmap;
    CBitmap* m_previous;
    CFont* m_font;
};

void RunFileFloor(benchmark::State& state, const Action& action) {
    const DrawCalls calls = CallsOf(action);
    FloorCanvas canvas;
    for (auto _ : state) {
        const FloorIcons icons(calls.icons);
        canvas.Draw(calls, icons);
    }
}

void RunMemoryFloor(benchmark::State& state, const Action& action) {
    const DrawCalls calls = CallsOf(action);
    const FloorIcons icons(calls.icons);
    FloorCanvas canvas;
    for (auto _ : state) {
        canvas.Draw(calls, icons);
    }
}

/// A skin's pictures, in memory for GDI.
class FloorPictures {
public:
    explicit FloorPictures(std::span<const std::wstring> files) {
        for (const std::wstring& file : files) {
            Gdiplus::Bitmap source(file.c_str());
            const INT width = static_cast<INT>(source.GetWidth()), height = static_cast<INT>(source.GetHeight());
            const Gdiplus::Rect whole(0, 0, width, height);
            Gdiplus::BitmapData data;
            if (source.LockBits(&whole, Gdiplus::ImageLockModeRead, PixelFormat32bppPARGB, &data) == Gdiplus::Ok) {
                m_bitmaps.push_back(::CreateBitmap(width, height, 1, 32, nullptr));
                ::SetBitmapBits(m_bitmaps.back(), static_cast<DWORD>(data.Stride * height), data.Scan0);
                m_sizes.emplace_back(width, height);
                source.UnlockBits(&data);
            }
        }
    }
    ~FloorPictures() {
        for (const HBITMAP bitmap : m_bitmaps) {
            ::DeleteObject(bitmap);
        }
    }
    FloorPictures(const FloorPictures&) = delete;
    FloorPictures& operator=(const FloorPictures&) = delete;

    std::size_t Count() const { return m_bitmaps.size(); }
    HBITMAP Bitmap(std::size_t index) const { return m_bitmaps[index]; }
    CSize Size(std::size_t index) const { return m_sizes[index]; }

private:
    std::vector<HBITMAP> m_bitmaps;
    std::vector<CSize> m_sizes;
};

/// The files of a skin's pictures as its manager knows them.
std::vector<std::wstring> PictureFiles(bool isSilver) {
    CMFCVisualManager::SetDefaultManager(isSilver ? RUNTIME_CLASS(CQKVisualManagerOffice2007Silver)
                                                  : RUNTIME_CLASS(CQKVisualManagerOffice2007Black));
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::wstring directory(program, std::wstring(program).rfind(L'\\') + 1);
    std::vector<std::wstring> files;
    const auto& skin = static_cast<CMFCVisualManagerOffice20072&>(*CMFCVisualManager::GetInstance());
    for (const CString& path : skin.GetSkinImages()) {
        files.push_back(directory + path.GetString());
    }
    return files;
}

/// All of the window drawn off the screen and shown at once, as the switch shows it.
void RunSwitchFloor(benchmark::State& state, const Action& action) {
    constexpr std::size_t ground = 6; // of a category, in the skins' list
    const DrawCalls calls = CallsOf(action);
    const std::vector<std::wstring> files[] = {PictureFiles(false), PictureFiles(true)};
    bool isSilver = false;
    for (auto _ : state) {
        isSilver = !isSilver;
        const FloorPictures pictures(files[isSilver ? 1 : 0]);
        if (pictures.Count() != files[0].size()) {
            state.SkipWithError("the skins' pictures do not lie beside the program");
            return;
        }
        CRect client;
        g_frame->GetClientRect(client);
        const CRect bar(0, 0, kWidth, kBarHeight);
        const FloorIcons icons(calls.icons);
        FloorCanvas canvas(*g_frame, client.Size());
        canvas.Fill(client, isSilver ? RGB(235, 240, 244) : RGB(75, 80, 90));
        canvas.Fill(bar, isSilver ? RGB(255, 255, 255) : RGB(60, 64, 73));
        CDC picture;
        picture.CreateCompatibleDC(nullptr);
        const HGDIOBJ previous = ::SelectObject(picture, pictures.Bitmap(ground));
        canvas.Stretch(bar, picture, pictures.Size(ground));
        ::SelectObject(picture, previous);
        canvas.Draw(calls, icons);
        canvas.Show();
        ::GdiFlush();
    }
}

struct Floor {
    const char* name;
    void (*run)(benchmark::State& state, const Action& action);
};
constexpr Floor kFloors[] = {
    {"each icon file once, icon draws and texts", RunFileFloor},
    {"icon draws and texts, all pictures in memory", RunMemoryFloor},
};

constexpr Floor kSwitchFloors[] = {
    {"its pictures decoded, each icon file once, the window drawn with them", RunSwitchFloor},
};

std::span<const Floor> FloorsOf(const Action& action) {
    return action.run == SwitchSkin ? std::span<const Floor>(kSwitchFloors) : std::span<const Floor>(kFloors);
}

void Register() {
    for (const Action& action : kActions) {
        benchmark::RegisterBenchmark(action.name, [&action](benchmark::State& state) {
            Run(state, action);
        })->Unit(benchmark::kMicrosecond);
        for (const auto& [floor, run] : FloorsOf(action)) {
            benchmark::RegisterBenchmark((std::string(action.name) + "/floor: " + floor).c_str(),
                                         [&action, run](benchmark::State& state) { run(state, action); })
                ->Unit(benchmark::kMicrosecond);
        }
    }
}

class CDrawingApp : public CBenchApp<CPaintedFrame> {
protected:
    void Measure(CPaintedFrame& frame) override {
        g_frame = &frame;
        int count = __argc;
        benchmark::Initialize(&count, __argv);
        Register();
        CRect bar;
        Ribbon().GetClientRect(bar);
        if (const DrawCalls calls = CallsOf(kActions[1]); bar.Width() != kWidth || calls.icons != kButtons) {
            std::fprintf(stderr, "%ld icons were drawn for %d buttons in %d pixels\n", calls.icons, kButtons,
                         bar.Width());
            return;
        }
        ULONG_PTR token = 0;
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token, &input, nullptr);
        benchmark::RunSpecifiedBenchmarks();
        Gdiplus::GdiplusShutdown(token);
    }
};

CDrawingApp s_app;

} // namespace
