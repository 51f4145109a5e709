#include "settings/TimeControls.h"

#include "platform/Ansi.h"
#include "platform/Files.h"
#include "platform/SystemError.h"

#include <algorithm>

namespace {

// In the order of their names in the table of texts.
constexpr int32_t Fischer = 2;
constexpr struct {
    int32_t ClockType, Minutes, BonusSeconds;
} Usual[] = {{Fischer, 60, 30}, {Fischer, 25, 10}, {Fischer, 15, 10}, {Fischer, 10, 5}, {Fischer, 5, 3},
             {Fischer, 3, 2},   {0, 5, 0},         {Fischer, 2, 1},   {3, 3, 0}};

constexpr size_t LongestFile = 1 << 20;
// A message names no more bad lines than these.
constexpr size_t MostLinesTold = 8;

}  // namespace

TimeControls::TimeControls(const std::wstring& folder, const Texts& texts)
    : folder(folder), path(folder + L"TimeControls.txt"), texts(texts) {
    Take(TimeControlText({}));
}

std::wstring TimeControls::Load() {
    try {
        const TimeControlText text = Read();
        Take(text);
        std::wstring lines;
        const std::vector<std::string> bad = text.BadLines();
        for (size_t i = 0; i < std::min(bad.size(), MostLinesTold); ++i) lines += L"\n" + FromUtf8(bad[i]);
        if (bad.size() > MostLinesTold) lines += L"\n...";
        return bad.empty() ? std::wstring() : texts.Compose(TextId::TimeControlsDamaged, path, lines);
    } catch (const SystemError& error) {
        return texts.Compose(TextId::TimeControlsNotRead, path, texts.Reason(error.Code()));
    }
}

std::optional<size_t> TimeControls::Matching(const GameTimes& times, std::optional<size_t> preferred) const {
    if (preferred && *preferred < all.size() && all[*preferred].Times == times) return preferred;
    // From the last one on, since the user's own come last.
    for (size_t i = all.size(); i > 0; --i) {
        if (all[i - 1].Times == times) return i - 1;
    }
    return std::nullopt;
}

std::optional<size_t> TimeControls::OwnNamed(const std::wstring& name) const {
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Entry& entry) { return entry.Own && entry.Name == name; });
    if (found == all.end()) return std::nullopt;
    return static_cast<size_t>(found - all.begin());
}

void TimeControls::Keep(const std::wstring& name, const GameTimes& times) {
    TimeControlText text = Read();
    text.Keep(ToUtf8(name), times);
    Write(text);
}

void TimeControls::Remove(const std::wstring& name) {
    TimeControlText text = Read();
    text.Remove(ToUtf8(name));
    Write(text);
}

TimeControlText TimeControls::Read() const {
    const auto bytes = ReadFileBytes(path, LongestFile + 1);
    if (!bytes) return TimeControlText({});
    // What is cut off here would be lost when the file is written.
    if (bytes->size() > LongestFile) throw SystemError(ERROR_FILE_TOO_LARGE, path);
    return TimeControlText(std::string(bytes->begin(), bytes->end()));
}

void TimeControls::Write(const TimeControlText& text) {
    MakeFolder(folder);
    ReplaceFileBytes(path, text.Bytes());
    Take(text);
}

void TimeControls::Take(const TimeControlText& text) {
    all.clear();
    for (size_t i = 0; i < std::size(Usual); ++i) {
        const auto& [type, minutes, bonus] = Usual[i];
        all.push_back({texts(RowAfter(TextId::TimeControlNames, static_cast<int32_t>(i))),
                       SimpleTimes(type, minutes, bonus), false});
    }
    for (const NamedTimes& own : text.Controls()) all.push_back({FromUtf8(own.Name), own.Times, true});
}
