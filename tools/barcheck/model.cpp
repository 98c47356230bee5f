#include "model.h"

#include "command_model.h"
#include "menu_model.h"
#include "ribbon_model.h"
#include "toolbar_model.h"

#include "config/check/file_kind.h"
#include "config/check/installation_files.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>

nlohmann::ordered_json ModelOf(const std::wstring& directory, const std::wstring& language) {
    FileOp::SetAppPath(directory);
    CMultiLanguageMgr::SetLanguage({});
    if (!language.empty()) {
        CMultiLanguageMgr::SetLanguage(language);
    }
    const InstallationFiles files(directory);
    CommandModel commands;
    RibbonModel ribbon(commands);
    MenuModel menus(commands);
    ToolBarModel toolBars(commands, files);
    for (const std::wstring& name : ShownFiles(files)) {
        const std::wstring path = *files.Find(name);
        switch (KindOfFile(path)) {
        case ConfigurationKind::Ribbon:
            ribbon.Load(name, path);
            break;
        case ConfigurationKind::Menu:
            menus.Load(path);
            break;
        case ConfigurationKind::ToolBars:
            toolBars.Load(path);
            break;
        }
    }
    return {{"nextCommandId", commands.nextId},
            {"registry", commands.Dump()},
            {"ribbon", ribbon.Dump()},
            {"menu", menus.DumpMenu()},
            {"accelerators", menus.DumpAccelerators()},
            {"toolbars", toolBars.Dump()},
            {"statusExtras", ribbon.DumpStatusExtras()}};
}
