#include "preview_frame.h"

#include "add_ribbon_bar.h"
#include "frame_dump.h"
#include "kept_bar_states.h"
#include "kept_command_ids.h"
#include "new_keywords.h"

#include "varnhold/strings.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <utility>

BEGIN_MESSAGE_MAP(CPreviewFrame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(41000, 57343, OnCommandOfFile)
ON_UPDATE_COMMAND_UI_RANGE(41000, 57343, OnUpdateCommandOfFile)
END_MESSAGE_MAP()

void Complain(const std::wstring& text) {
    std::fprintf(stderr, "barview: %s\n", wstring2String(text).c_str());
    std::fflush(stderr);
}

BOOL CPreviewFrame::CreateFrame() {
    CRect rect(CPoint(0, 0), CSize(m_options.width, m_options.height));
    const DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    ::AdjustWindowRectEx(rect, style, FALSE, 0);
    rect.MoveToXY(0, 0);
    const DWORD extended = m_options.isMirrored ? WS_EX_LAYOUTRTL : 0;
    return Create(nullptr, m_options.directory.c_str(), style, rect, nullptr, nullptr, extended);
}

bool CPreviewFrame::Build() {
    bool isComplete = !m_options.ribbonFiles.empty();
    if (!isComplete) {
        Complain(L"no ribbon file: " + m_options.directory + L"cfg\\ribbon*.xml");
    }
    m_firstToolBar = CDynToolBarCreater::s_ToolbarIndex;
    isComplete = BuildRibbon() && isComplete;
    isComplete = BuildMenus() && isComplete;
    EnableDocking(CBRS_ALIGN_ANY);
    isComplete = BuildToolBars(AllBars().toolBars) && isComplete;
    CountToolBars(true);
    isComplete = ShowPath() && isComplete;
    isComplete = ShowCategory() && isComplete;
    isComplete = ShowApplication() && isComplete;
    m_ribbon.ForceRecalcLayout();
    return isComplete;
}

DumpSources CPreviewFrame::Sources() {
    DumpSources sources{.ribbon = &m_ribbon,
                        .statusBar = m_status.GetSafeHwnd() != nullptr ? &m_status : nullptr,
                        .commands = m_commands,
                        .accelerators = m_hAccelTable,
                        .application = m_options.application};
    for (const auto& creater : m_menus) {
        sources.menus.push_back(creater->GetMenu());
    }
    for (const std::wstring& file : m_options.toolBarFiles) {
        for (const auto& [group, bar] : m_toolBars[file].GetGroupedToolBars()) {
            sources.toolBars.emplace_back(group, bar);
        }
    }
    std::ranges::stable_sort(sources.toolBars, {}, [](const auto& one) { return one.first; });
    return sources;
}

int CPreviewFrame::OnCreate(LPCREATESTRUCT createStruct) {
    if (CFrameWndEx::OnCreate(createStruct) == -1 || !m_ribbon.Create(this)) {
        return -1;
    }
    m_ribbon.EnableToolTips(TRUE, TRUE);
    return 0;
}

void CPreviewFrame::DeclarePath(const std::wstring& file, const CAddRibbonBar& builder) {
    int first = -1, last = -1;
    if (builder.GetAddIndex(first, last) <= 0) {
        return;
    }
    std::vector<unsigned int> commands;
    builder.GetQAToolBar(commands);
    m_ribbon.setPath(std::filesystem::path(file).stem().wstring(), first, last, {commands.begin(), commands.end()});
}

bool CPreviewFrame::ShowPath() {
    if (m_options.path.empty() || m_ribbon.ShowPath(m_options.path)) {
        return true;
    }
    Complain(L"no path named " + m_options.path);
    return false;
}

bool CPreviewFrame::BuildRibbon() {
    const NewKeywords keywords(m_ofRibbon);
    bool isComplete = true;
    for (const std::wstring& file : m_options.ribbonFiles) {
        CAddRibbonBar builder;
        if (!builder.Load(file, &m_ribbon, TRUE)) {
            Complain(L"not loaded: " + file);
            isComplete = false;
        }
        DeclarePath(file, builder);
        m_commands.push_back(builder.m_cmdList);
    }
    return isComplete;
}

bool CPreviewFrame::BuildMenus() {
    const NewKeywords keywords(m_ofMenus);
    bool isComplete = true;
    for (const std::wstring& file : m_options.menuFiles) {
        auto creater = std::make_unique<CDynMenuCreater>();
        try {
            if (!creater->Load(file)) {
                Complain(L"not loaded: " + file);
                isComplete = false;
            }
        } catch (const std::out_of_range&) {
            Complain(L"not loaded: " + file + L": a shortcut names no key");
            isComplete = false;
        }
        creater->SetAppAccelTable();
        m_menus.push_back(std::move(creater));
    }
    return isComplete;
}

bool CPreviewFrame::BuildToolBars(const std::set<std::wstring>& files) {
    bool isComplete = true;
    for (const std::wstring& file : m_options.toolBarFiles) {
        if (!files.contains(file)) {
            continue;
        }
        const NewKeywords keywords(m_ofToolBars[file]);
        CDynToolBarCreater built;
        if (!built.Load(file, this) || built.GetAllToolBar().empty()) {
            Complain(L"not loaded: " + file);
            isComplete = false;
        }
        for (CMFCToolBar* const bar : built.GetAllToolBar()) {
            bar->EnableDocking(CBRS_ALIGN_ANY);
        }
        ReplaceToolBars(*this, std::exchange(m_toolBars[file], built), built);
    }
    return isComplete;
}

bool CPreviewFrame::ShowCategory() {
    for (int i = 0; i < m_ribbon.GetCategoryCount(); ++i) {
        CMFCRibbonCategory* const category = m_ribbon.GetCategory(i);
        // A path has made a category of its own active.
        const bool isFirst = i == 0 && m_options.path.empty();
        const bool isNamed = category->IsVisible() && m_options.category == category->GetName();
        if (m_options.category.empty() ? isFirst : isNamed) {
            m_ribbon.SetActiveCategory(category);
            return true;
        }
    }
    if (m_options.category.empty()) {
        return true;
    }
    Complain(L"no category named " + m_options.category);
    return false;
}

bool CPreviewFrame::ShowApplication() {
    if (m_options.application.empty()) {
        return true;
    }
    const bool isKnown = CAddRibbonBar::m_smStatusExBtns.contains(m_options.application);
    if (!isKnown) {
        Complain(L"no status row in a ribbon file named " + m_options.application);
    }
    m_status.Create(this);
    m_status.SetExEleApp(m_options.application.c_str());
    RecalcLayout();
    return isKnown;
}
