; SPDX-FileCopyrightText: 2026 Norvale
; SPDX-License-Identifier: GPL-3.0-or-later
;
; The installer. tools/windows/setup gives it VERSION, FILES (the folder to install), REMOVAL (the commands that
; remove what is in it), OUTPUT (the installer) and SIGN (a command that signs its argument).
; Options: /S (silent), /AllUsers, /CurrentUser, /NoAssociation, /D=FOLDER (the last one).
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_INSTALLMODE_INSTDIR Wavorin
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY Software\Norvale\WavorinSetup
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME Folder
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY Software\Norvale\WavorinSetup
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME Folder
!define MULTIUSER_USE_PROGRAMFILES64
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define SETUP_KEY Software\Norvale\WavorinSetup
!define REMOVE_KEY Software\Microsoft\Windows\CurrentVersion\Uninstall\Wavorin
!define KIND Wavorin.Recording

Name Wavorin
OutFile "${OUTPUT}"
BrandingText "Wavorin ${VERSION}"
ManifestDPIAware true
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 ProductName Wavorin
VIAddVersionKey /LANG=0 ProductVersion "${VERSION}"
VIAddVersionKey /LANG=0 FileVersion "${VERSION}"
VIAddVersionKey /LANG=0 FileDescription "Wavorin, installer"
VIAddVersionKey /LANG=0 CompanyName Norvale
VIAddVersionKey /LANG=0 LegalCopyright "Copyright 2026 Norvale"
!uninstfinalize '${SIGN} "%1"'

!define MUI_ICON "../images/wavorin.ico"
!define MUI_UNICON "../images/wavorin.ico"
!define MUI_LANGDLL_REGISTRY_ROOT SHCTX
!define MUI_LANGDLL_REGISTRY_KEY "${SETUP_KEY}"
!define MUI_LANGDLL_REGISTRY_VALUENAME Language
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_FINISHPAGE_NOAUTOCLOSE
!define MUI_FINISHPAGE_RUN "$INSTDIR\wavorin.exe"
!insertmacro MUI_PAGE_LICENSE "${FILES}/LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English
; These lack in the tool's own Finnish.
!define MULTIUSER_TEXT_INSTALLMODE_TITLE "Valitse käyttäjät"
!define MULTIUSER_TEXT_INSTALLMODE_SUBTITLE "Valitse, ketkä voivat käyttää ohjelmaa $(^NameDA)."
!define MULTIUSER_INNERTEXT_INSTALLMODE_TOP "Valitse, asennetaanko $(^NameDA) vain sinulle vai \
kaikille tämän tietokoneen käyttäjille. $(^ClickNext)"
!define MULTIUSER_INNERTEXT_INSTALLMODE_ALLUSERS "Asenna kaikille tämän tietokoneen käyttäjille"
!define MULTIUSER_INNERTEXT_INSTALLMODE_CURRENTUSER "Asenna vain minulle"
!insertmacro MUI_LANGUAGE Finnish
!insertmacro MUI_LANGUAGE SimpChinese
!insertmacro MUI_RESERVEFILE_LANGDLL

LangString programSection ${LANG_ENGLISH} "Wavorin (required)"
LangString programSection ${LANG_FINNISH} "Wavorin (pakollinen)"
LangString programSection ${LANG_SIMPCHINESE} "Wavorin（必需）"
LangString menuSection ${LANG_ENGLISH} "Start menu entry"
LangString menuSection ${LANG_FINNISH} "Käynnistä-valikon kohta"
LangString menuSection ${LANG_SIMPCHINESE} "开始菜单项"
LangString kindSection ${LANG_ENGLISH} "Offer Wavorin for .cfg files"
LangString kindSection ${LANG_FINNISH} "Tarjoa Wavorinia .cfg-tiedostoille"
LangString kindSection ${LANG_SIMPCHINESE} "为 .cfg 文件提供 Wavorin"
LangString kindName ${LANG_ENGLISH} "Disturbance recording"
LangString kindName ${LANG_FINNISH} "Häiriötallenne"
LangString kindName ${LANG_SIMPCHINESE} "故障录波"
LangString isRunning ${LANG_ENGLISH} "Wavorin is running. Close it, then try again."
LangString isRunning ${LANG_FINNISH} "Wavorin on käynnissä. Sulje se ja yritä uudelleen."
LangString isRunning ${LANG_SIMPCHINESE} "Wavorin 正在运行。请关闭它，然后重试。"
LangString notRemoved ${LANG_ENGLISH} "The installed version could not be removed."
LangString notRemoved ${LANG_FINNISH} "Asennettua versiota ei voitu poistaa."
LangString notRemoved ${LANG_SIMPCHINESE} "无法移除已安装的版本。"

; A program that runs cannot be written to. Silent, the answer is no: exit code 2, and nothing has changed.
!macro WaitForTheProgram UN
Function ${UN}waitForTheProgram
    ${DoWhile} ${FileExists} "$INSTDIR\wavorin.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\wavorin.exe" a
        ${IfNot} ${Errors}
            FileClose $0
            Return
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(isRunning)" /SD IDCANCEL IDRETRY again
        SetErrorLevel 2
        Quit
        again:
    ${Loop}
FunctionEnd
!macroend
!insertmacro WaitForTheProgram ""
!insertmacro WaitForTheProgram un.

; The desktop learns what its files are.
!macro TellTheDesktop
    System::Call "shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)"
!macroend

Section "$(programSection)" programPart
    SectionIn RO
    Call waitForTheProgram
    ; The files of an older version may have other names.
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        StrCpy $0 0 ; where it cannot be started
        ExecWait '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode _?=$INSTDIR' $0
        ${If} $0 <> 0
            MessageBox MB_ICONSTOP "$(notRemoved)" /SD IDOK
            SetErrorLevel 3
            Quit
        ${EndIf}
    ${EndIf}
    SetOutPath "$INSTDIR"
    File /r "${FILES}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr SHCTX "${SETUP_KEY}" Folder "$INSTDIR"
    WriteRegStr SHCTX "${REMOVE_KEY}" DisplayName Wavorin
    WriteRegStr SHCTX "${REMOVE_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${REMOVE_KEY}" DisplayIcon "$INSTDIR\wavorin.exe"
    WriteRegStr SHCTX "${REMOVE_KEY}" Publisher Norvale
    WriteRegStr SHCTX "${REMOVE_KEY}" URLInfoAbout "https://www.norvale.example"
    WriteRegStr SHCTX "${REMOVE_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${REMOVE_KEY}" UninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${REMOVE_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX "${REMOVE_KEY}" NoModify 1
    WriteRegDWORD SHCTX "${REMOVE_KEY}" NoRepair 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD SHCTX "${REMOVE_KEY}" EstimatedSize $0
SectionEnd

Section "$(menuSection)" menuPart
    ; Where a picture is first offered to be saved: the program starts there.
    SetOutPath "$DOCUMENTS"
    CreateShortcut "$SMPROGRAMS\Wavorin.lnk" "$INSTDIR\wavorin.exe"
    SetOutPath "$INSTDIR"
SectionEnd

; One of the programs that the desktop offers, and never the one that it starts by itself.
Section "$(kindSection)" kindPart
    WriteRegStr SHCTX "Software\Classes\${KIND}" "" "$(kindName)"
    WriteRegStr SHCTX "Software\Classes\${KIND}\DefaultIcon" "" "$INSTDIR\wavorin.exe,0"
    WriteRegStr SHCTX "Software\Classes\${KIND}\shell\open\command" "" '"$INSTDIR\wavorin.exe" "%1"'
    WriteRegStr SHCTX "Software\Classes\.cfg\OpenWithProgids" "${KIND}" ""
    !insertmacro TellTheDesktop
SectionEnd

Function .onInit
    SetRegView 64
    !insertmacro MULTIUSER_INIT
    !insertmacro MUI_LANGDLL_DISPLAY
    ; Whoever did without a part keeps doing without it.
    ReadRegStr $0 SHCTX "${SETUP_KEY}" Folder
    ${If} $0 != ""
        ${IfNot} ${FileExists} "$SMPROGRAMS\Wavorin.lnk"
            !insertmacro UnselectSection ${menuPart}
        ${EndIf}
        ReadRegStr $0 SHCTX "Software\Classes\${KIND}" ""
        ${If} $0 == ""
            !insertmacro UnselectSection ${kindPart}
        ${EndIf}
    ${EndIf}
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/NoAssociation" $1
    ${IfNot} ${Errors}
        !insertmacro UnselectSection ${kindPart}
    ${EndIf}
FunctionEnd

Function un.onInit
    SetRegView 64
    !insertmacro MULTIUSER_UNINIT
    !insertmacro MUI_UNGETLANGUAGE
FunctionEnd

; What the user has set stays, and what lies in the folder beside what was installed.
Section Uninstall
    Call un.waitForTheProgram
    !include "${REMOVAL}"
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Wavorin.lnk"
    DeleteRegKey SHCTX "Software\Classes\${KIND}"
    DeleteRegValue SHCTX "Software\Classes\.cfg\OpenWithProgids" "${KIND}"
    DeleteRegKey /ifempty SHCTX "Software\Classes\.cfg\OpenWithProgids"
    DeleteRegKey /ifempty SHCTX "Software\Classes\.cfg"
    DeleteRegKey SHCTX "${REMOVE_KEY}"
    DeleteRegKey SHCTX "${SETUP_KEY}"
    DeleteRegKey /ifempty SHCTX "Software\Norvale"
    SetShellVarContext current
    RMDir /r "$LOCALAPPDATA\Norvale\Wavorin\tmp"
    RMDir "$LOCALAPPDATA\Norvale\Wavorin"
    RMDir "$LOCALAPPDATA\Norvale"
    !insertmacro TellTheDesktop
SectionEnd
