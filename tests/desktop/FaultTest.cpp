#include "games/GameStore.h"
#include "tests/desktop/Steps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>

// What needs more than steps can say.

namespace {

constexpr std::array Extensions{L".bin", L".txt", L".cgn", L".pgn"};
using Files = std::array<std::string, Extensions.size()>;
using Time = std::chrono::steady_clock;

}  // namespace

TEST(Faults, KilledWhileSavingLeavesEachFileOldOrNew) {
    constexpr int moments = 18;
    Steps steps;
    const std::wstring path = steps.Folder() + L"SavedGames\\game";
    const auto read = [&] {
        Files files;
        for (size_t i = 0; i < files.size(); ++i) files[i] = ReadFileText(path + Extensions[i]);
        return files;
    };
    const auto write = [&](const Files& files) {
        for (size_t i = 0; i < files.size(); ++i) {
            for (const wchar_t* beside : {L".new", L""}) Remove(path + Extensions[i] + beside);
            if (!files[i].empty()) WriteFileText(path + Extensions[i], files[i]);
        }
    };
    const auto filesWait = [&] {
        return std::any_of(Extensions.begin(), Extensions.end(),
                           [&](const wchar_t* extension) { return Exists(path + extension + L".new"); });
    };
    // Up to the answer that saves one of two games, which differ in each of their files.
    const auto begin = [&](size_t game) {
        const std::string name(100, game == 0 ? 'a' : 'b');
        steps.Do("start Scorlet=1 Pgn=1 White=" + name + " Black=" + name + " / play " + (game == 0 ? "e2e4" : "d2d4"));
        steps.Do("lists \"1. * / \" / front frmClock / menu 0 2 / focus txtGameName / put txtGameName game");
    };
    const auto answer = [&] {
        steps.Do("key Enter / message *");
        PostMessageW(steps.Program().Message(), WM_COMMAND, IDYES, 0);
        return Time::now();
    };
    std::array<Files, 3> games;  // the third is none
    Time::duration duration{};
    for (const size_t game : {0, 1}) {
        begin(game);
        const Time::time_point start = answer();
        steps.Do("hidden frmFiles");
        duration = std::max(duration, Time::now() - start);
        games[game] = read();
    }
    for (size_t i = 0; i < Extensions.size(); ++i) ASSERT_NE(games[0][i], games[1][i]) << i;
    const GameStore store(steps.Folder() + L"SavedGames\\");
    int between = 0;
    for (int moment = 0; moment < moments; ++moment) {
        SCOPED_TRACE(moment);
        const size_t wanted = static_cast<size_t>(moment) % 2;
        const Files &after = games[wanted], &before = moment % 3 == 2 ? games[2] : games[1 - wanted];
        begin(wanted);
        write(before);
        const Time::time_point late = answer() + std::chrono::seconds(20);
        while (!filesWait() && read() == before && Time::now() < late) {
        }
        const Time::time_point kill = Time::now() + duration * moment / moments;
        while (Time::now() < kill) {
        }
        TerminateProcess(steps.Program().Process(), 99);
        steps.Do("ended 99");
        const Files left = read();
        size_t replaced = 0;
        for (size_t i = 0; i < left.size(); ++i) {
            EXPECT_TRUE(left[i] == before[i] || left[i] == after[i]) << i << " has " << left[i].size() << " bytes";
            replaced += left[i] == after[i] ? 1 : 0;
        }
        between += filesWait() ? 1 : 0;
        if (left[0].empty()) continue;
        EXPECT_TRUE(!before[0].empty() || replaced == left.size()) << "a new game is there whole or not at all";
        SavedGame loaded;
        EXPECT_FALSE(store.LoadGame(L"game", Settings(), loaded)) << "damaged";
    }
    EXPECT_GT(between, 0) << "every kill came too late or too early";

    // What a killed program leaves beside the files is in nobody's way.
    begin(1);
    write(games[0]);
    WriteFileText(path + L".bin.new", "half of it");
    answer();
    steps.Do("hidden frmFiles");
    EXPECT_EQ(read(), games[1]);
    EXPECT_FALSE(filesWait());
}
