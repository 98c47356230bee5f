#pragma once

#include <memory>
#include <utility>
#include <vector>

/// Set while an element is being changed because one of its copies was: it then tells no copies of its own. Ends with
/// the element.
class SynchronisedFlag {
public:
    SynchronisedFlag() : m_isSet(std::make_shared<bool>(false)) {}
    SynchronisedFlag(const SynchronisedFlag&) = delete;
    SynchronisedFlag& operator=(const SynchronisedFlag&) = delete;

    bool IsSet() const { return *m_isSet; }
    /// Expired when the element is gone.
    std::weak_ptr<bool> Watch() const { return m_isSet; }

    /// Holds the flag of a copy for the time of one operation on it, which may be the copy's end.
    class Scope {
    public:
        explicit Scope(std::shared_ptr<bool> isSet) : m_isSet(std::move(isSet)) { *m_isSet = true; }
        ~Scope() { *m_isSet = false; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        std::shared_ptr<bool> m_isSet;
    };

private:
    std::shared_ptr<bool> m_isSet;
};

/// Does to every copy what was done to `self`. `flagOf` gives an element's SynchronisedFlag, `findCopies` the elements
/// that share its command id: pointers, of which null ones (another class) and `self` are passed over. Nothing is
/// looked for when `self` is itself a copy being changed. An operation may be the end of any element.
template <class Element, class FlagOf, class FindCopies, class Operation>
void SynchroniseCopies(Element& self, FlagOf flagOf, FindCopies findCopies, Operation operation) {
    if (flagOf(self).IsSet()) {
        return;
    }
    std::vector<std::pair<Element*, std::weak_ptr<bool>>> copies;
    for (Element* copy : findCopies()) {
        if (copy != nullptr && copy != &self) {
            copies.emplace_back(copy, flagOf(*copy).Watch());
        }
    }
    for (const auto& [copy, flag] : copies) {
        if (std::shared_ptr<bool> isSet = flag.lock()) {
            const SynchronisedFlag::Scope scope(std::move(isSet));
            operation(*copy);
        }
    }
}
