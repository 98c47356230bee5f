#include "tests/ui/ribbon_bar/ribbon_frame.h"

#include <afxres.h>

#include <numeric>
#include <utility>

#include "afxribboncheckbox.h"
#include "afxRibbonEdit.h"
#include "afxRibbonLabel.h"
#include "afxribbonslider.h"
#include "fx/registered_messages.h"
#include "tests/support/collapsed_panel.h"
#include "tests/support/icon_handle.h"

IMPLEMENT_DYNCREATE(HostCategory, CMFCRibbonCategory)

BEGIN_MESSAGE_MAP(RibbonFrame, CFrameWndEx)
ON_WM_CREATE()
ON_WM_GETMINMAXINFO()
ON_COMMAND_RANGE(commands::firstHandled, commands::lastHandled, OnRibbonCommand)
ON_UPDATE_COMMAND_UI_RANGE(commands::firstHandled, commands::lastHandled, OnUpdateRibbonCommand)
ON_REGISTERED_MESSAGE(AFX_WM_ON_CHANGE_RIBBON_CATEGORY, OnCategoryChanged)
ON_REGISTERED_MESSAGE(AFX_WM_ON_RIBBON_CUSTOMIZE, OnCustomize)
END_MESSAGE_MAP()

int RibbonFrame::OnCreate(LPCREATESTRUCT create) {
    return CFrameWndEx::OnCreate(create) == 0 && bar.Create(this) ? 0 : -1;
}

void RibbonFrame::OnRibbonCommand(UINT id) {
    commands.push_back(id);
    if (onCommand) {
        const auto action = onCommand;
        action();
        return;
    }
    if (id == ::commands::closesFrame) {
        DestroyWindow();
    }
}

void RibbonFrame::OnUpdateRibbonCommand(CCmdUI* update) {
    if (onUpdate) {
        onUpdate();
    }
    update->Enable(update->m_nID != disabledCommand);
    update->SetCheck(update->m_nID == checkedCommand ? 1 : 0);
    if (update->m_nID == renamedCommand) {
        update->SetText(newName);
    }
}

BOOL RibbonFrame::OnShowPopupMenu(CMFCPopupMenu* menu) {
    ++popupsShown;
    return allowsPopups && CFrameWndEx::OnShowPopupMenu(menu);
}

void RibbonFrame::OnClosePopupMenu(CMFCPopupMenu* menu) {
    ++popupsClosed;
    CFrameWndEx::OnClosePopupMenu(menu);
    if (const auto heard = std::exchange(onPopupClosed, nullptr)) {
        heard();
    }
}

BOOL RibbonFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) {
    const bool isRecentFile = id >= ID_FILE_MRU_FIRST && id <= ID_FILE_MRU_LAST;
    if (!handlesRecentFiles || !isRecentFile || code != CN_COMMAND) {
        return CFrameWndEx::OnCmdMsg(id, code, extra, info);
    }
    if (info == nullptr) {
        commands.push_back(id); // a command, not the question whether anybody handles it
    }
    return TRUE;
}

void RibbonFrame::OnGetMinMaxInfo(MINMAXINFO* limits) {
    CFrameWndEx::OnGetMinMaxInfo(limits);
    limits->ptMaxTrackSize = {10000, 10000};
    limits->ptMinTrackSize = {1, 1}; // the system's follows its caption font
}

LRESULT RibbonFrame::OnCategoryChanged(WPARAM, LPARAM lParam) {
    EXPECT_EQ(reinterpret_cast<CMFCRibbonBar*>(lParam), &bar);
    ++categoryChanges;
    return 0;
}

LRESULT RibbonFrame::OnCustomize(WPARAM, LPARAM lParam) {
    customizedBar = reinterpret_cast<CMFCRibbonBar*>(lParam);
    return customizes ? 1 : 0;
}

RibbonBarTest::RibbonBarTest(Activation activation) : m_frame(new RibbonFrame) {
    const DWORD visible = activation == Activation::Active ? WS_VISIBLE : 0;
    if (!m_frame->Create(nullptr, L"Ribbon", WS_OVERLAPPEDWINDOW | visible, CRect(0, 0, 1000, 600))) {
        throw std::runtime_error("the frame could not be created");
    }
    if (visible == 0) {
        ::ShowWindow(m_frame->GetSafeHwnd(), SW_SHOWNOACTIVATE);
    }
    m_window = m_frame->GetSafeHwnd();
    FillBar();
    SetClientWidth(1000);
    PumpPending();
}

RibbonBarTest::~RibbonBarTest() {
    if (::IsWindow(m_window)) {
        m_frame->DestroyWindow();
    }
    PumpPending();
    for (HICON icon : m_icons) {
        ::DestroyIcon(icon);
    }
}

HICON RibbonBarTest::MakeSquareIcon(int side, COLORREF color) {
    return m_icons.emplace_back(
        MakeIcon(side, color, [side](int x, int y) { return x > 1 && y > 1 && x < side - 2 && y < side - 2; }));
}

void RibbonBarTest::FillBar() {
    const auto button = [this](UINT id, LPCTSTR text, COLORREF color) {
        return new CMFCRibbonButton(id, text, MakeSquareIcon(32, color), FALSE, MakeSquareIcon(16, color));
    };
    CMFCRibbonCategory* home = Bar().AddCategory(L"Home", 0, 0);
    CMFCRibbonPanel* clipboard = home->AddPanel(L"Clipboard");
    clipboard->Add(button(commands::paste, L"Paste", RGB(200, 120, 30)));
    clipboard->Add(button(commands::cut, L"Cut", RGB(180, 30, 30)));
    clipboard->Add(button(commands::copy, L"Copy", RGB(30, 90, 180)));
    clipboard->Add(button(commands::format, L"Format Painter", RGB(30, 150, 60)));
    CMFCRibbonPanel* text = home->AddPanel(L"Text");
    auto* group = new CMFCRibbonButtonsGroup;
    group->AddButton(new CMFCRibbonButton(commands::bold, L"", MakeSquareIcon(16, RGB(0, 0, 0)), FALSE,
                                          MakeSquareIcon(16, RGB(0, 0, 0))));
    group->AddButton(new CMFCRibbonButton(commands::italic, L"", MakeSquareIcon(16, RGB(90, 90, 90)), FALSE,
                                          MakeSquareIcon(16, RGB(90, 90, 90))));
    text->Add(group);
    text->AddSeparator();
    auto* edit = new CMFCRibbonEdit(commands::size, 70, L"Size:");
    edit->SetEditText(L"12");
    text->Add(edit);
    text->Add(new CMFCRibbonLabel(L"A label"));
    auto* slider = new CMFCRibbonSlider(commands::zoom, 100);
    slider->SetZoomButtons();
    slider->SetPos(40);
    text->Add(slider);
    text->AddSeparator();
    text->Add(new CMFCRibbonCheckBox(commands::options, L"Options"));
    CMFCRibbonCategory* view =
        Bar().AddCategory(L"View", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(HostCategory));
    view->AddPanel(L"Search")->Add(button(commands::find, L"Find", RGB(120, 60, 160)));
    view->GetPanel(0)->Add(button(commands::noHandler, L"Nobody", RGB(60, 60, 60)));
}

CMFCRibbonCategory* RibbonBarTest::AddManyButtons(int count, int perPanel) {
    CMFCRibbonCategory* category = Bar().AddCategory(L"Many", 0, 0);
    CMFCRibbonPanel* panel = nullptr;
    for (int index = 0; index < count; ++index) {
        if (index % perPanel == 0) {
            panel = category->AddPanel(L"Panel");
        }
        panel->Add(new CMFCRibbonButton(commands::firstHandled + 1000 + static_cast<UINT>(index), L"Button"));
    }
    return category;
}

std::vector<UINT> RibbonBarTest::ManyCommands(int count) {
    std::vector<UINT> ids(static_cast<size_t>(count));
    std::iota(ids.begin(), ids.end(), commands::firstHandled + 1000);
    return ids;
}

void RibbonBarTest::FillQuickAccess(int count) {
    AddManyButtons(count, 20);
    Bar().SetQuickAccessCommands(CommandList(ManyCommands(count)));
    SetClientWidth(300);
}

std::vector<COLORREF> RibbonBarTest::ShownPixels() {
    CRect client;
    Bar().GetClientRect(client);
    CClientDC dc(&Bar());
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc, client.Width(), client.Height());
    CBitmap* const previous = memory.SelectObject(&bitmap);
    memory.BitBlt(0, 0, client.Width(), client.Height(), &dc, 0, 0, SRCCOPY);
    memory.SelectObject(previous);
    std::vector<COLORREF> pixels(static_cast<size_t>(client.Width()) * static_cast<size_t>(client.Height()));
    bitmap.GetBitmapBits(static_cast<DWORD>(pixels.size() * sizeof(COLORREF)), pixels.data());
    return pixels;
}

CMFCRibbonBaseElement& RibbonBarTest::Element(UINT id) {
    CMFCRibbonBaseElement* element = Bar().FindByID(id, TRUE, TRUE);
    if (element == nullptr) {
        throw std::runtime_error("no element has the id");
    }
    return *element;
}

void RibbonBarTest::SetQuickAccessDefault(std::initializer_list<UINT> visible, std::initializer_list<UINT> others) {
    CMFCRibbonQuickAccessToolBarDefaultState state;
    for (const UINT id : visible) {
        state.AddCommand(id);
    }
    for (const UINT id : others) {
        state.AddCommand(id, FALSE);
    }
    Bar().SetQuickAccessDefaultState(state);
    PumpPending();
}

std::vector<UINT> RibbonBarTest::QuickAccessCommands() {
    CommandList list;
    Bar().GetQuickAccessCommands(list);
    return list.Ids();
}

void RibbonBarTest::SetClientWidth(int width) {
    CRect window(0, 0, width, 600);
    m_frame->CalcWindowRect(window);
    m_frame->SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CRect client;
    m_frame->GetClientRect(client);
    EXPECT_EQ(client.Width(), width) << "the system has another limit";
    PumpPending();
}

CMFCRibbonPanel& RibbonBarTest::Collapse(int panel) {
    return CollapsePanel(*Bar().GetActiveCategory(), panel, [this](int width) { SetClientWidth(width); });
}
