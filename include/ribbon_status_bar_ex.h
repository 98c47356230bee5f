#pragma once

#include "barwright_api.h"

#include <afxribbonstatusbar.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// The host frame's status bar. Its extended elements, at the right end, come from the status rows of the ribbon files
/// that were loaded (CAddRibbonBar::m_smStatusExBtns), one group for each application that the host knows, of which
/// one is shown. Its main elements may have fixed widths, and labels that stand at the right (CMFCRibbonLabelEx).
///
/// An application is an entry of that map: its key the path of the file, its first text the name. The builder gives all
/// entries the keyword of their row; a host that loads several files names them itself.
///
/// The frame owns the bar, the bar its elements; it lives in the user-interface thread. The host names the application
/// right after it has created the bar: until then all extended elements are shown that were built.
///
/// Layout, in pixels at every scale: the first two main elements are slots. The second one is 23 high, and while it is
/// hidden the first one has its width too. From the third on, one that is hidden keeps its place free. Right labels
/// stand over each other. No separator comes first, last or after another one.
class BARWRIGHT_API CMFCRibbonStatusBarEx : public CMFCRibbonStatusBar {
    DECLARE_DYNCREATE(CMFCRibbonStatusBarEx)

public:
    CMFCRibbonStatusBarEx() = default;
    ~CMFCRibbonStatusBarEx() override;

    /// Builds the extended elements of all applications in m_smStatusExBtns; entries of one display name are one
    /// application. An element is a separator (keyword "Separator"), or by its type a label, a slider or a button with
    /// its icon, or with its text where the icon cannot be loaded. A keyword that CMenuIdMgr does not know is skipped.
    /// What several applications have is built once and copied; copies of a slider move together. SetExEleApp calls it
    /// where needed.
    void CreateAllExBtns();

    /// Shows the extended elements of the application whose entry in m_smStatusExBtns has the key `app` (the path that
    /// was given to Load), and hides those of all others. Of a key that has no entry none are shown. An empty one
    /// changes nothing, nor does the application that is shown already.
    void SetExEleApp(const CString& app);

    /// Gives a main element, counted from 0, a fixed width in pixels, from the next layout on; below 1 it has its own.
    /// The bar is laid out before it is painted next, if nothing else lays it out earlier.
    void SetEleWidth(int index, int width);

    /// Lays out at once.
    void RecalcLayout() override;
    /// What is free behind the last main element, in pixels.
    int GetSpace() const { return m_space; }
    CMFCRibbonBaseElement* HitTest(CPoint point, int bCheckActiveCategory = FALSE,
                                   int bCheckPanelCaption = FALSE) override;
    /// Does nothing: what the bar shows is the host's.
    void OnPaneContextMenu(CWnd* pWnd, CPoint point) override;
    /// Elements that the host removes leave their application.
    void OnElementDestroyed(CMFCRibbonBaseElement* pElement) override;

protected:
    /// Deletes all extended elements. Their applications stay known without any.
    void RemoveAllEx();
    void OnDrawInformation(CDC* dc, CString& information, CRect rect) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Where the information text lies; empty without one.
    CRect m_informationPlace = CRect(0, 0, 0, 0);

    DECLARE_MESSAGE_MAP()

private:
    CString m_strCurApp;
    /// Of each application, by its display name; not owned.
    std::map<std::wstring, std::vector<CMFCRibbonBaseElement*>> m_mapAppElements;
    std::map<std::int32_t, std::int32_t> m_mapWidths; ///< by the element's index
    bool m_hasNewWidths = false;                      ///< nothing was laid out with them yet

    /// What the platform's own parts, as the size grip, were placed for.
    struct FrameParts {
        CSize client = CSize(-1, -1);
        int gripWidth = 0;
        BOOL isBottomFrame = FALSE;
        bool operator==(const FrameParts&) const = default;
    };
    FrameParts m_frameParts;
    int m_space = 0;
};
