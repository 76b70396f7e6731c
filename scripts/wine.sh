# A separate Windows desktop of 1024x768: a virtual screen and a Wine prefix in build/.

# Prefix of commands that run in the environment that has Wine: empty for this system's own Wine, a chroot for the
# 32-bit one (x86.sh). The exit code of the command is passed on.
wine_env=()

# Starts an X server on a free display. It ends with the script.
start_screen() {
    local number=$LOGS/display wait=0
    : >"$number"
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$number" 2>"$LOGS/xvfb.log" &
    at_exit "kill $! 2>/dev/null; wait $! 2>/dev/null"
    until [ -s "$number" ]; do
        [ $((wait += 1)) -lt 300 ] || die "The virtual screen did not start: $LOGS/xvfb.log"
        sleep 0.1
    done
    export DISPLAY=:$(cat "$number")
}

# start_wine FOLDER: creates the Wine prefix in FOLDER, a path inside wine_env, and starts the desktop in it.
start_wine() {
    export WINEPREFIX=$1 WINEDEBUG=${WINEDEBUG:--all}
    # Do not offer to download .NET and HTML, and do not write menus into the user's home.
    export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
    at_exit "${wine_env[*]} wineserver -k 2>/dev/null"
    if ! "${wine_env[@]}" test -f "$WINEPREFIX/ready"; then
        logged wine-prefix make_prefix
        echo "Created the Wine prefix in $LOGGED_SECONDS s"
    fi
    hold_desktop
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

make_prefix() {
    "${wine_env[@]}" rm -rf "$WINEPREFIX"
    "${wine_env[@]}" mkdir -p "$WINEPREFIX"
    "${wine_env[@]}" wineboot -i
    # All programs of this prefix share one virtual desktop.
    "${wine_env[@]}" wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Quorl /f
    "${wine_env[@]}" wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Quorl /d 1024x768 /f
    # Wine looks for the symbols on window buttons only here.
    "${wine_env[@]}" ln -sf /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    # A crash must not leave a dialog on the desktop for the next test.
    "${wine_env[@]}" wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
    "${wine_env[@]}" wineserver -w
    "${wine_env[@]}" touch "$WINEPREFIX/ready"
}
