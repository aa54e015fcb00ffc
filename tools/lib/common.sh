# Sourced by the scripts in tools/. Bash only.
# shellcheck shell=bash

set -euo pipefail

repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)"
cache="${VANTOR_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/vantor}"
log="$repo/build/setup.log"

# Some of the required programs are in folders that are only in root's path.
PATH="$PATH:/usr/sbin:/sbin"

say() { printf '%s\n' "$*" >&2; }

die() {
  say "$(basename "$0"): $*"
  exit 1
}

# step TEXT COMMAND… runs a long command and prints one line with its time; its output is shown only if it fails.
step() {
  local text="$1" began status=0
  shift
  mkdir -p "$(dirname "$log")"
  printf '  %s ... ' "$text" >&2
  began=$SECONDS
  printf '\n== %s\n' "$text" >>"$log"
  # A subshell of its own, because "set -e" does not reach into a function that stands before "||".
  set +e
  (
    set -e
    "$@"
  ) >>"$log" 2>&1 </dev/null
  status=$?
  set -e
  if ((status == 0)); then
    say "done, $((SECONDS - began)) s"
    return 0
  fi
  say "failed after $((SECONDS - began)) s; the end of $log:"
  tail -n 40 "$log" >&2
  return "$status"
}

# as_root COMMAND… uses sudo only if needed.
as_root() {
  if ((EUID == 0)); then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    die "needs root for: $* (no sudo here; run it as root once)"
  fi
}
