// The application menu.
#include "afxRibbonMainPanel.h"

#include <algorithm>
#include <vector>

#include "afxadv.h"
#include "afxres.h"
#include "afxRibbonEdit.h"
#include "afxRibbonLabel.h"
#include "afxvisualmanager.h"
#include "ribbon/bar_parts.h"
#include "ribbon/element_metrics.h"
#include "ribbon/main_panel_geometry.h"
#include "ribbon/menu_geometry.h"
#include "ribbon/shown_text.h"

struct RibbonMainPanelParts {
    enum class Place { Left, Right, Bottom };
    std::vector<const CMFCRibbonBaseElement*> right;
    std::vector<const CMFCRibbonBaseElement*> bottom;
    int rightWidth = 0; // at 96 DPI
    bool smallRows = false;
    ribbon::MainPanelContent content; // as last measured
    ribbon::MainPanelPlaces places;

    // An element, or another in the memory of one that is gone, is added anew.
    void Forget(const CMFCRibbonBaseElement* element) {
        std::erase(right, element);
        std::erase(bottom, element);
    }
    Place PlaceOf(const CMFCRibbonBaseElement* element) const {
        if (std::find(right.begin(), right.end(), element) != right.end()) {
            return Place::Right;
        }
        return std::find(bottom.begin(), bottom.end(), element) != bottom.end() ? Place::Bottom : Place::Left;
    }
};

// ---- button of the bottom row

IMPLEMENT_DYNCREATE(CMFCRibbonMainPanelButton, CMFCRibbonButton)

CMFCRibbonMainPanelButton::CMFCRibbonMainPanelButton() = default;

CMFCRibbonMainPanelButton::CMFCRibbonMainPanelButton(UINT uiCmdID, LPCTSTR lpszText, int nSmallImageIndex)
    : CMFCRibbonButton(uiCmdID, lpszText, nSmallImageIndex) {}

COLORREF CMFCRibbonMainPanelButton::OnFillBackground(CDC* pDC) {
    return CMFCVisualManager::GetInstance()->OnFillRibbonMainPanelButton(pDC, this);
}

void CMFCRibbonMainPanelButton::OnDrawBorder(CDC* pDC) {
    CMFCVisualManager::GetInstance()->OnDrawRibbonMainPanelButtonBorder(pDC, this);
}

namespace {

/// A recent file: in the application menu only.
class RecentFileButton : public CMFCRibbonButton {
public:
    explicit RecentFileButton(UINT id) : CMFCRibbonButton(id, L"") {}
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
};

} // namespace

// ---- panel

IMPLEMENT_DYNCREATE(CMFCRibbonMainPanel, CMFCRibbonPanel)

CMFCRibbonMainPanel::CMFCRibbonMainPanel() : m_parts(std::make_unique<RibbonMainPanelParts>()) { m_bMenuMode = TRUE; }

CMFCRibbonMainPanel::~CMFCRibbonMainPanel() = default;

void CMFCRibbonMainPanel::Add(CMFCRibbonBaseElement* pElem) {
    m_parts->Forget(pElem);
    CMFCRibbonPanel::Add(pElem);
}

void CMFCRibbonMainPanel::AddToRight(CMFCRibbonBaseElement* pElem, int nWidth) {
    if (pElem == nullptr) {
        return;
    }
    m_parts->Forget(pElem);
    m_parts->right.push_back(pElem);
    m_parts->rightWidth = std::max(m_parts->rightWidth, nWidth);
    CMFCRibbonPanel::Add(pElem);
}

void CMFCRibbonMainPanel::AddRecentFilesList(LPCTSTR lpszLabel, int nWidth) {
    AddToRight(new CMFCRibbonLabel(lpszLabel), nWidth);
    for (UINT id = ID_FILE_MRU_FIRST; id <= ID_FILE_MRU_LAST; ++id) {
        auto row = std::make_unique<RecentFileButton>(id);
        row->SetVisible(FALSE);
        AddToRight(row.release(), nWidth);
    }
}

void CMFCRibbonMainPanel::UpdateRecentFiles() {
    CRecentFileList* files = AfxGetApp() != nullptr ? AfxGetApp()->GetRecentFileList() : nullptr;
    for (int position = 0; position < GetCount(); ++position) {
        auto* row = dynamic_cast<RecentFileButton*>(GetElement(position));
        if (row == nullptr) {
            continue;
        }
        const int index = static_cast<int>(row->GetID() - ID_FILE_MRU_FIRST);
        CString name;
        const BOOL isThere = files != nullptr && files->GetDisplayName(name, index, nullptr, 0);
        row->SetVisible(isThere);
        if (isThere) {
            CString text;
            text.Format(L"%d %s", index + 1, static_cast<LPCTSTR>(ribbon::MarkedText(name)));
            row->SetText(text);
            row->SetToolTipText((*files)[index]);
            text.Format(L"%d", (index + 1) % 10);
            const LPCTSTR keys = index < 10 ? static_cast<LPCTSTR>(text) : nullptr;
            row->SetKeys(keys, keys); // by a key tip, and where none are shown
        }
    }
}

void CMFCRibbonMainPanel::AddToBottom(CMFCRibbonMainPanelButton* pElem) {
    if (pElem == nullptr) {
        return;
    }
    m_parts->Forget(pElem);
    m_parts->bottom.push_back(pElem);
    CMFCRibbonPanel::Add(pElem);
}

CRect CMFCRibbonMainPanel::GetCommandsFrame() const {
    return m_pParentMenuBar != nullptr ? fx::ToRect(m_parts->places.frame) : CRect(0, 0, 0, 0);
}

int CMFCRibbonMainPanel::GetImageColumnWidth(const CMFCRibbonButton* pButton) const {
    const bool isLarge =
        !m_parts->smallRows && pButton != nullptr && m_parts->PlaceOf(pButton) == RibbonMainPanelParts::Place::Left;
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    return ribbon::MenuImageColumn(metrics.Scaled(isLarge ? 32 : 16), metrics);
}

BOOL CMFCRibbonMainPanel::HasLargeRow(const CMFCRibbonButton* pButton) const {
    return !m_parts->smallRows && m_parts->PlaceOf(pButton) == RibbonMainPanelParts::Place::Left &&
           pButton->GetImageSize(CMFCRibbonBaseElement::RibbonImageLarge).cx > 0;
}

// Large rows, unless the screen is too low for them; where it is too low for small ones they scroll.
CSize CMFCRibbonMainPanel::Arrange(CDC* pDC, CSize room, ribbon::MenuList& scrolling) {
    m_parts->smallRows = false;
    CSize size = ArrangeRows(pDC, 0, 0);
    if (size.cy > room.cy) {
        m_parts->smallRows = true;
        size = ArrangeRows(pDC, room.cy, scrolling.firstRow);
    }
    const ribbon::MainPanelPlaces& places = m_parts->places;
    scrolling.scrollUp = places.scrollUp;
    scrolling.scrollDown = places.scrollDown;
    scrolling.firstRow = places.firstRow;
    scrolling.canScrollUp = places.canScrollUp;
    scrolling.canScrollDown = places.canScrollDown;
    return size;
}

int CMFCRibbonMainPanel::FirstRowThatShows(const CMFCRibbonBaseElement* pElement, int nFirstRow) const {
    using Place = RibbonMainPanelParts::Place;
    const Place place = m_parts->PlaceOf(pElement);
    if (place == Place::Bottom) {
        return nFirstRow;
    }
    int row = 0;
    for (int index = 0; index < GetCount() && GetElement(index) != pElement; ++index) {
        row += m_parts->PlaceOf(GetElement(index)) == place ? 1 : 0;
    }
    const auto& rows = place == Place::Right ? m_parts->content.right : m_parts->content.left;
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    const int room = ribbon::ColumnRoom(rows, m_parts->places.frame.Height(), metrics);
    return ribbon::FirstRowThatShows(rows, row, room, nFirstRow, metrics);
}

CSize CMFCRibbonMainPanel::ArrangeRows(CDC* pDC, int nMaxHeight, int nFirstRow) {
    using Place = RibbonMainPanelParts::Place;
    ribbon::MainPanelContent& content = m_parts->content;
    content = {};
    content.maxHeight = nMaxHeight;
    content.firstRow = nFirstRow;
    content.rightWidth = ribbon::CurrentMetrics().Scaled(m_parts->rightWidth);
    for (int index = 0; index < GetCount(); ++index) {
        CMFCRibbonBaseElement& element = *GetElement(index);
        const Place place = m_parts->PlaceOf(&element);
        element.SetMenuMode(place != Place::Bottom);
        element.SetCompactMode(FALSE);
        element.SetIntermediateMode(place == Place::Bottom);
        element.OnCalcTextSize(pDC);
        const CSize size = element.IsVisible() ? element.GetSize(pDC) : CSize(0, 0);
        auto& list = place == Place::Right ? content.right : place == Place::Bottom ? content.bottom : content.left;
        list.push_back(fx::FromSize(size));
    }
    m_parts->places = ribbon::PlaceMainPanel(content, ribbon::CurrentMetrics());
    const ribbon::MainPanelPlaces& places = m_parts->places;
    size_t left = 0;
    size_t right = 0;
    size_t bottom = 0;
    for (int index = 0; index < GetCount(); ++index) {
        CMFCRibbonBaseElement& element = *GetElement(index);
        const Place place = m_parts->PlaceOf(&element);
        CRect rect = fx::ToRect(place == Place::Right    ? places.right[right++]
                                : place == Place::Bottom ? places.bottom[bottom++]
                                                         : places.left[left++]);
        if (rect.IsRectEmpty()) {
            rect = CRect(0, 0, 0, 0);
        }
        element.SetRect(rect);
        element.OnAfterChangeRect(pDC);
        element.OnShow(!rect.IsRectEmpty());
    }
    return fx::ToSize(places.size);
}

void CMFCRibbonMainPanel::DrawBackground(CDC* pDC, CRect rect) {
    CMFCVisualManager* manager = CMFCVisualManager::GetInstance();
    manager->OnDrawRibbonMainPanelFrame(pDC, this, rect);
    manager->OnFillRibbonMenuFrame(pDC, this, fx::ToRect(m_parts->places.frame));
    if (!m_parts->places.rightFrame.IsEmpty()) {
        manager->OnDrawRibbonRecentFilesFrame(pDC, this, fx::ToRect(m_parts->places.rightFrame));
    }
}
