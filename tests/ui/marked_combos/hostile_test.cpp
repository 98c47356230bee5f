// A host that does the worst it can inside of every message.
#include "menu_event.h"
#include "tests/support/buried.h"
#include "tests/support/counted_faults.h"
#include "tests/support/keys.h"
#include "tests/ui/marked_combos/combo_fixture.h"

#include <afxRibbonPanel.h>

#include <ostream>
#include <string_view>

namespace {

struct Scene;

/// What a user does.
struct Trigger {
    const char* name;
    void (*run)(Scene& scene);
    /// Which kinds tell their host of it: some of "CML", by the kinds' first letters.
    const char* tells;
};
/// What the host does when it is told.
struct Deed {
    const char* name;
    void (*run)(Scene& scene);
};

struct Scene {
    RibbonHost& host;
    Pointer& pointer;
    CMFCRibbonComboBox* combo;
    int deeds = 0;

    bool IsAlive() const { return host.IsAlive() && combo; }
    CMFCPopupMenuBarEx* Rows() const {
        CMFCPopupMenu* const active = CMFCPopupMenu::GetActiveMenu();
        return active ? DYNAMIC_DOWNCAST(CMFCPopupMenuBarEx, active->GetMenuBar()) : nullptr;
    }
    CPoint InRow(int x) const { return {x, Rows()->GetRowRect(1).top + 8}; }
    void ClickRow(int x) const {
        combo->DropDownList();
        pointer.Click(Rows()->GetSafeHwnd(), InRow(x));
    }
    void DoubleClickRow(int x) const {
        combo->DropDownList();
        pointer.DoubleClick(Rows()->GetSafeHwnd(), InRow(x));
    }
    void ClickFace(int x) const {
        const CRect edit = combo->GetEditRect();
        pointer.Click(host.BarWindow(), CPoint(edit.left + x, edit.CenterPoint().y));
    }
    void Space() const {
        combo->DropDownList();
        CMFCPopupMenu::GetActiveMenu()->OnChainKey(WM_KEYDOWN, VK_SPACE);
    }
    void ShiftSpace() const {
        Keys keys;
        keys.Hold(VK_SHIFT);
        Space();
    }
    void Notify(int zone, bool exclusive) const {
        dynamic_cast<CRibbonNotifyCombox&>(*combo).NotifyChangeData(1, zone, exclusive);
    }
    void RemoveCombo() {
        CMFCRibbonPanel* const panel = combo->GetParentPanel();
        panel->Remove(panel->GetIndex(combo));
        combo = nullptr;
    }
};

const Trigger triggers[] = {
    {"AClickOnAMarkInTheList", [](Scene& scene) { scene.ClickRow(8); }, "CML"},
    {"AClickOnTheSecondMarkInTheList", [](Scene& scene) { scene.ClickRow(25); }, "CML"},
    {"AChoiceInTheList", [](Scene& scene) { scene.ClickRow(90); }, "CML"},
    {"ADoubleClickOnAMark", [](Scene& scene) { scene.DoubleClickRow(8); }, "CML"},
    {"ADoubleClickOnTheSecondMark", [](Scene& scene) { scene.DoubleClickRow(25); }, "CML"},
    {"SpaceInTheList", [](Scene& scene) { scene.Space(); }, "CML"},
    {"ShiftAndSpaceInTheList", [](Scene& scene) { scene.ShiftSpace(); }, "CML"},
    {"AClickOnTheFacesMark", [](Scene& scene) { scene.ClickFace(8); }, "CML"},
    {"AClickOnTheFacesSecondMark", [](Scene& scene) { scene.ClickFace(25); }, "M"},
    {"AnAction", [](Scene& scene) { scene.Notify(2, false); }, "CM"},
    {"AnExclusiveNotice", [](Scene& scene) { scene.Notify(0, true); }, "CML"},
};

void ClearAll(CMFCRibbonComboBox& combo) {
    if (auto* const check = dynamic_cast<CMFCRibbonCheckComb*>(&combo)) {
        check->RemoveAll();
    } else if (auto* const multi = dynamic_cast<CMFCRibbonMultiCombo*>(&combo)) {
        multi->RemoveAll();
    } else {
        dynamic_cast<CMFCRibbonVesMultiCombo&>(combo).RemoveAll();
    }
}

const Deed deeds[] = {
    {"DestroysTheFrame", [](Scene& scene) { scene.host.Destroy(); }},
    {"RemovesTheCombo", [](Scene& scene) { scene.RemoveCombo(); }},
    {"RemovesEveryCategory",
     [](Scene& scene) {
         scene.combo = nullptr;
         scene.host.Bar().RemoveAllCategories();
     }},
    {"ClearsTheItems", [](Scene& scene) { ClearAll(*scene.combo); }},
    {"AddsItems",
     [](Scene& scene) {
         for (int i = 0; i < 50; ++i) {
             scene.combo->AddItem(L"more");
         }
     }},
    {"ClosesTheList", [](Scene&) { CMFCPopupMenu::CloseAll(); }},
    {"OpensTheList", [](Scene& scene) { scene.combo->DropDownList(); }},
    {"DisablesTheCombo", [](Scene& scene) { scene.combo->SetDisabled(TRUE); }},
    {"SelectsAnotherItem", [](Scene& scene) { scene.combo->SelectItem(2); }},
    {"EntersTheDispatcher", [](Scene&) { CMenuEvtHandleMgr::Ins()->MenuClick(41000); }},
    {"ClicksAgain",
     [](Scene& scene) {
         if (scene.deeds < 4) {
             scene.Notify(0, true);
         }
     }},
    {"PumpsMessages", [](Scene&) { PumpPending(); }},
};

enum class Kind { Check, Multi, LightOnly };

struct Case {
    Kind kind;
    const Trigger* trigger;
    const Deed* deed;
};

std::vector<Case> AllCases() {
    std::vector<Case> cases;
    for (const Kind kind : {Kind::Check, Kind::Multi, Kind::LightOnly}) {
        for (const Trigger& trigger : triggers) {
            for (const Deed& deed : deeds) {
                cases.push_back({kind, &trigger, &deed});
            }
        }
    }
    return cases;
}

/// One program for each kind and trigger would cost a second each: the cases of a kind run in one.
class HostileHost : public testing::TestWithParam<Kind> {
protected:
    static CMFCRibbonComboBox& MakeCombo(RibbonHost& host, Kind kind) {
        switch (kind) {
        case Kind::Check:
            return host.Add(std::make_unique<Buried<CMFCRibbonCheckComb>>(comboId, FALSE, 120));
        case Kind::Multi:
            return host.Add(std::make_unique<Buried<CMFCRibbonMultiCombo>>(comboId, FALSE, 120));
        default:
            return host.Add(std::make_unique<Buried<CMFCRibbonVesMultiCombo>>(comboId, FALSE, 120));
        }
    }
    static int RunCase(const Case& one) {
        RibbonHost host;
        LeaveForeground();
        Pointer pointer;
        Scene scene{host, pointer, &MakeCombo(host, one.kind)};
        for (const wchar_t* const item : someItems) {
            scene.combo->AddItem(item);
        }
        scene.combo->SelectItem(1);
        host.LayOut();
        host.Frame().carriesText = CarriesText;
        host.Frame().listensTo = [](UINT message) { return std::ranges::count(ComboMessages(), message) != 0; };
        host.Frame().onMessage = [&](const HostMessage&) {
            ++scene.deeds;
            if (scene.IsAlive()) {
                one.deed->run(scene);
            }
            return 1;
        };
        one.trigger->run(scene);
        PumpPending();
        CMFCPopupMenu::CloseAll();
        PumpPending();
        return scene.deeds;
    }
};

std::string NameOf(const testing::TestParamInfo<Kind>& info) {
    return info.param == Kind::Check ? "Check" : info.param == Kind::Multi ? "Multi" : "LightOnly";
}

TEST_P(HostileHost, EveryMessageMayBeTheEndOfEverything) {
    afxGlobalData.SetRibbonImageScale(1.0);
    constexpr char letters[] = {'C', 'M', 'L'};
    const char letter = letters[static_cast<int>(GetParam())];
    for (const Case& one : AllCases()) {
        if (one.kind != GetParam()) {
            continue;
        }
        SCOPED_TRACE(std::string(one.trigger->name) + ": the host " + one.deed->name);
        const CountedFaults faults;
        EXPECT_EQ(RunCase(one) > 0, std::string_view(one.trigger->tells).find(letter) != std::string_view::npos);
        EXPECT_EQ(faults.Get(), 0);
    }
    afxGlobalData.SetRibbonImageScale(0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, HostileHost, testing::Values(Kind::Check, Kind::Multi, Kind::LightOnly), NameOf);

TEST_F(RibbonCombos, ItemsThatTheHostTakesAwayDuringAnExclusiveClickAreNotTold) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    m_host.Frame().onMessage = [&](const HostMessage&) {
        combo.RemoveAll();
        return 0;
    };
    EXPECT_TRUE(combo.NotifyChangeData(2, 0, true));
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'one' 4"});
}

TEST_F(RibbonCombos, ItemsThatTheHostAddsDuringAnExclusiveClickAreLeftAlone) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    m_host.Frame().onMessage = [&](const HostMessage&) {
        combo.AddItem(L"more");
        return 0;
    };
    EXPECT_TRUE(combo.NotifyChangeData(0, 0, true));
    EXPECT_EQ(TakeTold(), (Told{"sent CHECK 'two' 4", "sent CHECK 'three' 4"}));
    EXPECT_EQ(ChecksOf(combo), "100??");
}

TEST_F(RibbonCombos, AHostThatDestroysItsFrameIsToldNothingMore) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    int told = 0;
    m_host.Frame().onMessage = [&](const HostMessage&) {
        ++told;
        m_host.Destroy();
        return 0;
    };
    EXPECT_TRUE(combo.NotifyChangeData(0, 0, true));
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(m_host.IsAlive());
}

} // namespace
