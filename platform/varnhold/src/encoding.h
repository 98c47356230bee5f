#pragma once

#include <string>

namespace varnhold {

/// Turns the bytes of an XML document into UTF-8 without a byte order mark, by the mark, the XML declaration or, where
/// there is neither, as UTF-8. Broken sequences become U+FFFD. False, with a reason, when the encoding is unknown or
/// cannot be what the declaration says.
bool DecodeXml(std::string bytes, std::string& utf8, std::wstring& reason);

} // namespace varnhold
