#pragma once

#include "tovasque_api.h"

#include <afxvisualmanageroffice2007.h>

/// The visual manager below the library's skins. The framework makes and owns the one in use
/// (CMFCVisualManager::SetDefaultManager).
class TOVASQUE_API CMFCVisualManagerOffice20072 : public CMFCVisualManagerOffice2007 {
    DECLARE_DYNCREATE(CMFCVisualManagerOffice20072)

public:
    ~CMFCVisualManagerOffice20072() override;

protected:
    CMFCVisualManagerOffice20072();
};
