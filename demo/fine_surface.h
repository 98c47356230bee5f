#pragma once

#include <windows.h>

/// A picture twice as wide and high as what it is averaged down to: smooth edges wherever the lines are drawn.
class FineSurface {
public:
    /// In pixels of what it is averaged to. Without a width or a height it is not usable.
    FineSurface(int width, int height);
    ~FineSurface();
    FineSurface(const FineSurface&) = delete;
    FineSurface& operator=(const FineSurface&) = delete;

    bool IsUsable() const { return m_fine != nullptr; }
    /// To draw on; the surface keeps it.
    HDC Dc() const { return m_dc; }
    /// Onto the top left corner of `target`.
    void AverageTo(HDC target);

private:
    int m_width;
    int m_height;
    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_earlier = nullptr;
    DWORD* m_fine = nullptr;
};
