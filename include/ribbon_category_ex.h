#pragma once

#include "barwright_api.h"

#include <afxribboncategory.h>

/// A ribbon category whose tab is a command: it carries the command id that a click on the tab sends. Made by the
/// ribbon bar through its run-time class (CMFCRibbonBar::AddCategory), which owns it.
class BARWRIGHT_API CMFCRibbonCategoryEx : public CMFCRibbonCategory {
    DECLARE_DYNCREATE(CMFCRibbonCategoryEx)

public:
    /// The command id, 0 until SetID.
    UINT GetID() const { return m_nID; }
    void SetID(UINT id) { m_nID = id; }

protected:
    CMFCRibbonCategoryEx() = default;

private:
    UINT m_nID = 0;
};
