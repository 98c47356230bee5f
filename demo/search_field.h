#pragma once

#include "ribbon_icon_button.h"

#include <string>

/// What stands for the search of commands at the end of the ribbon's row of tabs: it looks like a field with a prompt,
/// and a click on it is the command that opens the search in its place. Where the bar is narrow it is a button with a
/// sign. The row is dark in both skins.
class CSearchField : public CMFCRibbonUNIcoButton {
    DECLARE_DYNCREATE(CSearchField)

public:
    CSearchField() = default;
    /// `style` is the icons' style of all other buttons, and outlives this one.
    CSearchField(UINT id, const std::wstring& prompt, const std::wstring& style);

    CSize GetRegularSize(CDC* dc) override;
    CSize GetIntermediateSize(CDC* dc) override { return GetRegularSize(dc); }
    CSize GetCompactSize(CDC* dc) override { return GetRegularSize(dc); }
    void OnDraw(CDC* dc) override;
    BOOL IsDrawTooltipImage() const override { return FALSE; }

private:
    bool IsNarrow() const;

    std::wstring m_prompt;
    const std::wstring* m_style = nullptr;
};
