# For tests of a program in a shell: a folder of their own, left when they end, and what they expect of it.
# Sourced with the program's path in "program"; the test ends with [ $failures -eq 0 ].
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
failures=0

fail()
{
    echo "FAILED: $*"
    failures=$((failures + 1))
}

# expect STATUS TEXT ARGUMENT...: the exit status, and a text that one of the two outputs holds.
expect()
{
    wanted=$1
    text=$2
    shift 2
    timeout 60 "$program" "$@" >out 2>err
    status=$?
    [ $status -eq "$wanted" ] || fail "$*: status $status, not $wanted"
    [ -z "$text" ] || grep -qF -e "$text" out err || fail "$*: no '$text' in: $(cat out err)"
}
