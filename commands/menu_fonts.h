#pragma once

#include <afxmenubar.h>

#include <cstring>
#include <memory>

struct DeletesFont {
    using pointer = HFONT;
    void operator()(HFONT font) const { ::DeleteObject(font); }
};

/// The bold variant of the framework's menu font (CMFCMenuBar::GetMenuFont), made anew when that has changed. Stays the
/// function's own; valid until the menu font changes. User-interface thread only.
inline HFONT BoldMenuFont() {
    static std::unique_ptr<HFONT, DeletesFont> s_font;
    static LOGFONTW s_made{};
    LOGFONTW wanted{};
    ::GetObjectW(CMFCMenuBar::GetMenuFont().GetSafeHandle(), sizeof wanted, &wanted);
    wanted.lfWeight = FW_BOLD;
    if (!s_font || std::memcmp(&wanted, &s_made, sizeof wanted) != 0) {
        s_font.reset(::CreateFontIndirectW(&wanted));
        s_made = wanted;
    }
    return s_font.get();
}
