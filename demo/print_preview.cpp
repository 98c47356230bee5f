#include "print_preview.h"

#include "scaled.h"
#include "viewer_text.h"

#include <afxglobals.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Pixels at 96 DPI.
constexpr int kMargin = 8;
constexpr int kGap = 4;
constexpr int kGroupGap = 14;
constexpr int kRoomMargin = 24;
constexpr int kWidth = 900;
constexpr int kHeight = 640;
constexpr int kStep = 48;
constexpr int kShadow = 3;
constexpr double kUsualDots = 96;
constexpr double kInch = 25.4;
constexpr double kPercent = 100;

constexpr UINT kFirstButton = 200;

enum ButtonId : UINT { IdPrint = kFirstButton, IdPrevious, IdNext, IdLarger, IdSmaller, IdWhole, IdClose };

struct ButtonRow {
    const char* name; ///< In the record.
    const char* text;
    const wchar_t* icon;
    const wchar_t* mirroredIcon; ///< Where one reads from the right.
    bool beginsGroup;
};
/// In the order of ButtonId. The number of the page stands between its two buttons.
constexpr std::array<ButtonRow, 7> kRows = {{{"print", "PreviewPrint", L"print-page", L"print-page", false},
                                             {"previous", "PreviewPrevious", L"pan-west", L"pan-east", true},
                                             {"next", "PreviewNext", L"pan-east", L"pan-west", false},
                                             {"larger", "PreviewLarger", L"zoom-in", L"zoom-in", true},
                                             {"smaller", "PreviewSmaller", L"zoom-out", L"zoom-out", false},
                                             {"whole", "PreviewWhole", L"page-portrait", L"page-portrait", false},
                                             {"close", "PreviewClose", L"close", L"close", true}}};

struct KeyRow {
    UINT key;
    UINT id;
};
constexpr std::array<KeyRow, 9> kKeys = {{{VK_PRIOR, IdPrevious},
                                          {VK_NEXT, IdNext},
                                          {VK_ADD, IdLarger},
                                          {VK_OEM_PLUS, IdLarger},
                                          {VK_SUBTRACT, IdSmaller},
                                          {VK_OEM_MINUS, IdSmaller},
                                          {'0', IdWhole},
                                          {VK_NUMPAD0, IdWhole},
                                          {'P', IdPrint}}};

COLORREF Darker(COLORREF color) {
    constexpr int percent = 70;
    const auto part = [](int value) { return value * percent / 100; };
    return RGB(part(GetRValue(color)), part(GetGValue(color)), part(GetBValue(color)));
}

double DotsPerInch() { return kUsualDots * afxGlobalData.GetRibbonImageScale(); }

} // namespace

BEGIN_MESSAGE_MAP(CPrintPreview, CDialogWindow)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_GETMINMAXINFO()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONUP()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

CPrintPreview::CPrintPreview(DialogLook look, const PrintPages& pages, std::function<void(CWnd& owner)> print)
    : CDialogWindow(std::move(look)), m_pages(pages), m_print(std::move(print)) {}

void CPrintPreview::Show(CWnd& owner, const std::wstring& title) {
    CRect around;
    owner.GetWindowRect(around);
    const CSize size(std::min(Scaled(kWidth), std::max(around.Width(), Scaled(kWidth) / 2)),
                     std::min(Scaled(kHeight), std::max(around.Height(), Scaled(kHeight) / 2)));
    if (Make(owner, title, WS_OVERLAPPEDWINDOW | WS_POPUP, size) && MakeControls()) {
        PlaceControls();
        ShowState();
        m_buttons[0].SetFocus();
        Run();
    }
}

bool CPrintPreview::MakeControls() {
    SetDefaultButton(IdPrint);
    for (std::size_t i = 0; i < kButtons; ++i) {
        const ButtonRow& row = kRows[i];
        if (!AddButton(m_buttons[i], kFirstButton + static_cast<UINT>(i), ViewerText(row.text),
                       IsMirrored() ? row.mirroredIcon : row.icon)) {
            return false;
        }
    }
    return AddLabel(m_pageText, m_pages.PageText(0));
}

void CPrintPreview::PlaceControls() {
    if (m_pageText.GetSafeHwnd() == nullptr) {
        return; // sized before its controls are there
    }
    CClientDC dc(this);
    CFont* const before = dc.SelectObject(&afxGlobalData.fontRegular);
    const int text =
        static_cast<int>(dc.GetTextExtent(m_pages.PageText(m_pages.Count() - 1).c_str()).cx) + 2 * Scaled(kMargin);
    dc.SelectObject(before);
    int left = Scaled(kMargin);
    for (std::size_t i = 0; i < kButtons; ++i) {
        const CSize size = ButtonSize(kFirstButton + static_cast<UINT>(i));
        left += kRows[i].beginsGroup ? Scaled(kGroupGap) : 0;
        m_buttons[i].MoveWindow(left, Scaled(kMargin), size.cx, size.cy);
        left += size.cx + Scaled(kGap);
        if (kFirstButton + i == IdPrevious) {
            m_pageText.MoveWindow(left, Scaled(kMargin), text, size.cy);
            left += text + Scaled(kGap);
        }
    }
}

// ---- what it does

BOOL CPrintPreview::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    if (HIWORD(wParam) == BN_CLICKED && id >= kFirstButton && id < kFirstButton + kButtons) {
        Do(id);
        return TRUE;
    }
    return CDialogWindow::OnCommand(wParam, lParam);
}

void CPrintPreview::Do(UINT id) {
    switch (id) {
    case IdPrint:
        m_print(*this);
        break;
    case IdPrevious:
        TurnTo(m_page - 1);
        break;
    case IdNext:
        TurnTo(m_page + 1);
        break;
    case IdLarger:
        SetZoom(NextZoom(Percent(), 1));
        break;
    case IdSmaller:
        SetZoom(NextZoom(Percent(), -1));
        break;
    case IdWhole:
        SetZoom(0);
        break;
    default:
        EndModalLoop(IDCANCEL);
        break;
    }
}

// The keys that controls of a dialog do not use.
bool CPrintPreview::DoKey(UINT key) {
    const auto* const row =
        std::find_if(kKeys.begin(), kKeys.end(), [key](const KeyRow& one) { return one.key == key; });
    if (row != kKeys.end() && (row->id != IdPrint || ::GetKeyState(VK_CONTROL) < 0)) {
        Do(row->id);
        return true;
    }
    if (key == VK_HOME || key == VK_END) {
        TurnTo(key == VK_HOME ? 0 : m_pages.Count() - 1);
        return true;
    }
    return false;
}

BOOL CPrintPreview::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN && DoKey(static_cast<UINT>(message->wParam))) {
        return TRUE;
    }
    return CDialogWindow::PreTranslateMessage(message);
}

void CPrintPreview::TurnTo(int page) {
    m_page = std::clamp(page, 0, m_pages.Count() - 1);
    m_scrollAcross = m_scrollDown = 0;
    ShowState();
}

void CPrintPreview::SetZoom(double percent) {
    m_zoom = percent;
    ShowState();
}

void CPrintPreview::ScrollBy(int across, int down) {
    const PreviewPlace place = Place();
    m_scrollAcross = place.scrollAcross + across;
    m_scrollDown = place.scrollDown + down;
    ShowState();
}

void CPrintPreview::ShowState() {
    const PreviewPlace place = Place();
    m_scrollAcross = place.scrollAcross;
    m_scrollDown = place.scrollDown;
    m_pageText.SetWindowText(m_pages.PageText(m_page).c_str());
    const auto enable = [this](UINT id, bool isEnabled) { m_buttons[id - kFirstButton].EnableWindow(isEnabled); };
    CWnd* const focus = GetFocus();
    enable(IdPrevious, m_page > 0);
    enable(IdNext, m_page + 1 < m_pages.Count());
    enable(IdLarger, NextZoom(Percent(), 1) > Percent());
    enable(IdSmaller, NextZoom(Percent(), -1) < Percent());
    enable(IdWhole, m_zoom > 0);
    if (focus != nullptr && !focus->IsWindowEnabled()) {
        m_buttons[0].SetFocus(); // keys go nowhere from a disabled button
    }
    RedrawWindow(SheetArea(), nullptr, RDW_INVALIDATE);
}

// ---- where it is

CRect CPrintPreview::SheetArea() const {
    CRect area;
    GetClientRect(area);
    area.top += RowHeight() + 2 * Scaled(kMargin);
    return area;
}

PreviewRoom CPrintPreview::Room() const {
    const CRect area = SheetArea();
    return {area.Width(), area.Height(), Scaled(kRoomMargin)};
}

double CPrintPreview::Percent() const { return m_zoom > 0 ? m_zoom : FittingZoom(Sheet(), Room(), DotsPerInch()); }

PreviewPlace CPrintPreview::Place() const {
    return PlaceSheet(Sheet(), Room(), Percent() / kPercent * DotsPerInch() / kInch, m_scrollAcross, m_scrollDown);
}

void CPrintPreview::OnSize(UINT type, int width, int height) {
    CDialogWindow::OnSize(type, width, height);
    PlaceControls();
    if (m_pageText.GetSafeHwnd() != nullptr) {
        ShowState();
    }
}

void CPrintPreview::OnGetMinMaxInfo(MINMAXINFO* info) {
    CDialogWindow::OnGetMinMaxInfo(info);
    info->ptMinTrackSize = {Scaled(kWidth) / 2, Scaled(kHeight) / 2};
}

// ---- the pointer

void CPrintPreview::OnLButtonDown(UINT /*flags*/, CPoint point) {
    m_isDragging = true;
    m_dragged = point;
    SetCapture();
}

void CPrintPreview::OnMouseMove(UINT /*flags*/, CPoint point) {
    if (m_isDragging) {
        // A mirrored window counts from the right, the sheet does not.
        const int across = m_dragged.x - point.x;
        ScrollBy(IsMirrored() ? -across : across, m_dragged.y - point.y);
        m_dragged = point;
    }
}

void CPrintPreview::OnLButtonUp(UINT /*flags*/, CPoint /*point*/) {
    if (std::exchange(m_isDragging, false)) {
        ReleaseCapture();
    }
}

BOOL CPrintPreview::OnMouseWheel(UINT flags, short delta, CPoint /*point*/) {
    if ((flags & MK_CONTROL) != 0) {
        SetZoom(NextZoom(Percent(), delta > 0 ? 1 : -1));
    } else {
        ScrollBy(0, -Scaled(kStep) * delta / WHEEL_DELTA);
    }
    return TRUE;
}

// ---- drawing

BOOL CPrintPreview::OnEraseBkgnd(CDC* /*dc*/) { return TRUE; }

void CPrintPreview::OnPaint() {
    CPaintDC dc(this);
    CRect bar;
    GetClientRect(bar);
    const CRect area = SheetArea();
    bar.bottom = area.top;
    dc.FillSolidRect(bar, Look().colors.ground);
    dc.FillSolidRect(CRect(bar.left, bar.bottom - 1, bar.right, bar.bottom), Look().colors.line);
    // Drawn beside the screen first: a page of text would flicker.
    CDC memory;
    CBitmap bitmap;
    if (area.IsRectEmpty() || !memory.CreateCompatibleDC(&dc) ||
        !bitmap.CreateCompatibleBitmap(&dc, area.Width(), area.Height())) {
        return;
    }
    ::SetLayout(memory.GetSafeHdc(), 0); // a sheet is not turned round
    CBitmap* const before = memory.SelectObject(&bitmap);
    DrawSheet(memory);
    const DWORD layout = ::SetLayout(dc.GetSafeHdc(), 0);
    dc.BitBlt(area.left, area.top, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
    ::SetLayout(dc.GetSafeHdc(), layout);
    memory.SelectObject(before);
}

void CPrintPreview::DrawSheet(CDC& dc) const {
    const CRect area = SheetArea();
    dc.FillSolidRect(CRect(0, 0, area.Width(), area.Height()), Look().colors.line);
    const WindowBox box = Place().sheet;
    const CRect sheet(box.left, box.top, box.right, box.bottom);
    CRect shadow = sheet;
    shadow.OffsetRect(Scaled(kShadow), Scaled(kShadow));
    dc.FillSolidRect(shadow, Darker(Look().colors.line));
    dc.FillSolidRect(sheet, RGB(255, 255, 255));
    const int saved = ::SaveDC(dc.GetSafeHdc());
    ::IntersectClipRect(dc.GetSafeHdc(), sheet.left, sheet.top, sheet.right, sheet.bottom);
    ::SetViewportOrgEx(dc.GetSafeHdc(), sheet.left, sheet.top, nullptr);
    PrintSheet device;
    device.width = sheet.Width();
    device.height = sheet.Height();
    device.dotsPerInchAcross = device.dotsPerInchDown =
        std::max(1, static_cast<int>(std::lround(sheet.Width() / Sheet().width * kInch)));
    m_pages.Draw(m_page, dc.GetSafeHdc(), device);
    ::RestoreDC(dc.GetSafeHdc(), saved);
}

CDialogWindow::Description CPrintPreview::Describe() const {
    Description description{"preview", {}, {}};
    for (std::size_t i = 0; i < kButtons; ++i) {
        description.parts.push_back(CDialogWindow::Describe(kRows[i].name, m_buttons[i]));
    }
    description.parts.push_back(CDialogWindow::Describe("page", m_pageText));
    CRect sheet = SheetArea();
    ClientToScreen(&sheet);
    description.parts.push_back({"sheet", sheet, L"", true});
    description.values = {{"page", m_page},
                          {"pages", m_pages.Count()},
                          {"zoom", static_cast<int>(std::lround(Percent()))},
                          {"scrollDown", m_scrollDown}};
    return description;
}
