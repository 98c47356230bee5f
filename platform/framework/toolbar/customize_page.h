#pragma once

#include "afxToolBarsCustomizeDialog.h"
#include "toolbar/customize_texts.h"
#include "window/dialog_template.h"

namespace toolbar {

/// What the pages of the customize dialog have in common: they are written down in tables and have one size.
class CustomizePage : public CPropertyPage {
public:
    CustomizePage(CMFCToolBarsCustomizeDialog& dialog, CustomizeText caption, std::span<const fx::DialogItem> items);

    BOOL OnInitDialog() override;

protected:
    /// Outlives its pages' windows.
    CMFCToolBarsCustomizeDialog& Dialog() const { return m_dialog; }
    void EnableItem(int id, bool isEnabled);
    void ShowItem(int id, bool isShown);
    /// Asks in a message box. True: yes, and the page is still there.
    bool IsConfirmed(CustomizeText question);

private:
    CMFCToolBarsCustomizeDialog& m_dialog;
    std::vector<DWORD> m_template;
};

// Dialog units.
constexpr short kPageWidth = 262;
constexpr short kPageHeight = 178;

std::unique_ptr<CPropertyPage> MakeCommandsPage(CMFCToolBarsCustomizeDialog& dialog);
std::unique_ptr<CPropertyPage> MakeToolBarsPage(CMFCToolBarsCustomizeDialog& dialog);
/// Only while there is a manager of tools.
std::unique_ptr<CPropertyPage> MakeToolsPage(CMFCToolBarsCustomizeDialog& dialog);
std::unique_ptr<CPropertyPage> MakeKeyboardPage(CMFCToolBarsCustomizeDialog& dialog);
std::unique_ptr<CPropertyPage> MakeMenusPage(CMFCToolBarsCustomizeDialog& dialog);
std::unique_ptr<CPropertyPage> MakeOptionsPage(CMFCToolBarsCustomizeDialog& dialog);

} // namespace toolbar
