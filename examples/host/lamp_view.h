#pragma once

#include <afxwin.h>

#include "lamp_board.h"

/// The window below the ribbon: draws the board, which outlives it.
class CLampView : public CWnd {
public:
    explicit CLampView(const LampBoard& board);

    BOOL Create(CWnd* parent);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    const LampBoard& m_board;
};
