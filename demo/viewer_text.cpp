#include "viewer_text.h"

#include "varnhold/language.h"

std::wstring ViewerText(const char* key) { return CMultiLanguageMgr::translationW(key, -1, "Viewer"); }

std::wstring BarText(const std::wstring& keyword) { return CMultiLanguageMgr::translation(keyword, "RibbonBarCfg"); }

std::wstring WithName(std::wstring message, const std::wstring& name) {
    const std::size_t mark = message.find(L"%s");
    if (mark != std::wstring::npos) {
        message.replace(mark, 2, name);
    }
    return message;
}
