#include "config/check/text_check.h"
#include "config/check/text_width.h"

#include "config/element_kind.h"
#include "config/ribbon_diagnosis.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace {

// Pixels at 100 %.
constexpr int kUsualField = 50;       // of an edit or a slider whose file names no width
constexpr int kFieldMargin = 3;       // on each side of an edit's text
constexpr int kComboField = 108;      // behind the caption of a combo
constexpr int kIcon = 16;             // before the text of a button in the status bar
constexpr int kWindow = 1280;         // what is wider alone than this fits into no usual window
constexpr int kWideWindow = 1920;     // the same for a row of buttons, which may be meant for large screens
constexpr int kToolTipLine = 640;     // a tooltip is broken into lines that are at most so wide
constexpr int kToolTipLines = 45;     // of which a usual screen has room for so many
constexpr int kDoubtPercent = 5;      // fonts differ: only what is wider by more than this is clearly wider
constexpr wchar_t kUnspaced = 0x2E80; // from here on are the scripts that are written without spaces

constexpr std::wstring_view kToolTipSuffix = L".tooltip";

/// What a text has room in.
struct Room {
    int width = 0;
    std::wstring place;
    /// The attribute that says how wide it is; none: no file does.
    std::optional<AttributeUse> setBy;
};

/// None: it is no number, or none of a width, which was reported.
std::optional<int> FieldWidth(const MetElement& element) {
    const MetAttribute* const width = element.Find(AttributeUse::Width);
    if (width == nullptr) {
        return kUsualField;
    }
    const std::string digits(width->value.begin(), width->value.end());
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size()) {
        return std::nullopt;
    }
    return value < 1 ? std::nullopt : std::optional(value);
}

bool ShowsItsName(ElementRole role) {
    switch (role) {
    case ElementRole::Category:
    case ElementRole::Panel:
    case ElementRole::RibbonElement:
    case ElementRole::SubItem:
    case ElementRole::StatusButton:
    case ElementRole::Popup:
    case ElementRole::MenuItem:
        return true;
    default:
        return false;
    }
}

/// What a window has room for besides.
Room RoomInWindow(int taken, const std::wstring& besides) {
    return {kWindow - taken, L"not even a window of " + std::to_wstring(kWindow) + L" has room for it" + besides,
            std::nullopt};
}

/// None: the element shows no text, or is reported for something that decides on it.
std::optional<Room> RoomOf(const MetElement& element) {
    const MetAttribute* const name = element.Find(AttributeUse::Name);
    const MetAttribute* const keyword = element.Find(AttributeUse::Keyword);
    const bool isReported = element.IsReported(AttributeUse::Keyword) || element.IsReported(AttributeUse::Width);
    if (element.isPassedOver || isReported || name == nullptr || name->isMeant || keyword == nullptr ||
        !ShowsItsName(element.role)) {
        return std::nullopt;
    }
    if (element.role == ElementRole::StatusButton) {
        return KindOfElement(element.ValueOf(AttributeUse::Type)) == ElementKind::Slider
                   ? std::nullopt
                   : std::optional(RoomInWindow(0, L""));
    }
    if (const MetAttribute* const shortcut = element.Find(AttributeUse::HotKey)) {
        return RoomInWindow(TextWidth(shortcut->value), L" and the shortcut behind it");
    }
    const bool isInPanel = element.role == ElementRole::RibbonElement || element.role == ElementRole::SubItem;
    const ElementKind kind = isInPanel ? KindOfElement(element.ValueOf(AttributeUse::Type)) : ElementKind::Button;
    switch (kind) {
    case ElementKind::Edit:
        if (const std::optional<int> field = FieldWidth(element)) {
            return Room{std::max(0, *field - 2 * kFieldMargin),
                        L"a field of WIDTH " + std::to_wstring(*field) + L" has room for " +
                            std::to_wstring(std::max(0, *field - 2 * kFieldMargin)),
                        AttributeUse::Width};
        }
        return std::nullopt;
    case ElementKind::Unknown:
    case ElementKind::Group:
    case ElementKind::Slider:
        return std::nullopt;
    case ElementKind::CheckCombo:
    case ElementKind::MultiCombo:
    case ElementKind::LightCombo:
        return RoomInWindow(kComboField, L" and the list behind it");
    default:
        return RoomInWindow(0, L"");
    }
}

/// A tooltip is as wide as it must be, but a screen has an end.
std::optional<Room> RoomOfToolTip(const MetElement& element) {
    const MetAttribute* const toolTip = element.Find(AttributeUse::ToolTip);
    const bool isTold = element.isPassedOver || element.IsReported(AttributeUse::Keyword) || toolTip == nullptr ||
                        toolTip->isMeant || !ShowsItsName(element.role);
    if (isTold) {
        return std::nullopt;
    }
    return Room{kToolTipLine * kToolTipLines,
                L"a tooltip has room for " + std::to_wstring(kToolTipLines) + L" lines of " +
                    std::to_wstring(kToolTipLine),
                std::nullopt};
}

bool IsLargeButton(const MetElement& element) {
    return element.role == ElementRole::RibbonElement &&
           KindOfElement(element.ValueOf(AttributeUse::Type)) == ElementKind::Button &&
           element.ValueOf(AttributeUse::Size) != L"16";
}

/// On two lines, where it can be broken.
int WidthOnTwoLines(std::wstring_view text) {
    int width = TextWidth(text);
    for (std::size_t i = 1; i < text.size(); ++i) {
        const bool isSpace = text[i] == L' ';
        if (isSpace || text[i] >= kUnspaced || text[i - 1] >= kUnspaced) {
            width =
                std::min(width, std::max(TextWidth(text.substr(0, i)), TextWidth(text.substr(isSpace ? i + 1 : i))));
        }
    }
    return width;
}

bool IsClearlyWider(int width, int room) {
    constexpr int whole = 100;
    return static_cast<long long>(width) * whole > static_cast<long long>(room) * (whole + kDoubtPercent);
}

class LongTextCheck {
public:
    LongTextCheck(std::span<const LanguageTexts> languages, DiagnosticsSink& sink)
        : m_languages(languages), m_sink(sink) {}

    void Take(const GatheredElement& gathered) {
        const MetElement& element = gathered.element;
        const std::wstring keyword(element.ValueOf(AttributeUse::Keyword));
        m_status.Follow(gathered, *this);
        if (const std::optional<Room> room = RoomOf(element)) {
            TakeText(gathered, keyword, *room, IsLargeButton(element) ? WidthOnTwoLines : TextWidth);
        }
        if (const std::optional<Room> room = RoomOfToolTip(element)) {
            TakeText(gathered, keyword + std::wstring(kToolTipSuffix), *room, TextWidth);
        }
        if (element.role == ElementRole::ToolBar || element.role == ElementRole::ToolBarButton) {
            TakeWritten(gathered);
        }
    }
    void Finish() { m_status.Report(*this); }

private:
    struct TooLong {
        const LanguageTexts* language;
        const PlacedText* text;
        int width;
    };

    /// What the buttons of a status row need together, in each language.
    class StatusRow {
    public:
        void Follow(const GatheredElement& gathered, LongTextCheck& check) {
            const MetElement& element = gathered.element;
            if (element.role == ElementRole::StatusButton && m_row && !element.isPassedOver) {
                Add(element, check);
            } else if (element.role != ElementRole::StatusButton || element.isPassedOver) {
                Report(check);
                const bool isStatus = element.role == ElementRole::Row && !element.isPassedOver &&
                                      element.ValueOf(AttributeUse::Keyword) == kStatusRow;
                m_row = isStatus ? &gathered : nullptr;
                m_widths.assign(check.m_languages.size(), 0);
                m_isTold = false;
            }
        }

        void Report(const LongTextCheck& check) {
            const GatheredElement* const row = std::exchange(m_row, nullptr);
            const auto widest = std::ranges::max_element(m_widths);
            if (!row || m_isTold || widest == m_widths.end() || !IsClearlyWider(*widest, kWideWindow)) {
                return;
            }
            const LanguageTexts& language =
                check.m_languages[static_cast<std::size_t>(std::distance(m_widths.begin(), widest))];
            ReportTogether(check.m_sink, *row->file, PlaceOf(row->element, AttributeUse::Keyword), "long-text",
                           L"the buttons of this row are together about " + std::to_wstring(*widest) +
                               L" pixels wide at 100 % in " + language.code + L"; a window of " +
                               std::to_wstring(kWideWindow) + L" leaves the first ones out",
                           L"shorten the texts, or take buttons out");
        }

    private:
        void Add(const MetElement& element, const LongTextCheck& check) {
            const ElementKind kind = KindOfElement(element.ValueOf(AttributeUse::Type));
            const std::wstring keyword(element.ValueOf(AttributeUse::Keyword));
            for (std::size_t i = 0; i < m_widths.size(); ++i) {
                const LanguageTexts& language = check.m_languages[i];
                if (kind == ElementKind::Slider) {
                    m_widths[i] += FieldWidth(element).value_or(0);
                    continue;
                }
                const auto found = language.commands.find(keyword);
                if (!language.isUsable || !element.Has(AttributeUse::Name) || found == language.commands.end()) {
                    continue;
                }
                const int width = TextWidth(found->second.text);
                m_isTold = m_isTold || IsClearlyWider(width, kWindow); // by the text itself
                m_widths[i] += width + (kind == ElementKind::Label ? 0 : kIcon);
            }
        }

        const GatheredElement* m_row = nullptr;
        std::vector<int> m_widths;
        bool m_isTold = false;
    };

    void TakeText(const GatheredElement& gathered, const std::wstring& key, const Room& room,
                  int (*widthOf)(std::wstring_view)) {
        std::vector<TooLong> tooLong;
        std::size_t texts = 0;
        for (const LanguageTexts& language : m_languages) {
            const auto found = language.commands.find(key);
            if (!language.isUsable || found == language.commands.end()) {
                continue;
            }
            ++texts;
            if (const int width = widthOf(found->second.text); IsClearlyWider(width, room.width)) {
                tooLong.push_back({&language, &found->second, width});
            }
        }
        // Where no language has room in it, the place is too small.
        if (room.setBy && texts > 1 && tooLong.size() == texts) {
            ReportPlace(gathered, room, tooLong);
            return;
        }
        for (const TooLong& text : tooLong) {
            ReportText(gathered, room, text);
        }
    }

    /// Texts that are shown as the file has them.
    void TakeWritten(const GatheredElement& gathered) {
        const MetAttribute* const prompt = gathered.element.Find(AttributeUse::Prompt);
        if (gathered.element.isPassedOver || !prompt || prompt->isMeant || prompt->isReported) {
            return;
        }
        const Room room = RoomInWindow(0, L"");
        if (const int width = TextWidth(prompt->value); IsClearlyWider(width, room.width)) {
            ReportTogether(m_sink, *gathered.file, prompt->position, "long-text",
                           L"this text is about " + std::to_wstring(width) + L" pixels wide at 100 %; " + room.place,
                           L"shorten it");
        }
    }

    void ReportPlace(const GatheredElement& gathered, const Room& room, const std::vector<TooLong>& tooLong) {
        int widest = 0;
        std::wstring widths;
        for (const TooLong& text : tooLong) {
            widest = std::max(widest, text.width);
            widths += (widths.empty() ? L"" : L", ") + std::to_wstring(text.width) + L" in " + text.language->code;
        }
        ReportTogether(m_sink, *gathered.file, PlaceOf(gathered.element, *room.setBy), "long-text",
                       L"the text has room in this field in no language: at 100 % it is " + widths +
                           L" pixels wide, and " + std::to_wstring(room.width) + L" are there",
                       L"write WIDTH=\"" + std::to_wstring(widest + 2 * kFieldMargin) + L"\" or more");
    }

    void ReportText(const GatheredElement& gathered, const Room& room, const TooLong& tooLong) {
        if (!m_seen.insert({tooLong.text, room.setBy ? room.width : kWindow}).second) {
            return; // two elements of one keyword
        }
        ReportTogether(m_sink, tooLong.text->file, tooLong.text->position, "long-text",
                       L"this text is about " + std::to_wstring(tooLong.width) + L" pixels wide at 100 %; " +
                           room.place,
                       room.setBy ? L"shorten it, or give the field a larger WIDTH" : L"shorten it",
                       {PlaceOf(gathered, room.setBy.value_or(AttributeUse::Name), L"it stands here")});
    }

    std::span<const LanguageTexts> m_languages;
    DiagnosticsSink& m_sink;
    std::set<std::pair<const PlacedText*, int>> m_seen;
    StatusRow m_status;
};

} // namespace

void CheckTextLengths(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                      DiagnosticsSink& sink) {
    LongTextCheck check(languages, sink);
    for (const GatheredElement& gathered : elements) {
        check.Take(gathered);
    }
    check.Finish();
}
