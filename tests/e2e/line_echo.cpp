/// Writes every line of its standard input to its standard output and error, and ends with 3 when there is no more.
#include <cstdio>

int main() {
    char line[256];
    while (std::fgets(line, sizeof line, stdin)) {
        std::fputs(line, stdout);
        std::fflush(stdout);
        std::fputs(line, stderr);
    }
    return 3;
}
