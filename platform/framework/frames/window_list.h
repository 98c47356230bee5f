#pragma once

class CMDIFrameWnd;
class CMFCPopupMenu;

/// Ends the frame's window menu (one with the commands that arrange windows) with an item for each of the first nine
/// children, the active one checked. Other menus stay as they are, and so does one of a frame without children.
void ListChildWindows(CMFCPopupMenu& menu, CMDIFrameWnd& frame);
