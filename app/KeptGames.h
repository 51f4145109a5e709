#pragma once

#include "games/Game.h"
#include "games/GameKeeper.h"
#include "platform/Form.h"

#include <functional>

// Keeps the game that is under way without being asked to, and brings back what was kept or thrown away.
class KeptGames {
  public:
    // How a game is taken in place of the one that is there.
    using Take = std::function<void(const SavedGame& saved)>;

    // `clock`, the form of the clock window, and `game` must outlive it. That a game could not be kept is told to the
    // clock window by WM_KEEPFAILED with the code of GetLastError in wParam.
    KeptGames(const Surroundings& around, const Form& clock, const Game& game);

    // Asks at the start for each game that no program keeps any more whether it is to go on, until one is taken.
    // Keeping begins after that.
    void Offer(const Take& take);

    void Keep();
    // The game becomes the last one.
    void PutAside();
    // Tells the players, once for all, why games cannot be kept.
    void TellFailure(DWORD code);

    bool HasLast() const { return !keeper.LastPath().empty(); }
    // The last game and the present one change places.
    void BringBackLast(const Take& take);

    // What is to be kept is on the disk when it returns; nothing is kept after that.
    void Finish();

  private:
    std::optional<std::string> Encoded() const;  // none: it could not be loaded again
    // A game that cannot be read is told of and gets another name. Throws SystemError when it cannot get one.
    std::optional<SavedGame> Read(const std::wstring& path) const;
    bool Ask(const SavedGame& saved, const std::wstring& path) const;
    // What the disk refuses is told in a message; the answer is false then.
    bool Try(const std::function<void()>& action) const;
    void Tell(DWORD code) const;

    const Surroundings around;
    const Form& clock;
    const Game& game;
    bool keeping = false, failureTold = false;
    GameKeeper keeper;
};
