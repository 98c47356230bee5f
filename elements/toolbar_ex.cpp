#include "toolbar_ex.h"

#include "skin_visual_managers.h"

IMPLEMENT_DYNCREATE(CMFCToolBarEx, CMFCToolBar)

namespace {

CQKVisualManagerOffice2007Black* CurrentSkin() {
    return DYNAMIC_DOWNCAST(CQKVisualManagerOffice2007Black, CMFCVisualManager::GetInstance());
}

/// The skin's colours of flat toolbars, for as long as it lives. Painting may exchange the manager.
class FlatToolBarColors {
public:
    FlatToolBarColors() {
        if (auto* const skin = CurrentSkin()) {
            skin->BeginDrawFlatToolBar();
            m_began = true;
        }
    }
    FlatToolBarColors(const FlatToolBarColors&) = delete;
    FlatToolBarColors& operator=(const FlatToolBarColors&) = delete;
    ~FlatToolBarColors() {
        auto* const skin = m_began ? CurrentSkin() : nullptr;
        if (skin) {
            skin->EndDrawFlatToolBar();
        }
    }

private:
    bool m_began = false;
};

} // namespace

CMFCToolBarEx::CMFCToolBarEx() = default;

CMFCToolBarEx::~CMFCToolBarEx() = default;

void CMFCToolBarEx::DoPaint(CDC* dc) {
    const FlatToolBarColors colors;
    CMFCToolBar::DoPaint(dc);
}

void CMFCToolBarEx::OnChangeVisualManager() {
    m_bRoundShape = FALSE;
    if (m_hWnd) {
        SetWindowRgn(nullptr, TRUE);
        AdjustDockedLayout();
    }
    UpdateImagesColor();
}
