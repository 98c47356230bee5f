#pragma once

#include "dialog_window.h"
#include "print_pages.h"

#include <array>
#include <functional>
#include <string>

/// Shows the pages as they will be printed: turned over by buttons and keys, enlarged by buttons, keys and the wheel
/// with Ctrl, moved by the wheel and by dragging.
class CPrintPreview : public CDialogWindow {
public:
    /// `print` is called over the window for its button; the pages outlive this.
    CPrintPreview(DialogLook look, const PrintPages& pages, std::function<void(CWnd& owner)> print);

    /// Shows it until it is closed.
    void Show(CWnd& owner, const std::wstring& title);
    Description Describe() const override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr std::size_t kButtons = 7;

    bool MakeControls();
    void PlaceControls();
    void Do(UINT id);
    bool DoKey(UINT key);
    void TurnTo(int page);
    /// 0: as large as the whole sheet fits.
    void SetZoom(double percent);
    void ScrollBy(int across, int down);
    void ShowState();

    SheetSize Sheet() const { return UsualSheet(m_pages.Shape()); }
    CRect SheetArea() const;
    PreviewRoom Room() const;
    double Percent() const;
    PreviewPlace Place() const;
    void DrawSheet(CDC& dc) const;

    const PrintPages& m_pages;
    std::function<void(CWnd&)> m_print;
    std::array<CButton, kButtons> m_buttons;
    CStatic m_pageText;
    int m_page = 0;
    double m_zoom = 0; ///< Percent; 0: fitting.
    int m_scrollAcross = 0;
    int m_scrollDown = 0;
    bool m_isDragging = false;
    CPoint m_dragged = CPoint(0, 0);
};
