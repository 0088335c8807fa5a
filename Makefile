# The commands of every day. Each installs what is missing (scripts/dependances) and builds what it needs.
#
#   make run                  build, lay out the folder TALOR/ and open the program there;
#                             without a display, play the demonstration instead
#   make demo                 play the demonstration into out/; with a display, leave the program open on it
#   make test                 build and run all tests; with CI=true, then all of "make verifications"
#   make verifications        what must also pass: the format, clang-tidy on what changed, the sanitizers
#   make asan                 the tests under the address and undefined-behaviour sanitizers
#   make bench                measure the program beside the same work written straight on SQLite and QPainter
#   make torture              kill the postings MORTS times, cut the current COUPURES times, fail every call of every
#                             action, then fuzz each file that the program reads for DUREE seconds
#   make fuzz                 the last of these alone; CIBLES="modele requete" for some of them
#   make install DEST=dossier lay out a folder that runs by itself
#   make package              make in paquets/ a .deb for a whole machine and a .tar.gz of that folder;
#                             REVISION=2 for the next one to give out

.PHONY: run demo test verifications asan bench torture fuzz install package format style tidy clean dependances build
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
	$(if $(CI),$(MAKE) verifications)

verifications: style tidy asan

asan: dependances
	cmake --preset asan
	cmake --build --preset asan
	ctest --preset asan

bench:
	@scripts/dependances libbenchmark-dev
	cmake --preset release -DTALOR_BENCH=ON
	cmake --build --preset release --target talor_bench
	build/release/bench/talor_bench

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

package: dependances
	cmake --preset release -DTALOR_REVISION=$(or $(REVISION),1)
	cmake --build --preset release --target livraison
	cmake -E rm -rf paquets
	cd build/release && cpack
	cmake -E rm -rf paquets/_CPack_Packages
	@ls -1 paquets/*

build: dependances
	cmake --preset release
	cmake --build --preset release --target livraison talor_demo

dependances:
	@scripts/dependances

format:
	@scripts/dependances clang-format
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

style:
	@scripts/dependances clang-format
	git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

# The sources of the last commits; BASE=revision for all since then. Nothing is built: clang does not read GCC's
# precompiled headers.
tidy: dependances
	@scripts/dependances clang-tidy
	cmake --preset tidy
	scripts/fichiers_changes | xargs -r -P 2 -n 4 \
		clang-tidy -p build/tidy --quiet --extra-arg=-Wno-unknown-warning-option

clean:
	rm -rf build out paquets
