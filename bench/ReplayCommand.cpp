#include "bench/Replay.h"

#include <iostream>
#include <string>

// Reads games from standard input, one a line, and writes their moves in short algebraic notation to standard output,
// or, with the option --export, each game as the program exports it, with an empty line after it. A line that is no
// game and a game that is not clear are named on standard error. The exit status is 1 if there was one, 2 for any other
// argument; the other lines are written all the same.
int main(int count, char** arguments) {
    const bool exports = count == 2 && std::string(arguments[1]) == "--export";
    if (count > 1 && !exports) {
        std::cerr << "usage: replay [--export] <games\n";
        return 2;
    }
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    std::string line, written;
    bool good = true;
    const auto complain = [&](size_t number, const std::string& fault) {
        std::cerr << "line " << number << ": " << fault << '\n';
        good = false;
    };
    for (size_t number = 1; std::getline(std::cin, line); ++number) {
        written.clear();
        if (!exports) {
            ReplayLine(line, written);  // a malformed line leaves it empty
        } else if (const auto recorder = RecordLine(line)) {
            const std::string unclear = ExportRecord(*recorder, written);
            if (!unclear.empty()) complain(number, unclear);
        }
        if (written.empty())
            complain(number, "not a game of moves with a result");
        else
            std::cout << written << '\n';
    }
    std::cout.flush();
    return good && std::cout ? 0 : 1;
}
