# The commands of every day. Each installs what is missing (scripts/dependances) and builds what it needs.
#
#   make run                  build, lay out the folder TALOR/ and open the program there;
#                             without a display, play the demonstration instead
#   make demo                 play the demonstration into out/; with a display, leave the program open on it
#   make test                 build and run all tests
#   make asan                 the same under the address and undefined-behaviour sanitizers
#   make torture              kill the postings MORTS times, cut the current COUPURES times, fail every call of every
#                             action, then fuzz each file that the program reads for DUREE seconds
#   make fuzz                 the last of these alone; CIBLES="modele requete" for some of them
#   make install DEST=dossier lay out a folder that runs by itself

.PHONY: run demo test asan torture fuzz install format tidy clean dependances build
.DEFAULT_GOAL := run

DOSSIER ?= TALOR
ECRAN := $(or $(DISPLAY),$(WAYLAND_DISPLAY))

run: $(if $(ECRAN),installation-locale,demo)
	$(if $(ECRAN),$(DOSSIER)/talor)

.PHONY: installation-locale
installation-locale: build
	cmake --install build/release --prefix $(DOSSIER) >/dev/null

demo: build
	rm -rf out
	build/release/demo/talor_demo out $(if $(ECRAN),--ouvrir)

test: dependances
	cmake --preset release -DTALOR_TESTS=ON
	cmake --build --preset release
	ctest --preset release

asan: dependances
	cmake --preset asan
	cmake --build --preset asan
	ctest --preset asan

MORTS ?= 1000
COUPURES ?= 2000
DUREE ?= 60
CIBLES ?=

torture: dependances
	cmake --preset release -DTALOR_TESTS=ON
	cmake --build --preset release --target talor_torture
	build/release/tests/torture/talor_torture --morts $(MORTS) --coupures $(COUPURES) --pannes
	$(MAKE) fuzz

fuzz:
	@scripts/dependances clang libclang-rt-dev
	cmake --preset fuzz
	cmake --build --preset fuzz --target fuzz
	tests/fuzz/lancer $(DUREE) $(CIBLES)

install: build
	@test -n "$(DEST)" || { echo "make install DEST=dossier" >&2; exit 2; }
	cmake --install build/release --prefix "$(DEST)"

build: dependances
	cmake --preset release
	cmake --build --preset release --target livraison talor_demo

dependances:
	@scripts/dependances

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

tidy: dependances
	cmake --preset dev
	cmake --build --preset dev
	git ls-files 'src/*.cpp' 'demo/*.cpp' 'install/*.cpp' | xargs -P 2 -n 4 clang-tidy -p build/dev --quiet

clean:
	rm -rf build out
