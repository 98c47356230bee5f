#pragma once

#include "barwright_api.h"

/// What a drop list calls when one of the marks beside an item is clicked.
class BARWRIGHT_API CRibbonNotifyCombox {
public:
    /// index: of the item; zone: number of the mark, from 0 in the order in which the list was given them; exclusive: a
    /// double click. True: done, the list stays open and draws the row again. False: the click chooses the item.
    virtual bool NotifyChangeData(int index, int zone, bool exclusive) = 0;

protected:
    CRibbonNotifyCombox() = default;
    CRibbonNotifyCombox(const CRibbonNotifyCombox&) = default;
    CRibbonNotifyCombox& operator=(const CRibbonNotifyCombox&) = default;
    /// Lists that are still open forget it.
    ~CRibbonNotifyCombox();
};
