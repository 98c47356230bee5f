#include "toolbar_ex.h"

#include <map>
#include <memory>

IMPLEMENT_SERIAL(CMFCToolBarButtonDisIco, CMFCToolBarButton, VERSIONABLE_SCHEMA | 1)

namespace {

struct DestroysIcon {
    using pointer = HICON;
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};
using OwnedIcon = std::unique_ptr<HICON, DestroysIcon>;

std::map<UINT, OwnedIcon>& DisabledIcons() {
    static std::map<UINT, OwnedIcon> s_icons;
    return s_icons;
}

/// A button that looks like another one, with the first image of any list as its own. Without a command id: setting the
/// image of a button is setting that of its command.
class Look : public CMFCToolBarButton {
public:
    explicit Look(const CMFCToolBarButton& button) : CMFCToolBarButton(0, -1) {
        CopyFrom(button);
        OnChangeParentWnd(button.GetParentWnd());
        m_nID = 0;
        SetImage(0);
        // As all images of icons: in the disabled style, and not for want of another image.
        m_nStyle |= TBBS_INDETERMINATE;
    }
};

} // namespace

CMFCToolBarButtonDisIco::CMFCToolBarButtonDisIco() : CMFCToolBarButton(0, -1) {}

CMFCToolBarButtonDisIco::CMFCToolBarButtonDisIco(UINT id, int image, LPCTSTR text, BOOL userButton, BOOL locked)
    : CMFCToolBarButton(id, image, text, userButton, locked) {}

CMFCToolBarButtonDisIco::~CMFCToolBarButtonDisIco() = default;

void CMFCToolBarButtonDisIco::SetDisabledIcon(UINT id, HICON icon) {
    if (icon == GetDisabledIcon(id)) {
        return;
    }
    if (icon) {
        DisabledIcons()[id].reset(icon);
    } else {
        DisabledIcons().erase(id);
    }
}

HICON CMFCToolBarButtonDisIco::GetDisabledIcon(UINT id) {
    const auto found = DisabledIcons().find(id);
    return found == DisabledIcons().end() ? nullptr : found->second.get();
}

void CMFCToolBarButtonDisIco::OnDraw(CDC* dc, const CRect& rect, CMFCToolBarImages* images, BOOL horizontal,
                                     BOOL customizeMode, BOOL highlighted, BOOL drawBorder, BOOL grayDisabledButtons) {
    const HICON icon = (m_nStyle & TBBS_DISABLED) != 0 && images && IsDrawImage() ? GetDisabledIcon(m_nID) : nullptr;
    if (icon) {
        CMFCToolBarImages disabled;
        disabled.SetImageSize(images->GetImageSize(TRUE));
        CAfxDrawState state;
        if (disabled.AddIcon(icon, TRUE) >= 0 && disabled.PrepareDrawImage(state, disabled.GetImageSize())) {
            Look look(*this);
            look.OnCalculateSize(dc, rect.Size(), horizontal); // measures the text
            look.OnDraw(dc, rect, &disabled, horizontal, customizeMode, FALSE, drawBorder, TRUE);
            disabled.EndDrawImage(state);
            return;
        }
    }
    CMFCToolBarButton::OnDraw(dc, rect, images, horizontal, customizeMode, highlighted, drawBorder,
                              grayDisabledButtons);
}
