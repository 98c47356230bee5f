#include "message_window.h"

#include "scaled.h"
#include "soft_canvas.h"
#include "viewer_text.h"

#include <afxglobals.h>

#include <algorithm>

namespace {

// Pixels at 96 DPI.
constexpr int kMargin = 20;
constexpr int kGap = 8;
constexpr int kIconSide = 32;
constexpr int kWidestText = 420;
constexpr int kLeastButton = 80;

struct Button {
    UINT id;
    const char* text; ///< Of the viewer, with the letter that answers.
    const char* name; ///< In the record.
};
constexpr Button kOkButton{IDOK, "ButtonOk", "ok"}, kCancelButton{IDCANCEL, "ButtonCancel", "cancel"},
    kYesButton{IDYES, "ButtonYes", "yes"}, kNoButton{IDNO, "ButtonNo", "no"};

struct ButtonSet {
    UINT type;
    std::vector<Button> buttons;
    UINT escape; ///< What Escape answers; 0: nothing.
};
const std::vector<ButtonSet>& ButtonSets() {
    static const std::vector<ButtonSet> sets = {{MB_OK, {kOkButton}, IDOK},
                                                {MB_OKCANCEL, {kOkButton, kCancelButton}, IDCANCEL},
                                                {MB_YESNO, {kYesButton, kNoButton}, 0},
                                                {MB_YESNOCANCEL, {kYesButton, kNoButton, kCancelButton}, IDCANCEL}};
    return sets;
}

/// Null: there is none of that style.
const ButtonSet* FindSet(UINT style) {
    const auto found = std::ranges::find(ButtonSets(), style & MB_TYPEMASK, &ButtonSet::type);
    return found != ButtonSets().end() ? &*found : nullptr;
}

const ButtonSet& SetOf(UINT style) {
    const ButtonSet* const set = FindSet(style);
    return set != nullptr ? *set : ButtonSets().front();
}

std::size_t DefaultButton(UINT style, std::size_t count) {
    constexpr UINT shift = 8; // as MB_DEFBUTTON2 says
    const std::size_t index = (style & MB_DEFMASK) >> shift;
    return index < count ? index : 0;
}

struct Kind {
    UINT icon; ///< Of the style, and the sound.
    MessageKind kind;
    COLORREF plate; ///< In both skins.
    COLORREF sign;
};
constexpr std::array<Kind, 4> kKinds = {
    {{MB_ICONINFORMATION, MessageKind::Information, RGB(32, 112, 204), RGB(255, 255, 255)},
     {MB_ICONQUESTION, MessageKind::Question, RGB(32, 112, 204), RGB(255, 255, 255)},
     {MB_ICONWARNING, MessageKind::Warning, RGB(244, 178, 38), RGB(46, 34, 4)},
     {MB_ICONERROR, MessageKind::Error, RGB(204, 52, 44), RGB(255, 255, 255)}}};

const Kind& RowOf(MessageKind kind) { return *std::ranges::find(kKinds, kind, &Kind::kind); }

MessageKind KindOf(UINT style) {
    const auto* const found = std::ranges::find(kKinds, style & MB_ICONMASK, &Kind::icon);
    return found != kKinds.end() ? found->kind : MessageKind::Information;
}

void Draw(SoftCanvas& canvas, const std::vector<SignStroke>& strokes, COLORREF color) {
    const double side = canvas.Size().cx;
    for (const SignStroke& one : strokes) {
        canvas.DrawLine(one.x1 * side, one.y1 * side, one.x2 * side, one.y2 * side, one.width * side, color);
    }
}

CRect ToRect(const WindowBox& box) { return {box.left, box.top, box.right, box.bottom}; }

} // namespace

BEGIN_MESSAGE_MAP(CMessageWindow, CDialogWindow)
ON_WM_PAINT()
ON_WM_DRAWITEM()
ON_WM_CLOSE()
ON_MESSAGE(WM_KICKIDLE, OnWithoutIdleWork)
ON_MESSAGE(DM_GETDEFID, OnGetEnterButton)
END_MESSAGE_MAP()

bool CMessageWindow::HasButtonsOf(UINT style) { return FindSet(style) != nullptr; }

std::optional<int> CMessageWindow::Ask(CWnd& owner, const std::wstring& title, const std::wstring& text, UINT style,
                                       const std::function<void()>& begin) {
    m_style = style;
    m_kind = KindOf(style);
    if (!Make(owner, title, WS_POPUP | WS_CAPTION | WS_SYSMENU, CSize(1, 1)) || !MakeControls(text, style)) {
        return std::nullopt;
    }
    if (!CanClose()) {
        GetSystemMenu(FALSE)->EnableMenuItem(SC_CLOSE, MF_BYCOMMAND | MF_GRAYED);
    }
    const MessagePlaces places = PlaceMessage(Measure());
    FitInside(CSize(places.width, places.height));
    PlaceControls(places);
    const std::vector<Button>& buttons = SetOf(style).buttons;
    const std::size_t first = DefaultButton(style, buttons.size());
    SetDefaultButton(buttons[first].id);
    m_buttons[first].SetFocus();
    if (begin) {
        begin();
    }
    ::MessageBeep(style & MB_ICONMASK);
    return std::max(Run(), 0);
}

bool CMessageWindow::MakeControls(const std::wstring& text, UINT style) {
    // Drawn here, because the system's breaks no line in the middle of a long path.
    if (!m_text.Create(text.c_str(), WS_CHILD | WS_VISIBLE | SS_OWNERDRAW | SS_NOPREFIX, CRect(0, 0, 0, 0), this)) {
        return false;
    }
    const std::vector<Button>& buttons = SetOf(style).buttons;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (!AddButton(m_buttons[i], buttons[i].id, ViewerText(buttons[i].text))) {
            return false;
        }
    }
    return true;
}

UINT CMessageWindow::TextFormat() const {
    return DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX | DT_EXPANDTABS |
           (IsMirrored() ? DT_RIGHT | DT_RTLREADING : DT_LEFT);
}

MessageMeasures CMessageWindow::Measure() const {
    MessageMeasures measures;
    measures.margin = Scaled(kMargin);
    measures.gap = Scaled(kGap);
    measures.iconSide = Scaled(kIconSide);
    measures.rowHeight = RowHeight();
    for (const Button& button : SetOf(m_style).buttons) {
        measures.buttonWidths.push_back(std::max(Scaled(kLeastButton), static_cast<int>(ButtonSize(button.id).cx)));
    }
    CString text;
    m_text.GetWindowText(text);
    CRect needed(0, 0, Scaled(kWidestText), 0);
    CClientDC dc(nullptr);
    CFont* const before = dc.SelectObject(&afxGlobalData.fontRegular);
    dc.DrawText(text, needed, DT_CALCRECT | TextFormat());
    dc.SelectObject(before);
    measures.textWidth = needed.Width();
    measures.textHeight = needed.Height();
    return measures;
}

void CMessageWindow::PlaceControls(const MessagePlaces& places) {
    m_icon = ToRect(places.icon);
    m_text.MoveWindow(ToRect(places.text));
    for (std::size_t i = 0; i < places.buttons.size(); ++i) {
        m_buttons[i].MoveWindow(ToRect(places.buttons[i]));
    }
}

// ---- the answer

bool CMessageWindow::CanClose() const { return SetOf(m_style).escape != 0; }

void CMessageWindow::Answer(UINT id) {
    const ButtonSet& set = SetOf(m_style);
    if (std::ranges::find(set.buttons, id, &Button::id) != set.buttons.end()) {
        EndModalLoop(static_cast<int>(id));
    } else if (id == IDCANCEL && CanClose()) {
        EndModalLoop(static_cast<int>(set.escape));
    }
}

BOOL CMessageWindow::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (HIWORD(wParam) != BN_CLICKED) {
        return CDialogWindow::OnCommand(wParam, lParam);
    }
    Answer(LOWORD(wParam));
    return TRUE;
}

void CMessageWindow::OnClose() { Answer(IDCANCEL); }

LRESULT CMessageWindow::OnWithoutIdleWork(WPARAM, LPARAM) { return 0; }

std::size_t CMessageWindow::MarkedButton() const {
    const HWND focus = ::GetFocus();
    const std::size_t count = SetOf(m_style).buttons.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (m_buttons[i].GetSafeHwnd() == focus) {
            return i;
        }
    }
    return DefaultButton(m_style, count);
}

// As in the system's box, Enter means the one with the focus.
LRESULT CMessageWindow::OnGetEnterButton(WPARAM, LPARAM) {
    return MAKELRESULT(SetOf(m_style).buttons[MarkedButton()].id, DC_HASDEFID);
}

// The arrow keys go round the buttons; left and right are those of the screen.
BOOL CMessageWindow::PreTranslateMessage(MSG* message) {
    struct Row {
        WPARAM key;
        bool isOnward;
    };
    const std::array<Row, 4> arrows = {
        {{VK_UP, false}, {VK_DOWN, true}, {VK_LEFT, IsMirrored()}, {VK_RIGHT, !IsMirrored()}}};
    const auto* const arrow = std::ranges::find(arrows, message->wParam, &Row::key);
    if (message->message != WM_KEYDOWN || arrow == arrows.end()) {
        return CDialogWindow::PreTranslateMessage(message);
    }
    const std::size_t count = SetOf(m_style).buttons.size();
    m_buttons[(MarkedButton() + (arrow->isOnward ? 1 : count - 1)) % count].SetFocus();
    return TRUE;
}

CDialogWindow::Description CMessageWindow::Describe() const {
    Description description{"message", {CDialogWindow::Describe("text", m_text)}, {{"kind", static_cast<int>(m_kind)}}};
    const std::vector<Button>& buttons = SetOf(m_style).buttons;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        description.parts.push_back(CDialogWindow::Describe(buttons[i].name, m_buttons[i]));
    }
    return description;
}

// ---- drawing

void CMessageWindow::OnPaint() {
    CPaintDC dc(this);
    SoftCanvas canvas(dc, m_icon);
    if (!canvas.IsEmpty()) {
        const MessageSign sign = SignOf(m_kind);
        Draw(canvas, sign.plate, RowOf(m_kind).plate);
        Draw(canvas, sign.sign, RowOf(m_kind).sign);
    }
}

void CMessageWindow::OnDrawItem(int id, LPDRAWITEMSTRUCT item) {
    if (item->CtlType != ODT_STATIC) {
        CDialogWindow::OnDrawItem(id, item);
        return;
    }
    SoftCanvas canvas(*CDC::FromHandle(item->hDC), CRect(item->rcItem));
    if (canvas.IsEmpty()) {
        return;
    }
    CRect all(CPoint(0, 0), canvas.Size());
    canvas.Fill(all, Look().colors.ground);
    CString text;
    m_text.GetWindowText(text);
    canvas.Dc().SetTextColor(Look().colors.text);
    canvas.Dc().DrawText(text, all, TextFormat());
}
