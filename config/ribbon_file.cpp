#include "config/ribbon_file.h"

#include "config/depth_walker.h"
#include "config/load_document.h"
#include "config/ribbon_attributes.h"

#include <varnhold/language.h>

#include <array>

namespace {

enum Depth : std::size_t { RowDepth = 1, CategoryDepth, PanelDepth, ElementDepth, SubItemDepth };

/// Builds the records while a walk goes over the elements: keeps the place of the next record at each depth.
class RecordReader {
public:
    explicit RecordReader(const FileDiagnostics& diagnostics) : m_diagnostics(diagnostics), m_diagnosis(diagnostics) {}

    /// `root`: its record takes what lies below `element`, which is at depth `depthOfRoot`.
    void ReadBelow(const varnhold::XmlCursor& element, RibbonRecord& root, std::size_t depthOfRoot) {
        OpenChildren(element, root, depthOfRoot);
        WalkBelow(element, [this, depthOfRoot](varnhold::XmlCursor& child, std::size_t depth) {
            return Read(child, depthOfRoot + depth);
        });
    }

    bool ReadInfo(varnhold::XmlCursor& element, RibbonTexts& info) {
        return ReadNewRibbonInfo(element, info, {m_translations, m_records.arena, m_last, m_diagnostics});
    }

    RibbonRecords m_records;

private:
    struct Level {
        RibbonRecord* parent = nullptr;
        std::size_t next = 0;
    };

    void OpenChildren(const varnhold::XmlCursor& element, RibbonRecord& parent, std::size_t depth) {
        parent.children = m_records.arena.MakeArray<RibbonRecord>(element.CountChildren());
        m_levels[depth] = {&parent, 0};
    }

    /// Whether the children of the element are to be read.
    bool Read(varnhold::XmlCursor& element, std::size_t depth) {
        Level& level = m_levels[depth - 1];
        RibbonRecord& record = level.parent->children[level.next];
        // Panels and sub-items are read into the record that was read before them.
        if (depth == PanelDepth || depth == SubItemDepth) {
            CarryOver(level.next == 0 ? level.parent->info : level.parent->children[level.next - 1].info, record.info);
        }
        ++level.next;
        ReadInfo(element, record.info);

        if (depth == RowDepth) {
            m_rowKind = KindOfRow(record.info.keyword);
        }
        const bool goesDeeper = depth < LastDepth();
        if (m_diagnostics.IsListening()) {
            m_diagnosis.Meet(element, record.info, depth, m_rowKind);
        }
        if (goesDeeper) {
            OpenChildren(element, record, depth);
        }
        return goesDeeper;
    }

    static void CarryOver(const RibbonTexts& before, RibbonTexts& info) {
        info.picDisPath = before.picDisPath;
        info.cmd = before.cmd;
        info.param = before.param;
    }

    std::size_t LastDepth() const { return m_rowKind == RibbonRowKind::Categories ? SubItemDepth : CategoryDepth; }

    const FileDiagnostics& m_diagnostics;
    RibbonDiagnosis m_diagnosis;
    const CTranslationSection m_translations{kRibbonSection};
    LastTexts m_last;
    /// By the depth of the parent.
    std::array<Level, SubItemDepth> m_levels{};
    RibbonRowKind m_rowKind = RibbonRowKind::Categories;
};

} // namespace

RibbonRowKind KindOfRow(std::wstring_view keyword) {
    if (keyword == kQuickAccessRow) {
        return RibbonRowKind::QuickAccess;
    }
    if (keyword == kStatusRow) {
        return RibbonRowKind::StatusButtons;
    }
    return RibbonRowKind::Categories;
}

RibbonRecords ReadRibbonRows(const varnhold::XmlCursor& documentElement, const FileDiagnostics& diagnostics) {
    RecordReader reader(diagnostics);
    RibbonRecord document;
    reader.ReadBelow(documentElement, document, 0);
    reader.m_records.top = document.children;
    return std::move(reader.m_records);
}

RibbonRecords ReadRibbonElement(const CXmlNodeWrapper& element, const FileDiagnostics& diagnostics) {
    RecordReader reader(diagnostics);
    reader.m_records.top = reader.m_records.arena.MakeArray<RibbonRecord>(1);
    RibbonRecord& record = reader.m_records.top.front();
    varnhold::XmlCursor cursor(element);
    reader.ReadInfo(cursor, record.info);
    reader.ReadBelow(cursor, record, ElementDepth);
    return std::move(reader.m_records);
}

bool LoadRibbonFile(const std::wstring& fullPath, RibbonRecords& rows, DiagnosticsSink& sink) {
    FileDiagnostics diagnostics(fullPath, sink);
    CXmlDocumentWrapper document;
    if (!LoadDocument(fullPath, ConfigurationKind::Ribbon, diagnostics, document)) {
        return false;
    }
    rows = ReadRibbonRows(varnhold::XmlCursor(document), diagnostics);
    return true;
}
