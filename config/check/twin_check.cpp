#include "config/check/twin_check.h"

#include "config/ribbon_diagnosis.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

/// What stands twice in one place.
struct TwinRule {
    ElementRole role;
    /// What tells one from another.
    AttributeUse name;
    const wchar_t* text;
    const wchar_t* fix;
    /// Of several in a row or group that repeats an earlier one; null where they cannot be in any.
    const wchar_t* ofMany = nullptr;
};
constexpr TwinRule kRules[] = {
    {ElementRole::Row, AttributeUse::Keyword,
     L"an earlier row of this file has status-bar buttons, too: this one takes its place, and those are lost",
     L"put the buttons of both into one row"},
    {ElementRole::Category, AttributeUse::Keyword,
     L"an earlier category beside this one has this keyword: both tabs have one name, and are one to the program",
     L"take another keyword for one of them, or join the two",
     L" categories of this row stand in an earlier row of the same keyword, too"},
    {ElementRole::Panel, AttributeUse::Keyword,
     L"an earlier panel of this category has this keyword: both have one caption",
     L"take another keyword for one of them, or join the two"},
    {ElementRole::Popup, AttributeUse::Keyword,
     L"an earlier popup of this menu has this keyword: both have one caption",
     L"take another keyword for one of them, or join the two"},
    {ElementRole::ToolBar, AttributeUse::Prompt,
     L"an earlier toolbar of this group has this title: a program that asks for the title gets that one",
     L"take another title for one of them",
     L" toolbars of this group stand in an earlier group of the same keyword, too"},
};

/// By the names of the elements around, and its own, where an element stands first.
using Place = std::vector<std::wstring>;

/// Rows and groups of one name are one place to what is in them.
bool IsJoined(ElementRole role) { return role == ElementRole::Row || role == ElementRole::ToolBarGroup; }

bool MayHaveTwin(const MetElement& element, const TwinRule& rule) {
    const std::wstring_view own = element.ValueOf(rule.name);
    if (element.role == ElementRole::Row) {
        return own == kStatusRow;
    }
    const bool isShown = element.role == ElementRole::ToolBar || element.Has(AttributeUse::Name);
    return isShown && !own.empty() && !element.IsReported(rule.name);
}

class TwinCheck {
public:
    explicit TwinCheck(GatheringSink& sink) : m_sink(sink) {}

    void Run() {
        for (std::size_t i = 0; i < m_sink.Elements().size(); ++i) {
            Take(i);
        }
        ReportTwins();
    }

private:
    struct Twin {
        const TwinRule* rule;
        std::size_t element;
        std::size_t earlier;
        /// The row or group that it is in.
        std::size_t around;
    };

    const GatheredElement& At(std::size_t index) const { return m_sink.Elements()[index]; }

    void Take(std::size_t index) {
        const GatheredElement& gathered = At(index);
        const MetElement& element = gathered.element;
        if (m_file != gathered.file) {
            m_file = gathered.file;
            m_names.clear();
            m_first.clear();
        }
        if (element.isPassedOver) {
            return;
        }
        const auto* const rule = std::ranges::find(kRules, element.role, &TwinRule::role);
        const bool hasRule = rule != std::end(kRules);
        m_names.resize(element.depth);
        m_names.back() = std::wstring(element.ValueOf(hasRule ? rule->name : AttributeUse::Keyword));
        if (hasRule && MayHaveTwin(element, *rule)) {
            const auto [first, isNew] = m_first.try_emplace(std::pair(element.role, m_names), index);
            if (!isNew) {
                m_twins.push_back({rule, index, first->second, m_around});
            }
        }
        if (IsJoined(element.role)) {
            m_around = index;
        } else {
            m_names.back() += L'\n' + std::to_wstring(index); // a place of its own for what is in it
        }
    }

    void ReportTwins() {
        for (std::size_t i = 0; i < m_twins.size();) {
            std::size_t end = i + 1;
            while (end < m_twins.size() && IsInSamePlace(m_twins[i], m_twins[end])) {
                ++end;
            }
            Report(
                {m_twins.begin() + static_cast<std::ptrdiff_t>(i), m_twins.begin() + static_cast<std::ptrdiff_t>(end)});
            i = end;
        }
        for (const Twin& twin : m_twins) {
            m_sink.MarkReported(twin.element, twin.rule->name);
        }
    }

    /// Whether both are what a row or group repeats of an earlier one.
    bool IsInSamePlace(const Twin& one, const Twin& other) const {
        return one.rule->ofMany && one.rule == other.rule && one.around == other.around && IsEarlierThanPlace(one) &&
               IsEarlierThanPlace(other);
    }
    static bool IsEarlierThanPlace(const Twin& twin) { return twin.earlier < twin.around; }

    /// A row or group that is a copy of another is one fault.
    void Report(const std::vector<Twin>& twins) {
        const Twin& first = twins.front();
        const GatheredElement& place = At(twins.size() > 1 ? first.around : first.element);
        const AttributeUse name = twins.size() > 1 ? AttributeUse::Keyword : first.rule->name;
        std::wstring text = first.rule->text;
        if (twins.size() > 1) {
            text = std::to_wstring(twins.size()) + first.rule->ofMany;
        }
        ReportTogether(m_sink, *place.file, PlaceOf(place.element, name), "duplicate-keyword", std::move(text),
                       twins.size() > 1 ? L"is it a copy? then remove it, or take other keywords and titles"
                                        : first.rule->fix,
                       {PlaceOf(At(first.earlier), first.rule->name,
                                twins.size() > 1 ? L"the first of them" : L"the earlier one")});
    }

    GatheringSink& m_sink;
    const std::wstring* m_file = nullptr;
    Place m_names;
    std::size_t m_around = 0;
    std::map<std::pair<ElementRole, Place>, std::size_t> m_first;
    std::vector<Twin> m_twins;
};

} // namespace

void CheckTwins(GatheringSink& sink) { TwinCheck(sink).Run(); }
