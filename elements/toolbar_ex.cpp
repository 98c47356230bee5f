#include "toolbar_ex.h"

#include "skin_visual_managers.h"

#include <optional>

IMPLEMENT_DYNCREATE(CMFCToolBarEx, CMFCToolBar)

namespace {

CQKVisualManagerOffice2007Black* CurrentSkin() {
    return DYNAMIC_DOWNCAST(CQKVisualManagerOffice2007Black, CMFCVisualManager::GetInstance());
}

/// The skin's colours of flat toolbars, for as long as it lives. Painting may exchange the manager, and may paint
/// another toolbar: what was before is therefore kept here and not with the skin, which has one place for it.
class FlatToolBarColors {
public:
    FlatToolBarColors() {
        if (auto* const skin = CurrentSkin()) {
            m_colors = skin->GetToolBarColors();
            skin->BeginDrawFlatToolBar();
        }
    }
    FlatToolBarColors(const FlatToolBarColors&) = delete;
    FlatToolBarColors& operator=(const FlatToolBarColors&) = delete;
    ~FlatToolBarColors() {
        auto* const skin = m_colors ? CurrentSkin() : nullptr;
        if (skin) {
            skin->SetToolBarColors(*m_colors);
        }
    }

private:
    std::optional<CQKVisualManagerOffice2007Black::ToolBarColors> m_colors; ///< none: it has not begun
};

} // namespace

CMFCToolBarEx::CMFCToolBarEx() = default;

CMFCToolBarEx::~CMFCToolBarEx() = default;

void CMFCToolBarEx::DoPaint(CDC* dc) {
    const FlatToolBarColors colors;
    CMFCToolBar::DoPaint(dc);
}

void CMFCToolBarEx::OnChangeVisualManager() {
    CMFCToolBar::OnChangeVisualManager();
    if (m_hWnd) {
        SetWindowRgn(nullptr, TRUE);
    }
}
