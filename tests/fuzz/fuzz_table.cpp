#include "config/check/translation_extract.h"
#include "config/ribbon_attributes.h"
#include "targets.h"

#include <varnhold/language_files.h>
#include <varnhold/strings.h>

#include <map>
#include <set>

namespace {

/// The texts of the section of commands.
class Texts : public varnhold::TranslationFileVisitor {
public:
    void VisitUnit(const varnhold::TranslationUnit& unit, const varnhold::TextPlace& place) override {
        const varnhold::TextPosition position = place.GetPosition();
        Demand(position.line >= 1 && position.column >= 1);
        Demand(!unit.key.empty());
        if (string2wstring(unit.section) == kCommands) {
            m_texts[unit.key] = unit.text;
        }
    }
    void VisitProblem(varnhold::TranslationProblem /*problem*/, varnhold::TextPosition /*position*/,
                      const std::wstring& text) override {
        Demand(!text.empty());
    }

    const std::wstring kCommands = string2wstring(kRibbonSection);
    std::map<std::string, std::wstring> m_texts;
};

} // namespace

void FuzzTable(std::string_view bytes) {
    Texts before;
    if (!varnhold::ReadTranslationText(bytes, L"en", before)) {
        return;
    }
    if (bytes.starts_with("\xEF\xBB\xBF") || wstring2String(string2wstring(std::string(bytes))) != bytes) {
        return; // only a table in UTF-8 is completed, without a mark: whoever reads the file sees to that
    }
    TableCompletion completion;
    completion.asked = {{L"Open", {L"cfg/ribbon.xml: \"two\" <lines> & more", L"cfg/menu.xml </note>"}},
                        {L"Open.tooltip", {L"a --> b"}}};
    completion.sources = {{L"Open", L"Open <a> & \"b\""}};
    completion.keywords = {L"Open", L"Kept"};
    std::string table(bytes);
    CompletionCounts counts;
    if (!CompleteTable(table, completion, counts)) {
        Demand(table == bytes);
        return;
    }
    // What was there says the same, and what was asked for is there.
    Texts after;
    Demand(varnhold::ReadTranslationText(table, L"en", after));
    for (const auto& [key, text] : before.m_texts) {
        const auto found = after.m_texts.find(key);
        Demand(found != after.m_texts.end() && found->second == text);
    }
    Demand(after.m_texts.contains("Open") && after.m_texts.contains("Open.tooltip"));
    // A second time changes nothing.
    std::string again = table;
    CompletionCounts countsAgain;
    Demand(CompleteTable(again, completion, countsAgain));
    Demand(again == table && countsAgain.added == 0);
}
