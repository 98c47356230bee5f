#pragma once

#include <windows.h>

#include <span>
#include <vector>

namespace fx {

/// The system's own controls, by the numbers that templates have for them.
enum class DialogControl : WORD { Button = 0x80, Edit = 0x81, Static = 0x82, ListBox = 0x83, ComboBox = 0x85 };

/// A control of a dialog that is written down in a table. Places and sizes are dialog units.
struct DialogItem {
    int id = -1;
    UINT text = 0; ///< of the framework's texts, 0: none
    short x = 0;
    short y = 0;
    short width = 0;
    short height = 0;
    DialogControl control = DialogControl::Static;
    DWORD style = 0;             ///< beside WS_CHILD | WS_VISIBLE
    LPCWSTR className = nullptr; ///< of a common control, which comes instead of `control`
    DWORD exStyle = 0;
};

struct DialogShape {
    short width = 0;
    short height = 0;
    DWORD style = 0; ///< DS_SETFONT comes by itself
    UINT caption = 0;
};

/// A template in memory with the system's font for dialogs, texts in the language in force. It is aligned as the system
/// wants it, and writable.
std::vector<DWORD> MakeDialogTemplate(const DialogShape& shape, std::span<const DialogItem> items);

inline DLGTEMPLATE* TemplateIn(std::vector<DWORD>& words) { return reinterpret_cast<DLGTEMPLATE*>(words.data()); }

} // namespace fx
