#!/usr/bin/env bash
# random_hand.sh BUILD_FOLDER SECONDS [SEED]
#
# Presses keys and moves and clicks the mouse at random in the real window, on a display of its own
# with a window manager, and then ends the program. It fails when the program is gone before that,
# does not end when it is asked to, or leaves a working state that cannot be read.
set -euo pipefail

programs=$1/bin seconds=$2
RANDOM=${3:-1}
folder=$(mktemp -d)
cp -r "$1/share/zandrell" "$folder/data"
mkdir "$folder/account"
export DISPLAY=:$((90 + $$ % 900)) XDG_CONFIG_HOME=$folder/account
Xvfb "$DISPLAY" -screen 0 1280x900x24 >/dev/null 2>&1 &
display=$!
trap 'kill $display 2>/dev/null; rm -rf "$folder"' EXIT
sleep 1
openbox >/dev/null 2>&1 &
cd "$folder"
"$programs/zandrell" --data "$folder/data" >"$folder/said" 2>&1 &
program=$!
sleep 2

# Nothing that ends the program or leaves the window: those are tried elsewhere.
keys=(Tab Return Escape Left Right Up Down Page_Up Page_Down Home End Delete space 1 2 5 0 period minus
    F1 F3 F4 F5 F6 alt+e ctrl+1 ctrl+2 ctrl+3 ctrl+4 ctrl+z ctrl+y ctrl+Left ctrl+Up ctrl+o ctrl+s ctrl+n)
events=0
end=$((SECONDS + seconds))
while [ $SECONDS -lt $end ]; do
    acts=()
    for _ in $(seq 25); do
        case $((RANDOM % 6)) in
        0 | 1) acts+=(key "${keys[RANDOM % ${#keys[@]}]}") ;;
        2) acts+=(mousemove $((RANDOM % 1180 + 10)) $((RANDOM % 780 + 50)) click $((RANDOM % 5 + 1))) ;;
        3) acts+=(mousemove $((RANDOM % 1000)) $((RANDOM % 700 + 60)) mousedown 1
            mousemove $((RANDOM % 1000)) $((RANDOM % 700 + 60)) mouseup 1) ;;
        *) acts+=(mousemove $((RANDOM % 1100)) $((RANDOM % 800 + 60))) ;;
        esac
    done
    xdotool "${acts[@]}" >/dev/null 2>&1 || true
    events=$((events + ${#acts[@]}))
    kill -0 $program 2>/dev/null || {
        echo "The program is gone after $events events:" >&2
        cat "$folder/said" >&2
        exit 1
    }
done
kill -TERM $program
for _ in $(seq 100); do
    kill -0 $program 2>/dev/null || break
    sleep 0.1
done
! kill -0 $program 2>/dev/null || {
    echo "The program does not end." >&2
    kill -KILL $program
    exit 1
}
wait $program
echo 'dump ended' | "$programs/zandrell-calc" --data "$folder/data" form - | grep -q '"dialogs":\[\]'
echo "$events events in $seconds seconds; the program ended when it was asked to."
