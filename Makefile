# The commands for users. Each target first installs the packages that it needs (tools/setup), if it may.
.DEFAULT_GOAL := help
BUILD := build

.PHONY: help
help: ## list the targets
	@sed -n 's/^\([a-z-]*\):.*## \(.*\)/make \1\t\2/p' Makefile | expand -t 20

.PHONY: demo
demo: ## build, and run examples/tour.lua with the offline runtime
	tools/setup build
	cmake --preset release
	cmake --build --preset release
	$(BUILD)/release/bin/velora-play examples/tour.lua

.PHONY: test
test: ## build and run all tests: on Linux, as Windows programs under Wine, packages, site, threads, a short fuzz run
	tools/setup test
	cmake --preset sanitize
	cmake --build --preset sanitize
	ctest --preset sanitize
	cmake --preset lua-checks
	cmake --build --preset lua-checks --target velora_tests
	ctest --preset lua-checks
	cmake --preset windows
	cmake --build --preset windows
	tools/wine_run ctest --preset windows
	$(MAKE) package
	tests/package/check $(BUILD)/package/*64.tar.gz $(BUILD)/release
	tools/wine_run tests/package/check $(BUILD)/package/*64.zip $(BUILD)/windows
	tests/package/consume $(BUILD)/release
	tools/setup browser
	tests/site/check $(BUILD)/site
	$(MAKE) threads
	$(MAKE) fuzz SECONDS=15

.PHONY: windows
windows: ## build for 64-bit Windows: the module's DLL, the offline runtime, the player and the tests
	tools/setup windows
	cmake --preset windows
	cmake --build --preset windows

# Microsoft's standard library: its headers and sources.
STL := ../shared/visual-cpp/stl
.PHONY: visual-cpp
visual-cpp: ## build for Visual C++'s ABI with Clang and run all tests under Wine; STL=FOLDER of microsoft/STL
	cmake/visual_cpp/make_sysroot $(BUILD)/visual-cpp-sysroot "$(STL)"
	cmake --preset visual-cpp
	cmake --build --preset visual-cpp
	tools/wine_run ctest --preset visual-cpp
	set -- $(BUILD)/package/*64.zip; if [ -e "$$1" ]; then \
	  tools/wine_run tests/package/check_visual_cpp "$$1" $(BUILD)/visual-cpp $(BUILD)/visual-cpp-sysroot; \
	else echo "no host is built against the Windows package: make package has not run"; fi

.PHONY: package
package: ## write the packages and their symbols, for Linux and for 64-bit Windows, to build/package
	tools/setup package
	rm -rf $(BUILD)/package
	$(MAKE) site
	cmake --preset release
	cmake --build --preset release
	cpack --preset release
	cpack --preset release-symbols
	cmake --preset windows
	cmake --build --preset windows --target LuaVelora velora-play
	cpack --preset windows
	cpack --preset windows-symbols
	rm -rf $(BUILD)/package/_CPack_Packages

.PHONY: site
site: ## write the documents as web pages, which need no server, to build/site
	tools/setup site
	mkdocs build --strict --quiet

.PHONY: threads
threads: ## run the thread tests with the thread sanitizer
	tools/setup test
	cmake --preset thread
	cmake --build --preset thread --target velora_thread_tests
	$(BUILD)/thread/bin/velora_thread_tests

# The fuzzer starts from inputs that call every function and keeps its corpus in the build folder.
SECONDS := 60
.PHONY: fuzz
fuzz: ## run the fuzzer for SECONDS=60
	tools/setup fuzz
	cmake --preset fuzz
	cmake --build --preset fuzz --target velora_fuzz
	mkdir -p $(BUILD)/fuzz/corpus $(BUILD)/fuzz/first
	lua5.3 tests/fuzz/first_inputs.lua $(BUILD)/fuzz/first
	$(BUILD)/fuzz/bin/velora_fuzz -max_total_time=$(SECONDS) -max_len=2048 -timeout=30 -rss_limit_mb=4096 \
	  -artifact_prefix=$(BUILD)/fuzz/ -print_final_stats=1 $(BUILD)/fuzz/corpus $(BUILD)/fuzz/first

.PHONY: coverage
coverage: ## measure which lines of the module the tests execute
	tools/setup coverage
	cmake --preset coverage
	cmake --build --preset coverage --target velora_tests
	$(BUILD)/coverage/bin/velora_tests --gtest_brief=1
	gcovr --root . --filter '(binding|records|events|wrappers|constants|download|module)/' --exclude-throw-branches \
	  --print-summary --html-details $(BUILD)/coverage/index.html $(BUILD)/coverage

# Uses Debian's Python, since Debian's matplotlib is installed.
.PHONY: bench
bench: ## compare the module with hand-written bindings, and write table and chart to docs/
	tools/setup bench
	cmake --preset bench
	cmake --build --preset bench --target velora_bench
	/usr/bin/python3 bench/report.py $(BUILD)/bench/bin/velora_bench $(BUILD)/bench docs

.PHONY: reference
reference: ## write docs/reference/ from the annotations in types/
	tools/setup test
	tools/make_reference

# Returns the files in the repository that match. An error if there are none.
sources = $(or $(shell git ls-files $(1)),$(error git lists no sources))

.PHONY: format format-check
format: ## format the sources with clang-format
	tools/setup test
	clang-format -i $(call sources,'*.c' '*.cpp' '*.h')
format-check: ## fail if clang-format would change a source
	tools/setup test
	clang-format --dry-run --Werror $(call sources,'*.c' '*.cpp' '*.h')

# Checks the sources of the module, the offline runtime and the player, with the headers that they include.
# -fno-caret-diagnostics keeps clang from printing the number of suppressed warnings in system headers.
.PHONY: lint
lint: ## run clang-tidy on the sources, with the checks in .clang-tidy
	tools/setup lint
	cmake --preset lint
	printf '%s\n' $(call sources,'*.cpp' ':!bench' ':!cmake' ':!examples' ':!tests') | \
	  xargs -P $$(nproc) -n 1 clang-tidy -p $(BUILD)/lint --quiet --extra-arg=-fno-caret-diagnostics

.PHONY: clean
clean: ## remove the build folder
	rm -rf $(BUILD)
