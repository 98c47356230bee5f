#pragma once

#include <afxwin.h>

#include <string>

/// Help videos of commands: files below the folder that the installation recorded. Where there are some, tooltips of
/// their commands hint at F1. Owns the icons that those tooltips show.
class HelpHint {
public:
    HelpHint() = default;
    ~HelpHint();
    HelpHint(const HelpHint&) = delete;
    HelpHint& operator=(const HelpHint&) = delete;

    /// Whether there is such a folder.
    static bool HasVideos();
    /// The file of a command that is there; empty when there is none.
    static std::wstring FileOf(UINT id);

    /// The folder of the icons, of those that can be seen on the skin's tooltips.
    void TakeIcons(const wchar_t* folder);

private:
    HICON m_large = nullptr;
    HICON m_small = nullptr;
};
