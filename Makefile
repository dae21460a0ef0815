# What people type. Each target installs what it needs first (tools/setup), where it may.
.DEFAULT_GOAL := help
BUILD := build

.PHONY: help
help: ## list the targets
	@sed -n 's/^\([a-z-]*\):.*## \(.*\)/make \1\t\2/p' Makefile | expand -t 20

.PHONY: demo
demo: ## build, and play examples/tour.lua against the offline runtime
	tools/setup build
	cmake --preset release
	cmake --build --preset release
	$(BUILD)/release/bin/velora-play examples/tour.lua

.PHONY: test
test: ## build and run every test: on Linux, as Windows programs under Wine, packages, site, threads, a short fuzz run
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
visual-cpp: ## build for Visual C++'s ABI with Clang and run every test under Wine; STL=FOLDER of microsoft/STL
	cmake/visual_cpp/make_sysroot $(BUILD)/visual-cpp-sysroot "$(STL)"
	cmake --preset visual-cpp
	cmake --build --preset visual-cpp
	tools/wine_run ctest --preset visual-cpp
	set -- $(BUILD)/package/*64.zip; if [ -e "$$1" ]; then \
	  tools/wine_run tests/package/check_visual_cpp "$$1" $(BUILD)/visual-cpp $(BUILD)/visual-cpp-sysroot; \
	else echo "no host is built against the Windows package: make package has not run"; fi

.PHONY: package
package: ## pack what a host needs, and the symbols, for Linux and for 64-bit Windows, into build/package
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
site: ## write the documents as web pages that need no server into build/site
	tools/setup site
	mkdocs build --strict --quiet

.PHONY: threads
threads: ## run the thread tests under the thread sanitizer
	tools/setup test
	cmake --preset thread
	cmake --build --preset thread --target velora_thread_tests
	$(BUILD)/thread/bin/velora_thread_tests

# The fuzzer starts from inputs that reach everything and keeps what it learns in the build folder.
SECONDS := 60
.PHONY: fuzz
fuzz: ## let the fuzzer look for trouble, SECONDS=60 long
	tools/setup fuzz
	cmake --preset fuzz
	cmake --build --preset fuzz --target velora_fuzz
	mkdir -p $(BUILD)/fuzz/corpus $(BUILD)/fuzz/first
	lua5.3 tests/fuzz/first_inputs.lua $(BUILD)/fuzz/first
	$(BUILD)/fuzz/bin/velora_fuzz -max_total_time=$(SECONDS) -max_len=2048 -timeout=30 -rss_limit_mb=4096 \
	  -artifact_prefix=$(BUILD)/fuzz/ -print_final_stats=1 $(BUILD)/fuzz/corpus $(BUILD)/fuzz/first

.PHONY: coverage
coverage: ## measure which lines of the module's folders the tests reach
	tools/setup coverage
	cmake --preset coverage
	cmake --build --preset coverage --target velora_tests
	$(BUILD)/coverage/bin/velora_tests --gtest_brief=1
	gcovr --root . --filter '(binding|records|events|wrappers|constants|download|module)/' --exclude-throw-branches \
	  --print-summary --html-details $(BUILD)/coverage/index.html $(BUILD)/coverage

# Debian's Python, for which Debian's matplotlib is installed.
.PHONY: bench
bench: ## measure the module against hand-written bindings, and chart it in docs/
	tools/setup bench
	cmake --preset bench
	cmake --build --preset bench --target velora_bench
	/usr/bin/python3 bench/report.py $(BUILD)/bench/bin/velora_bench $(BUILD)/bench docs

.PHONY: reference
reference: ## write the pages of docs/reference/ from the annotations in types/
	tools/setup test
	tools/make_reference

# The files in the repository that match, of which there must be some.
sources = $(or $(shell git ls-files $(1)),$(error git lists no sources))

.PHONY: format format-check
format: ## lay the sources out with clang-format
	tools/setup test
	clang-format -i $(call sources,'*.c' '*.cpp' '*.h')
format-check: ## fail where clang-format would change something
	tools/setup test
	clang-format --dry-run --Werror $(call sources,'*.c' '*.cpp' '*.h')

# Every source of the module, the offline runtime and the player, with the headers that they include.
# -fno-caret-diagnostics keeps clang from counting the warnings of system headers, which nobody sees.
.PHONY: lint
lint: ## let clang-tidy look for faults in the sources; .clang-tidy says which
	tools/setup lint
	cmake --preset lint
	printf '%s\n' $(call sources,'*.cpp' ':!bench' ':!cmake' ':!examples' ':!tests') | \
	  xargs -P $$(nproc) -n 1 clang-tidy -p $(BUILD)/lint --quiet --extra-arg=-fno-caret-diagnostics

.PHONY: clean
clean: ## remove everything that was built
	rm -rf $(BUILD)
