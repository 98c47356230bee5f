#pragma once

#include "afxwin.h"

namespace toolbar {

/// A field that takes the key that is pressed in it and shows its name. Tab, and Esc and Enter by themselves, keep
/// their meaning in dialogs.
class KeyBox : public CEdit {
public:
    /// Its command is 0. False: no key was pressed since Clear, or one that would only type a character.
    bool HasKey() const;
    const ACCEL& Key() const { return m_key; }
    void Clear();

    BOOL PreTranslateMessage(MSG* pMsg) override;

private:
    void Take(WORD key);

    ACCEL m_key{};
};

} // namespace toolbar
