#pragma once

#include "dialog_window.h"

#include <array>
#include <string>

/// Says which program this is: its version, its licence, and where its map data come from, with links that open in the
/// browser. The texts are those of the language in force.
class CAboutBox : public CDialogWindow {
public:
    explicit CAboutBox(DialogLook look) : CDialogWindow(std::move(look)) {}

    /// Waits until it is closed. `title`: the program's name. False: there is no window.
    bool Show(CWnd& owner, const std::wstring& title);
    Description Describe() const override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    static constexpr std::size_t kLinks = 2;

    bool MakeControls(const std::wstring& title);
    /// Puts all of them in their places, and returns the room that they take with the margins round it, in screen
    /// pixels.
    CSize PlaceControls();

    CStatic m_icon;
    CStatic m_name;
    CStatic m_text;
    std::array<CButton, kLinks> m_links;
    CButton m_close;
};
