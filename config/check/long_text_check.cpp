#include "config/check/text_check.h"
#include "config/check/text_width.h"

#include "config/element_kind.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace {

// Pixels at 100 %.
constexpr int kUsualField = 50;  // of an edit whose file names no width
constexpr int kFieldMargin = 3;  // on each side of an edit's text
constexpr int kWindow = 1280;    // what is wider alone than this fits into no usual window
constexpr int kDoubtPercent = 5; // fonts differ: only what is wider by more than this is clearly wider

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
    case ElementRole::Popup:
    case ElementRole::MenuItem:
        return true;
    default:
        return false;
    }
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
    default:
        return Room{kWindow, L"not even a window of " + std::to_wstring(kWindow) + L" has room for it", std::nullopt};
    }
}

/// Words in a large button stand on two lines; elsewhere, and in a word, there is one.
int NeededWidth(const MetElement& element, std::wstring_view text) {
    const int width = TextWidth(text);
    const bool isLarge = element.role == ElementRole::RibbonElement &&
                         KindOfElement(element.ValueOf(AttributeUse::Type)) == ElementKind::Button &&
                         element.ValueOf(AttributeUse::Size) != L"16";
    return isLarge && text.find(L' ') != std::wstring_view::npos ? width / 2 : width;
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
        const std::optional<Room> room = RoomOf(gathered.element);
        if (!room) {
            return;
        }
        const std::wstring keyword(gathered.element.ValueOf(AttributeUse::Keyword));
        std::vector<TooLong> tooLong;
        std::size_t texts = 0;
        for (const LanguageTexts& language : m_languages) {
            const auto found = language.commands.find(keyword);
            if (!language.isUsable || found == language.commands.end()) {
                continue;
            }
            ++texts;
            if (const int width = NeededWidth(gathered.element, found->second.text);
                IsClearlyWider(width, room->width)) {
                tooLong.push_back({&language, &found->second, width});
            }
        }
        // Where no language has room in it, the place is too small.
        if (room->setBy && texts > 1 && tooLong.size() == texts) {
            ReportPlace(gathered, *room, tooLong);
            return;
        }
        for (const TooLong& text : tooLong) {
            ReportText(gathered, *room, text);
        }
    }

private:
    struct TooLong {
        const LanguageTexts* language;
        const PlacedText* text;
        int width;
    };

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
        if (!m_seen.insert({tooLong.text, room.width}).second) {
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
};

} // namespace

void CheckTextLengths(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                      DiagnosticsSink& sink) {
    LongTextCheck check(languages, sink);
    for (const GatheredElement& gathered : elements) {
        check.Take(gathered);
    }
}
