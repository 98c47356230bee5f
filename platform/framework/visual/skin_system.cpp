#include "visual/skin.h"

namespace visual {

namespace {

Face Flat(Argb outer, Argb fill) { return {outer, 0, fill, fill, fill, fill}; }

Face Shaded(Argb outer, Argb light, Argb dark) {
    return {outer, 0, light, Mix(light, dark, 2, 5), Mix(light, dark, 3, 5), dark};
}

/// The colours that a highlighted element is mixed from.
struct Highlights {
    Argb border, hot, pressed, checked, checkedHot;
};

void SetHighlights(Skin& skin, const Highlights& h) {
    skin[FaceSlot::ButtonHot] = skin[FaceSlot::MenuItemHot] = skin[FaceSlot::KnobHot] = Flat(h.border, h.hot);
    skin[FaceSlot::ButtonPressed] = skin[FaceSlot::KnobPressed] = Flat(h.border, h.pressed);
    skin[FaceSlot::ButtonChecked] = skin[FaceSlot::MenuCheck] = skin[FaceSlot::MenuCheckHot] =
        Flat(h.border, h.checked);
    skin[FaceSlot::ButtonCheckedHot] = Flat(h.border, h.checkedHot);
    skin[FaceSlot::AppButtonHot] = skin[FaceSlot::CheckBoxHot] = skin[FaceSlot::CaptionButtonHot] =
        skin[FaceSlot::DefaultPaneHot] = skin[FaceSlot::DropButtonHot] = Flat(h.border, h.hot);
    skin[FaceSlot::AppButtonPressed] = skin[FaceSlot::CheckBoxPressed] = skin[FaceSlot::CaptionButtonPressed] =
        skin[FaceSlot::DefaultPanePressed] = skin[FaceSlot::DropButtonPressed] = Flat(h.border, h.pressed);
    skin[FaceSlot::ProgressChunk] = Flat(0, h.border);
}

void SetFaces(Skin& skin, const SystemColors& c) {
    const Argb pale = Mix(c.face, c.window, 1, 2);
    for (const FaceSlot slot :
         {FaceSlot::RibbonCategory, FaceSlot::RibbonPanel, FaceSlot::DefaultPane, FaceSlot::Group,
          FaceSlot::CategoryScroll, FaceSlot::AppButton, FaceSlot::Knob, FaceSlot::StatusBar, FaceSlot::ToolBar,
          FaceSlot::MainPanelFrame, FaceSlot::DocumentTab, FaceSlot::DropButton}) {
        skin[slot] = Flat(c.shadow, c.face);
    }
    skin[FaceSlot::RibbonPanelHot] = skin[FaceSlot::ButtonPale] = skin[FaceSlot::KeyTip] = Flat(c.shadow, pale);
    skin[FaceSlot::PanelCaption] = Flat(0, Mix(c.face, c.shadow, 1, 5));
    skin[FaceSlot::PanelCaptionHot] = Flat(0, Mix(c.face, c.shadow, 1, 8));
    skin[FaceSlot::TabHot] = Flat(c.shadow, pale);
    skin[FaceSlot::TabActive] = skin[FaceSlot::TabActiveHot] = Flat(c.shadow, c.face);
    skin[FaceSlot::DocumentTabActive] = Flat(c.shadow, c.window);
    for (const FaceSlot slot : {FaceSlot::Edit, FaceSlot::EditHot, FaceSlot::CheckBox, FaceSlot::ProgressTrack}) {
        skin[slot] = Flat(c.shadow, c.window);
    }
    skin[FaceSlot::EditHot].outer = c.selection;
    skin[FaceSlot::EditDisabled] = skin[FaceSlot::CheckBoxDisabled] = Flat(c.shadow, c.face);
    skin[FaceSlot::CaptionActive] = skin[FaceSlot::PaneCaptionActive] = Flat(c.shadow, c.caption);
    skin[FaceSlot::CaptionInactive] = skin[FaceSlot::PaneCaption] = Flat(c.shadow, c.inactiveCaption);
    skin[FaceSlot::Tooltip] = Flat(c.tipText, c.tip);
}

void SetDisabled(Skin& skin, Argb grey) {
    for (const ColorSlot slot : {ColorSlot::RibbonTextDisabled, ColorSlot::QatTextDisabled, ColorSlot::MenuTextDisabled,
                                 ColorSlot::StatusTextDisabled, ColorSlot::ToolbarTextDisabled,
                                 ColorSlot::EditTextDisabled, ColorSlot::GlyphDisabled, ColorSlot::DropArrowDisabled}) {
        skin[slot] = grey;
    }
}

void SetColors(Skin& skin, const SystemColors& c) {
    for (std::size_t i = 0; i < g_colorCount; ++i) {
        skin[static_cast<ColorSlot>(i)] = c.text;
    }
    for (const ColorSlot slot :
         {ColorSlot::RibbonTop, ColorSlot::RibbonBottom, ColorSlot::BarBackground, ColorSlot::DividerFill,
          ColorSlot::PopupFill, ColorSlot::MenuGutter, ColorSlot::TabsArea, ColorSlot::TabsButton}) {
        skin[slot] = c.face;
    }
    for (const ColorSlot slot :
         {ColorSlot::SeparatorDark, ColorSlot::MenuGutterLine, ColorSlot::MenuBorder, ColorSlot::MenuSeparator,
          ColorSlot::StatusSeparatorDark, ColorSlot::GripperDark, ColorSlot::SliderTrackDark, ColorSlot::PaneBorder,
          ColorSlot::FrameBorder, ColorSlot::TabsAreaLine}) {
        skin[slot] = c.shadow;
    }
    for (const ColorSlot slot :
         {ColorSlot::SeparatorLight, ColorSlot::StatusSeparatorLight, ColorSlot::GripperLight, ColorSlot::GlyphLight,
          ColorSlot::SliderTrackLight, ColorSlot::FrameBorderInner, ColorSlot::TabGlow}) {
        skin[slot] = c.hilite;
    }
    SetDisabled(skin, Readable(c.greyText, c.text, {c.face, c.window, c.menu}));
    skin[ColorSlot::TabGlow] = WithAlpha(c.hilite, 1);
    skin[ColorSlot::MenuFill] = skin[ColorSlot::MenuLabelFill] = c.menu;
    skin[ColorSlot::MenuText] = skin[ColorSlot::MenuTextHot] = skin[ColorSlot::MenuLabelText] = c.menuText;
    skin[ColorSlot::CaptionText] = skin[ColorSlot::PaneCaptionTextActive] = c.captionText;
    skin[ColorSlot::CaptionTextInactive] = c.inactiveCaptionText;
    skin[ColorSlot::EditText] = c.windowText;
    skin[ColorSlot::EditSelection] = skin[ColorSlot::Accent] = c.selection;
    skin[ColorSlot::EditSelectionText] = c.selectionText;
    skin[ColorSlot::Hyperlink] = c.hotLink;
    skin[ColorSlot::TooltipText] = c.tipText;
    skin[ColorSlot::TabsFrame] = c.window;
    skin[ColorSlot::MdiBackground] = c.workspace;
}

} // namespace

Skin MakeSystemSkin(const SystemColors& colors) {
    Skin skin;
    SetFaces(skin, colors);
    SetColors(skin, colors);
    SetHighlights(skin, {colors.shadow, colors.hilite, Mix(colors.face, colors.shadow, 1, 2),
                         Mix(colors.face, colors.hilite, 1, 2), Mix(colors.face, colors.hilite, 3, 4)});
    return skin;
}

Skin MakeBlendedSkin(const SystemColors& colors) {
    Skin skin = MakeSystemSkin(colors);
    const Argb base = colors.window;
    SetHighlights(skin, {colors.selection, Mix(base, colors.selection, 3, 10), Mix(base, colors.selection, 5, 10),
                         Mix(base, colors.selection, 2, 10), Mix(base, colors.selection, 4, 10)});
    const Argb bar = Mix(colors.face, colors.window, 1, 5);
    skin[FaceSlot::ToolBar] = Flat(colors.shadow, bar);
    skin[ColorSlot::MenuFill] = Mix(colors.window, colors.face, 1, 10);
    return skin;
}

Skin MakeGradientSkin(const SystemColors& colors, Argb base) {
    Skin skin = MakeBlendedSkin(colors);
    const Argb light = Mix(base, 0xFFFFFFFF, 8, 10), dark = Mix(base, 0xFFFFFFFF, 5, 10);
    for (const FaceSlot slot : {FaceSlot::ToolBar, FaceSlot::StatusBar, FaceSlot::RibbonCategory, FaceSlot::DefaultPane,
                                FaceSlot::PaneCaption, FaceSlot::DocumentTab, FaceSlot::MainPanelFrame,
                                FaceSlot::CaptionActive, FaceSlot::Group, FaceSlot::DropButton}) {
        skin[slot] = Shaded(Mix(base, 0xFFFFFFFF, 2, 10), light, dark);
    }
    for (const ColorSlot slot :
         {ColorSlot::RibbonTop, ColorSlot::RibbonBottom, ColorSlot::BarBackground, ColorSlot::DividerFill,
          ColorSlot::MenuGutter, ColorSlot::TabsArea, ColorSlot::TabsButton}) {
        skin[slot] = Mix(base, 0xFFFFFFFF, 6, 10);
    }
    skin[ColorSlot::SeparatorDark] = skin[ColorSlot::GripperDark] = Mix(base, 0xFFFFFFFF, 2, 10);
    SetDisabled(skin, Readable(colors.greyText, colors.text,
                               {colors.face, colors.window, colors.menu, light, dark, skin[ColorSlot::RibbonTop]}));
    skin[FaceSlot::TabActive] = skin[FaceSlot::TabActiveHot] = Shaded(Mix(base, 0xFFFFFFFF, 2, 10), 0xFFFFFFFF, light);
    skin[ColorSlot::CaptionText] = colors.text;
    skin.radius = 2;
    return skin;
}

} // namespace visual
