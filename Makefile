# The everyday commands. What builds is CMake's business: see CMakePresets.json.
PRESETS ?= release sanitize
COLOR ?= \#ff8000

PREFIX ?= /usr/local

SECONDS ?= 60
EVENTS ?= 1000000

.PHONY: run build test install deb test-deb bench endurance fuzz format check coverage screenshots clean packages

run: build
	@tools/run-panel "$(COLOR)"

build: packages
	@cmake --preset release > /dev/null
	@cmake --build --preset release

test: packages
	@tools/run-tests $(PRESETS)

# DESTDIR=FOLDER installs below a folder, for a tree that goes elsewhere.
install: packages
	@cmake --preset release -DCMAKE_INSTALL_PREFIX="$(PREFIX)" > /dev/null
	@cmake --build --preset release --target vantorel-told vantorel-panel-told
	@DESTDIR="$(DESTDIR)" cmake --install build/release --strip

deb: packages
	@tools/make-deb

test-deb: deb
	@tests/package/deb-test build/deb

bench: build
	@tools/run-benchmarks
	@tools/bench-programs

format: packages
	@git ls-files '*.h' '*.cpp' | xargs clang-format -i

check: packages
	@tools/run-checks

coverage: packages
	@tools/run-coverage

fuzz: packages
	@cmake --preset fuzz > /dev/null
	@cmake --build --preset fuzz
	@tools/run-fuzzers $(SECONDS)

endurance: build
	@tools/run-endurance $(EVENTS)

screenshots: build
	@tools/make-screenshots

packages:
	@tools/install-packages

clean:
	rm -rf build
