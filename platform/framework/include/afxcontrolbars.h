#pragma once

/// Every header of the extended frames, panes and bars that there is.
#if __has_include("afxglobals.h")
#include "afxglobals.h"
#endif
#if __has_include("afxbasepane.h")
#include "afxbasepane.h"
#endif
#if __has_include("afxPane.h")
#include "afxPane.h"
#endif
#if __has_include("afxDockingManager.h")
#include "afxDockingManager.h"
#endif
#if __has_include("afxframewndex.h")
#include "afxframewndex.h"
#endif
#if __has_include("afxMDIFrameWndEx.h")
#include "afxMDIFrameWndEx.h"
#endif
#if __has_include("afxMDIChildWndEx.h")
#include "afxMDIChildWndEx.h"
#endif
#if __has_include("afxkeyboardmanager.h")
#include "afxkeyboardmanager.h"
#endif
#if __has_include("afxcontextmenumanager.h")
#include "afxcontextmenumanager.h"
#endif
#if __has_include("afxwinappex.h")
#include "afxwinappex.h"
#endif
#if __has_include("afxdialogex.h")
#include "afxdialogex.h"
#endif
#if __has_include("afxdrawmanager.h")
#include "afxdrawmanager.h"
#endif
#if __has_include("afxtoolbarimages.h")
#include "afxtoolbarimages.h"
#endif
#if __has_include("afxvisualmanager.h")
#include "afxvisualmanager.h"
#endif
#if __has_include("afxvisualmanagerofficexp.h")
#include "afxvisualmanagerofficexp.h"
#endif
#if __has_include("afxvisualmanageroffice2003.h")
#include "afxvisualmanageroffice2003.h"
#endif
#if __has_include("afxvisualmanageroffice2007.h")
#include "afxvisualmanageroffice2007.h"
#endif
#if __has_include("afxvisualmanagervs2005.h")
#include "afxvisualmanagervs2005.h"
#endif
#if __has_include("afxvisualmanagerwindows.h")
#include "afxvisualmanagerwindows.h"
#endif
#if __has_include("afxvisualmanagerwindows7.h")
#include "afxvisualmanagerwindows7.h"
#endif
#if __has_include("afxtooltipctrl.h")
#include "afxtooltipctrl.h"
#endif
#if __has_include("afxtooltipmanager.h")
#include "afxtooltipmanager.h"
#endif
#if __has_include("afxtoolbar.h")
#include "afxtoolbar.h"
#endif
#if __has_include("afxtoolbarbutton.h")
#include "afxtoolbarbutton.h"
#endif
#if __has_include("afxtoolbarcomboboxbutton.h")
#include "afxtoolbarcomboboxbutton.h"
#endif
#if __has_include("afxtoolbareditboxbutton.h")
#include "afxtoolbareditboxbutton.h"
#endif
#if __has_include("afxtoolbarfontcombobox.h")
#include "afxtoolbarfontcombobox.h"
#endif
#if __has_include("afxtoolbarmenubutton.h")
#include "afxtoolbarmenubutton.h"
#endif
#if __has_include("afxmenubar.h")
#include "afxmenubar.h"
#endif
#if __has_include("afxpopupmenu.h")
#include "afxpopupmenu.h"
#endif
#if __has_include("afxpopupmenubar.h")
#include "afxpopupmenubar.h"
#endif
#if __has_include("afxstatusbar.h")
#include "afxstatusbar.h"
#endif
#if __has_include("afxbaseribbonelement.h")
#include "afxbaseribbonelement.h"
#endif
#if __has_include("afxribbonbutton.h")
#include "afxribbonbutton.h"
#endif
#if __has_include("afxribbonbuttonsgroup.h")
#include "afxribbonbuttonsgroup.h"
#endif
#if __has_include("afxRibbonEdit.h")
#include "afxRibbonEdit.h"
#endif
#if __has_include("afxribboncombobox.h")
#include "afxribboncombobox.h"
#endif
#if __has_include("afxRibbonLabel.h")
#include "afxRibbonLabel.h"
#endif
#if __has_include("afxribbonslider.h")
#include "afxribbonslider.h"
#endif
#if __has_include("afxribboncheckbox.h")
#include "afxribboncheckbox.h"
#endif
#if __has_include("afxRibbonProgressBar.h")
#include "afxRibbonProgressBar.h"
#endif
#if __has_include("afxRibbonLinkCtrl.h")
#include "afxRibbonLinkCtrl.h"
#endif
#if __has_include("afxribboncolorbutton.h")
#include "afxribboncolorbutton.h"
#endif
#if __has_include("afxRibbonPaletteGallery.h")
#include "afxRibbonPaletteGallery.h"
#endif
#if __has_include("afxRibbonPanel.h")
#include "afxRibbonPanel.h"
#endif
#if __has_include("afxribboncategory.h")
#include "afxribboncategory.h"
#endif
#if __has_include("afxribbonquickaccesstoolbar.h")
#include "afxribbonquickaccesstoolbar.h"
#endif
#if __has_include("afxRibbonMainPanel.h")
#include "afxRibbonMainPanel.h"
#endif
#if __has_include("afxribbonbar.h")
#include "afxribbonbar.h"
#endif
#if __has_include("afxribbonstatusbarpane.h")
#include "afxribbonstatusbarpane.h"
#endif
#if __has_include("afxribbonstatusbar.h")
#include "afxribbonstatusbar.h"
#endif
#if __has_include("afxribbonundobutton.h")
#include "afxribbonundobutton.h"
#endif
