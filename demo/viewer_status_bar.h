#pragma once

#include "map_state.h"
#include "ribbon_status_bar_ex.h"

#include <string>
#include <vector>

class CMFCRibbonLabel;
class CMFCRibbonProgressBar;
class CMFCRibbonSliderSync;

/// The viewer's status bar. At the left it says what the working mode is for, and shows that the map is being drawn;
/// at the right it has what the status row of the mode's ribbon file names. The frame makes it anew whenever it has
/// built its ribbon, whose commands the rows name.
class CViewerStatusBar : public CMFCRibbonStatusBarEx {
    DECLARE_DYNAMIC(CViewerStatusBar)

public:
    /// Reads the status rows of all modes. Where a file is missing its mode has no extras.
    static void LoadRows(CMFCRibbonBar& ribbon);

    /// Makes the window and the elements. `scale`: the ribbon's slider, which those of the bar move with; null: none.
    BOOL Create(CWnd* frame, CMFCRibbonSliderSync* scale);
    void ShowMode(MapMode mode);
    /// Of what the map shows.
    void ShowState(const MapState& state);
    void ShowPointer(const std::wstring& place);
    /// The element that shows the pointer's place was clicked.
    bool IsPointerLabel(const void* label) const;
    /// The map is being drawn, or no longer. Only work that takes its time is shown.
    void ShowWork(bool isAtWork);
    /// The name of the file whose row is shown.
    const std::wstring& Application() const { return m_application; }

protected:
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    std::vector<CMFCRibbonBaseElement*> ExtendedOf(const wchar_t* keyword);
    void ShowText(const wchar_t* keyword, const std::wstring& text);
    void FitSliders(CMFCRibbonSliderSync* scale);
    void EndWork();

    CMFCRibbonLabel* m_prompt = nullptr; ///< The bar's own, as the next.
    CMFCRibbonProgressBar* m_progress = nullptr;
    int m_ticks = -1; ///< Of the timer since the map was ordered; -1: nothing is at work.
    std::wstring m_application;
};
