#pragma once

#include "command_search.h"
#include "layer_list.h"

#include <afxcontrolbars.h>

#include <functional>
#include <string>
#include <vector>

/// The search of commands: a field, and below it the commands that were found, each with its icon, where it lives and
/// its shortcut. Opens over the field in the ribbon, or in the middle of the frame's upper edge; the arrow keys choose,
/// Enter or a click runs, Esc and a click elsewhere close.
class CSearchWindow : public CWnd {
public:
    struct Texts {
        std::wstring prompt;
        std::wstring nothing;     ///< No command was found; "%s" stands for the query.
        std::wstring unavailable; ///< Said of commands that cannot be run now.
    };

    /// `run` is called with the id of the chosen command, after the window has closed.
    explicit CSearchWindow(std::function<void(UINT id)> run) : m_run(std::move(run)) {}
    ~CSearchWindow() override { DestroyWindow(); }

    /// Opens, or begins anew where it is open. `anchor` on the screen: the end of its lower edge is where the window
    /// hangs; an empty one: the frame's middle.
    void Open(CFrameWnd* frame, const CRect& anchor, const ViewerColors& colors, Texts texts,
              std::vector<SearchCommand> commands);
    bool IsOpen() const { return GetSafeHwnd() != nullptr && IsWindowVisible(); }
    void Close();

    // For the record.
    std::vector<const SearchCommand*> Shown() const;
    int Marked() const { return m_mark; }
    /// Of a shown row, on the screen.
    CRect PlaceOf(int row) const;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL isMinimized);
    afx_msg void OnClose();
    afx_msg void OnSetFocus(CWnd* earlier);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnQueryChanged();
    afx_msg LRESULT OnCloseLater(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    bool MakeWindow(CFrameWnd* frame);
    void Find();
    void Place();
    void MoveMark(int rows);
    void ScrollTo(int first);
    void RunMarked();
    int ShownRows() const;
    CRect RowRect(int row) const;
    int RowAt(CPoint point) const;
    /// Brings a rectangle to the other side where the window is written from right to left.
    CRect Mirrored(CRect rect) const;
    void DrawField(SoftCanvas& canvas);
    void DrawRow(SoftCanvas& canvas, int row);
    void DrawIcon(CDC& dc, const SearchCommand& command, const CRect& place);
    void DrawText(CDC& dc, const std::wstring& text, CRect rect, COLORREF color, bool isAtEnd = false);

    std::function<void(UINT)> m_run;
    CEdit m_edit;
    CBrush m_ground;
    CRect m_anchor = CRect(0, 0, 0, 0);
    ViewerColors m_colors = {};
    Texts m_texts;
    std::wstring m_query;
    std::vector<SearchCommand> m_commands;
    std::vector<SearchHit> m_hits;
    int m_mark = 0;  ///< Of the hits; -1: there is none.
    int m_first = 0; ///< The uppermost one that is seen.
    CPoint m_pointer = CPoint(-1, -1);
    bool m_isMirrored = false;
};
