; The installer, for one user and without administrator rights: the program keeps its data in its own folder, so that
; folder must belong to the user. Built by CMake (target "installer"), which passes the values in capitals.
;
;   Vantor-2.0.0-setup.exe /S [/D=FOLDER]    installs or upgrades without asking; a running copy is closed, which saves
;                                            its data, and started again
;   Uninstall.exe /S [/DELETEDATA]           uninstalls; the user's list and settings are deleted only with /DELETEDATA
;
;   /DESKTOPSHORTCUT                         also creates the desktop shortcut in a silent installation
;
; Exit codes: 0: done; 1: cancelled by the user; 2: failed, and an older copy is unchanged.

Unicode true
SetCompressor /SOLID lzma
SetDateSave off ; the same sources produce the same installer
AllowSkipFiles off

!include LogicLib.nsh
!include FileFunc.nsh
!include MUI2.nsh
!include Sections.nsh
!include Win\COM.nsh
!include WinMessages.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantor"

Name "Vantor"
OutFile "${OUTPUT}"
BrandingText "Vantor ${VERSION}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Vantor"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
ManifestDPIAware true
ManifestSupportedOS all
ShowInstDetails nevershow
ShowUninstDetails nevershow
SpaceTexts none

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "CompanyName" "${PUBLISHER}"
VIAddVersionKey "FileDescription" "Vantor Setup"
VIAddVersionKey "FileVersion" "${VERSION}.0"
VIAddVersionKey "LegalCopyright" "Copyright (C) ${PUBLISHER}"
VIAddVersionKey "ProductName" "Vantor"
VIAddVersionKey "ProductVersion" "${VERSION}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_PAGE_HEADER_TEXT "Install Vantor"
!define MUI_PAGE_HEADER_SUBTEXT "Choose whether a keyboard shortcut brings it up."
!define MUI_COMPONENTSPAGE_TEXT_TOP "With the shortcut on the desktop, Ctrl+Shift+L opens Vantor from anywhere."
!define MUI_COMPONENTSPAGE_TEXT_INSTTYPE " "
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "To install:"
!insertmacro MUI_PAGE_COMPONENTS
!define MUI_DIRECTORYPAGE_TEXT_TOP "Vantor keeps your list and settings in its own folder. Choose one that you may write to."
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE RefuseForeignFolder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\Vantor.exe"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\Guide.html"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Read the guide"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED
!insertmacro MUI_PAGE_FINISH

!define MUI_COMPONENTSPAGE_TEXT_TOP "Vantor will be removed. Your list and settings stay where they are unless you tick them too."
!define MUI_PAGE_HEADER_TEXT "Remove Vantor"
!define MUI_PAGE_HEADER_SUBTEXT "Choose what to remove."
!define MUI_COMPONENTSPAGE_TEXT_INSTTYPE " "
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "To remove:"
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Var WasRunning

; Closes the copy that is running from $INSTDIR in the same way as the end of a Windows session, so that it saves its
; data, and waits for it to end. $WasRunning tells whether there was one.
!macro CloseRunningCopy un
Function ${un}CloseRunningCopy
  StrCpy $0 0
  ${Do}
    FindWindow $0 "ThunderRT6Main" "Vantor Orbel" 0 $0
    ${IfThen} $0 P= 0 ${|} ${Break} ${|}
    System::Call 'user32::GetWindowThreadProcessId(p r0, *i .r1)'
    ; SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION
    System::Call 'kernel32::OpenProcess(i 0x101000, i 0, i r1) p .r2'
    ${IfThen} $2 P= 0 ${|} ${Continue} ${|}
    System::Call 'kernel32::QueryFullProcessImageNameW(p r2, i 0, w .r3, *i ${NSIS_MAX_STRLEN})'
    ${If} $3 == "$INSTDIR\Vantor.exe"
      StrCpy $WasRunning 1
      SendMessage $0 ${WM_QUERYENDSESSION} 0 1 $4 /TIMEOUT=5000
      ${If} $4 <> 0
        SendMessage $0 ${WM_ENDSESSION} 1 1 /TIMEOUT=10000
        ; It saves before it answers; the rest takes no time.
        System::Call 'kernel32::WaitForSingleObject(p r2, i 3000) i .r4'
        ${IfThen} $4 = 0 ${|} StrCpy $0 0 ${|} ; its window is gone, so the search starts again
      ${EndIf}
    ${EndIf}
    System::Call 'kernel32::CloseHandle(p r2)'
  ${Loop}
FunctionEnd
!macroend
!insertmacro CloseRunningCopy ""
!insertmacro CloseRunningCopy "un."

; Sets the error flag if $INSTDIR can't be written to.
Function TryFolder
  ClearErrors
  CreateDirectory "$INSTDIR"
  FileOpen $0 "$INSTDIR\Vantor.exe.new" w
  FileClose $0
  ${If} ${Errors}
    RMDir "$INSTDIR"
    SetErrors
  ${Else}
    Delete "$INSTDIR\Vantor.exe.new"
    RMDir "$INSTDIR" ; fails if it is not empty
    ClearErrors
  ${EndIf}
FunctionEnd

Function RefuseForeignFolder
  Call TryFolder
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONEXCLAMATION "You may not write to this folder, so Vantor could not keep your list there.$\r$\n$\r$\nChoose another one."
    Abort
  ${EndIf}
FunctionEnd

Section "Vantor" SectionProgram
  SectionIn RO
  Call TryFolder
  ${IfThen} ${Errors} ${|} Abort "No right to write to $INSTDIR." ${|}
  ReadRegStr $R0 HKCU "${UNINSTALL_KEY}" "InstallLocation"

  ; The new program is completely written next to the old one before that is touched.
  SetOutPath "$INSTDIR"
  File "/oname=Vantor.exe.new" "${PROGRAM}"
  replace:
  Call CloseRunningCopy
  StrCpy $1 20
  ${Do}
    ; MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH. A scanner may hold a new file for a moment.
    System::Call 'kernel32::MoveFileExW(w "$INSTDIR\Vantor.exe.new", w "$INSTDIR\Vantor.exe", i 9) i .r0'
    ${IfThen} $0 <> 0 ${|} ${Break} ${|}
    Sleep 100
    IntOp $1 $1 - 1
  ${LoopUntil} $1 = 0
  ${If} $0 = 0
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Vantor.exe is in use. Close Vantor (F10 on its bar), then try again." /SD IDCANCEL IDRETRY replace
    Delete "$INSTDIR\Vantor.exe.new"
    Abort "Vantor.exe is in use."
  ${EndIf}
  File "${GUIDE}"
  File "${NOTICES}"
  WriteUninstaller "$INSTDIR\Uninstall.exe"

  ; A start-menu entry that the user has removed is not created again.
  ${If} $R0 == ""
  ${OrIf} ${FileExists} "$SMPROGRAMS\Vantor.lnk"
    CreateShortcut "$SMPROGRAMS\Vantor.lnk" "$INSTDIR\Vantor.exe" "" "" "" "" "" "${DESCRIPTION}"
  ${EndIf}

  SectionGetSize ${SectionProgram} $0
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Vantor"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Vantor.exe,0"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "URLInfoAbout" "${SITE}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "HelpLink" "$INSTDIR\Guide.html"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1

  ; In an interactive installation, the last page asks.
  ${If} ${Silent}
  ${AndIf} $WasRunning = 1
    Exec '"$INSTDIR\Vantor.exe"'
  ${EndIf}
SectionEnd

; The same file with the same properties as "Create Desktop Shortcut" in the preferences creates.
Section "Shortcut on the desktop (Ctrl+Shift+L)" SectionShortcut
  SetOutPath "$INSTDIR" ; where the program starts
  CreateShortcut "$DESKTOP\Vantor.lnk" "$INSTDIR\Vantor.exe" "" "$INSTDIR\Vantor.exe" 0 SW_SHOWNORMAL CONTROL|SHIFT|L "Vantor"
SectionEnd

Function .onInit
  StrCpy $WasRunning 0
  ; A silent installation creates the shortcut only on request; one that the user has removed is not created again.
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} ${Silent}
    !insertmacro UnselectSection ${SectionShortcut}
  ${ElseIf} $0 != ""
  ${AndIfNot} ${FileExists} "$DESKTOP\Vantor.lnk"
    !insertmacro UnselectSection ${SectionShortcut}
  ${EndIf}
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/DESKTOPSHORTCUT" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SectionShortcut}
  ${EndIf}
FunctionEnd

; Removes the shortcut that the setup or the preferences page creates, if it leads here.
Function un.RemoveDesktopShortcut
  !insertmacro ComHlpr_CreateInProcInstance ${CLSID_ShellLink} ${IID_IShellLink} r0 ""
  ${IfThen} $0 P= 0 ${|} Return ${|}
  StrCpy $2 ""
  ${IUnknown::QueryInterface} $0 '("${IID_IPersistFile}",.r1)'
  ${If} $1 P<> 0
    ${IPersistFile::Load} $1 '("$DESKTOP\Vantor.lnk",${STGM_READ})'
    ${IShellLink::GetPath} $0 '(.r2,${NSIS_MAX_STRLEN},p 0,0)'
    ${IUnknown::Release} $1 ""
  ${EndIf}
  ${IUnknown::Release} $0 ""
  ${IfThen} $2 == "$INSTDIR\Vantor.exe" ${|} Delete "$DESKTOP\Vantor.lnk" ${|}
FunctionEnd

!macro RemoveRunValue ROOT
  ReadRegStr $0 ${ROOT} "Software\Microsoft\Windows\CurrentVersion\Run" "OrbelsLauncher"
  ${If} $0 == "$INSTDIR\Vantor.exe"
    DeleteRegValue ${ROOT} "Software\Microsoft\Windows\CurrentVersion\Run" "OrbelsLauncher"
  ${EndIf}
!macroend

Section "un.Vantor"
  SectionIn RO
  StrCpy $WasRunning 0
  remove:
  Call un.CloseRunningCopy
  StrCpy $1 20
  ${Do}
    ClearErrors
    Delete "$INSTDIR\Vantor.exe"
    ${IfThen} ${Errors} ${|} Sleep 100 ${|}
    IntOp $1 $1 - 1
    ${IfThen} $1 = 0 ${|} ${Break} ${|}
  ${LoopWhile} ${FileExists} "$INSTDIR\Vantor.exe"
  ${If} ${FileExists} "$INSTDIR\Vantor.exe"
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Vantor.exe is in use. Close Vantor (F10 on its bar), then try again." /SD IDCANCEL IDRETRY remove
    Abort "Vantor.exe is in use."
  ${EndIf}

  ; "Start With Windows" of this copy, for all users or only for this one.
  !insertmacro RemoveRunValue HKLM
  !insertmacro RemoveRunValue HKCU
  Call un.RemoveDesktopShortcut

  Delete "$INSTDIR\Guide.html"
  Delete "$INSTDIR\Notices.txt"
  Delete "$INSTDIR\Uninstall.exe"
  ; Unless a copy in another folder has been installed since then.
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 == $INSTDIR
    Delete "$SMPROGRAMS\Vantor.lnk"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ${EndIf}
SectionEnd

Section /o "un.My list and settings" SectionData
  FindFirst $0 $1 "$INSTDIR\Vantor\Rescue\*"
  ${DoWhile} $1 != ""
    ${If} $1 != "."
    ${AndIf} $1 != ".."
      Delete "$INSTDIR\Vantor\Rescue\$1\Backup\*.Orbel"
      RMDir "$INSTDIR\Vantor\Rescue\$1\Backup"
      Delete "$INSTDIR\Vantor\Rescue\$1\*.Orbel"
      RMDir "$INSTDIR\Vantor\Rescue\$1"
    ${EndIf}
    FindNext $0 $1
  ${Loop}
  FindClose $0
  RMDir "$INSTDIR\Vantor\Rescue"
  Delete "$INSTDIR\Vantor\Backup\*.Orbel"
  Delete "$INSTDIR\Vantor\Backup\*.Orbel~"
  RMDir "$INSTDIR\Vantor\Backup"
  Delete "$INSTDIR\Vantor\*.Orbel"
  Delete "$INSTDIR\Vantor\*.Orbel~"
  RMDir "$INSTDIR\Vantor"
SectionEnd

Section "-un.Folder"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR" ; fails if it is not empty
SectionEnd

Function un.onInit
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/DELETEDATA" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SectionData}
  ${EndIf}
FunctionEnd
