# What a newcomer types. Each target installs what it needs first (scripts/setup) and says what it does.
MAKEFLAGS += --no-print-directory
RELEASE := build/windows-release
BIN := $(RELEASE)/bin
JOBS ?= $(shell nproc)

.PHONY: help setup setup-lint build build-native demo test test-native test-windows test-e2e lint bench clean

help:
	@echo "make demo   build the demo application and show it (or write build/demo.png where there is no display)"
	@echo "make test   build everything and run every test (test-native, test-windows, test-e2e: a part of them)"
	@echo "make lint   formatting, layers, link edges, headers, exports, spelling; scripts/lint tidy is the static analysis"
	@echo "make bench  measure, each figure beside its floor"
	@echo "make build  build only; the programs lie in $(BIN)"

setup:
	@scripts/setup

setup-lint:
	@scripts/setup --lint

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

lint: setup-lint
	@scripts/lint

bench: setup
	@scripts/run-bench

clean:
	rm -rf build
