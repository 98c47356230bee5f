#include "core/mnemonic.h"
#include "toolbar/metrics.h"

namespace {

std::wstring_view View(const CString& text) { return {text, static_cast<std::size_t>(text.GetLength())}; }

} // namespace

CString toolbar::WithoutPrefix(const CString& text) { return fx::WithoutMnemonic(View(text)).c_str(); }

wchar_t toolbar::MnemonicOf(const CString& text) { return fx::MnemonicOf(View(text)); }
