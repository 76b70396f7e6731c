# Puts every kind of test under one CTest, so that one summary speaks of all. Each case of a Windows test
# program is a test of its own, in a process of its own, and has the desktop to itself.

# write_suite FOLDER: starts the list. Then any of the functions below, in the order of the report.
write_suite() {
    SUITE=$1
    mkdir -p "$SUITE"
    : >"$SUITE/CTestTestfile.cmake"
}

# suite_tree BUILD_TREE...: all tests that a build tree has.
suite_tree() { printf 'subdirs("%s")\n' "$@" >>"$SUITE/CTestTestfile.cmake"; }

# suite_test NAME SECONDS COMMAND...: one command, alone on the machine, with a limit.
suite_test() {
    local name=$1 limit=$2; shift 2
    {
        printf 'add_test([==[%s]==]' "$name"
        printf ' [==[%s]==]' "$@"
        printf ')\nset_tests_properties([==[%s]==] PROPERTIES RUN_SERIAL TRUE TIMEOUT %s' "$name" "$limit"
        printf ' WORKING_DIRECTORY [==[%s]==])\n' "$PWD"
    } >>"$SUITE/CTestTestfile.cmake"
}

# suite_windows PREFIX SECONDS PROGRAM: the cases of a GoogleTest program on the Wine desktop. PROGRAM is a
# path as the programs of the ground see it.
suite_windows() {
    local prefix=$1 limit=$2 program=$3 list=$LOGS/$1list name
    "${ground[@]}" wine "$program" --gtest_list_tests >"$list" 2>"$list.errors" </dev/null ||
        die "$program gives no list of its tests: $list.errors"
    for name in $(tr -d '\r' <"$list" | awk '/^[^ ]/ { suite = $1; next } { print suite $1 }'); do
        suite_test "$prefix$name" "$limit" "${ground[@]}" wine "$program" "--gtest_filter=$name"
    done
}

# Wine lets go of keys that no keyboard holds now and then, so a case has a second chance; it counts once.
run_suite() {
    ctest --test-dir "$SUITE" --output-on-failure --no-tests=error --repeat until-pass:2 -j "$(nproc)"
}
