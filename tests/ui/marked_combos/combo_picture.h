#pragma once

#include "tests/support/picture_file.h"
#include "tests/ui/marked_combos/combo_fixture.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

/// What was drawn: 32 bits a pixel, 0x00RRGGBB.
class ComboPicture {
public:
    static constexpr std::uint32_t background = 0xE0E8F0;

    explicit ComboPicture(CSize size, const std::function<void(CDC&)>& draw = {}) : m_size(size) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<std::uint32_t*>(bits);
        std::fill_n(m_pixels, size.cx * size.cy, background);
        if (draw) {
            Draw(CPoint(0, 0), draw);
        }
    }
    ~ComboPicture() { ::DeleteObject(m_bitmap); }
    ComboPicture(const ComboPicture&) = delete;
    ComboPicture& operator=(const ComboPicture&) = delete;

    /// What draws at the origin appears at the place.
    void Draw(CPoint place, const std::function<void(CDC&)>& draw) {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        const HGDIOBJ former = ::SelectObject(dc.GetSafeHdc(), m_bitmap);
        dc.SetViewportOrg(place);
        draw(dc);
        ::GdiFlush();
        ::SelectObject(dc.GetSafeHdc(), former);
    }
    std::uint32_t At(int x, int y) const { return m_pixels[y * m_size.cx + x] & 0xFFFFFF; }
    CSize Size() const { return m_size; }
    /// The smallest rectangle outside of which both are the same; empty when they are.
    CRect DifferenceTo(const ComboPicture& other) const {
        CRect changed(m_size.cx, m_size.cy, 0, 0);
        for (int y = 0; y < m_size.cy; ++y) {
            for (int x = 0; x < m_size.cx; ++x) {
                if (At(x, y) == other.At(x, y)) {
                    continue;
                }
                changed.left = std::min<LONG>(changed.left, x);
                changed.top = std::min<LONG>(changed.top, y);
                changed.right = std::max<LONG>(changed.right, x + 1);
                changed.bottom = std::max<LONG>(changed.bottom, y + 1);
            }
        }
        return changed.right == 0 ? CRect(0, 0, 0, 0) : changed;
    }
    /// Written for people to look at, when BARWRIGHT_PICTURES names a folder.
    void Save(const std::wstring& name) const { SavePicture(m_bitmap, name); }

private:
    CSize m_size;
    HBITMAP m_bitmap = nullptr;
    std::uint32_t* m_pixels = nullptr;
};

/// The combo as its bar draws it, its rectangle's corner at the origin.
inline void DrawFace(CMFCRibbonComboBox& combo, CDC& dc) {
    const CPoint former = dc.OffsetViewportOrg(-combo.GetRect().left, -combo.GetRect().top);
    combo.OnDraw(&dc);
    dc.SetViewportOrg(former);
}

/// The list's rows as its bar draws them.
inline void DrawRows(CMFCPopupMenuBarEx& rows, CDC& dc) {
    struct Open : CMFCPopupMenuBarEx {
        using CMFCPopupMenuBarEx::DoPaint;
    };
    CRect client;
    rows.GetClientRect(&client);
    // By a brush: in a mirrored context the colour of an opaque text leaves the outermost column out.
    ::FillRect(dc.GetSafeHdc(), &client, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    (rows.*(&Open::DoPaint))(&dc);
}

inline std::uint32_t ToPixel(COLORREF color) {
    return static_cast<std::uint32_t>(GetRValue(color)) << 16 | static_cast<std::uint32_t>(GetGValue(color)) << 8 |
           GetBValue(color);
}
