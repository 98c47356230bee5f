// A ribbon of 1,600 pixels that shows 100 buttons with icon files: painting it in every way that a user causes, beside
// the icon loads, icon draws and text draws of the same paint and nothing else.
#include <afxvisualmanageroffice2007.h>

#include "bench_frame.h"
#include "draw_calls.h"
#include "ribbon_icon_button.h"
#include "scenario.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <string>

namespace {

constexpr std::size_t kIconFiles = 20;
constexpr int kWidth = 1600, kNarrowWidth = 1500;
constexpr int kPanels = 5, kButtonsInAPanel = 20, kButtons = kPanels * kButtonsInAPanel;

ScenarioDirectory& Scenario() {
    static ScenarioDirectory directory;
    return directory;
}

CString IconPath(int side, int index) {
    static const bool isMade = (Scenario().AddRibbonFile(100, kIconFiles), true);
    const std::wstring path = Scenario().Path().wstring() + L"\\pic\\modle\\" + std::to_wstring(side) + L"\\icon" +
                              std::to_wstring(index % static_cast<int>(kIconFiles)) + L".ico";
    return isMade ? path.c_str() : L"";
}

/// As at the start: whatever was kept from earlier paints is dropped.
void ForgetPaints() { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007)); }

class CPaintedFrame : public CBenchFrame {
public:
    bool Make() override {
        ForgetPaints();
        if (!CBenchFrame::Make()) {
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

CMFCRibbonBar& Ribbon() { return g_frame->m_ribbon; }

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
        calls.imageLoads += counter.Calls().imageLoads;
        calls.icons += counter.Calls().icons;
        calls.texts += counter.Calls().texts;
    }
    return {calls.imageLoads / (runs / 2), calls.icons / (runs / 2), calls.texts / (runs / 2)};
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
    state.counters["loads"] = static_cast<double>(calls.imageLoads);
    state.counters["icons"] = static_cast<double>(calls.icons);
    state.counters["texts"] = static_cast<double>(calls.texts);
}

/// The paint's calls and nothing else: a button's two files are loaded, its small icon is drawn, each in its own size.
void RunFloor(benchmark::State& state, const Action& action) {
    const DrawCalls calls = CallsOf(action);
    const CString path = IconPath(16, 0);
    CClientDC window(&Ribbon());
    CDC memory;
    memory.CreateCompatibleDC(&window);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&window, kWidth, 150);
    CBitmap* const previous = memory.SelectObject(&bitmap);
    CFont* const font = memory.SelectObject(&afxGlobalData.fontRegular);
    for (auto _ : state) {
        for (long i = 0; i < calls.imageLoads; ++i) {
            const int side = i % 2 == 0 ? 32 : 16;
            const CString file = IconPath(side, static_cast<int>(i / 2));
            const auto icon = static_cast<HICON>(::LoadImageW(nullptr, file, IMAGE_ICON, side, side, LR_LOADFROMFILE));
            if (side == 16 && i / 2 < calls.icons) {
                ::DrawIconEx(memory.GetSafeHdc(), 16 * static_cast<int>(i / 2 % 90), 20, icon, side, side, 0, nullptr,
                             DI_NORMAL);
            }
            ::DestroyIcon(icon);
        }
        for (long i = 0; i < calls.texts; ++i) {
            CRect rect(15 * static_cast<int>(i % 100), 60, 15 * static_cast<int>(i % 100) + 40, 80);
            memory.DrawText(L"B", 1, rect, DT_SINGLELINE | DT_NOPREFIX);
        }
    }
    memory.SelectObject(font);
    memory.SelectObject(previous);
}

void Register() {
    for (const Action& action : kActions) {
        benchmark::RegisterBenchmark(action.name, [&action](benchmark::State& state) {
            Run(state, action);
        })->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(
            (std::string(action.name) + "/floor: its icon loads, icon draws and texts").c_str(),
            [&action](benchmark::State& state) { RunFloor(state, action); })
            ->Unit(benchmark::kMicrosecond);
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
        if (const DrawCalls calls = CallsOf(kActions[1]); bar.Width() != kWidth || calls.imageLoads != 2 * kButtons) {
            std::fprintf(stderr, "%ld icon files were loaded for %d buttons in %d pixels\n", calls.imageLoads, kButtons,
                         bar.Width());
            return;
        }
        benchmark::RunSpecifiedBenchmarks();
    }
};

CDrawingApp s_app;

} // namespace
