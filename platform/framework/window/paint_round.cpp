#include "window/paint_round.h"

#include "core/thread_slot.h"
#include "fx/paint_round.h"

#include <utility>
#include <vector>

namespace {

struct PaintRound {
    int depth = 0;
    std::vector<void (*)()> drops;

    void Drop() {
        for (const auto drop : std::exchange(drops, {})) {
            drop();
        }
    }
};

PaintRound* MakePaintRound() { return new PaintRound; }
constinit ThreadSlot<PaintRound> g_round(&MakePaintRound);

} // namespace

void BeginPaintRound() {
    PaintRound& round = g_round.Get();
    round.Drop();
    ++round.depth;
}

void EndPaintRound() {
    PaintRound& round = g_round.Get();
    round.Drop();
    --round.depth;
}

bool fx::IsPainting() { return g_round.Get().depth > 0; }
bool fx::CallAtPaintEnd(void (*drop)()) {
    if (!IsPainting()) {
        return false;
    }
    g_round.Get().drops.push_back(drop);
    return true;
}
