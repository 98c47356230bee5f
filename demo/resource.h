#pragma once

#define IDR_MAINFRAME 128
#define IDR_MAP_MENU 129
#define IDR_TOOL_ARGUMENTS 130

// Commands with numbers of their own; those of the configuration have theirs from the library, which counts from 41000.
#define ID_TOOLS_ENTRY 40900 // stands in menus for the user's tools
#define ID_USER_TOOL_FIRST 40901
#define ID_USER_TOOL_LAST 40910

// What the page "Tools" offers for the arguments of a tool: commands of its menu and the texts that they put in.
#define IDS_ARGUMENT_FILE 40920
#define IDS_ARGUMENT_PLACE 40921
