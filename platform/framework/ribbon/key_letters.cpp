#include "ribbon/key_letters.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/letters.h"
#include "core/mnemonic.h"

namespace ribbon {
namespace {

constexpr std::wstring_view kLetters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::size_t kLongestKey = 3;

std::wstring KeysAsGiven(std::wstring_view keys) {
    std::wstring capitals = fx::UpperCase(keys);
    std::erase(capitals, L' ');
    return capitals;
}

// Every keyboard layout writes these.
bool IsLatin(wchar_t capital) { return capital >= L'A' && capital <= L'Z'; }

/// The letters of a text by preference: the one behind '&' in any script, then the Latin ones, the first of each word
/// before the rest; each once.
std::wstring PreferredLetters(std::wstring_view text) {
    std::wstring letters;
    std::wstring others;
    if (const wchar_t marked = fx::MnemonicOf(text); fx::IsLetter(marked)) {
        letters += marked;
    }
    bool startsWord = true;
    for (const wchar_t capital : fx::UpperCase(fx::WithoutMnemonic(text))) {
        if (IsLatin(capital)) {
            (startsWord ? letters : others) += capital;
        }
        startsWord = !fx::IsLetterOrDigit(capital);
    }
    std::wstring result;
    for (const wchar_t letter : letters + others) {
        if (result.find(letter) == std::wstring::npos) {
            result += letter;
        }
    }
    return result;
}

/// The keys of a level that are taken, and which letters only begin longer keys.
class KeySpace {
public:
    void Take(const std::wstring& key) { m_taken.insert(key); }

    bool IsFree(const std::wstring& key) const {
        for (std::size_t length = 1; length <= key.size(); ++length) {
            if (m_taken.contains(key.substr(0, length))) {
                return false;
            }
        }
        const auto next = m_taken.lower_bound(key);
        return next == m_taken.end() || next->compare(0, key.size(), key) != 0;
    }
    bool CanTake(const std::wstring& key) const { return !m_reserved.contains(key) && IsFree(key); }
    bool IsBeginning(const std::wstring& key) const { return m_reserved.contains(key) || IsBeginningOfTaken(key); }

    /// Reserves beginnings until there is room for so many keys: first letters, those with the most texts first, then
    /// the last pairs.
    void MakeRoom(std::size_t count, const std::vector<std::wstring>& preferences) {
        std::wstring singles = FreeAmong(std::wstring());
        std::map<wchar_t, std::size_t> texts;
        for (const std::wstring& letters : preferences) {
            if (!letters.empty()) {
                ++texts[letters[0]];
            }
        }
        std::stable_sort(singles.begin(), singles.end(),
                         [&texts](wchar_t first, wchar_t second) { return texts[first] > texts[second]; });
        std::size_t room = singles.size();
        for (const wchar_t letter : kLetters) {
            if (IsBeginningOfTaken({letter})) {
                room += FreeAmong({letter}).size();
            }
        }
        for (std::size_t place = 0; room < count && place < singles.size(); ++place) {
            m_reserved.insert({singles[place]});
            room += kLetters.size() - 1;
        }
        for (auto first = kLetters.rbegin(); room < count && first != kLetters.rend(); ++first) {
            const std::wstring pairs = IsBeginning({*first}) ? FreeAmong({*first}) : std::wstring();
            for (auto second = pairs.rbegin(); room < count && second != pairs.rend(); ++second) {
                m_reserved.insert({*first, *second});
                room += kLetters.size() - 1;
            }
        }
    }

    /// The first key that can still be taken, shortest first; empty when there is none. What was passed once never
    /// becomes free again.
    std::wstring Next() {
        for (; m_length <= kLongestKey; ++m_length, m_place = 0) {
            std::size_t end = 1;
            for (std::size_t letter = 0; letter < m_length; ++letter) {
                end *= kLetters.size();
            }
            for (; m_place < end; ++m_place) {
                std::wstring key = KeyAt(m_place, m_length);
                if (CanTake(key)) {
                    return key;
                }
            }
        }
        return {};
    }

private:
    bool IsBeginningOfTaken(const std::wstring& key) const {
        const auto next = m_taken.lower_bound(key);
        return next != m_taken.end() && next->size() > key.size() && next->compare(0, key.size(), key) == 0;
    }
    /// The letters that make a free key behind the beginning.
    std::wstring FreeAmong(const std::wstring& beginning) const {
        std::wstring result;
        for (const wchar_t letter : kLetters) {
            if (IsFree(beginning + letter)) {
                result += letter;
            }
        }
        return result;
    }
    static std::wstring KeyAt(std::size_t place, std::size_t length) {
        std::wstring key(length, L'A');
        for (auto letter = key.rbegin(); letter != key.rend(); ++letter, place /= kLetters.size()) {
            *letter = kLetters[place % kLetters.size()];
        }
        return key;
    }

    std::set<std::wstring> m_taken;
    std::set<std::wstring> m_reserved;
    std::size_t m_length = 1;
    std::size_t m_place = 0;
};

std::wstring ChooseKey(KeySpace& space, const std::wstring& letters) {
    for (const wchar_t letter : letters) {
        if (space.CanTake({letter})) {
            return {letter};
        }
    }
    for (const wchar_t first : letters) {
        if (!space.IsBeginning({first})) {
            continue;
        }
        for (const wchar_t second : letters) {
            if (second != first && space.CanTake({first, second})) {
                return {first, second};
            }
        }
        for (const wchar_t second : kLetters) {
            if (space.CanTake({first, second})) {
                return {first, second};
            }
        }
    }
    return space.Next();
}

} // namespace

std::vector<std::wstring> AssignKeyTips(const std::vector<KeyTipWish>& wishes) {
    std::vector<std::wstring> keys(wishes.size());
    std::vector<std::wstring> preferences;
    KeySpace space;
    for (std::size_t place = 0; place < wishes.size(); ++place) {
        keys[place] = KeysAsGiven(wishes[place].keys);
        if (keys[place].empty()) {
            preferences.push_back(PreferredLetters(wishes[place].text));
        } else {
            space.Take(keys[place]);
        }
    }
    space.MakeRoom(preferences.size(), preferences);
    auto letters = preferences.begin();
    for (std::wstring& key : keys) {
        if (!key.empty()) {
            continue;
        }
        key = ChooseKey(space, *letters++);
        if (!key.empty()) {
            space.Take(key);
        }
    }
    return keys;
}

std::wstring QuickAccessKeyTip(std::size_t place) {
    constexpr std::size_t kDigits = 9;
    if (place < kDigits) {
        return {static_cast<wchar_t>(L'1' + place)};
    }
    place -= kDigits;
    if (place < kDigits) {
        return {L'0', static_cast<wchar_t>(L'9' - place)};
    }
    place -= kDigits;
    // Z only begins longer keys, so that none is the beginning of another.
    std::wstring key(1, L'0');
    for (const std::size_t last = kLetters.size() - 1; place >= last; place -= last) {
        key += L'Z';
    }
    return key + kLetters[place];
}

} // namespace ribbon
