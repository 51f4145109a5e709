#include "app/KeptGames.h"

#include "base/TimeText.h"
#include "games/KeptGame.h"
#include "platform/Ansi.h"
#include "platform/Files.h"
#include "platform/SystemError.h"
#include "platform/Today.h"
#include "resources/resource.h"
#include "settings/ShownName.h"

#include <algorithm>
#include <utility>

namespace {

std::wstring TimeOf(const SavedGame& saved, Side side) {
    const int32_t seconds = saved.Clock.PlayerTime[side];
    return FromAnsi(HoursMinutesText(seconds) + ":" + TwoDigitText(seconds % 60));
}

}  // namespace

KeptGames::KeptGames(const Surroundings& around, const Form& clock, const Game& game)
    : around(around), clock(clock), game(game), keeper(around.System.DataFolder, [this](DWORD code) {
          // By the writer's own thread.
          if (!std::exchange(failed, true)) PostMessageW(this->clock.Window(), WM_KEEPFAILED, code, 0);
      }) {}

void KeptGames::Offer(const Take& take) {
    std::vector<GameKeeper::Orphan> orphans = keeper.Orphans();
    for (const GameKeeper::Orphan& orphan : orphans) {
        bool taken = false;
        Try([&] {
            const auto bytes = ReadFileBytes(orphan.Path, GameKeeper::LongestKept);
            const auto saved = bytes ? Read(orphan.Path, *bytes) : std::nullopt;
            if (!saved) return;
            taken = IsUnderWay(*saved) && Ask(*saved, orphan.Path);
            if (taken)
                take(*saved);
            else
                keeper.PutAside({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
            // This program's own file is written anew.
            if (orphan.Lock) DeleteFileAt(orphan.Path);
        });
        if (taken) break;
    }
    keeping = true;
    Keep();
}

void KeptGames::Keep() {
    if (!keeping) return;
    if (game.WorthKeeping())
        keeper.Keep(Encoded());
    else
        keeper.KeepNothing();
}

void KeptGames::PutAside() {
    if (keeping) Try([&] { keeper.PutAside(Encoded()); });
}

void KeptGames::BringBackLast(const Take& take) {
    Try([&] {
        const std::optional<SavedGame> last = Read(keeper.LastPath(), keeper.Last());
        if (!last) return;
        // Where there is a game now, taking the other one puts it aside.
        const bool swapped = game.WorthKeeping();
        take(*last);
        if (!swapped) keeper.ForgetLast();
    });
}

void KeptGames::Finish() {
    Keep();
    keeper.Finish();
    keeping = false;
}

// With the players' own names: an empty one stays empty.
std::string KeptGames::Encoded() const { return EncodeKeptGame(game.Encode(game.Options().PlayerNames, Today())); }

std::optional<SavedGame> KeptGames::Read(const std::wstring& path, std::span<const uint8_t> bytes) const {
    const Texts& texts = around.Wording;
    std::wstring reason;
    GameFiles files;
    SavedGame saved;
    if (const auto error = DecodeKeptGame(bytes, files)) {
        reason = texts.Reason(error->What, error->Place);
    } else {
        const auto read = [&](GameFile file, size_t limit) -> std::optional<std::vector<uint8_t>> {
            if (!files[file]) return std::nullopt;
            return std::vector<uint8_t>(
                files[file]->begin(),
                files[file]->begin() + static_cast<std::ptrdiff_t>(std::min(files[file]->size(), limit)));
        };
        const auto damaged = DecodeGame(read, game.Options(), saved);
        if (!damaged) return saved;
        reason = texts.Reason(damaged->What, damaged->Place, damaged->Column);
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

void KeptGames::Try(const std::function<void()>& action) const {
    try {
        action();
    } catch (const SystemError& error) {
        const std::wstring reason = around.Wording.Reason(error.Code());
        around.Boxes.Inform(clock.Window(), around.Wording.Compose(TextId::GameNotKept, error.Thing(), reason));
    }
}
