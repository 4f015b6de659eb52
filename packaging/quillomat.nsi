; The installer: for the current user only, without an administrator. scripts/pack builds it and defines
;   VERSION, AUTHOR, WEB_SITE  as in the program
;   APP                        the folder with the files to install
;   JOINER                     join_databases.exe
;   OUTPUT                     the installer to write
;
; /S installs silently; /D=FOLDER, without quotes and as the last argument, chooses the folder. The exit code is 0, or 2
; if the installer gave up. If the program is running, it gives up before changing anything.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
; A file that cannot be written aborts the installation.
AllowSkipFiles off

!include LogicLib.nsh
!include MUI2.nsh

!define NAME "Quillomat"
!define PROGRAM "$INSTDIR\Quillomat.exe"
!define DATABASE "$INSTDIR\Cheats.dat"
; The new database before it takes its place. It stays if the player keeps a database of their own.
!define NEW_DATABASE "$INSTDIR\Cheats.new.dat"
; The new database with the player's own games, before it takes its place.
!define JOINED_DATABASE "$INSTDIR\Cheats.joined.dat"
!define SHORTCUT "$SMPROGRAMS\Quillomat.lnk"
!define UNINSTALLER "$INSTDIR\Uninstall.exe"
; Windows lists the programs below this key under "Apps & features".
!define REGISTERED "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillomat"
!define SETTINGS "Software\Quillomat"
; In bytes; many times the size of any released database.
!define LARGEST_HASHED 67108864

Name "${NAME}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
; The program writes to its own folder, so the user must have write access to it.
InstallDir "$LOCALAPPDATA\Programs\Quillomat"
InstallDirRegKey HKCU "${REGISTERED}" "InstallLocation"
BrandingText "${NAME} ${VERSION}"
ManifestDPIAware true
ManifestSupportedOS Win10

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "${AUTHOR}"
VIAddVersionKey "LegalCopyright" "Copyright ${AUTHOR}"

Var finish_text

; --- pages -----------------------------------------------------------------------------------------------------------

!define MUI_ICON "..\assets\icons\app.ico"
!define MUI_UNICON "..\assets\icons\app.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "..\assets\installer.bmp"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_TEXT "$finish_text"
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!define MUI_FINISHPAGE_NOREBOOTSUPPORT
!define MUI_COMPONENTSPAGE_NODESC

; An update goes to the folder of the installed program.
!define MUI_PAGE_CUSTOMFUNCTION_PRE skip_when_installed
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH

!define MUI_PAGE_HEADER_TEXT "Uninstall ${NAME}"
!define MUI_PAGE_HEADER_SUBTEXT "Remove ${NAME} from this computer."
!define MUI_COMPONENTSPAGE_TEXT_TOP "A database with games of your own stays. Choose what else goes, and click Uninstall."
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "To be removed:"
!define MUI_PAGE_CUSTOMFUNCTION_SHOW un.hide_space
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "English"

; --- what both the installer and the uninstaller do --------------------------------------------------------------------

!macro both PREFIX

; Waits until the program is closed: Windows lets nobody write to the file of a running program.
Function ${PREFIX}wait_until_closed
  ${Do}
    ${IfNot} ${FileExists} "${PROGRAM}"
      Return
    ${EndIf}
    ClearErrors
    FileOpen $0 "${PROGRAM}" a
    ${IfNot} ${Errors}
      FileClose $0
      Return
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
      "${NAME} is running, or its file may not be changed.$\n$\nPlease close ${NAME} and choose Retry." \
      /SD IDCANCEL IDRETRY retry
    SetErrorLevel 2
    Abort "${NAME} is running. Nothing was changed."
    retry:
  ${Loop}
FunctionEnd

; Pops the number of bytes to hash, or "" for all, and the path of a file. Pushes the SHA-256 of these bytes, or "" if
; the file cannot be read or hashed; such a file counts as the player's own. Uses $0 to $8.
Function ${PREFIX}hash_of_file
  Pop $8
  Pop $0
  StrCpy $5 ""
  ClearErrors
  FileOpen $1 $0 r
  ${If} ${Errors}
    Push ""
    Return
  ${EndIf}
  System::Call "kernel32::GetFileSizeEx(p r1, *l .r2) i .r7"
  ${If} $8 != ""
  ${AndIf} $8 L<= $2
    StrCpy $2 $8
  ${EndIf}
  ${If} $7 <> 0
  ${AndIf} $2 L<= ${LARGEST_HASHED}
    System::Alloc $2
    Pop $3
    System::Alloc 32
    Pop $4
    System::Call "kernel32::ReadFile(p r1, p r3, i r2, *i .r6, p 0) i .r7"
    ${If} $7 <> 0
    ${AndIf} $6 = $2
      ; The handle is the system's own name for SHA-256.
      System::Call "bcrypt::BCryptHash(p 0x41, p 0, i 0, p r3, i r2, p r4, i 32) i .r7"
      ${If} $7 = 0
        System::Call "crypt32::CryptBinaryToStringW(p r4, i 32, i 0x4000000C, w .r5, *i 65)"
      ${EndIf}
    ${EndIf}
    System::Free $3
    System::Free $4
  ${EndIf}
  FileClose $1
  Push $5
FunctionEnd

!macroend

!insertmacro both ""
!insertmacro both "un."

!macro hash_of PREFIX PATH LENGTH RESULT
  Push "${PATH}"
  Push "${LENGTH}"
  Call ${PREFIX}hash_of_file
  Pop ${RESULT}
!macroend

; --- installing ----------------------------------------------------------------------------------------------------------

Function skip_when_installed
  ${If} ${FileExists} "${PROGRAM}"
    Abort
  ${EndIf}
FunctionEnd

; Appends the player's games to the new database, if the installed games before them are unchanged. Then $R4 is the
; joined database, and $R5 and $R6 are the hash and the size of its part that is not the player's. Otherwise $R6 is 0.
Function join_databases
  StrCpy $R6 0
  ${If} $R3 == ""
    Return
  ${EndIf}
  !insertmacro hash_of "" "${DATABASE}" $R3 $R7
  ${If} $R7 == ""
  ${OrIf} $R7 != $R2
    Return
  ${EndIf}
  InitPluginsDir
  File "/oname=$PLUGINSDIR\join_databases.exe" "${JOINER}"
  Delete "${JOINED_DATABASE}"
  StrCpy $0 0
  ExecWait '"$PLUGINSDIR\join_databases.exe" "${NEW_DATABASE}" "${DATABASE}" $R3 "${JOINED_DATABASE}"' $0
  ${If} $0 <= 0
    Return
  ${EndIf}
  StrCpy $R8 $0
  !insertmacro hash_of "" "${JOINED_DATABASE}" $R8 $R5
  ${If} $R5 != ""
    StrCpy $R4 "${JOINED_DATABASE}"
    StrCpy $R6 $R8
    StrCpy $finish_text "$finish_text Your own games are behind the new ones."
  ${EndIf}
FunctionEnd

; Replaces a database that is unchanged since it was installed. If the player's own games follow in it, appends them to
; the new one. Any other database is kept, and the new one is left beside it if it contains anything new.
Function install_database
  File "/oname=${NEW_DATABASE}" "${APP}/Cheats.dat"
  !insertmacro hash_of "" "${NEW_DATABASE}" "" $R0
  StrCpy $R4 "${NEW_DATABASE}"
  StrCpy $R5 $R0
  StrCpy $R6 $2
  !insertmacro hash_of "" "${DATABASE}" "" $R1
  ReadRegStr $R2 HKCU "${REGISTERED}" "DatabaseHash"
  ReadRegStr $R3 HKCU "${REGISTERED}" "DatabaseSize"

  ${If} ${FileExists} "${DATABASE}"
    ${If} $R1 == ""
      Goto keep
    ${EndIf}
    ${If} $R1 != $R2
    ${AndIf} $R1 != $R0
      ${If} $R0 == $R2
        Goto keep ; nothing is new
      ${EndIf}
      Call join_databases
      ${If} $R6 = 0
        Goto keep
      ${EndIf}
    ${EndIf}
  ${EndIf}
  ; An atomic replacement; 9 is MOVEFILE_REPLACE_EXISTING and MOVEFILE_WRITE_THROUGH.
  System::Call 'kernel32::MoveFileExW(w R4, w "${DATABASE}", i 9) i .r0'
  ${If} $0 <> 0
    WriteRegStr HKCU "${REGISTERED}" "DatabaseHash" $R5
    WriteRegStr HKCU "${REGISTERED}" "DatabaseSize" $R6
    Delete "${NEW_DATABASE}"
    Return
  ${EndIf}

  keep:
  Delete "${JOINED_DATABASE}"
  StrCpy $finish_text "Your Cheats.dat was kept, because it is not the one that was installed."
  ${If} $R0 == $R2
    Delete "${NEW_DATABASE}"
  ${Else}
    StrCpy $finish_text "$finish_text The one of this version is beside it: Cheats.new.dat."
  ${EndIf}
  DetailPrint $finish_text
FunctionEnd

Section "${NAME}" section_program
  StrCpy $finish_text "${NAME} is in the Start menu now."
  Call wait_until_closed
  SetOutPath $INSTDIR
  File "${APP}/Quillomat.exe"
  File "${APP}/readme.txt"
  Call install_database
  WriteUninstaller "${UNINSTALLER}"
  ; The program starts in Documents, where it proposes to save: a shortcut starts in the folder that was set last.
  SetOutPath $DOCUMENTS
  CreateShortcut "${SHORTCUT}" "${PROGRAM}"

  WriteRegStr HKCU "${REGISTERED}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${REGISTERED}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${REGISTERED}" "Publisher" "${AUTHOR}"
  WriteRegStr HKCU "${REGISTERED}" "URLInfoAbout" "http://${WEB_SITE}"
  WriteRegStr HKCU "${REGISTERED}" "DisplayIcon" "${PROGRAM}"
  WriteRegStr HKCU "${REGISTERED}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${REGISTERED}" "UninstallString" '"${UNINSTALLER}"'
  WriteRegStr HKCU "${REGISTERED}" "QuietUninstallString" '"${UNINSTALLER}" /S'
  SectionGetSize ${section_program} $0
  WriteRegDWORD HKCU "${REGISTERED}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${REGISTERED}" "NoModify" 1
  WriteRegDWORD HKCU "${REGISTERED}" "NoRepair" 1
SectionEnd

; --- uninstalling --------------------------------------------------------------------------------------------------------

; Uninstalling needs no space.
Function un.hide_space
  ShowWindow $mui.ComponentsPage.SpaceRequired ${SW_HIDE}
FunctionEnd

Section "un.${NAME}"
  SectionIn RO
  Call un.wait_until_closed
  Delete "${PROGRAM}"
  Delete "$INSTDIR\readme.txt"
  Delete "$INSTDIR\Fonts.dat"
  Delete "${NEW_DATABASE}"

  !insertmacro hash_of "un." "${DATABASE}" "" $R1
  ReadRegStr $R2 HKCU "${REGISTERED}" "DatabaseHash"
  ${If} $R1 != ""
  ${AndIf} $R1 == $R2
    Delete "${DATABASE}"
  ${EndIf}
  ${If} ${FileExists} "${DATABASE}"
    MessageBox MB_OK|MB_ICONINFORMATION "Your own Cheats.dat stays in$\n$\n$INSTDIR" /SD IDOK
  ${EndIf}

  Delete "${UNINSTALLER}"
  SetOutPath $TEMP ; the current folder of a process cannot be removed
  RMDir $INSTDIR
  ; If another copy has been installed elsewhere since, keep what belongs to that one.
  ReadRegStr $0 HKCU "${REGISTERED}" "InstallLocation"
  ${IfNot} ${FileExists} "$0\Quillomat.exe"
    Delete "${SHORTCUT}"
    DeleteRegKey HKCU "${REGISTERED}"
  ${EndIf}
SectionEnd

Section /o "un.Settings (last game, window sizes, ...)"
  DeleteRegKey HKCU "${SETTINGS}"
SectionEnd
