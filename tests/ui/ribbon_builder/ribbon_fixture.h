#pragma once

#include "add_ribbon_bar.h"
#include "menu_id_mgr.h"
#include "ribbon_category_ex.h"
#include "tests/support/command_list.h"
#include "tests/support/icon_writer.h"
#include "tests/support/translation_tables.h"
#include "tests/support/ui_test.h"

#include <afxframewndex.h>
#include <afxribbonbar.h>
#include <afxribbonbuttonsgroup.h>
#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>

#include <varnhold/message_box.h>

/// A frame that lives on the stack: its window's end does not delete it.
class StackFrame : public CFrameWndEx {
protected:
    void PostNcDestroy() override {}
};

/// A frame window with a ribbon bar, an installation directory of its own, an empty registry, and message boxes that
/// are kept instead of shown.
class RibbonBuilder : public testing::Test {
protected:
    RibbonBuilder()
        : m_boxHandler([this](const std::wstring& message, int status, HWND owner) {
              m_messages.push_back({message, status, owner});
              return IDOK;
          }) {
        CMenuIdMgr::Destroy();
        CAddRibbonBar::m_smStatusExBtns.clear();
    }
    ~RibbonBuilder() override {
        CMenuIdMgr::Destroy();
        CMenuIdMgr::s_AddBeginID = m_savedNextId;
        CAddRibbonBar::m_smStatusExBtns.clear();
    }
    void SetUp() override {
        ASSERT_TRUE(m_frame.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 1200, 600)));
        ASSERT_TRUE(m_bar.Create(&m_frame));
        m_firstId = static_cast<int>(CMenuIdMgr::s_AddBeginID);
    }
    void TearDown() override {
        if (m_frame.GetSafeHwnd()) {
            m_frame.DestroyWindow();
        }
    }

    /// Writes the file below the installation directory and loads it. `rows` stands below the document element.
    bool Load(const std::string& rows, int show = 1, const char* name = "ribbon.xml") {
        return Load(m_builder, rows, show, name);
    }
    bool Load(CAddRibbonBar& builder, const std::string& rows, int show = 1, const char* name = "ribbon.xml") {
        m_installation.Directory().Write(name, "<ribbon>" + rows + "</ribbon>");
        return builder.Load(std::wstring(name, name + strlen(name)), &m_bar, show);
    }
    /// A row with one category, its one panel holding `elements`.
    static std::string Panel(const std::string& elements) {
        return "<r><c KEYWORD='C' NAME=''><p KEYWORD='P' NAME=''>" + elements + "</p></c></r>";
    }

    CMFCRibbonPanel* FirstPanel() const {
        CMFCRibbonCategory* const category = m_bar.GetCategory(0);
        return category ? category->GetPanel(0) : nullptr;
    }
    CMFCRibbonBaseElement* Element(int index) const { return FirstPanel()->GetElement(index); }

    /// All that the bar holds, with ids relative to the first one that the test took: categories as "[name #id", panels
    /// as
    /// "(name", elements as "class keyword #id", sub-items in braces.
    std::wstring Outline() {
        std::wstring out;
        for (int c = 0; c < m_bar.GetCategoryCount(); ++c) {
            CMFCRibbonCategory* const category = m_bar.GetCategory(c);
            out += L"[" + std::wstring(category->GetName());
            if (const auto* extended = DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, category)) {
                out += L" " + IdText(extended->GetID());
            }
            for (int p = 0; p < category->GetPanelCount(); ++p) {
                CMFCRibbonPanel* const panel = category->GetPanel(p);
                out += L" (" + std::wstring(panel->GetName());
                for (int e = 0; e < panel->GetCount(); ++e) {
                    out += L" " + Describe(panel->GetElement(e));
                }
                out += L")";
            }
            out += L"]";
        }
        return out;
    }

    std::wstring IdText(UINT id) const { return L"#" + std::to_wstring(static_cast<int>(id) - m_firstId); }
    std::wstring Describe(CMFCRibbonBaseElement* element) const {
        const std::string name = element->GetRuntimeClass()->m_lpszClassName;
        std::wstring out(name.begin() + static_cast<int>(name.starts_with("CMFCRibbon") ? 10 : 0), name.end());
        if (element->IsSeparator()) {
            return out;
        }
        std::wstring keyword;
        if (CMenuIdMgr::Ins()->GetMenuMark(static_cast<int>(element->GetID()), keyword)) {
            out += L" " + keyword + L" " + IdText(element->GetID());
        }
        if (auto* const group = DYNAMIC_DOWNCAST(CMFCRibbonButtonsGroup, element)) {
            out += L"{";
            for (int i = 0; i < group->GetCount(); ++i) {
                out += (i ? L", " : L"") + Describe(group->GetButton(i));
            }
            return out + L"}";
        }
        auto* const button = DYNAMIC_DOWNCAST(CMFCRibbonButton, element);
        if (!button || button->GetSubItems().GetSize() == 0) {
            return out;
        }
        out += L"{";
        for (INT_PTR i = 0; i < button->GetSubItems().GetSize(); ++i) {
            out += (i ? L", " : L"") + Describe(button->GetSubItems()[i]);
        }
        return out + L"}";
    }

    int TakenIds() const { return static_cast<int>(CMenuIdMgr::s_AddBeginID) - m_firstId; }
    std::wstring HelpOf(const std::wstring& keyword) const {
        int id = 0;
        std::wstring help;
        if (CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
            CMenuIdMgr::Ins()->GetHelpFile(id, help);
        }
        return help;
    }
    std::vector<UINT> QuickAccessIds() {
        CommandList commands;
        m_bar.GetQuickAccessCommands(commands);
        std::vector<UINT> ids = commands.Ids();
        for (UINT& id : ids) {
            id -= static_cast<UINT>(m_firstId);
        }
        return ids;
    }

    struct Message {
        std::wstring text;
        int status;
        HWND owner;
    };

    const std::uint32_t m_savedNextId = CMenuIdMgr::s_AddBeginID;
    int m_firstId = 0;
    TranslatedInstallation m_installation;
    std::vector<Message> m_messages;
    ScopedMessageBoxHandler m_boxHandler;
    StackFrame m_frame;
    CMFCRibbonBar m_bar{FALSE};
    CAddRibbonBar m_builder;
};
