/// docking_host --record FILE: a frame with three toolbars that may be docked everywhere; whenever it is idle it writes
/// where they are as JSON. Closing it keeps that for the next start. For the test of docking by a real mouse.
#include "afxcontrolbars.h"

#include <array>
#include <cstdio>
#include <string>

namespace {

constexpr UINT kFirstBar = 11;
constexpr UINT kFirstCommand = 3001;
constexpr int kButtons = 8;

std::string Text(const CRect& rect) {
    return "[" + std::to_string(rect.left) + "," + std::to_string(rect.top) + "," + std::to_string(rect.right) + "," +
           std::to_string(rect.bottom) + "]";
}

class HostFrame : public CFrameWndEx {
public:
    bool Make() {
        if (!Create(nullptr, L"Docking host", WS_OVERLAPPEDWINDOW, CRect(100, 100, 900, 600))) {
            return false;
        }
        EnableDocking(CBRS_ALIGN_ANY);
        m_client.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 5, 5), this, AFX_IDW_PANE_FIRST);
        UINT id = kFirstBar;
        for (CMFCToolBar& bar : m_bars) {
            bar.Create(this, AFX_DEFAULT_TOOLBAR_STYLE, id);
            bar.SetWindowText((L"Bar " + std::to_wstring(id)).c_str());
            for (int index = 0; index < kButtons; ++index) {
                bar.InsertButton(CMFCToolBarButton(kFirstCommand + static_cast<UINT>(index), -1, L"Ab"));
            }
            bar.EnableDocking(CBRS_ALIGN_ANY);
            DockPane(&bar);
            ++id;
        }
        return true;
    }

    std::string Describe() {
        CRect frame;
        GetClientRect(&frame);
        ClientToScreen(&frame);
        std::string text = "{\"client\":" + Text(frame) + ",\"command\":" + std::to_string(m_command) + ",\"bars\":[";
        for (const CMFCToolBar& bar : m_bars) {
            text += (&bar == m_bars.data() ? "" : ",") + Describe(bar);
        }
        return text + "]}";
    }

protected:
    afx_msg void OnBarCommand(UINT id) { m_command = id; }
    DECLARE_MESSAGE_MAP()

private:
    static std::string Describe(const CMFCToolBar& bar) {
        CRect window;
        bar.GetWindowRect(&window);
        CRect more = bar.GetOverflowRect();
        bar.ClientToScreen(&more);
        CRect caption(0, 0, 0, 0);
        if (const CPaneFrameWnd* const miniFrame = bar.GetParentMiniFrame()) {
            miniFrame->GetCaptionRect(caption);
            miniFrame->ClientToScreen(&caption);
        }
        return "{\"side\":" + std::to_string(bar.IsFloating() ? 0U : bar.GetCurrentAlignment()) +
               ",\"window\":" + Text(window) + ",\"caption\":" + Text(caption) + ",\"more\":" + Text(more) + "}";
    }

    std::array<CMFCToolBar, 3> m_bars;
    CWnd m_client;
    UINT m_command = 0;
};

BEGIN_MESSAGE_MAP(HostFrame, CFrameWndEx)
ON_COMMAND_RANGE(3001, 3099, OnBarCommand)
END_MESSAGE_MAP()

class HostApplication : public CWinAppEx {
public:
    BOOL InitInstance() override {
        SetRegistryKey(L"Barwright docking host");
        auto* const frame = new HostFrame;
        m_pMainWnd = frame;
        if (RecordFile().empty() || !frame->Make()) {
            return FALSE;
        }
        LoadState(frame);
        frame->ShowWindow(SW_SHOW);
        return TRUE;
    }

    BOOL OnIdle(LONG count) override {
        auto* const frame = static_cast<HostFrame*>(m_pMainWnd);
        const std::string text = frame != nullptr ? frame->Describe() : std::string();
        if (!text.empty() && text != m_written) {
            Write(text);
        }
        return CWinAppEx::OnIdle(count);
    }

private:
    static std::wstring RecordFile() {
        int count = 0;
        LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
        const std::wstring file = count > 2 ? words[2] : L"";
        ::LocalFree(words);
        return file;
    }

    /// A reader finds the whole record or the one before.
    void Write(const std::string& text) {
        const std::wstring path = RecordFile();
        std::FILE* const file = ::_wfopen((path + L".new").c_str(), L"wb");
        if (file != nullptr) {
            std::fwrite(text.data(), 1, text.size(), file);
            std::fclose(file);
            if (::MoveFileExW((path + L".new").c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING)) {
                m_written = text;
            }
        }
    }

    std::string m_written;
};

HostApplication g_application;

} // namespace
