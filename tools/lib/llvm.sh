# The version of the formatter and the linter. To be sourced after common.sh.
# shellcheck shell=bash

# The version in Debian 12. Other versions format sources differently and have other checks.
llvm_major=14

require_llvm() {
  local version
  version="$("$1" --version | grep -o -m1 'version [0-9]*' | head -n1)"
  if [[ "$version" != "version $llvm_major" ]]; then
    say "SKIPPED: $1 is ${version:-missing} here, and the sources are checked with version $llvm_major."
    exit 77
  fi
}
