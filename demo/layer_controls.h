#pragma once

#include <afxcontrolbars.h>

#include "map_state.h"

#include <array>
#include <string>
#include <vector>

class CMFCRibbonCheckComb;
class CMFCRibbonMultiCombo;
class CMFCRibbonVesMultiCombo;
class CMFCRibbonLabelEx;
class CMFCRibbonSliderSync;

/// The ribbon's controls that show a part of the map's state and change it: three combos of the layers, the scale
/// slider in its two places, the pointer's place. The ribbon owns the elements; Attach finds or makes them anew
/// whenever it was built. Any of them may be missing from the configuration.
class LayerControls {
public:
    explicit LayerControls(MapState& state) : m_state(state) {}

    /// What the layers are called in the language in force, in their order.
    static std::vector<std::wstring> LayerNames();
    /// The same for the texts on the map.
    static std::vector<std::wstring> LabelNames();

    void Attach(CMFCRibbonBar& ribbon);
    /// Brings the controls to the state's values.
    void ShowState();
    /// A combo that changes a layer's light changes its own only: this brings it to the copies.
    void ShareLayerLights();

    /// The scale slider's position.
    int ScalePosition() const;
    /// The layer that is chosen in the combo of colours.
    std::optional<MapLayer> ChosenLayer() const;

    /// The user ticked the layer of this text, in whichever combo, or took the tick away.
    void TakeCheck(const CString& text, bool isChecked);
    /// The user has chosen a layer in another combo of colours.
    void Choose(MapLayer layer);
    /// Asks for the colour of the combo's item with the system's dialog. True when one was chosen.
    bool AskColor(int item, CWnd* owner);
    /// Whether the layer of this text took the light.
    bool TakeLight(const CString& text, bool lit);
    /// The user switched the light of the text on the map that has this name.
    void TakeLabelLight(const CString& text, bool isLit);

    /// The pointer is over this place of the map.
    void ShowPointer(GeoPoint place);
    /// Degrees with decimals, or degrees, minutes and seconds.
    void SwitchPointerFormat();
    bool IsPointerLabel(const void* label) const { return label == m_pointer; }
    /// What the pointer's place reads now.
    std::wstring PointerText() const;
    /// The slider that all others follow; null when the configuration has none.
    CMFCRibbonSliderSync* ScaleSlider() const { return m_scale; }

private:
    void FillCombos();
    void MakeSliders(CMFCRibbonBar& ribbon);
    void MakePointerLabel(CMFCRibbonPanel& panel);
    void ShowPointerText();

    MapState& m_state;
    CMFCRibbonCheckComb* m_shown = nullptr;
    CMFCRibbonMultiCombo* m_styles = nullptr;
    CMFCRibbonVesMultiCombo* m_labels = nullptr;
    CMFCRibbonSliderSync* m_scale = nullptr;
    CMFCRibbonLabelEx* m_pointer = nullptr;
    GeoPoint m_pointerPlace;
    bool m_hasSeconds = false;
    std::array<COLORREF, 16> m_customColors = {}; ///< The user's own colours in the system's dialog.
};
