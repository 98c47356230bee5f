#include "process_objects.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <winternl.h>

namespace {

/// One entry of the table of GDI handles that the system maps into every 64-bit process.
struct GdiTableEntry {
    std::uint64_t object;
    std::uint16_t process;
    std::uint16_t count;
    std::uint16_t generation;
    std::uint16_t type;
    std::uint64_t userData;
};
static_assert(sizeof(GdiTableEntry) == 24);
constexpr std::size_t kGdiTableOffset = 0xF8;
constexpr std::size_t kGdiTableSize = 0x10000;

// Window, menu and icon handles are even numbers below 64 K when the generation in the upper half is left out.
constexpr std::uintptr_t kFirstUserHandle = 0x20;
constexpr std::uintptr_t kEndOfUserHandles = 0xFFF0;

/// The table holds every process's objects on some systems (then each entry names its process) and only this one's on
/// others (then no entry names any).
long CountGdiTable() {
    const auto* const block = reinterpret_cast<const char*>(::NtCurrentTeb()->ProcessEnvironmentBlock);
    const auto* const table = *reinterpret_cast<const GdiTableEntry* const*>(block + kGdiTableOffset);
    const auto ours = static_cast<std::uint16_t>(::GetCurrentProcessId());
    long count = 0;
    for (std::size_t index = 0; table != nullptr && index < kGdiTableSize; ++index) {
        const GdiTableEntry& entry = table[index];
        count += entry.type != 0 && (entry.process == 0 || entry.process == ours) ? 1 : 0;
    }
    return count;
}

long CountGdi() {
    const DWORD answer = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    return answer != 0 ? static_cast<long>(answer) : CountGdiTable();
}

bool IsIcon(HICON handle) {
    ICONINFO info = {};
    if (!::GetIconInfo(handle, &info)) {
        return false;
    }
    ::DeleteObject(info.hbmMask);
    if (info.hbmColor != nullptr) {
        ::DeleteObject(info.hbmColor);
    }
    return true;
}

template <typename Handle, typename Question>
long CountUserHandles(Question question) {
    long count = 0;
    for (std::uintptr_t handle = kFirstUserHandle; handle < kEndOfUserHandles; handle += 2) {
        count += question(reinterpret_cast<Handle>(handle)) ? 1 : 0;
    }
    return count;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM count) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process == ::GetCurrentProcessId()) {
        ++*reinterpret_cast<long*>(count);
        // Only the children of windows of ours; a foreign window's children are not asked for one by one.
        ::EnumChildWindows(
            window,
            [](HWND, LPARAM total) -> BOOL {
                ++*reinterpret_cast<long*>(total);
                return TRUE;
            },
            count);
    }
    return TRUE;
}

} // namespace

ProcessObjects CountProcessObjects() {
    ProcessObjects objects;
    objects.icons = CountUserHandles<HICON>(&IsIcon);
    objects.menus = CountUserHandles<HMENU>(&::IsMenu);
    ::EnumWindows(&CountWindow, reinterpret_cast<LPARAM>(&objects.windows));
    objects.gdi = CountGdi();
    return objects;
}
