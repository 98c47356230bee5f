#include "ribbon/element_metrics.h"

#include <afxglobals.h>
#include <afxvisualmanager.h>

#include <functional>
#include <string>
#include <unordered_map>

namespace ribbon {

namespace {

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::wstring_view text) const { return std::hash<std::wstring_view>()(text); }
};

/// Sizes of texts in the ribbon's regular font: every layout and every paint asks for the same ones again, and the
/// system takes longer to answer than all the rest of a button's layout. Belongs to one thread.
class TextSizes {
public:
    static TextSizes& Instance() {
        static thread_local TextSizes sizes;
        return sizes;
    }
    /// The context may be null.
    Size Of(CDC* pDC, std::wstring_view text) {
        ForgetOtherFonts();
        if (const auto known = m_sizes.find(text); known != m_sizes.end()) {
            return known->second;
        }
        const TextContext context(pDC);
        SIZE size{};
        if (!::GetTextExtentPoint32W(context.Get(), text.data(), static_cast<int>(text.size()), &size)) {
            return {};
        }
        if (m_sizes.size() >= kMostTexts) {
            m_sizes.clear();
        }
        return m_sizes.emplace(text, Size{static_cast<int>(size.cx), static_cast<int>(size.cy)}).first->second;
    }

private:
    static constexpr std::size_t kMostTexts = 2000; // more than any category shows

    void ForgetOtherFonts() {
        const HGDIOBJ font = afxGlobalData.fontRegular.GetSafeHandle();
        const int height = afxGlobalData.GetCharacterHeight();
        if (font != m_font || height != m_textHeight) {
            m_sizes.clear();
        }
        m_font = font;
        m_textHeight = height;
    }

    std::unordered_map<std::wstring, Size, TextHash, std::equal_to<>> m_sizes;
    HGDIOBJ m_font = nullptr;
    int m_textHeight = 0;
};

} // namespace

FaceMetrics CurrentMetrics() { return {afxGlobalData.GetRibbonImageScale(), afxGlobalData.GetCharacterHeight()}; }

TextContext::TextContext(CDC* pDC) {
    m_hDC = pDC != nullptr ? pDC->GetSafeHdc() : nullptr;
    if (m_hDC == nullptr) {
        m_hDC = m_hMeasureDC = ::CreateCompatibleDC(nullptr);
    }
    m_hOldFont = ::SelectObject(m_hDC, afxGlobalData.fontRegular.GetSafeHandle());
    m_oldMode = ::SetBkMode(m_hDC, TRANSPARENT);
}

TextContext::~TextContext() {
    ::SetBkMode(m_hDC, m_oldMode);
    if (m_hOldFont != nullptr) {
        ::SelectObject(m_hDC, m_hOldFont);
    }
    if (m_hMeasureDC != nullptr) {
        ::DeleteDC(m_hMeasureDC);
    }
}

Size MeasureText(CDC* pDC, std::wstring_view text) {
    return text.empty() ? Size{} : TextSizes::Instance().Of(pDC, text);
}

COLORREF TextColor(CDC* pDC, COLORREF color, BOOL isDisabled) {
    if (color != static_cast<COLORREF>(-1)) {
        return color;
    }
    return isDisabled ? CMFCVisualManager::GetInstance()->GetToolbarDisabledTextColor() : pDC->GetTextColor();
}

} // namespace ribbon
