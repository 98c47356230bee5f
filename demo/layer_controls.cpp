#include "layer_controls.h"

#include "map_painter.h"
#include "place_text.h"
#include "ribbon_check_combo.h"
#include "ribbon_label_ex.h"
#include "ribbon_lookup.h"
#include "ribbon_multi_combo.h"
#include "ribbon_slider_sync.h"

#include "varnhold/language.h"

#include <commdlg.h>

#include <algorithm>
#include <array>

namespace {

/// The command whose name a layer goes by, in the order of MapLayer.
constexpr std::array<const char*, static_cast<std::size_t>(MapLayer::Count)> kLayerKeys = {
    "LayerRelief", "LayerCoast", "LayerLakes",    "LayerGraticule",
    "LayerCities", "LayerNames", "LayerScaleBar", "LayerOpened"};
/// The same for the texts on the map, in the order of MapLabel.
constexpr std::array<const char*, static_cast<std::size_t>(MapLabel::Count)> kLabelKeys = {
    "LayerGraticule", "LayerNames", "LayerScaleBar"};
constexpr int kScaleStep = 5;
constexpr int kSecondSliderWidth = 100;

CString NameOf(const char* key) { return CMultiLanguageMgr::translationW(key, -1, "RibbonBarCfg").c_str(); }

template <class Keys>
std::vector<std::wstring> NamesOf(const Keys& keys) {
    std::vector<std::wstring> names;
    names.reserve(keys.size());
    for (const char* key : keys) {
        names.emplace_back(NameOf(key).GetString());
    }
    return names;
}

/// -1 when none has this name.
template <class Keys>
int IndexOfName(const Keys& keys, const CString& name) {
    const auto found = std::find_if(keys.begin(), keys.end(), [&](const char* key) { return NameOf(key) == name; });
    return found == keys.end() ? -1 : static_cast<int>(found - keys.begin());
}

COLORREF ToColorRef(std::uint32_t rgb) { return RGB(rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF); }
std::uint32_t FromColorRef(COLORREF color) {
    return static_cast<std::uint32_t>(GetRValue(color)) << 16 | GetGValue(color) << 8 | GetBValue(color);
}

int IndexOf(const CMFCRibbonPanel& panel, const CMFCRibbonBaseElement* element) {
    int index = panel.GetCount() - 1;
    while (index >= 0 && panel.GetElement(index) != element) {
        --index;
    }
    return index;
}

/// The panel with this display name: panels have no id.
CMFCRibbonPanel* FindPanel(CMFCRibbonBar& ribbon, const CString& name) {
    for (int i = 0; i < ribbon.GetCategoryCount(); ++i) {
        CMFCRibbonCategory& category = *ribbon.GetCategory(i);
        for (int k = 0; k < category.GetPanelCount(); ++k) {
            if (category.GetPanel(k)->GetName() == name) {
                return category.GetPanel(k);
            }
        }
    }
    return nullptr;
}

template <class Combo>
void ShowLight(Combo* combo, int item, bool isLit) {
    bool isShownLit = false;
    if (combo && (!combo->GetItemLight(item, isShownLit) || isShownLit != isLit)) {
        combo->SetItemLight(item, isLit, true);
    }
}

/// A label that is as wide as the longest place, so that the ribbon stands still while the pointer moves.
class PointerLabel : public CMFCRibbonLabelEx {
public:
    PointerLabel() : CMFCRibbonLabelEx(Longest()) {}

    CSize GetRegularSize(CDC* dc) override {
        const CString shown = m_strText;
        m_strText = Longest();
        const CSize size = CMFCRibbonLabelEx::GetRegularSize(dc);
        m_strText = shown;
        return size;
    }

private:
    static CString Longest() { return PlaceText({-179.9999, -89.9999}, true).c_str(); }
};

} // namespace

std::vector<std::wstring> LayerControls::LayerNames() { return NamesOf(kLayerKeys); }
std::vector<std::wstring> LayerControls::LabelNames() { return NamesOf(kLabelKeys); }

void LayerControls::Attach(CMFCRibbonBar& ribbon) {
    m_shown = FindElement<CMFCRibbonCheckComb>(ribbon, L"LayersShown");
    m_styles = FindElement<CMFCRibbonMultiCombo>(ribbon, L"LayerColors");
    m_labels = FindElement<CMFCRibbonVesMultiCombo>(ribbon, L"LabelLights");
    m_scale = nullptr;
    m_pointer = nullptr;
    FillCombos();
    if (CMFCRibbonPanel* const panel = FindPanel(ribbon, NameOf("PanelLayerStyle"))) {
        panel->SetJustifyColumns();
    }
    MakeSliders(ribbon);
    ShowState();
}

void LayerControls::FillCombos() {
    for (const char* key : kLayerKeys) {
        if (m_shown) {
            m_shown->AddItem(NameOf(key), 0);
        }
        if (m_styles) {
            m_styles->AddItem(NameOf(key), 0);
        }
    }
    for (const char* key : kLabelKeys) {
        if (m_labels) {
            m_labels->AddItem(NameOf(key), 0);
        }
    }
    if (m_shown) {
        m_shown->SelectItem(0);
    }
    if (m_styles) {
        m_styles->SelectItem(1);
    }
    if (m_labels) {
        m_labels->SelectItem(0);
    }
    for (CMFCRibbonComboBox* const combo : std::array<CMFCRibbonComboBox*, 3>{m_shown, m_styles, m_labels}) {
        if (combo) {
            combo->EnableDropDownListResize(TRUE);
        }
    }
}

/// The configured slider gives way to one whose copies move together; the second place is the panel of the pointer.
void LayerControls::MakeSliders(CMFCRibbonBar& ribbon) {
    auto* const configured = FindElement<CMFCRibbonSlider>(ribbon, L"ZoomSlider");
    CMFCRibbonPanel* const second = FindPanel(ribbon, NameOf("PanelPointer"));
    if (configured) {
        CMFCRibbonPanel& panel = *configured->GetParentPanel();
        m_scale = new CMFCRibbonSliderSync(configured->GetID(), configured->GetWidth());
        m_scale->SetText(configured->GetText());
        m_scale->SetRange(0, MapState::kSliderMax);
        m_scale->SetZoomButtons();
        m_scale->SetZoomIncrement(kScaleStep);
        const int index = IndexOf(panel, configured);
        panel.Remove(index);
        panel.Insert(m_scale, index);
        if (second) {
            auto* const copy = new CMFCRibbonSliderSync(m_scale->GetID(), kSecondSliderWidth);
            copy->CopyFrom(*m_scale);
            copy->SetOriginal(m_scale);
            second->Add(copy);
        }
    }
    if (second) {
        MakePointerLabel(*second);
    }
}

/// In the place of the configured label, whose command it takes.
void LayerControls::MakePointerLabel(CMFCRibbonPanel& panel) {
    m_pointer = new PointerLabel;
    for (int index = panel.GetCount() - 1; index >= 0; --index) {
        if (DYNAMIC_DOWNCAST(CMFCRibbonLabel, panel.GetElement(index)) != nullptr) {
            m_pointer->SetID(panel.GetElement(index)->GetID());
            panel.Remove(index);
        }
    }
    panel.Add(m_pointer);
    ShowPointerText();
}

void LayerControls::ShowState() {
    for (int i = 0; i < static_cast<int>(MapLayer::Count); ++i) {
        const auto layer = static_cast<MapLayer>(i);
        bool isChecked = false;
        if (m_shown && (!m_shown->GetItemCheck(i, isChecked) || isChecked != m_state.IsShown(layer))) {
            m_shown->SetItemCheck(i, m_state.IsShown(layer));
            m_shown->Redraw();
        }
        const COLORREF color = ToColorRef(ShownColor(m_state, layer));
        COLORREF shownColor = 0;
        if (m_styles && (!m_styles->GetItemClr(i, shownColor) || shownColor != color)) {
            m_styles->SetItemClr(i, color, true);
        }
        ShowLight(m_styles, i, m_state.IsLit(layer));
    }
    for (int i = 0; i < static_cast<int>(MapLabel::Count); ++i) {
        ShowLight(m_labels, i, m_state.IsLit(static_cast<MapLabel>(i)));
    }
    if (m_scale && m_scale->GetPos() != m_state.SliderPosition()) {
        m_scale->SetPosSync(m_state.SliderPosition(), TRUE);
    }
}

void LayerControls::ShareLayerLights() {
    for (int i = 0; m_styles && i < static_cast<int>(MapLayer::Count); ++i) {
        m_styles->SetItemLight(i, m_state.IsLit(static_cast<MapLayer>(i)), true);
    }
}

int LayerControls::ScalePosition() const { return m_scale ? m_scale->GetPos() : m_state.SliderPosition(); }

std::optional<MapLayer> LayerControls::ChosenLayer() const {
    const int item = m_styles ? m_styles->GetCurSel() : -1;
    if (item < 0) {
        return std::nullopt;
    }
    return static_cast<MapLayer>(item);
}

void LayerControls::TakeCheck(const CString& text, bool isChecked) {
    if (const int item = IndexOfName(kLayerKeys, text); item >= 0) {
        m_state.SetShown(static_cast<MapLayer>(item), isChecked);
    }
}

void LayerControls::Choose(MapLayer layer) {
    if (m_styles && m_styles->GetCurSel() != static_cast<int>(layer)) {
        m_styles->SelectItem(static_cast<int>(layer));
    }
}

bool LayerControls::AskColor(int item, CWnd* owner) {
    if (item < 0 || item >= static_cast<int>(MapLayer::Count)) {
        return false;
    }
    const auto layer = static_cast<MapLayer>(item);
    CHOOSECOLOR dialog = {};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner->GetSafeHwnd();
    dialog.rgbResult = ToColorRef(ShownColor(m_state, layer));
    dialog.lpCustColors = m_customColors.data();
    dialog.Flags = CC_FULLOPEN | CC_RGBINIT;
    if (!::ChooseColor(&dialog)) {
        return false;
    }
    m_state.SetColor(layer, FromColorRef(dialog.rgbResult));
    return true;
}

bool LayerControls::TakeLight(const CString& text, bool lit) {
    const int item = IndexOfName(kLayerKeys, text);
    return item >= 0 && m_state.SetLit(static_cast<MapLayer>(item), lit);
}

void LayerControls::TakeLabelLight(const CString& text, bool isLit) {
    if (const int item = IndexOfName(kLabelKeys, text); item >= 0) {
        m_state.SetLit(static_cast<MapLabel>(item), isLit);
    }
}

void LayerControls::ShowPointer(GeoPoint place) {
    m_pointerPlace = place;
    ShowPointerText();
}

void LayerControls::SwitchPointerFormat() {
    m_hasSeconds = !m_hasSeconds;
    ShowPointerText();
}

std::wstring LayerControls::PointerText() const { return PlaceText(m_pointerPlace, m_hasSeconds); }

void LayerControls::ShowPointerText() {
    if (!m_pointer) {
        return;
    }
    m_pointer->SetText(PointerText().c_str());
    m_pointer->Redraw();
}
