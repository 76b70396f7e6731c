# A Windows desktop of 1024x768 of our own: a virtual screen, a Wine prefix in build/, and its end.
# The array `ground` is the prefix of a command that runs a Windows program there; empty on this system's
# own Wine, a chroot in the 32-bit folder (x86.sh). The exit code of the program comes through.

ground=()

# An X server on a free display, which ends with the script.
start_screen() {
    local number=$LOGS/display wait=0
    : >"$number"
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$number" 2>"$LOGS/xvfb.log" &
    at_exit "kill $! 2>/dev/null; wait $! 2>/dev/null"
    until [ -s "$number" ]; do
        [ $((wait += 1)) -lt 300 ] || die "The virtual screen does not start: $LOGS/xvfb.log"
        sleep 0.1
    done
    export DISPLAY=:$(cat "$number")
}

# The prefix and the closed desktop in it; $1 is the folder as the programs of the ground see it.
start_wine() {
    export WINEPREFIX=$1 WINEDEBUG=${WINEDEBUG:--all}
    # No search for downloads of .NET and HTML, no menus written into the user's home.
    export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
    at_exit "${ground[*]} wineserver -k 2>/dev/null"
    if ! "${ground[@]}" test -f "$WINEPREFIX/ready"; then
        logged wine-prefix make_prefix
        echo "Made the Wine prefix in $LOGGED_SECONDS s"
    fi
    hold_desktop
}

# Holds the desktop between two programs, so that it is not built anew for each. A program that came before it
# would build one of its own, which later goes away under all others.
hold_desktop() {
    local wait=0
    "${ground[@]}" wine explorer /desktop=Quorl,1024x768 >"$LOGS/desktop.log" 2>&1 </dev/null &
    until xwininfo -root -tree 2>/dev/null | grep -q 'Quorl - Wine desktop'; do
        [ $((wait += 1)) -lt 600 ] || die "The desktop does not come up: $LOGS/desktop.log"
        sleep 0.1
    done
}

make_prefix() {
    "${ground[@]}" rm -rf "$WINEPREFIX"
    "${ground[@]}" mkdir -p "$WINEPREFIX"
    "${ground[@]}" wineboot -i
    # Every program of this prefix comes up on one virtual desktop, without being told.
    "${ground[@]}" wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Quorl /f
    "${ground[@]}" wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Quorl /d 1024x768 /f
    # Wine finds its symbols for the buttons of windows only here.
    "${ground[@]}" ln -sf /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    # A program that crashes is not to leave a dialog on the desktop of the next one.
    "${ground[@]}" wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
    "${ground[@]}" wineserver -w
    "${ground[@]}" touch "$WINEPREFIX/ready"
}
