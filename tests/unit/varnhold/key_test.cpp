#include "varnhold/key.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

const wchar_t* const kPath = L"Software\\VarnholdTests";

/// A key of the test's own below HKEY_CURRENT_USER.
class Key : public ::testing::Test {
protected:
    Key() {
        RegDeleteTreeW(HKEY_CURRENT_USER, kPath);
        RegCreateKeyExW(HKEY_CURRENT_USER, kPath, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &m_key, nullptr);
    }
    ~Key() override {
        RegCloseKey(m_key);
        RegDeleteTreeW(HKEY_CURRENT_USER, kPath);
    }

    void Write(const wchar_t* name, DWORD type, const std::wstring& text, DWORD extraBytes = 0) {
        ASSERT_EQ(RegSetValueExW(m_key, name, 0, type, reinterpret_cast<const BYTE*>(text.c_str()),
                                 static_cast<DWORD>(text.size() * sizeof(wchar_t)) + extraBytes),
                  ERROR_SUCCESS);
    }

    static std::wstring Read(const wchar_t* name) {
        CKey key;
        std::wstring value = L"untouched";
        EXPECT_TRUE(key.Open(HKEY_CURRENT_USER, kPath));
        return key.GetStringValue(name, value) ? value : L"<" + value + L">";
    }

    HKEY m_key = nullptr;
};

TEST_F(Key, OpensWithAndWithoutClosingBackslash) {
    CKey key;
    EXPECT_FALSE(key.IsOpen());
    EXPECT_TRUE(key.Open(HKEY_CURRENT_USER, kPath));
    EXPECT_TRUE(key.IsOpen());
    EXPECT_TRUE(key.Open(HKEY_CURRENT_USER, std::wstring(kPath) + L"\\"));
    EXPECT_FALSE(key.Open(HKEY_CURRENT_USER, L"Software\\VarnholdTests\\Missing"));
    EXPECT_FALSE(key.IsOpen());
}

TEST_F(Key, ReadsTexts) {
    Write(L"plain", REG_SZ, std::wstring(L"C:\\video\0", 9));
    Write(nullptr, REG_SZ, std::wstring(L"default\0", 8));
    EXPECT_EQ(Read(L"plain"), L"C:\\video");
    EXPECT_EQ(Read(nullptr), L"default");
    EXPECT_EQ(Read(L""), L"default");
}

TEST_F(Key, TextsWithoutATerminatorOrWithSeveralAreReadToTheirFirstNul) {
    Write(L"bare", REG_SZ, L"C:\\video");
    Write(L"odd", REG_SZ, L"abcd", static_cast<DWORD>(-1));
    Write(L"two", REG_SZ, std::wstring(L"one\0two\0\0", 9));
    Write(L"empty", REG_SZ, L"");
    EXPECT_EQ(Read(L"bare"), L"C:\\video");
    EXPECT_EQ(Read(L"odd"), L"abc");
    EXPECT_EQ(Read(L"two"), L"one");
    EXPECT_EQ(Read(L"empty"), L"");
}

TEST_F(Key, LongTextsAreReadWhole) {
    for (const std::size_t length : {255u, 256u, 257u, 20000u}) {
        const std::wstring text(length, L'x');
        Write(L"long", REG_SZ, text);
        EXPECT_EQ(Read(L"long"), text);
    }
}

TEST_F(Key, VariablesInExpandableTextsAreReplaced) {
    SetEnvironmentVariableW(L"VARNHOLD_TEST", std::wstring(3000, L'v').c_str());
    Write(L"expand", REG_EXPAND_SZ, L"<%VARNHOLD_TEST%>\\media");
    Write(L"plain", REG_SZ, L"%VARNHOLD_TEST%");
    EXPECT_EQ(Read(L"expand"), L"<" + std::wstring(3000, L'v') + L">\\media");
    EXPECT_EQ(Read(L"plain"), L"%VARNHOLD_TEST%");
    SetEnvironmentVariableW(L"VARNHOLD_TEST", nullptr);
    EXPECT_EQ(Read(L"expand"), L"<%VARNHOLD_TEST%>\\media");
}

TEST_F(Key, OtherTypesMissingValuesAndClosedKeysLeaveTheArgumentAlone) {
    const DWORD number = 5;
    RegSetValueExW(m_key, L"number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number);
    EXPECT_EQ(Read(L"number"), L"<untouched>");
    EXPECT_EQ(Read(L"missing"), L"<untouched>");
    std::wstring value = L"untouched";
    EXPECT_FALSE(CKey().GetStringValue(L"plain", value));
    EXPECT_EQ(value, L"untouched");
}

TEST_F(Key, MovesAndClosesOnce) {
    Write(L"plain", REG_SZ, L"text");
    CKey first;
    ASSERT_TRUE(first.Open(HKEY_CURRENT_USER, kPath));
    CKey second(std::move(first));
    EXPECT_TRUE(second.IsOpen());
    CKey third;
    third = std::move(second);
    std::wstring value;
    EXPECT_TRUE(third.GetStringValue(std::wstring(L"plain"), value));
    EXPECT_EQ(value, L"text");
    third.Close();
    third.Close();
    EXPECT_FALSE(third.IsOpen());
}

} // namespace
