#pragma once

#include <fstream>
#include <string>
#include <vector>

// The real games in tests/data, as words of origin and destination with the result after them.
struct RealGame {
    std::string Name, Moves, Result;
};

inline std::vector<RealGame> RealGames() {
    std::vector<RealGame> games;
    for (const std::string name : {"kasparov-deep-blue-1997", "world-championship-2023-game1"}) {
        std::ifstream file(TEST_DATA "/" + name + ".moves");
        int number = 0;
        for (std::string line; std::getline(file, line);) {
            const size_t result = line.rfind(' ') + 1;
            games.push_back({name + " " + std::to_string(number++), line.substr(0, result), line.substr(result)});
        }
    }
    return games;
}
