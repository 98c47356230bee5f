// Compiled into programs of UI tests that a neighbour must not disturb: their windows come to a desktop of their own.
// It has its own foreground window, pointer and keyboard, so that nobody takes the activation from a test and no window
// of another program lies over its own. It is there before main, and so before anything of the thread stands on
// another.
#include <windows.h>

#include <stdexcept>
#include <string>

namespace {

class OwnDesktop {
public:
    OwnDesktop() : m_desktop(::CreateDesktopW(Name().c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr)) {
        if (m_desktop == nullptr || !::SetThreadDesktop(m_desktop)) {
            throw std::runtime_error("the tests did not get a desktop of their own");
        }
    }
    OwnDesktop(const OwnDesktop&) = delete;
    OwnDesktop& operator=(const OwnDesktop&) = delete;

private:
    static std::wstring Name() { return L"tests " + std::to_wstring(::GetCurrentProcessId()); }

    // The thread stands on it to its end: the system closes it with the program.
    const HDESK m_desktop;
};

const OwnDesktop g_desktop;

} // namespace
