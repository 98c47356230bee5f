#pragma once

#include <algorithm>

#include "ribbon/face_types.h"

/// Every length of the ribbon bar, from the text height of its font and the image scale. Scaled pixels.
struct RibbonMetrics {
    static constexpr int rowsPerPanel = 3;

    double scale = 1.0;
    int textHeight = 0;

    int smallImage = 0;
    int largeImage = 0;

    int captionHeight = 0; // row above the tabs that stands for the frame's caption or holds the quick access toolbar
    int captionButtonWidth = 0;
    int captionButtonHeight = 0;
    int childButtonSide = 0; // of the buttons of a maximised MDI child
    int tabHeight = 0;
    int tabPaddingX = 0; // between a tab's text and its side
    int tabGap = 0;
    int minTabWidth = 0; // a tab that is narrower than this is not worth a click

    int categoryMarginX = 0;
    int categoryMarginY = 0;
    int panelGap = 0;
    int panelPaddingX = 0;
    int panelPaddingY = 0;
    int panelCaptionHeight = 0;
    int panelCaptionPadding = 0; // between its text and the panel's padding
    int launchButtonSide = 0;    // of the button in a panel's caption
    int launchButtonMargin = 0;  // between it and the caption's end
    int panelContentHeight = 0;
    int rowHeight = 0;  // height of an intermediate or compact element
    int elementGap = 0; // between columns, and between groups of one row
    int separatorWidth = 0;
    int minPanelWidth = 0;
    int minCollapseGain = 0; // a panel that would give up less does not collapse
    int scrollButtonWidth = 0;
    int quickAccessGap = 0;

    int PanelHeight() const { return 2 * panelPaddingY + panelContentHeight + panelCaptionHeight; }
    int CategoryHeight() const { return PanelHeight() + 2 * categoryMarginY; }

    /// A length at 96 DPI in this scale.
    int Scaled(int length) const { return fx::Scaled(length, scale); }

    /// textHeight: of the ribbon's font, already scaled. scale: 1.0 at 96 DPI.
    static RibbonMetrics FromFont(int textHeight, double scale) {
        RibbonMetrics m;
        m.scale = std::max(scale, 1.0);
        m.textHeight = std::max(textHeight, 1);
        m.smallImage = m.Scaled(16);
        m.largeImage = m.Scaled(32);
        // A third of a panel also takes a third of a large button.
        // Frames of rows that stand below each other keep a line apart at every scale.
        m.rowHeight = ribbon::FaceMetrics{m.scale, m.textHeight}.RowHeight() + 1;
        const int largeElement = m.largeImage + 2 * m.textHeight + m.Scaled(9);
        m.rowHeight = std::max(m.rowHeight, (largeElement + rowsPerPanel - 1) / rowsPerPanel);
        m.panelContentHeight = rowsPerPanel * m.rowHeight;
        m.panelCaptionHeight = m.textHeight + m.Scaled(4);
        m.panelCaptionPadding = m.Scaled(2);
        m.launchButtonMargin = m.Scaled(2);
        m.launchButtonSide = m.panelCaptionHeight - 2 * m.Scaled(1) - 1;
        m.panelPaddingX = m.Scaled(4);
        m.panelPaddingY = m.Scaled(3);
        m.panelGap = m.Scaled(2);
        m.categoryMarginX = m.Scaled(3);
        m.categoryMarginY = m.Scaled(2);
        m.elementGap = m.Scaled(2);
        m.separatorWidth = m.Scaled(5);
        m.minPanelWidth = m.Scaled(40);
        m.minCollapseGain = m.Scaled(8);
        m.scrollButtonWidth = m.Scaled(13);
        m.tabHeight = m.textHeight + m.Scaled(11);
        m.tabPaddingX = m.Scaled(10);
        m.tabGap = m.Scaled(2);
        m.minTabWidth = m.Scaled(30);
        m.captionHeight = std::max(m.textHeight, m.smallImage) + m.Scaled(10);
        m.captionButtonWidth = m.Scaled(29);
        m.captionButtonHeight = m.captionHeight - m.Scaled(4);
        m.childButtonSide = m.Scaled(19);
        m.quickAccessGap = m.Scaled(4);
        return m;
    }
};
