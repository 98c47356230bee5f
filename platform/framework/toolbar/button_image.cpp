#include "toolbar/button_image.h"

#include "afxToolBarsCustomizeDialog.h"
#include "fx/window_guard.h"
#include "visual/image_source.h"

#include <algorithm>
#include <memory>

namespace toolbar {

namespace {

constexpr int kAlphaBits = 32;

/// The image as a bitmap of its own, with alpha; null when memory is out.
std::unique_ptr<CBitmap> PictureOf(const CMFCToolBarImages& images, int index) {
    CMFCToolBarImages single;
    single.SetImageSize(images.GetImageSize());
    single.AddImage(images, index);
    const HBITMAP copy = visual::CopyBitmap32(single.GetImageWell());
    if (copy == nullptr) {
        return nullptr;
    }
    auto picture = std::make_unique<CBitmap>();
    picture->Attach(copy);
    if (images.GetBitsPerPixel() != kAlphaBits) {
        const visual::PixelView view = visual::ViewOf(copy);
        const std::size_t count = static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height);
        std::for_each(view.bits, view.bits + count, [clear = images.GetTransparentColor()](std::uint32_t& pixel) {
            pixel = visual::ToColorRef(pixel) == clear ? 0 : pixel | visual::MakeArgb(255, 0, 0, 0);
        });
    }
    return picture;
}

} // namespace

bool MayEditImage(const CMFCToolBarButton& button, const CMFCToolBarImages* images) {
    const CMFCToolBarImages* const users = CMFCToolBar::GetUserImages();
    const bool hasEditor = CMFCToolBarsCustomizeDialog::Current() != nullptr;
    return hasEditor && images != nullptr && users != nullptr && users->IsUserImagesList() && !users->IsReadOnly() &&
           !button.IsLocked() && CSize(users->GetImageSize()) == CSize(images->GetImageSize());
}

void EditImage(CMFCToolBar& bar, CMFCToolBarButton& button, const CMFCToolBarImages& images) {
    CMFCToolBarsCustomizeDialog* const dialog = CMFCToolBarsCustomizeDialog::Current();
    const std::unique_ptr<CBitmap> picture = PictureOf(images, button.GetImage());
    const fx::WindowGuard guard(&bar);
    if (dialog == nullptr || !picture || !dialog->OnEditToolbarMenuImage(dialog, *picture, kAlphaBits)) {
        return;
    }
    CMFCToolBarImages* const users = CMFCToolBar::GetUserImages();
    if (guard.IsGone() || bar.ButtonToIndex(&button) < 0 || users == nullptr) {
        return; // the program has taken it away meanwhile
    }
    const auto bitmap = static_cast<HBITMAP>(picture->GetSafeHandle());
    const bool isUsers = button.m_bUserButton != FALSE;
    const int index = isUsers ? button.GetImage() : users->AddImage(bitmap);
    if (index < 0 || (isUsers && !users->UpdateImage(index, bitmap))) {
        return;
    }
    button.m_bUserButton = TRUE;
    button.SetImage(index);
    users->Save(); // where it cannot be written, the image lasts as long as the program
}

} // namespace toolbar
