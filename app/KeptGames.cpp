#include "app/KeptGames.h"

#include "base/TimeText.h"
#include "games/KeptGame.h"
#include "platform/Ansi.h"
#include "platform/Files.h"
#include "platform/SystemError.h"
#include "platform/Today.h"
#include "resources/resource.h"
#include "settings/ShownName.h"

#include <utility>

namespace {

std::wstring TimeOf(const SavedGame& saved, Side side) {
    return FromAnsi(HoursMinutesSecondsText(saved.Clock.PlayerTime[side]));
}

}  // namespace

KeptGames::KeptGames(const Surroundings& around, const Form& clock, const Game& game)
    : around(around),
      clock(clock),
      game(game),
      // By the writer's own thread.
      keeper(around.System.DataFolder,
             [this](DWORD code) { PostMessageW(this->clock.Window(), WM_KEEPFAILED, code, 0); }) {}

void KeptGames::Offer(const Take& take) {
    for (const GameKeeper::Orphan& orphan : keeper.Orphans()) {
        bool taken = false;
        const bool settled = Try([&] {
            const std::optional<SavedGame> saved = Read(orphan.Path);
            if (!saved) return;
            if (!IsUnderWay(*saved) || !Ask(*saved, orphan.Path)) return keeper.MakeLast(orphan);
            take(*saved);
            taken = true;
            // Not before it is taken: where it cannot be, what comes to be kept next would replace it.
            keeper.Adopt(orphan);
        });
        // A new game must not take the place of one that could be neither read, taken nor put aside.
        if (!settled && !orphan.Lock) return;
        if (taken) break;
    }
    keeping = true;
    Keep();
}

void KeptGames::Keep() {
    if (!keeping) return;
    if (!game.WorthKeeping()) return keeper.KeepNothing();
    // Of a game that could not be loaded, what was kept before stays.
    if (const auto bytes = Encoded()) keeper.Keep(*bytes);
}

void KeptGames::PutAside() {
    if (!keeping) return;
    try {
        if (const auto bytes = Encoded()) keeper.PutAside(*bytes);
    } catch (const SystemError& error) {
        // Later: no message may come between a game and the one that takes its place.
        PostMessageW(clock.Window(), WM_KEEPFAILED, error.Code(), 0);
    }
}

void KeptGames::TellFailure(DWORD code) {
    if (!std::exchange(failureTold, true)) Tell(code);
}

void KeptGames::BringBackLast(const Take& take) {
    Try([&] {
        const std::wstring path = keeper.LastPath();
        const std::optional<SavedGame> last = Read(path);
        if (!last) return;
        // Where there is a game now, taking the other one puts it aside.
        take(*last);
        Keep();
        // Not before it is kept again.
        if (keeper.Finish()) GameKeeper::Forget(path);
    });
}

void KeptGames::Finish() {
    Keep();
    keeper.Finish();
    keeping = false;
}

// With the players' own names: an empty one stays empty.
std::optional<std::string> KeptGames::Encoded() const {
    const GameFiles files = game.Encode(game.Options(), Today());
    if (FaultOf(files)) return std::nullopt;
    return EncodeKeptGame(files);
}

std::optional<SavedGame> KeptGames::Read(const std::wstring& path) const {
    const Texts& texts = around.Wording;
    std::wstring reason;
    try {
        const auto bytes = ReadFileBytes(path, GameKeeper::LongestKept);
        if (!bytes) return std::nullopt;
        GameFiles files;
        SavedGame saved;
        if (const auto error = DecodeKeptGame(*bytes, files)) {
            reason = texts.Reason(error->What, error->Place);
        } else {
            const auto damaged = DecodeGame(ReaderOf(files), game.Options(), saved);
            if (!damaged) return saved;
            reason = texts.Reason(damaged->What, damaged->Place, damaged->Column);
        }
    } catch (const SystemError& error) {
        reason = texts.Reason(error.Code());
    }
    const std::wstring name = GameKeeper::MoveAway(path);
    around.Boxes.Inform(clock.Window(), texts.Compose(TextId::KeptGameDamaged, reason, name));
    return std::nullopt;
}

bool KeptGames::Ask(const SavedGame& saved, const std::wstring& path) const {
    const Texts& texts = around.Wording;
    const auto name = [&](Side side) { return ShownName(saved.Options, texts, side); };
    const int32_t counted = saved.Clock.MoveCount[White];
    const auto written = static_cast<int32_t>(saved.Scorlet.List(White).Moves());
    return around.Boxes.Ask(clock.Window(),
                            texts.Compose(TextId::KeptGameQuestion, name(White), name(Black),
                                          std::to_wstring(counted > 0 ? counted : written), TimeOf(saved, White),
                                          TimeOf(saved, Black), DateAndTime(LastChangeOf(path))));
}

bool KeptGames::Try(const std::function<void()>& action) const {
    try {
        action();
        return true;
    } catch (const SystemError& error) {
        Tell(error.Code());
        return false;
    }
}

void KeptGames::Tell(DWORD code) const {
    const std::wstring reason = around.Wording.Reason(code);
    around.Boxes.Inform(clock.Window(), around.Wording.Compose(TextId::GameNotKept, around.System.DataFolder, reason));
}
