// What a ribbon that was loaded from a file takes: working set and GDI objects over the same frame without it.
//   bench_ribbon_memory BUTTONS [MEGABYTES]
// Ends with 1 when they take more memory or an object each, and when they could not be measured.
#include "add_ribbon_bar.h"
#include "bench_frame.h"
#include "scenario.h"
#include "tests/support/gui_objects.h"

#include <varnhold/file_op.h>

#include <windows.h>

#include <psapi.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t kIconFiles = 20;

class CSettlingFrame : public CBenchFrame {
public:
    bool Make() override {
        const bool isMade = CBenchFrame::Make();
        ShowWindow(SW_SHOW);
        return isMade;
    }
    /// All that a user waits for: layout, paint, idle work.
    void Settle() {
        RecalcLayout();
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        PumpPending();
    }
};

double WorkingSetInMegabytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof(counters);
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.WorkingSetSize) / (1024.0 * 1024.0);
}

class CMemoryApp : public CBenchApp<CSettlingFrame> {
public:
    int ExitInstance() override {
        CWinAppEx::ExitInstance(); // answers what the last message carried
        return m_isWithinBar ? 0 : 1;
    }

protected:
    void Measure(CSettlingFrame& frame) override {
        const int buttons = __argc > 1 ? std::atoi(__argv[1]) : 0;
        const double bar = __argc > 2 ? std::atof(__argv[2]) : HUGE_VAL;
        ScenarioDirectory scenario;
        const std::wstring file =
            buttons > 0 ? L"cfg\\" + scenario.AddRibbonFile(static_cast<std::size_t>(buttons), kIconFiles) : L"";
        FileOp::SetAppPath(scenario.Path().wstring() + L"\\");
        if (buttons <= 0) {
            std::fputs("usage: bench_ribbon_memory BUTTONS [MEGABYTES]\n", stderr);
            return;
        }
        frame.Settle();
        const double empty = WorkingSetInMegabytes();
        const GuiObjects objectsBefore = CountGuiObjects();
        CAddRibbonBar builder;
        if (!builder.Load(file, &frame.m_ribbon, 1)) {
            return;
        }
        frame.Settle();
        const double taken = WorkingSetInMegabytes() - empty;
        const long objects = CountGuiObjects().gdi - objectsBefore.gdi;
        m_isWithinBar = taken <= bar && objects < buttons;
        std::printf("memory of %d buttons: %.2f MB over an empty frame of %.2f MB, %ld GDI objects more%s\n", buttons,
                    taken, empty, objects, m_isWithinBar ? "" : ": OVER");
    }

private:
    bool m_isWithinBar = false;
};

CMemoryApp s_app;

} // namespace
