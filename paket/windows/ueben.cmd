@start "" "%~dp0tolvek7.exe" --muster
