// Where the framework takes a library from that it loads by name.
#include "afxcmn.h"

#include "tests/support/import_spy.h"
#include "tests/support/module_imports.h"
#include "tests/support/ui_test.h"

#include <string>

namespace {

std::wstring g_library;
DWORD g_flags = 0;
decltype(&::LoadLibraryExW) g_load = nullptr;

HMODULE WINAPI NoteLibrary(LPCWSTR name, HANDLE file, DWORD flags) {
    g_library = name;
    g_flags = flags;
    return g_load(name, file, flags);
}

TEST(LibraryPlace, IsTheSystemFolderAlone) {
    if (::GetModuleHandleW(L"msftedit.dll") != nullptr) {
        GTEST_SKIP() << "the library is loaded once in a process; run this test alone";
    }
    void** const slot = FindImport(::GetModuleHandleW(L"bwframework.dll"), "LoadLibraryExW");
    ASSERT_NE(slot, nullptr);
    const ImportSpy<decltype(::LoadLibraryExW)> spy(*slot, NoteLibrary);
    g_load = spy.GetOriginal();
    TestWindow window;
    CRichEditCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD, CRect(0, 0, 50, 50), &window, 300));
    EXPECT_EQ(g_library, L"msftedit.dll");
    EXPECT_EQ(g_flags, static_cast<DWORD>(LOAD_LIBRARY_SEARCH_SYSTEM32));
}

} // namespace
