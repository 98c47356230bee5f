#pragma once

#include <array>
#include <cstddef>

/// What this program is about: three lamps, which are lit one after the other. Knows nothing of windows or ribbons.
class LampBoard {
public:
    static constexpr std::size_t kCount = 3;

    /// Lights the next mounted lamp. False when all of them are lit.
    bool LightNext();
    void PutOut();
    std::size_t LitCount() const;

    /// A lamp that is not mounted is neither shown nor lit.
    void Mount(std::size_t lamp, bool isMounted);
    bool IsMounted(std::size_t lamp) const { return m_isMounted.at(lamp); }
    bool IsLit(std::size_t lamp) const { return m_isLit.at(lamp); }

private:
    std::array<bool, kCount> m_isMounted = {true, true, true};
    std::array<bool, kCount> m_isLit = {};
};
