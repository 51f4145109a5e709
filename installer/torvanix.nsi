; The installer of TORVANIX, for one user, without administrator rights: the program keeps settings and saved games in
; its own folder, so that folder must be the user's.
;
; The command line of makensis defines VERSION (three numbers), FILES (the folder of the files to install), PICTURES
; (the folder of the icon) and OUTPUT (the installer).
;
; Exit codes: 0 is success, 1 means cancelled by the user, 2 means not installed because TORVANIX is running, the folder
; cannot be written to or Windows is too old.

Target amd64-unicode
SetCompressor /SOLID lzma

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WinVer.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\TORVANIX"

Name "TORVANIX"
OutFile "${OUTPUT}"
BrandingText "TORVANIX ${VERSION}"
InstallDir "$LOCALAPPDATA\Programs\TORVANIX"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" InstallLocation
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all
; A file that cannot be written ends the installation; no file is skipped.
AllowSkipFiles off

!define MUI_ICON "${PICTURES}\TORVANIX.ico"
!define MUI_UNICON "${PICTURES}\TORVANIX.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${__FILEDIR__}\side.bmp"
!define MUI_ABORTWARNING
!define MUI_UNABORTWARNING
!define MUI_FINISHPAGE_TITLE "$(Installed)"
!define MUI_FINISHPAGE_TEXT "$(InstalledText)"
!define MUI_FINISHPAGE_RUN "$INSTDIR\torvanix.exe"
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_COMPONENTSPAGE_TEXT_TOP "$(KeptUnlessTicked)"

!define MUI_PAGE_CUSTOMFUNCTION_LEAVE RefuseForeignFolder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!define MUI_PAGE_CUSTOMFUNCTION_SHOW un.HideSpace
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES

; The installer takes the language of the user's Windows, or the first of these if that is none of them.
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE Turkish
!insertmacro MUI_LANGUAGE French
!include texts.nsh

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 CompanyName "The TORVANIX team"
VIAddVersionKey /LANG=0 FileDescription "TORVANIX setup"
VIAddVersionKey /LANG=0 FileVersion "${VERSION}"
VIAddVersionKey /LANG=0 LegalCopyright "© 2026 The TORVANIX team"
VIAddVersionKey /LANG=0 ProductName "TORVANIX"
VIAddVersionKey /LANG=0 ProductVersion "${VERSION}"

; A running program cannot be replaced or deleted: its file cannot be opened for writing.
!macro RefuseWhileRunning
  ${Do}
    ${IfNot} ${FileExists} "$INSTDIR\torvanix.exe"
      ${Break}
    ${EndIf}
    ClearErrors
    FileOpen $0 "$INSTDIR\torvanix.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${Break}
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(StillRunning)" /SD IDCANCEL IDRETRY +2
    Abort "$(StillRunning)"
  ${Loop}
!macroend

Function .onInit
  ${IfNot} ${AtLeastWin7}
    MessageBox MB_OK|MB_ICONSTOP "$(WindowsTooOld)" /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd

; Keeps the page open if the user could not save a game in the folder.
Function RefuseForeignFolder
  ClearErrors
  CreateDirectory "$INSTDIR"
  GetTempFileName $0 "$INSTDIR"
  Delete "$0"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(FolderRefused)"
    Abort
  ${EndIf}
FunctionEnd

Section "TORVANIX" Program
  !insertmacro RefuseWhileRunning
  SetOutPath "$INSTDIR"
  File "${FILES}\torvanix.exe" "${FILES}\TORVANIX.chm" "${FILES}\README.txt"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\TORVANIX.lnk" "$INSTDIR\torvanix.exe" "" "" 0 SW_SHOWNORMAL "" "$(ChessClock)"

  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayName "TORVANIX"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\torvanix.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" Publisher "The TORVANIX team"
  WriteRegStr HKCU "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoRepair 1
  SectionGetSize ${Program} $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" EstimatedSize $0
SectionEnd

; Hides the line that would say how much space the removal of the program takes.
Function un.HideSpace
  FindWindow $0 "#32770" "" $HWNDPARENT
  GetDlgItem $0 $0 1023
  ShowWindow $0 ${SW_HIDE}
FunctionEnd

Section "un.TORVANIX"
  SectionIn RO
  !insertmacro RefuseWhileRunning
  Delete "$INSTDIR\torvanix.exe"
  Delete "$INSTDIR\TORVANIX.chm"
  Delete "$INSTDIR\README.txt"
  Delete "$INSTDIR\Uninstall.exe"
  Delete "$SMPROGRAMS\TORVANIX.lnk"
SectionEnd

Section /o "un.$(GamesAndSettings)" GamesAndSettings
  RMDir /r "$INSTDIR\SavedGames"
  ; Only what the program has written, or may have left behind in a crash: the folder may hold files of the user's own.
  Delete "$INSTDIR\Data\TORVANIX.set"
  Delete "$INSTDIR\Data\TORVANIX.set.new"
SectionEnd

Section "-un.Folders"
  ; RMDir leaves folders that are not empty.
  SetOutPath "$TEMP"
  RMDir "$INSTDIR\SavedGames"
  RMDir "$INSTDIR\Data"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd

Function un.onInit
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/REMOVEGAMES" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${GamesAndSettings}
  ${EndIf}
FunctionEnd
