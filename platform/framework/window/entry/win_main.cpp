// The entry of a program whose application is a global object derived from CWinApp. Compiled into each such program.
#include "afxwin.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR, int showCommand) {
    // The system's ANSI line may have lost characters: take the wide one, without the program's own name.
    LPTSTR line = ::GetCommandLine();
    const bool isQuoted = *line == L'"';
    line += isQuoted ? 1 : 0;
    while (*line != 0 && (isQuoted ? *line != L'"' : *line != L' ')) {
        ++line;
    }
    line += isQuoted && *line != 0 ? 1 : 0;
    while (*line == L' ') {
        ++line;
    }
    return AfxWinMain(instance, previous, line, showCommand);
}
