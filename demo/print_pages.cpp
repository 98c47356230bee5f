#include "print_pages.h"

#include "page_print.h"

#include <algorithm>
#include <memory>
#include <type_traits>

namespace {

// Millimetres, on any sheet.
constexpr double kMargin = 20;
constexpr double kTitle = 12;
constexpr double kLine = 7;
constexpr double kTitleLetters = 6;
constexpr double kLetters = 4;
constexpr double kInch = 25.4;

struct FontDestroyer {
    void operator()(HFONT font) const { ::DeleteObject(font); }
};

/// A font of this height in the context, as long as it lives.
class SheetFont {
public:
    SheetFont(HDC dc, double millimetres, int dotsPerInch)
        : m_dc(dc),
          m_font(::CreateFontW(-static_cast<int>(millimetres / kInch * dotsPerInch), 0, 0, 0, FW_NORMAL, FALSE, FALSE,
                               FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                               DEFAULT_PITCH, L"Segoe UI")),
          m_before(::SelectObject(dc, m_font.get())) {}
    ~SheetFont() { ::SelectObject(m_dc, m_before); }
    SheetFont(const SheetFont&) = delete;
    SheetFont& operator=(const SheetFont&) = delete;

private:
    HDC m_dc;
    std::unique_ptr<std::remove_pointer_t<HFONT>, FontDestroyer> m_font;
    HGDIOBJ m_before;
};

void Replace(std::wstring& text, int number) {
    const std::size_t mark = text.find(L"%d");
    if (mark != std::wstring::npos) {
        text.replace(mark, 2, std::to_wstring(number));
    }
}

} // namespace

PrintPages::PrintPages(CBitmap& picture, PageShape shape, std::vector<std::wstring> marks, Texts texts)
    : m_picture(picture), m_shape(shape), m_marks(std::move(marks)), m_texts(std::move(texts)) {}

int PrintPages::LinesOnPage() const {
    return static_cast<int>((UsualSheet(m_shape).height - 2 * kMargin - 2 * kTitle) / kLine);
}

int PrintPages::Count() const {
    const int lines = LinesOnPage();
    return 1 + (static_cast<int>(m_marks.size()) + lines - 1) / lines;
}

std::wstring PrintPages::PageText(int page) const {
    std::wstring text = m_texts.page;
    Replace(text, page + 1);
    Replace(text, Count());
    return text;
}

bool PrintPages::Draw(int page, HDC dc, const PrintSheet& sheet) const {
    return page == 0 ? DrawOnSheet(dc, m_picture, sheet) : DrawList(page, dc, sheet);
}

bool PrintPages::DrawList(int page, HDC dc, const PrintSheet& sheet) const {
    const auto across = [&](double millimetres) {
        return static_cast<int>(millimetres / kInch * sheet.dotsPerInchAcross);
    };
    const auto down = [&](double millimetres) { return static_cast<int>(millimetres / kInch * sheet.dotsPerInchDown); };
    const int left = across(kMargin) - sheet.left, right = sheet.width - across(kMargin) - sheet.left;
    const int top = down(kMargin) - sheet.top, bottom = sheet.height - down(kMargin) - sheet.top;
    if (right <= left || bottom <= top) {
        return false;
    }
    const UINT side = m_texts.isFromRight ? DT_RIGHT | DT_RTLREADING : DT_LEFT;
    const UINT one = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | side;
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, RGB(0, 0, 0));
    bool isDrawn = true;
    const auto write = [&](const std::wstring& text, int from, int to, UINT format) {
        RECT rect{left, from, right, to};
        isDrawn = ::DrawTextW(dc, text.c_str(), -1, &rect, format) != 0 && isDrawn;
    };
    {
        const SheetFont font(dc, kTitleLetters, sheet.dotsPerInchDown);
        write(m_texts.title, top, top + down(kTitle), one);
    }
    const SheetFont font(dc, kLetters, sheet.dotsPerInchDown);
    const int lines = LinesOnPage();
    const int first = (page - 1) * lines;
    const int last = std::min(first + lines, static_cast<int>(m_marks.size()));
    for (int i = first; i < last; ++i) {
        const int from = top + down(kTitle + (i - first) * kLine);
        write(std::to_wstring(i + 1) + L".   " + m_marks[static_cast<std::size_t>(i)], from, from + down(kLine), one);
    }
    write(PageText(page), bottom - down(kLine), bottom, DT_SINGLELINE | DT_BOTTOM | DT_CENTER | DT_NOPREFIX);
    return isDrawn;
}
