#pragma once

#include <varnhold/xml.h>

#include <string_view>

/// Finds out whether the texts of a table came to harm when it was saved: letters became question marks, or their bytes
/// were read in another encoding.
class SpoiltTexts {
public:
    struct Kind {
        std::size_t count = 0;
        varnhold::TextPosition first;
    };

    void Clear() { *this = {}; }
    void Take(std::wstring_view text, varnhold::TextPosition position);

    /// UTF-8 whose bytes were taken for letters of a western encoding.
    const Kind& Misread() const { return m_misread; }
    /// Nothing but question marks where letters should be, in so many texts that none is meant so; else none.
    const Kind& Lost() const;

private:
    Kind m_misread;
    Kind m_lost;
};
