#pragma once

#include "dialog_window.h"
#include "options_layout.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// What the user chooses once for all: the commands change the same things one by one.
struct ViewerOptions {
    /// What stands above the map.
    enum class Bars { Ribbon, TabsAlone, MenusAndToolbars };

    std::wstring language;
    std::wstring skin;
    int scalePercent = 0;   ///< Of texts and icons, from the next start on; 0: as the screen says.
    std::wstring startMode; ///< The working mode of the next start.
    Bars bars = Bars::Ribbon;
    bool isQuickAccessBelow = false;

    friend bool operator==(const ViewerOptions&, const ViewerOptions&) = default;
};

/// Asks for all of them at once.
class COptionsDialog : public CDialogWindow {
public:
    COptionsDialog(DialogLook look, ViewerOptions options);

    /// Nothing where the user thinks better of it.
    std::optional<ViewerOptions> Ask(CWnd& owner);
    Description Describe() const override;

private:
    static constexpr std::size_t kRows = 6;

    bool MakeControls();
    OptionsMeasures Measure();
    void PlaceControls(const OptionsPlaces& places);
    void ShowChosen();
    ViewerOptions Chosen() const;

    ViewerOptions m_options;
    std::array<std::vector<std::wstring>, kRows> m_values; ///< Behind the lines of the lists.
    std::array<CStatic, kRows> m_labels;
    std::array<CDialogList, kRows> m_lists;
    CStatic m_note;
    CButton m_take;
    CButton m_cancel;
};
