#pragma once

#include "afxwin.h"

namespace toolbar {

/// The tab of a page in a property sheet.
struct PageTab {
    HWND sheet = nullptr; ///< null: there is none
    int page = -1;

    bool operator==(const PageTab&) const = default;
    explicit operator bool() const { return sheet != nullptr; }
};

/// The tab that is seen at the point of the screen and whose page is not in front.
PageTab PageTabAt(CPoint screen);
/// The page that is in front may refuse, and handlers of the program run. Nothing where the sheet is gone.
void ShowPage(const PageTab& tab);

} // namespace toolbar
