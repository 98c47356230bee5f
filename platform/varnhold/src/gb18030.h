#pragma once

#include <string>
#include <string_view>

namespace varnhold {

/// UTF-8 of a text in GB18030, and thereby of its subsets GBK and GB2312; the single byte 80 is the Euro sign, as in
/// code page 936. What is not valid becomes U+FFFD; a byte below 80 is never swallowed by a broken character before it.
std::string Gb18030ToUtf8(std::string_view bytes);

} // namespace varnhold
