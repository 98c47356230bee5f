// When the ribbon's tooltip appears: whether there is a help file, its size and place.
#include "tooltip_ctrl_ex.h"

#include "add_ribbon_bar.h"
#include "library_context.h"

#include "skins/tooltip_geometry.h"
#include "skins/tooltip_screen.h"

#include <afxglobals.h>
#include <afxribbonbar.h>
#include <afxtoolbar.h>
#include <fx/scoped_change.h>
#include <fx/to_rect.h>
#include <varnhold/file_op.h>
#include <varnhold/strings_mfc.h>

#include <optional>

namespace {

/// The folder of the help videos; nothing until the first tooltip is made.
std::optional<CString> g_helpFolder;

const CPoint g_nowhere(-1, -1);
constexpr int kCorner = 4; // at 96 DPI

/// The bar that an element of a ribbon is shown in, on the screen.
std::optional<fx::Rect> BarOf(const CMFCRibbonButton* element) {
    const CWnd* const bar = element ? element->GetTopLevelRibbonBar() : nullptr;
    if (!bar || !bar->GetSafeHwnd()) {
        return std::nullopt;
    }
    CRect rect;
    bar->GetWindowRect(rect);
    return fx::FromRect(rect);
}

} // namespace

HICON CToolTipCtrlEx::m_hIconLargeBottom = nullptr;
HICON CToolTipCtrlEx::m_hIconSmallBottom = nullptr;
CString CToolTipCtrlEx::m_sStrGlobleDesciption;

IMPLEMENT_DYNCREATE(CToolTipCtrlEx, CMFCToolTipCtrl)

BEGIN_MESSAGE_MAP(CToolTipCtrlEx, CMFCToolTipCtrl)
ON_WM_PAINT()
ON_WM_WINDOWPOSCHANGING()
ON_NOTIFY_REFLECT(TTN_SHOW, OnShow)
ON_NOTIFY_REFLECT(TTN_POP, OnPop)
END_MESSAGE_MAP()

CToolTipCtrlEx::CToolTipCtrlEx() {
    if (!g_helpFolder) {
        CString folder;
        GetHaveMedias_Brevant(folder);
        g_helpFolder = folder;
    }
}

bool CToolTipCtrlEx::IsF1Hint() const { return m_description == CAddRibbonBar::m_strHelpF1; }

bool CToolTipCtrlEx::HelpFileExists() const {
    const CString name = GetHelpFileName(static_cast<int>(m_pRibbonButton->GetID()), m_pRibbonButton->GetText());
    return !g_helpFolder->IsEmpty() && !name.IsEmpty() && FileOp::FileExist(CString2wstring(*g_helpFolder + name));
}

CSize CToolTipCtrlEx::GetIconSize() {
    if (m_pRibbonButton) {
        return CMFCToolTipCtrl::GetIconSize();
    }
    const CMFCToolBarImages* const images = CMFCToolBar::GetImages();
    return m_pHotButton && m_pHotButton->GetImage() >= 0 && images ? CSize(images->GetImageSize(TRUE)) : CSize(0, 0);
}

void CToolTipCtrlEx::SetDescription(const CString description) {
    m_description = description;
    CMFCToolTipCtrl::SetDescription(description);
}

void CToolTipCtrlEx::OnShow(NMHDR* notification, LRESULT* result) {
    m_place.SetRectEmpty();
    {
        // It takes the look of the present manager and its label.
        const fx::ScopedChange appearing(m_isAppearing, true);
        CMFCToolTipCtrl::OnShow(notification, result);
    }
    *result = 0;
    if (GetParams().m_bBalloonTooltip) {
        return;
    }
    m_hasHelp = m_description.IsEmpty() || !m_pRibbonButton || HelpFileExists();
    m_iconSize = GetParams().m_bDrawIcon ? GetIconSize() : CSize(0, 0);
    const auto corners = GetParams().m_bRoundedCorners ? hint::Corners::Rounded : hint::Corners::Square;
    const auto help = HasHint() ? hint::Help::With : hint::Help::Without;
    const auto icon = hint::KindOfIcon(static_cast<int>(m_iconSize.cx), afxGlobalData.GetRibbonImageScale());
    const hint::Margins margins = hint::MarginsOf(corners, help, icon);
    m_margin = CPoint(ScaledForDisplay(margins.x), ScaledForDisplay(margins.y));

    CClientDC dc(this);
    const CRect nowhere(0, 0, 0, 0);
    m_labelSize = OnDrawLabel(&dc, nowhere, TRUE);
    m_descriptionSize = OnDrawDescription(&dc, nowhere, TRUE);
    Place(fx::ToSize(GetLayout().window), *result);
}

hint::Layout CToolTipCtrlEx::GetLayout() const {
    const hint::Content content = {fx::FromSize(m_iconSize), fx::FromSize(m_labelSize), fx::FromSize(m_descriptionSize),
                                   HasHint() ? hint::Help::With : hint::Help::Without};
    const fx::Point margin = fx::FromPoint(m_margin);
    return hint::Arrange(content, {margin.x, margin.y});
}

void CToolTipCtrlEx::Place(CSize size, LRESULT& result) {
    const TooltipScreen& screen = TooltipScreen::Get();
    hint::Request request;
    if (m_ptLocation != g_nowhere) {
        request.wanted = fx::FromPoint(m_ptLocation);
    }
    request.pointer = fx::FromPoint(screen.Pointer());
    request.pointerHeight = screen.PointerHeight();
    request.size = fx::FromSize(size);
    request.workArea = fx::FromRect(screen.WorkAreaAt(fx::ToPoint(hint::PointOf(request))));
    request.ribbon = BarOf(m_pRibbonButton);
    const hint::Place place = hint::PlaceOnScreen(request);
    m_isPlaced = place.isPlaced;
    // The system may size the window once more: it is held to this.
    m_place = CRect(fx::ToPoint(place.corner), size);
    const UINT stays = place.isPlaced ? 0 : SWP_NOMOVE;
    SetWindowPos(nullptr, place.corner.x, place.corner.y, size.cx, size.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED | stays);
    // The window owns its region from here.
    const int corner = ScaledForDisplay(kCorner);
    SetWindowRgn(GetParams().m_bRoundedCorners ? ::CreateRoundRectRgn(0, 0, size.cx + 1, size.cy + 1, corner, corner)
                                               : nullptr,
                 FALSE);
    result = place.isPlaced ? 1 : 0;
}

// The platform's tooltip would hold the window to its own measures.
void CToolTipCtrlEx::OnWindowPosChanging(WINDOWPOS* place) {
    if (m_isAppearing) {
        place->flags |= SWP_NOMOVE | SWP_NOSIZE;
    }
    if (!m_place.IsRectEmpty()) {
        if ((place->flags & SWP_NOSIZE) == 0) {
            place->cx = m_place.Width();
            place->cy = m_place.Height();
        }
        if ((place->flags & SWP_NOMOVE) == 0 && m_isPlaced) {
            place->x = m_place.left;
            place->y = m_place.top;
        }
    }
    CToolTipCtrl::OnWindowPosChanging(place);
}

void CToolTipCtrlEx::OnPop(NMHDR* /*notification*/, LRESULT* result) {
    m_place.SetRectEmpty();
    *result = 0;
}
