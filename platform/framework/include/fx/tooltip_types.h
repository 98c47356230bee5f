#pragma once

// Which kind of control owns a tooltip; combinations choose whom CTooltipManager::SetTooltipParams concerns.
constexpr unsigned AFX_TOOLTIP_TYPE_DEFAULT = 0x0001;
constexpr unsigned AFX_TOOLTIP_TYPE_TOOLBAR = 0x0002;
constexpr unsigned AFX_TOOLTIP_TYPE_TAB = 0x0004;
constexpr unsigned AFX_TOOLTIP_TYPE_MINIFRAME = 0x0008;
constexpr unsigned AFX_TOOLTIP_TYPE_DOCKBAR = 0x0010;
constexpr unsigned AFX_TOOLTIP_TYPE_EDIT = 0x0020;
constexpr unsigned AFX_TOOLTIP_TYPE_BUTTON = 0x0040;
constexpr unsigned AFX_TOOLTIP_TYPE_TOOLBOX = 0x0080;
constexpr unsigned AFX_TOOLTIP_TYPE_CAPTIONBAR = 0x0100;
constexpr unsigned AFX_TOOLTIP_TYPE_RIBBON = 0x0200;
constexpr unsigned AFX_TOOLTIP_TYPE_PLANNER = 0x0400;
constexpr unsigned AFX_TOOLTIP_TYPE_ALL = 0xFFFF;
