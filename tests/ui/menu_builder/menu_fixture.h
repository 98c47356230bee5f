#pragma once

#include "dyn_menu_creater.h"
#include "menu_id_mgr.h"
#include "tests/support/translation_tables.h"
#include "tests/support/ui_test.h"

#include <afxframewndex.h>
#include <afxwinappex.h>

#include <varnhold/message_box.h>
#include <varnhold/xml.h>

#include <string>
#include <vector>

/// Reaches what a derived class of a host can.
class OpenMenuCreater : public CDynMenuCreater {
public:
    using CDynMenuCreater::AddMenu;
    using CDynMenuCreater::CreateAccel;
    using CDynMenuCreater::GetMenuInfo;
    using CDynMenuCreater::InsertAMenu;
    using CDynMenuCreater::m_nAccelCount;
    using CDynMenuCreater::m_nBeginId;
    using CDynMenuCreater::m_nCurId;
    using CDynMenuCreater::m_pAccel;
    using CDynMenuCreater::reset;
    using CDynMenuCreater::SetAccelFlag;
};

/// An installation directory of its own, an empty registry, and message boxes that are kept instead of shown.
class MenuBuilder : public testing::Test {
protected:
    MenuBuilder()
        : m_boxHandler([this](const std::wstring& message, int status, HWND owner) {
              m_messages.push_back({message, status, owner});
              return IDOK;
          }) {
        CMenuIdMgr::Destroy();
        m_firstId = CMenuIdMgr::s_AddBeginID;
    }
    ~MenuBuilder() override {
        CMenuIdMgr::Destroy();
        CMenuIdMgr::s_AddBeginID = m_firstId;
    }

    bool Load(const std::string& branches) { return Load(m_creater, branches); }
    bool Load(CDynMenuCreater& creater, const std::string& branches) const {
        m_installation.Directory().Write("menu.xml", "<menu>" + branches + "</menu>");
        return creater.Load(L"menu.xml");
    }
    static CXmlNodeWrapper Node(const std::string& xml) {
        CXmlDocumentWrapper document;
        EXPECT_TRUE(document.LoadFromMemory(xml));
        return document.GetDocumentElement();
    }

    /// All that a menu shows: "text#id" with ids relative to the first one that the test could take, "-" for a
    /// separator, "text{...}" for a popup.
    std::wstring Outline(HMENU menu) const {
        std::wstring out;
        for (int item = 0; item < ::GetMenuItemCount(menu); ++item) {
            wchar_t text[200] = {};
            ::GetMenuStringW(menu, static_cast<UINT>(item), text, 200, MF_BYPOSITION);
            out += out.empty() ? L"" : L" ";
            out += text;
            if (const HMENU popup = ::GetSubMenu(menu, item)) {
                out += L"{" + Outline(popup) + L"}";
            } else if (::GetMenuState(menu, static_cast<UINT>(item), MF_BYPOSITION) & MF_SEPARATOR) {
                out += L"-";
            } else {
                const UINT id = ::GetMenuItemID(menu, item);
                out += id == ID_FILE_MRU_FILE1 ? L"#recent" : L"#" + std::to_wstring(static_cast<int>(id - m_firstId));
            }
        }
        return out;
    }
    std::wstring Outline() const { return Outline(m_creater.m_hMenu); }
    int TakenIds() const { return static_cast<int>(CMenuIdMgr::s_AddBeginID - m_firstId); }

    struct Message {
        std::wstring text;
        int status;
        HWND owner;
    };
    TranslatedInstallation m_installation;
    std::vector<Message> m_messages;
    ScopedMessageBoxHandler m_boxHandler;
    unsigned int m_firstId = 0;
    OpenMenuCreater m_creater;
};

/// A frame that lives on the stack: its window's end does not delete it.
class MenuFrame : public CFrameWndEx {
protected:
    void PostNcDestroy() override {}
};

/// With a main frame whose accelerators are known.
class MenuShortcuts : public MenuBuilder {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_frame.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300)));
        m_mainBefore = AfxGetThread()->m_pMainWnd;
        AfxGetThread()->m_pMainWnd = &m_frame;
    }
    void TearDown() override {
        AfxGetThread()->m_pMainWnd = m_mainBefore;
        m_frame.DestroyWindow();
    }
    void GiveFrame(std::vector<ACCEL> entries) {
        m_frame.ReplaceAccelTable(::CreateAcceleratorTableW(entries.data(), static_cast<int>(entries.size())));
    }
    /// "flags key cmd" of each, in hexadecimal; ids of the test relative to its first.
    std::wstring Describe(const ACCEL* entries, int count) const {
        std::wstring out;
        for (int i = 0; i < count; ++i) {
            wchar_t text[40];
            const unsigned int cmd = entries[i].cmd;
            swprintf(text, 40, L"%02X %02X %X;", entries[i].fVirt & 0x7F, entries[i].key,
                     cmd >= (m_firstId & 0xFFFF) ? cmd - (m_firstId & 0xFFFF) : cmd);
            out += text;
        }
        return out;
    }
    std::wstring OfCreater() const { return Describe(m_creater.m_pAccel, m_creater.m_nAccelCount); }
    std::wstring OfFrame() const {
        ACCEL entries[50];
        return Describe(entries,
                        m_frame.m_hAccelTable ? ::CopyAcceleratorTableW(m_frame.m_hAccelTable, entries, 50) : 0);
    }

    MenuFrame m_frame;
    CWnd* m_mainBefore = nullptr;
};
