#include "config/check/installation_files.h"
#include "config/shortcut_fault.h"
#include "config/shortcut_text.h"
#include "config/suggestion.h"
#include "targets.h"

#include <varnhold/strings.h>

#include <stdexcept>

namespace {

bool NamesKey(const std::wstring& text) {
    try {
        return ReadShortcutText(text).character != 0;
    } catch (const std::out_of_range&) {
        return false;
    }
}

} // namespace

void FuzzTexts(std::string_view bytes) {
    const std::wstring wide = string2wstring(bytes);
    const std::string narrow = wstring2String(wide);
    // What is valid once stays as it is.
    Demand(string2wstring(narrow) == wide);
    Demand(wide.size() <= bytes.size());

    Demand(CanonicalShortcut(wide).empty() != NamesKey(wide));
    FindShortcutFault(wide);

    const std::vector<std::wstring> known = {L"KEYWORD", L"NAME", L"TOOLTIP", L"PICPATH", L"中文"};
    Demand(ClosestWord(L"KEYWORD", known) == L"KEYWORD");
    DidYouMean(ClosestWord(wide, known));

    const auto parts = PathParts(wide);
    Demand(InstallationFiles::LeadsOut(wide) == !parts.has_value());
    if (parts) {
        for (const std::wstring& part : *parts) {
            Demand(!part.empty() && part != L"." && part != L"..");
        }
    }
    Demand(FoldedPath(FoldedPath(wide)) == FoldedPath(wide));
}
