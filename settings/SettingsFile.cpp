#include "settings/SettingsFile.h"

#include "platform/Files.h"
#include "platform/SystemError.h"
#include "texts/Texts.h"

int32_t SettingsFile::LoadLanguage() const {
    try {
        const auto bytes = ReadFileBytes(path, LongestRecord);
        const DecodedRecord record = bytes ? DecodeRecord(*bytes) : DecodedRecord{};
        // A damaged file may have lost it.
        if (bytes && (!record.Error || HasLanguage(record.Slots))) return DecodeLanguage(record.Slots);
    } catch (const SystemError&) {
        // Load, which is called next, reports it.
    }
    return LanguageOfSystem(GetUserDefaultUILanguage());
}

std::wstring SettingsFile::Load(Settings& settings, const Texts& texts) const {
    try {
        const auto bytes = ReadFileBytes(path, LongestRecord);
        if (!bytes) {
            const int32_t language = settings.LanguageIndex;
            settings = Settings();
            settings.LanguageIndex = language;
            return {};
        }
        if (const auto error = DecodeSettings(DecodeRecord(*bytes), settings))
            return texts.Compose(TextId::SettingsDamaged, path, texts.Reason(error->What, error->Slot));
        return {};
    } catch (const SystemError& error) {
        return texts.Compose(TextId::SettingsNotRead, path, texts.Reason(error.Code()));
    }
}

void SettingsFile::Save(const Settings& settings) const {
    MakeFolder(folder);
    ReplaceFileBytes(path, EncodeRecord(EncodeSettings(settings)));
}

std::wstring SettingsFile::SaveBoardTurned(bool turned, const Texts& texts) const {
    try {
        const auto bytes = ReadFileBytes(path, LongestRecord);
        Settings fresh;
        fresh.LanguageIndex = LoadLanguage();
        DecodedRecord record = bytes ? DecodeRecord(*bytes) : DecodedRecord{EncodeSettings(fresh), std::nullopt};
        if (record.Error)
            return texts.Compose(TextId::SettingsDamaged, path, texts.Reason(record.Error->What, record.Error->Slot));
        WriteBoardTurned(turned, record.Slots);
        MakeFolder(folder);
        ReplaceFileBytes(path, EncodeRecord(record.Slots));
        return {};
    } catch (const SystemError& error) {
        return texts.Compose(TextId::SettingsNotSaved, error.Thing(), texts.Reason(error.Code()));
    }
}
