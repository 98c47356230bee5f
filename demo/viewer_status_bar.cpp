#include "viewer_status_bar.h"

#include "add_ribbon_bar.h"
#include "menu_id_mgr.h"
#include "place_text.h"
#include "ribbon_label_ex.h"
#include "ribbon_slider_sync.h"

#include "varnhold/file_op.h"
#include "varnhold/language.h"

#include <array>
#include <filesystem>

IMPLEMENT_DYNAMIC(CViewerStatusBar, CMFCRibbonStatusBarEx)

BEGIN_MESSAGE_MAP(CViewerStatusBar, CMFCRibbonStatusBarEx)
ON_WM_TIMER()
END_MESSAGE_MAP()

namespace {

struct ModeRow {
    const wchar_t* file;
    const wchar_t* name;
    const char* prompt;
};

/// In the order of MapMode. The row for browsing stands in the ribbon's own file.
constexpr std::array<ModeRow, 3> kModes = {{{L"cfg\\ribbon.xml", L"browse", "PromptBrowse"},
                                            {L"cfg\\status-edit.xml", L"edit", "PromptEdit"},
                                            {L"cfg\\status-print.xml", L"print", "PromptPrint"}}};

constexpr int kPromptSlot = 0;
constexpr int kPromptWidth = 260; // of the slot, in pixels at 96 DPI, beside the progress
constexpr UINT_PTR kWorkTimer = 20;
constexpr UINT kTick = 80;   // milliseconds
constexpr int kPatience = 3; // ticks that a drawing may take before it is worth a word
constexpr int kProgressSteps = 20;
constexpr int kProgressWidth = 90;
constexpr int kProgressHeight = 19; // pixels at any scale, as the second slot of the bar
constexpr int kUnscaled = 96;
constexpr int kScaleStep = 5;

const ModeRow& RowOf(MapMode mode) { return kModes[static_cast<std::size_t>(mode)]; }

/// A file that is not there is nothing to tell the user of, unlike one that is broken.
bool IsThere(const wchar_t* file) {
    std::wstring directory;
    return FileOp::GetAppPath(directory) && std::filesystem::exists(directory + file);
}

CString ViewerText(const char* key) { return CMultiLanguageMgr::translationW(key, -1, "Viewer").c_str(); }

} // namespace

void CViewerStatusBar::LoadRows(CMFCRibbonBar& ribbon) {
    for (const ModeRow& row : kModes) {
        if (&row != &RowOf(MapMode::Browse) && IsThere(row.file)) {
            CAddRibbonBar().Load(row.file, &ribbon, TRUE);
        }
        // All rows have one keyword; as applications the modes have names of their own.
        const auto found = CAddRibbonBar::m_smStatusExBtns.find(row.file);
        if (found != CAddRibbonBar::m_smStatusExBtns.end()) {
            found->second.first = row.name;
        }
    }
}

BOOL CViewerStatusBar::Create(CWnd* frame, CMFCRibbonSliderSync* scale) {
    if (!CMFCRibbonStatusBarEx::Create(frame)) {
        return FALSE;
    }
    m_prompt = new CMFCRibbonLabel(L"");
    AddElement(m_prompt, L"");
    SetEleWidth(kPromptSlot, afxGlobalData.ScalePixels(kPromptWidth));
    // Hidden, it leaves its room to the prompt.
    // As high at every scale as the layout's slot, which it stands in the middle of then.
    m_progress = new CMFCRibbonProgressBar(0, kProgressWidth,
                                           ::MulDiv(kProgressHeight, kUnscaled, afxGlobalData.ScalePixels(kUnscaled)));
    m_progress->SetRange(0, kProgressSteps);
    m_progress->SetInfiniteMode();
    AddElement(m_progress, L"", FALSE);
    CreateAllExBtns();
    FitSliders(scale);
    return TRUE;
}

std::vector<CMFCRibbonBaseElement*> CViewerStatusBar::ExtendedOf(const wchar_t* keyword) {
    std::vector<CMFCRibbonBaseElement*> elements;
    int id = 0;
    if (!CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
        return elements;
    }
    for (int index = 0; index < GetExCount(); ++index) {
        if (GetExElement(index)->GetID() == static_cast<UINT>(id)) {
            elements.push_back(GetExElement(index));
        }
    }
    return elements;
}

/// The bar's sliders are copies of the ribbon's: all move together, and the command is sent once.
void CViewerStatusBar::FitSliders(CMFCRibbonSliderSync* scale) {
    for (CMFCRibbonBaseElement* const element : ExtendedOf(L"ZoomSlider")) {
        auto* const slider = DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, element);
        if (slider == nullptr) {
            continue;
        }
        slider->SetRange(0, MapState::kSliderMax);
        slider->SetZoomButtons();
        slider->SetZoomIncrement(kScaleStep);
        if (scale != nullptr && slider->GetOriginal() == nullptr) {
            slider->SetOriginal(scale);
        }
    }
}

void CViewerStatusBar::ShowMode(MapMode mode) {
    m_prompt->SetText(ViewerText(RowOf(mode).prompt));
    m_application = RowOf(mode).file;
    SetExEleApp(m_application.c_str());
}

void CViewerStatusBar::ShowState(const MapState& state) {
    ShowText(L"ZoomLabel", ScaleText(state.View().pixelsPerDegree / afxGlobalData.GetRibbonImageScale()));
    for (CMFCRibbonBaseElement* const element : ExtendedOf(L"ZoomSlider")) {
        auto* const slider = DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, element);
        if (slider != nullptr && slider->GetPos() != state.SliderPosition()) {
            slider->SetPosSync(state.SliderPosition(), TRUE);
        }
    }
}

void CViewerStatusBar::ShowPointer(const std::wstring& place) { ShowText(L"PointerPlace", place); }

bool CViewerStatusBar::IsPointerLabel(const void* label) const {
    for (const CMFCRibbonBaseElement* const element :
         const_cast<CViewerStatusBar*>(this)->ExtendedOf(L"PointerPlace")) {
        if (element == label) {
            return true;
        }
    }
    return false;
}

void CViewerStatusBar::ShowText(const wchar_t* keyword, const std::wstring& text) {
    for (CMFCRibbonBaseElement* const element : ExtendedOf(keyword)) {
        if (text != element->GetText()) {
            element->SetText(text.c_str());
        }
    }
}

// ---- work

void CViewerStatusBar::ShowWork(bool isAtWork) {
    if (!isAtWork) {
        EndWork();
    } else if (m_ticks < 0) {
        m_ticks = 0;
        SetTimer(kWorkTimer, kTick, nullptr);
    }
}

void CViewerStatusBar::EndWork() {
    if (m_ticks >= 0) {
        m_ticks = -1;
        KillTimer(kWorkTimer);
        m_progress->SetVisible(FALSE);
    }
}

void CViewerStatusBar::OnTimer(UINT_PTR timer) {
    if (timer != kWorkTimer) {
        CMFCRibbonStatusBarEx::OnTimer(timer);
        return;
    }
    if (++m_ticks >= kPatience) {
        m_progress->SetVisible(TRUE);
        m_progress->SetPos(m_progress->GetPos() + 1);
    }
}
