#pragma once

#include <afxcontrolbars.h>

#include <string>

/// The button at the head of the ribbon's tabs and the menu that it opens: files, printing, options, help, and the
/// recent files. Its commands are those of the configuration, by keyword; one that is not configured is left out.
class ApplicationMenu {
public:
    /// Once, when the ribbon has its window; the ribbon lives as long as this.
    void Attach(CMFCRibbonBar& ribbon);
    /// Before the ribbon goes.
    void Detach();
    /// Whenever the ribbon was built: in the language in force.
    void Build();

private:
    CMFCRibbonBar* m_ribbon = nullptr;
    CMFCRibbonApplicationButton m_button;
};
