#pragma once

#include <windows.h>

/// The menu of right clicks on the ribbon, made of configured commands. Owns the menu.
class HostMenu {
public:
    HostMenu() = default;
    ~HostMenu();
    HostMenu(const HostMenu&) = delete;
    HostMenu& operator=(const HostMenu&) = delete;

    /// Makes it anew, with the commands' names in the language in force; commands that no file has are left
    /// out.
    HMENU Build();

private:
    HMENU m_menu = nullptr;
};
