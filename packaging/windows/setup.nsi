; The setup program: for one user, without an administrator. Settings and backups of the user are not its affair, they lie in
; %APPDATA%\TallyStrata. Needs VERSION, LISTS (install.nsh,
; uninstall.nsh), SIZE, ICON and OUTPUT.
; Silent: /S, into another folder: /D=C:\folder as the last word. Ends with 2 if the program is running.

Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
Name "TallyStrata"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\TallyStrata"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\TallyStrata"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "TallyStrata"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Setup of TallyStrata"
VIAddVersionKey "LegalCopyright" "2026 The TallyStrata developers, MIT licence"

!include MUI2.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\TallyStrata.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs cannot be written to.
!macro UNTIL_IT_IS_CLOSED
    again:
    IfFileExists "$INSTDIR\bin\TallyStrata.exe" 0 closed
    ClearErrors
    FileOpen $0 "$INSTDIR\bin\TallyStrata.exe" a
    IfErrors 0 free
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "TallyStrata is running. Please close it first." /SD IDCANCEL IDRETRY again
    SetErrorLevel 2
    Quit
    free:
    FileClose $0
    closed:
!macroend

Section
    !insertmacro UNTIL_IT_IS_CLOSED
    ; What an older version has left and this one has no more.
    IfFileExists "$INSTDIR\uninstall.exe" 0 +2
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'

    !include "${LISTS}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\TallyStrata.lnk" "$INSTDIR\bin\TallyStrata.exe"

    WriteRegStr HKCU "${KEY}" "DisplayName" "TallyStrata"
    WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${KEY}" "Publisher" "The TallyStrata developers"
    WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\bin\TallyStrata.exe"
    WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${KEY}" "EstimatedSize" ${SIZE}
    WriteRegDWORD HKCU "${KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    !insertmacro UNTIL_IT_IS_CLOSED
    Delete "$SMPROGRAMS\TallyStrata.lnk"
    DeleteRegKey HKCU "${KEY}"
    SetOutPath "$TEMP"
    Delete "$INSTDIR\uninstall.exe"
    !include "${LISTS}/uninstall.nsh"
    RMDir "$INSTDIR"
SectionEnd
