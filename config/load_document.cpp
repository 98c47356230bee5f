#include "config/load_document.h"

bool LoadDocument(const std::wstring& fullPath, const FileDiagnostics& diagnostics, CXmlDocumentWrapper& document) {
    if (document.Load(fullPath)) {
        return true;
    }
    diagnostics.Fail({document.GetErrorLine(), document.GetErrorColumn()}, "unreadable-file",
                     document.GetErrorReason());
    return false;
}
