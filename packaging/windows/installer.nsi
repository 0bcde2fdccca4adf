; The Windows installer of the Nimbra Backup agent, for the signed-in user
; (no administrator rights): the agent, "Nimbra Backup Notifier.exe" and the
; simulated service in <folder>\bin, the style sheets and pictures in
; <folder>\resource (the agent finds them beside bin\), the simulator's
; scenarios in <folder>\share. It registers nimbrabackup:// for the user (the
; address is the agent's argument 1), starts the agent at sign-in, adds a
; Start-menu entry and an entry in "Apps & features"; the uninstaller removes
; all of it. Built by the build's windows_installer target:
;   makensis -DVERSION=x.y.z -DSTAGE=<install tree> -DICON=<.ico> -DOUTFILE=<setup.exe> installer.nsi
; Silent: setup.exe /S [/D=<folder>], uninstall.exe /S.

; The programs are 64-bit: so is the installer (it also runs where no 32-bit
; Windows layer is installed).
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include "LogicLib.nsh"
!include "MUI2.nsh"

!define APP_NAME "Nimbra Backup"
!define PUBLISHER "Corvana Inc."
!define AGENT "nimbra-backup-agent.exe"
!define URL_KEY "Software\Classes\nimbrabackup"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\NimbraBackupAgent"

Name "${APP_NAME}"
OutFile "${OUTFILE}"
InstallDir "$LOCALAPPDATA\Programs\${APP_NAME}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "${APP_NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${APP_NAME}"
VIAddVersionKey "CompanyName" "${PUBLISHER}"
VIAddVersionKey "FileDescription" "${APP_NAME} setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "Copyright (C) ${PUBLISHER}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\${AGENT}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Section "Install"
  SetShellVarContext current
  SetOutPath "$INSTDIR\bin"
  File "${STAGE}\bin\${AGENT}"
  File "${STAGE}\bin\Nimbra Backup Notifier.exe"
  File "${STAGE}\bin\nimbra-service-sim.exe"
  SetOutPath "$INSTDIR\resource"
  File /r "${STAGE}\resource\*"
  SetOutPath "$INSTDIR\share\nimbra-service-sim\scenarios"
  File /r "${STAGE}\share\nimbra-service-sim\scenarios\*"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"

  ; nimbrabackup:// for this user: the browser's sign-in return reaches the
  ; agent as its argument 1 (a running agent gets it from the new one).
  WriteRegStr HKCU "${URL_KEY}" "" "URL:${APP_NAME}"
  WriteRegStr HKCU "${URL_KEY}" "URL Protocol" ""
  WriteRegStr HKCU "${URL_KEY}\DefaultIcon" "" '"$INSTDIR\bin\${AGENT}",0'
  WriteRegStr HKCU "${URL_KEY}\shell\open\command" "" '"$INSTDIR\bin\${AGENT}" "%1"'

  WriteRegStr HKCU "${RUN_KEY}" "${APP_NAME}" '"$INSTDIR\bin\${AGENT}"'
  CreateShortCut "$SMPROGRAMS\${APP_NAME}.lnk" "$INSTDIR\bin\${AGENT}" "" "$INSTDIR\bin\${AGENT}" 0

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${APP_NAME}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" '"$INSTDIR\bin\${AGENT}",0'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  SetShellVarContext current
  Delete "$SMPROGRAMS\${APP_NAME}.lnk"
  DeleteRegValue HKCU "${RUN_KEY}" "${APP_NAME}"
  DeleteRegKey HKCU "${URL_KEY}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ; Only what the installer put there: a folder the user chose may hold more.
  Delete "$INSTDIR\bin\${AGENT}"
  Delete "$INSTDIR\bin\Nimbra Backup Notifier.exe"
  Delete "$INSTDIR\bin\nimbra-service-sim.exe"
  RMDir "$INSTDIR\bin"
  RMDir /r "$INSTDIR\resource"
  RMDir /r "$INSTDIR\share\nimbra-service-sim"
  RMDir "$INSTDIR\share"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd
