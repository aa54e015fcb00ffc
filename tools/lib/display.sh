# An X display for the test desktop. To be sourced after common.sh.
# shellcheck shell=bash

display_reachable() {
  [[ -n "${DISPLAY:-}" ]] && xprop -root _NET_SUPPORTED >/dev/null 2>&1
}

# wait_until SECONDS TEXT COMMAND…: repeats the command until it succeeds.
wait_until() {
  local limit=$((SECONDS + $1)) text="$2"
  shift 2
  until "$@" >/dev/null 2>&1; do
    ((SECONDS < limit)) || die "waited in vain: $text"
    sleep 0.05
  done
}

window_manager_runs() {
  [[ "$(xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null)" == *"window id"* ]]
}

# start_display WIDTHxHEIGHTxDEPTH: starts an X server and a window manager that end with this shell, however it ends.
start_display() {
  local number
  exec {display_pipe}< <(exec setpriv --pdeathsig TERM Xvfb -displayfd 1 -screen 0 "$1" -nolisten tcp -noreset 2>/dev/null)
  display_pid=$!
  read -r -t 30 number <&"$display_pipe" || die "no X server: is Xvfb installed?"
  export DISPLAY=":$number"
  unset XAUTHORITY
  # A second, smaller mode, for the tests that change the resolution.
  xrandr --newmode 1024x768 65 1024 1048 1184 1344 768 771 777 806 >/dev/null 2>&1 &&
    xrandr --addmode screen 1024x768 >/dev/null 2>&1 || true
  setpriv --pdeathsig TERM openbox --sm-disable --config-file "$repo/tools/lib/openbox.xml" >/dev/null 2>&1 &
  window_manager_pid=$!
  wait_until 30 "the window manager" window_manager_runs
}

stop_display() {
  kill "$window_manager_pid" "$display_pid" 2>/dev/null || true
  wait "$window_manager_pid" "$display_pid" 2>/dev/null || true
}
