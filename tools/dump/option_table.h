#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// The options of a program's command line: a name, and a value behind it. The targets outlive the table.
class OptionTable {
public:
    /// False: the value is not proper, and the target is as it was.
    using Setter = std::function<bool(const std::wstring&)>;

    OptionTable& Add(const std::wstring& name, Setter setter);
    /// An option without a value.
    OptionTable& AddFlag(const std::wstring& name, bool& target);
    /// The same, of which more is made than a mark.
    OptionTable& AddSwitch(const std::wstring& name, std::function<void()> set);
    /// Any text but none.
    OptionTable& AddText(const std::wstring& name, std::wstring& target);
    /// The same, as often as it is wanted.
    OptionTable& AddTexts(const std::wstring& name, std::vector<std::wstring>& target);
    OptionTable& AddChoice(const std::wstring& name, std::vector<std::wstring> choices, std::wstring& target);
    /// A whole decimal number from `low` to `high`.
    OptionTable& AddNumber(const std::wstring& name, int low, int high, int& target);
    /// "WxH", each from 1 to `largest`.
    OptionTable& AddSize(const std::wstring& name, int largest, int& width, int& height);

    static constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);
    /// What stands beside the options goes into `words`, of which there may be as many as `mostWords`. False, with a
    /// line in `error`, at the first argument that makes no sense.
    bool Read(const std::vector<std::wstring>& arguments, std::size_t mostWords, std::vector<std::wstring>& words,
              std::wstring& error) const;

private:
    struct Option {
        std::wstring name;
        Setter setter;
        bool hasValue = true;
    };
    const Option* Find(const std::wstring& name) const;

    std::vector<Option> m_options;
};
