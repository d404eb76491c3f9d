# Tindra's commands. `make test` is what CI runs on a fresh machine.
.PHONY: deps build test test-default test-asan fuzz-smoke run bench fuzz soak format tidy clean install package

FUZZ_SECONDS ?= 5
MINUTES ?= 60

deps:
	scripts/install-deps

build: deps
	cmake --preset default
	cmake --build --preset default

# The benchmarks are no test: `make test` leaves them out (about fifty seconds of compiling) and
# `make bench` puts them back.
test: deps
	cmake --preset default -DTINDRA_BUILD_BENCH=OFF
	cmake --build --preset default
	ctest --preset default
	cmake --preset asan
	cmake --build --preset asan
	ctest --preset asan
	cmake --preset fuzz
	cmake --build --preset fuzz
	scripts/fuzz-run $(FUZZ_SECONDS)

run: build
	scripts/run

# PREFIX=/usr/local by default; DESTDIR is honoured as usual.
install: build
	cmake --install build/default --prefix $(or $(PREFIX),/usr/local)

package: build
	cd build/default && cpack -G DEB

bench: deps
	cmake --preset default -DTINDRA_BUILD_BENCH=ON
	cmake --build --preset default
	scripts/bench

fuzz: deps
	cmake --preset fuzz
	cmake --build --preset fuzz
	scripts/fuzz-run $(or $(SECONDS),300)

# Tindra under churn for MINUTES minutes; results in build/soak/<UTC time>/.
soak: build
	scripts/soak --minutes $(MINUTES)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

tidy: build
	git ls-files 'core/*.cpp' | grep -v _test.cpp | xargs clang-tidy-19 -p build/default --quiet

clean:
	rm -rf build
