#pragma once

#include "afxwin.h"
#include "toolbar/command_catalog.h"
#include "toolbar/row_list.h"

#include <functional>

namespace toolbar {

/// A list box of commands with their images, out of which they can be dragged into toolbars. It knows the buttons of a
/// catalog and owns none; Show it anew when they change.
class CommandList : public RowList {
public:
    void Show(const std::vector<CMFCToolBarButton*>& commands);
    /// Null: none is selected.
    CMFCToolBarButton* Selected() const;
    /// The window above the bars that commands are dragged into; without one nothing is dragged.
    void SetFrame(std::function<CWnd*()> frame) { m_frame = std::move(frame); }

protected:
    void DrawRow(CDC& dc, const CRect& rect, int row, bool isSelected) override;
    int LeastHeight() const override;
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CMFCToolBarButton* At(int row) const;

    std::function<CWnd*()> m_frame;
    CMFCToolBarButton* m_pressed = nullptr;
    CPoint m_press{0, 0};
};

/// The rows of a catalog's category; an empty name, or one that there is not: all commands.
std::vector<CMFCToolBarButton*> CommandsOf(const CommandCatalog& catalog, const CString& category);

} // namespace toolbar
