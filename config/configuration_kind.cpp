#include "config/configuration_kind.h"

#include "config/depth_walker.h"
#include "config/menu_attributes.h"
#include "config/ribbon_attributes.h"
#include "config/toolbar_file.h"

#include <varnhold/letter_case.h>

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace {

constexpr std::array kKinds = {ConfigurationKind::Ribbon, ConfigurationKind::Menu, ConfigurationKind::ToolBars};
constexpr std::array<std::wstring_view, 3> kNames = {L"ribbon file", L"menu file", L"toolbar file"};
constexpr std::array<std::wstring_view, 3> kStarts = {L"ribbon", L"menu", L"toolbar"};

std::size_t IndexOf(ConfigurationKind kind) { return static_cast<std::size_t>(kind); }

std::span<const AttributeRule> RulesOf(ConfigurationKind kind) {
    switch (kind) {
    case ConfigurationKind::Ribbon:
        return RibbonAttributeRules();
    case ConfigurationKind::Menu:
        return MenuAttributeRules();
    case ConfigurationKind::ToolBars:
        break;
    }
    return ToolBarAttributeRules();
}

bool Knows(ConfigurationKind kind, std::string_view name) {
    return std::ranges::any_of(
        RulesOf(kind), [name](const AttributeRule& rule) { return varnhold::EqualsIgnoringCase(rule.name, name); });
}

/// By kind, whether an element, or how many of a document, speak for it.
using Signs = std::array<bool, kKinds.size()>;
using Votes = std::array<std::size_t, kKinds.size()>;

struct TellingName {
    std::string_view name;
    ConfigurationKind kind;
};

/// The attributes that one kind alone has.
std::vector<TellingName> FindTellingNames() {
    std::vector<TellingName> names;
    for (const ConfigurationKind kind : kKinds) {
        for (const AttributeRule& rule : RulesOf(kind)) {
            const auto knows = [&rule](ConfigurationKind other) { return Knows(other, rule.name); };
            if (std::ranges::count_if(kKinds, knows) == 1) {
                names.push_back({rule.name, kind});
            }
        }
    }
    return names;
}

/// The only kind that has an attribute of that name.
std::optional<ConfigurationKind> OnlyKindWith(std::string_view name) {
    static const std::vector<TellingName> s_names = FindTellingNames();
    const auto found = std::ranges::find_if(
        s_names, [name](const TellingName& telling) { return varnhold::EqualsIgnoringCase(telling.name, name); });
    return found == s_names.end() ? std::nullopt : std::optional(found->kind);
}

constexpr std::size_t kButtonDepth = 3;  // of a toolbar
constexpr std::size_t kElementDepth = 4; // of a ribbon's panel, and whatever is deeper

/// What speaks for each kind.
class Evidence {
public:
    void Take(varnhold::XmlCursor& element, std::size_t depth) {
        Signs signs{};
        for (const varnhold::XmlAttributeView& written : element.ReadAttributes()) {
            if (const auto only = OnlyKindWith(written.name)) {
                signs[IndexOf(*only)] = true;
                ++m_attributes[IndexOf(*only)];
            }
            const bool isType = varnhold::EqualsIgnoringCase(std::string_view(written.name), std::string_view("TYPE"));
            m_types += isType ? 1 : 0;
            if (isType && depth >= kButtonDepth) {
                const auto telling = depth < kElementDepth ? ConfigurationKind::ToolBars : ConfigurationKind::Ribbon;
                signs[IndexOf(telling)] = true;
                m_stands[IndexOf(telling)] = true;
            }
        }
        m_described += element.ReadAttributes().empty() ? 0 : 1;
        const auto count = std::ranges::count(signs, true);
        for (std::size_t kind = 0; kind < signs.size(); ++kind) {
            m_votes[kind] += signs[kind] && count == 1 ? 1 : 0;
            m_mentions[kind] += signs[kind] ? 1 : 0;
        }
    }

    const Votes& Attributes() const { return m_attributes; }

    bool IsClearly(ConfigurationKind kind, ConfigurationKind expected) const {
        constexpr std::size_t few = 2;
        const std::size_t votes = m_votes[IndexOf(kind)];
        return votes >= few && Outweighs(votes, m_mentions[IndexOf(expected)]) && 2 * votes > m_described &&
               m_attributes[IndexOf(kind)] > 0 && StandsAs(kind);
    }

private:
    static bool Outweighs(std::size_t votes, std::size_t others) {
        constexpr std::size_t clear = 4; // times as many
        return votes > clear * others;
    }
    /// An item of a menu has no TYPE; buttons stand where they do.
    bool StandsAs(ConfigurationKind kind) const {
        return kind == ConfigurationKind::Menu ? Outweighs(m_votes[IndexOf(kind)], m_types) : m_stands[IndexOf(kind)];
    }

    Votes m_attributes{};
    /// Elements that speak for one kind alone, and all that speak for it.
    Votes m_votes{};
    Votes m_mentions{};
    /// Elements with attributes.
    std::size_t m_described = 0;
    /// Elements with a TYPE.
    std::size_t m_types = 0;
    Signs m_stands{};
};

Evidence EvidenceIn(const varnhold::XmlCursor& documentElement) {
    Evidence evidence;
    WalkBelow(documentElement, [&evidence](varnhold::XmlCursor& element, std::size_t depth) {
        evidence.Take(element, depth);
        return true;
    });
    return evidence;
}

} // namespace

std::wstring_view NameOf(ConfigurationKind kind) { return kNames[IndexOf(kind)]; }

std::wstring_view FileNameStart(ConfigurationKind kind) { return kStarts[IndexOf(kind)]; }

ConfigurationKind KindByAttributes(const varnhold::XmlCursor& documentElement) {
    const Votes votes = EvidenceIn(documentElement).Attributes();
    return kKinds[static_cast<std::size_t>(std::ranges::max_element(votes) - votes.begin())];
}

std::optional<ConfigurationKind> OtherKindOf(const varnhold::XmlCursor& documentElement, ConfigurationKind expected) {
    const Evidence evidence = EvidenceIn(documentElement);
    for (const ConfigurationKind kind : kKinds) {
        if (kind != expected && evidence.IsClearly(kind, expected)) {
            return kind;
        }
    }
    return std::nullopt;
}

std::optional<ConfigurationKind> KindWithAttributes(std::span<const std::string_view> names) {
    const auto* const found = std::ranges::find_if(kKinds, [names](ConfigurationKind kind) {
        return std::ranges::all_of(names, [kind](std::string_view name) { return Knows(kind, name); });
    });
    return found == kKinds.end() ? std::nullopt : std::optional(*found);
}
