#pragma once

// Type-safe printf: every argument carries its type, so that a conversion that does not fit prints the argument as
// what it is instead of reading foreign memory.

#include "fx/base.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

template <typename BaseType>
class CSimpleStringT;

namespace fx {

struct FormatArgument {
    enum class Kind : std::uint8_t { Signed, Unsigned, Character, Floating, WideText, NarrowText, Pointer };
    static constexpr std::size_t unknownLength = static_cast<std::size_t>(-1);

    Kind kind = Kind::Pointer;
    std::uint8_t size = 0;              ///< bytes of the integer type; decides how a negative value looks as %x
    std::size_t length = unknownLength; ///< of texts, in characters
    union {
        std::int64_t integer;
        double floating;
        const wchar_t* wide;
        const char* narrow;
        const void* pointer;
    };

    FormatArgument() noexcept : pointer(nullptr) {}
};

template <typename>
inline constexpr bool unsupportedArgument = false;

template <typename T>
FormatArgument MakeFormatArgument(const T& value) noexcept {
    using Kind = FormatArgument::Kind;
    using Plain = std::decay_t<const T&>;
    FormatArgument result;
    if constexpr (std::is_enum_v<T>) {
        return MakeFormatArgument(static_cast<std::underlying_type_t<T>>(value));
    } else if constexpr (std::is_same_v<T, wchar_t> || std::is_same_v<T, char> || std::is_same_v<T, char16_t>) {
        result.kind = Kind::Character;
        result.size = sizeof(T);
        result.integer = std::is_same_v<T, char> ? static_cast<unsigned char>(value) : static_cast<std::int64_t>(value);
    } else if constexpr (std::is_integral_v<T>) {
        result.kind = std::is_signed_v<T> ? Kind::Signed : Kind::Unsigned;
        result.size = sizeof(T);
        result.integer = static_cast<std::int64_t>(value);
    } else if constexpr (std::is_floating_point_v<T>) {
        result.kind = Kind::Floating;
        result.floating = static_cast<double>(value);
    } else if constexpr (std::is_base_of_v<CSimpleStringT<wchar_t>, T>) {
        result.kind = Kind::WideText;
        result.wide = value.GetString();
        result.length = static_cast<std::size_t>(value.GetLength());
    } else if constexpr (std::is_base_of_v<CSimpleStringT<char>, T>) {
        result.kind = Kind::NarrowText;
        result.narrow = value.GetString();
        result.length = static_cast<std::size_t>(value.GetLength());
    } else if constexpr (std::is_same_v<T, std::wstring> || std::is_same_v<T, std::wstring_view>) {
        result.kind = Kind::WideText;
        result.wide = value.data();
        result.length = value.size();
    } else if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, std::string_view>) {
        result.kind = Kind::NarrowText;
        result.narrow = value.data();
        result.length = value.size();
    } else if constexpr (std::is_null_pointer_v<T>) {
        result.kind = Kind::Pointer;
    } else if constexpr (std::is_convertible_v<Plain, const wchar_t*>) {
        result.kind = Kind::WideText;
        result.wide = value;
    } else if constexpr (std::is_convertible_v<Plain, const char*>) {
        result.kind = Kind::NarrowText;
        result.narrow = value;
    } else if constexpr (std::is_convertible_v<Plain, const unsigned char*>) {
        result.kind = Kind::NarrowText;
        result.narrow = reinterpret_cast<const char*>(static_cast<const unsigned char*>(value));
    } else if constexpr (std::is_pointer_v<Plain>) {
        result.kind = Kind::Pointer;
        result.pointer = (const void*)(Plain)value;
    } else {
        static_assert(unsupportedArgument<T>, "this type cannot be formatted");
    }
    return result;
}

/// Printf syntax of Windows: flags, width, precision and *, length prefixes h l ll w I I32 I64 z t j, conversions
/// d i u o x X c C s S f F e E g G a A p, %%. Missing arguments print nothing; a null text prints "(null)".
FRAMEWORK_API void AppendFormatted(std::wstring& target, const wchar_t* format, const FormatArgument* arguments,
                                   std::size_t count);
FRAMEWORK_API void AppendFormatted(std::string& target, const char* format, const FormatArgument* arguments,
                                   std::size_t count);
/// Message syntax: %1 to %99 with an optional !printf!, %n %r %t %b %0 %. %! %%.
FRAMEWORK_API void AppendMessage(std::wstring& target, const wchar_t* format, const FormatArgument* arguments,
                                 std::size_t count);
FRAMEWORK_API void AppendMessage(std::string& target, const char* format, const FormatArgument* arguments,
                                 std::size_t count);

/// Conversions by the system's ANSI code page; a length below 0 means up to the terminating zero. Null gives "".
FRAMEWORK_API std::wstring WidenText(const char* text, int length = -1);
FRAMEWORK_API std::string NarrowText(const wchar_t* text, int length = -1);
inline std::wstring WidenText(const std::string& text) { return WidenText(text.data(), static_cast<int>(text.size())); }
inline std::string NarrowText(const std::wstring& text) {
    return NarrowText(text.data(), static_cast<int>(text.size()));
}

template <typename Char, typename... Args>
std::basic_string<Char> FormatText(const Char* format, const Args&... args) {
    std::basic_string<Char> text;
    const FormatArgument arguments[sizeof...(Args) + 1] = {MakeFormatArgument(args)...};
    AppendFormatted(text, format, arguments, sizeof...(Args));
    return text;
}

template <typename Char, typename... Args>
std::basic_string<Char> MessageText(const Char* format, const Args&... args) {
    std::basic_string<Char> text;
    const FormatArgument arguments[sizeof...(Args) + 1] = {MakeFormatArgument(args)...};
    AppendMessage(text, format, arguments, sizeof...(Args));
    return text;
}

} // namespace fx
