#include "app/Program.h"

#include "app/frmClock.h"
#include "app/modEnvironment.h"
#include "platform/SystemError.h"

#include <ole2.h>

namespace {

constexpr int32_t DataFolderMissingCode = 22677;

// COM for the life of the program.
class Com {
  public:
    Com() : status(OleInitialize(nullptr)) {}
    ~Com() {
        if (SUCCEEDED(status)) OleUninitialize();
    }
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;

  private:
    HRESULT status;
};

// Makes the data folder when it is missing. False: it could not be made, and the player has been told.
bool EnsureDataFolder(const std::wstring& folder, clsFileSystem& fileSystem, const Texts& texts,
                      const MessageBoxes& messageBoxes) {
    const HRESULT status = modEnvironment::EnsureFolder(fileSystem, folder);
    if (SUCCEEDED(status)) return true;
    fileSystem.WriteLog(DataFolderMissingCode, status, folder);
    const std::wstring reason = texts.Reason(CodeOf(status));
    messageBoxes.Inform(nullptr, texts.Compose(TextId::DataFolderMissing, folder, reason));
    return false;
}

int RunMessageLoop(frmClock& clockWindow) {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (clockWindow.TakeMessage(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

}  // namespace

int RunProgram() {
    const Com com;
    Settings settings;
    const Texts texts(settings.LanguageIndex);
    const MessageBoxes messageBoxes(texts);
    clsFileSystem fileSystem;
    const Environment environment = modEnvironment::Establish(fileSystem, texts);
    const SettingsFile settingsFile(environment.DataFolder);
    settings.LanguageIndex = settingsFile.LoadLanguage();

    if (FAILED(environment.SavedGamesStatus)) {
        const std::wstring reason = texts.Reason(CodeOf(environment.SavedGamesStatus));
        messageBoxes.Inform(nullptr,
                            texts.Compose(TextId::SavedGamesFolderMissing, environment.SavedGamesFolder, reason));
    }
    if (!EnsureDataFolder(environment.DataFolder, fileSystem, texts, messageBoxes)) return 1;

    TickTimer timer;
    Game game(settings, timer);
    frmClock clockWindow({texts, messageBoxes, environment, fileSystem}, settingsFile, settings, game, timer);
    try {
        clockWindow.Open();
    } catch (const std::exception& error) {
        clockWindow.ShowError(error);
        return 1;
    }
    return RunMessageLoop(clockWindow);
}
