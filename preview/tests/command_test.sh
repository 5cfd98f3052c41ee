#!/bin/sh
# Runs marlogl-preview as a user does: sh command_test.sh usage|gltf|picture|watch|window PROGRAM CONVERTER EXAMPLES
# Ends with 77 when this machine has no OpenGL driver or no virtual display.

part=$1
program=$2
converter=$3
examples=$4
tests=$(cd "$(dirname "$0")" && pwd)
unset DISPLAY WAYLAND_DISPLAY
# shellcheck source=tests/support/expect.sh
. "$tests/../../tests/support/expect.sh"

cat >town.ogl <<'END'
glPushMatrix();
//                                                  *** Sequence 01
//                                                  *** barn
BindTexture( "brick.bmp" );
glEnable( GL_TEXTURE_2D );
glBegin( GL_POLYGON );
      glTexCoord2f( 0.0f, 0.0f );
      glVertex3d( 0, 0, 0 );
      glVertex3d( 8, 0, 0 );
      glVertex3d( 8, 8, 4 );
      glVertex3d( 0, 8, oops );
glEnd();
glPopMatrix();
END
printf 'no statement at all\n' >letter.txt
square() { echo "glColor3ub( $1 );"; echo "glBegin( GL_POLYGON );"; shift; printf 'glVertex3d( %s );\n' "$@"; echo "glEnd();"; }
(head -n 3 town.ogl; square "255, 0, 0" "0, 0, 0" "8, 0, 0" "8, 8, 0" "0, 8, 0"
    square "0, 0, 255" "9, 0, 0" "11, 0, 0" "11, 0, 2" "9, 0, 2") >flags.ogl

cat >house.mr2 <<'END'
A23
Bhouse
P0236
P0730
P0113
P0614
END
for slot in 1 2 3 4 5 6; do printf 'K0%dY\nF0%dside\n' $slot $slot; done >>house.mr2

# until COMMAND...: waits for it to succeed.
until_it()
{
    for _ in $(seq 400); do
        "$@" && return
        sleep 0.05
    done
    false
}

require_driver()
{
    "$program" town.ogl --output=probe.png 2>err && return
    if grep -q "no OpenGL driver" err; then
        echo "skipped: no OpenGL driver"
        exit 77
    fi
    fail "picture: $(cat err)"
}

usage()
{
    expect 0 "Usage: marlogl-preview" --help
    expect 0 "marlogl-preview " --version
    expect 2 "file is required"
    expect 2 "--colour" --colour town.ogl
    expect 2 "not expected: more" town.ogl more
    expect 2 "'1000' is not W,H" town.ogl --resolution=1000
    expect 2 "'0,600' is not" town.ogl --resolution=0,600
    expect 2 "'9,9,9' is not" town.ogl --resolution 9,9,9
    expect 2 "'nan' is not" town.ogl --camera-zoom-factor=nan
    expect 2 "'0,0,2' is not R,G,B" town.ogl --background-color=0,0,2
    expect 2 "'1,2' is not X,Y,Z" town.ogl --camera-position=1,2
    expect 1 'town.ogl: there is no object "mill"; the objects are 1 to 1' town.ogl --object=mill --output=no.png
    expect 2 "--watch needs" town.ogl --watch --output=-
    expect 2 "below not in" town.ogl --view=below
    expect 1 "cannot read nowhere.ogl: No such file" nowhere.ogl
    expect 1 "cannot read .: Is a directory" .
    expect 1 "/dev/zero is larger than 64 MB" /dev/zero
    expect 2 "not exist: nowhere" town.ogl --texture-dir=nowhere
    printf 'A23\nBbarn\nP0236\nP0730\nP0113\nP0614\nK01Y\nF01nowhere\nP72 15\n' >bad.mr2
    expect 1 'preview: bad.mr2:9: record "P72 15": parameter cell 72 is outside 0 to 61' bad.mr2
    sed '$d' bad.mr2 >barn.mr2
    expect 0 'barn.mr2:1: texture "nowhere.bmp" is missing' barn.mr2 --no-render
    printf 'barn.mr2\nbarn.ogl\n255\n' >MarlOgl.dat
    expect 1 "line 4 is missing; the run configuration has four lines" MarlOgl.dat
    printf 'barn.mr2\nbarn.ogl\n255\n255255255\n' >MarlOgl.dat
    expect 0 'line 3: the colour "255" is not nine digits' MarlOgl.dat --no-render
    mkdir other
    printf 'barn\nbarn.ogl\n255255255\n255255255\n' >other/MarlOgl.dat
    expect 1 "is not converted: its name ends in neither" other/MarlOgl.dat
    expect 1 "it holds no statement" letter.txt --no-render
    expect 1 "is there a display?" town.ogl
    expect 0 "missing textures        1" town.ogl --no-render --verbose --texture-dir . --texture-dir=..
    grep -qx "concave faces           0" out || fail "--verbose: concave faces"
    expect 0 "town.ogl:11: glVertex3d: argument 3 cannot be read" town.ogl --no-render
    expect 0 'town.ogl:4: texture "brick.bmp" is missing; it was looked for in .' town.ogl --no-render
    expect 0 "town.ogl: the last four lines are missing" town.ogl --no-render
    sed "s/brick/b$(printf '\001')ick/" town.ogl >odd.ogl
    expect 0 'texture "b?ick.bmp"' odd.ogl --no-render
    printf 'glMatrixMode( GL_TEXTURE );\nglLoadIdentity();\nglMatrixMode( GL_MODELVIEW );\n' >footer
    cat town.ogl footer >whole.ogl
    expect 0 "" whole.ogl --no-render
    grep -q "last four" err && fail "a whole file is told to be cut"
    cp town.ogl brick.bmp
    ln town.ogl hard.png
    ln -s town.ogl soft.glb
    ln -s brick.bmp BRICK.PNG
    for same in hard.png ././hard.png soft.glb BRICK.PNG; do
        expect 1 "would overwrite" town.ogl --output=$same
        cmp -s town.ogl brick.bmp || fail "$same was overwritten"
    done
    for ending in town.ogl png .glb town.glb.new; do
        expect 2 "'$ending' ends in neither .png nor .glb" town.ogl --output=$ending
    done
    expect 2 "--solid-lines needs an --output that ends in .glb" town.ogl --solid-lines --output=town.png
    if [ -e /dev/full ]; then
        for option in --verbose --help --version; do
            "$program" town.ogl --no-render $option >/dev/full 2>err && fail "$option: a full disk is no failure"
            grep -q "cannot write to standard output: No space" err ||
                fail "$option: a full disk is not told: $(cat err)"
        done
    fi
}

picture()
{
    require_driver
    expect 0 "" town.ogl --output=town.png --resolution=40,30 --view=left --camera-azimuth-angle=-30 \
        --camera-elevation-angle 20 --camera-zoom-factor=2 --camera-orthographic \
        --background-color=1,1,1 --unlit
    [ "$(od -An -tx1 -j16 -N8 town.png | tr -d ' \n')" = 000000280000001e ] || fail "town.png is not 40 x 30"
    expect 0 PNG town.ogl --output=- --verbose
    grep -q faces err || fail "the report is not on standard error beside a picture"
    # A design file looks like its output file, and leaves nothing behind.
    for example in village hamlet; do
        cp -R "$examples/$example" .
        sed -i '3s/.*/255200150/' $example/MarlOgl.dat
        (cd $example && "$converter" && find . | sort >../names) || fail "$example is not converted"
        expect 0 "" $example/$example.ogl --output=by_file.png --resolution=300,200
        for source in "$example"/MarlOgl.dat "$example/$example".mr?; do
            expect 0 "" "$source" --output=direct.png --resolution=300,200
            cmp -s by_file.png direct.png || fail "$source looks unlike its output file"
        done
        (cd $example && find . | sort) | cmp - names || fail "a file was left behind"
    done
    expect 1 "cannot write nowhere/town.png" town.ogl --output=nowhere/town.png
    ln -s /dev/full full.png
    [ ! -e /dev/full ] || expect 1 "cannot write full.png" town.ogl --output=full.png
}

# holds FILE TEXT: whether the file holds it, and is as long as it says.
holds()
{
    grep -qaF -e "$2" "$1" && [ "$(od -An -tu4 -j8 -N4 "$1")" -eq "$(wc -c <"$1")" ]
}

gltf()
{
    expect 0 'town.ogl:4: texture "brick.bmp" is missing' town.ogl --output=town.glb
    holds town.glb '"baseColorFactor":[1,1,1,1],"metallicFactor":0,"roughnessFactor":1},"doubleSided":true' ||
        fail "a missing texture is not white"
    grep -qa -e image/png -e KHR_materials_unlit town.glb && fail "there are textures or there is no light"
    expect 0 "triangles               1" town.ogl --output=TOWN.GLB --unlit --verbose
    holds TOWN.GLB '"extensions":{"KHR_materials_unlit":{}}' || fail "--unlit leaves the light"
    expect 0 "" "$examples/village/village.mr2" --output=whole.glb
    holds whole.glb '"magFilter":9729,"minFilter":9987,"wrapS":10497,"wrapT":10497' || fail "no sampler"
    head -c 40 "$examples/village/brick.bmp" >brick.bmp
    expect 0 "brick.bmp is cut off" town.ogl --output=town.glb
    # Without room the scene that was there before stays.
    (trap '' XFSZ && ulimit -f 1 && "$program" "$examples/village/village.mr2" --output=town.glb 2>err) &&
        fail "a full disk is not told"
    grep -q "cannot write town.glb" err || fail "a full disk is told as $(cat err)"
    holds town.glb '"name":"barn"' || fail "the scene from before is damaged"
    [ ! -e town.glb.new ] || fail "half a scene was left"
    cp town.ogl town.glb.new
    expect 0 "" town.glb.new --output=town.glb
    cmp -s town.ogl town.glb.new || fail "a file of the user's is gone"
    cp house.mr2 live.mr2
    timeout 100 "$program" live.mr2 --watch --output=live.glb 2>err &
    viewer=$!
    until_it test -e live.glb || fail "no scene: $(cat err)"
    sed -i 's/^Bhouse/Bcottage/' live.mr2
    until_it holds live.glb '"name":"cottage"' || fail "no new scene"
    kill $viewer
}

# Each change of the design file makes a new picture, and a fault leaves the last one.
watch()
{
    require_driver
    cp house.mr2 live.mr2
    timeout 100 "$program" live.mr2 --watch --output=live.png --resolution=80,60 2>err &
    viewer=$!
    until_it cmp -s live.png live.png || fail "no picture: $(cat err)"
    cp live.png first.png
    sed -i 's/P0236/P0296/' live.mr2
    until_it sh -c '! cmp -s live.png first.png' || fail "no new picture"
    cp live.png second.png
    rm live.mr2
    until_it grep -q live.mr2 err || fail "the missing file is not told: $(cat err)"
    printf 'P72 1\n' | cat house.mr2 - >live.mr2
    until_it grep -q 'live.mr2:19: record "P72 1"' err || fail "no message: $(cat err)"
    cmp -s live.png second.png || fail "the picture of a faulty file was written"
    cp house.mr2 live.mr2
    until_it cmp -s live.png first.png || fail "the picture does not come back"
    [ ! -e live.png.new ] || fail "half a picture was left"
    kill $viewer
}

window()
{
    for tool in Xvfb xdotool python3; do
        if ! command -v $tool >/dev/null; then
            echo "skipped: $tool is not installed"
            exit 77
        fi
    done
    require_driver
    mkdir screen
    python=$(python3 -c "import sys; print(sys.executable)") # a wrapper takes longer than Python
    # Xvfb keeps what it shows in a file, and writes the number of a free display to descriptor 3.
    Xvfb -displayfd 3 -screen 0 640x480x24 -fbdir screen 3>number 2>/dev/null &
    server=$!
    trap 'kill $server 2>/dev/null; rm -rf "$work"' EXIT
    until_it test -s number || fail "no virtual display"
    DISPLAY=:$(cat number)
    export DISPLAY
    "$program" flags.ogl --resolution=400,300 2>err &
    viewer=$!
    timeout 30 xdotool search --sync --name "marlogl-preview - flags.ogl" >/dev/null ||
        fail "no window: $(cat err)"
    shows "the first picture" "red.count > 20000 and blue.left > 200 and blue.brightest < 240 and dark.count > 200"
    xdotool mousemove 200 150 mousedown 1 mousemove 230 150 mousemove 260 150 mouseup 1
    shows "dragging" "blue.left > then.blue.left + 60 and red.right < then.red.right - 50"
    xdotool click 4
    shows "the wheel" "red.count > 1.1 * then.red.count"
    xdotool keydown shift mousemove 200 150 mousedown 1 mousemove 230 150 mouseup 1 keyup shift
    shows "moving" "15 < red.right - then.red.right < 40 and abs(red.top - then.red.top) < 3 and dark.count > 200"
    xdotool key e
    shows "leaving out the edges" "dark.count < then.dark.count / 4"
    xdotool key r
    shows "the first view" "28000 < red.count < 32000 and abs(red.corner - (red.top + red.bottom) / 2) > 15"
    xdotool key p minus minus minus
    shows "no perspective" "red.left > 0 and abs(red.corner - (red.top + red.bottom) / 2) < 3"
    xdotool key l
    shows "no light" "blue.brightest > 250"
    xdotool key t
    shows "the view from the top" "red.left > 0 and abs(red.right - red.left - red.bottom + red.top) < 3"
    xdotool key Left
    shows "turning by key" "red.right - red.left > then.red.right - then.red.left + 5"
    xdotool key plus
    shows "coming closer by key" "red.count > 1.1 * then.red.count"
    xdotool key p r g
    shows "the grid" "red.count > 28000 and white.count > then.white.count + 200"
    xdotool key x
    shows "the axes" "green.count > then.green.count + 20"
    xdotool key n
    shows "the names" "white.count > then.white.count + 20"
    xdotool mousemove 284 183 click --repeat 2 --delay 50 1
    shows "the double click" "abs(blue.left + blue.right - 400) < 30 and abs(blue.top + blue.bottom - 300) < 30"
    xdotool key question
    shows "help" "dark.count > then.dark.count + 10000"
    leave
    cp house.mr2 live.mr2
    # While something moves, a slow machine leaves out shadows and edges; what is compared has neither.
    "$program" live.mr2 --watch --no-shadows --no-edges --resolution=400,300 >out 2>err &
    viewer=$!
    timeout 30 xdotool search --sync --name "marlogl-preview - live.mr2" >/dev/null || fail "no window: $(cat err)"
    shows "a house" "dark.count > 100 and keep()"
    xdotool mousemove 200 150 click 4
    shows "coming closer" "unlike > 10000 and keep()"
    xdotool click 1
    until_it test -s out || fail "a click tells nothing"
    shows "choosing a face" "unlike > 6000"
    grep -q '^live.mr2:1: object 1 "house", gabled house, texture "side.bmp" of face slot 1 (line 8), 2 (line 10)' out ||
        fail "a click tells: $(cat out)"
    xdotool key F12
    until_it test -s live.png || fail "F12 writes no picture"
    xdotool key F5
    shows "the file, loaded again, as before" "unlike < 3000"
    echo 'P72 1' >>live.mr2
    shows "a fault in the design file" "unlike > 6000"
    cp house.mr2 live.mr2.new && mv live.mr2.new live.mr2
    shows "the file without the fault as before" "unlike < 3000"
    leave
}

# shellcheck disable=SC2317
has_ended()
{
    ! kill -0 "$viewer" 2>/dev/null
}

# Ends the viewer as a user does.
leave()
{
    xdotool key q
    until_it has_ended || { fail "q does not end the window"; kill "$viewer"; }
    wait "$viewer" || fail "the window ends with status $?"
}

# shows WHAT EXPRESSION: waits until the expression is true of the screen; see screen.py.
shows()
{
    "$python" -IS "$tests/screen.py" screen/Xvfb_screen0 "$2" 2>seen || fail "$1 is not shown: $(cat seen)"
}

$part
[ $failures -eq 0 ]
