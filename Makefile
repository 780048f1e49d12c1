# The two commands for everyone are `make start` and `make test`; the others are their parts.

.PHONY: start test demo bilder bauen einrichten pruefung windows bench format

start: bauen
	werkzeug/starten.sh

# Everything optimised, without running anything; the programs lie in build/bin/.
bauen: einrichten
	cmake --preset freigabe
	cmake --build --preset freigabe

einrichten:
	werkzeug/einrichten.sh

# A made-up facility, and an episode's road played on it in the real windows; pictures in demo/.
demo: bauen
	werkzeug/vorfuehren.sh

# The pictures of the handbook, taken anew from the demonstration.
bilder: bauen
	werkzeug/handbuchbilder.sh

# Every test: GCC, then Clang with the sanitizers, then the logic for Windows.
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

windows: einrichten
	cmake --preset windows
	cmake --build --preset windows

bench: bauen
	werkzeug/messen.sh

format:
	git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format -i
