# The two commands for everyone are `make start` and `make test`; the others are their parts.

.PHONY: start test gcc pruefung windows bau-gcc bau-pruefung bau-windows abnahme demo bilder bauen einrichten windows-qt windows-test windows-paket bench ausfall format paket freigabe

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

# Every test: GCC, Clang with the sanitizers, then what runs on Windows without windows. While the tests of one run, the
# next is compiled; beside the tests with real windows, which wait for what they see, with what they leave of the processors.
test:
	$(MAKE) --jobs=2 NACHEINANDER=1 gcc pruefung windows

gcc: bau-gcc
	ctest --preset test

pruefung: bau-pruefung
	ctest --preset prüfung

# Everything without windows, cross-built and run by wine.
windows: bau-windows
	ctest --preset windows

bau-gcc: einrichten
	cmake --preset test
	cmake --build --preset test

bau-pruefung: einrichten
	cmake --preset prüfung
	nice -n 19 cmake --build --preset prüfung

bau-windows: einrichten
	cmake --preset windows
	cmake --build --preset windows

ifdef NACHEINANDER
bau-pruefung: bau-gcc
bau-windows: bau-pruefung gcc
pruefung: gcc
endif

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
