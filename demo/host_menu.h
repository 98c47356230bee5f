#pragma once

#include <windows.h>

/// A menu that is made of configured commands and of no file. Owns the menu.
class HostMenu {
public:
    /// The menu of right clicks on the ribbon, or the one at the right end of the menu bar, which is a popup in a menu.
    enum class Kind { RightClick, Help };

    explicit HostMenu(Kind kind) : m_kind(kind) {}
    ~HostMenu();
    HostMenu(const HostMenu&) = delete;
    HostMenu& operator=(const HostMenu&) = delete;

    /// Makes it anew, with the commands' names in the language in force; commands that no file has are left
    /// out.
    HMENU Build();

private:
    Kind m_kind;
    HMENU m_menu = nullptr;
};
