#include "afxwinappex.h"
#include "tests/support/ui_test.h"
#include <fx/scoped_change.h>

#include <filesystem>

namespace {

CWinAppEx* App() { return static_cast<CWinAppEx*>(AfxGetApp()); }

class Profile : public ::testing::Test {
protected:
    void TearDown() override { App()->WriteProfileString(L"Section", nullptr, nullptr); }
};

TEST_F(Profile, NumbersComeBackAndMissingOnesAreTheDefault) {
    EXPECT_EQ(App()->GetProfileInt(L"Section", L"Number", 3), 3u);
    EXPECT_TRUE(App()->WriteProfileInt(L"Section", L"Number", -7));
    EXPECT_EQ(static_cast<int>(App()->GetProfileInt(L"Section", L"Number", 3)), -7);
}

TEST_F(Profile, TextsComeBackAndANullTextDeletesTheEntry) {
    EXPECT_TRUE(App()->WriteProfileString(L"Section", L"Text", L"Grüße 图层"));
    EXPECT_STREQ(App()->GetProfileString(L"Section", L"Text"), L"Grüße 图层");
    EXPECT_TRUE(App()->WriteProfileString(L"Section", L"Text", nullptr));
    EXPECT_STREQ(App()->GetProfileString(L"Section", L"Text", L"gone"), L"gone");
}

TEST_F(Profile, BytesComeBack) {
    BYTE bytes[] = {0, 1, 255, 16};
    EXPECT_TRUE(App()->WriteProfileBinary(L"Section", L"Bytes", bytes, sizeof(bytes)));
    LPBYTE found = nullptr;
    UINT size = 0;
    ASSERT_TRUE(App()->GetProfileBinary(L"Section", L"Bytes", &found, &size));
    const std::unique_ptr<BYTE[]> owned(found);
    ASSERT_EQ(size, sizeof(bytes));
    EXPECT_TRUE(std::equal(bytes, bytes + size, found));
    EXPECT_FALSE(App()->GetProfileBinary(L"Section", L"Missing", &found, &size));
    EXPECT_EQ(found, nullptr);
}

TEST_F(Profile, ANullEntryDeletesTheSection) {
    App()->WriteProfileInt(L"Section", L"Number", 5);
    EXPECT_TRUE(App()->WriteProfileString(L"Section", nullptr, nullptr));
    EXPECT_EQ(App()->GetProfileInt(L"Section", L"Number", 1), 1u);
}

TEST_F(Profile, SectionsOfTheApplicationLieBelowItsRegistryBase) {
    App()->SetRegistryBase(L"Section");
    EXPECT_TRUE(App()->WriteInt(L"Width", 640));
    EXPECT_TRUE(App()->WriteSectionInt(L"Bars", L"Count", 4));
    EXPECT_EQ(App()->GetProfileInt(L"Section", L"Width", 0), 640u);
    EXPECT_EQ(App()->GetProfileInt(L"Section\\Bars", L"Count", 0), 4u);
    EXPECT_TRUE(App()->IsStateExists(L"Bars"));
    EXPECT_FALSE(App()->IsStateExists(L"Nothing"));
    EXPECT_TRUE(App()->CleanState());
    EXPECT_EQ(App()->GetInt(L"Width", -1), -1);
    App()->SetRegistryBase();
    EXPECT_STREQ(App()->GetRegistryBase(), L"Workspace");
}

/// Settings in an .ini file of the test's own.
class IniProfile : public ::testing::Test {
protected:
    ~IniProfile() override { std::filesystem::remove(m_file); }

    const std::wstring m_file =
        (std::filesystem::temp_directory_path() / (L"barwright-" + std::to_wstring(::GetCurrentProcessId()) + L".ini"))
            .wstring();
    fx::ScopedChange<LPCTSTR> m_noRegistry{App()->m_pszRegistryKey, nullptr};
    fx::ScopedChange<LPCTSTR> m_profile{App()->m_pszProfileName, m_file.c_str()};
};

TEST_F(IniProfile, TextsOfAnyLengthComeBackWhole) {
    for (const int length : {0, 1, 254, 255, 256, 257, 4094, 4095, 4096, 10000}) {
        std::wstring text;
        for (int index = 0; index < length; ++index) {
            text += static_cast<wchar_t>(L'a' + index % 26);
        }
        ASSERT_TRUE(App()->WriteProfileString(L"Section", L"Text", text.c_str()));
        EXPECT_EQ(std::wstring(App()->GetProfileString(L"Section", L"Text")), text) << length;
    }
    const std::wstring fallback(5000, L'f');
    EXPECT_EQ(std::wstring(App()->GetProfileString(L"Section", L"None", fallback.c_str())), fallback);
}

TEST_F(IniProfile, BytesOfAnyCountComeBackWhole) {
    for (const UINT count : {1u, 2047u, 2048u, 9000u}) {
        std::vector<BYTE> bytes(count);
        for (UINT index = 0; index < count; ++index) {
            bytes[index] = static_cast<BYTE>(index * 7);
        }
        ASSERT_TRUE(App()->WriteProfileBinary(L"Section", L"Bytes", bytes.data(), count));
        LPBYTE found = nullptr;
        UINT size = 0;
        ASSERT_TRUE(App()->GetProfileBinary(L"Section", L"Bytes", &found, &size)) << count;
        const std::unique_ptr<BYTE[]> owned(found);
        EXPECT_EQ(std::vector<BYTE>(found, found + size), bytes) << count;
    }
}

TEST(WaitCursor, AnEndWithoutABeginLeavesTheCursorAlone) {
    CWinApp* const application = AfxGetApp();
    const HCURSOR hand = ::LoadCursor(nullptr, IDC_HAND);
    ::SetCursor(hand);
    application->BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_WAIT));
    application->EndWaitCursor();
    EXPECT_EQ(::GetCursor(), hand);
    const HCURSOR cross = ::LoadCursor(nullptr, IDC_CROSS);
    ::SetCursor(cross);
    application->EndWaitCursor();
    EXPECT_EQ(::GetCursor(), cross);
    application->BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_WAIT)) << "the superfluous end does not count";
    application->EndWaitCursor();
}

TEST(Application, NamesComeFromTheProgramFileUnlessSet) {
    EXPECT_STREQ(AfxGetAppName(), L"window_tests");
    EXPECT_STREQ(AfxGetApp()->m_pszExeName, L"window_tests");
    EXPECT_EQ(AfxGetApp()->m_hInstance, ::GetModuleHandle(nullptr));
    EXPECT_EQ(AfxGetThread(), AfxGetApp());
}

TEST(Application, ACommandLineIsTakenApart) {
    CCommandLineInfo printTo;
    printTo.ParseParam(L"pt", TRUE, FALSE);
    printTo.ParseParam(L"a.txt", FALSE, FALSE);
    printTo.ParseParam(L"printer", FALSE, TRUE);
    EXPECT_EQ(printTo.m_nShellCommand, CCommandLineInfo::FilePrintTo);
    EXPECT_STREQ(printTo.m_strPrinterName, L"printer");
    CCommandLineInfo open;
    open.ParseParam(L"a.txt", FALSE, TRUE);
    EXPECT_EQ(open.m_nShellCommand, CCommandLineInfo::FileOpen);
    EXPECT_STREQ(open.m_strFileName, L"a.txt");
    CCommandLineInfo fresh;
    fresh.ParseParam(L"unknown", TRUE, TRUE);
    EXPECT_EQ(fresh.m_nShellCommand, CCommandLineInfo::FileNew);
}

TEST(Application, TheManagersAreMadeOnceOnDemand) {
    EXPECT_NE(App()->GetKeyboardManager(), nullptr);
    EXPECT_EQ(App()->GetKeyboardManager(), App()->GetKeyboardManager());
    EXPECT_FALSE(App()->InitKeyboardManager());
    EXPECT_NE(App()->GetTooltipManager(), nullptr);
    EXPECT_FALSE(App()->InitTooltipManager());
}

TEST(SectionObject, ADamagedCountIsAsIfNothingHadBeenKept) {
    CWinAppEx* const application = App();
    CUIntArray kept;
    kept.Add(7);
    ASSERT_TRUE(application->WriteSectionObject(L"damaged", L"array", kept));
    CUIntArray read;
    EXPECT_TRUE(application->GetSectionObject(L"damaged", L"array", read));
    EXPECT_EQ(read.GetCount(), 1);
    for (const unsigned long long count : {~0ULL, 1ULL << 60}) {
        unsigned long long bytes[] = {count};
        ASSERT_TRUE(
            application->WriteSectionBinary(L"damaged", L"array", reinterpret_cast<LPBYTE>(bytes), sizeof(bytes)));
        CUIntArray damaged;
        EXPECT_FALSE(application->GetSectionObject(L"damaged", L"array", damaged)) << count;
    }
}

} // namespace
