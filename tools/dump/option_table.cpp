#include "option_table.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace {

bool IsNumber(const std::wstring& text, int low, int high, int& number) {
    constexpr std::size_t mostDigits = 9;
    const std::size_t sign = text.starts_with(L'-') ? 1 : 0;
    const std::size_t digits = text.size() - sign;
    if (digits == 0 || digits > mostDigits || text.find_first_not_of(L"0123456789", sign) != std::wstring::npos) {
        return false;
    }
    const long value = std::wcstol(text.c_str(), nullptr, 10);
    if (value < low || value > high) {
        return false;
    }
    number = static_cast<int>(value);
    return true;
}

} // namespace

OptionTable& OptionTable::Add(const std::wstring& name, Setter setter) {
    m_options.push_back({name, std::move(setter), true});
    return *this;
}

OptionTable& OptionTable::AddFlag(const std::wstring& name, bool& target) {
    return AddSwitch(name, [&target] { target = true; });
}

OptionTable& OptionTable::AddSwitch(const std::wstring& name, std::function<void()> set) {
    const Setter setter = [set = std::move(set)](const std::wstring&) {
        set();
        return true;
    };
    m_options.push_back({name, setter, false});
    return *this;
}

OptionTable& OptionTable::AddText(const std::wstring& name, std::wstring& target) {
    return Add(name, [&target](const std::wstring& value) {
        if (!value.empty()) {
            target = value;
        }
        return !value.empty();
    });
}

OptionTable& OptionTable::AddTexts(const std::wstring& name, std::vector<std::wstring>& target) {
    return Add(name, [&target](const std::wstring& value) {
        if (!value.empty()) {
            target.push_back(value);
        }
        return !value.empty();
    });
}

OptionTable& OptionTable::AddChoice(const std::wstring& name, std::vector<std::wstring> choices, std::wstring& target) {
    return Add(name, [&target, choices = std::move(choices)](const std::wstring& value) {
        const bool isChoice = std::ranges::find(choices, value) != choices.end();
        if (isChoice) {
            target = value;
        }
        return isChoice;
    });
}

OptionTable& OptionTable::AddNumber(const std::wstring& name, int low, int high, int& target) {
    return Add(name, [low, high, &target](const std::wstring& value) { return IsNumber(value, low, high, target); });
}

OptionTable& OptionTable::AddSize(const std::wstring& name, int largest, int& width, int& height) {
    return Add(name, [largest, &width, &height](const std::wstring& value) {
        const std::size_t cross = value.find(L'x');
        int first = 0;
        int second = 0;
        if (cross == std::wstring::npos || !IsNumber(value.substr(0, cross), 1, largest, first) ||
            !IsNumber(value.substr(cross + 1), 1, largest, second)) {
            return false;
        }
        width = first;
        height = second;
        return true;
    });
}

const OptionTable::Option* OptionTable::Find(const std::wstring& name) const {
    const auto found = std::ranges::find(m_options, name, &Option::name);
    return found != m_options.end() ? &*found : nullptr;
}

bool OptionTable::Read(const std::vector<std::wstring>& arguments, std::size_t mostWords,
                       std::vector<std::wstring>& words, std::wstring& error) const {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& argument = arguments[i];
        if (const Option* option = Find(argument)) {
            if (!option->hasValue) {
                option->setter({});
            } else if (++i == arguments.size() || !option->setter(arguments[i])) {
                error = argument + L" needs a proper value";
                return false;
            }
        } else if (argument.starts_with(L"-")) {
            error = L"unknown option " + argument;
            return false;
        } else if (words.size() == mostWords) {
            error = L"not understood: " + argument;
            return false;
        } else {
            words.push_back(argument);
        }
    }
    return true;
}
