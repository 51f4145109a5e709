#include "fuzz/Fuzz.h"
#include "settings/SettingsRecord.h"
#include "settings/TimeControlText.h"

namespace {

std::string AllOf(const TimeControlText& text) {
    std::string all;
    for (const NamedTimes& one : text.Controls()) all += one.Name + "=" + TextOf(one.Times) + "\n";
    for (const std::string& line : text.BadLines()) all += line + "\n";
    return all;
}

}  // namespace

// Time controls that can be read are kept as the same beside whatever else the text holds, and so are the settings that
// take them.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(TextOf(data, size));
    TimeControlText kept(text);
    const std::string all = AllOf(kept);
    for (const NamedTimes& one : TimeControlText(text).Controls()) {
        Require(TimeControlText::IsName(one.Name) && TimesOfText(TextOf(one.Times)) == one.Times);
        kept.Keep(one.Name, one.Times);
        Settings settings, again;
        TakeTimes(one.Times, settings);
        Require(TimesOf(settings) == one.Times);
        Require(!DecodeSettings({EncodeSettings(settings), {}}, again) && again == settings);
    }
    Require(AllOf(kept) == all);
    kept.Keep("new", SimpleTimes(2, 3, 2));
    Require(AllOf(kept).find("new=fischer 3 plus 2\n") != std::string::npos);
    kept.Remove("new");
    return 0;
}
