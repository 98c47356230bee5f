#pragma once

#include "command_reactor.h"

#include "map_state.h"

#include <boost/shared_ptr.hpp>

#include <optional>

struct MapData;

/// What the map commands need of the frame beside the state: the controls that hold a value, and a word to the user.
class ViewerHost {
public:
    virtual ~ViewerHost() = default;
    virtual int ScaleSliderPosition() const = 0;
    virtual std::wstring PlaceText() const = 0;
    /// The layer whose colour and light are shown.
    virtual std::optional<MapLayer> ChosenLayer() const = 0;
    /// Whether the place field sends its command because of the Enter key.
    virtual bool IsPlaceConfirmed() const = 0;
    virtual void TellPlaceUnknown(const std::wstring& text) = 0;
    virtual void TellAbout() = 0;
    virtual void TellKeyboard() = 0;
    virtual void Leave() = 0;
    /// Reads texts and bars anew from their files.
    virtual void ReloadFiles() = 0;
    /// Opens the search of commands.
    virtual void ShowCommandSearch() = 0;
    virtual void SwitchLanguage(const std::wstring& code) = 0;
    virtual bool IsLanguage(const std::wstring& code) const = 0;
    /// Shows the pages of the mode.
    virtual void ShowMode(MapMode mode) = 0;
    virtual void SwitchSkin(const std::wstring& name) = 0;
    virtual bool IsSkin(const std::wstring& name) const = 0;
    virtual void SwitchIconStyle(const std::wstring& style) = 0;
    virtual bool IsIconStyle(const std::wstring& style) const = 0;
    virtual void ToggleRibbonMinimized() = 0;
    virtual bool IsRibbonMinimized() const = 0;
    virtual void ToggleQuickAccessBelow() = 0;
    virtual bool IsQuickAccessBelow() const = 0;
    /// Menu bar and toolbars in the ribbon's place.
    virtual void ToggleClassicBars() = 0;
    /// Opens the dialog for toolbars and shortcuts, and shows the bars if they are hidden.
    virtual void CustomizeBars() = 0;
    virtual bool AreClassicBarsShown() const = 0;
    /// A picture of the map as it is on the screen: to the clipboard, or to a file that the user names.
    virtual void CopyPicture() = 0;
    virtual void SavePicture() = 0;
    /// The same of what goes on the page.
    virtual void CopyPage() = 0;
    virtual void SavePage() = 0;
    virtual void PrintPage() = 0;
    /// Shows the pages as they will be printed.
    virtual void PreviewPage() = 0;
    /// Asks for what the user chooses once for all.
    virtual void AskOptions() = 0;
    /// Asks for a file of points, lines and areas, and opens it.
    virtual void OpenMapFile() = 0;
    /// Puts a text on the clipboard.
    virtual void CopyText(const std::wstring& text) = 0;
};

/// Zooming, moving, going to places and regions, history and bookmarks.
boost::shared_ptr<CMenuReactor> MakeNavigationReactor(MapState& state, const MapData& data, ViewerHost& host);
/// Layers, graticule and palette.
boost::shared_ptr<CMenuReactor> MakeLayerReactor(MapState& state, const ViewerHost& host);
/// Pictures and co-ordinates for other programs.
boost::shared_ptr<CMenuReactor> MakePictureReactor(const MapState& state, ViewerHost& host);
/// The user's own files.
boost::shared_ptr<CMenuReactor> MakeFileReactor(MapState& state, ViewerHost& host);
/// Working modes, marks and the page.
boost::shared_ptr<CMenuReactor> MakeModeReactor(MapState& state, ViewerHost& host);
/// Language, skin, icon style, ribbon and help.
boost::shared_ptr<CMenuReactor> MakeSettingsReactor(ViewerHost& host);
