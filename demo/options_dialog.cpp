#include "options_dialog.h"

#include "scaled.h"
#include "viewer_text.h"

#include "varnhold/language.h"

#include <afxglobals.h>

#include <algorithm>

namespace {

// Pixels at 96 DPI.
constexpr int kMargin = 16;
constexpr int kGap = 8;
constexpr int kListWidth = 200;
constexpr int kListDepth = 240; // with its lines
constexpr int kLeastButton = 80;

constexpr UINT kFirstList = 100;
constexpr char kNote[] = "OptionsAtNextStart";

/// A line of a list: the value as the options have it, and its text. Those of the bars are known to their files.
struct Line {
    const wchar_t* value;
    const char* text = nullptr;       ///< Of the viewer.
    const wchar_t* keyword = nullptr; ///< Or of a command.
};
struct Row {
    const char* name; ///< In the record.
    const char* label;
    std::vector<Line> lines;
    std::wstring (*read)(const ViewerOptions& options);
    void (*write)(ViewerOptions& options, const std::wstring& value);
};

template <std::wstring ViewerOptions::*field>
std::wstring ReadText(const ViewerOptions& options) {
    return options.*field;
}
template <std::wstring ViewerOptions::*field>
void WriteText(ViewerOptions& options, const std::wstring& value) {
    options.*field = value;
}

int ToInteger(const std::wstring& value) { return static_cast<int>(std::wcstol(value.c_str(), nullptr, 10)); }

const std::vector<Row>& Rows() {
    static const std::vector<Row> rows = {
        {"language",
         "OptionLanguage",
         {{L"zh-CN", nullptr, L"LanguageChinese"},
          {L"en", nullptr, L"LanguageEnglish"},
          {L"he", nullptr, L"LanguageHebrew"}},
         ReadText<&ViewerOptions::language>,
         WriteText<&ViewerOptions::language>},
        {"skin",
         "OptionSkin",
         {{L"silver", nullptr, L"SkinSilver"}, {L"black", nullptr, L"SkinBlack"}},
         ReadText<&ViewerOptions::skin>,
         WriteText<&ViewerOptions::skin>},
        {"bars",
         "OptionBars",
         {{L"0", "BarsRibbon"}, {L"1", "BarsTabsAlone"}, {L"2", nullptr, L"ClassicBars"}},
         [](const ViewerOptions& options) { return std::to_wstring(static_cast<int>(options.bars)); },
         [](ViewerOptions& options, const std::wstring& value) {
             options.bars = static_cast<ViewerOptions::Bars>(ToInteger(value));
         }},
        {"quickAccess",
         "OptionQuickAccess",
         {{L"0", "QuickAccessAbovePanels"}, {L"1", "QuickAccessBelowPanels"}},
         [](const ViewerOptions& options) { return std::to_wstring(options.isQuickAccessBelow ? 1 : 0); },
         [](ViewerOptions& options, const std::wstring& value) { options.isQuickAccessBelow = value == L"1"; }},
        {"startMode",
         "OptionStartMode",
         {{L"browse", nullptr, L"ModeBrowse"}, {L"edit", nullptr, L"ModeEdit"}, {L"print", nullptr, L"ModePrint"}},
         ReadText<&ViewerOptions::startMode>,
         WriteText<&ViewerOptions::startMode>},
        {"scale",
         "OptionScale",
         {{L"0", "ScaleOfScreen"}, {L"100"}, {L"125"}, {L"150"}, {L"200"}},
         [](const ViewerOptions& options) { return std::to_wstring(options.scalePercent); },
         [](ViewerOptions& options, const std::wstring& value) { options.scalePercent = ToInteger(value); }},
    };
    return rows;
}

std::wstring TextOf(const Line& line) {
    return line.text != nullptr      ? ViewerText(line.text)
           : line.keyword != nullptr ? BarText(line.keyword)
                                     : std::wstring(line.value) + L" %";
}

} // namespace

COptionsDialog::COptionsDialog(DialogLook look, ViewerOptions options)
    : CDialogWindow(std::move(look)), m_options(std::move(options)) {}

std::optional<ViewerOptions> COptionsDialog::Ask(CWnd& owner) {
    constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
    if (!Make(owner, ViewerText("OptionsTitle"), style, CSize(1, 1)) || !MakeControls()) {
        return std::nullopt;
    }
    const OptionsPlaces places = PlaceOptions(Measure());
    FitInside(CSize(places.width, places.height));
    PlaceControls(places);
    ShowChosen();
    m_lists[0].SetFocus();
    std::optional<ViewerOptions> answer;
    // The lists are read before the window goes.
    if (Run([&] { answer = Chosen(); }) != IDOK) {
        answer.reset();
    }
    return answer;
}

bool COptionsDialog::MakeControls() {
    for (std::size_t row = 0; row < kRows; ++row) {
        if (!AddLabel(m_labels[row], ViewerText(Rows()[row].label)) ||
            !AddList(m_lists[row], kFirstList + static_cast<UINT>(row))) {
            return false;
        }
        for (const Line& line : Rows()[row].lines) {
            m_values[row].emplace_back(line.value);
            m_lists[row].AddString(TextOf(line).c_str());
        }
    }
    SetDefaultButton(IDOK);
    return AddLabel(m_note, ViewerText(kNote)) && AddButton(m_take, IDOK, ViewerText("ButtonOk")) &&
           AddButton(m_cancel, IDCANCEL, ViewerText("ButtonCancel"));
}

OptionsMeasures COptionsDialog::Measure() {
    OptionsMeasures measures;
    measures.rows = static_cast<int>(kRows);
    measures.margin = Scaled(kMargin);
    measures.gap = Scaled(kGap);
    measures.listWidth = Scaled(kListWidth);
    measures.listDepth = Scaled(kListDepth);
    measures.rowHeight = RowHeight();
    CRect closed;
    m_lists[0].MoveWindow(0, 0, measures.listWidth, measures.listDepth);
    m_lists[0].GetWindowRect(closed);
    measures.listHeight = closed.Height();
    const auto width = [this](const CButton& button) {
        return std::max(Scaled(kLeastButton),
                        static_cast<int>(ButtonSize(static_cast<UINT>(button.GetDlgCtrlID())).cx));
    };
    measures.takeWidth = width(m_take);
    measures.cancelWidth = width(m_cancel);
    CClientDC dc(this);
    CFont* const before = dc.SelectObject(&afxGlobalData.fontRegular);
    const auto extent = [&dc](const char* text) {
        return static_cast<int>(dc.GetTextExtent(ViewerText(text).c_str()).cx);
    };
    for (const Row& row : Rows()) {
        measures.labelWidth = std::max(measures.labelWidth, extent(row.label));
    }
    measures.noteWidth = extent(kNote);
    dc.SelectObject(before);
    return measures;
}

void COptionsDialog::PlaceControls(const OptionsPlaces& places) {
    const auto move = [](CWnd& control, const WindowBox& box) {
        control.MoveWindow(box.left, box.top, box.right - box.left, box.bottom - box.top);
    };
    for (std::size_t row = 0; row < kRows; ++row) {
        move(m_labels[row], places.labels[row]);
        move(m_lists[row], places.lists[row]);
    }
    move(m_note, places.note);
    move(m_take, places.take);
    move(m_cancel, places.cancel);
}

void COptionsDialog::ShowChosen() {
    for (std::size_t row = 0; row < kRows; ++row) {
        const auto& values = m_values[row];
        const auto found = std::find(values.begin(), values.end(), Rows()[row].read(m_options));
        m_lists[row].SetCurSel(found != values.end() ? static_cast<int>(found - values.begin()) : -1);
    }
}

ViewerOptions COptionsDialog::Chosen() const {
    ViewerOptions chosen = m_options;
    for (std::size_t row = 0; row < kRows; ++row) {
        const int line = m_lists[row].GetCurSel();
        if (line >= 0) { // a value that no line has stays what it was
            Rows()[row].write(chosen, m_values[row][static_cast<std::size_t>(line)]);
        }
    }
    return chosen;
}

CDialogWindow::Description COptionsDialog::Describe() const {
    Description description{"options", {}, {}};
    for (std::size_t row = 0; row < kRows; ++row) {
        description.parts.push_back(CDialogWindow::Describe(Rows()[row].name, m_lists[row]));
        description.values.emplace_back(Rows()[row].name, m_lists[row].GetCurSel());
    }
    description.parts.push_back(CDialogWindow::Describe("take", m_take));
    description.parts.push_back(CDialogWindow::Describe("cancel", m_cancel));
    return description;
}
