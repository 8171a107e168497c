#!/usr/bin/env bash
# Operates the dashboard in a real window with the mouse and the keyboard, under X11 with a window
# manager and under Wayland. Saves a picture of each step:
#
#     tests/windows/drive.sh BUILD-FOLDER PICTURE-FOLDER
#
# The script checks the result of each step through the accessibility bus. Qt 5 does not support
# screen readers under Wayland, so the script checks the log instead. Requires openbox, xdotool,
# weston and qtwayland5. The script uses its own X server, buses, home directory and network, so
# that it does not affect your session.
set -eu
sources=$(cd "$(dirname "$0")" && pwd)
build=$(cd "$1" && pwd)
mkdir -p "$2"
pictures=$(cd "$2" && pwd)
accessible=$build/tests/bin/accessible
program=$build/bin/ussd-dashboard

for name in openbox xdotool weston; do
    command -v $name >/dev/null || {
        echo "$0: $name is not installed" >&2
        exit 1
    }
done
[ -n "${USSD_ACCESSIBILITY_BUS:-}" ] || exec "$accessible" desktop "$0" "$build" "$pictures"

number=0
pid=
export LANGUAGE=en LC_ALL=C.UTF-8
unset TKSV_BACKEND TKSV_SCENARIO USSD_PLUGIN_LIBRARY_PATH
export DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus

at_end()
{
    [ -z "$pid" ] || kill "$pid" 2>/dev/null || true
    kill $(jobs -p) 2>/dev/null || true
}
trap at_end EXIT

say() { printf '== %s\n' "$*"; }
wait_for() { "$accessible" wait "$1"; }
gone() { "$accessible" gone "$1"; }
reads() { "$accessible" read "$1"; }
key() { xdotool key --clearmodifiers "$@"; }
type_text() { xdotool type --delay 20 "$1"; }

click()
{
    local place
    place=$("$accessible" at "$1")
    xdotool mousemove ${place% *} ${place#* } click 1
}

picture()
{
    number=$((number + 1))
    "$accessible" picture "$pictures/$(printf '%02d' $number)-$1.png"
}

start()
{
    "$program" --verbose "$@" >>"$pictures/program.log" 2>&1 &
    pid=$!
    xdotool search --sync --onlyvisible --pid $pid >/dev/null
}

resize()
{
    local window
    window=$(xdotool search --onlyvisible --pid "$pid" | tail -1)
    xdotool windowsize --sync "$window" "$1" "$2"
}

# Presses the key that quits the program, and checks the program's exit status.
quit()
{
    key ctrl+q
    wait "$pid"
    pid=
}

first_run()
{
    say 'first run'
    start
    wait_for '^label "Welcome"'
    picture first-run
    click 'push button "Try the demonstration instead"'
    wait_for '^alert message "Demonstration"'
    wait_for '^page tab "Home" \[selected\]'
    picture demonstration
    quit
}

# Starts a second instance, which must not ignore its options silently.
a_second_start()
{
    say 'a second start'
    local status=0
    "$program" >>"$pictures/program.log" 2>&1
    "$program" --language de >>"$pictures/program.log" 2>&1 || status=$?
    [ $status = 1 ]
    wait_for '^page tab "Home" \[selected\]'
}

a_code()
{
    say 'a code'
    key ctrl+l
    wait_for '^page tab "Codes" \[selected\]'
    wait_for '^status bar "Ready"'
    picture codes
    type_text '*100#'
    key Return
    reads 'Your balance is 12\.50 EUR'
    wait_for '^status bar "Ready"'
    picture code-answered
}

a_menu()
{
    say 'a menu of three steps'
    click '^push button "Main menu"'
    click '^push button "2, Data packs"'
    click '^push button "1, Day: '
    picture menu
    click '^push button "1, Buy"'
    reads 'Day pack booked\. Your balance is 11\.50 EUR'
    wait_for '^status bar "Ready"'
}

a_cancel()
{
    say 'cancel'
    click '^push button "Data left"'
    wait_for '^status bar "Waiting for the reply'
    wait_for '^push button "Cancel"'
    picture waiting
    click '^push button "Cancel"'
    wait_for '^status bar "Cancelled"'
    picture cancelled
}

a_failure()
{
    say 'a failure'
    click '^push button "Validity"'
    wait_for '^status bar ".*was refused"'
    picture failed
    click '^push button "Dismiss"'
    wait_for '^status bar "Ready"'
}

a_question()
{
    say 'a question of the network behind the account window'
    start --language en --scenario "$sources/question.scenario"
    click '^push button "Top up"'
    wait_for '^dialog'
    picture account-window
    click '^push button "1, Yes"'
    gone '^push button "1, Yes"'
    picture question-answered
    key Escape
    key ctrl+l
    reads 'Booked'
    quit
}

dark_and_arabic()
{
    say 'dark, Arabic, 360 pixels'
    key ctrl+comma
    click '^check box "Dark"'
    picture dark-settings
    key ctrl+1
    wait_for '^page tab "Home" \[selected\]'
    picture dark-home
    key ctrl+comma
    click '^button menu "Language,'
    key Up Up Return # Qt 5 hides popups from screen readers; Arabic is the second last item
    wait_for '^page tab "الإعدادات"'
    key ctrl+1
    picture arabic-dark
    resize 360 640
    gone '^page tab "الإعدادات"'
    picture arabic-narrow
    key ctrl+2
    wait_for '^status bar'
    picture arabic-narrow-codes
}

large_letters()
{
    say 'letters twice as large'
    start --demo --language en
    wait_for '^page tab "Home" \[selected\]'
    resize 1120 720
    key ctrl+comma
    click '^check box "Light"'
    click '^check box "200.%"'
    quit
    start --demo --language en
    resize 1120 720
    wait_for '^page tab "Home" \[selected\]'
    picture large-home
    key ctrl+2
    wait_for '^status bar'
    picture large-codes
    quit
}

# start_in_wayland BACKEND SOCKET: starts weston with this backend and this Wayland socket, runs the
# program in it, and waits until the program has received a response.
start_in_wayland()
{
    printf '[shell]\npanel-position=none\n' >"$HOME/weston.ini"
    weston --config="$HOME/weston.ini" --backend="$1" --width=1300 --height=850 --socket="$2" \
        --idle-time=0 >"$pictures/$2.log" 2>&1 &
    compositor=$!
    until_logged "$2.log" 'launching'
    QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=$2 "$program" --language en --verbose \
        --scenario "$sources/drive.scenario" >"$pictures/$2-program.log" 2>&1 &
    pid=$!
    until_logged "$2-program.log" 'received response'
}

until_logged()
{
    local tries=0
    until grep -q "$2" "$pictures/$1" 2>/dev/null; do
        tries=$((tries + 1))
        [ $tries -lt 150 ] || {
            echo "$0: $1 lacks: $2" >&2
            exit 1
        }
        sleep 0.1
    done
}

# Sends a code from the program in a nested compositor. The script uses only the keyboard, because
# the new window of the compositor has the keyboard focus. Also starts the program in a compositor
# without input devices.
wayland()
{
    say 'Wayland'
    start_in_wayland x11-backend.so nested
    picture wayland
    key ctrl+l
    type_text '*102#'
    key Return
    until_logged nested-program.log 'Your number is'
    picture wayland-code
    key ctrl+q
    wait "$pid"
    kill $compositor
    say 'Wayland without input'
    start_in_wayland headless-backend.so headless
    kill "$pid"
    wait "$pid" || [ $? -eq 143 ]
    pid=
    kill $compositor
}

rm -f "$pictures"/program.log
openbox &
first_run
start --scenario "$sources/drive.scenario"
a_second_start
a_code
a_menu
a_cancel
a_failure
dark_and_arabic
quit
a_question
large_letters
wayland
say "all steps done; $number pictures in $pictures"
