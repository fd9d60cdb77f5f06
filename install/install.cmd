@echo off
rem Writes protk.dat, the registry file through which Creo finds the toolbox, for the
rem folder that this file lies in, puts shipped settings where there are none yet, and says
rem how to point Creo at it. Run it again after the folder was moved or renamed, and after a
rem newer version was unpacked over it.
rem
rem The shipped copy is GB2312 with CRLF: its Chinese bytes are never a character that the
rem command processor gives a meaning to, whatever code page the machine has.
rem protk.dat is written in the system's ANSI code page, as Creo reads files without a
rem byte order mark; UNICODE_ENCODING speaks of the narrow texts that the plug-in passes, which are
rem in that code page, too. Delayed expansion is on only where a path is echoed without quotes.
setlocal EnableExtensions DisableDelayedExpansion
set "here=%~dp0"
set "here=%here:~0,-1%"
set "dll=quillmax5.1C3.dll"
set "registry=%here%\protk.dat"

if not exist "%here%\%dll%" goto no_dll

if exist "%registry%" del /f /q "%registry%" 2>nul
if exist "%registry%" goto not_writable

rem Console output follows the OEM code page, which differs from the ANSI one in Europe.
set "ansi="
for /f "tokens=3" %%a in ('reg query HKLM\SYSTEM\CurrentControlSet\Control\Nls\CodePage /v ACP 2^>nul') do set "ansi=%%a"
if defined ansi chcp %ansi% >nul 2>nul

rem What is read back differs from the path when the code page cannot hold it.
set "probe=%here%\install.tmp"
setlocal EnableDelayedExpansion
> "!probe!" echo !here!
endlocal
if not exist "%probe%" goto not_writable
set "read_back="
< "%probe%" set /p "read_back="
del "%probe%"
if not "%read_back%"=="%here%" goto no_code_page

setlocal EnableDelayedExpansion
> "!registry!" echo NAME Quillmax
>> "!registry!" echo EXEC_FILE !here!\!dll!
>> "!registry!" echo TEXT_DIR !here!
>> "!registry!" echo STARTUP dll
>> "!registry!" echo UNICODE_ENCODING FALSE
>> "!registry!" echo ALLOW_STOP TRUE
>> "!registry!" echo DELAY_START FALSE
>> "!registry!" echo END
endlocal

if not exist "%registry%" goto not_writable

rem Settings that are there stay; those that are missing are copied from the shipped ones.
set "settings=%here%\QMconfig"
pushd "%settings%\defaults"
if errorlevel 1 goto no_settings
set "failed=yes"
for %%f in (*) do set "failed="
for %%f in (*) do if not exist "%settings%\%%f" copy "%%f" "%settings%\%%f" >nul 2>nul
for %%f in (*) do if not exist "%settings%\%%f" set "failed=yes"
popd
if defined failed goto no_settings

echo.
echo 羽石工具箱 5.1 C3 已登记：
echo Quillmax 5.1 C3 is registered in:
echo   "%registry%"
echo.
echo 下一步（任选其一），然后重新启动 Creo：
echo Next, do one of these and start Creo again:
echo.
echo   1. 在 config.pro 中加入一行：
echo      Add this line to config.pro:
setlocal EnableDelayedExpansion
echo        toolkit_registry_file !registry!
endlocal
echo.
echo   2. 将 protk.dat 复制到 Creo 的 text 文件夹。
echo      Copy protk.dat into the text folder of Creo.
echo.
call :hold
exit /b 0

:no_dll
echo 错误：本文件夹中没有 %dll%，未作任何修改。
echo   请将压缩包完整解压，再运行解压后文件夹中的 install.cmd。
echo Error: %dll% is not in this folder; nothing was changed.
echo   Unpack the whole zip file and run install.cmd in the unpacked folder.
echo   "%here%"
call :hold
exit /b 1

:not_writable
echo 错误：无法在本文件夹中写入 protk.dat。
echo   请将工具箱放到有写入权限的文件夹，或以管理员身份运行。
echo Error: protk.dat cannot be written in this folder.
echo   Move the toolbox to a folder you may write to, or run this as administrator.
echo   "%here%"
call :hold
exit /b 2

:no_settings
echo 错误：无法将 QMconfig\defaults 中的设置复制到 QMconfig。
echo   请检查该文件夹是否可写，再运行一次 install.cmd。
echo Error: the settings in QMconfig\defaults cannot be copied to QMconfig.
echo   See that the folder can be written to and run install.cmd again.
echo   "%here%"
call :hold
exit /b 4

:no_code_page
echo 错误：文件夹名称中有系统代码页无法表示的字符，未登记。
echo   请将工具箱移到名称只含英文字母的文件夹后再运行。
echo Error: the folder's name holds characters that the system's code page lacks.
echo   Move the toolbox to a folder with a plain name and run this again.
echo   "%here%"
call :hold
exit /b 3

rem A double click opens a window of its own (the command line then ends in two quotes and
rem a blank); keep it open to be read.
:hold
setlocal EnableDelayedExpansion
set "line=!cmdcmdline:"='!"
if "!line:~-3!"=="' '" pause
endlocal
exit /b 0
