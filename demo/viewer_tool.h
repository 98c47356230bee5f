#pragma once

#include <afxcontrolbars.h>

#include <functional>
#include <string>

/// A program that the user starts from the menus. Its arguments may hold what the viewer knows: $(MapFile), the map
/// file that was opened last, and $(Place), the place in the middle of the map.
class CViewerTool : public CUserTool {
    DECLARE_DYNCREATE(CViewerTool)

public:
    /// The value in the place of a placeholder, whose name comes without its brackets. Before the first tool is
    /// started.
    using Values = std::function<std::wstring(const std::wstring& name)>;
    static void SetValues(Values values);

    BOOL Invoke() override;
};
