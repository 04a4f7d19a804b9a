#!/bin/sh
# Drives the planetarium on an X display as a person would, with xdotool, and writes what it
# saw to facts.txt, one "name=value" a line, for DriveProgramTest to judge. Every wait polls
# with a limit, so that a loaded machine is waited for and a broken program does not hang.
#   drive-program.sh PROGRAM
app=$1
: > facts.txt
fact() { echo "$1=$2" >> facts.txt; }

# Waits until a visible window of that exact name exists (or, with "gone", does not); 1 when
# the limit of tenths of a second passed first.
wait_window() {
    i=0
    while [ $i -lt "${3:-150}" ]; do
        if names | grep -qxF "$1"; then
            [ "$2" = shown ] && return 0
        else
            [ "$2" = gone ] && return 0
        fi
        sleep 0.1
        i=$((i + 1))
    done
    return 1
}
# The names of the windows shown, one a line.
names() { xwininfo -root -children | sed -n 's/^ *0x[0-9a-f]* "\(.*\)": .*/\1/p' | sort -u; }
# The size of the planetarium's window, as WxH.
size() { xwininfo -root -children | sed -n 's/.*"Orbiscope": .* \([0-9]*x[0-9]*\)+.*/\1/p'; }
shot() { xwd -root -silent | convert xwd:- "png:$1"; }
# The number of pixels of a picture's area that are light grey, as a menu is.
menu_pixels() {
    convert "$1" -crop "$2" +repage -fill black +opaque 'rgb(245,245,245)' -fill white \
        -opaque 'rgb(245,245,245)' -format '%[fx:round(mean*w*h)]' info:
}
# Differing pixels of the map's area in two pictures.
map_difference() {
    compare -metric AE -fuzz 10% "$1" "$2" -crop 1000x700+10+40 null: 2>&1 | cut -d' ' -f1
}
# Waits until the map is drawn: the red status line shows at the top of the map.
wait_map() {
    i=0
    while [ $i -lt 40 ]; do
        shot map.png
        red=$(convert map.png -crop 900x12+2+31 +repage -fill black +opaque red -fill white \
            -opaque red -format '%[fx:round(mean*w*h)]' info:)
        [ "$red" -gt 50 ] && return 0
        sleep 0.5
        i=$((i + 1))
    done
    return 1
}
# Presses keys on the window that has the keyboard, the pointer resting on the map.
keys() { xdotool mousemove 500 400 key --delay 50 "$@"; }
# A key that opens a dialog: the dialog's name when it opened, then Escape closes it.
dialog_of() {
    before=$(names)
    keys "$1"
    i=0
    name=
    while [ $i -lt 50 ] && [ -z "$name" ]; do
        sleep 0.1
        name=$(names | grep -vxF "$before" | head -1)
        i=$((i + 1))
    done
    fact "$1" "$name"
    [ -n "$name" ] && keys Escape && wait_window "$name" gone 50
}

# The first start asks for the place.
"$app" > app-out-1.txt 2> app-err-1.txt &
pid=$!
if wait_window 'Set Location' shown 300; then fact first-start-asks 1; else fact first-start-asks 0; fi
# The first city of the list, clicked, fills in its place; Enter gives OK, and Enter again
# answers yes to the question about the computer's time zone. A click that came too early,
# before the list was ready, shows a message about the latitude, which Enter closes for another
# try.
i=0
while [ $i -lt 10 ] && names | grep -qxF 'Set Location'; do
    sleep 1
    xdotool mousemove 300 309
    sleep 0.3
    xdotool click 1
    sleep 0.5
    xdotool key Return
    sleep 1
    xdotool key Return
    wait_window 'Set Location' gone 20
    i=$((i + 1))
done
wait_map || fact map-drawn 0

# What the window tells a window manager: a normal window, at least 480 by 360.
window_id=$(xwininfo -root -children | sed -n 's/^ *\(0x[0-9a-f]*\) "Orbiscope":.*/\1/p' | head -1)
fact hints "$(xprop -id "$window_id" _NET_WM_WINDOW_TYPE WM_TRANSIENT_FOR WM_NORMAL_HINTS | tr '\n\t' '  ')"

for key in ctrl+t ctrl+l ctrl+g ctrl+p; do dialog_of $key; done

# The menu button opens the fly-out menu, Escape closes it.
width=$(size | cut -dx -f1)
xdotool mousemove $((width - 30)) 15 click 1
sleep 1
shot menu.png
fact menu-open "$(menu_pixels menu.png 180x300+$((width - 200))+32)"
keys Escape
sleep 0.5
shot menu-closed.png
fact menu-closed "$(menu_pixels menu-closed.png 180x300+$((width - 200))+32)"

# A band dragged over the map zooms in; the wheel zooms out again.
shot before-zoom.png
xdotool mousemove 400 300 mousedown 1 mousemove 450 340 mousemove 500 380 mouseup 1
sleep 1.5
shot zoomed-in.png
xdotool mousemove 500 400 click 5 click 5
sleep 1.5
shot zoomed-out.png
fact zoom-in-changed "$(map_difference before-zoom.png zoomed-in.png)"
fact wheel-changed "$(map_difference zoomed-in.png zoomed-out.png)"

# F11 fills the screen and gives the window back.
keys F11
sleep 1.5
fact full-screen "$(size)"
keys F11
sleep 1.5
fact window "$(size)"

# Ctrl+B keeps a bookmark of this view.
wait_map
keys ctrl+b
sleep 1
shot bookmarked.png
kill -TERM $pid
wait $pid
fact exit-1 $?

# The second start opens at the place without asking; the bookmark brings its view back.
"$app" > app-out-2.txt 2> app-err-2.txt &
pid=$!
wait_window Orbiscope shown 300
wait_map || fact map-drawn 0
if wait_window 'Set Location' shown 20; then fact second-start-asks 1; else fact second-start-asks 0; fi
shot second-start.png
fact start-differs "$(map_difference bookmarked.png second-start.png)"
# F10 opens the menu; from its foot Up passes Quit and Help to Bookmarks, Right opens the
# list of bookmarks and Enter opens the first.
keys F10
sleep 1
keys Up Up Up Right
sleep 0.5
keys Return
sleep 1.5
wait_map
shot restored.png
fact restored-differs "$(map_difference bookmarked.png restored.png)"
kill -TERM $pid
wait $pid
fact exit-2 $?

# Without the star files the window says which is missing and where it was looked for, and
# the program ends when the message is closed.
mkdir -p empty-data
ORBISCOPE_DATA="$PWD/empty-data" "$app" > app-out-3.txt 2> app-err-3.txt &
pid=$!
wait_window Orbiscope shown 300
sleep 2
shot no-data.png
fact no-data-box "$(convert no-data.png -crop 400x300+440+360 +repage -fill black \
    +opaque 'rgb(240,240,240)' -fill white -opaque 'rgb(240,240,240)' \
    -format '%[fx:round(mean*w*h)]' info:)"
keys Return
i=0
while kill -0 $pid 2> /dev/null && [ $i -lt 100 ]; do sleep 0.1; i=$((i + 1)); done
kill -KILL $pid 2> /dev/null
wait $pid
fact exit-3 $?
