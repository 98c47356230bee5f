#pragma once

#include "afxwin.h"

/// A key of an accelerator table as users read it: "Ctrl+Shift+S".
class FRAMEWORK_API CMFCAcceleratorKey : public CObject {
public:
    CMFCAcceleratorKey() = default;
    /// The key is copied.
    explicit CMFCAcceleratorKey(LPACCEL lpAccel) { SetAccelerator(lpAccel); }

    /// NULL: no key.
    void SetAccelerator(LPACCEL lpAccel);
    /// Empty without a key.
    void Format(CString& str) const;

private:
    ACCEL m_key{};
    bool m_hasKey = false;
};
