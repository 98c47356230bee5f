// A combo box of the system's fonts.
#include <afxribboncombobox.h>

#include <afxtoolbarmenubutton.h>

#include "fx/dc_scope.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CMFCRibbonFontComboBox, CMFCRibbonComboBox)

namespace {

constexpr BYTE kPitches = FIXED_PITCH | VARIABLE_PITCH;
constexpr BYTE kFamilies = 0xF0;

using Fonts = std::vector<std::shared_ptr<const CMFCFontInfo>>;

struct Search {
    int type;
    BYTE pitchAndFamily;
    Fonts found;
};

bool Fits(const Search& search, const LOGFONTW& font, DWORD type) {
    const BYTE pitch = search.pitchAndFamily & kPitches, family = search.pitchAndFamily & kFamilies;
    return font.lfFaceName[0] != L'@' && // turned for vertical writing
           (type & static_cast<DWORD>(search.type)) != 0 && (pitch == 0 || (font.lfPitchAndFamily & pitch) != 0) &&
           (family == 0 || (font.lfPitchAndFamily & kFamilies) == family);
}

int CALLBACK Take(const LOGFONTW* font, const TEXTMETRICW*, DWORD type, LPARAM data) {
    auto& search = *reinterpret_cast<Search*>(data);
    if (Fits(search, *font, type)) {
        const auto* const named = reinterpret_cast<const ENUMLOGFONTEXW*>(font);
        search.found.push_back(std::make_shared<CMFCFontInfo>(font->lfFaceName, named->elfScript, font->lfCharSet,
                                                              font->lfPitchAndFamily, static_cast<int>(type)));
    }
    return TRUE;
}

bool IsBefore(const CString& left, const CString& right) {
    return ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, left, left.GetLength(), right, right.GetLength()) ==
           CSTR_LESS_THAN;
}

// The system tells of a font once for each script that it has; the first of them stays.
Fonts FindFonts(int type, BYTE charSet, BYTE pitchAndFamily) {
    Search search{type, pitchAndFamily, {}};
    LOGFONTW any{};
    any.lfCharSet = charSet;
    const HDC screen = ::GetDC(nullptr);
    ::EnumFontFamiliesExW(screen, &any, &Take, reinterpret_cast<LPARAM>(&search), 0);
    ::ReleaseDC(nullptr, screen);
    Fonts& fonts = search.found;
    std::stable_sort(fonts.begin(), fonts.end(),
                     [](const auto& left, const auto& right) { return IsBefore(left->m_strName, right->m_strName); });
    const auto isSame = [](const auto& left, const auto& right) { return left->m_strName == right->m_strName; };
    fonts.erase(std::unique(fonts.begin(), fonts.end(), isSame), fonts.end());
    return fonts;
}

/// In a row's font while it lives. Symbols would not say which font it is, and a host's own items have none: they are
/// written as they are elsewhere.
class RowFont {
public:
    RowFont(CDC& dc, const CMFCFontInfo* info) : m_selection(dc.m_hDC, Make(dc, info)) {}

private:
    /// Null: the context's own font.
    HGDIOBJ Make(CDC& dc, const CMFCFontInfo* info) {
        if (info == nullptr || info->m_nCharSet == SYMBOL_CHARSET) {
            return nullptr;
        }
        LOGFONT font{};
        dc.GetCurrentFont()->GetLogFont(&font);
        font.lfCharSet = info->m_nCharSet;
        font.lfPitchAndFamily = info->m_nPitchAndFamily;
        ::lstrcpynW(font.lfFaceName, info->m_strName, LF_FACESIZE);
        m_font.CreateFontIndirect(&font);
        return m_font.GetSafeHandle();
    }

    CFont m_font; // outlives its selection
    fx::DcSelection m_selection;
};

} // namespace

CMFCFontInfo::CMFCFontInfo(LPCTSTR lpszName, LPCTSTR lpszScript, BYTE nCharSet, BYTE nPitchAndFamily, int nType)
    : m_strName(lpszName),
      m_strScript(lpszScript),
      m_nCharSet(nCharSet),
      m_nPitchAndFamily(nPitchAndFamily),
      m_nType(nType) {}

CString CMFCFontInfo::GetFullName() const {
    return m_strScript.IsEmpty() ? m_strName : m_strName + L" (" + m_strScript + L")";
}

BOOL CMFCFontInfo::operator==(const CMFCFontInfo& other) const {
    return m_strName == other.m_strName && m_strScript == other.m_strScript && m_nCharSet == other.m_nCharSet &&
           m_nPitchAndFamily == other.m_nPitchAndFamily && m_nType == other.m_nType;
}

CMFCRibbonFontComboBox::CMFCRibbonFontComboBox() = default;
CMFCRibbonFontComboBox::~CMFCRibbonFontComboBox() = default;

CMFCRibbonFontComboBox::CMFCRibbonFontComboBox(UINT nID, int nFontType, BYTE nCharSet, BYTE nPitchAndFamily, int nWidth)
    : CMFCRibbonComboBox(nID, TRUE, nWidth) {
    BuildFonts(nFontType, nCharSet, nPitchAndFamily);
}

void CMFCRibbonFontComboBox::BuildFonts(int nFontType, BYTE nCharSet, BYTE nPitchAndFamily) {
    m_nFontType = nFontType;
    m_nCharSet = nCharSet;
    m_nPitchAndFamily = nPitchAndFamily;
    RebuildFonts();
}

void CMFCRibbonFontComboBox::RebuildFonts() {
    const CString text = GetEditText();
    RemoveAllItems();
    m_fonts = FindFonts(m_nFontType, m_nCharSet, m_nPitchAndFamily);
    for (const auto& font : m_fonts) {
        AddItem(font->m_strName);
    }
    if (!text.IsEmpty() && !SetFont(text)) {
        SetEditText(text);
    }
}

BOOL CMFCRibbonFontComboBox::SetFont(LPCTSTR lpszName, BYTE nCharSet, BOOL bExact) {
    const auto found = std::find_if(m_fonts.begin(), m_fonts.end(), [&](const auto& font) {
        return lpszName != nullptr && font->m_strName.CompareNoCase(lpszName) == 0 &&
               (!bExact || font->m_nCharSet == nCharSet);
    });
    return found != m_fonts.end() && SelectItem(static_cast<int>(found - m_fonts.begin()));
}

const CMFCFontInfo* CMFCRibbonFontComboBox::GetFontDesc(int iIndex) const {
    const int index = iIndex == -1 ? GetCurSel() : iIndex;
    const bool isFont = index >= 0 && index < static_cast<int>(m_fonts.size());
    return isFont ? m_fonts[static_cast<std::size_t>(index)].get() : nullptr;
}

void CMFCRibbonFontComboBox::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonComboBox::CopyFrom(src);
    if (const auto* const combo = dynamic_cast<const CMFCRibbonFontComboBox*>(&src)) {
        m_nFontType = combo->m_nFontType;
        m_nCharSet = combo->m_nCharSet;
        m_nPitchAndFamily = combo->m_nPitchAndFamily;
        m_fonts = combo->m_fonts;
    }
}

BOOL CMFCRibbonFontComboBox::OnDrawDropListItem(CDC* pDC, int nIndex, CMFCToolBarMenuButton* pButton, BOOL) {
    if (!m_bDrawUsingFont) {
        return FALSE;
    }
    const RowFont font(*pDC, GetFontDesc(nIndex));
    CRect rect = pButton->Rect();
    rect.DeflateRect(m_szMargin.cx, 0);
    pDC->DrawText(GetItem(nIndex), rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    return TRUE;
}

int CMFCRibbonFontComboBox::GetDropListItemWidth(CDC* pDC, int nIndex, CSize sizeText) {
    if (!m_bDrawUsingFont) {
        return sizeText.cx;
    }
    const RowFont font(*pDC, GetFontDesc(nIndex));
    return pDC->GetTextExtent(GetItem(nIndex)).cx + 2 * m_szMargin.cx;
}
