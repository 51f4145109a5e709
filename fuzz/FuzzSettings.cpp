#include "fuzz/Fuzz.h"
#include "settings/SettingsRecord.h"

// Settings that can be read are written and read as the same. What has been taken of damaged ones can be written too.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const DecodedRecord record = DecodeRecord({data, size});
    Settings settings, again;
    settings.PlayerNames[Black] = std::string(MaxNameCharacters, 'x');
    const auto error = DecodeSettings(record, settings);
    settings.LanguageIndex = DecodeLanguage(record.Slots);
    const SlotRecord written = EncodeSettings(settings);
    if (error) return 0;
    again.LanguageIndex = DecodeLanguage(written);
    Require(!DecodeSettings({written, {}}, again));
    Require(again == settings);
    return 0;
}
