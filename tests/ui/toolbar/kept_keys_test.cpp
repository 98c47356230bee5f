// Shortcuts from one run to the next.
#include "afxkeyboardmanager.h"
#include "tests/ui/toolbar/field_fixture.h"

namespace {

class KeptKeysTest : public FieldTest {
protected:
    ~KeptKeysTest() override { App().CleanState(App().GetRegSectionPath(kProfile)); }
    static CWinAppEx& App() { return *static_cast<CWinAppEx*>(AfxGetApp()); }
    static CKeyboardManager& Manager() { return *App().GetKeyboardManager(); }
    void GiveKey(WORD key, UINT command) {
        ACCEL entry{FVIRTKEY, key, static_cast<WORD>(command)};
        m_frame->ReplaceAccelTable(::CreateAcceleratorTableW(&entry, 1));
    }
    std::vector<UINT> Pressed(UINT key) {
        m_frame->SetFocus();
        m_keys.Press(key);
        return TakeCommands();
    }
    static constexpr LPCTSTR kProfile = L"KeptKeys";
};

using Commands = std::vector<UINT>;

TEST_F(KeptKeysTest, ComeBackAtTheNextStartAndGoWithAReset) {
    GiveKey(VK_F8, 3001);
    ASSERT_TRUE(Manager().SaveState(kProfile, m_frame));
    GiveKey(VK_F9, 3002); // what the program says
    ASSERT_TRUE(Manager().LoadState(kProfile, m_frame));
    EXPECT_EQ(Pressed(VK_F8), Commands{3001});
    EXPECT_EQ(Pressed(VK_F9), Commands{});
    Manager().ResetAll();
    EXPECT_EQ(Pressed(VK_F9), Commands{3002});
    EXPECT_EQ(Pressed(VK_F8), Commands{});
}

TEST_F(KeptKeysTest, AResetGoesBackToTheProgramsKeysHoweverOftenTheyWereLoaded) {
    GiveKey(VK_F8, 3001);
    ASSERT_TRUE(Manager().SaveState(kProfile, m_frame));
    GiveKey(VK_F9, 3002);
    ASSERT_TRUE(Manager().LoadState(kProfile, m_frame));
    ASSERT_TRUE(Manager().LoadState(kProfile, m_frame));
    Manager().ResetAll();
    EXPECT_EQ(Pressed(VK_F9), Commands{3002});
}

TEST_F(KeptKeysTest, WithoutAnyNothingChanges) {
    GiveKey(VK_F9, 3002);
    EXPECT_FALSE(Manager().LoadState(L"NeverSaved", m_frame));
    EXPECT_EQ(Pressed(VK_F9), Commands{3002});
}

TEST_F(KeptKeysTest, DamagedOnesLeaveTheTableAsItIs) {
    GiveKey(VK_F8, 3001);
    ASSERT_TRUE(Manager().SaveState(kProfile, m_frame));
    GiveKey(VK_F9, 3002);
    const CString section = CString(kProfile) + L"\\Keyboard";
    LPBYTE data = nullptr;
    UINT size = 0;
    ASSERT_TRUE(App().GetSectionBinary(section, L"Keys", &data, &size));
    const std::vector<BYTE> good(data, data + size);
    delete[] data;
    for (UINT position = 0; position < size; ++position) {
        std::vector<BYTE> bytes = good;
        bytes[position] ^= 0xFF;
        ASSERT_TRUE(App().WriteSectionBinary(section, L"Keys", bytes.data(), size));
        Manager().LoadState(kProfile, m_frame); // another key or command is not damage that one can see
        EXPECT_NE(m_frame->m_hAccelTable, nullptr);
        Manager().ResetAll();
        EXPECT_EQ(Pressed(VK_F9), Commands{3002}) << position;
    }
    std::vector<BYTE> half(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(size / 2));
    ASSERT_TRUE(App().WriteSectionBinary(section, L"Keys", half.data(), static_cast<UINT>(half.size())));
    EXPECT_FALSE(Manager().LoadState(kProfile, m_frame));
    EXPECT_EQ(Pressed(VK_F9), Commands{3002});
}

} // namespace
