# The two everyday commands: `make demo` and `make test`. Each installs any
# missing Debian package first, then configures and builds with CMake.

PACKAGES := cmake make g++ pkg-config libxerces-c-dev libgtest-dev libgmock-dev libbenchmark-dev
JOBS ?= 2
BUILD := build
ASAN_BUILD := build-asan

.PHONY: all deps build build-asan demo test clean bench fuzz

all: build

deps:
	@missing=""; \
	for p in $(PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q 'install ok installed' || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  SUDO=""; [ "$$(id -u)" -ne 0 ] && SUDO=sudo; \
	  $$SUDO apt-get update && DEBIAN_FRONTEND=noninteractive $$SUDO apt-get install -y $$missing; \
	fi

build: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build $(BUILD) -j$(JOBS)

build-asan: deps
	cmake -S . -B $(ASAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DZUNDO_SANITIZE=ON
	cmake --build $(ASAN_BUILD) -j$(JOBS)

demo: build
	./$(BUILD)/tools/zundo --version
	./$(BUILD)/tools/zundo dump examples/brochure.jdf
	./$(BUILD)/tools/zundo convert examples/brochure.jdf $(BUILD)/brochure-converted.jdf
	@echo "converted ticket written to $(BUILD)/brochure-converted.jdf"

test: build build-asan
	cd $(BUILD) && ctest --output-on-failure -j$(JOBS)
	cd $(ASAN_BUILD) && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
	  UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 ctest --output-on-failure -j$(JOBS)

clean:
	rm -rf $(BUILD) $(ASAN_BUILD)

# Speed and robustness instruments, not part of `make test`.
BENCH_BUILD := build-bench
FUZZ_BUILD := build-fuzz
FUZZ_SECONDS ?= 300
FUZZ_PACKAGES := clang libclang-rt-14-dev lld

# Read and write times against the Xerces-C floor, ending with a table.
bench: deps
	cmake -S . -B $(BENCH_BUILD) -DCMAKE_BUILD_TYPE=Release -DZUNDO_BUILD_TESTS=OFF -DZUNDO_BUILD_BENCH=ON
	cmake --build $(BENCH_BUILD) -j$(JOBS) --target zundo_bench
	./$(BENCH_BUILD)/bench/zundo_bench $(BENCH_ARGS)

# Each libFuzzer target for FUZZ_SECONDS; findings stay in $(FUZZ_BUILD)/crashes.
fuzz:
	$(MAKE) deps PACKAGES="cmake make pkg-config libxerces-c-dev $(FUZZ_PACKAGES)"
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DZUNDO_BUILD_TESTS=OFF -DZUNDO_SANITIZE=ON -DZUNDO_FUZZ=ON
	cmake --build $(FUZZ_BUILD) -j$(JOBS) --target zundo_fuzz_ticket zundo_fuzz_value_text
	fuzz/run_fuzzers.sh $(FUZZ_BUILD) $(FUZZ_SECONDS)
