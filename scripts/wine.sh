# Separate Windows desktops, each a virtual screen and a Wine prefix in build/: one display of 1024x768, and two.

# Prefix of commands that run in the environment that has Wine: empty for this system's own Wine, a chroot for the
# 32-bit one (x86.sh). The exit code of the command is passed on.
wine_env=()

# start_server COMMAND...: starts an X server on a free display. It ends with the script.
start_server() {
    local number=$LOGS/display wait=0
    : >"$number"
    "$@" -displayfd 3 -nolisten tcp 3>"$number" 2>"$LOGS/$1.log" &
    at_exit "kill $! 2>/dev/null; wait $! 2>/dev/null"
    until [ -s "$number" ]; do
        [ $((wait += 1)) -lt 300 ] || die "$1 did not start: $LOGS/$1.log"
        sleep 0.1
    done
    export DISPLAY=:$(cat "$number")
}

start_screen() { start_server Xvfb -screen 0 1024x768x24; }

# start_wine FOLDER: creates the Wine prefix in FOLDER, a path inside wine_env, and starts the desktop in it.
start_wine() {
    start_prefix "$1" use_virtual_desktop
    hold_desktop
}

# start_prefix FOLDER SETTINGS: creates the Wine prefix in FOLDER with the settings of that function.
start_prefix() {
    export WINEPREFIX=$1 WINEDEBUG=${WINEDEBUG:--all}
    # Do not offer to download .NET and HTML, and do not write menus into the user's home.
    export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
    at_exit "${wine_env[*]} env WINEPREFIX=$1 wineserver -k 2>/dev/null"
    if ! "${wine_env[@]}" test -f "$WINEPREFIX/ready"; then
        logged "wine-prefix-${1##*/}" make_prefix "$2"
        echo "Created the Wine prefix $1 in $LOGGED_SECONDS s"
    fi
}

# start_displays FOLDER COMPOSITOR: a screen of two displays, the left one at (-800, 100), and a Wine prefix with
# that dwmapi.dll. Sets displays_env, the prefix of commands that run there.
start_displays() {
    local screen=${DISPLAY:-}
    start_server Xvfb -screen 0 1824x868x24
    # Without RANDR Wine asks Xinerama.
    start_server Xephyr +xinerama -extension RANDR -origin 0,100 -screen 800x600 -origin 800,0 -screen 1024x768
    start_prefix "$1" use_displays
    cp "$2" "$WINEPREFIX/drive_c/windows/system32/dwmapi.dll"
    displays_env=(env "DISPLAY=$DISPLAY" "WINEPREFIX=$1" "WINEDLLOVERRIDES=$WINEDLLOVERRIDES;dwmapi=n")
    # Starting Wine for each program takes seconds.
    "${displays_env[@]}" wineserver -p >"$LOGS/displays.log" 2>&1 </dev/null
    export DISPLAY=$screen
}

# Keeps the desktop open between programs. A program started before it would create its own desktop, and close it
# under all other programs at exit.
hold_desktop() {
    local wait=0
    "${wine_env[@]}" wine explorer /desktop=Quorl,1024x768 >"$LOGS/desktop.log" 2>&1 </dev/null &
    until xwininfo -root -tree 2>/dev/null | grep -q 'Quorl - Wine desktop'; do
        [ $((wait += 1)) -lt 600 ] || die "The desktop did not appear: $LOGS/desktop.log"
        sleep 0.1
    done
}

# All programs of this prefix share one virtual desktop.
use_virtual_desktop() {
    "${wine_env[@]}" wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Quorl /f
    "${wine_env[@]}" wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Quorl /d 1024x768 /f
}

# The second screen is the primary display. There is no window manager, without which Wine would restore maximized
# windows that move.
use_displays() {
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v PrimaryMonitor /d 1 /f
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f
}

# make_prefix SETTINGS: SETTINGS is a function that adds to the registry.
make_prefix() {
    "${wine_env[@]}" rm -rf "$WINEPREFIX"
    "${wine_env[@]}" mkdir -p "$WINEPREFIX"
    "${wine_env[@]}" wineboot -i
    "$1"
    # Wine looks for the symbols on window buttons only here.
    "${wine_env[@]}" ln -sf /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    # A crash must not leave a dialog on the desktop for the next test.
    "${wine_env[@]}" wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
    "${wine_env[@]}" wineserver -w
    "${wine_env[@]}" touch "$WINEPREFIX/ready"
}
