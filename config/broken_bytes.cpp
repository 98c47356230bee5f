#include "config/broken_bytes.h"

#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

namespace {

std::string BytesOf(const std::wstring& fullPath) {
#ifdef _WIN32
    const std::filesystem::path native(fullPath);
#else
    const std::filesystem::path native(wstring2String(fullPath));
#endif
    std::ifstream stream(native, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool IsHigh(char c) { return static_cast<unsigned char>(c) >= 0x80; }

/// The letters of western languages stand alone among others, Chinese ones take two such bytes each.
bool AreInPairs(std::string_view bytes) {
    for (auto at = std::ranges::find_if(bytes, IsHigh); at != bytes.end();) {
        const auto end = std::find_if_not(at, bytes.end(), IsHigh);
        if ((end - at) % 2 != 0) {
            return false;
        }
        at = std::find_if(end, bytes.end(), IsHigh);
    }
    return true;
}

/// The same with another declaration.
std::string WithEncoding(std::string_view bytes, std::string_view encoding) {
    constexpr std::string_view end = "?>";
    std::string text = "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?>";
    const bool hasDeclaration = bytes.starts_with("<?xml");
    return text.append(hasDeclaration ? bytes.substr(std::min(bytes.find(end) + end.size(), bytes.size())) : bytes);
}

} // namespace

std::wstring HintForBrokenBytes(const std::wstring& fullPath) {
    const std::string bytes = BytesOf(fullPath);
    CXmlDocumentWrapper document;
    const bool isChinese = AreInPairs(bytes) && document.LoadFromMemory(WithEncoding(bytes, "GB18030"), fullPath) &&
                           std::ranges::none_of(document.FindOddities(), [](const varnhold::XmlOddity& oddity) {
                               return oddity.kind == varnhold::XmlOddityKind::BrokenCharacter;
                           });
    return isChinese ? L"they are letters in GBK: save the file as UTF-8, or let its first line say encoding=\"GBK\""
                     : L"";
}
