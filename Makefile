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
test: ## build and run every test
	tools/setup test
	cmake --preset sanitize
	cmake --build --preset sanitize
	ctest --preset sanitize

.PHONY: format format-check
format: ## lay the sources out with clang-format
	tools/setup test
	git ls-files '*.cpp' '*.h' | xargs clang-format -i
format-check: ## fail where clang-format would change something
	tools/setup test
	git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

.PHONY: clean
clean: ## remove everything that was built
	rm -rf $(BUILD)
