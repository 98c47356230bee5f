#pragma once

#include <functional>
#include <string>
#include <vector>

class CMFCRibbonBar;

/// What users have changed in the elements of a ribbon and which category they look at, to be given to the elements of
/// the same commands after the ribbon was built anew. Combos keep their items with their marks, sliders their range and
/// place, edits their text.
class RibbonStates {
public:
    explicit RibbonStates(CMFCRibbonBar& ribbon);
    void GiveTo(CMFCRibbonBar& ribbon) const;

private:
    std::vector<std::function<void(CMFCRibbonBar&)>> m_givers;
    unsigned int m_activeId = 0; ///< 0: a plain category, known by its place and name
    std::wstring m_activeName;
    int m_activeIndex = -1;
};
