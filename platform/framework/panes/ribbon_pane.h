#pragma once

class CBasePane;
class CMFCRibbonBar;

/// Whether a pane is the frame's ribbon.
bool IsRibbonPane(const CBasePane* pane);
/// The pane as a ribbon; null for every other pane and for null.
CMFCRibbonBar* RibbonPane(CBasePane* pane);
