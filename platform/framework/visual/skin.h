#pragma once

#include "visual/pixels.h"

#include <array>
#include <cstddef>

// A skin is a table: colour slots down, styles across. Everything that is drawn looks its colours up here.
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
    X(CheckBox)                                                                                                        \
    X(CheckBoxHot)                                                                                                     \
    X(CheckBoxPressed)                                                                                                 \
    X(CheckBoxDisabled)

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
    X(PopupFill)

#define VISUAL_ENUM(name) name,
enum class FaceSlot { VISUAL_FACE_SLOTS(VISUAL_ENUM) Count };
enum class ColorSlot { VISUAL_COLOR_SLOTS(VISUAL_ENUM) Count };
#undef VISUAL_ENUM

constexpr std::size_t g_faceCount = static_cast<std::size_t>(FaceSlot::Count);
constexpr std::size_t g_colorCount = static_cast<std::size_t>(ColorSlot::Count);
constexpr std::size_t g_styleCount = 4;

/// Name of a slot, for messages of tests.
const char* NameOf(FaceSlot slot);
const char* NameOf(ColorSlot slot);

/// A surface: outer border, light inner border, and two gradients one below the other. Alpha 0: not drawn.
struct Face {
    Argb outer = 0, inner = 0, top1 = 0, top2 = 0, bottom1 = 0, bottom2 = 0;

    friend bool operator==(const Face&, const Face&) = default;
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

private:
    std::array<Face, g_faceCount> m_faces{};
    std::array<Argb, g_colorCount> m_colors{};
};

/// 0 blue, 1 black, 2 aqua, 3 silver.
const Skin& StyleSkin(std::size_t style);

/// The colours a skin is mixed from when it follows the system's, 0xAARRGGBB.
struct SystemColors {
    Argb face, shadow, hilite, darkShadow, text, greyText, window, windowText, selection, selectionText;
    Argb menu, menuText, caption, captionText, inactiveCaption, inactiveCaptionText, tip, tipText, hotLink, workspace;
};

/// Plain, square and flat.
Skin MakeSystemSkin(const SystemColors& colors);
/// Flat, with highlights mixed from the selection colour.
Skin MakeBlendedSkin(const SystemColors& colors);
/// Gradients on all bars, mixed from the base colour.
Skin MakeGradientSkin(const SystemColors& colors, Argb base);

} // namespace visual
