#include "ribbon_icon_button.h"

#include "commands/shared_texts.h"
#include "elements/icon_file.h"

#include <afxglobals.h>
#include <afxribboncategory.h>
#include <afxtoolbarimages.h>
#include <fx/dc_scope.h>
#include <fx/geometry.h>
#include <fx/scoped_change.h>
#include <varnhold/language.h>

#include <algorithm>
#include <string_view>

IMPLEMENT_DYNCREATE(CMFCRibbonUNIcoButton, CMFCRibbonButton)

CString CMFCRibbonUNIcoButton::s_skinStyle;

namespace {

constexpr int largeSide = 32;
constexpr int smallSide = 16;

/// The image size that a type stands for, in pixels at 96 DPI.
CSize UnscaledSize(CMFCRibbonBaseElement::RibbonImageType type) {
    const int side = type == CMFCRibbonBaseElement::RibbonImageLarge ? largeSide : smallSide;
    return CSize(side, side);
}

CSize ScaledSize(CMFCRibbonBaseElement::RibbonImageType type) {
    const CSize size = UnscaledSize(type);
    const double scale = afxGlobalData.GetRibbonImageScale();
    if (scale == 1.0) {
        return size;
    }
    return CSize(fx::Scaled(size.cx, scale), fx::Scaled(size.cy, scale));
}

/// Lends an element another place for a block.
class PlaceOf {
public:
    PlaceOf(CMFCRibbonBaseElement& element, const CRect& place) : m_element(element), m_before(element.GetRect()) {
        element.SetRect(place);
    }
    ~PlaceOf() { m_element.SetRect(m_before); }
    PlaceOf(const PlaceOf&) = delete;
    PlaceOf& operator=(const PlaceOf&) = delete;

private:
    CMFCRibbonBaseElement& m_element;
    CRect m_before;
};

CString AlternateOf(const CString& path) {
    static SharedTexts s_alternates;
    const std::wstring_view text(path.GetString(), static_cast<std::size_t>(path.GetLength()));
    return s_alternates.Get(text, 0, [&path] {
        CString alternate = path;
        alternate.Replace(L"modle", L"modle_0");
        return alternate;
    });
}

/// The chosen file, unless the primary path leaves the installation: its alternate would too, and no longer show it
/// where "modle" is a part of the installation directory.
FileIcon ChosenIcon(const CString& primaryPath, const CString& chosenPath, int usualSide, int drawnSide) {
    const bool isLeaving = primaryPath != chosenPath && LeavesInstallation(primaryPath);
    return isLeaving ? FileIcon() : FileIcon(chosenPath, usualSide, drawnSide);
}

} // namespace

CMFCRibbonUNIcoButton::CMFCRibbonUNIcoButton(UINT id, LPCTSTR text, int smallImageIndex, int largeImageIndex,
                                             BOOL alwaysShowDescription)
    : CMFCRibbonButton(id, text, smallImageIndex, largeImageIndex, alwaysShowDescription) {}

CMFCRibbonUNIcoButton::CMFCRibbonUNIcoButton(UINT id, LPCTSTR text, HICON largeIcon, BOOL alwaysShowDescription,
                                             HICON smallIcon, BOOL autoDestroyIcon, BOOL alphaBlendIcon)
    : CMFCRibbonButton(id, text, largeIcon, alwaysShowDescription, smallIcon, autoDestroyIcon, alphaBlendIcon),
      m_destroysIcons(autoDestroyIcon),
      m_blendsIcons(alphaBlendIcon) {}

CMFCRibbonUNIcoButton::CMFCRibbonUNIcoButton(UINT id, LPCTSTR text, const CString& largeIconPath,
                                             BOOL alwaysShowDescription, const CString& smallIconPath,
                                             BOOL autoDestroyIcon, BOOL alphaBlendIcon, BOOL keepLargePath)
    : CMFCRibbonButton(id, text, static_cast<HICON>(nullptr), alwaysShowDescription, nullptr, autoDestroyIcon,
                       alphaBlendIcon),
      m_largeIconPath(largeIconPath),
      m_smallIconPath(smallIconPath),
      m_largeAlternatePath(keepLargePath ? largeIconPath : AlternateOf(largeIconPath)),
      m_smallAlternatePath(AlternateOf(smallIconPath)),
      m_destroysIcons(autoDestroyIcon),
      m_blendsIcons(alphaBlendIcon) {
    TryIconFile(m_largeIconPath, largeSide);
    TryIconFile(m_smallIconPath, smallSide);
}

void CMFCRibbonUNIcoButton::SetSkinStyle(CString style) { s_skinStyle = style; }

CMFCRibbonUNIcoButton* CMFCRibbonUNIcoButton::GetIconButtonOriginal() const {
    return DYNAMIC_DOWNCAST(CMFCRibbonUNIcoButton, GetOriginal());
}

CSize CMFCRibbonUNIcoButton::GetImageSize(RibbonImageType type) const {
    if (const CMFCRibbonUNIcoButton* original = GetIconButtonOriginal()) {
        return original->GetImageSize(type);
    }
    if (m_largeIconPath.IsEmpty()) {
        return CMFCRibbonButton::GetImageSize(type);
    }
    return ScaledSize(type);
}

void CMFCRibbonUNIcoButton::DrawImage(CDC* dc, RibbonImageType type, CRect rect) {
    if (CMFCRibbonUNIcoButton* original = GetIconButtonOriginal()) {
        DrawThroughOriginal(*original, dc, type, rect);
    } else if (!m_largeIconPath.IsEmpty() && !m_largeAlternatePath.IsEmpty()) {
        DrawIconFiles(dc, type, rect);
    }
}

void CMFCRibbonUNIcoButton::DrawThroughOriginal(CMFCRibbonUNIcoButton& original, CDC* dc, RibbonImageType type,
                                                CRect rect) {
    const fx::ScopedChange<const CMFCRibbonUNIcoButton*> state(original.m_drawnFor, this);
    const PlaceOf place(original, GetRect());
    original.DrawImage(dc, type, rect);
}

void CMFCRibbonUNIcoButton::DrawIconFiles(CDC* dc, RibbonImageType type, CRect rect) {
    const bool alternate = s_skinStyle == L"0";
    const CSize unscaled = UnscaledSize(type);
    const CSize scaled = ScaledSize(type);
    const auto drawnSide = [&](bool isDrawn, int usualSide) {
        return isDrawn && scaled != unscaled ? static_cast<int>(scaled.cx) : usualSide;
    };
    // The large file stands in for a small one that is missing.
    const FileIcon large = ChosenIcon(m_largeIconPath, alternate ? m_largeAlternatePath : m_largeIconPath, largeSide,
                                      drawnSide(true, largeSide));
    const FileIcon small = ChosenIcon(m_smallIconPath, alternate ? m_smallAlternatePath : m_smallIconPath, smallSide,
                                      drawnSide(type == RibbonImageSmall, smallSide));
    const HICON largeIcon = large.Get() ? large.Get() : GetIcon(TRUE);
    if (!largeIcon) {
        DrawFromImageIndex(dc, type, rect);
        return;
    }
    const HICON ownSmallIcon = GetIcon(FALSE) != GetIcon(TRUE) ? GetIcon(FALSE) : nullptr;
    const HICON smallIcon = small.Get() ? small.Get() : ownSmallIcon;
    const HICON icon = type == RibbonImageSmall && smallIcon ? smallIcon : largeIcon;
    if (!IsDisabled()) {
        DrawEnabledIcon(dc, icon, scaled, rect.TopLeft());
        return;
    }
    // In the pixels that were loaded: enlarged before it is drawn, it would be blurred.
    const FileIcon* const file = icon == large.Get() ? &large : icon == small.Get() ? &small : nullptr;
    const int side = std::clamp<int>(file ? file->GetSide() : 0, unscaled.cx, std::max(unscaled.cx, scaled.cx));
    if (file) {
        DrawDisabledIcon(dc, file->GetList(side, m_blendsIcons), scaled, rect.TopLeft());
        return;
    }
    CMFCToolBarImages own;
    own.SetImageSize(CSize(side, side));
    own.AddIcon(icon, m_blendsIcons);
    DrawDisabledIcon(dc, &own, scaled, rect.TopLeft());
}

// The platform's button would prefer a small icon of its own.
void CMFCRibbonUNIcoButton::DrawFromImageIndex(CDC* dc, RibbonImageType type, CRect rect) {
    if (!GetIcon(FALSE)) {
        CMFCRibbonButton::DrawImage(dc, type, rect);
        return;
    }
    const BOOL isLarge = type == RibbonImageLarge;
    CMFCRibbonCategory* const category = GetParentCategory();
    if (const int index = GetImageIndex(isLarge); category && index >= 0) {
        category->OnDrawImage(dc, rect, this, isLarge, index, TRUE);
    }
}

void CMFCRibbonUNIcoButton::DrawDisabledIcon(CDC* dc, CMFCToolBarImages* list, CSize scaled, CPoint corner) {
    CAfxDrawState state;
    if (!list || !list->PrepareDrawImage(state, scaled)) {
        return;
    }
    constexpr BOOL isHilite = FALSE;
    constexpr BOOL isDisabled = TRUE;
    list->Draw(dc, corner.x, corner.y, 0, isHilite, isDisabled, FALSE, FALSE, FALSE, 255);
    list->EndDrawImage(state);
}

void CMFCRibbonUNIcoButton::DrawEnabledIcon(CDC* dc, HICON icon, CSize scaled, CPoint corner) const {
    const CWnd* const parent = GetParentWnd();
    const bool isRightToLeft = parent && (parent->GetExStyle() & WS_EX_LAYOUTRTL);
    const fx::PictureScope place(*dc, CRect(corner, scaled));
    ::DrawIconEx(dc->GetSafeHdc(), place.Corner().x, place.Corner().y, icon, scaled.cx, scaled.cy, 0, nullptr,
                 DI_NORMAL | (isRightToLeft ? DI_NOMIRROR : 0));
}

BOOL CMFCRibbonUNIcoButton::IsDisabled() const {
    return m_drawnFor ? m_drawnFor->IsDisabled() : CMFCRibbonButton::IsDisabled();
}

// The platform's button measures and draws the shown text.
void CMFCRibbonUNIcoButton::OnDraw(CDC* dc) { CMFCRibbonButton::OnDraw(dc); }

void CMFCRibbonUNIcoButton::OnAfterChangeRect(CDC* dc) { CMFCRibbonButton::OnAfterChangeRect(dc); }

CString CMFCRibbonUNIcoButton::GetShownText() const {
    return CMultiLanguageMgr::translation(GetText(), "Common", -1).c_str();
}

void CMFCRibbonUNIcoButton::CopyFrom(const CMFCRibbonBaseElement& src) {
    const auto* const source = DYNAMIC_DOWNCAST(CMFCRibbonUNIcoButton, &src);
    if (source && !m_destroysIcons) {
        m_largeIconPath = source->m_largeIconPath;
        m_smallIconPath = source->m_smallIconPath;
    }
    if (source) {
        m_destroysIcons = source->m_destroysIcons;
        m_blendsIcons = source->m_blendsIcons;
    }
    CMFCRibbonButton::CopyFrom(src);
}

IMPLEMENT_DYNCREATE(CMFCRibbonSmallButton, CMFCRibbonUNIcoButton)

CMFCRibbonSmallButton::CMFCRibbonSmallButton(UINT id, LPCTSTR text, int smallImageIndex, int largeImageIndex,
                                             BOOL alwaysShowDescription)
    : CMFCRibbonUNIcoButton(id, text, smallImageIndex, largeImageIndex, alwaysShowDescription) {}

CMFCRibbonSmallButton::CMFCRibbonSmallButton(UINT id, LPCTSTR text, HICON largeIcon, BOOL alwaysShowDescription,
                                             HICON smallIcon, BOOL autoDestroyIcon, BOOL alphaBlendIcon)
    : CMFCRibbonUNIcoButton(id, text, largeIcon, alwaysShowDescription, smallIcon, autoDestroyIcon, alphaBlendIcon) {}

CMFCRibbonSmallButton::CMFCRibbonSmallButton(UINT id, LPCTSTR text, const CString& largeIconPath,
                                             BOOL alwaysShowDescription, const CString& smallIconPath,
                                             BOOL autoDestroyIcon, BOOL alphaBlendIcon)
    : CMFCRibbonUNIcoButton(id, text, largeIconPath, alwaysShowDescription, smallIconPath, autoDestroyIcon,
                            alphaBlendIcon, FALSE) {}

BOOL CMFCRibbonSmallButton::HasLargeMode() const {
    if (m_smallMode) {
        return FALSE;
    }
    const CSize size = GetImageSize(RibbonImageLarge);
    return size.cx != 0 || size.cy != 0;
}

void CMFCRibbonSmallButton::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonUNIcoButton::CopyFrom(src);
    if (const auto* const source = DYNAMIC_DOWNCAST(CMFCRibbonSmallButton, &src)) {
        m_smallMode = source->m_smallMode;
    }
}
