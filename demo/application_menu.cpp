#include "application_menu.h"

#include "library_context.h"
#include "menu_id_mgr.h"
#include "ribbon_icon_button.h"
#include "viewer_text.h"

#include <afxRibbonMainPanel.h>

#include <memory>
#include <string>
#include <vector>

namespace {

constexpr char kTitle[] = "MenuFile";
constexpr wchar_t kRecent[] = L"QK_DEF_ZJWJ";
constexpr wchar_t kExit[] = L"FileExit";
constexpr wchar_t kIcons[] = L"pic\\skin\\icon\\modle\\";
// Pixels at 96 DPI.
constexpr int kTextMargin = 14;
constexpr int kButtonHeight = 32;
constexpr int kRecentWidth = 280;

/// A row of the menu. One without an icon is a heading with a menu of its own, which is named like a panel.
struct Row {
    const wchar_t* keyword;
    const wchar_t* icon = nullptr;
    std::vector<Row> items = {};
};

/// An empty keyword: a line between two groups.
const std::vector<Row>& Rows() {
    static const std::vector<Row> rows = {
        {L"FileOpen", L"open"},
        {L"PictureSave", L"save"},
        {L"PagePrint", L"print-page"},
        {L"PrintPreview", L"preview"},
        {L""},
        {L"CatSettings",
         L"settings",
         {{L"PanelLanguage",
           L"settings",
           {{L"LanguageChinese", L"chinese"}, {L"LanguageEnglish", L"english"}, {L"LanguageHebrew", L"hebrew"}}},
          {L"PanelAppearance", L"skin", {{L"SkinSilver", L"skin-silver"}, {L"SkinBlack", L"skin-black"}}},
          {L"PanelWindow",
           L"ribbon-minimize",
           {{L"ClassicBars", L"classic-bars"},
            {L"RibbonMinimize", L"ribbon-minimize"},
            {L"QuickAccessBelow", L"quick-access-below"}}}}},
        {L"Options", L"options"},
        {L"About", L"about"}};
    return rows;
}

/// The row's button; null for a command that is not configured.
std::unique_ptr<CMFCRibbonButton> MakeButton(const Row& row) {
    int id = 0;
    if (!CMenuIdMgr::Ins()->GetMenuId(row.keyword, id) && row.items.empty()) {
        return nullptr;
    }
    const std::wstring path = std::wstring(kIcons) + row.icon + L".ico";
    auto button =
        std::make_unique<CMFCRibbonUNIcoButton>(static_cast<UINT>(row.items.empty() ? id : 0), BarText(row.keyword),
                                                GetIconPathStr(path, 32), FALSE, GetIconPathStr(path, 16));
    for (const Row& item : row.items) {
        if (auto child = MakeButton(item)) {
            button->AddSubItem(child.release());
        }
    }
    return button;
}

} // namespace

void ApplicationMenu::Attach(CMFCRibbonBar& ribbon) { m_ribbon = &ribbon; }

void ApplicationMenu::Detach() {
    if (m_ribbon != nullptr) {
        m_ribbon->SetApplicationButton(nullptr, CSize(0, 0));
        m_ribbon = nullptr;
    }
}

void ApplicationMenu::Build() {
    const std::wstring title = ViewerText(kTitle);
    m_button.SetText(title.c_str());
    m_button.SetKeys(L"f");
    m_button.SetToolTipText(ViewerText(kTitle).c_str());
    CClientDC dc(nullptr);
    CFont* const font = dc.SelectObject(&afxGlobalData.fontRegular);
    const int text = dc.GetTextExtent(title.c_str()).cx;
    dc.SelectObject(font);
    const double scale = afxGlobalData.GetRibbonImageScale();
    m_ribbon->SetApplicationButton(&m_button, CSize(static_cast<int>(text / scale) + 2 * kTextMargin, kButtonHeight));
    CMFCRibbonMainPanel* const panel = m_ribbon->AddMainCategory(title.c_str(), 0, 0);
    for (const Row& row : Rows()) {
        if (*row.keyword == 0) {
            panel->Add(new CMFCRibbonSeparator(TRUE));
        } else if (auto button = MakeButton(row)) {
            panel->Add(button.release());
        }
    }
    panel->AddRecentFilesList(BarText(kRecent).c_str(), kRecentWidth);
    int exit = 0;
    if (CMenuIdMgr::Ins()->GetMenuId(kExit, exit)) {
        panel->AddToBottom(new CMFCRibbonMainPanelButton(static_cast<UINT>(exit), BarText(kExit).c_str(), -1));
    }
}
