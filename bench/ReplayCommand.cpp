#include "bench/Replay.h"

#include <iostream>
#include <string>

// Reads games from standard input, one a line, and writes their moves in short algebraic notation to standard output.
// The exit status is 1 if a line is malformed; the other lines are written all the same.
int main() {
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    std::string line, written;
    bool good = true;
    for (size_t number = 1; std::getline(std::cin, line); ++number) {
        written.clear();
        if (!ReplayLine(line, written)) {
            std::cerr << "line " << number << ": not a game of moves with a result\n";
            good = false;
            continue;
        }
        written += '\n';
        std::cout << written;
    }
    std::cout.flush();
    return good && std::cout ? 0 : 1;
}
