#include "config/ribbon_diagnosis.h"

#include "config/element_kind.h"
#include "config/ribbon_attributes.h"
#include "config/suggestion.h"

#include <varnhold/letter_case.h>

namespace {

constexpr ElementRole RoleOf(std::size_t depth, RibbonRowKind row) {
    constexpr ElementRole roles[] = {ElementRole::Row, ElementRole::Category, ElementRole::Panel,
                                     ElementRole::RibbonElement, ElementRole::SubItem};
    constexpr std::size_t belowRow = 2;
    if (depth == belowRow && row != RibbonRowKind::Categories) {
        return row == RibbonRowKind::QuickAccess ? ElementRole::QuickAccessItem : ElementRole::StatusButton;
    }
    return roles[depth - 1];
}

bool IsInPanel(const MetElement& met) {
    return met.role == ElementRole::RibbonElement || met.role == ElementRole::SubItem;
}

ElementKind KindOf(const MetElement& met) { return KindOfElement(met.ValueOf(AttributeUse::Type)); }

bool AsksForText(const MetElement& met) { return met.Has(AttributeUse::Name) || met.Has(AttributeUse::ToolTip); }

bool IsStatusSeparator(const MetElement& met) {
    return varnhold::EqualsIgnoringCase(met.ValueOf(AttributeUse::Keyword), L"Separator");
}

bool NeedsKeyword(const MetElement& met) {
    switch (met.role) {
    case ElementRole::Row:
        return false;
    case ElementRole::Panel:
        return AsksForText(met);
    default:
        return KindOf(met) != ElementKind::Group || AsksForText(met);
    }
}

/// A number that is 0 as it is written; one that could not be read is none.
bool IsZero(std::wstring_view digits) {
    digits.remove_prefix(digits.starts_with(L'-') || digits.starts_with(L'+') ? 1 : 0);
    return !digits.empty() && digits.find_first_not_of(L'0') == digits.npos;
}

constexpr const wchar_t* kSeparatorFix =
    L"a separator is GROUPBEFORE=\"Y\" as the last attribute of the element behind it";

constexpr AttributeUse kInherited[] = {AttributeUse::Command, AttributeUse::Parameter, AttributeUse::DisabledIcon};
constexpr const wchar_t* kInheritedNames[] = {L"CMD", L"PARAM", L"PICDisPATH"};

} // namespace

void RibbonDiagnosis::Meet(varnhold::XmlCursor& element, const RibbonTexts& info, std::size_t depth,
                           RibbonRowKind row) {
    if (depth > m_silentBelow) {
        return;
    }
    m_silentBelow = kNowhere;
    if (IsStray(element, depth)) {
        MetElement stray = DescribeElement(element, RibbonAttributeRules(), {}, Unreported());
        stray.isPassedOver = true;
        m_diagnostics.Meet(stray);
        return;
    }
    MetElement met = DescribeElement(element, RibbonAttributeRules(), L"a ribbon file", m_diagnostics);
    met.role = RoleOf(depth, row);
    met.depth = depth;
    if (element.ReadAttributes().empty() && met.role != ElementRole::Row) {
        m_diagnostics.Report("no-attributes", met.position, L"an element without attributes describes nothing",
                             IsInPanel(met) ? kSeparatorFix : L"");
        m_silentBelow = met.depth;
    } else {
        Check(met, info);
        met.isPassedOver = met.depth == m_strayDepth; // it was reported just now
        m_diagnostics.Meet(met);
    }
    if (m_silentBelow != kNowhere) {
        PassOverBelow(element, RibbonAttributeRules(), m_diagnostics);
    }
}

/// Whether the element is of the kind of one beside it that was reported: a level is missing around both, or their row
/// is of another kind than it says.
bool RibbonDiagnosis::IsStray(varnhold::XmlCursor& element, std::size_t depth) {
    if (depth < m_strayDepth) {
        m_strayDepth = kNowhere;
    }
    if (depth != m_strayDepth || element.HasChildren()) {
        return false;
    }
    const MetElement met = DescribeElement(element, RibbonAttributeRules(), {}, Unreported());
    return met.Has(AttributeUse::Type) || !met.Has(AttributeUse::Name);
}

/// A row of another keyword has categories; one of nearly those two was meant to have something else.
bool RibbonDiagnosis::CheckRow(const MetElement& met) {
    const std::wstring_view keyword = met.ValueOf(AttributeUse::Keyword);
    if (keyword == kQuickAccessRow || keyword == kStatusRow) {
        return true;
    }
    const std::wstring meant = ClosestWord(keyword, {std::wstring(kQuickAccessRow), std::wstring(kStatusRow)});
    if (!meant.empty()) {
        ReportAt(m_diagnostics, met, AttributeUse::Keyword, "row-keyword",
                 L"a row with the keyword " + Quoted(keyword) + L" has categories", DidYouMean(meant));
    }
    return meant.empty();
}

void RibbonDiagnosis::Check(const MetElement& met, const RibbonTexts& info) {
    if (!CheckDepth(met) || (met.role == ElementRole::Row && !CheckRow(met))) {
        m_silentBelow = met.depth;
        return;
    }
    const bool hasKind = !IsInPanel(met) || KindOf(met) != ElementKind::Unknown;
    if (hasKind && !met.hasUnknown) {
        CheckKeyword(met);
        CheckCaption(met);
    }
    CheckInheritance(met);
    if (IsInPanel(met)) {
        CheckKind(met);
        CheckSizes(met, info);
    } else {
        if (met.role == ElementRole::StatusButton && !IsStatusSeparator(met)) {
            CheckStatusKind(met);
            CheckSizes(met, info);
        }
        CheckChildren(met);
    }
}

bool RibbonDiagnosis::CheckDepth(const MetElement& met) {
    const bool isCategory = met.role == ElementRole::Category;
    const std::wstring_view keyword = met.ValueOf(AttributeUse::Keyword);
    const bool isRowOfItsOwn = keyword == kQuickAccessRow || keyword == kStatusRow;
    if (met.Has(AttributeUse::CateTab) && !isCategory) {
        ReportAt(m_diagnostics, met, AttributeUse::CateTab, "wrong-depth",
                 L"only a category has CateTab, and this is none at its depth",
                 L"a category stands two levels below the document element");
        return false;
    }
    if (isRowOfItsOwn && met.role != ElementRole::Row) {
        ReportAt(m_diagnostics, met, AttributeUse::Keyword, "wrong-depth",
                 L"only a row has this keyword, and this is none at its depth",
                 L"a row stands directly below the document element");
        return false;
    }
    const bool isAbovePanels = met.role == ElementRole::Row || isCategory || met.role == ElementRole::Panel;
    if (met.Has(AttributeUse::Type) && isAbovePanels) {
        ReportAt(m_diagnostics, met, AttributeUse::Type, "wrong-depth",
                 L"an element with a TYPE is read as a row, category or panel here and does not show",
                 L"elements stand four levels below the document element: row, category, panel, element" +
                     std::wstring(isCategory ? L"; or give the row the KEYWORD StatusEx_btns" : L""));
        m_strayDepth = met.depth;
        return false;
    }
    return true;
}

void RibbonDiagnosis::CheckKeyword(const MetElement& met) {
    if (NeedsKeyword(met) && met.ValueOf(AttributeUse::Keyword).empty()) {
        ReportAt(m_diagnostics, met, AttributeUse::Keyword, "missing-keyword",
                 L"without a keyword the command leads nowhere and its texts are empty");
    }
}

void RibbonDiagnosis::CheckCaption(const MetElement& met) {
    if (met.Has(AttributeUse::Name)) {
        return;
    }
    const ElementKind kind = KindOf(met);
    const bool isBareButton = IsInPanel(met) && kind == ElementKind::Button && met.ValueOf(AttributeUse::Icon).empty();
    const bool isBareLabel = IsInPanel(met) && kind == ElementKind::Label;
    if (met.role == ElementRole::Category || isBareButton || isBareLabel) {
        const bool isChildless = met.role == ElementRole::Category && !met.hasChildren;
        m_diagnostics.Report("missing-caption", met.position, L"without NAME nothing is shown here",
                             isChildless
                                 ? L"add NAME=\"\", or give the row the KEYWORD QK_Rbbion_QAToolbar or StatusEx_btns"
                                 : L"add NAME=\"\"");
        m_strayDepth = isChildless ? met.depth : m_strayDepth;
    }
}

void RibbonDiagnosis::CheckKind(const MetElement& met) {
    const std::wstring_view type = met.ValueOf(AttributeUse::Type);
    const ElementKind kind = KindOf(met);
    if (type.empty()) {
        if (!met.hasUnknown) {
            ReportAt(m_diagnostics, met, AttributeUse::Type, "missing-type", L"without a TYPE nothing is shown");
        }
        m_silentBelow = met.depth;
    } else if (kind == ElementKind::Unknown) {
        ReportAt(m_diagnostics, met, AttributeUse::Type, "unknown-type",
                 Quoted(type) + L" is no kind of ribbon element; nothing is shown",
                 ClosestWord(type, {L"separator", L"separate"}).empty() ? DidYouMean(ClosestWord(type, ElementTypes()))
                                                                        : kSeparatorFix);
        m_silentBelow = met.depth;
    } else if (kind == ElementKind::Group && (met.role == ElementRole::SubItem || !met.hasChildren)) {
        m_diagnostics.Report("empty-group", met.position,
                             L"a group without elements, or within another element, shows nothing");
        m_silentBelow = met.depth;
    } else if (met.hasChildren && met.role == ElementRole::SubItem) {
        m_diagnostics.Report("children-lost", met.position, L"the elements below a sub-item are not read");
        m_silentBelow = met.depth;
    } else if (met.hasChildren && !TakesSubItems(kind)) {
        m_diagnostics.Report("children-lost", met.position,
                             L"only a button or a group may have elements below it; this one vanishes with them",
                             L"move them beside it, or make it a BUTTON or a GROUP");
        m_silentBelow = met.depth;
    }
}

void RibbonDiagnosis::CheckStatusKind(const MetElement& met) {
    const std::wstring_view type = met.ValueOf(AttributeUse::Type);
    const ElementKind kind = KindOf(met);
    if (!type.empty() && kind != ElementKind::Button && kind != ElementKind::Label && kind != ElementKind::Slider) {
        ReportAt(m_diagnostics, met, AttributeUse::Type, "unknown-type",
                 Quoted(type) + L" is no kind of status-bar button; it is made as a BUTTON",
                 DidYouMean(ClosestWord(type, {L"BUTTON", L"label", L"SLIDER"})));
    }
}

void RibbonDiagnosis::CheckSizes(const MetElement& met, const RibbonTexts& info) {
    constexpr std::int32_t smallSide = 16;
    constexpr std::int32_t largeSide = 32;
    const ElementKind kind = KindOf(met);
    // A number that could not be read was reported, and left 0.
    if (IsInPanel(met) && kind == ElementKind::Button && info.size != 0 && info.size != smallSide &&
        info.size != largeSide) {
        ReportAt(m_diagnostics, met, AttributeUse::Size, "odd-size",
                 L"a button of SIZE " + std::to_wstring(info.size) + L" is a large one, as with 32", L"write 16 or 32");
    }
    const bool isTooNarrow = info.width < 0 || IsZero(met.ValueOf(AttributeUse::Width));
    if ((kind == ElementKind::Slider || kind == ElementKind::Edit) && isTooNarrow) {
        ReportAt(m_diagnostics, met, AttributeUse::Width, "odd-size", L"a WIDTH below 1 counts as 50");
    }
}

void RibbonDiagnosis::CheckInheritance(const MetElement& met) {
    if (met.role == ElementRole::Category) {
        m_panels = {};
    } else if (met.role == ElementRole::RibbonElement) {
        m_subItems = {};
    }
    if (met.role != ElementRole::Panel && met.role != ElementRole::SubItem) {
        return;
    }
    Setters& before = met.role == ElementRole::Panel ? m_panels : m_subItems;
    std::wstring inherited;
    for (std::size_t i = 0; i < std::size(kInherited); ++i) {
        if (const MetAttribute* const own = met.Find(kInherited[i])) {
            before.isSet[i] = !own->value.empty();
        } else if (before.isSet[i]) {
            inherited += (inherited.empty() ? L"" : L", ") + std::wstring(kInheritedNames[i]);
        }
    }
    if (!inherited.empty()) {
        const std::wstring what = met.role == ElementRole::Panel ? L"panel" : L"sub-item";
        m_diagnostics.Report("inherited-value", met.position,
                             L"this " + what + L" has the " + inherited + L" of the one before it",
                             L"write the value, or an empty one");
    }
}

void RibbonDiagnosis::CheckChildren(const MetElement& met) {
    const bool takesChildren =
        met.role == ElementRole::Row || met.role == ElementRole::Category || met.role == ElementRole::Panel;
    if (!takesChildren && met.hasChildren) {
        m_diagnostics.Report("children-lost", met.position, L"the elements below this one are not read");
        m_silentBelow = met.depth;
    }
}
