#include "ribbon/shown_text.h"

#include "afxRibbonLabel.h"
#include "core/mnemonic.h"

CString ribbon::PlainText(const CString& text) {
    if (text.Find(L'&') < 0) {
        return text;
    }
    return fx::WithoutMnemonic({text, static_cast<std::size_t>(text.GetLength())}).c_str();
}

CString ribbon::PlainTextOf(const CMFCRibbonBaseElement& element) {
    const CString text = element.GetShownText();
    return dynamic_cast<const CMFCRibbonLabel*>(&element) != nullptr ? text : PlainText(text);
}

CString ribbon::MarkedText(const CString& plain) {
    CString marked = plain;
    marked.Replace(L"&", L"&&");
    return marked;
}

ribbon::NameAndKeys ribbon::SplitKeys(LPCTSTR given) {
    NameAndKeys result;
    result.name = given;
    if (const int end = result.name.Find(L'\n'); end >= 0) {
        result.keys = result.name.Mid(end + 1);
        result.name.Truncate(end);
        result.hasKeys = true;
    }
    return result;
}
