#include "add_ribbon_bar.h"

#include "config/command_id.h"
#include "config/element_kind.h"
#include "config/load_watch.h"
#include "config/missing_file_message.h"
#include "config/ribbon_attributes.h"
#include "config/ribbon_element_factory.h"
#include "config/ribbon_file.h"
#include "elements/icon_file.h"
#include "menu_id_mgr.h"
#include "ribbon_category_ex.h"
#include "ribbon_icon_button.h"

#include <afxribbonbar.h>
#include <afxribbonbuttonsgroup.h>
#include <varnhold/file_op.h>
#include <varnhold/strings_mfc.h>

CString CAddRibbonBar::m_sAppPath;
CString CAddRibbonBar::m_strHelpF1 = L"按F1键获得此功能视频";
std::map<std::wstring, std::pair<std::wstring, std::vector<CAddRibbonBar::_RibbonInfo>>>
    CAddRibbonBar::m_smStatusExBtns;

CAddRibbonBar::CAddRibbonBar() {
    std::wstring directory;
    if (m_sAppPath.IsEmpty() && FileOp::GetAppPath(directory)) {
        m_sAppPath = wstring2CString(directory);
    }
}

bool CAddRibbonBar::Load(const std::wstring& path, CMFCRibbonBar* bar, int show) {
    if (path.empty()) {
        return false;
    }
    // The caller may have passed m_cfgPath itself.
    const std::wstring newPath = path; // NOLINT(performance-unnecessary-copy-initialization)
    m_cfgPath.clear();
    m_cmdList.clear();
    if (!bar) {
        return false;
    }
    std::wstring directory;
    if (!FileOp::GetAppPath(directory)) {
        return false;
    }
    const std::wstring fullPath = directory + newPath;
    RibbonRecords rows;
    LoadWatch watch;
    if (!LoadRibbonFile(fullPath, rows, watch.Sink())) {
        ShowMissingFileMessage(fullPath);
        return false;
    }

    const IconTrials trials; // of thousands of buttons with a few hundred files
    m_cfgPath = newPath;
    const int countBefore = bar->GetCategoryCount();
    for (const RibbonRecord& row : rows.top) {
        AddRow(row, *bar);
    }
    const int countAfter = bar->GetCategoryCount();
    if (countAfter > countBefore) {
        m_firstAddedCategory = countBefore;
        m_lastAddedCategory = countAfter - 1;
    }
    if (show == 0) {
        HideAddedCategories(*bar);
    } else {
        ShowQuickAccessCommands(*bar);
    }
    return true;
}

void CAddRibbonBar::AddRow(const RibbonRecord& row, CMFCRibbonBar& bar) {
    switch (KindOfRow(row.info.keyword)) {
    case RibbonRowKind::QuickAccess:
        for (const RibbonRecord& item : row.children) {
            m_qaKeywords.emplace_back(item.info.keyword);
        }
        break;
    case RibbonRowKind::StatusButtons: {
        std::vector<_RibbonInfo> buttons;
        for (const RibbonRecord& button : row.children) {
            buttons.push_back(ToRibbonInfo(button.info));
        }
        m_smStatusExBtns[m_cfgPath] = {std::wstring(row.info.keyword), std::move(buttons)};
        break;
    }
    case RibbonRowKind::Categories:
        for (const RibbonRecord& category : row.children) {
            AddCategory(category, bar);
        }
        break;
    }
}

void CAddRibbonBar::AddCategory(const RibbonRecord& category, CMFCRibbonBar& bar) {
    const RibbonInfo info = ToRibbonInfo(category.info);
    m_cmdList.push_back(info.cmd);
    CRuntimeClass* const extended = info.cateTab ? nullptr : RUNTIME_CLASS(CMFCRibbonCategoryEx);
    CMFCRibbonCategory* const added =
        bar.AddCategory(info.name.c_str(), 0, 0, CSize(16, 16), CSize(32, 32), -1, extended);
    if (extended) {
        const int id = ObtainCommandId(info, HelpOffer::No);
        if (auto* const addedExtended = DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, added)) {
            addedExtended->SetID(static_cast<UINT>(id));
        }
    }
    if (!added) {
        return;
    }
    for (const RibbonRecord& panel : category.children) {
        m_cmdList.emplace_back(panel.info.cmd);
        CMFCRibbonPanel* const addedPanel = added->AddPanel(panel.info.name.data());
        if (!addedPanel) {
            continue;
        }
        for (const RibbonRecord& element : panel.children) {
            AddElement(element, *addedPanel);
        }
    }
}

void CAddRibbonBar::HideAddedCategories(CMFCRibbonBar& bar) const {
    if (m_firstAddedCategory < 0) {
        return;
    }
    for (int index = m_firstAddedCategory; index <= m_lastAddedCategory; ++index) {
        bar.ShowCategory(index, FALSE);
    }
}

void CAddRibbonBar::ShowQuickAccessCommands(CMFCRibbonBar& bar) const {
    std::vector<unsigned int> ids;
    if (GetQAToolBar(ids) == 0) {
        return;
    }
    CList<UINT, UINT> commands;
    vector2List(ids, commands);
    bar.SetQuickAccessCommands(commands, TRUE);
}

bool CAddRibbonBar::GetRowInfo(const CXmlNodeWrapper& node, _RibbonInfo& info) const {
    return ReadRibbonInfo(node, info, Unreported());
}

void CAddRibbonBar::AddList(const CXmlNodeWrapper& node, CMFCRibbonPanel* panel) {
    if (panel) {
        AddElement(ReadRibbonElement(node, Unreported()).top.front(), *panel);
    }
}

void CAddRibbonBar::AddElement(const RibbonRecord& element, CMFCRibbonPanel& panel) {
    const RibbonInfo info = ToRibbonInfo(element.info);
    m_cmdList.push_back(info.cmd);
    const auto id = static_cast<unsigned int>(ObtainCommandId(info, HelpOffer::Yes));
    if (info.groupBefore) {
        panel.AddSeparator();
    }
    CMFCRibbonBaseElement* const created =
        element.children.empty() ? CreateACtrl(id, info, this) : CreateWithSubItems(info, element.children, id);
    // The panel owns the element from here on.
    if (created) {
        panel.Add(created);
    }
}

CMFCRibbonBaseElement* CAddRibbonBar::CreateWithSubItems(const RibbonInfo& element,
                                                         std::span<const RibbonRecord> subItems, unsigned int id) {
    CMFCRibbonUNIcoButton* button = nullptr;
    CMFCRibbonButtonsGroup* group = nullptr;
    switch (KindOfElement(element.type)) {
    case ElementKind::Button:
        // Every element of this kind is an icon-file button, the small one too.
        button = static_cast<CMFCRibbonUNIcoButton*>(CreateACtrl(id, element, this));
        break;
    case ElementKind::Group:
        group = new CMFCRibbonButtonsGroup;
        break;
    default:
        return nullptr;
    }
    for (const RibbonRecord& subItem : subItems) {
        const RibbonInfo info = ToRibbonInfo(subItem.info);
        m_cmdList.push_back(info.cmd);
        const auto subId = static_cast<unsigned int>(ObtainCommandId(info, HelpOffer::Yes));
        CMFCRibbonBaseElement* const created = CreateACtrl(subId, info, this);
        // Button and group own what is added to them.
        if (created && button) {
            button->AddSubItem(created, -1);
        } else if (created) {
            group->AddButton(created);
        }
    }
    if (button) {
        return button;
    }
    return group;
}

CMFCRibbonBaseElement* CAddRibbonBar::CreateACtrl(unsigned int id, const _RibbonInfo& info,
                                                  const CAddRibbonBar* owner) {
    return CreateRibbonElement(id, info, owner && owner->getAcceptF1() ? F1Hint::Yes : F1Hint::No);
}

CMFCRibbonUNIcoButton* CAddRibbonBar::CreateBtnFromKey(CMFCRibbonBar* bar, const std::wstring& keyword, int, int& id,
                                                       int keepLargePath) {
    if (!bar) {
        return nullptr;
    }
    const CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    int registeredId = 0;
    std::wstring name;
    std::wstring toolTip;
    if (!registry.GetMenuId(keyword, registeredId) || !registry.GetMenuName(keyword, name) ||
        !registry.GetToolTip(registeredId, toolTip)) {
        return nullptr;
    }
    id = registeredId;
    const auto* const found =
        DYNAMIC_DOWNCAST(CMFCRibbonUNIcoButton, bar->FindByID(static_cast<UINT>(id), TRUE, FALSE));
    if (!found) {
        return nullptr;
    }
    auto* const button = new CMFCRibbonUNIcoButton(static_cast<UINT>(id), name.c_str(), found->GetIconPath(TRUE), FALSE,
                                                   found->GetIconPath(FALSE), FALSE, FALSE, keepLargePath);
    button->SetToolTipText(toolTip.c_str());
    button->SetDescription(m_strHelpF1);
    return button;
}

int CAddRibbonBar::GetAddIndex(int& first, int& last) const {
    first = m_firstAddedCategory;
    last = m_lastAddedCategory;
    return first < 0 && last < 0 ? 0 : last - first + 1;
}

int CAddRibbonBar::GetQAToolBar(std::vector<unsigned int>& ids) const {
    ids.clear();
    const CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    for (const std::wstring& keyword : m_qaKeywords) {
        int id = 0;
        if (registry.GetMenuId(keyword, id)) {
            ids.push_back(static_cast<unsigned int>(id));
        }
    }
    return static_cast<int>(ids.size());
}

void CAddRibbonBar::vector2List(const std::vector<unsigned int>& ids, CList<UINT, UINT>& list) {
    for (const unsigned int id : ids) {
        list.AddTail(id);
    }
}
