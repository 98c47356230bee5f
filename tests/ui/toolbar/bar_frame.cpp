#include "tests/ui/toolbar/bar_frame.h"

BEGIN_MESSAGE_MAP(BarFrame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(3000, 3999, OnBarCommand)
ON_UPDATE_COMMAND_UI_RANGE(3000, 3999, OnUpdateBarCommand)
END_MESSAGE_MAP()

int BarFrame::OnCreate(LPCREATESTRUCT create) {
    if (CFrameWndEx::OnCreate(create) == -1 || !bar.Create(this)) {
        return -1;
    }
    bar.EnableDocking(CBRS_ALIGN_ANY);
    EnableDocking(CBRS_ALIGN_ANY);
    DockPane(&bar);
    return 0;
}

void BarFrame::OnBarCommand(UINT id) { commands.push_back(id); }

void BarFrame::OnUpdateBarCommand(CCmdUI* state) {
    state->Enable(state->m_nID != disabled);
    state->SetCheck(state->m_nID == checked ? 1 : 0);
}

void AddImages(CMFCToolBarImages& images, int count) {
    const CSize size(images.GetImageSize());
    HDC screen = ::GetDC(nullptr);
    HDC memory = ::CreateCompatibleDC(screen);
    HBITMAP bitmap = ::CreateCompatibleBitmap(screen, size.cx * count, size.cy);
    HGDIOBJ before = ::SelectObject(memory, bitmap);
    for (int i = 0; i < count; ++i) {
        const CRect rect(i * size.cx, 0, (i + 1) * size.cx, size.cy);
        HBRUSH brush = ::CreateSolidBrush(RGB(200 - 40 * i, 40 * i, 90));
        ::FillRect(memory, rect, brush);
        ::DeleteObject(brush);
    }
    ::SelectObject(memory, before);
    images.AddImage(bitmap);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
}

ToolBarTest::ToolBarTest() : m_frame(new BarFrame) {
    CMFCToolBar::ResetAllImages();
    CMFCToolBar::SetUserImages(nullptr);
    CMFCToolBar::SetSizes(CSize(23, 22), CSize(16, 15));
    AddImages(*CMFCToolBar::GetImages(), 4);
    m_frame->Create(nullptr, L"Bars", WS_OVERLAPPEDWINDOW, CRect(100, 80, 700, 480));
    m_window = m_frame->m_hWnd;
    Bar().InsertButton(CMFCToolBarButton(3001, 0, L"One"));
    Bar().InsertButton(CMFCToolBarButton(3002, 1, L"T&wo"));
    Bar().InsertSeparator();
    Bar().InsertButton(CMFCToolBarButton(3003, 2, L"Three"));
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    LayOut();
}

ToolBarTest::~ToolBarTest() {
    CMFCPopupMenu::CloseAll();
    if (::IsWindow(m_window)) {
        ::DestroyWindow(m_window);
    }
    PumpPending();
}

void ToolBarTest::LayOut() {
    m_frame->RecalcLayout();
    Bar().AdjustLocations();
    PumpPending();
}

CString ToolBarTest::Contents() {
    CString contents;
    for (int i = 0; i < Bar().GetCount(); ++i) {
        const CMFCToolBarButton* button = Bar().GetButton(i);
        CString part;
        if (button->m_nStyle & TBBS_SEPARATOR) {
            part = L"|";
        } else {
            part.Format(L"%u", button->m_nID);
        }
        contents += (contents.IsEmpty() ? L"" : L" ") + part;
    }
    return contents;
}

CPoint ToolBarTest::CenterOf(int index) {
    CRect rect;
    Bar().GetItemRect(index, rect);
    return rect.CenterPoint();
}
