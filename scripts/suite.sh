# Collects all tests in one CTest suite with one summary. Each case of a Windows test program is a separate test,
# which runs in its own process and does not share the desktop.

# write_suite FOLDER: starts an empty suite. The functions below add tests to it, in the order of the report.
write_suite() {
    SUITE=$1
    FAILED_ONCE=$SUITE/failed-once # outputs of the cases that were tried twice
    mkdir -p "$SUITE"
    : >"$SUITE/CTestTestfile.cmake"
}

# suite_tree BUILD_TREE...: adds all tests of a build tree.
suite_tree() { printf 'subdirs("%s")\n' "$@" >>"$SUITE/CTestTestfile.cmake"; }

# suite_test NAME TIMEOUT COMMAND...: adds a command; the timeout is in seconds. What may take longest starts first.
suite_test() {
    local name=$1 timeout=$2; shift 2
    {
        printf 'add_test([==[%s]==]' "$name"
        printf ' [==[%s]==]' "$@"
        printf ')\n'
    } >>"$SUITE/CTestTestfile.cmake"
    suite_properties "$name" TIMEOUT "$timeout" COST "$timeout" WORKING_DIRECTORY "$PWD"
}

# suite_properties NAME PROPERTY VALUE...
suite_properties() {
    {
        printf 'set_tests_properties([==[%s]==] PROPERTIES' "$1"
        printf ' %s [==[%s]==]' "${@:2}"
        printf ')\n'
    } >>"$SUITE/CTestTestfile.cmake"
}

# The end-to-end tests that need two displays and a compositor.
ON_DISPLAYS='TwoDisplays.*:Frames.*'

# suite_alone NAME TIMEOUT COMMAND...: adds a command that uses a Wine desktop. It runs alone: on a busy machine a window
# does not respond to Quorl within 100 ms, and stays where it is. Wine sometimes releases keys that tests hold down,
# because no real keyboard holds them. So a failed one is tried a second time.
suite_alone() {
    local name=$1 timeout=$2; shift 2
    suite_test "$name" $((2 * timeout + 10)) scripts/try-twice "$timeout" "$FAILED_ONCE/$name" "${wine_env[@]}" "$@"
    suite_properties "$name" RUN_SERIAL TRUE
}

# suite_windows PREFIX TIMEOUT PROGRAM [FILTER]: adds the cases of a GoogleTest program on a Wine desktop. PROGRAM is a
# path inside the environment of wine_env (wine.sh).
suite_windows() {
    local prefix=$1 timeout=$2 program=$3 filter=${4:-*} list=$LOGS/$1list name
    "${wine_env[@]}" wine "$program" --gtest_list_tests "--gtest_filter=$filter" >"$list" 2>"$list.errors" </dev/null ||
        die "$program does not list its tests: $list.errors"
    for name in $(tr -d '\r' <"$list" | awk '/^[^ ]/ { suite = $1; next } { print suite $1 }'); do
        suite_alone "$prefix$name" "$timeout" wine "$program" "--gtest_filter=$name"
    done
}

run_suite() {
    local result=0
    rm -rf "$FAILED_ONCE"
    mkdir "$FAILED_ONCE"
    ctest --test-dir "$SUITE" --output-on-failure --no-tests=error -j "$(nproc)" || result=$?
    echo "$(ls "$FAILED_ONCE" | wc -l) cases were tried twice"
    ls "$FAILED_ONCE" | sed "s|.*|  second try: & (first output: $FAILED_ONCE/&)|"
    return "$result"
}
