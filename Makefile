# Everyday commands. CMakePresets.json has the build settings.
PRESETS ?= release sanitize
COLOR ?= \#ff8000

PREFIX ?= /usr/local

SECONDS ?= 60
EVENTS ?= 1000000

.PHONY: run build test install deb test-deb bench endurance fuzz format check coverage screenshots clean

run: packages-build+run
	@cmake --preset release > /dev/null
	@cmake --build --preset release --target vantorel-panel vantorel
	@tools/run-panel "$(COLOR)"

build: packages-build+run
	@cmake --preset release > /dev/null
	@cmake --build --preset release

test: packages-build+run+test+dialogs
	@tools/run-tests $(PRESETS)

# DESTDIR=FOLDER installs below that folder, for building packages.
install: packages-build+run
	@cmake --preset release -DCMAKE_INSTALL_PREFIX="$(PREFIX)" -DVANTOREL_TESTS=OFF -DVANTOREL_BENCHMARKS=OFF > /dev/null
	@cmake --build --preset release
	@DESTDIR="$(DESTDIR)" cmake --install build/release --strip

deb: packages-build+package
	@tools/make-deb

test-deb: packages-build+package+systems
	@tests/package/deb-test

bench: packages-build+run+test
	@cmake --preset release -DVANTOREL_BENCHMARKS=ON > /dev/null
	@cmake --build --preset release
	@tools/run-benchmarks
	@tools/bench-programs

format: packages-check
	@tools/format

check: packages-build+run+test+dialogs+check
	@tools/run-checks

coverage: packages-build+run+test+dialogs+check
	@tools/run-coverage

fuzz: packages-build+run+check
	@cmake --preset fuzz > /dev/null
	@cmake --build --preset fuzz
	@tools/run-fuzzers $(SECONDS)

endurance: packages-build+run+test
	@cmake --preset release -DVANTOREL_TESTS=ON > /dev/null
	@cmake --build --preset release
	@cmake --preset sanitize > /dev/null
	@cmake --build --preset sanitize --target endurance-test endurance-qt-test
	@tools/run-endurance $(EVENTS)

screenshots: packages-build+run+test
	@cmake --preset release -DVANTOREL_TESTS=ON > /dev/null
	@cmake --build --preset release
	@tools/make-screenshots

# packages-SECTION+SECTION... installs the missing packages of these sections of tools/packages.txt.
packages-%:
	@tools/install-packages $(subst +, ,$*)

clean:
	rm -rf build
