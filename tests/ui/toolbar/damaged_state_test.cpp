// A toolbar's saved buttons that somebody has damaged: they load whole, or the bar stays as it is and says so.
#include "afxtoolbarcomboboxbutton.h"
#include "afxtoolbareditboxbutton.h"
#include "afxwinappex.h"
#include "tests/support/canvas.h"
#include "tests/ui/toolbar/bar_frame.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <set>

namespace {

using State = std::vector<BYTE>;

constexpr LPCTSTR kSection = L"Damaged\\MFCToolBar-59392"; // of a bar with the id AFX_IDW_TOOLBAR
constexpr LPCTSTR kEntry = L"Buttons";

CWinAppEx& Application() { return *static_cast<CWinAppEx*>(AfxGetApp()); }

/// A menu button with a menu in its menu, and the bar's own buttons.
class DamagedState : public ToolBarTest {
protected:
    DamagedState() {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, 3010, L"Ten");
        CMenu inner;
        inner.CreatePopupMenu();
        inner.AppendMenu(MF_STRING, 3011, L"Eleven");
        inner.AppendMenu(MF_STRING, 3012, L"Twelve");
        menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(inner.Detach()), L"Inner");
        Bar().InsertButton(CMFCToolBarMenuButton(3020, menu, -1, L"Menu"));
    }
    ~DamagedState() override { Bar().RemoveStateFromRegistry(L"Damaged"); }

    State Stored() {
        CMemFile file;
        CArchive archive(&file, CArchive::store);
        Bar().Serialize(archive);
        archive.Close();
        State state(static_cast<std::size_t>(file.GetLength()));
        file.SeekToBegin();
        file.Read(state.data(), static_cast<UINT>(state.size()));
        return state;
    }
    /// Whether the bar says that it took the state over.
    bool Load(State state) {
        CMemFile file(state.data(), static_cast<UINT>(state.size()));
        CArchive archive(&file, CArchive::load);
        try {
            Bar().Serialize(archive);
            return true;
        } catch (CException* damaged) {
            damaged->Delete();
            return false;
        }
    }
    std::vector<const CObject*> Buttons() {
        std::vector<const CObject*> buttons;
        for (POSITION position = Bar().GetAllButtons().GetHeadPosition(); position;) {
            buttons.push_back(Bar().GetAllButtons().GetNext(position));
        }
        return buttons;
    }
    /// A state of one menu button whose menu is what `writeItems` writes.
    template <class WriteItems>
    State StateOfMenu(int itemCount, WriteItems writeItems) {
        class Holder : public CMFCToolBarMenuButton {
        public:
            using CMFCToolBarMenuButton::m_listCommands;
        };
        CMemFile file;
        CArchive archive(&file, CArchive::store);
        archive << 1;
        const CMFCToolBarMenuButton outer(3020, nullptr, -1, L"Menu");
        archive.WriteClass(RUNTIME_CLASS(CMFCToolBarMenuButton));
        archive.MapObject(&outer);
        WriteMenuHead(archive, outer, itemCount);
        writeItems(archive, outer);
        archive << 1;
        archive.Close();
        State state(static_cast<std::size_t>(file.GetLength()));
        file.SeekToBegin();
        file.Read(state.data(), static_cast<UINT>(state.size()));
        return state;
    }
    /// What a menu button stores, with another number of items.
    static void WriteMenuHead(CArchive& archive, const CMFCToolBarMenuButton& button, int itemCount) {
        CMemFile file;
        CArchive plain(&file, CArchive::store);
        const_cast<CMFCToolBarMenuButton&>(button).Serialize(plain);
        plain.Close();
        State bytes(static_cast<std::size_t>(file.GetLength()));
        file.SeekToBegin();
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        archive.Write(bytes.data(), static_cast<INT>(bytes.size() - sizeof(int)));
        archive << itemCount;
    }
    void ExpectRefused(State state) {
        const auto before = Buttons();
        EXPECT_FALSE(Load(std::move(state)));
        EXPECT_EQ(Buttons(), before);
    }
};

TEST_F(DamagedState, EveryTruncatedStateIsRefusedAndTheButtonsStay) {
    const State whole = Stored();
    ASSERT_TRUE(Load(whole));
    const auto before = Buttons();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(Load(State(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)))) << length;
        ASSERT_EQ(Buttons(), before) << length;
    }
}

TEST_F(DamagedState, TruncatedSettingMakesLoadStateSayFalseAndKeepsTheButtons) {
    ASSERT_TRUE(Bar().SaveState(L"Damaged"));
    LPBYTE data = nullptr;
    UINT size = 0;
    ASSERT_TRUE(Application().GetSectionBinary(kSection, kEntry, &data, &size));
    const std::unique_ptr<BYTE[]> bytes(data);
    ASSERT_TRUE(Application().WriteSectionBinary(kSection, kEntry, data, size / 2));
    const auto before = Buttons();
    EXPECT_FALSE(Bar().LoadState(L"Damaged"));
    EXPECT_EQ(Buttons(), before);
}

TEST_F(DamagedState, SoundMenuOfThisKindIsRead) {
    ASSERT_TRUE(Load(StateOfMenu(1, [](CArchive& archive, const CMFCToolBarMenuButton&) {
        const CMFCToolBarMenuButton item(3021, nullptr, -1, L"Item");
        archive.WriteObject(&item);
    })));
    const auto* const menu = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, Bar().GetButton(0));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->GetCommands().GetCount(), 1);
}

TEST_F(DamagedState, SameObjectTwiceIsRefused) {
    ExpectRefused(StateOfMenu(2, [](CArchive& archive, const CMFCToolBarMenuButton&) {
        const CMFCToolBarMenuButton item(3021, nullptr, -1, L"Item");
        archive.WriteObject(&item);
        archive.WriteObject(&item);
    }));
}

TEST_F(DamagedState, NullInAMenuListIsRefused) {
    ExpectRefused(
        StateOfMenu(1, [](CArchive& archive, const CMFCToolBarMenuButton&) { archive.WriteObject(nullptr); }));
}

TEST_F(DamagedState, MenuThatHoldsItselfIsRefused) {
    ExpectRefused(
        StateOfMenu(1, [](CArchive& archive, const CMFCToolBarMenuButton& outer) { archive.WriteObject(&outer); }));
}

TEST_F(DamagedState, TenThousandNestedMenusAreRefused) {
    ExpectRefused(StateOfMenu(1, [](CArchive& archive, const CMFCToolBarMenuButton& outer) {
        for (int depth = 0; depth < 10'000; ++depth) {
            archive.WriteClass(RUNTIME_CLASS(CMFCToolBarMenuButton));
            archive.MapObject(nullptr); // gives it a number
            WriteMenuHead(archive, outer, 1);
        }
    }));
}

TEST_F(DamagedState, MenusNestedAsDeepAsAPersonMakesThemAreRead) {
    constexpr int kDepth = fx::kDeepestOwnedObject - 1; // the button of the bar is one
    EXPECT_TRUE(Load(StateOfMenu(1, [](CArchive& archive, const CMFCToolBarMenuButton& outer) {
        for (int depth = 1; depth <= kDepth; ++depth) {
            archive.WriteClass(RUNTIME_CLASS(CMFCToolBarMenuButton));
            archive.MapObject(nullptr);
            WriteMenuHead(archive, outer, depth < kDepth ? 1 : 0);
        }
    })));
}

TEST_F(DamagedState, NumberOfButtonsThatNoneCanFollowIsRefused) {
    for (const int count : {-1, INT_MIN, INT_MAX, 100'000}) {
        State state = Stored();
        std::memcpy(state.data(), &count, sizeof(count));
        ExpectRefused(state);
    }
}

/// Changes a state in one of the ways in which values get damaged.
class Mutator {
public:
    void Mutate(State& state) {
        for (std::size_t changes = 1 + Below(4); changes > 0; --changes) {
            MutateOnce(state);
        }
    }

private:
    std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : m_random() % limit; }
    void MutateOnce(State& state) {
        const std::size_t place = Below(state.size());
        switch (state.empty() ? 4 : Below(6)) {
        case 0: // a bit
            state[place] ^= static_cast<BYTE>(1u << Below(8));
            break;
        case 1: // a byte
            state[place] = static_cast<BYTE>(m_random());
            break;
        case 2: { // a number of the kind that counts and tags are
            static constexpr std::uint32_t kNumbers[] = {0, 1, 0x7F, 0x7FFF, 0x8001, 0xFFFF, 0x7FFFFFFF, 0xFFFFFFFF};
            const std::uint32_t number = kNumbers[Below(std::size(kNumbers))];
            std::memcpy(state.data() + place, &number, std::min<std::size_t>(1 + Below(4), state.size() - place));
            break;
        }
        case 3: // the end is lost
            state.resize(place);
            break;
        case 4: // something more
            state.insert(state.begin() + static_cast<std::ptrdiff_t>(place), 1 + Below(16),
                         static_cast<BYTE>(m_random()));
            break;
        default: { // a piece is there twice
            const std::size_t length = std::min<std::size_t>(1 + Below(64), state.size() - place);
            const State piece(state.begin() + static_cast<std::ptrdiff_t>(place),
                              state.begin() + static_cast<std::ptrdiff_t>(place + length));
            const auto target = state.begin() + static_cast<std::ptrdiff_t>(Below(state.size()));
            state.insert(target, piece.begin(), piece.end());
        }
        }
    }

    std::mt19937 m_random{20240229};
};

TEST_F(DamagedState, HundredThousandMutationsLoadWholeOrLeaveTheButtons) {
    const State whole = Stored();
    Mutator mutator;
    int loaded = 0;
    int refused = 0;
    auto before = Buttons();
    for (int round = 0; round < 100'000; ++round) {
        State state = whole;
        mutator.Mutate(state);
        if (!Load(state)) {
            ++refused;
            ASSERT_EQ(Buttons(), before) << "refused and changed all the same, round " << round;
            continue;
        }
        ++loaded;
        int count = 0;
        std::memcpy(&count, state.data(), sizeof(count));
        before = Buttons();
        ASSERT_EQ(static_cast<int>(before.size()), count) << "not whole, round " << round;
        ASSERT_EQ(std::set<const CObject*>(before.begin(), before.end()).size(), before.size()) << "round " << round;
        // What was taken over can be stored and taken over again.
        ASSERT_TRUE(Load(Stored())) << "round " << round;
        before = Buttons();
    }
    EXPECT_GT(loaded, 1000);
    EXPECT_GT(refused, 1000);
}

/// Beside the menu a combo with items and an edit box.
class DamagedFields : public DamagedState {
protected:
    DamagedFields() {
        CMFCToolBarComboBoxButton combo(3030, 1, CBS_DROPDOWN, 90);
        for (const LPCTSTR text : {L"First", L"Second", L"Third"}) {
            combo.AddItem(text);
        }
        combo.SelectItem(1, FALSE);
        Bar().InsertButton(combo);
        CMFCToolBarEditBoxButton edit(3031, 1, ES_AUTOHSCROLL, 80);
        edit.SetContents(L"text");
        Bar().InsertButton(edit);
    }
    void Paint() {
        LayOut();
        CRect client;
        Bar().GetClientRect(client);
        Canvas canvas(CSize(std::clamp<int>(client.Width(), 1, 2000), std::clamp<int>(client.Height(), 1, 200)));
        Bar().DoPaint(canvas.Dc());
    }
};

TEST_F(DamagedFields, EveryTruncatedStateIsRefusedAndTheButtonsStay) {
    const State whole = Stored();
    ASSERT_TRUE(Load(whole));
    const auto before = Buttons();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(Load(State(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)))) << length;
        ASSERT_EQ(Buttons(), before) << length;
    }
}

TEST_F(DamagedFields, WhateverIsLoadedCanBeLaidOutAndDrawn) {
    const State whole = Stored();
    Mutator mutator;
    int loaded = 0;
    for (int round = 0; round < 5'000; ++round) {
        State state = whole;
        mutator.Mutate(state);
        if (!Load(state)) {
            continue;
        }
        ++loaded;
        Paint();
        ASSERT_TRUE(::IsWindow(Bar().m_hWnd)) << round;
        ASSERT_TRUE(Load(Stored())) << "round " << round;
    }
    EXPECT_GT(loaded, 300);
    ASSERT_TRUE(Load(whole));
    Paint();
    auto* const combo = DYNAMIC_DOWNCAST(CMFCToolBarComboBoxButton, Bar().GetButton(Bar().CommandToIndex(3030)));
    ASSERT_NE(combo, nullptr);
    EXPECT_STREQ(combo->GetItem(), L"Second");
    EXPECT_NE(combo->GetComboBox(), nullptr);
}

} // namespace
