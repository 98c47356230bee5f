#include "config/menu_file.h"

#include "config/depth_walker.h"
#include "config/load_document.h"
#include "config/menu_attributes.h"
#include "config/menu_diagnosis.h"
#include "config/ribbon_attributes.h"

#include <varnhold/language.h>

namespace {

/// Reads elements into one record, whose memory serves for all of them.
class MenuElementReader {
public:
    MenuElementReader(MenuFileVisitor& visitor, const FileDiagnostics& diagnostics)
        : m_visitor(visitor), m_diagnostics(diagnostics), m_diagnosis(diagnostics) {}

    void ReadBranch(varnhold::XmlCursor& element) {
        if (element.HasChildren()) {
            if (m_diagnostics.IsListening()) {
                m_diagnosis.MeetGroup(element);
            }
            WalkBelow(element,
                      [this](varnhold::XmlCursor& child, std::size_t depth) { return Read(child, depth - 1); });
            m_diagnosis.LeaveGroup();
        } else {
            ReadItem(element, 0);
        }
        m_visitor.LeaveBranch();
    }

private:
    /// Whether the element's children are to be read.
    bool Read(varnhold::XmlCursor& element, std::size_t level) {
        if (!element.HasChildren()) {
            ReadItem(element, level);
            return false;
        }
        ReadInfo(element);
        if (m_diagnostics.IsListening()) {
            m_diagnosis.MeetPopup(element, level);
        }
        m_visitor.VisitPopup(m_info, level);
        return true;
    }

    bool ReadInfo(varnhold::XmlCursor& element) {
        m_info.bSeparator = false;
        for (std::wstring* const text :
             {&m_info.strName, &m_info.strKeyword, &m_info.strShortKey, &m_info.strHotKey, &m_info.strText,
              &m_info.strCmd, &m_info.strToolTip, &m_info.strPicPath, &m_info.strParam}) {
            text->clear();
        }
        return ReadMenuInfo(element, m_info, m_translations, m_diagnostics);
    }

    void ReadItem(varnhold::XmlCursor& element, std::size_t level) {
        const bool isRead = ReadInfo(element);
        if (m_diagnostics.IsListening()) {
            m_diagnosis.MeetItem(element, level, m_info.bSeparator);
        }
        if (isRead) {
            m_visitor.VisitItem(m_info, level);
        }
    }

    MenuFileVisitor& m_visitor;
    const FileDiagnostics& m_diagnostics;
    MenuDiagnosis m_diagnosis;
    const CTranslationSection m_translations{kRibbonSection};
    MenuInfo m_info;
};

} // namespace

void ReadMenuBranch(varnhold::XmlCursor element, MenuFileVisitor& visitor, const FileDiagnostics& diagnostics) {
    MenuElementReader(visitor, diagnostics).ReadBranch(element);
}

void ReadMenuBranches(const varnhold::XmlCursor& documentElement, MenuFileVisitor& visitor,
                      const FileDiagnostics& diagnostics) {
    MenuElementReader reader(visitor, diagnostics);
    ForEachChild(documentElement, [&](varnhold::XmlCursor& branch) { reader.ReadBranch(branch); });
}

bool LoadMenuFile(const std::wstring& fullPath, MenuFileVisitor& visitor, DiagnosticsSink& sink) {
    FileDiagnostics diagnostics(fullPath, sink);
    CXmlDocumentWrapper document;
    if (!LoadDocument(fullPath, ConfigurationKind::Menu, diagnostics, document)) {
        return false;
    }
    ReadMenuBranches(varnhold::XmlCursor(document), visitor, diagnostics);
    return true;
}
