#pragma once

#include "barwright_api.h"

#include <afxribboncategory.h>

/// A ribbon category whose tab stands for a command: it carries the command's id for the bar and the host. A
/// CMFCRibbonBar shows the category when its tab is clicked, as any other, and sends nothing. Made by the bar through
/// its run-time class (CMFCRibbonBar::AddCategory), which owns it.
class BARWRIGHT_API CMFCRibbonCategoryEx : public CMFCRibbonCategory {
    DECLARE_DYNCREATE(CMFCRibbonCategoryEx)

public:
    /// The command id, 0 until SetID.
    UINT GetID() const { return m_nID; }
    void SetID(UINT id) { m_nID = id; }

protected:
    /// The bar gives it bar, name and images once it is made.
    CMFCRibbonCategoryEx() : CMFCRibbonCategory(nullptr, L"", 0, 0) {}

private:
    UINT m_nID = 0;
};
