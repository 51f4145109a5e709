#pragma once

#include "base/Damage.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The files of a saved game, in the order in which they are read. They share its name.
enum GameFile : int { ClockFile, DiagramFile, MovesFile, PgnFile };

inline constexpr std::array AllGameFiles{ClockFile, DiagramFile, MovesFile, PgnFile};

constexpr std::string_view ExtensionOf(GameFile file) {
    constexpr std::array<std::string_view, 4> extensions{".bin", ".txt", ".cgn", ".pgn"};
    return extensions[file];
}

// The bytes of each file, indexed by GameFile; nothing for one that there is not.
using GameFiles = std::array<std::optional<std::string>, AllGameFiles.size()>;

// Ends each line of the three text files.
inline constexpr std::string_view LineEnd = "\r\n";

// What makes a file of a saved game unreadable, and where.
struct GameFileError {
    GameFile File;
    Damage What;
    int32_t Place;
    int32_t Column = 0;  // from 1; of the diagram only

    bool operator==(const GameFileError&) const = default;
};
