#include "src/language_tables.h"

#include "src/file_system.h"
#include "src/unicode.h"
#include "src/xml_tree.h"
#include "varnhold/language_files.h"
#include "varnhold/letter_case.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace varnhold {

namespace {

std::string_view LocalName(const pugi::xml_node& node) {
    const std::string_view name = node.name();
    return name.substr(name.find(':') + 1); // npos + 1 is 0
}

/// Whether texts may stand in an element: in all but those that arrange the others.
bool MayHoldText(const pugi::xml_node& element) {
    constexpr std::string_view arranging[] = {"xliff", "file", "group", "unit", "segment", "ignorable", "notes"};
    return std::ranges::find(arranging, LocalName(element)) == std::end(arranging);
}

/// Whether blanks count inside `node`, when they do (or not) around it.
bool PreservesBlanks(const pugi::xml_node& node, bool inherited) {
    const pugi::xml_attribute space = node.attribute("xml:space");
    return space ? std::string_view(space.value()) == "preserve" : inherited;
}

/// A line break with the blanks around it is the file's layout, not the text's: it counts as one blank, and as none at
/// either end.
std::string FoldLineBreaks(std::string_view text) {
    constexpr std::string_view blanks = " \t\n";
    std::string folded;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t run = std::min(text.find_first_of(blanks, at), text.size());
        const std::size_t end = std::min(text.find_first_not_of(blanks, run), text.size());
        folded += text.substr(at, run - at);
        const std::string_view blank = text.substr(run, end - run);
        if (blank.find('\n') == std::string_view::npos) {
            folded += blank;
        } else if (run > 0 && end < text.size()) {
            folded += ' ';
        }
        at = end;
    }
    return folded;
}

/// The element after `node` in document order that is not inside it, without leaving `top`.
pugi::xml_node NextAfter(pugi::xml_node node, const pugi::xml_node& top) {
    while (node != top && !node.next_sibling()) {
        node = node.parent();
    }
    return node == top ? pugi::xml_node() : node.next_sibling();
}

/// The text of a source or target. Spans (pc, mrk) count with what is in them; placeholders and their like have no
/// text of their own.
std::string ReadContent(const pugi::xml_node& content, bool preserve) {
    std::string text;
    pugi::xml_node node = content.first_child();
    while (node) {
        const std::string_view name = LocalName(node);
        const bool span = node.type() == pugi::node_element && (name == "pc" || name == "mrk");
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) {
            text += node.value();
        } else if (name == "cp") {
            AppendUtf8(text, static_cast<char32_t>(std::strtoul(node.attribute("hex").value(), nullptr, 16)));
        }
        node = span && node.first_child() ? node.first_child() : NextAfter(node, content);
    }
    return preserve ? text : FoldLineBreaks(text);
}

/// The first element in a text that belongs to none; null when there is none.
pugi::xml_node FindForeignInline(const pugi::xml_node& content) {
    static constexpr std::string_view own[] = {"pc", "mrk", "ph", "sc", "ec", "cp", "sm", "em"};
    return content.find_node([](const pugi::xml_node& node) {
        return node.type() == pugi::node_element && std::ranges::find(own, LocalName(node)) == std::end(own);
    });
}

} // namespace

/// Reads one file.
class XliffReader {
public:
    XliffReader(std::wstring path, TranslationFileVisitor& visitor) : m_path(std::move(path)), m_visitor(visitor) {}

    bool Read(const std::wstring& language);
    bool ReadText(std::string text, const std::wstring& language);

private:
    void CheckLanguages(const pugi::xml_node& root, const std::wstring& language) const;
    void ReadFile(const pugi::xml_node& file, bool preserve);
    void ReadUnit(const pugi::xml_node& unit, bool preserve, const char* section);
    void CheckTexts(const pugi::xml_node& segment, const std::string& key) const;
    void Report(TranslationProblem problem, const std::wstring& what, const pugi::xml_node& node) const {
        m_visitor.VisitProblem(problem, m_tree->GetPosition(node), what);
    }

    const std::wstring m_path;
    TranslationFileVisitor& m_visitor;
    std::shared_ptr<const XmlTree> m_tree;
};

namespace {

class NodePlace : public TextPlace {
public:
    NodePlace(const XmlTree& tree, const pugi::xml_node& node) : m_tree(tree), m_node(node) {}
    TextPosition GetPosition() const override { return m_tree.GetPosition(m_node); }

private:
    const XmlTree& m_tree;
    const pugi::xml_node& m_node;
};

TranslationProblem ProblemOf(XmlError error) {
    switch (error) {
    case XmlError::Empty:
        return TranslationProblem::Empty;
    case XmlError::Encoding:
        return TranslationProblem::Encoding;
    case XmlError::Syntax:
        return TranslationProblem::Syntax;
    default:
        return TranslationProblem::Unreadable;
    }
}

} // namespace

bool XliffReader::Read(const std::wstring& language) {
    FileContent content = ReadWholeFile(ToNativePath(m_path), CXmlDocumentWrapper::kMaxSize);
    if (!content.read) {
        m_visitor.VisitProblem(TranslationProblem::Unreadable, TextPosition(), content.reason);
        return false;
    }
    return ReadText(std::move(content.bytes), language);
}

bool XliffReader::ReadText(std::string text, const std::wstring& language) {
    XmlFailure failure;
    m_tree = XmlTree::Parse(std::move(text), BlankText::Keep, failure);
    if (!m_tree) {
        m_visitor.VisitProblem(ProblemOf(failure.error), failure.position, failure.reason);
        return false;
    }
    const pugi::xml_node root = m_tree->GetRoot();
    if (LocalName(root) != "xliff" || !std::string_view(root.attribute("version").value()).starts_with("2.")) {
        Report(TranslationProblem::NotXliff, L"this is no XLIFF 2 file", root);
        return false;
    }
    CheckLanguages(root, language);
    if (m_visitor.IsThorough()) {
        for (const XmlOddity& oddity : m_tree->FindOddities(MayHoldText)) {
            m_visitor.VisitOddity(oddity);
        }
    }
    const bool preserve = PreservesBlanks(root, false);
    for (const pugi::xml_node& child : root) {
        if (LocalName(child) == "file") {
            ReadFile(child, PreservesBlanks(child, preserve));
        }
    }
    return true;
}

void XliffReader::CheckLanguages(const pugi::xml_node& root, const std::wstring& language) const {
    const std::string folder = wstring2String(language);
    const pugi::xml_attribute target = root.attribute("trgLang");
    if (!folder.empty() && target && !varnhold::EqualsIgnoringCase(target.value(), folder)) {
        Report(TranslationProblem::OtherLanguage,
               L"trgLang is \"" + string2wstring(target.value()) + L"\", but the folder is \"" + language + L"\"",
               root);
    }
    const pugi::xml_attribute source = root.attribute("srcLang");
    m_visitor.VisitSourceLanguage(source && !varnhold::EqualsIgnoringCase(source.value(), folder));
}

void XliffReader::ReadFile(const pugi::xml_node& file, bool preserve) {
    const char* id = file.attribute("id").value();
    if (!*id) {
        Report(TranslationProblem::FileWithoutId, L"a file without an id belongs to no section; it is skipped", file);
        return;
    }
    // Groups may nest: they say how an editor shows the units, not what the keys are.
    std::vector<std::pair<pugi::xml_node, bool>> open{{file.first_child(), preserve}};
    while (!open.empty()) {
        auto& [next, blanks] = open.back();
        if (!next) {
            open.pop_back();
            continue;
        }
        const pugi::xml_node node = std::exchange(next, next.next_sibling());
        const bool nodeBlanks = PreservesBlanks(node, blanks);
        const std::string_view name = LocalName(node);
        if (name == "group") {
            open.emplace_back(node.first_child(), nodeBlanks);
        } else if (name == "unit") {
            ReadUnit(node, nodeBlanks, id);
        }
    }
}

void XliffReader::ReadUnit(const pugi::xml_node& unit, bool preserve, const char* section) {
    const pugi::xml_attribute name = unit.attribute("name");
    TranslationUnit read;
    read.key = *name.value() ? name.value() : unit.attribute("id").value();
    if (read.key.empty()) {
        Report(TranslationProblem::UnitWithoutKey, L"a unit has neither a name nor an id; it is skipped", unit);
        return;
    }
    read.isTranslated = true;
    std::vector<std::pair<int, std::string>> parts; // by the place that the translation asks for
    for (const pugi::xml_node& part : unit) {
        const std::string_view kind = LocalName(part);
        if (kind != "segment" && kind != "ignorable") {
            continue;
        }
        if (m_visitor.IsThorough()) {
            CheckTexts(part, read.key);
        }
        const bool blanks = PreservesBlanks(part, preserve);
        int place = static_cast<int>(parts.size()) + 1;
        std::string source;
        std::string target;
        for (const pugi::xml_node& text : part) {
            const std::string_view which = LocalName(text);
            if (which == "source") {
                source = ReadContent(text, PreservesBlanks(text, blanks));
            } else if (which == "target") {
                target = ReadContent(text, PreservesBlanks(text, blanks));
                place = text.attribute("order").as_int(place);
            }
        }
        read.isTranslated = read.isTranslated && (!target.empty() || source.empty() || kind == "ignorable");
        parts.emplace_back(place, target.empty() ? source : target);
    }
    if (parts.empty()) {
        Report(TranslationProblem::UnitWithoutSegment,
               L"the unit \"" + string2wstring(read.key) + L"\" has no segment; it is skipped", unit);
        m_visitor.VisitFaultyUnit(section, read.key);
        return;
    }
    std::stable_sort(parts.begin(), parts.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::string text;
    for (const auto& part : parts) {
        text += part.second;
    }
    read.text = string2wstring(text);
    read.section = section;
    m_visitor.VisitUnit(read, NodePlace(*m_tree, unit));
}

void XliffReader::CheckTexts(const pugi::xml_node& segment, const std::string& key) const {
    for (const std::string_view which : {"source", "target"}) {
        bool isFirst = true;
        for (const pugi::xml_node& text : segment) {
            if (LocalName(text) != which) {
                continue;
            }
            if (!isFirst) {
                Report(TranslationProblem::SecondText,
                       L"the unit \"" + string2wstring(key) + L"\" has a second " + string2wstring(std::string(which)) +
                           L" in one segment; this one counts",
                       text);
            }
            isFirst = false;
            if (const pugi::xml_node foreign = FindForeignInline(text)) {
                Report(TranslationProblem::ForeignInline,
                       L"<" + string2wstring(foreign.name()) +
                           L"> is no element of a text in XLIFF 2; it is left out, with what is in it",
                       foreign);
            }
        }
    }
}

bool ReadTranslationText(std::string_view text, const std::wstring& language, TranslationFileVisitor& visitor) {
    return XliffReader({}, visitor).ReadText(std::string(text), language);
}

bool ReadTranslationFile(const std::wstring& path, const std::wstring& language, TranslationFileVisitor& visitor) {
    return XliffReader(path, visitor).Read(language);
}

/// Puts the texts of a file into the tables and tells what is wrong as lines of text.
class TableFiller : public TranslationFileVisitor {
public:
    TableFiller(LanguageTables& tables, const std::wstring& path, const LanguageTables::ProblemSink& sink)
        : m_tables(tables), m_path(path), m_sink(sink) {}

    void VisitUnit(const TranslationUnit& unit, const TextPlace& place) override {
        auto section = m_tables.m_sections.find(unit.section);
        if (section == m_tables.m_sections.end()) {
            section = m_tables.m_sections.try_emplace(std::string(unit.section)).first;
        }
        if (!section->second.insert_or_assign(unit.key, unit.text).second) {
            Report(place.GetPosition(),
                   L"the unit \"" + string2wstring(unit.key) + L"\" was there before; the later one counts");
        }
    }
    void VisitProblem(TranslationProblem /*problem*/, TextPosition position, const std::wstring& text) override {
        Report(position, text);
    }

private:
    void Report(TextPosition position, const std::wstring& what) const {
        if (m_sink) {
            m_sink(FormatProblem(m_path, position, what));
        }
    }

    LanguageTables& m_tables;
    const std::wstring& m_path;
    const LanguageTables::ProblemSink& m_sink;
};

bool LanguageTables::AddFile(const std::wstring& path, const std::wstring& language, const ProblemSink& sink) {
    TableFiller filler(*this, path, sink);
    return ReadTranslationFile(path, language, filler);
}

const std::wstring* LanguageTables::Find(std::string_view section, std::string_view key) const {
    const auto texts = m_sections.find(section);
    if (texts == m_sections.end()) {
        return nullptr;
    }
    const auto text = texts->second.find(key);
    return text == texts->second.end() ? nullptr : &text->second;
}

} // namespace varnhold
