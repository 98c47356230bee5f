#include "config/menu_diagnosis.h"

#include "config/menu_attributes.h"
#include "config/suggestion.h"
#include "varnhold/letter_case.h"

MetElement MenuDiagnosis::Describe(varnhold::XmlCursor& element, ElementRole role, std::size_t level) const {
    MetElement met = DescribeElement(element, MenuAttributeRules(), L"a menu file", m_diagnostics);
    met.role = role;
    met.depth = level + 2;
    return met;
}

bool MenuDiagnosis::HasAttributes(varnhold::XmlCursor& element, const wchar_t* effect) const {
    if (!element.ReadAttributes().empty()) {
        return true;
    }
    m_diagnostics.Report("no-attributes", element.GetPosition(), effect);
    return false;
}

void MenuDiagnosis::CheckTexts(const MetElement& met, const wchar_t* effect) const {
    if (met.hasUnknown) {
        return;
    }
    const MetAttribute* const name = met.Find(AttributeUse::Name);
    const bool hasName = name != nullptr;
    const std::wstring_view keyword = met.ValueOf(AttributeUse::Keyword);
    const std::wstring meant =
        keyword.empty() ? ClosestWord(met.ValueOf(AttributeUse::Name), {L"SEPARATOR"}) : std::wstring();
    if (!meant.empty() && hasName && name->isMeant) {
        return; // one fault: the attribute's name
    }
    if (!meant.empty()) {
        ReportAt(m_diagnostics, met, AttributeUse::Name, "missing-keyword",
                 L"this is no separator, and " + std::wstring(effect), DidYouMean(meant));
    } else if (keyword.empty() && (hasName || met.role == ElementRole::MenuItem)) {
        ReportAt(m_diagnostics, met, AttributeUse::Keyword, "missing-keyword", effect);
    } else if (!hasName && keyword != kRecentFilesKeyword) {
        const bool isSeparator = !ClosestWord(keyword, {L"SEPARATOR"}).empty();
        m_diagnostics.Report("missing-caption", met.position,
                             L"without MENUNAME this has no caption, and its command no name",
                             isSeparator ? L"a separator is MENUNAME=\"SEPARATOR\" without a keyword"
                                         : L"add MENUNAME=\"\" behind the keyword");
    }
}

void MenuDiagnosis::CheckLetter(MetElement& met) const {
    const MetAttribute* const letter = met.Find(AttributeUse::ShortKey);
    if (letter && (letter->value.size() > 1 || letter->value == L" " || letter->value == L"&")) {
        ReportAt(m_diagnostics, met, AttributeUse::ShortKey, "access-key-syntax",
                 L"SHORTKEY is one letter or digit; " + Quoted(letter->value) +
                     L" is shown as it is, in brackets behind the caption",
                 L"write the letter alone; a shortcut belongs into HOTKEY");
        met.MarkReported(AttributeUse::ShortKey);
    }
}

void MenuDiagnosis::PassOver(varnhold::XmlCursor& element) const {
    MetElement met = DescribeElement(element, MenuAttributeRules(), {}, Unreported());
    met.isPassedOver = true;
    m_diagnostics.Meet(met);
    PassOverBelow(element, MenuAttributeRules(), m_diagnostics);
}

void MenuDiagnosis::MeetGroup(varnhold::XmlCursor& element) {
    m_isStray = false;
    for (const varnhold::XmlAttributeView& written : element.ReadAttributes()) {
        for (const AttributeRule& rule : MenuAttributeRules()) {
            const bool isForPopups = rule.use == AttributeUse::Name || rule.use == AttributeUse::ShortKey;
            if (isForPopups && varnhold::EqualsIgnoringCase(rule.name, written.name)) {
                m_isStray = true;
                if (!m_wasStray) {
                    m_diagnostics.Report(
                        "wrong-depth", element.GetAttributePosition(written),
                        L"what stands directly below the document element is a group: it has no caption, and "
                        L"what is in it stands in the menu bar",
                        L"put a group around the popup, and around those beside it");
                }
                m_wasStray = true;
                PassOver(element);
                return;
            }
        }
    }
}

void MenuDiagnosis::MeetPopup(varnhold::XmlCursor& element, std::size_t level) const {
    if (m_isStray || !HasAttributes(element, L"a popup without attributes has no caption")) {
        return;
    }
    MetElement met = Describe(element, ElementRole::Popup, level);
    CheckTexts(met, L"without a keyword the popup has no caption");
    CheckLetter(met);
    if (const MetAttribute* const shortcut = met.Find(AttributeUse::HotKey)) {
        m_diagnostics.Report("lost-shortcut", shortcut->position, L"a popup takes no shortcut",
                             L"give it a letter by SHORTKEY");
    }
    m_diagnostics.Meet(met);
}

void MenuDiagnosis::MeetItem(varnhold::XmlCursor& element, std::size_t level, bool isSeparator) const {
    if (m_isStray || isSeparator || !HasAttributes(element, L"an item without attributes is left out")) {
        return;
    }
    MetElement met = Describe(element, ElementRole::MenuItem, level);
    CheckTexts(met, L"an item without a keyword is not shown");
    CheckLetter(met);
    m_diagnostics.Meet(met);
}
