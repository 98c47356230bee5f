#pragma once

#include <afxcontrolbars.h>
#include <afxglobals.h>
#include <gtest/gtest.h>

#include <vector>

#include "tests/support/ui_test.h"

// A window that keeps the commands it receives, and may do something on each.
class CommandWindow : public TestWindow {
public:
    std::vector<UINT> commands;
    std::function<void()> onCommand;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        // Notifications of a child's own (high word) are no commands.
        if (message == WM_COMMAND && HIWORD(wParam) == 0) {
            commands.push_back(LOWORD(wParam));
            if (onCommand) {
                onCommand();
            }
            return 0;
        }
        return TestWindow::WindowProc(message, wParam, lParam);
    }
};

// The ribbon image scale for one test.
class ScopedScale {
public:
    explicit ScopedScale(double scale) { EXPECT_TRUE(afxGlobalData.SetRibbonImageScale(scale)); }
    ~ScopedScale() { afxGlobalData.SetRibbonImageScale(0); }
    ScopedScale(const ScopedScale&) = delete;
    ScopedScale& operator=(const ScopedScale&) = delete;
};

// A 32-bit bitmap to draw on.
class Canvas {
public:
    Canvas(int width, int height, COLORREF background = RGB(255, 255, 255)) : m_size(width, height) {
        m_dc.CreateCompatibleDC(nullptr);
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&m_bits), nullptr, 0);
        m_old = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap);
        Clear(background);
    }
    ~Canvas() {
        ::SelectObject(m_dc.GetSafeHdc(), m_old);
        ::DeleteObject(m_bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC* operator&() { return &m_dc; }
    void Clear(COLORREF background) {
        m_background = background;
        m_dc.FillSolidRect(CRect(CPoint(0, 0), m_size), background);
    }
    COLORREF At(int x, int y) { return m_dc.GetPixel(x, y); }
    COLORREF At(CPoint point) { return m_dc.GetPixel(point.x, point.y); }
    // Pixels in the rectangle that satisfy the question.
    template <typename Question>
    int Count(const CRect& rect, Question question) {
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                count += question(At(x, y)) ? 1 : 0;
            }
        }
        return count;
    }
    int CountColor(const CRect& rect, COLORREF color) {
        return Count(rect, [color](COLORREF pixel) { return pixel == color; });
    }

private:
    CSize m_size;
    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_old = nullptr;
    DWORD* m_bits = nullptr;
    COLORREF m_background = 0;
};

// A square icon of one opaque colour; destroyed with the object.
class SolidIcon {
public:
    SolidIcon(int side, COLORREF color) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), side, -side, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        DWORD* bits = nullptr;
        HBITMAP pixels =
            ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&bits), nullptr, 0);
        for (int i = 0; i < side * side; ++i) {
            bits[i] = 0xFF000000u | (GetRValue(color) << 16) | (GetGValue(color) << 8) | GetBValue(color);
        }
        const std::vector<BYTE> maskBits(static_cast<size_t>((side + 15) / 16 * 2 * side), 0);
        HBITMAP mask = ::CreateBitmap(side, side, 1, 1, maskBits.data());
        ICONINFO icon{TRUE, 0, 0, mask, pixels};
        m_icon = ::CreateIconIndirect(&icon);
        ::DeleteObject(mask);
        ::DeleteObject(pixels);
    }
    ~SolidIcon() {
        if (m_icon != nullptr) {
            ::DestroyIcon(m_icon);
        }
    }
    SolidIcon(const SolidIcon&) = delete;
    SolidIcon& operator=(const SolidIcon&) = delete;
    HICON Get() const { return m_icon; }
    HICON Release() { return std::exchange(m_icon, nullptr); }

private:
    HICON m_icon = nullptr;
};

// Gives the element its place as a container does.
inline void Place(CMFCRibbonBaseElement& element, CPoint at, CDC* pDC = nullptr) {
    element.OnCalcTextSize(pDC);
    element.SetRect(CRect(at, element.GetSize(pDC)));
    element.OnAfterChangeRect(pDC);
}
