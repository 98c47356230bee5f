#include "toolbar_ex.h"

#include "skin_visual_managers.h"

IMPLEMENT_DYNCREATE(CMFCToolBarEx, CMFCToolBar)

namespace {

CQKVisualManagerOffice2007Black* CurrentSkin() {
    return DYNAMIC_DOWNCAST(CQKVisualManagerOffice2007Black, CMFCVisualManager::GetInstance());
}

/// The skins' own colours of toolbars. Never made: it only opens what is protected.
struct OpenSkin : CQKVisualManagerOffice2007Black {
    static COLORREF& Light(CQKVisualManagerOffice2007Black& skin) {
        return skin.*(&OpenSkin::m_clrToolBarGradientLight);
    }
    static COLORREF& Dark(CQKVisualManagerOffice2007Black& skin) { return skin.*(&OpenSkin::m_clrToolBarGradientDark); }
};

/// The skin's colours of flat toolbars, for as long as it lives. Painting may exchange the manager, and may paint
/// another toolbar: what was before is therefore kept here and not with the skin, which has one place for it.
class FlatToolBarColors {
public:
    FlatToolBarColors() {
        if (auto* const skin = CurrentSkin()) {
            m_light = OpenSkin::Light(*skin);
            m_dark = OpenSkin::Dark(*skin);
            m_began = true;
            skin->BeginDrawFlatToolBar();
        }
    }
    FlatToolBarColors(const FlatToolBarColors&) = delete;
    FlatToolBarColors& operator=(const FlatToolBarColors&) = delete;
    ~FlatToolBarColors() {
        auto* const skin = m_began ? CurrentSkin() : nullptr;
        if (skin) {
            OpenSkin::Light(*skin) = m_light;
            OpenSkin::Dark(*skin) = m_dark;
        }
    }

private:
    bool m_began = false;
    COLORREF m_light = 0;
    COLORREF m_dark = 0;
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
