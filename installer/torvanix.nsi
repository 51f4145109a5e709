; The installer of TORVANIX, for one user, without administrator rights: the program keeps settings and saved games in
; its own folder, so that folder must be the user's.
;
; The command line of makensis defines VERSION (three numbers), FILES (the folder of the files to install), PICTURES
; (the folder of the icon) and OUTPUT (the installer).
;
; Exit codes: 0 is success, 1 means cancelled by the user, 2 means not installed because a file of TORVANIX is in use, the
; folder holds a newer version, the folder cannot be written to or Windows is too old.

Target amd64-unicode
SetCompressor /SOLID lzma

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WinVer.nsh

; A file README.txt in the folder is somebody else's.
!define README "TORVANIX README.txt"
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

!define MUI_PAGE_CUSTOMFUNCTION_LEAVE LeaveFolderPage
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

; A file of the running program or of the open help cannot be replaced or deleted: it cannot be opened for writing.
; Found before the first file is touched, it leaves the copy that is there in one piece.
!macro RefuseWhileInUse name
  ${Do}
    ${IfNot} ${FileExists} "$INSTDIR\${name}"
      ${Break}
    ${EndIf}
    ; A write-protected file is not in use.
    SetFileAttributes "$INSTDIR\${name}" NORMAL
    ClearErrors
    FileOpen $0 "$INSTDIR\${name}" a
    ${IfNot} ${Errors}
      FileClose $0
      ${Break}
    ${EndIf}
    StrCpy $1 "$INSTDIR\${name}"
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(InUse)" /SD IDCANCEL IDRETRY +2
    Abort "$(InUse)"
  ${Loop}
!macroend

; The list of programs and the Start menu have one entry, which is that of the copy installed last. This puts that copy's
; folder into $1, or nothing if there is no copy in another folder than this one.
!macro FindOtherCopy
  ReadRegStr $1 HKCU "${UNINSTALL_KEY}" InstallLocation
  ${If} $1 == $INSTDIR
  ${OrIfNot} ${FileExists} "$1\Uninstall.exe"
    StrCpy $1 ""
  ${EndIf}
!macroend

Function .onInit
  ${IfNot} ${AtLeastWin7}
    MessageBox MB_OK|MB_ICONSTOP "$(WindowsTooOld)" /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd

; Keeps the page open if the user could not save a game in the folder, or does not want a second copy.
Function LeaveFolderPage
  ClearErrors
  CreateDirectory "$INSTDIR"
  GetTempFileName $0 "$INSTDIR"
  Delete "$0"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(FolderRefused)"
    Abort
  ${EndIf}
  !insertmacro FindOtherCopy
  ${If} $1 != ""
    MessageBox MB_OKCANCEL|MB_ICONINFORMATION "$(EntriesMove)" IDOK +2
    Abort
  ${EndIf}
FunctionEnd

Function AskBeforeDowngrade
  GetDLLVersion "$INSTDIR\torvanix.exe" $0 $1
  GetDLLVersion "$EXEPATH" $2 $3
  ${If} $0 = $2
    StrCpy $0 $1
    StrCpy $2 $3
  ${EndIf}
  ${If} $0 > $2
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "$(NewerInstalled)" /SD IDNO IDYES +2
    Abort "$(NewerKept)"
  ${EndIf}
FunctionEnd

Section "TORVANIX" Program
  Call AskBeforeDowngrade
  !insertmacro RefuseWhileInUse torvanix.exe
  !insertmacro RefuseWhileInUse TORVANIX.chm
  !insertmacro RefuseWhileInUse "${README}"
  !insertmacro RefuseWhileInUse Uninstall.exe
  SetOutPath "$INSTDIR"
  File "${FILES}\torvanix.exe" "${FILES}\TORVANIX.chm"
  File "/oname=${README}" "${FILES}\README.txt"
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
  !insertmacro RefuseWhileInUse torvanix.exe
  !insertmacro RefuseWhileInUse TORVANIX.chm
  !insertmacro RefuseWhileInUse "${README}"
  Delete "$INSTDIR\torvanix.exe"
  Delete "$INSTDIR\TORVANIX.chm"
  Delete "$INSTDIR\${README}"
  Delete "$INSTDIR\Uninstall.exe"
SectionEnd

; Puts 1 into $0 if a folder of the program's is a link. What it leads to lies outside and is kept; so is the link, so
; that a later installation finds the games again.
!macro IsLink folder
  ${GetFileAttributes} "$INSTDIR\${folder}" REPARSE_POINT $0
!macroend

; Only what the program has written, or may have left in a crash: the folders may hold files of the user's own.
Section /o "un.$(GamesAndSettings)" GamesAndSettings
  !insertmacro IsLink SavedGames
  ${If} $0 <> 1
    FindFirst $1 $2 "$INSTDIR\SavedGames\*.bin"
    ${While} $2 != ""
      StrCpy $2 $2 -4
      Delete "$INSTDIR\SavedGames\$2.txt"
      Delete "$INSTDIR\SavedGames\$2.cgn"
      Delete "$INSTDIR\SavedGames\$2.pgn"
      Delete "$INSTDIR\SavedGames\$2.bin"
      FindNext $1 $2
    ${EndWhile}
    FindClose $1
    Delete "$INSTDIR\SavedGames\*.new"
    Delete "$INSTDIR\SavedGames\*.saving"
  ${EndIf}
  !insertmacro IsLink Data
  ${If} $0 <> 1
    Delete "$INSTDIR\Data\TORVANIX.set"
    Delete "$INSTDIR\Data\TORVANIX.set.new"
    Delete "$INSTDIR\Data\Places.txt"
    Delete "$INSTDIR\Data\Places.txt.new"
    Delete "$INSTDIR\Data\TimeControls.txt"
    Delete "$INSTDIR\Data\TimeControls.txt.new"
    Delete "$INSTDIR\Data\Game*.kept*"
    Delete "$INSTDIR\Data\Game*.last*"
  ${EndIf}
SectionEnd

Section "-un.Folders"
  ; RMDir leaves folders that are not empty, but takes a link whatever it leads to.
  SetOutPath "$TEMP"
  !insertmacro IsLink SavedGames
  ${If} $0 <> 1
    RMDir "$INSTDIR\SavedGames"
  ${EndIf}
  !insertmacro IsLink Data
  ${If} $0 <> 1
    RMDir "$INSTDIR\Data"
  ${EndIf}
  RMDir "$INSTDIR"
  !insertmacro FindOtherCopy
  ${If} $1 == ""
    Delete "$SMPROGRAMS\TORVANIX.lnk"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ${EndIf}
SectionEnd

Function un.onInit
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/REMOVEGAMES" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${GamesAndSettings}
  ${EndIf}
FunctionEnd
