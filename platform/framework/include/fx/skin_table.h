#pragma once

#include "fx/argb.h"

#include <array>
#include <cstddef>

// A skin is a table: colour slots. Everything that the framework's visual managers draw looks its colours up here. A
// manager brings its own table by CMFCVisualManager::GetSkin.
namespace visual {

#define VISUAL_FACE_SLOTS(X)                                                                                           \
    X(RibbonCategory)                                                                                                  \
    X(RibbonPanel)                                                                                                     \
    X(RibbonPanelHot)                                                                                                  \
    X(PanelCaption)                                                                                                    \
    X(PanelCaptionHot)                                                                                                 \
    X(TabHot)                                                                                                          \
    X(TabActive)                                                                                                       \
    X(TabActiveHot)                                                                                                    \
    X(ButtonHot)                                                                                                       \
    X(ButtonPressed)                                                                                                   \
    X(ButtonChecked)                                                                                                   \
    X(ButtonCheckedHot)                                                                                                \
    X(ButtonPale)                                                                                                      \
    X(DefaultPane)                                                                                                     \
    X(DefaultPaneHot)                                                                                                  \
    X(DefaultPanePressed)                                                                                              \
    X(Group)                                                                                                           \
    X(Edit)                                                                                                            \
    X(EditHot)                                                                                                         \
    X(EditDisabled)                                                                                                    \
    X(AppButton)                                                                                                       \
    X(AppButtonHot)                                                                                                    \
    X(AppButtonPressed)                                                                                                \
    X(CaptionActive)                                                                                                   \
    X(CaptionInactive)                                                                                                 \
    X(CaptionButtonHot)                                                                                                \
    X(CaptionButtonPressed)                                                                                            \
    X(StatusBar)                                                                                                       \
    X(Knob)                                                                                                            \
    X(KnobHot)                                                                                                         \
    X(KnobPressed)                                                                                                     \
    X(CategoryScroll)                                                                                                  \
    X(KeyTip)                                                                                                          \
    X(Tooltip)                                                                                                         \
    X(ToolBar)                                                                                                         \
    X(PaneCaption)                                                                                                     \
    X(PaneCaptionActive)                                                                                               \
    X(ProgressTrack)                                                                                                   \
    X(ProgressChunk)                                                                                                   \
    X(DocumentTab)                                                                                                     \
    X(DocumentTabActive)                                                                                               \
    X(MainPanelFrame)                                                                                                  \
    X(MenuItemHot)                                                                                                     \
    X(MenuCheck)                                                                                                       \
    X(MenuCheckHot)                                                                                                    \
    X(CheckBox)                                                                                                        \
    X(CheckBoxHot)                                                                                                     \
    X(CheckBoxPressed)                                                                                                 \
    X(CheckBoxDisabled)                                                                                                \
    X(DropButton)                                                                                                      \
    X(DropButtonHot)                                                                                                   \
    X(DropButtonPressed)

#define VISUAL_COLOR_SLOTS(X)                                                                                          \
    X(RibbonTop)                                                                                                       \
    X(RibbonBottom)                                                                                                    \
    X(TabText)                                                                                                         \
    X(TabTextHot)                                                                                                      \
    X(TabTextActive)                                                                                                   \
    X(TabGlow)                                                                                                         \
    X(RibbonText)                                                                                                      \
    X(RibbonTextHot)                                                                                                   \
    X(RibbonTextDisabled)                                                                                              \
    X(PanelCaptionText)                                                                                                \
    X(PanelCaptionTextHot)                                                                                             \
    X(SeparatorDark)                                                                                                   \
    X(SeparatorLight)                                                                                                  \
    X(CaptionText)                                                                                                     \
    X(CaptionTextInactive)                                                                                             \
    X(QatText)                                                                                                         \
    X(QatTextDisabled)                                                                                                 \
    X(MenuFill)                                                                                                        \
    X(MenuGutter)                                                                                                      \
    X(MenuGutterLine)                                                                                                  \
    X(MenuBorder)                                                                                                      \
    X(MenuSeparator)                                                                                                   \
    X(MenuText)                                                                                                        \
    X(MenuTextHot)                                                                                                     \
    X(MenuTextDisabled)                                                                                                \
    X(MenuLabelFill)                                                                                                   \
    X(MenuLabelText)                                                                                                   \
    X(StatusText)                                                                                                      \
    X(StatusTextDisabled)                                                                                              \
    X(StatusSeparatorDark)                                                                                             \
    X(StatusSeparatorLight)                                                                                            \
    X(ToolbarText)                                                                                                     \
    X(ToolbarTextHot)                                                                                                  \
    X(ToolbarTextDisabled)                                                                                             \
    X(BarBackground)                                                                                                   \
    X(GripperDark)                                                                                                     \
    X(GripperLight)                                                                                                    \
    X(EditText)                                                                                                        \
    X(EditTextDisabled)                                                                                                \
    X(EditSelection)                                                                                                   \
    X(EditSelectionText)                                                                                               \
    X(SliderTrackDark)                                                                                                 \
    X(SliderTrackLight)                                                                                                \
    X(Glyph)                                                                                                           \
    X(GlyphDisabled)                                                                                                   \
    X(GlyphLight)                                                                                                      \
    X(CaptionGlyph)                                                                                                    \
    X(CheckMark)                                                                                                       \
    X(Hyperlink)                                                                                                       \
    X(KeyTipText)                                                                                                      \
    X(TooltipText)                                                                                                     \
    X(PaneCaptionText)                                                                                                 \
    X(PaneCaptionTextActive)                                                                                           \
    X(PaneBorder)                                                                                                      \
    X(DividerFill)                                                                                                     \
    X(MdiBackground)                                                                                                   \
    X(DocumentTabText)                                                                                                 \
    X(DocumentTabTextActive)                                                                                           \
    X(FrameBorder)                                                                                                     \
    X(FrameBorderInner)                                                                                                \
    X(PopupFill)                                                                                                       \
    X(Accent)                                                                                                          \
    X(DropArrow)                                                                                                       \
    X(DropArrowHot)                                                                                                    \
    X(DropArrowDisabled)                                                                                               \
    X(PaneGlyph)                                                                                                       \
    X(PaneGlyphHot)                                                                                                    \
    X(PaneGlyphPressed)                                                                                                \
    X(PanelElementText)                                                                                                \
    X(TabsArea)                                                                                                        \
    X(TabsAreaLine)                                                                                                    \
    X(TabsButton)                                                                                                      \
    X(TabsFrame)

#define VISUAL_ENUM(name) name,
enum class FaceSlot { VISUAL_FACE_SLOTS(VISUAL_ENUM) Count };
enum class ColorSlot { VISUAL_COLOR_SLOTS(VISUAL_ENUM) Count };
#undef VISUAL_ENUM

constexpr std::size_t g_faceCount = static_cast<std::size_t>(FaceSlot::Count);
constexpr std::size_t g_colorCount = static_cast<std::size_t>(ColorSlot::Count);
/// A surface: outer border, light inner border, and two gradients one below the other. Alpha 0: not drawn.
struct Face {
    Argb outer = 0, inner = 0, top1 = 0, top2 = 0, bottom1 = 0, bottom2 = 0;
    /// Of the picture that takes the place of the colours, see PlateSource. 0: none.
    std::uint32_t plate = 0;

    friend bool operator==(const Face&, const Face&) = default;
};

/// Where a face lies, for pictures that are others there.
enum class PlatePlace { Alone, Joined, StatusBar };

/// A picture that is stretched over a face: its corners, as large as the margins say, keep their size. It belongs to
/// the source that gave it; sizes are pixels of the device.
struct Plate {
    const std::uint32_t* pixels = nullptr; ///< multiplied by alpha, row 0 on top
    int width = 0, height = 0;
    int left = 0, top = 0, right = 0, bottom = 0;
    std::uint32_t name = 0;  ///< no other pixels of this process ever had it
    bool isOverFace = false; ///< the face's colours are drawn below it
    bool isCentred = false;  ///< drawn at its own size in the middle instead
};

/// Where a skin has its pictures from.
class PlateSource {
public:
    /// The picture of a number that a face or the skin names, for a face of this height in pixels. Null: there is none,
    /// the face's colours are drawn.
    virtual const Plate* FindPlate(std::uint32_t number, PlatePlace place, int height, double scale) const = 0;

protected:
    PlateSource() = default;
    ~PlateSource() = default;
    PlateSource(const PlateSource&) = default;
    PlateSource& operator=(const PlateSource&) = default;
};

class Skin {
public:
    Face& operator[](FaceSlot slot) { return m_faces[static_cast<std::size_t>(slot)]; }
    const Face& operator[](FaceSlot slot) const { return m_faces[static_cast<std::size_t>(slot)]; }
    Argb& operator[](ColorSlot slot) { return m_colors[static_cast<std::size_t>(slot)]; }
    Argb operator[](ColorSlot slot) const { return m_colors[static_cast<std::size_t>(slot)]; }

    /// Corners of buttons, panels and tabs in pixels at 96 DPI; 0 for square looks.
    int radius = 0;
    /// Where the second gradient of bars and buttons begins, percent of the height.
    int split = 50;
    /// One colour a face, thin lines, round knobs: no light from above.
    bool isFlat = false;
    /// Not owned; it lives as long as the skin. Null: a skin without pictures.
    const PlateSource* plates = nullptr;
    /// The pictures over the row of tabs, and of the arrows of collapsed panels and of large buttons' menus.
    std::uint32_t tabRowPlate = 0, arrowPlate = 0, arrowDisabledPlate = 0;

private:
    std::array<Face, g_faceCount> m_faces{};
    std::array<Argb, g_colorCount> m_colors{};
};

} // namespace visual
