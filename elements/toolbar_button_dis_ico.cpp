#include "toolbar_ex.h"

#include <afxvisualmanager.h>

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

/// The icon where the image would stand, in the disabled style of images.
void DrawDisabledIcon(CDC* dc, HICON icon, const CRect& place) {
    CMFCToolBarImages images;
    images.SetImageSize(place.Size());
    CAfxDrawState state;
    const int index = images.AddIcon(icon, TRUE);
    if (index < 0 || !images.PrepareDrawImage(state, place.Size())) {
        return;
    }
    constexpr BYTE kOpaque = 255;
    images.Draw(dc, place.left, place.top, index, FALSE, TRUE, TRUE, TRUE, FALSE, kOpaque);
    images.EndDrawImage(state);
}

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
    if (!icon) {
        CMFCToolBarButton::OnDraw(dc, rect, images, horizontal, customizeMode, highlighted, drawBorder,
                                  grayDisabledButtons);
        return;
    }
    // The base class's steps with another image; a disabled button is never hot.
    FillInterior(dc, rect, FALSE);
    Content content = PlaceContent(rect, images->GetImageSize(TRUE), horizontal);
    if ((m_nStyle & TBBS_PRESSED) && CMFCVisualManager::GetInstance()->IsOffsetPressedButton()) {
        content.image.OffsetRect(1, 1);
        content.text.OffsetRect(1, 1);
    }
    DrawDisabledIcon(dc, icon, content.image);
    DrawButtonText(dc, content.text, FALSE);
    if (drawBorder && HaveHotBorder()) {
        DrawButtonBorder(dc, rect, FALSE);
    }
}
