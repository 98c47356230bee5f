#include "gallery_sheet.h"

#include <cwchar>

using namespace visual;

namespace {

class Sheet {
public:
    Sheet(HDC dc, const Look& look) : m_dc(dc), m_look(look) {}

    RECT At(int x, int y, int width, int height) const {
        return {m_look.Px(x), m_look.Px(y), m_look.Px(x + width), m_look.Px(y + height)};
    }
    void Text(const RECT& rect, const wchar_t* text, ColorSlot color, UINT flags = DT_CENTER | DT_VCENTER) const {
        PaintText(m_dc, rect, text, static_cast<int>(std::wcslen(text)), DT_SINGLELINE | flags, m_look.skin[color]);
    }

    void Draw() const {
        PaintRibbonBackground(m_dc, At(0, 0, g_sheetSize.cx, g_sheetSize.cy), m_look);
        Caption();
        Tabs();
        Category();
        Buttons();
        Controls();
        Menus();
        StatusBar();
    }

private:
    void Caption() const {
        PaintCaption(m_dc, At(0, 0, 1000, 28), true, m_look);
        Text(At(0, 0, 1000, 28), L"Harbour chart - 港口海图", ColorSlot::CaptionText);
        const WindowGlyph glyphs[] = {WindowGlyph::Minimize, WindowGlyph::Maximize, WindowGlyph::Restore,
                                      WindowGlyph::Close};
        for (int i = 0; i < 4; ++i) {
            ElementState state;
            state.isHot = i == 1;
            state.isPressed = i == 2;
            PaintCaptionButton(m_dc, At(880 + 28 * i, 3, 26, 21), glyphs[i], state, m_look);
        }
    }

    void Tabs() const {
        const struct {
            const wchar_t* text;
            TabState state;
        } tabs[] = {{L"Home 开始", {true, false, false, 0}},          {L"View", {false, false, false, 0}},
                    {L"Route 航线", {false, true, false, 0}},         {L"Measure", {false, false, false, 0}},
                    {L"Active hot", {true, true, false, 0}},          {L"Context", {false, false, false, 0xFFE0544C}},
                    {L"Context on", {true, false, false, 0xFF68B248}}};
        int x = 60;
        for (const auto& tab : tabs) {
            const RECT rect = At(x, 31, 78, 24);
            PaintTab(m_dc, rect, tab.state, m_look);
            PaintText(m_dc, rect, tab.text, -1, DT_SINGLELINE | DT_CENTER | DT_VCENTER,
                      TabTextColor(tab.state, m_look.skin));
            x += 82;
        }
        for (int i = 0; i < 3; ++i) {
            PaintApplicationButton(m_dc, At(660 + 52 * i, 4, 46, 46), {i == 1, i == 2, false, false, false}, m_look);
        }
        PaintApplicationButton(m_dc, At(820, 31, 54, 24), {}, m_look);
        PaintContextCaption(m_dc, At(884, 30, 90, 25), 0xFF4884D6, m_look);
    }

    void Category() const {
        const RECT tab = At(60, 0, 78, 0);
        PaintCategory(m_dc, At(2, 55, 996, 96), tab.left, tab.right, m_look);
        const wchar_t* names[] = {L"Clipboard 剪贴板", L"Layers", L"View"};
        for (int i = 0; i < 3; ++i) {
            PaintPanel(m_dc, At(8 + 222 * i, 58, 218, 88), At(8 + 222 * i, 129, 218, 17), i == 1, m_look);
            PaintPanelCaption(m_dc, At(8 + 222 * i, 129, 216, 16), names[i], -1, i == 1, m_look);
        }
        LargeButtons();
        Group(At(238, 64, 120, 22));
        Edits();
        Slider();
        for (int i = 0; i < 3; ++i) {
            PaintDefaultPane(m_dc, At(680 + 66 * i, 58, 60, 88), {i == 1, i == 2, false, false, false}, m_look);
        }
        for (int i = 0; i < 3; ++i) {
            PaintCategoryScroll(m_dc, At(890 + 30 * i, 60, 14, 84), true, {i == 1, i == 2, false, false, false},
                                m_look);
            PaintCategoryScroll(m_dc, At(904 + 30 * i, 60, 14, 84), false, {i == 1, i == 2, false, false, false},
                                m_look);
        }
    }

    void LargeButtons() const {
        const ElementState states[] = {{}, {true}, {false, true}, {false, false, true}};
        for (int i = 0; i < 4; ++i) {
            ButtonParts parts;
            parts.rect = At(12 + 52 * i, 61, 48, 66);
            PaintButton(m_dc, parts, states[i], m_look);
            PaintFace(m_dc, At(20 + 52 * i, 65, 32, 32), m_look.skin[FaceSlot::Knob], Corners::All(m_look.Px(4)),
                      m_look);
            Text(At(12 + 52 * i, 100, 48, 16), L"Paste", ColorSlot::RibbonText);
            PaintArrow(m_dc, At(12 + 52 * i, 114, 48, 10), ArrowDirection::Down, m_look.skin[ColorSlot::Glyph],
                       m_look.skin[ColorSlot::GlyphLight], m_look);
        }
    }

    void Group(const RECT& rect) const {
        PaintGroup(m_dc, rect, m_look);
        const GroupPlace places[] = {GroupPlace::First, GroupPlace::Middle, GroupPlace::Middle, GroupPlace::Last};
        const ElementState states[] = {{true}, {false, true}, {false, false, true}, {true}};
        const LONG step = (rect.right - rect.left) / 4;
        for (int i = 0; i < 4; ++i) {
            ButtonParts parts;
            parts.rect = {rect.left + step * i, rect.top, i == 3 ? rect.right : rect.left + step * (i + 1),
                          rect.bottom};
            parts.place = places[i];
            if (i != 1) {
                PaintButton(m_dc, parts, states[i], m_look);
            }
        }
    }

    void Edits() const {
        const ElementState states[] = {{}, {true}, {false, false, false, true}};
        const wchar_t* texts[] = {L"12.5 nm", L"上海 Shanghai", L"disabled"};
        for (int i = 0; i < 3; ++i) {
            RECT rect = At(238 + 66 * i, 92, 62, 20);
            PaintEdit(m_dc, rect, states[i], m_look);
            rect.left += m_look.Px(4);
            Text(rect, texts[i], i == 2 ? ColorSlot::EditTextDisabled : ColorSlot::EditText, DT_VCENTER | DT_LEFT);
        }
    }

    void Slider() const {
        for (int i = 0; i < 4; ++i) {
            const ElementState state{i == 1, i == 2, false, i == 3, false};
            const int y = 62 + 16 * i;
            PaintZoomButton(m_dc, At(462, y, 15, 15), false, state, m_look);
            PaintSliderChannel(m_dc, At(482, y, 100, 15), At(520 + 10 * i, y, 0, 0).left, state.isDisabled, m_look);
            PaintSliderThumb(m_dc, At(515 + 10 * i, y, 10, 15), state, m_look);
            PaintZoomButton(m_dc, At(588, y, 15, 15), true, state, m_look);
        }
        PaintSizeBox(m_dc, At(640, 62, 16, 16), m_look);
    }

    void Buttons() const {
        // Rows: plain, split with the command lit, split with the menu lit. Columns: states.
        const ElementState states[] = {{},
                                       {true},
                                       {false, true},
                                       {false, false, true},
                                       {true, false, true},
                                       {false, false, false, true},
                                       {false, false, true, true}};
        const wchar_t* names[] = {L"normal", L"hot", L"pressed", L"checked", L"hot+chk", L"disabled", L"dis+chk"};
        PaintCategory(m_dc, At(2, 156, 560, 110), 0, 0, m_look);
        for (int row = 0; row < 3; ++row) {
            for (int i = 0; i < 7; ++i) {
                ButtonParts parts;
                parts.rect = At(10 + 78 * i, 164 + 30 * row, 72, 24);
                if (row > 0) {
                    parts.command = At(10 + 78 * i, 164 + 30 * row, 56, 24);
                    parts.menu = At(66 + 78 * i, 164 + 30 * row, 16, 24);
                    parts.isCommandHot = row == 1 && (states[i].isHot || states[i].isPressed);
                    parts.isMenuHot = row == 2 && (states[i].isHot || states[i].isPressed);
                }
                PaintButton(m_dc, parts, states[i], m_look);
                Text(row > 0 ? parts.command : parts.rect, names[i],
                     states[i].isDisabled ? ColorSlot::RibbonTextDisabled : ColorSlot::RibbonText);
                if (row > 0) {
                    PaintArrow(m_dc, parts.menu, ArrowDirection::Down,
                               m_look.skin[states[i].isDisabled ? ColorSlot::GlyphDisabled : ColorSlot::Glyph],
                               m_look.skin[ColorSlot::GlyphLight], m_look);
                }
            }
        }
    }

    void Controls() const {
        PaintCategory(m_dc, At(568, 156, 430, 110), 0, 0, m_look);
        const ElementState states[] = {{}, {true}, {false, true}, {false, false, false, true}};
        for (int i = 0; i < 4; ++i) {
            ElementState state = states[i];
            PaintCheckBox(m_dc, At(580 + 60 * i, 164, 13, 13), state, false, m_look);
            PaintCheckBox(m_dc, At(596 + 60 * i, 164, 13, 13), state, true, m_look);
            PaintRadioButton(m_dc, At(580 + 60 * i, 182, 13, 13), state, m_look);
            state.isChecked = true;
            PaintCheckBox(m_dc, At(612 + 60 * i, 164, 13, 13), state, false, m_look);
            PaintRadioButton(m_dc, At(596 + 60 * i, 182, 13, 13), state, m_look);
        }
        PaintKeyTip(m_dc, At(830, 162, 22, 18), L"ZC", 2, false, m_look);
        PaintKeyTip(m_dc, At(860, 162, 22, 18), L"N", 1, true, m_look);
        PaintProgress(m_dc, At(580, 204, 160, 16), At(580, 204, 100, 16), m_look);
        PaintFace(m_dc, At(760, 190, 220, 62), m_look.skin[FaceSlot::Tooltip], Corners::All(m_look.Px(2)), m_look);
        Text(At(768, 194, 200, 18), L"Measure distance 测量", ColorSlot::TooltipText, DT_LEFT | DT_VCENTER);
        Text(At(768, 222, 200, 18), L"Press F1 for help.", ColorSlot::TooltipText, DT_LEFT | DT_VCENTER);
        PaintFace(m_dc, At(580, 228, 80, 22), m_look.skin[FaceSlot::DocumentTab], Corners::Top(m_look.Radius()),
                  m_look);
        PaintFace(m_dc, At(662, 228, 80, 22), m_look.skin[FaceSlot::DocumentTabActive], Corners::Top(m_look.Radius()),
                  m_look);
    }

    void Menus() const {
        PaintFill(m_dc, At(2, 272, 560, 28), m_look.skin[FaceSlot::ToolBar], m_look);
        PaintGripper(m_dc, At(4, 272, 8, 28), true, m_look);
        PaintEtchedLine(m_dc, At(200, 276, 6, 20), true, m_look.skin[ColorSlot::SeparatorDark],
                        m_look.skin[ColorSlot::SeparatorLight], m_look);
        PaintFace(m_dc, At(2, 306, 270, 22), m_look.skin[FaceSlot::PaneCaption], {}, m_look);
        Text(At(8, 306, 260, 22), L"Layers 图层", ColorSlot::PaneCaptionText, DT_LEFT | DT_VCENTER);
        PaintFace(m_dc, At(2, 330, 270, 22), m_look.skin[FaceSlot::PaneCaptionActive], {}, m_look);
        Text(At(8, 330, 260, 22), L"Layers active", ColorSlot::PaneCaptionTextActive, DT_LEFT | DT_VCENTER);

        const RECT menu = At(290, 306, 230, 130);
        PaintSolid(m_dc, menu, m_look.skin[ColorSlot::MenuFill]);
        PaintSolid(m_dc, At(291, 307, 24, 128), m_look.skin[ColorSlot::MenuGutter]);
        PaintSolid(m_dc, At(315, 307, 1, 128), m_look.skin[ColorSlot::MenuGutterLine]);
        PaintFrame(m_dc, menu, m_look.skin[ColorSlot::MenuBorder], m_look.Line());
        PaintFace(m_dc, At(292, 332, 226, 23), m_look.skin[FaceSlot::MenuItemHot], Corners::All(m_look.Radius()),
                  m_look);
        PaintFace(m_dc, At(294, 358, 20, 20), m_look.skin[FaceSlot::MenuCheck], {}, m_look);
        PaintCheckMark(m_dc, At(294, 358, 20, 20), m_look.skin[ColorSlot::CheckMark], m_look);
        const wchar_t* items[] = {L"Open 打开", L"Highlighted", L"Checked", L"Disabled"};
        for (int i = 0; i < 4; ++i) {
            Text(At(324, 309 + 25 * i, 180, 22), items[i], i == 3 ? ColorSlot::MenuTextDisabled : ColorSlot::MenuText,
                 DT_LEFT | DT_VCENTER);
        }
        PaintSolid(m_dc, At(320, 410, 198, 1), m_look.skin[ColorSlot::MenuSeparator]);
        PaintMainPanelFrame(m_dc, At(580, 290, 400, 170), At(588, 306, 384, 124), m_look);
    }

    void StatusBar() const {
        PaintStatusBar(m_dc, At(0, 536, 1000, 24), m_look);
        Text(At(8, 536, 300, 24), L"Ready 就绪   N 31°14'  E 121°29'", ColorSlot::StatusText, DT_LEFT | DT_VCENTER);
        PaintEtchedLine(m_dc, At(310, 540, 6, 16), true, m_look.skin[ColorSlot::StatusSeparatorDark],
                        m_look.skin[ColorSlot::StatusSeparatorLight], m_look);
        PaintZoomButton(m_dc, At(800, 540, 16, 16), false, {}, m_look);
        PaintSliderChannel(m_dc, At(820, 540, 110, 16), At(875, 540, 0, 0).left, false, m_look);
        PaintSliderThumb(m_dc, At(870, 540, 11, 16), {}, m_look);
        PaintZoomButton(m_dc, At(936, 540, 16, 16), true, {}, m_look);
        PaintSizeBox(m_dc, At(984, 544, 16, 16), m_look);
    }

    HDC m_dc;
    const Look& m_look;
};

} // namespace

void DrawSheet(HDC dc, const Look& look) { Sheet(dc, look).Draw(); }
