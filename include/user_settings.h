#pragma once

#include "barwright_api.h"

#ifdef _WIN32
#include <afxwin.h>
#endif

#include <memory>
#include <string>
#include <vector>

class CDynToolBarCreater;
class CFrameWndEx;
class CMDIFrameWndEx;
class CMFCRibbonBarEx;

/// Keeps what users change in the bars from one run to the next: the quick access toolbars of all paths, whether the
/// ribbon is minimised and where its quick access toolbar lies, which toolbars are shown, shortcuts.
///
/// The file holds keywords and never ids, because ids move whenever a configuration changes. What the configuration
/// shows by default is kept beside what the user made of it: a command that the configuration gains later is shown, one
/// that the user took away stays away. Keywords that no command has now are kept for the day when they have one again.
///
///     CUserSettings settings(folder + L"\\bars.xml");
///     settings.Load();
///     ... build the bars, declare the paths ...
///     settings.ApplyTo(ribbon);         // and again after each rebuild of the bars
///     ...
///     settings.TakeFrom(ribbon);        // before bars are rebuilt, and when the frame closes
///     settings.Save();
///
/// One object for each frame, used on the user-interface thread; it owns no bar.
class BARWRIGHT_API CUserSettings {
public:
    /// Where the settings that Load gave come from.
    enum class Source {
        Nowhere,  ///< there is no file: all is as configured
        File,     ///< the file
        LastGood, ///< the one before, because the file is damaged or was not written to its end
        Damaged,  ///< neither could be read: all is as configured, and the damaged file is kept under another name
    };

    /// The full path of the file; its folder must exist when Save is called. Beside it there may lie the last good one
    /// (FILE.last) and one that could not be read (FILE.damaged).
    explicit CUserSettings(std::wstring file);
    ~CUserSettings();
    CUserSettings(const CUserSettings&) = delete;
    CUserSettings& operator=(const CUserSettings&) = delete;

    Source Load();
    /// Writes the file as a whole or not at all; the one before becomes the last good one. False when it cannot be
    /// written: the file is as it was.
    bool Save();

    /// What was not applied because no command, or no place for it, has that keyword now, once each, in the file's
    /// order; behind them the names of toolbars that are gone. Complete after all ApplyTo calls.
    std::vector<std::wstring> UnknownKeywords() const;

#ifdef _WIN32
    /// The paths must have been declared (setPath) as configured, since that is what the user's changes are told from;
    /// of a bar without paths it is the quick access toolbar as it is. Commands without a keyword stay where they are
    /// configured.
    void ApplyTo(CMFCRibbonBarEx& ribbon);
    /// Does nothing before the first ApplyTo. Remembers the commands of the path that is shown, as UpdateCurQATollBar
    /// does.
    void TakeFrom(CMFCRibbonBarEx& ribbon);

    /// Toolbars are known by their group and their name (CDynToolBarCreater::GetName); the layout follows when the
    /// application is idle. Where they are docked is the application's to keep, see CNamedToolBars.
    void ApplyTo(const CDynToolBarCreater& toolbars, CMDIFrameWndEx& frame);
    void ApplyTo(const CDynToolBarCreater& toolbars, CFrameWndEx& frame);
    void TakeFrom(const CDynToolBarCreater& toolbars);

    /// Gives the commands that have shortcuts here those keys instead of their own, in a copy of the table; a key that
    /// another command had is taken from it. The caller owns what is returned, null when the table needs no change.
    HACCEL ApplyTo(HACCEL configured);
    /// Keeps the keys of each command that has others in the table now than configured, and forgets those of commands
    /// that have the configured ones again. Rows of characters and commands without a keyword are left out.
    void TakeFrom(HACCEL configured, HACCEL now);
#endif
    /// The keys of a command from now on, such as "Ctrl+Shift+S", "F5" or "Alt+Del"; none: it has no keys. Texts that
    /// name no key are left out. Applied by the next ApplyTo.
    void SetShortcuts(const std::wstring& keyword, const std::vector<std::wstring>& keys);
    /// The command has its configured keys again.
    void ResetShortcuts(const std::wstring& keyword);

    /// Everything as configured, from the next ApplyTo on.
    void Reset();

private:
    class Keeper;
    std::unique_ptr<Keeper> m_keeper;
};

#ifdef _WIN32
/// Lets the application keep by name where toolbars are docked. CWinAppEx::SaveState and LoadState know a bar by the
/// number of its window, which the bars of a file get in their order: when a bar comes or goes in the file, those
/// behind it would change places. While one of these lives, each bar has a number made of its group and its name
/// instead.
///
///     {
///         const CNamedToolBars named(toolbars);
///         application->SaveState(frame);           // and the same around LoadState
///     }
///
/// Bars of one group and name are told apart by their order.
class BARWRIGHT_API CNamedToolBars {
public:
    explicit CNamedToolBars(const CDynToolBarCreater& toolbars);
    /// Gives the bars that are still there their own numbers back.
    ~CNamedToolBars();
    CNamedToolBars(const CNamedToolBars&) = delete;
    CNamedToolBars& operator=(const CNamedToolBars&) = delete;

private:
    struct Bar {
        HWND window;
        LONG_PTR number; ///< its own
    };
    std::vector<Bar> m_bars;
};
#endif
