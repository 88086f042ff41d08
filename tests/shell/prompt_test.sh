#!/usr/bin/env bash
# Drives the orrery prompt through a pseudo-terminal (tmux): results show, an
# error is reported and the session goes on, help answers, Tab completes a
# variable's name, a block or a function
# typed (or piped) over several lines runs once complete, each line reaches the
# history file as it is entered and two sessions both keep theirs, Ctrl-C stops a
# loop (even inside try) with its error on a line of its own and drops a
# half-typed line or block without ending the session, text typed or piped in
# keeps its UTF-8 characters, and `exit` ends it.
# Exits 77 (skipped) when tmux is not installed.
set -euo pipefail

orrery=${1:?usage: prompt_test.sh PATH-TO-ORRERY}
if ! command -v tmux >/dev/null 2>&1; then
  echo "tmux is not installed: skipping the prompt test"
  exit 77
fi

work=$(mktemp -d)
socket="orrery-prompt-$$"
cleanup() {
  tmux -L "$socket" kill-server >/dev/null 2>&1 || true
  rm -rf "$work"
}
trap cleanup EXIT

screen() { tmux -L "$socket" capture-pane -p -t prompt -S -100; }
# keys typed ahead of Ctrl-C may be flushed by the terminal: let each settle
ctrl_c() { tmux -L "$socket" send-keys -t prompt C-c; sleep 0.3; }
type_only() { tmux -L "$socket" send-keys -t prompt -l "$1"; }
send() { tmux -L "$socket" send-keys -t prompt -l "$1"; tmux -L "$socket" send-keys -t prompt Enter; }
wait_for() {
  for _ in $(seq 1 100); do
    if screen | grep -qF -- "$1"; then return 0; fi
    sleep 0.1
  done
  echo "FAIL: the screen never showed: $1"
  echo "---- screen ----"
  screen
  exit 1
}

piped=$(printf "disp(['<' '\xc3\xa9\xe6\x97\xa5' '>'])\n" | LC_ALL=C.UTF-8 "$orrery")
if [[ "$piped" != $'<\xc3\xa9\xe6\x97\xa5>' ]]; then
  echo "FAIL: piped text lost its characters: $piped"
  exit 1
fi

piped=$(printf 'function r = sq(v)\nr = v^2;\nend\ndisp(sq(3))\n' | "$orrery" 2>&1)
if [[ "$piped" != $'9\n' && "$piped" != '9' ]]; then
  echo "FAIL: a function piped in over several lines: $piped"
  exit 1
fi

tmux -L "$socket" -u -f /dev/null new-session -d -s prompt -x 120 -y 50 \
  "env HOME='$work' LC_ALL=C.UTF-8 '$orrery'; echo SESSION-ENDED status=\$?; sleep 60"

wait_for '>>'
send 'x = 41'
wait_for 'x = 41'
send 'undefinedName(1)'
wait_for "Error: 'undefinedName' is not a defined function or variable."
send 'y = x + 1'
wait_for 'y = 42'
send 'help lastwarn'
wait_for 'lastwarn: the message and identifier of the last warning'
send 'for k = 1:2'
send 'disp(k * 10)'
send 'end'
wait_for '20'
# libedit writes blanks in the history file as \040
if ! grep -qE 'y( |\\040)=( |\\040)x' "$work/.orrery_history"; then
  echo "FAIL: the history file does not hold the lines typed"
  exit 1
fi

send 'completeMe4711 = 4711;'
type_only 'disp(completeM'
tmux -L "$socket" send-keys -t prompt Tab
sleep 0.3
send ' + 1)'
wait_for '4712'

send 'function r = twice(v)'
wait_for '..'
send 'r = 2 * v;'
send 'end'
send 'disp(twice(50))'
wait_for '100'

# a second session at the same time: each keeps the other's lines
tmux -L "$socket" -u -f /dev/null new-session -d -s other -x 80 -y 10 \
  "env HOME='$work' LC_ALL=C.UTF-8 '$orrery'"
tmux -L "$socket" send-keys -t other -l 'fromOther = 7'
tmux -L "$socket" send-keys -t other Enter
sleep 0.5
send 'fromFirst = 8'
wait_for 'fromFirst = 8'
if ! grep -q 'fromOther' "$work/.orrery_history" || ! grep -q 'fromFirst' "$work/.orrery_history"; then
  echo "FAIL: a session overwrote the other's history"
  cat "$work/.orrery_history"
  exit 1
fi

send 'try, while true, end, catch, disp(99), end'
sleep 0.3
ctrl_c
wait_for 'Error: Interrupted'
if ! screen | grep -q '^Error: Interrupted'; then
  echo "FAIL: the interruption's error is not on a line of its own"
  screen
  exit 1
fi
type_only 'x = 1000'
wait_for '>> x = 1000'
ctrl_c
send 'for k = 1:2'
wait_for '..'
ctrl_c
send 'disp(x + 2)'
wait_for '43'
send "disp(['<' 'é日本' '>'])"
wait_for '<é日本>'
if screen | grep -qE '^(99|1000)$'; then
  echo "FAIL: try caught the interruption, or a dropped line ran"
  screen
  exit 1
fi
send 'exit'
wait_for 'SESSION-ENDED status=0'
echo "prompt test passed"
