#pragma once

#include <afxwin.h>

#include "page_layout.h"
#include "preview_layout.h"

#include <string>
#include <vector>

/// What is printed: the map on its sheet, and where there are marks, their list on as many sheets as it needs. The same
/// on a printer and in the preview, which gives it a sheet of the screen's pixels.
class PrintPages {
public:
    struct Texts {
        std::wstring title;       ///< Above the list.
        std::wstring page;        ///< "Page %d of %d"
        bool isFromRight = false; ///< Lists are written from right to left.
    };

    /// The picture is the owner's and outlives this.
    PrintPages(CBitmap& picture, PageShape shape, std::vector<std::wstring> marks, Texts texts);

    int Count() const;
    PageShape Shape() const { return m_shape; }
    /// Draws a page, from 0 on, on a sheet that begins where the context's own co-ordinates do. False when there is no
    /// room, or the device refuses.
    bool Draw(int page, HDC dc, const PrintSheet& sheet) const;
    std::wstring PageText(int page) const;

private:
    int LinesOnPage() const;
    bool DrawList(int page, HDC dc, const PrintSheet& sheet) const;

    CBitmap& m_picture;
    PageShape m_shape;
    std::vector<std::wstring> m_marks;
    Texts m_texts;
};
