@echo off
rem Tests Quorl @PROJECT_VERSION@ on this machine and writes report.txt.
setlocal
cd /d "%~dp0"
echo This tests Quorl on your desktop. It takes about ten minutes. Meanwhile
echo  - windows appear, move off the screen and come back, yours as well;
echo  - the mouse moves and keys are pressed by themselves: do not touch either;
echo  - one window is placed beyond all displays, and you are asked to change a display.
echo The position of every window is recorded first, and restored at the end. If you
echo stop early, run "kit.exe restore positions.txt" in this folder. Settings stay in
echo this folder, in quorl.ini; nothing is installed. Save your work, and exit Quorl
echo if it runs.
set answer=
set /p answer=Type yes to start: 
if /i not "%answer%"=="yes" (
    echo Nothing was done.
    exit /b 1
)
kit.exe save positions.txt
if errorlevel 1 exit /b 1
rem A quorl.ini beside quorl.exe is the settings file, so the user's own is not touched.
type nul >quorl.ini
kit.exe facts >report.txt
kit.exe run contract_tests.exe >>report.txt
kit.exe run e2e_tests.exe >>report.txt
kit.exe restore positions.txt
kit.exe displays >>report.txt
kit.exe restore positions.txt
echo Done. The results are in report.txt; what else to look at is in real-windows.md.
