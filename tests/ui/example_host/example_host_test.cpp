#include "barwright_version.h"

#include <gmock/gmock.h>

#include <windows.h>

#include <string>
#include <vector>

namespace {

constexpr int kRibbonBar = 0xE806;
constexpr DWORD kLongestStart = 60000; // milliseconds

/// The one of this build, unless the environment names another, say one that was built from an installed package.
std::wstring ProgramPath() {
    wchar_t path[MAX_PATH * 2] = {};
    if (::GetEnvironmentVariableW(L"BARWRIGHT_EXAMPLE_HOST", path, MAX_PATH * 2) != 0) {
        return path;
    }
    ::GetModuleFileNameW(nullptr, path, MAX_PATH * 2);
    std::wstring folder = path;
    folder.erase(folder.find_last_of(L'\\') + 1);
    return folder + EXAMPLE_HOST;
}

/// The example, running; closed by force at the end if it is still there.
class ExampleHost {
public:
    explicit ExampleHost(const std::wstring& language) {
        std::wstring line = L"\"" + ProgramPath() + L"\" " + language;
        STARTUPINFOW start = {};
        start.cb = sizeof(start);
        if (::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &m_process)) {
            FindFrame();
        }
    }
    ~ExampleHost() {
        if (m_process.hProcess == nullptr) {
            return;
        }
        ::TerminateProcess(m_process.hProcess, 99);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    ExampleHost(const ExampleHost&) = delete;
    ExampleHost& operator=(const ExampleHost&) = delete;

    /// Null when the program did not start or shows no window.
    HWND Frame() const { return m_frame; }
    HWND Ribbon() const { return ::GetDlgItem(m_frame, kRibbonBar); }

    std::wstring Title() const {
        wchar_t text[200] = {};
        ::SendMessageW(m_frame, WM_GETTEXT, 200, reinterpret_cast<LPARAM>(text));
        return text;
    }

    void Click(POINT client) const {
        const LPARAM place = MAKELPARAM(client.x, client.y);
        ::SendMessageW(Ribbon(), WM_MOUSEMOVE, 0, place);
        ::SendMessageW(Ribbon(), WM_LBUTTONDOWN, MK_LBUTTON, place);
        ::SendMessageW(Ribbon(), WM_LBUTTONUP, 0, place);
    }

    /// Clicks at one place of the ribbon after the other, from the left edge on at half the height of the panels, until
    /// the title changes. Where the first button lies is the layout's affair; that it comes first is the file's.
    std::wstring TitleAfterFirstButton() const {
        const std::wstring before = Title();
        RECT client = {};
        ::GetClientRect(Ribbon(), &client);
        for (LONG x = 4; x < client.right / 4 && Title() == before; x += 8) {
            Click({x, client.bottom * 3 / 5});
        }
        return Title();
    }

    /// The exit code after the window was asked to close.
    DWORD Close() const {
        ::PostMessageW(m_frame, WM_CLOSE, 0, 0);
        DWORD code = STILL_ACTIVE;
        if (::WaitForSingleObject(m_process.hProcess, kLongestStart) == WAIT_OBJECT_0) {
            ::GetExitCodeProcess(m_process.hProcess, &code);
        }
        return code;
    }

private:
    struct Search {
        DWORD process;
        HWND found;
    };

    static BOOL CALLBACK IsFrame(HWND window, LPARAM parameter) {
        auto* const search = reinterpret_cast<Search*>(parameter);
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        if (process == search->process && ::IsWindowVisible(window) && ::GetDlgItem(window, kRibbonBar) != nullptr) {
            search->found = window;
        }
        return search->found == nullptr;
    }

    /// Looks again and again, until the window is there, the program has ended or the time is up.
    void FindFrame() {
        const ULONGLONG end = ::GetTickCount64() + kLongestStart;
        Search search = {m_process.dwProcessId, nullptr};
        do {
            ::EnumWindows(IsFrame, reinterpret_cast<LPARAM>(&search));
        } while (search.found == nullptr && ::WaitForSingleObject(m_process.hProcess, 20) == WAIT_TIMEOUT &&
                 ::GetTickCount64() < end);
        m_frame = search.found;
    }

    PROCESS_INFORMATION m_process = {};
    HWND m_frame = nullptr;
};

TEST(ExampleHost, AClickOnItsFirstButtonReachesTheReactorAndLightsALamp) {
    const ExampleHost host(L"en");
    ASSERT_NE(host.Frame(), nullptr) << "the example shows no frame with a ribbon";
    EXPECT_EQ(host.Title(), L"Lamps lit: 0");
    EXPECT_EQ(host.TitleAfterFirstButton(), L"Lamps lit: 1");
    EXPECT_EQ(host.TitleAfterFirstButton(), L"Lamps lit: 2");
    EXPECT_EQ(host.Close(), 0u);
}

TEST(ExampleHost, SpeaksTheLanguageThatItIsStartedWith) {
    const ExampleHost host(L"zh-CN");
    ASSERT_NE(host.Frame(), nullptr) << "the example shows no frame with a ribbon";
    EXPECT_EQ(host.TitleAfterFirstButton(), L"已点亮： 1");
    EXPECT_EQ(host.Close(), 0u);
}

/// What the file's version resource says; empty when it has none.
std::wstring VersionTextOf(const std::wstring& file) {
    DWORD ignored = 0;
    std::vector<BYTE> record(::GetFileVersionInfoSizeW(file.c_str(), &ignored));
    void* text = nullptr;
    UINT length = 0;
    if (record.empty() || !::GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(record.size()), record.data()) ||
        !::VerQueryValueW(record.data(), L"\\StringFileInfo\\040904b0\\ProductVersion", &text, &length)) {
        return {};
    }
    return static_cast<const wchar_t*>(text);
}

TEST(ExampleHost, HasDllsThatCarryTheVersionOfTheHeader) {
    std::wstring folder = ProgramPath();
    folder.erase(folder.find_last_of(L"\\/") + 1);
    const std::string version = BARWRIGHT_VERSION;
    for (const wchar_t* dll : {L"barwright.dll", L"bwframework.dll", L"varnhold.dll", L"tovasque.dll"}) {
        EXPECT_EQ(VersionTextOf(folder + dll), std::wstring(version.begin(), version.end())) << dll;
    }
}

} // namespace
