# What a newcomer types. Each target installs what it needs first (scripts/setup) and says what it does.
MAKEFLAGS += --no-print-directory
RELEASE := build/windows-release
BIN := $(RELEASE)/bin
FUZZ_SECONDS ?= 60
JOBS ?= $(shell nproc)

.PHONY: install package docs help setup setup-lint setup-fuzz build build-native demo test test-native test-windows test-e2e lint bench fuzz clean

help:
	@echo "make demo   build the demo application and show it (or write build/demo.png where there is no display)"
	@echo "make test   build everything and run every test (test-native, test-windows, test-e2e: a part of them)"
	@echo "make lint   formatting, layers, link edges, headers, exports, spelling, docs; scripts/lint tidy is the static analysis"
	@echo "make bench  measure, each figure beside its floor"
	@echo "make fuzz   inputs that mean nothing for readers, tables, encodings and barcheck (FUZZ_SECONDS=60 for each target)"
	@echo "make docs   guides and reference as pages that open in a browser (build/docs/index.html)"
	@echo "make install PREFIX=FOLDER   DLLs, import libraries, headers, CMake package, skins, documentation"
	@echo "make package   the same as a zip file, and one with the debug symbols"
	@echo "make build  build only; the programs lie in $(BIN)"

setup:
	@scripts/setup

setup-lint:
	@scripts/setup --lint

setup-fuzz:
	@scripts/setup --fuzz

build: setup
	@scripts/build windows-release
	@scripts/build native

demo: setup
	@scripts/build windows-release demo
	@scripts/run-demo

test: setup
	@scripts/run-tests

test-native: setup
	@scripts/run-tests native native-asan native-tsan

test-windows: setup
	@scripts/run-tests windows-release

test-e2e: setup
	@scripts/build windows-release
	@ctest --test-dir $(RELEASE) -L e2e --output-on-failure --no-tests=error

docs: setup-lint
	@scripts/make-docs

lint: setup-lint
	@scripts/lint

bench: setup
	@scripts/run-bench

fuzz: setup-fuzz
	@scripts/fuzz --seconds $(FUZZ_SECONDS)

install: setup
	@[ -n "$(PREFIX)" ] || { echo "usage: make install PREFIX=FOLDER" >&2; exit 2; }
	@scripts/build windows-release barwright barview barcheck package_files
	@cmake --install $(RELEASE) --prefix "$(PREFIX)" >build/install.log
	@echo "installed in $(PREFIX); see $(PREFIX)/share/doc/barwright/README.md"

package: setup
	@scripts/make-package

clean:
	rm -rf build
