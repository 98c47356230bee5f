#include "fx/format.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <cwchar>

namespace fx {
namespace {

using Kind = FormatArgument::Kind;

// Wider fields serve nobody; a wrong number must not ask for gigabytes.
constexpr int widestField = 1'000'000;

template <typename Char>
struct Specification {
    bool left = false;
    bool plus = false;
    bool space = false;
    bool alternate = false;
    bool zero = false;
    int width = 0;
    int precision = -1;
    int halves = 0; ///< how many h: 1 means 16 bits, 2 means 8
    Char conversion = 0;
};

class Arguments {
public:
    Arguments(const FormatArgument* arguments, std::size_t count) noexcept
        : m_next(arguments), m_end(arguments + count) {}
    const FormatArgument* Take() noexcept { return m_next == m_end ? nullptr : m_next++; }
    int TakeInteger() noexcept {
        const FormatArgument* const argument = Take();
        const bool isNumber =
            argument != nullptr &&
            (argument->kind == Kind::Signed || argument->kind == Kind::Unsigned || argument->kind == Kind::Character);
        return isNumber ? static_cast<int>(std::clamp<std::int64_t>(argument->integer, -widestField, widestField)) : 0;
    }

private:
    const FormatArgument* m_next;
    const FormatArgument* m_end;
};

template <typename Char>
std::size_t BoundedLength(const Char* text, std::size_t limit) {
    std::size_t length = 0;
    while (length < limit && text[length] != 0) {
        ++length;
    }
    return length;
}

void AppendConverted(std::wstring& target, const wchar_t* text, std::size_t length) { target.append(text, length); }
void AppendConverted(std::string& target, const char* text, std::size_t length) { target.append(text, length); }
void AppendConverted(std::wstring& target, const char* text, std::size_t length) {
    target += WidenText(text, static_cast<int>(length));
}
void AppendConverted(std::string& target, const wchar_t* text, std::size_t length) {
    target += NarrowText(text, static_cast<int>(length));
}

template <typename Char>
class Formatter {
public:
    using String = std::basic_string<Char>;

    Formatter(String& target, Arguments& arguments) noexcept : m_target(target), m_arguments(arguments) {}

    /// Prints one conversion, whose text begins after the percent sign; answers the place behind it.
    const Char* Convert(const Char* place) {
        if (*place == '%') {
            m_target += *place;
            return place + 1;
        }
        m_spec = {};
        place = ReadFlags(place);
        place = ReadNumbers(place);
        place = ReadLengthPrefix(place);
        if (*place == 0) {
            return place;
        }
        m_spec.conversion = *place;
        if (std::strchr("diouxXcCsSZfFeEgGaApn", static_cast<char>(*place)) == nullptr || *place > 127) {
            m_target += *place;
            return place + 1;
        }
        if (const FormatArgument* const argument = m_arguments.Take(); argument != nullptr && *place != 'n') {
            Print(*argument);
        }
        return place + 1;
    }

private:
    const Char* ReadFlags(const Char* place) {
        for (;; ++place) {
            switch (*place) {
            case '-':
                m_spec.left = true;
                break;
            case '+':
                m_spec.plus = true;
                break;
            case ' ':
                m_spec.space = true;
                break;
            case '#':
                m_spec.alternate = true;
                break;
            case '0':
                m_spec.zero = true;
                break;
            default:
                return place;
            }
        }
    }
    const Char* ReadNumber(const Char* place, int& number) {
        if (*place == '*') {
            number = m_arguments.TakeInteger();
            return place + 1;
        }
        for (number = 0; *place >= '0' && *place <= '9'; ++place) {
            number = std::min(number * 10 + static_cast<int>(*place - '0'), widestField);
        }
        return place;
    }
    const Char* ReadNumbers(const Char* place) {
        place = ReadNumber(place, m_spec.width);
        if (m_spec.width < 0) {
            m_spec.left = true;
            m_spec.width = -m_spec.width;
        }
        if (*place == '.') {
            place = ReadNumber(place + 1, m_spec.precision);
        }
        return place;
    }
    const Char* ReadLengthPrefix(const Char* place) {
        for (;; ++place) {
            if (*place == 'h') {
                ++m_spec.halves;
            } else if (*place == 'I') {
                const bool hasSize = (place[1] == '6' && place[2] == '4') || (place[1] == '3' && place[2] == '2');
                place += hasSize ? 2 : 0;
            } else if (*place == 0 || std::strchr("lLwzjt", static_cast<char>(*place)) == nullptr || *place > 127) {
                return place;
            }
        }
    }

    // The argument decides first: a text stays a text, whatever the conversion says.
    void Print(const FormatArgument& argument) {
        const Char conversion = m_spec.conversion;
        const bool wantsPointer = conversion == 'p';
        switch (argument.kind) {
        case Kind::WideText:
            wantsPointer ? PrintAddress(argument.wide) : PrintText(argument.wide, argument.length);
            return;
        case Kind::NarrowText:
            wantsPointer ? PrintAddress(argument.narrow) : PrintText(argument.narrow, argument.length);
            return;
        case Kind::Floating:
            PrintFloating(argument.floating);
            return;
        case Kind::Pointer:
            if (argument.pointer == nullptr && (conversion == 's' || conversion == 'S')) {
                PrintText(static_cast<const Char*>(nullptr), FormatArgument::unknownLength);
            } else if (conversion == 'x' || conversion == 'X' || IsDecimal()) {
                PrintInteger(reinterpret_cast<std::intptr_t>(argument.pointer), sizeof(void*));
            } else {
                PrintAddress(argument.pointer);
            }
            return;
        case Kind::Character:
            if (!IsInteger() && !IsFloating() && !wantsPointer) {
                PrintCharacter(argument);
                return;
            }
            [[fallthrough]];
        case Kind::Signed:
        case Kind::Unsigned:
            PrintNumber(argument);
            return;
        }
    }
    void PrintNumber(const FormatArgument& argument) {
        if (m_spec.conversion == 'p') {
            PrintAddress(reinterpret_cast<const void*>(argument.integer));
        } else if (IsFloating()) {
            PrintFloating(argument.kind == Kind::Unsigned
                              ? static_cast<double>(static_cast<std::uint64_t>(argument.integer))
                              : static_cast<double>(argument.integer));
        } else if (m_spec.conversion == 'c' || m_spec.conversion == 'C') {
            FormatArgument character = argument;
            character.size = sizeof(Char);
            PrintCharacter(character);
        } else if (IsInteger()) {
            PrintInteger(argument.integer, argument.size);
        } else {
            m_spec.conversion = argument.kind == Kind::Unsigned ? 'u' : 'd';
            m_spec.precision = -1;
            PrintInteger(argument.integer, argument.size);
        }
    }

    bool IsDecimal() const { return m_spec.conversion == 'd' || m_spec.conversion == 'i' || m_spec.conversion == 'u'; }
    bool IsInteger() const {
        return IsDecimal() || m_spec.conversion == 'o' || m_spec.conversion == 'x' || m_spec.conversion == 'X';
    }
    bool IsFloating() const {
        return m_spec.conversion != 0 && std::strchr("fFeEgGaA", static_cast<char>(m_spec.conversion)) != nullptr;
    }

    void PrintCharacter(const FormatArgument& argument) {
        String text;
        if (argument.size == sizeof(char)) {
            const char character = static_cast<char>(argument.integer);
            AppendConverted(text, &character, 1);
        } else {
            const wchar_t character = static_cast<wchar_t>(argument.integer);
            AppendConverted(text, &character, 1);
        }
        PutPadded(text);
    }
    template <typename Source>
    void PrintText(const Source* text, std::size_t known) {
        static constexpr Source nullText[] = {'(', 'n', 'u', 'l', 'l', ')', 0};
        if (text == nullptr) {
            text = nullText;
            known = FormatArgument::unknownLength;
        }
        std::size_t length = known;
        const bool limits = m_spec.precision >= 0 && (m_spec.conversion == 's' || m_spec.conversion == 'S');
        if (limits) {
            length = std::min(known, static_cast<std::size_t>(m_spec.precision));
        }
        if (known == FormatArgument::unknownLength) {
            length = BoundedLength(text, length);
        }
        String converted;
        AppendConverted(converted, text, length);
        PutPadded(converted);
    }
    void PrintAddress(const void* address) {
        m_spec.conversion = 'X';
        m_spec.precision = 2 * sizeof(void*);
        m_spec.alternate = false;
        PrintInteger(reinterpret_cast<std::intptr_t>(address), sizeof(void*));
    }

    // As C does: small types are widened to int first, h and hh cut down again.
    void PrintInteger(std::int64_t value, std::size_t argumentSize) {
        const int bits = m_spec.halves >= 2   ? 8
                         : m_spec.halves == 1 ? 16
                                              : static_cast<int>(std::max<std::size_t>(argumentSize, 4) * 8);
        const int unused = 64 - bits;
        std::uint64_t magnitude = static_cast<std::uint64_t>(value) << unused >> unused;
        const char* sign = "";
        if (m_spec.conversion == 'd' || m_spec.conversion == 'i') {
            const std::int64_t number =
                static_cast<std::int64_t>(static_cast<std::uint64_t>(value) << unused) >> unused;
            sign = number < 0 ? "-" : m_spec.plus ? "+" : m_spec.space ? " " : "";
            magnitude = number < 0 ? 0 - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
        }
        std::string digits = Digits(magnitude);
        if (m_spec.precision >= 0) {
            const std::size_t least = static_cast<std::size_t>(m_spec.precision);
            digits.insert(0, least > digits.size() ? least - digits.size() : 0, '0');
            m_spec.zero = false;
        }
        std::string prefix = sign;
        if (m_spec.alternate && magnitude != 0) {
            prefix += m_spec.conversion == 'x'   ? "0x"
                      : m_spec.conversion == 'X' ? "0X"
                      : m_spec.conversion == 'o' ? "0"
                                                 : "";
        }
        PutNumber(prefix, digits);
    }
    std::string Digits(std::uint64_t magnitude) const {
        if (magnitude == 0) {
            return m_spec.precision == 0 ? "" : "0";
        }
        const unsigned base = m_spec.conversion == 'o'                               ? 8
                              : m_spec.conversion == 'x' || m_spec.conversion == 'X' ? 16
                                                                                     : 10;
        const char* const symbols = m_spec.conversion == 'X' ? "0123456789ABCDEF" : "0123456789abcdef";
        std::string digits;
        for (; magnitude != 0; magnitude /= base) {
            digits += symbols[magnitude % base];
        }
        std::reverse(digits.begin(), digits.end());
        return digits;
    }

    void PrintFloating(double value) {
        std::string format = "%";
        format += m_spec.plus ? "+" : "";
        format += m_spec.space ? " " : "";
        format += m_spec.alternate ? "#" : "";
        const bool hasPrecision = m_spec.precision >= 0 && IsFloating();
        format += hasPrecision ? ".*" : "";
        format += IsFloating() ? static_cast<char>(m_spec.conversion) : 'g';
        const auto print = [&](char* buffer, std::size_t size) {
            return hasPrecision ? std::snprintf(buffer, size, format.c_str(), m_spec.precision, value)
                                : std::snprintf(buffer, size, format.c_str(), value);
        };
        std::string text(static_cast<std::size_t>(std::max(print(nullptr, 0), 0)), '\0');
        print(text.data(), text.size() + 1);
        const bool hasSign = !text.empty() && std::strchr("+- ", text[0]) != nullptr;
        if (text.find_first_of("nN") != std::string::npos) {
            m_spec.zero = false; // infinity and not-a-number have no leading zeros
        }
        PutNumber(text.substr(0, hasSign ? 1 : 0), text.substr(hasSign ? 1 : 0));
    }

    void PutNumber(const std::string& prefix, const std::string& digits) {
        const std::size_t width = static_cast<std::size_t>(m_spec.width);
        const std::size_t used = prefix.size() + digits.size();
        const std::size_t padding = width > used ? width - used : 0;
        const bool zeros = m_spec.zero && !m_spec.left;
        m_target.append(m_spec.left || zeros ? 0 : padding, ' ');
        m_target.append(prefix.begin(), prefix.end());
        m_target.append(zeros ? padding : 0, '0');
        m_target.append(digits.begin(), digits.end());
        m_target.append(m_spec.left ? padding : 0, ' ');
    }
    void PutPadded(const String& text) {
        const std::size_t width = static_cast<std::size_t>(m_spec.width);
        const std::size_t padding = width > text.size() ? width - text.size() : 0;
        m_target.append(m_spec.left ? 0 : padding, ' ');
        m_target += text;
        m_target.append(m_spec.left ? padding : 0, ' ');
    }

    String& m_target;
    Arguments& m_arguments;
    Specification<Char> m_spec;
};

template <typename Char>
void AppendFormattedText(std::basic_string<Char>& target, const Char* format, const FormatArgument* arguments,
                         std::size_t count) {
    Arguments list(arguments, count);
    Formatter<Char> formatter(target, list);
    for (const Char* place = format; *place != 0;) {
        const Char* literal = place;
        while (*place != 0 && *place != '%') {
            ++place;
        }
        target.append(literal, static_cast<std::size_t>(place - literal));
        if (*place == '%') {
            place = formatter.Convert(place + 1);
        }
    }
}

/// An insert: its number, then perhaps a printf conversion between exclamation marks.
template <typename Char>
const Char* AppendInsert(std::basic_string<Char>& target, const Char* place, const FormatArgument* arguments,
                         std::size_t count) {
    std::size_t number = static_cast<std::size_t>(*place++ - '0');
    if (*place >= '0' && *place <= '9') {
        number = number * 10 + static_cast<std::size_t>(*place++ - '0');
    }
    std::basic_string<Char> conversion = {'%', 's'};
    if (*place == '!') {
        const Char* end = place + 1;
        while (*end != 0 && *end != '!') {
            ++end;
        }
        if (*end == '!') {
            conversion.assign(1, '%').append(place + 1, end);
            place = end + 1;
        }
    }
    if (number <= count) {
        AppendFormattedText(target, conversion.c_str(), arguments + number - 1, count - number + 1);
    }
    return place;
}

template <typename Char>
void AppendMessageText(std::basic_string<Char>& target, const Char* format, const FormatArgument* arguments,
                       std::size_t count) {
    for (const Char* place = format; *place != 0;) {
        if (*place != '%') {
            target += *place++;
            continue;
        }
        ++place;
        if (*place >= '1' && *place <= '9') {
            place = AppendInsert(target, place, arguments, count);
            continue;
        }
        switch (*place) {
        case 0:
        case '0':
            return;
        case 'n':
            target += {'\r', '\n'};
            break;
        case 'r':
            target += '\r';
            break;
        case 't':
            target += '\t';
            break;
        case 'b':
            target += ' ';
            break;
        default:
            target += *place;
        }
        ++place;
    }
}

} // namespace

void AppendFormatted(std::wstring& target, const wchar_t* format, const FormatArgument* arguments, std::size_t count) {
    AppendFormattedText(target, format, arguments, count);
}
void AppendFormatted(std::string& target, const char* format, const FormatArgument* arguments, std::size_t count) {
    AppendFormattedText(target, format, arguments, count);
}
void AppendMessage(std::wstring& target, const wchar_t* format, const FormatArgument* arguments, std::size_t count) {
    AppendMessageText(target, format, arguments, count);
}
void AppendMessage(std::string& target, const char* format, const FormatArgument* arguments, std::size_t count) {
    AppendMessageText(target, format, arguments, count);
}

} // namespace fx
