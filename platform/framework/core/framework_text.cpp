#include "core/framework_text.h"

#include "core/module.h"
#include "fx/string_support.h"

// A module with some strings next to the id has the resource, but not always this string.
CString FrameworkText(UINT id) {
    std::wstring text;
    if (!fx::LoadStringResource(id, text)) {
        fx::LoadStringResource(FrameworkInstance(), id, nullptr, text);
    }
    return CString(text.data(), static_cast<int>(text.size()));
}
