#include "config/menu_file.h"
#include "config/ribbon_file.h"
#include "config/toolbar_file.h"
#include "sound_sink.h"

#include <string>
#include <vector>

namespace {

const std::wstring kFile = L"cfg/file.xml";

void Append(std::string& text, std::wstring_view value) {
    text.append(reinterpret_cast<const char*>(value.data()), value.size() * sizeof(wchar_t));
    text += '|';
}

/// Everything that a record holds, so that two can be compared.
void Append(std::string& text, const RibbonRecord& record) {
    const RibbonTexts& info = record.info;
    for (const std::wstring_view value : {info.name, info.type, info.tooltip, info.keyword, info.picPath,
                                          info.picDisPath, info.cmd, info.param, info.help}) {
        Append(text, value);
    }
    for (const std::wstring_view value : info.valueGroup) {
        Append(text, value);
    }
    text += std::to_string(info.size) + ' ' + std::to_string(info.width) + ' ' + std::to_string(info.groupBefore) +
            std::to_string(info.acceptF1) + std::to_string(info.cateTab) + '(';
    for (const RibbonRecord& child : record.children) {
        Append(text, child);
    }
    text += ')';
}

std::string RibbonAs(const CXmlDocumentWrapper& document, DiagnosticsSink& sink) {
    const RibbonRecords records = ReadRibbonRows(varnhold::XmlCursor(document), FileDiagnostics(kFile, sink));
    std::string text;
    for (const RibbonRecord& row : records.top) {
        Append(text, row);
    }
    return text;
}

class MenuText : public MenuFileVisitor {
public:
    void VisitItem(const MenuInfo& info, std::size_t level) override { Take(info, level, 'i'); }
    void VisitPopup(const MenuInfo& info, std::size_t level) override { Take(info, level, 'p'); }
    void LeaveBranch() override { m_text += '/'; }

    std::string m_text;

private:
    void Take(const MenuInfo& info, std::size_t level, char kind) {
        m_text += kind + std::to_string(level) + (info.bSeparator ? 's' : ' ');
        for (const std::wstring& value : {info.strName, info.strKeyword, info.strShortKey, info.strHotKey, info.strText,
                                          info.strCmd, info.strToolTip, info.strPicPath, info.strParam}) {
            Append(m_text, value);
        }
    }
};

std::string MenuAs(const CXmlDocumentWrapper& document, DiagnosticsSink& sink) {
    MenuText text;
    ReadMenuBranches(varnhold::XmlCursor(document), text, FileDiagnostics(kFile, sink));
    return text.m_text;
}

class ToolBarText : public ToolBarFileVisitor {
public:
    void VisitGroup(const ToolBarInfo& info) override { Take(info, 'g'); }
    bool VisitToolBar(const ToolBarInfo& info) override {
        Take(info, 't');
        return true;
    }
    void VisitButton(const ToolBarInfo& info) override { Take(info, 'b'); }

    std::string m_text;

private:
    void Take(const ToolBarInfo& info, char kind) {
        m_text += kind;
        for (const std::wstring& value :
             {info.strType, info.strPrompt, info.strPicPath, info.strKeyword, info.strToolTip}) {
            Append(m_text, value);
        }
    }
};

std::string ToolBarsAs(const CXmlDocumentWrapper& document, DiagnosticsSink& sink) {
    ToolBarText text;
    ReadToolBarGroups(varnhold::XmlCursor(document), text, FileDiagnostics(kFile, sink));
    return text.m_text;
}

/// Whoever listens to the problems gets the same bars as who does not.
template <class ReadAs>
void FuzzReader(std::string_view bytes, ReadAs readAs) {
    CXmlDocumentWrapper document;
    if (!document.LoadFromMemory(bytes)) {
        return;
    }
    SoundSink sink;
    const std::string told = readAs(document, sink);
    Demand(told == readAs(document, DroppedDiagnostics()));
}

} // namespace

void FuzzRibbon(std::string_view bytes) { FuzzReader(bytes, RibbonAs); }
void FuzzMenu(std::string_view bytes) { FuzzReader(bytes, MenuAs); }
void FuzzToolBars(std::string_view bytes) { FuzzReader(bytes, ToolBarsAs); }
