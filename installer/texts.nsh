; The installer's own texts, in addition to those that every installer has.

!macro Text name english turkish french
  LangString ${name} ${LANG_ENGLISH} "${english}"
  LangString ${name} ${LANG_TURKISH} "${turkish}"
  LangString ${name} ${LANG_FRENCH} "${french}"
!macroend

!insertmacro Text InUse \
  "$1 is in use. Close TORVANIX and its help, then choose Retry." \
  "$1 kullanılıyor. TORVANIX’i ve yardımını kapatıp yeniden deneyin." \
  "$1 est en cours d’utilisation. Fermez TORVANIX et son aide, puis réessayez."

!insertmacro Text NewerInstalled \
  "A newer version of TORVANIX is installed in this folder. Replace it with version ${VERSION}?" \
  "Bu klasörde TORVANIX’in daha yeni bir sürümü kurulu. Yerine ${VERSION} sürümü kurulsun mu?" \
  "Une version plus récente de TORVANIX est installée dans ce dossier. La remplacer par la version ${VERSION} ?"

!insertmacro Text NewerKept \
  "The newer version has been kept." \
  "Yeni sürüm korundu." \
  "La version plus récente a été conservée."

!insertmacro Text EntriesMove \
  "TORVANIX is already installed in $1.$\r$\n$\r$\nThat copy will stay there with its saved games, but the Start menu and the list of installed programs will show the new one only. To remove the old copy later, open Uninstall.exe in its folder." \
  "TORVANIX $1 klasöründe zaten kurulu.$\r$\n$\r$\nO kopya kayıtlı oyunlarıyla orada kalacak, ancak Başlat menüsünde ve yüklü programlar listesinde yalnızca yenisi görünecek. Eski kopyayı daha sonra kaldırmak için klasöründeki Uninstall.exe dosyasını açın." \
  "TORVANIX est déjà installé dans $1.$\r$\n$\r$\nCette copie y restera avec ses parties enregistrées, mais le menu Démarrer et la liste des programmes installés n’afficheront plus que la nouvelle. Pour supprimer l’ancienne plus tard, ouvrez Uninstall.exe dans son dossier."

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
