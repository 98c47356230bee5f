#include "lamp_board.h"

#include <algorithm>

bool LampBoard::LightNext() {
    for (std::size_t lamp = 0; lamp < kCount; ++lamp) {
        if (m_isMounted[lamp] && !m_isLit[lamp]) {
            m_isLit[lamp] = true;
            return true;
        }
    }
    return false;
}

void LampBoard::PutOut() { m_isLit.fill(false); }

std::size_t LampBoard::LitCount() const {
    return static_cast<std::size_t>(std::count(m_isLit.begin(), m_isLit.end(), true));
}

void LampBoard::Mount(std::size_t lamp, bool isMounted) {
    m_isMounted.at(lamp) = isMounted;
    m_isLit.at(lamp) = m_isLit.at(lamp) && isMounted;
}
