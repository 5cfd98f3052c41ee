#!/bin/sh
# command_test.sh PROGRAM ROOT: the options, the exit statuses and the forms of the report.
program=$1
root=$2
# shellcheck source=tests/support/expect.sh
. "$root/tests/support/expect.sh"

cp "$root/examples/village/village.mr2" clean.mr2
printf 'A23\nBOld~barn\177\nP01 13\nP02 36\nP07 30\nK04Y\n' >warned.mr2
printf 'A23\nP72 15\n' >wrong.mr2
printf 'no design file\n' >town.txt

expect 0 "0 errors, 0 warnings" clean.mr2
expect 0 "warned.mr2:6:1: warning: face 4 (right wall) is on but has no texture name; add an F04 record [face-without-texture]" warned.mr2
grep -qx '    object 1 "Old~barn?", gabled house' out || fail "the object is not told"
printf 'P06 1 0\n\nA23\nP01 2\n' | cat warned.mr2 - >twice.mr2
expect 0 "twice.mr2:7:4" twice.mr2
grep -o '^twice[^ ]*' out | sort -c -t: -k2n || fail "findings are not in the order of the lines"
expect 1 "1 warning" --strict warned.mr2
expect 0 "0 warnings" --strict --disable=face-without-texture,draws-nothing warned.mr2
expect 1 "wrong.mr2:2:1: error: parameter cell 72 is outside 0 to 61 [stops-reading]" clean.mr2 wrong.mr2 warned.mr2
grep -q "1 error, 1 warning, .* in 3 files" err || fail "the summary says $(cat err)"
expect 1 "neither .mrl nor .mr2" town.txt
expect 2 'cannot open "nowhere.mr2"' nowhere.mr2 clean.mr2
expect 2 "cannot read" .
expect 2 "cannot open" nowhere/MarlOgl.dat
expect 2 "file is required"
expect 2 "there is no rule 'colour'" --disable=colour clean.mr2
expect 2 "there is no rule 'colour'" --explain colour
expect 2 "xml not in" --format=xml clean.mr2
expect 2 "mr3 not in" --kind=mr3 -
expect 2 "standard input: --kind" -
expect 0 "Usage: marlogl-check" --help
expect 0 "marlogl-check " --version
expect 0 "    K01 Y" --explain code-shifted
[ "$(grep -c '^    [A-Z][0-9A-Za-z ]*$' out)" -eq 24 ] || fail "the scenes of an explanation: $(cat out)"
expect 0 "0 errors, 0 warnings" "$root/examples/village/MarlOgl.dat" "$root/examples/hamlet/MarlOgl.dat"

"$program" --kind=mr2 - <wrong.mr2 >out 2>err
{ [ $? -eq 1 ] && grep -q '^-:2:1: error' out; } || fail "standard input: $(cat out err)"

"$program" --format=json warned.mr2 wrong.mr2 >out 2>err
tr -d '\n' <out | grep -q '^\[ .*"file": "warned.mr2", *"line": 6, *"column": 1, *"endColumn": 4, *"severity": "warning", *"rule": "face-without-texture", *"message": "face 4 .*", *"object": "object 1 \\"Old~barn?\\", gabled house" .*\]$' ||
    fail "JSON: $(cat out)"
"$program" --format=json clean.mr2 --disable lines-after-texture 2>err | tr -d '\n' | grep -qx '\[\]' || fail "JSON of nothing"
if [ -e /dev/full ]; then
    "$program" --list-rules >/dev/full 2>err
    { [ $? -eq 2 ] && grep -q "cannot write" err; } || fail "a full disk is not told: $(cat err)"
fi
[ $failures -eq 0 ]
