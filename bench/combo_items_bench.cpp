// Combos with many items and two copies: filling them and setting states, opening a list, painting what the list shows;
// beside the same work with nothing but strings, maps, and draw calls.
#include "combo_window.h"
#include "draw_calls.h"
#include "run_benchmarks.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace {

constexpr int kCopies = ComboWindow::copies;
constexpr int kShownRows = 30;

ComboWindow* g_window = nullptr;

void Fill(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        g_window->Combo().RemoveAll();
        for (int i = 0; i < count; ++i) {
            g_window->Combo().AddItem(L"item", static_cast<DWORD_PTR>(i));
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void FillFloor(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        std::vector<std::pair<CString, DWORD_PTR>> copies[kCopies];
        for (int i = 0; i < count; ++i) {
            for (auto& copy : copies) {
                copy.emplace_back(L"item", static_cast<DWORD_PTR>(i));
            }
        }
        benchmark::DoNotOptimize(copies);
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void SetStates(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    g_window->Fill(count);
    bool light = false;
    for (auto _ : state) {
        light = !light;
        for (int i = 0; i < count; ++i) {
            g_window->Combo().SetItemLight(i, light, false);
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void SetStatesFloor(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    std::map<int, CMFCRibbonMultiCombo::rowInfo> copies[kCopies];
    bool light = false;
    for (auto _ : state) {
        light = !light;
        for (int i = 0; i < count; ++i) {
            for (auto& copy : copies) {
                copy[i].light = light;
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void SetChecks(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    g_window->Fill(count);
    bool check = false;
    for (auto _ : state) {
        check = !check;
        for (int i = 0; i < count; ++i) {
            g_window->CheckCombo().SetItemCheck(i, check);
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void SetChecksFloor(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    std::map<int, bool> copies[kCopies];
    bool check = false;
    for (auto _ : state) {
        check = !check;
        for (int i = 0; i < count; ++i) {
            for (auto& copy : copies) {
                copy[i] = check;
            }
        }
        benchmark::DoNotOptimize(copies);
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void Open(benchmark::State& state) {
    g_window->Fill(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        g_window->Combo().DropDownList();
        if (!g_window->Combo().IsDroppedDown()) {
            state.SkipWithError("no list is open");
        }
        CMFCPopupMenu::CloseAll();
    }
}

void OpenFloor(benchmark::State& state) {
    for (auto _ : state) {
        CWnd window;
        window.CreateEx(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, AfxRegisterWndClass(CS_SAVEBITS), L"", WS_POPUP,
                        CRect(100, 100, 300, 500), g_window, 0);
        CWnd rows;
        rows.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 400), &window, 1);
        window.ShowWindow(SW_SHOWNOACTIVATE);
        window.DestroyWindow();
    }
}

/// The rows that a list shows are painted, however many it has.
void PaintRows(benchmark::State& state) {
    g_window->Fill(static_cast<int>(state.range(0)));
    CMFCPopupMenuBar* const list = g_window->OpenList(kShownRows);
    if (!list) {
        state.SkipWithError("no list is open");
        return;
    }
    const auto paint = [list] { list->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); };
    const DrawCallCounter counter;
    paint();
    const long texts = counter.Calls().texts;
    if (texts < kShownRows - 2 || texts > kShownRows + 2) {
        state.SkipWithError("the list does not paint as many rows as it shows");
    }
    for (auto _ : state) {
        paint();
    }
    state.counters["texts"] = static_cast<double>(texts);
    CMFCPopupMenu::CloseAll();
}

void PaintRowsFloor(benchmark::State& state) {
    CClientDC window(g_window);
    CDC memory;
    memory.CreateCompatibleDC(&window);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&window, 300, 500);
    CBitmap* const previous = memory.SelectObject(&bitmap);
    CFont* const font = memory.SelectObject(&afxGlobalData.fontRegular);
    CImageList& lights = CQkMfc::Ins()->m_imageList;
    for (auto _ : state) {
        for (int row = 0; row < kShownRows; ++row) {
            CBrush brush(RGB(10, 20, 30));
            memory.FillRect(CRect(3, row * 15, 16, row * 15 + 13), &brush);
            lights.Draw(&memory, 0, CPoint(19, row * 15), ILD_TRANSPARENT);
            CRect text(35, row * 15, 200, row * 15 + 15);
            memory.DrawText(L"item", 4, text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        }
    }
    memory.SelectObject(font);
    memory.SelectObject(previous);
}

BENCHMARK(Fill)->Name("fill a combo of three")->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillFloor)
    ->Name("fill a combo of three/floor: three vectors of texts")
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(SetStates)->Name("set every item's light")->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(SetStatesFloor)
    ->Name("set every item's light/floor: three maps")
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(SetChecks)->Name("set every item's check")->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(SetChecksFloor)
    ->Name("set every item's check/floor: three maps")
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(Open)->Name("open a list")->Arg(10)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(OpenFloor)->Name("open a list/floor: a window with a child")->Unit(benchmark::kMicrosecond);
BENCHMARK(PaintRows)->Name("paint 30 rows")->Arg(kShownRows)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(PaintRowsFloor)->Name("paint 30 rows/floor: their swatches, lights and texts")->Unit(benchmark::kMicrosecond);

class CComboApp : public CBenchApp<ComboWindow> {
protected:
    void Measure(ComboWindow& window) override {
        g_window = &window;
        RunBenchmarks();
    }
};

CComboApp s_app;

} // namespace
