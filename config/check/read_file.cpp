#include "config/check/read_file.h"

#include "config/menu_file.h"
#include "config/ribbon_file.h"
#include "config/toolbar_file.h"

namespace {

class MenuReading : public MenuFileVisitor {
    void VisitItem(const MenuInfo& /*info*/, std::size_t /*level*/) override {}
    void VisitPopup(const MenuInfo& /*info*/, std::size_t /*level*/) override {}
    void LeaveBranch() override {}
};

class ToolBarReading : public ToolBarFileVisitor {
    void VisitGroup(const ToolBarInfo& /*info*/) override {}
    bool VisitToolBar(const ToolBarInfo& /*info*/) override { return true; }
    void VisitButton(const ToolBarInfo& /*info*/) override {}
};

} // namespace

bool ReadConfigurationFile(const std::wstring& fullPath, ConfigurationKind kind, DiagnosticsSink& sink) {
    switch (kind) {
    case ConfigurationKind::Ribbon: {
        RibbonRecords rows;
        return LoadRibbonFile(fullPath, rows, sink);
    }
    case ConfigurationKind::Menu: {
        MenuReading reading;
        return LoadMenuFile(fullPath, reading, sink);
    }
    case ConfigurationKind::ToolBars:
        break;
    }
    ToolBarReading reading;
    return LoadToolBarFile(fullPath, reading, sink);
}
