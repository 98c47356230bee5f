#pragma once

#include "layer_list.h"

#include <afxcontrolbars.h>

/// A drop list of a dialog whose face is drawn in the viewer's skin: the system's own has a frame and an arrow in the
/// colours of the system. Its rows are drawn by the dialog.
class CDialogList : public CComboBox {
public:
    /// Before it is shown.
    void SetColors(const ViewerColors& colors) { m_colors = colors; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    ViewerColors m_colors = {};
};
