; The installer's own texts, in addition to those that every installer has.

!macro Text name english turkish french
  LangString ${name} ${LANG_ENGLISH} "${english}"
  LangString ${name} ${LANG_TURKISH} "${turkish}"
  LangString ${name} ${LANG_FRENCH} "${french}"
!macroend

!insertmacro Text StillRunning \
  "TORVANIX is running. Close it, then choose Retry." \
  "TORVANIX çalışıyor. Programı kapatıp yeniden deneyin." \
  "TORVANIX est en cours d’exécution. Fermez le programme, puis réessayez."

!insertmacro Text FolderRefused \
  "This folder cannot be written to. TORVANIX keeps saved games in its own folder: choose one that you may write to." \
  "Bu klasöre yazılamıyor. TORVANIX kayıtlı oyunları kendi klasöründe tutar; yazabileceğiniz bir klasör seçin." \
  "Impossible d’écrire dans ce dossier. TORVANIX conserve les parties enregistrées dans son propre dossier : choisissez un dossier où vous pouvez écrire."

!insertmacro Text WindowsTooOld \
  "TORVANIX needs Windows 7 or later." \
  "TORVANIX için Windows 7 veya daha yeni bir sürüm gerekir." \
  "TORVANIX nécessite Windows 7 ou une version plus récente."

!insertmacro Text GamesAndSettings \
  "Saved games and settings" \
  "Kayıtlı oyunlar ve ayarlar" \
  "Parties enregistrées et réglages"

!insertmacro Text ChessClock \
  "Chess clock for two players" \
  "İki oyuncu için satranç saati" \
  "Pendule d’échecs pour deux joueurs"

!insertmacro Text KeptUnlessTicked \
  "TORVANIX will be removed. Your saved games and settings are kept unless you tick them." \
  "TORVANIX kaldırılacak. İşaretlemedikçe kayıtlı oyunlarınız ve ayarlarınız silinmez." \
  "TORVANIX va être désinstallé. Vos parties enregistrées et vos réglages sont conservés, sauf si vous les cochez."

!insertmacro Text Installed \
  "TORVANIX is installed" \
  "TORVANIX kuruldu" \
  "TORVANIX est installé"

!insertmacro Text InstalledText \
  "You can open it from the Start menu at any time.$\r$\n$\r$\nClick Finish to close Setup." \
  "Programı istediğiniz zaman Başlat menüsünden açabilirsiniz.$\r$\n$\r$\nKurulumu kapatmak için Bitir düğmesine basın." \
  "Vous pouvez l’ouvrir à tout moment depuis le menu Démarrer.$\r$\n$\r$\nCliquez sur Fermer pour quitter l’installation."
