#pragma once

/// Set while an element is being changed because one of its copies was: it then tells no copies of its own.
class SynchronisedFlag {
public:
    bool IsSet() const { return m_isSet; }

    /// Holds the flag of a copy for the time of one operation on it.
    class Scope {
    public:
        explicit Scope(SynchronisedFlag& flag) : m_flag(flag) { m_flag.m_isSet = true; }
        ~Scope() { m_flag.m_isSet = false; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        SynchronisedFlag& m_flag;
    };

private:
    bool m_isSet = false;
};

/// Does to every copy what was done to `self`. `flagOf` gives an element's SynchronisedFlag, `findCopies` the elements
/// that share its command id: pointers, of which null ones (another class) and `self` are passed over. Nothing is
/// looked for when `self` is itself a copy being changed.
template <class Element, class FlagOf, class FindCopies, class Operation>
void SynchroniseCopies(Element& self, FlagOf flagOf, FindCopies findCopies, Operation operation) {
    if (flagOf(self).IsSet())
        return;
    for (Element* copy : findCopies()) {
        if (copy == nullptr || copy == &self)
            continue;
        const SynchronisedFlag::Scope scope(flagOf(*copy));
        operation(*copy);
    }
}
