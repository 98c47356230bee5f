#pragma once

#include <afxwin.h>

#include <string_view>

#include "fx/to_rect.h"
#include "ribbon/face_types.h"

// The bridge between the geometry of ribbon elements and the window system: measures, rectangles, fonts.
namespace ribbon {

// Metrics at the current ribbon image scale and font.
FaceMetrics CurrentMetrics();

// Selects the ribbon's regular font and transparent text for its lifetime. A null context is replaced by one for
// measuring.
class TextContext {
public:
    explicit TextContext(CDC* pDC);
    ~TextContext();
    TextContext(const TextContext&) = delete;
    TextContext& operator=(const TextContext&) = delete;

    HDC Get() const { return m_hDC; }

private:
    HDC m_hDC = nullptr;
    HDC m_hMeasureDC = nullptr;
    HGDIOBJ m_hOldFont = nullptr;
    int m_oldMode = 0;
};

// The size of one line in the ribbon's regular font. The context may be null. Texts that were measured before cost no
// call of the system.
Size MeasureText(CDC* pDC, std::wstring_view text);

// A colour from the visual manager, or what stands for its "default": its colour of disabled text, else the context's
// own.
COLORREF TextColor(CDC* pDC, COLORREF color, BOOL isDisabled);

} // namespace ribbon
