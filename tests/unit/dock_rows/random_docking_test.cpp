// Ten thousand random steps of docking: after each, every pane is where it was put, inside its row, beside the others.
#include "panes/dock_rows.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <set>

namespace {

using panes::DockedPane;
using panes::DockRows;
using panes::PaneKey;

constexpr int kPanes = 12;
constexpr int kSteps = 10000;
constexpr std::size_t kFloating = 4;

class Docking {
public:
    explicit Docking(unsigned seed) : m_random(seed) {
        for (PaneKey key = 1; key <= kPanes; ++key) {
            m_panes[key] = Made(key);
        }
    }

    void Step() {
        const PaneKey key = 1 + Number(kPanes);
        switch (Number(7)) {
        case 0:
            Take(key, kFloating);
            break;
        case 1:
            m_room = Number(6) == 0 ? static_cast<int>(Number(20)) : 50 + static_cast<int>(Number(800));
            break;
        case 2:
            m_panes[key].isVisible = !m_panes[key].isVisible;
            if (DockedPane* const docked = Docked(key)) {
                docked->isVisible = m_panes[key].isVisible;
            }
            break;
        case 3:
            Dock(key, [this](DockRows& rows, DockedPane& pane) {
                pane.flows = Number(2) == 0;
                rows.AddLast(pane, m_room);
            });
            break;
        case 4:
            Dock(key, [this](DockRows& rows, DockedPane& pane) { rows.AddAt(pane, Place(rows), m_room); });
            break;
        case 5:
            Move(key);
            break;
        default:
            m_sites[Number(4)].Flow(m_room);
            break;
        }
    }

    void Check(int step) const {
        std::set<PaneKey> found;
        for (std::size_t side = 0; side < m_sites.size(); ++side) {
            for (const panes::DockRow& row : m_sites[side].Rows()) {
                ASSERT_FALSE(row.panes.empty()) << step;
                for (const DockedPane& pane : row.panes) {
                    ASSERT_TRUE(found.insert(pane.key).second) << step << ": pane " << pane.key << " is there twice";
                    ASSERT_EQ(m_where[pane.key], side) << step << ": pane " << pane.key;
                    ASSERT_TRUE(!pane.wantsWholeRow || row.panes.size() == 1) << step;
                }
            }
            CheckPlaces(m_sites[side], step);
        }
        for (PaneKey key = 1; key <= kPanes; ++key) {
            ASSERT_EQ(found.count(key) == 0, m_where[key] == kFloating) << step << ": pane " << key << " is lost";
        }
    }

private:
    std::size_t Number(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random); }

    DockedPane Made(PaneKey key) {
        DockedPane pane;
        pane.key = key;
        pane.length = static_cast<int>(Number(300));
        pane.smallest = static_cast<int>(Number(40));
        pane.thickness = 1 + static_cast<int>(Number(40));
        pane.wantsWholeRow = key == 1;
        return pane;
    }

    panes::RowPlace Place(const DockRows& rows) {
        return Number(2) == 0 ? rows.RowAt(static_cast<int>(Number(200)) - 20)
                              : panes::RowPlace{Number(rows.Rows().size() + 2), Number(2) == 0};
    }

    DockedPane* Docked(PaneKey key) { return m_where[key] == kFloating ? nullptr : m_sites[m_where[key]].Find(key); }

    void Take(PaneKey key, std::size_t to) {
        if (m_where[key] != kFloating) {
            m_sites[m_where[key]].Remove(key);
        }
        m_where[key] = to;
    }

    template <typename Adds>
    void Dock(PaneKey key, Adds adds) {
        const std::size_t side = Number(4);
        Take(key, side);
        DockedPane pane = m_panes[key];
        pane.offset = static_cast<int>(Number(900)) - 100;
        adds(m_sites[side], pane);
    }

    void Move(PaneKey key) {
        if (m_where[key] == kFloating) {
            return;
        }
        DockRows& rows = m_sites[m_where[key]];
        rows.MoveTo(key, Place(rows), static_cast<int>(Number(900)) - 100, m_room);
        if (Number(3) == 0) {
            rows.KeepPlaces(rows.RowOf(key), m_room, key);
        }
    }

    void CheckPlaces(const DockRows& rows, int step) const {
        int across = 0;
        for (const panes::PlacedRow& row : rows.Place(m_room)) {
            ASSERT_EQ(row.offset, across) << step;
            across += row.thickness;
            int end = 0;
            for (const panes::PlacedPane& pane : row.panes) {
                ASSERT_TRUE(m_panes[pane.key].isVisible) << step;
                ASSERT_GE(pane.span.offset, end) << step << ": pane " << pane.key << " lies on its neighbour";
                ASSERT_GE(pane.span.length, 0) << step;
                ASSERT_LE(m_panes[pane.key].thickness, row.thickness) << step;
                end = pane.span.End();
                ASSERT_LE(end, m_room) << step << ": pane " << pane.key << " leaves its row";
            }
        }
        ASSERT_EQ(rows.Thickness(), across) << step;
    }

    std::mt19937 m_random;
    std::array<DockRows, 4> m_sites;
    std::array<DockedPane, kPanes + 1> m_panes{};
    std::array<std::size_t, kPanes + 1> m_where = [] {
        std::array<std::size_t, kPanes + 1> nowhere{};
        nowhere.fill(kFloating);
        return nowhere;
    }();
    int m_room = 600;
};

TEST(RandomDocking, NoPaneIsLostOverlapsAnotherOrLeavesItsRow) {
    for (const unsigned seed : {1u, 2u, 3u}) {
        Docking docking(seed);
        for (int step = 0; step < kSteps; ++step) {
            docking.Step();
            docking.Check(step);
            if (HasFatalFailure()) {
                FAIL() << "seed " << seed;
            }
        }
    }
}

} // namespace
