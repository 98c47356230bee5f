#pragma once

#include "barwright_api.h"

#include <afxtoolbar.h>
#include <afxtoolbarbutton.h>

/// A toolbar that lies flat under the black and the silver skin; under any other visual manager it is the platform's.
/// The frame that it is docked in owns its window, whoever made it the object.
class BARWRIGHT_API CMFCToolBarEx : public CMFCToolBar {
    DECLARE_DYNCREATE(CMFCToolBarEx)

public:
    CMFCToolBarEx();
    ~CMFCToolBarEx() override;

    /// Takes the window its shape away, lays a docked bar out again and redraws the images in the new colours.
    void OnChangeVisualManager() override;

protected:
    void DoPaint(CDC* dc) override;
};

/// A toolbar button that can look its own way while it is disabled: like the icon that is registered for its command.
/// Without one it is drawn as any other. Toolbars keep copies of it, as of all buttons.
class BARWRIGHT_API CMFCToolBarButtonDisIco : public CMFCToolBarButton {
    DECLARE_SERIAL(CMFCToolBarButtonDisIco)

public:
    CMFCToolBarButtonDisIco();
    CMFCToolBarButtonDisIco(UINT id, int image, LPCTSTR text = nullptr, BOOL userButton = FALSE, BOOL locked = FALSE);
    ~CMFCToolBarButtonDisIco() override;

    /// Registers the icon that disabled buttons of a command show, in all toolbars of the process. The table takes the
    /// icon over: it destroys it when another one takes its place and at the end of the process. Null: no icon any
    /// more. Bars that are shown have to be invalidated by the caller. User-interface thread only.
    static void SetDisabledIcon(UINT id, HICON icon);
    /// Null when there is none; stays the table's.
    static HICON GetDisabledIcon(UINT id);

    void OnDraw(CDC* dc, const CRect& rect, CMFCToolBarImages* images, BOOL horizontal = TRUE,
                BOOL customizeMode = FALSE, BOOL highlighted = FALSE, BOOL drawBorder = TRUE,
                BOOL grayDisabledButtons = TRUE) override;
};
