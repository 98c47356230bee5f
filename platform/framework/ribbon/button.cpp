#include <afxribbonbutton.h>

#include <afxribbonbuttonsgroup.h>
#include <afxribboncategory.h>

#include "ribbon/button_face.h"
#include "ribbon/element_metrics.h"
#include "ribbon/menu_geometry.h"
#include "ribbon/shown_text.h"

IMPLEMENT_DYNCREATE(CMFCRibbonButton, CMFCRibbonBaseElement)

namespace {

std::wstring_view View(const CString& text) {
    return {static_cast<LPCTSTR>(text), static_cast<size_t>(text.GetLength())};
}

} // namespace

CMFCRibbonButton::CMFCRibbonButton() : m_rectCommand(0, 0, 0, 0), m_rectMenu(0, 0, 0, 0) {}

CMFCRibbonButton::CMFCRibbonButton(UINT nID, LPCTSTR lpszText, int nSmallImageIndex, int nLargeImageIndex,
                                   BOOL bAlwaysShowDescription)
    : CMFCRibbonButton() {
    m_nID = nID;
    m_nSmallImageIndex = nSmallImageIndex;
    m_nLargeImageIndex = nLargeImageIndex;
    m_bIsAlwaysShowDescription = bAlwaysShowDescription;
    CMFCRibbonButton::SetText(lpszText);
}

CMFCRibbonButton::CMFCRibbonButton(UINT nID, LPCTSTR lpszText, HICON hIcon, BOOL bAlwaysShowDescription,
                                   HICON hIconSmall, BOOL bAutoDestroyIcon, BOOL bAlphaBlendIcon)
    : CMFCRibbonButton() {
    m_nID = nID;
    m_hIcon = hIcon;
    m_hIconSmall = hIconSmall;
    m_bIsAlwaysShowDescription = bAlwaysShowDescription;
    m_bAutoDestroyIcon = bAutoDestroyIcon;
    m_bAlphaBlendIcon = bAlphaBlendIcon;
    CMFCRibbonButton::SetText(lpszText);
}

CMFCRibbonButton::~CMFCRibbonButton() {
    // The pop-up gives the sub-items back while they are still there.
    CMFCRibbonBaseElement::ClosePopupMenu();
    DeleteSubItems();
    ReleaseIcons();
}

void CMFCRibbonButton::ReleaseIcons() {
    if (m_bAutoDestroyIcon) {
        if (m_hIcon != nullptr) {
            ::DestroyIcon(m_hIcon);
        }
        if (m_hIconSmall != nullptr) {
            ::DestroyIcon(m_hIconSmall);
        }
    }
    m_hIcon = nullptr;
    m_hIconSmall = nullptr;
}

// ---- menu

void CMFCRibbonButton::SetDefaultCommand(BOOL bSet) {
    if (!m_bIsDefaultCommand == !bSet) {
        return;
    }
    m_bIsDefaultCommand = bSet;
    OnMenuChanged();
    for (CMFCRibbonButton* copy : CollectFollowers()) {
        copy->SetDefaultCommand(bSet);
    }
}

// The arrow and the split take room.
void CMFCRibbonButton::OnMenuChanged() {
    CleanUpSizes();
    MarkLayoutDirty();
}

BOOL CMFCRibbonButton::HasMenu() const { return m_hMenu != nullptr || !m_arSubItems.IsEmpty(); }

BOOL CMFCRibbonButton::IsMenuOnBottom() const { return HasMenu() && ShowsLargeFace() && !m_bTextAlwaysOnRight; }

BOOL CMFCRibbonButton::IsPopupDefaultMenuLook() const { return m_bIsDefaultMenuLook; }

BOOL CMFCRibbonButton::IsMenuAreaHighlighted() const {
    return IsHighlighted() && (!IsSplit() ? HasMenu() : m_bMenuAreaHighlighted);
}

BOOL CMFCRibbonButton::IsCommandAreaHighlighted() const {
    return IsHighlighted() && (!IsSplit() ? !HasMenu() : !m_bMenuAreaHighlighted);
}

// ---- images

void CMFCRibbonButton::SetImageIndex(int nIndex, BOOL bLargeImage) {
    (bLargeImage ? m_nLargeImageIndex : m_nSmallImageIndex) = nIndex;
    CleanUpSizes();
}

HICON CMFCRibbonButton::GetIcon(BOOL bLargeIcon) const {
    return bLargeIcon || m_hIconSmall == nullptr ? m_hIcon : m_hIconSmall;
}

CSize CMFCRibbonButton::GetImageSize(RibbonImageType type) const {
    const bool isLarge = type == RibbonImageLarge;
    if (GetIcon(isLarge) != nullptr) {
        const int side = ribbon::CurrentMetrics().Scaled(isLarge ? 32 : 16);
        return {side, side};
    }
    if (GetImageIndex(isLarge) < 0) {
        return {0, 0};
    }
    if (m_pParentGroup != nullptr && m_pParentGroup->HasImages()) {
        return isLarge ? CSize(0, 0) : m_pParentGroup->GetImageSize();
    }
    if (m_pParentCategory != nullptr) {
        return m_pParentCategory->GetElementImageSize(isLarge);
    }
    const CMFCRibbonBaseElement* original = GetOriginal();
    return original != nullptr ? original->GetImageSize(type) : CSize(0, 0);
}

// ---- modes and size

BOOL CMFCRibbonButton::HasLargeMode() const {
    const CSize image = GetImageSize(RibbonImageLarge);
    return image.cx != 0 || image.cy != 0;
}

BOOL CMFCRibbonButton::HasIntermediateMode() const { return TRUE; }

BOOL CMFCRibbonButton::HasCompactMode() const {
    const CSize image = GetImageSize(RibbonImageSmall);
    return image.cx != 0 || image.cy != 0;
}

BOOL CMFCRibbonButton::CanBeStretched() { return TRUE; }

BOOL CMFCRibbonButton::IsWholeRowHeight() const { return ShowsLargeFace(); }

BOOL CMFCRibbonButton::ShowsLargeFace() const { return IsLargeMode() && !IsMenuMode() && HasLargeMode(); }

CMFCRibbonBaseElement::RibbonImageType CMFCRibbonButton::GetFaceImageType() const {
    return GetImageTypeFor(ShowsLargeFace() || IsAlwaysLargeImage());
}

// A button that has just a small image shows it even where large ones are asked for.
CMFCRibbonBaseElement::RibbonImageType CMFCRibbonButton::GetImageTypeFor(BOOL bLarge) const {
    const bool isLarge = bLarge && (GetImageSize(RibbonImageLarge).cx != 0 || GetImageSize(RibbonImageSmall).cx == 0);
    return isLarge ? RibbonImageLarge : RibbonImageSmall;
}

int CMFCRibbonButton::GetTextRowHeight() const { return ribbon::CurrentMetrics().textHeight; }

BOOL CMFCRibbonButton::IsSingleLineText() const {
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    const int limit = ribbon::LargeSingleLineWidth(metrics, fx::FromSize(GetImageSize(RibbonImageLarge)));
    const auto measure = [](std::wstring_view text) { return ribbon::MeasureText(nullptr, text).width; };
    const CString text = ribbon::PlainText(GetShownText());
    return !ribbon::BreakInTwo(View(text), measure, limit, 0).HasSecondLine(View(text));
}

void CMFCRibbonButton::CleanUpSizes() {
    m_sizeTextRight = CSize(0, 0);
    m_sizeTextBottom = CSize(0, 0);
}

void CMFCRibbonButton::OnCalcTextSize(CDC* pDC) {
    CMFCRibbonBaseElement::OnCalcTextSize(pDC);
    m_sizeTextRight = fx::ToSize(ribbon::MeasureText(pDC, View(ribbon::PlainText(GetShownText()))));
    m_sizeTextBottom = HasLargeMode() ? DrawBottomText(pDC, TRUE) : CSize(0, 0);
}

// The content for the look that the mode asks for; the text is measured as it is now, because a derived class may
// draw another text than the one that was laid out.
CMFCRibbonButton::Face CMFCRibbonButton::CollectFace(CDC* pDC) const {
    using ribbon::ButtonLook;
    Face face;
    const BOOL isLarge = ShowsLargeFace();
    face.content = CollectContent(pDC, isLarge, m_bCompactMode && HasCompactMode() && !IsMenuMode(), face.lines);
    face.parts = ribbon::PlaceButton(fx::FromRect(m_rect), face.content, ribbon::CurrentMetrics());
    return face;
}

ribbon::ButtonContent CMFCRibbonButton::CollectContent(CDC* pDC, BOOL bLarge, BOOL bImageOnly,
                                                       ribbon::TextBreak& lines) const {
    using ribbon::ButtonLook;
    using ribbon::ButtonMenu;
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    ribbon::ButtonContent content;
    content.image = fx::FromSize(GetImageSize(GetImageTypeFor(bLarge || IsAlwaysLargeImage())));
    if (HasMenu()) {
        content.menu = IsSplit() ? ButtonMenu::Split : ButtonMenu::Whole;
    }
    if (bLarge) {
        content.look = m_bTextAlwaysOnRight ? ButtonLook::LargeOnRight : ButtonLook::Large;
    } else {
        content.look = bImageOnly ? ButtonLook::ImageOnly : ButtonLook::Small;
    }

    const CString plain = ribbon::PlainText(GetShownText());
    const std::wstring_view text = View(plain);
    content.rightText = ribbon::MeasureText(pDC, text);
    if (content.look != ButtonLook::Large) {
        return content;
    }

    const int arrow = HasMenu() ? ribbon::BottomArrowWidth(metrics) : 0;
    const auto measure = [pDC](std::wstring_view part) { return ribbon::MeasureText(pDC, part).width; };
    lines = ribbon::BreakInTwo(text, measure, ribbon::LargeSingleLineWidth(metrics, content.image), arrow);
    content.isArrowAlone = !lines.HasSecondLine(text);
    content.secondLineWidth = lines.secondWidth;
    content.bottomTextWidth = std::max(lines.firstWidth, content.isArrowAlone ? 0 : lines.secondWidth + arrow);
    return content;
}

CSize CMFCRibbonButton::MeasureAs(CDC* pDC, BOOL bLarge, BOOL bImageOnly) {
    if (ShowsMenuRow()) {
        return fx::ToSize(ribbon::MeasureMenuRow(CollectMenuRow(pDC), ribbon::CurrentMetrics()));
    }
    ribbon::TextBreak lines;
    return fx::ToSize(ribbon::MeasureButton(CollectContent(pDC, bLarge, bImageOnly, lines), ribbon::CurrentMetrics()));
}

CSize CMFCRibbonButton::GetRegularSize(CDC* pDC) { return MeasureAs(pDC, HasLargeMode() && !IsMenuMode(), FALSE); }

CSize CMFCRibbonButton::GetIntermediateSize(CDC* pDC) { return MeasureAs(pDC, FALSE, FALSE); }

CSize CMFCRibbonButton::GetCompactSize(CDC* pDC) { return MeasureAs(pDC, FALSE, HasCompactMode()); }

void CMFCRibbonButton::OnAfterChangeRect(CDC* pDC) {
    CMFCRibbonBaseElement::OnAfterChangeRect(pDC);
    if (ShowsMenuRow()) {
        PlaceMenuRowParts(pDC);
        return;
    }
    const Face face = CollectFace(pDC);
    m_rectCommand = fx::ToRect(face.parts.command);
    m_rectMenu = fx::ToRect(face.parts.menu);
}

// ---- texts

CString CMFCRibbonButton::GetToolTipText() const {
    return m_strToolTip.IsEmpty() ? ribbon::PlainTextOf(*this) : m_strToolTip;
}

void CMFCRibbonButton::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonBaseElement::CopyFrom(src);
    const auto* button = dynamic_cast<const CMFCRibbonButton*>(&src);
    if (button == nullptr || button == this) {
        return;
    }
    ReleaseIcons();
    m_bAutoDestroyIcon = button->m_bAutoDestroyIcon;
    m_bAlphaBlendIcon = button->m_bAlphaBlendIcon;
    // Who destroys its icons needs its own.
    const auto share = [button](HICON icon) {
        return button->m_bAutoDestroyIcon && icon != nullptr ? ::CopyIcon(icon) : icon;
    };
    m_hIcon = share(button->m_hIcon);
    m_hIconSmall = share(button->m_hIconSmall);
    m_bIsAlwaysShowDescription = button->m_bIsAlwaysShowDescription;
    m_nSmallImageIndex = button->m_nSmallImageIndex;
    m_nLargeImageIndex = button->m_nLargeImageIndex;
    m_bIsAlwaysLargeImage = button->m_bIsAlwaysLargeImage;
    m_hMenu = button->m_hMenu;
    m_strMenuContent = button->m_strMenuContent;
    m_pLoadedMenu = button->m_pLoadedMenu;
    m_bIsDefaultCommand = button->m_bIsDefaultCommand;
    m_bRightAlignMenu = button->m_bRightAlignMenu;
    CopySubItems(*button);
}
