#include "draw_calls.h"

#include "tests/support/module_imports.h"

namespace {

DrawCalls g_calls;

BOOL WINAPI CountIcon(HDC dc, int x, int y, HICON icon, int width, int height, UINT step, HBRUSH brush, UINT flags) {
    ++g_calls.icons;
    return ::DrawIconEx(dc, x, y, icon, width, height, step, brush, flags);
}

int WINAPI CountText(HDC dc, LPCWSTR text, int length, LPRECT rect, UINT format) {
    // Measuring is part of the drawing of a text at most once in its life.
    g_calls.texts += (format & DT_CALCRECT) != 0 ? 0 : 1;
    return ::DrawTextW(dc, text, length, rect, format);
}

template <class Spies, class Function>
void Put(Spies& spies, HMODULE module, const char* name, Function* function) {
    if (void** const slot = FindImport(module, name)) {
        spies.push_back(std::make_unique<ImportSpy<Function>>(*slot, function));
    }
}

} // namespace

DrawCallCounter::DrawCallCounter() {
    g_calls = {};
    for (const wchar_t* library : {L"bwframework.dll", L"barwright.dll"}) {
        Watch(::GetModuleHandleW(library));
    }
}

DrawCallCounter::~DrawCallCounter() = default;

const DrawCalls& DrawCallCounter::Calls() const { return g_calls; }

void DrawCallCounter::Watch(HMODULE module) {
    Put(m_icons, module, "DrawIconEx", &CountIcon);
    Put(m_texts, module, "DrawTextW", &CountText);
}
