#include "dyn_toolbar_creater.h"

#include "config/command_id.h"
#include "config/load_watch.h"
#include "config/menu_icon.h"
#include "config/toolbar_file.h"
#include "menu_id_mgr.h"
#include "toolbar_combos.h"
#include "toolbar_ex.h"

#include <afxcommandmanager.h>
#include <afxDockingManager.h>
#include <afxglobalutils.h>
#include <fx/window_guard.h>
#include <varnhold/file_op.h>

#include <algorithm>
#include <map>
#include <memory>

std::uint32_t CDynToolBarCreater::s_ToolbarIndex = 45000;

namespace {

constexpr SIZE kButtonSize{23, 22};
constexpr SIZE kImageSize{16, 16};
constexpr DWORD kBarStyle = WS_CHILD | WS_VISIBLE | CBRS_GRIPPER | CBRS_TOP;

/// The icons of configured buttons, which index it. The framework may show it as the user's images until the end.
CMFCToolBarImages& UserImages() {
    static CMFCToolBarImages images;
    if (images.GetCount() == 0) {
        images.SetImageSize(kImageSize);
    }
    return images;
}

/// A toolbar that a file describes: it lives as long as its window, and as long as a creater remembers it.
class ConfiguredToolBar : public CMFCToolBarEx {
public:
    /// Null when the window cannot be made.
    static std::shared_ptr<CMFCToolBar> Create(CWnd& parent, UINT id) {
        auto bar = std::make_shared<ConfiguredToolBar>();
        if (!bar->CreateEx(&parent, TBSTYLE_FLAT, kBarStyle, CRect(1, 1, 1, 1), id)) {
            return nullptr;
        }
        bar->m_self = bar;
        return bar;
    }

protected:
    void PostNcDestroy() override {
        CMFCToolBarEx::PostNcDestroy();
        const std::shared_ptr<ConfiguredToolBar> last = std::move(m_self);
    }

private:
    std::shared_ptr<ConfiguredToolBar> m_self; // while there is a window
};

/// The command of a button, which takes the icon for menus and toolbars where it was registered before.
UINT ObtainCommand(const ToolBarInfo& info, const CommandIcon& icon) {
    CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    int id = 0;
    if (registry.GetMenuId(info.strKeyword, id)) {
        GiveCommandIcon(static_cast<UINT>(id), icon);
        return static_cast<UINT>(id);
    }
    id = static_cast<int>(TakeCommandId(info.strKeyword));
    registry.Add(info.strKeyword, id, info.strPrompt, {}, info.strToolTip, {}, {});
    return static_cast<UINT>(id);
}

/// The image is one of the user's.
template <class Button>
void InsertCombo(CMFCToolBar& bar, UINT id, int image) {
    Button button(id, -1);
    button.m_bUserButton = TRUE;
    button.SetImage(image);
    bar.InsertButton(button);
}

void InsertItem(CMFCToolBar& bar, ToolBarItemKind kind, const ToolBarInfo& info, UINT id, int image) {
    switch (kind) {
    case ToolBarItemKind::Button:
        bar.InsertButton(CMFCToolBarButton(id, image, info.strPrompt.c_str(), TRUE, FALSE));
        break;
    case ToolBarItemKind::CheckCombo:
        InsertCombo<CMFCCheckCombo>(bar, id, image);
        break;
    case ToolBarItemKind::MultiCombo:
        InsertCombo<CMFCMultiCombo>(bar, id, image);
        break;
    case ToolBarItemKind::MultiCombo2:
        InsertCombo<CMFCMultiCombo2>(bar, id, image);
        break;
    case ToolBarItemKind::Separator:
    case ToolBarItemKind::Unknown:
        break;
    }
}

/// An icon of one load and its first place in the list; -1: it could not be loaded.
struct ButtonIcon {
    CommandIcon icon;
    int image = -1;
};
/// Many buttons may have the same few files.
using ButtonIcons = std::map<std::wstring, ButtonIcon>;

/// Every button has a place of its own in the list.
int AddImage(ButtonIcon& loaded) {
    // A copy of pixels that are there costs less than those of the icon.
    if (loaded.image >= 0) {
        return UserImages().AddImage(UserImages(), loaded.image);
    }
    loaded.image = AddCommandIcon(UserImages(), loaded.icon);
    return loaded.image;
}

void AddItem(CMFCToolBar& bar, const ToolBarInfo& info, ButtonIcons& icons) {
    const ToolBarItemKind kind = ToolBarItemKindOf(info.strType);
    if (kind == ToolBarItemKind::Separator) {
        bar.InsertSeparator();
        return;
    }
    auto known = icons.find(info.strPicPath);
    if (known == icons.end()) {
        known = icons.emplace(info.strPicPath, ButtonIcon{LoadCommandIcon(info.strPicPath), -1}).first;
    }
    const int image = AddImage(known->second);
    InsertItem(bar, kind, info, ObtainCommand(info, known->second.icon), image);
}

/// Empty without a window.
CString TitleOf(const CMFCToolBar& bar) {
    CString text;
    if (bar.GetSafeHwnd()) {
        bar.GetWindowText(text);
    }
    return text;
}

CMDIFrameWndEx* FrameOr(CMDIFrameWndEx* frame) {
    return frame ? frame : DYNAMIC_DOWNCAST(CMDIFrameWndEx, AfxGetMainWnd());
}

} // namespace

/// Makes the bars while a file is read.
class CDynToolBarCreater::Building : public ToolBarFileVisitor {
public:
    Building(CDynToolBarCreater& creater, CWnd& parent) : m_creater(creater), m_parent(parent) {}

    void VisitFile() override {
        if (!CMFCToolBar::GetUserImages()) {
            CMFCToolBar::SetSizes(kButtonSize, kImageSize);
        }
    }

    void VisitGroup(const ToolBarInfo& info) override { m_group = info.strKeyword; }

    bool VisitToolBar(const ToolBarInfo& info) override {
        const std::shared_ptr<CMFCToolBar> bar = ConfiguredToolBar::Create(m_parent, s_ToolbarIndex++);
        if (!bar) {
            return false;
        }
        m_bar = bar.get();
        m_bar->m_bFromConfig = TRUE;
        m_bar->SetWindowText(info.strPrompt.c_str());
        m_creater.m_groups[m_group].emplace_back(m_bar, info.strPrompt);
        m_creater.m_made.push_back(bar);
        return true;
    }

    void VisitButton(const ToolBarInfo& info) override { AddItem(*m_bar, info, m_icons); }

private:
    CDynToolBarCreater& m_creater;
    CWnd& m_parent;
    std::wstring m_group;
    CMFCToolBar* m_bar = nullptr;
    ButtonIcons m_icons;
};

CDynToolBarCreater::CDynToolBarCreater() = default;
CDynToolBarCreater::CDynToolBarCreater(const CDynToolBarCreater&) = default;
CDynToolBarCreater& CDynToolBarCreater::operator=(const CDynToolBarCreater&) = default;
CDynToolBarCreater::~CDynToolBarCreater() = default;

bool CDynToolBarCreater::Load(std::wstring path, CWnd* parent) {
    std::wstring directory;
    if (path.empty() || !FileOp::GetAppPath(directory) || !parent) {
        return false;
    }
    Building building(*this, *parent);
    LoadWatch watch;
    if (!LoadToolBarFile(directory + path, building, watch.Sink())) {
        return false;
    }
    if (!CMFCToolBar::GetUserImages() && UserImages().GetCount() > 0) {
        CMFCToolBar::SetUserImages(&UserImages());
    }
    return !m_groups.empty();
}

void CDynToolBarCreater::ReadBarInfo(const CXmlNodeWrapper& node, ToolBarInfo& info) {
    varnhold::XmlCursor element(node);
    ReadToolBarInfo(element, info);
}

void CDynToolBarCreater::AddChildBar(const CXmlNodeWrapper& node, CMFCToolBar* bar) {
    std::wstring directory;
    if (!bar || !FileOp::GetAppPath(directory)) {
        return;
    }
    ButtonIcons icons;
    ReadToolBarButtons(varnhold::XmlCursor(node), [&](const ToolBarInfo& info) { AddItem(*bar, info, icons); });
}

CMFCToolBar* CDynToolBarCreater::GetToolBar(const std::wstring& group, const CString& title) const {
    const auto found = m_groups.find(group);
    if (found == m_groups.end()) {
        return nullptr;
    }
    for (const auto& [bar, name] : found->second) {
        if (bar->GetSafeHwnd() && TitleOf(*bar).CompareNoCase(title) == 0) {
            return bar;
        }
    }
    return nullptr;
}

std::list<CMFCToolBar*> CDynToolBarCreater::GetAllToolBar() const {
    std::list<CMFCToolBar*> all;
    for (const auto& [group, bar] : GetGroupedToolBars()) {
        all.push_back(bar);
    }
    return all;
}

std::list<std::pair<std::wstring, CMFCToolBar*>> CDynToolBarCreater::GetGroupedToolBars() const {
    std::list<std::pair<std::wstring, CMFCToolBar*>> all;
    for (const auto& [group, bars] : m_groups) {
        for (const auto& [bar, name] : bars) {
            all.emplace_back(group, bar);
        }
    }
    return all;
}

std::wstring CDynToolBarCreater::GetName(const CMFCToolBar* bar) const {
    for (const auto& [group, bars] : m_groups) {
        const auto found =
            std::find_if(bars.begin(), bars.end(), [bar](const auto& known) { return known.first == bar; });
        if (found != bars.end()) {
            return found->second;
        }
    }
    return {};
}

bool CDynToolBarCreater::AddCustomBar(const std::wstring& group, CMFCToolBar* bar, const std::wstring& name) {
    if (!bar) {
        return false;
    }
    bar->m_bFromConfig = TRUE;
    const auto found = m_groups.find(group);
    if (found == m_groups.end()) {
        return false;
    }
    found->second.emplace_back(bar, name.empty() ? std::wstring(TitleOf(*bar)) : name);
    return true;
}

namespace {

void ShowBar(CMFCToolBar& bar, bool show, CMDIFrameWndEx& frame) {
    if (bar.GetSafeHwnd() && ((bar.GetStyle() & WS_VISIBLE) != 0) != show) {
        frame.ShowPane(&bar, show, TRUE, FALSE);
    }
}

} // namespace

void CDynToolBarCreater::ShowBars(int show, CMDIFrameWndEx* frame) const {
    if (CMDIFrameWndEx* const target = FrameOr(frame)) {
        for (CMFCToolBar* const bar : GetAllToolBar()) {
            ShowBar(*bar, show != 0, *target);
        }
    }
}

void CDynToolBarCreater::ShowBars(const std::wstring& group, int show, CMDIFrameWndEx* frame) const {
    CMDIFrameWndEx* const target = FrameOr(frame);
    const auto found = m_groups.find(group);
    if (!target || found == m_groups.end()) {
        return;
    }
    for (const auto& [bar, name] : found->second) {
        ShowBar(*bar, show != 0, *target);
    }
}

namespace {

/// The frame's bars are laid out once for all that is docked while it lives, not anew for each.
class DockingTogether {
public:
    explicit DockingTogether(CMDIFrameWndEx& frame)
        : m_guard(&frame), m_manager(CGlobalUtils().GetDockingManager(&frame)) {
        m_manager->LockUpdate(TRUE);
    }
    ~DockingTogether() {
        if (m_guard.IsAlive()) {
            m_manager->LockUpdate(FALSE);
        }
    }
    DockingTogether(const DockingTogether&) = delete;
    DockingTogether& operator=(const DockingTogether&) = delete;

private:
    fx::WindowGuard m_guard; // whoever hears of a docked bar may end the frame
    CDockingManager* m_manager;
};

} // namespace

void CDynToolBarCreater::DockPane(CMDIFrameWndEx* frame) const {
    CMDIFrameWndEx* const target = FrameOr(frame);
    if (target && target->GetSafeHwnd()) {
        const DockingTogether together(*target);
        for (CMFCToolBar* const bar : GetAllToolBar()) {
            if (bar->GetSafeHwnd()) {
                target->DockPane(bar);
            }
        }
    }
}

void CDynToolBarCreater::EnableDocking(std::uint32_t alignment, CMDIFrameWndEx* frame) const {
    if (FrameOr(frame)) {
        for (CMFCToolBar* const bar : GetAllToolBar()) {
            bar->EnableDocking(alignment);
        }
    }
}
