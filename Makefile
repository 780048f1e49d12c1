# The two commands for everyone are `make start` and `make test`; the others are their parts.

.PHONY: start test abnahme demo bilder bauen einrichten pruefung windows windows-qt windows-test windows-paket bench ausfall format paket freigabe

# The program and nothing else; its folder is Tolvek7/.
start:
	werkzeug/einrichten.sh start
	cmake --preset start
	cmake --build --preset start
	werkzeug/starten.sh

# Everything optimised, without running anything; the programs lie in build/bin/.
bauen: einrichten
	cmake --preset freigabe
	cmake --build --preset freigabe

einrichten:
	werkzeug/einrichten.sh

# A made-up facility, and an episode's road played on it in the real windows; pictures in demo/.
demo: einrichten
	cmake --preset freigabe
	cmake --build --preset freigabe --target musterdaten vorfuehrung
	werkzeug/vorfuehren.sh

# The pictures of the handbook, taken anew from the demonstration.
bilder: bauen
	werkzeug/handbuchbilder.sh

# Every test: GCC, then Clang with the sanitizers, then what runs on Windows without windows.
test: einrichten
	cmake --preset entwicklung
	cmake --build --preset entwicklung
	ctest --preset entwicklung
	$(MAKE) pruefung
	$(MAKE) windows

pruefung: einrichten
	cmake --preset prüfung
	cmake --build --preset prüfung
	ctest --preset prüfung

# Everything without windows, cross-built and run by wine.
windows: einrichten
	cmake --preset windows
	cmake --build --preset windows
	ctest --preset windows

# The static Qt of the program for Windows, built once into a cache, and the build tree that uses it.
windows-qt: einrichten
	cmake --preset windows-paket -DTOLVEK_WINDOWS_QT="$$(werkzeug/windows_qt.sh)"

# The whole program for Windows, run by wine: its windows, its workbooks, its keys.
windows-test: windows-qt
	cmake --build --preset windows-test
	ctest --preset windows-test

# The archive for Windows, in bau/pakete/.
windows-paket: windows-qt
	paket/windows/packe.sh bau/windows-paket bau/pakete

# Writes the approved files, the guide's picture and the words of the scenarios anew, and shows what has changed.
abnahme: einrichten
	cmake --preset entwicklung
	cmake --build --preset entwicklung --target einheiten
	werkzeug/abnehmen.sh bau/entwicklung

# Every point at which the real process can be killed or refused something; `make test` takes a sample.
ausfall: einrichten
	cmake --preset entwicklung
	cmake --build --preset entwicklung --target ausfall
	TOLVEK_AUSFALL_SCHRITT=1 bau/entwicklung/bin/ausfall --gtest_brief=1

# The Debian package and the portable archive, in bau/pakete/.
paket: einrichten
	cmake --preset paket
	paket/packe.sh bau/paket bau/pakete

# Every test, then all packages of the commit, built twice and compared, and their checksums, in freigabe/.
freigabe: test windows-test paket windows-paket
	paket/gib_frei.sh

bench: bauen
	werkzeug/messen.sh

format:
	git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format -i
