#include "main_frame.h"

#include "add_ribbon_bar.h"
#include "host_messages.h"
#include "menu_event.h"
#include "menu_id_mgr.h"
#include "resource.h"
#include "ribbon_check_combo.h"
#include "varnhold/language.h"

#include <array>
#include <string>
#include <utility>

namespace {

// Configured commands get their ids from 41000 on, in the order in which their keywords are met. The program's own ids
// stay out of this range.
constexpr UINT kFirstCommand = 41000;
constexpr UINT kLastCommand = 49999;

/// The combo shows what the tables say of these in section Common.
constexpr std::array<const wchar_t*, LampBoard::kCount> kLampNames = {L"Red", L"Amber", L"Green"};

} // namespace

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(kFirstCommand, kLastCommand, OnConfiguredCommand)
ON_UPDATE_COMMAND_UI_RANGE(kFirstCommand, kLastCommand, OnUpdateConfiguredCommand)
ON_MESSAGE(kRebuildRibbonMessage, OnRebuildRibbon)
ON_MESSAGE(WM_COMBO_CHECK_CHANGED, OnLampMounted)
END_MESSAGE_MAP()

CMainFrame::CMainFrame(std::shared_ptr<LampBoard> board) : m_board(std::move(board)), m_view(*m_board) {}

BOOL CMainFrame::CreateFrame() {
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), nullptr,
                                                    AfxGetApp()->LoadIcon(IDR_MAINFRAME));
    return Create(windowClass, L"", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(CPoint(0, 0), CSize(640, 420)));
}

int CMainFrame::OnCreate(LPCREATESTRUCT createStruct) {
    if (CFrameWndEx::OnCreate(createStruct) == -1) {
        return -1;
    }
    // The skin is a choice of the whole program: before the first bar is drawn, or with a repaint of everything.
    CMFCVisualManagerOffice2007::SetStyle(CMFCVisualManagerOffice2007::Office2007_Silver);
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    if (!m_ribbon.Create(this) || !m_view.Create(this)) {
        return -1;
    }
    m_ribbon.EnableToolTips(TRUE, TRUE);
    BuildRibbon();
    ShowBoard();
    return 0;
}

void CMainFrame::BuildRibbon() {
    m_ribbon.RemoveAllCategories(); // there are some after a change of the language
    CAddRibbonBar builder;
    // The path is relative to the installation directory. When the file cannot be loaded, the user has been told; this
    // host goes on without a ribbon.
    builder.Load(L"cfg\\ribbon.xml", &m_ribbon, TRUE);
    FillLampCombo();
    m_ribbon.ForceRecalcLayout();
}

CMFCRibbonCheckComb* CMainFrame::FindLampCombo() const {
    // From keyword to id to element: the way to whatever the file describes.
    int id = 0;
    if (!CMenuIdMgr::Ins()->GetMenuId(L"LampsMounted", id)) {
        return nullptr;
    }
    return DYNAMIC_DOWNCAST(CMFCRibbonCheckComb, m_ribbon.FindByID(static_cast<UINT>(id), FALSE, TRUE));
}

void CMainFrame::FillLampCombo() {
    CMFCRibbonCheckComb* const combo = FindLampCombo();
    if (combo == nullptr) {
        return;
    }
    for (std::size_t lamp = 0; lamp < LampBoard::kCount; ++lamp) {
        combo->AddItem(kLampNames.at(lamp));
        combo->SetItemCheck(static_cast<int>(lamp), m_board->IsMounted(lamp));
    }
    combo->SelectItem(0); // what its face shows
}

void CMainFrame::OnConfiguredCommand(UINT id) {
    CMenuEvtHandleMgr::Ins()->MenuClick(id);
    ShowBoard();
}

void CMainFrame::OnUpdateConfiguredCommand(CCmdUI* commandUi) {
    // Without a reactor's answer: on to whoever else may know, and enabled when nobody does.
    if (!CMenuEvtHandleMgr::Ins()->Update(commandUi)) {
        commandUi->ContinueRouting();
    }
}

LRESULT CMainFrame::OnRebuildRibbon(WPARAM, LPARAM) {
    BuildRibbon();
    ShowBoard();
    return 0;
}

// The combo has changed the mark already. A double click changes all of them with one message each, at the end of which
// all are alike: who asks the combo for every item at each message cannot go wrong.
LRESULT CMainFrame::OnLampMounted(WPARAM, LPARAM) {
    const CMFCRibbonCheckComb* const combo = FindLampCombo();
    for (std::size_t lamp = 0; combo != nullptr && lamp < LampBoard::kCount; ++lamp) {
        bool isMounted = false;
        if (combo->GetItemCheck(static_cast<int>(lamp), isMounted)) {
            m_board->Mount(lamp, isMounted);
        }
    }
    ShowBoard();
    return 0;
}

void CMainFrame::ShowBoard() {
    // The program's own texts come from the same tables, out of a section of its own.
    const std::wstring title = CMultiLanguageMgr::translationW("Title", -1, "Lamps");
    SetWindowText((title + L" " + std::to_wstring(m_board->LitCount())).c_str());
    m_view.Invalidate();
}
