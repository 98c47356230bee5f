// Applications that change all day long cost nothing.
#include "extended_status.h"

#include "tests/support/gui_objects.h"

#include <psapi.h>

namespace {

class SwitchingApplications : public ExtendedStatus {};

SIZE_T PrivateBytes() {
    PROCESS_MEMORY_COUNTERS_EX counters{};
    counters.cb = sizeof(counters);
    ::GetProcessMemoryInfo(::GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                           sizeof(counters));
    return counters.PrivateUsage;
}

TEST_F(SwitchingApplications, TenThousandTimesLeavesNeitherObjectsNorMemoryBehind) {
    TwoApplications();
    WriteIcon16(L"pic\\light.ico");
    CAddRibbonBar::m_smStatusExBtns[L"two"].second[1].picPath = L"pic\\light.ico";
    const auto change = [this](int round) { bar.SetExEleApp(round % 2 == 0 ? L"one" : L"two"); };
    for (int round = 0; round < 200; ++round) {
        change(round);
    }
    const SIZE_T before = PrivateBytes();
    EXPECT_TRUE(RepeatedLeavesNothingBehind(0, 10000, change));
    constexpr SIZE_T kOfTheAllocators = 1024 * 1024;
    EXPECT_LT(PrivateBytes(), before + kOfTheAllocators);
    EXPECT_EQ(bar.GetExCount(), 5);
}

TEST_F(SwitchingApplications, BarsThatComeAndGoLeaveNothingBehind) {
    TwoApplications();
    EXPECT_TRUE(RepeatedLeavesNothingBehind(3, 40, [this](int) {
        CMFCRibbonStatusBarEx other;
        ASSERT_TRUE(other.Create(&frame, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, 777));
        other.SetExEleApp(L"one");
        other.SetExEleApp(L"two");
        other.DestroyWindow();
    }));
}

} // namespace
