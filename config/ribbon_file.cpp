#include "config/ribbon_file.h"

#include "config/depth_walker.h"
#include "config/element_kind.h"
#include "config/ribbon_attributes.h"

#include <varnhold/language.h>

#include <array>

namespace {

enum Depth : std::size_t { RowDepth = 1, CategoryDepth, PanelDepth, ElementDepth, SubItemDepth };

/// Builds the records while a walk goes over the elements: keeps the record that is open at each depth.
class RecordReader {
public:
    /// `depthOfRoot`: what `root` is; its record takes what the walk below it finds.
    RecordReader(RibbonRecord& root, std::size_t depthOfRoot, const FileDiagnostics& diagnostics)
        : m_depthOfRoot(depthOfRoot), m_diagnostics(diagnostics) {
        m_open[depthOfRoot] = &root;
    }

    void ReadBelow(const CXmlNodeWrapper& root) {
        m_open[m_depthOfRoot]->children.reserve(root.GetChildCount());
        WalkBelow(root,
                  [this](const CXmlNodeWrapper& node, std::size_t depth) { return Read(node, m_depthOfRoot + depth); });
    }

private:
    /// Whether the children of the node are to be read.
    bool Read(const CXmlNodeWrapper& node, std::size_t depth) {
        RibbonRecord& parent = *m_open[depth - 1];
        RibbonRecord& record = parent.children.emplace_back();
        m_open[depth] = &record;
        // Panels and sub-items are read into the record that was read before them.
        if (depth == PanelDepth || depth == SubItemDepth)
            CarryOver(parent.children.size() == 1 ? parent.info : parent.children.end()[-2].info, record.info);
        ReadNewRibbonInfo(node, record.info, m_texts, m_diagnostics);

        if (depth == RowDepth)
            m_rowKind = KindOfRow(record.info.keyword);
        const bool goesDeeper = depth < LastDepth();
        if (m_diagnostics.IsListening())
            ReportOn(node, depth, goesDeeper);
        if (goesDeeper)
            record.children.reserve(node.GetChildCount());
        return goesDeeper;
    }

    static void CarryOver(const RibbonInfo& before, RibbonInfo& info) {
        info.picDisPath = before.picDisPath;
        info.cmd = before.cmd;
        info.param = before.param;
    }

    std::size_t LastDepth() const { return m_rowKind == RibbonRowKind::Categories ? SubItemDepth : CategoryDepth; }

    void ReportOn(const CXmlNodeWrapper& node, std::size_t depth, bool goesDeeper) const {
        const RibbonInfo& info = m_open[depth]->info;
        const bool hasChildren = node.GetChildCount() > 0;
        const varnhold::TextPosition position = node.GetPosition();
        if (node.GetAttributeCount() == 0 && depth > RowDepth)
            m_diagnostics.Warn(position, "no-attributes", L"an element without attributes describes nothing");
        else if (info.keyword.empty() && depth > RowDepth && depth != PanelDepth)
            m_diagnostics.Warn(position, "no-keyword", L"without a keyword the command cannot be registered");
        if (!goesDeeper && hasChildren)
            m_diagnostics.Warn(position, "too-deep", L"the elements below this one are not read");
        if (depth < ElementDepth || node.GetAttributeCount() == 0)
            return;
        const ElementKind kind = KindOfElement(info.type);
        if (kind == ElementKind::Unknown)
            m_diagnostics.Warn(position, "unknown-type", L"\"" + info.type + L"\" is not a kind of ribbon element");
        else if (kind == ElementKind::Group && (depth == SubItemDepth || !hasChildren))
            m_diagnostics.Warn(position, "empty-group",
                               L"a group without elements, or within another one, shows nothing");
        else if (depth == ElementDepth && hasChildren && !TakesSubItems(kind))
            m_diagnostics.Warn(position, "takes-no-sub-items",
                               L"only a button or a group may have elements below it; nothing is shown");
    }

    std::array<RibbonRecord*, SubItemDepth + 1> m_open{};
    const std::size_t m_depthOfRoot;
    const FileDiagnostics& m_diagnostics;
    const CTranslationSection m_texts{c_ribbonSection};
    RibbonRowKind m_rowKind = RibbonRowKind::Categories;
};

} // namespace

RibbonRowKind KindOfRow(const std::wstring& keyword) {
    if (keyword == L"QK_Rbbion_QAToolbar")
        return RibbonRowKind::QuickAccess;
    if (keyword == L"StatusEx_btns")
        return RibbonRowKind::StatusButtons;
    return RibbonRowKind::Categories;
}

std::vector<RibbonRecord> ReadRibbonRows(const CXmlNodeWrapper& documentElement, const FileDiagnostics& diagnostics) {
    RibbonRecord document;
    RecordReader(document, 0, diagnostics).ReadBelow(documentElement);
    return std::move(document.children);
}

RibbonRecord ReadRibbonElement(const CXmlNodeWrapper& element, const FileDiagnostics& diagnostics) {
    RibbonRecord record;
    ReadRibbonInfo(element, record.info, diagnostics);
    RecordReader(record, ElementDepth, diagnostics).ReadBelow(element);
    return record;
}

bool LoadRibbonFile(const std::wstring& fullPath, std::vector<RibbonRecord>& rows, DiagnosticsSink& sink) {
    const FileDiagnostics diagnostics(fullPath, sink);
    CXmlDocumentWrapper document;
    if (!document.Load(fullPath)) {
        diagnostics.Fail({document.GetErrorLine(), document.GetErrorColumn()}, "unreadable-file",
                         document.GetErrorReason());
        return false;
    }
    rows = ReadRibbonRows(document.GetDocumentElement(), diagnostics);
    return true;
}
