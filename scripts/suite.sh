# Collects all tests in one CTest suite with one summary. Each case of a Windows test program is a separate test,
# which runs in its own process and does not share the desktop.

# write_suite FOLDER: starts an empty suite. The functions below add tests to it, in the order of the report.
write_suite() {
    SUITE=$1
    mkdir -p "$SUITE"
    : >"$SUITE/CTestTestfile.cmake"
}

# suite_tree BUILD_TREE...: adds all tests of a build tree.
suite_tree() { printf 'subdirs("%s")\n' "$@" >>"$SUITE/CTestTestfile.cmake"; }

# suite_test NAME TIMEOUT COMMAND...: adds a command that runs alone; the timeout is in seconds.
suite_test() {
    local name=$1 timeout=$2; shift 2
    {
        printf 'add_test([==[%s]==]' "$name"
        printf ' [==[%s]==]' "$@"
        printf ')\nset_tests_properties([==[%s]==] PROPERTIES RUN_SERIAL TRUE TIMEOUT %s' "$name" "$timeout"
        printf ' WORKING_DIRECTORY [==[%s]==])\n' "$PWD"
    } >>"$SUITE/CTestTestfile.cmake"
}

# The end-to-end tests that need two displays and a compositor.
ON_DISPLAYS='TwoDisplays.*:Frames.*'

# suite_windows PREFIX TIMEOUT PROGRAM [FILTER]: adds the cases of a GoogleTest program on a Wine desktop. PROGRAM is a
# path inside the environment of wine_env (wine.sh).
suite_windows() {
    local prefix=$1 timeout=$2 program=$3 filter=${4:-*} list=$LOGS/$1list name
    "${wine_env[@]}" wine "$program" --gtest_list_tests "--gtest_filter=$filter" >"$list" 2>"$list.errors" </dev/null ||
        die "$program does not list its tests: $list.errors"
    for name in $(tr -d '\r' <"$list" | awk '/^[^ ]/ { suite = $1; next } { print suite $1 }'); do
        suite_test "$prefix$name" "$timeout" "${wine_env[@]}" wine "$program" "--gtest_filter=$name"
    done
}

# Wine sometimes releases keys that tests hold down, because no real keyboard holds them. So a failed case is run
# once more, and only its last result counts.
run_suite() {
    ctest --test-dir "$SUITE" --output-on-failure --no-tests=error --repeat until-pass:2 -j "$(nproc)"
}
