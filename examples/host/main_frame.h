#pragma once

#include <afxcontrolbars.h>

#include "lamp_board.h"
#include "lamp_view.h"

#include <memory>

class CMFCRibbonCheckComb;

/// Posted to the frame when the ribbon is to be built again.
inline constexpr UINT kRebuildRibbonMessage = WM_APP + 1;

/// The main window: the ribbon from cfg\ribbon.xml above the lamps.
class CMainFrame : public CFrameWndEx {
public:
    explicit CMainFrame(std::shared_ptr<LampBoard> board);

    BOOL CreateFrame();

protected:
    afx_msg int OnCreate(LPCREATESTRUCT createStruct);
    afx_msg void OnConfiguredCommand(UINT id);
    afx_msg void OnUpdateConfiguredCommand(CCmdUI* commandUi);
    afx_msg LRESULT OnRebuildRibbon(WPARAM, LPARAM);
    afx_msg LRESULT OnLampMounted(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    void BuildRibbon();
    void FillLampCombo();
    /// The configuration decides whether there is one: null when it has none.
    CMFCRibbonCheckComb* FindLampCombo() const;
    void ShowBoard();

    std::shared_ptr<LampBoard> m_board;
    CMFCRibbonBar m_ribbon;
    CLampView m_view;
};
