#include "fx/module_state.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

const HINSTANCE g_own = reinterpret_cast<HINSTANCE>(0x10000);
const HINSTANCE g_other = reinterpret_cast<HINSTANCE>(0x20000);

class ModuleState : public testing::Test {
protected:
    static HINSTANCE InAnotherThread() {
        HINSTANCE seen = nullptr;
        std::thread([&seen] { seen = AfxGetResourceHandle(); }).join();
        return seen;
    }

    const HINSTANCE m_before = AfxGetResourceHandle();
    AFX_MODULE_STATE m_library{g_own, g_own};
    AFX_MODULE_STATE m_second{g_other, g_other};
};

TEST_F(ModuleState, AScopeSwitchesTheResourcesAndGivesThemBack) {
    {
        const AFX_MAINTAIN_STATE2 outer(&m_library);
        EXPECT_EQ(AfxGetResourceHandle(), g_own);
        {
            const AFX_MAINTAIN_STATE2 inner(&m_second);
            EXPECT_EQ(AfxGetResourceHandle(), g_other);
        }
        EXPECT_EQ(AfxGetResourceHandle(), g_own);
    }
    EXPECT_EQ(AfxGetResourceHandle(), m_before);
}

TEST_F(ModuleState, AScopeOfOneThreadLeavesTheOthersAlone) {
    const AFX_MAINTAIN_STATE2 scope(&m_library);
    EXPECT_EQ(InAnotherThread(), m_before);
}

TEST_F(ModuleState, EachThreadHasItsOwnScope) {
    const AFX_MAINTAIN_STATE2 scope(&m_library);
    HINSTANCE inScope = nullptr;
    std::thread([&] {
        const AFX_MAINTAIN_STATE2 second(&m_second);
        inScope = AfxGetResourceHandle();
    }).join();
    EXPECT_EQ(inScope, g_other);
    EXPECT_EQ(AfxGetResourceHandle(), g_own);
}

TEST_F(ModuleState, AHandleThatIsSetInAScopeStaysWithTheModule) {
    {
        const AFX_MAINTAIN_STATE2 scope(&m_library);
        AfxSetResourceHandle(g_other);
        EXPECT_EQ(AfxGetResourceHandle(), g_other);
    }
    EXPECT_EQ(AfxGetResourceHandle(), m_before);
    const AFX_MAINTAIN_STATE2 again(&m_library);
    EXPECT_EQ(AfxGetResourceHandle(), g_other);
}

} // namespace
