#!/bin/sh
# The validator finds nothing wrong in what marlogl-preview writes of the examples, and in what the test program writes of
# the scenes of the manual and random ones: sh validator_test.sh PROGRAM TEST_PROGRAM PROJECT MODULES. Ends with 77 where
# node or the validator is missing; the latter is installed in the folder MODULES.

program=$1
test_program=$2
project=$3
validator=$4/node_modules/gltf-validator
if ! command -v node >/dev/null || ! command -v npm >/dev/null; then
    echo "skipped: node and npm are not installed"
    exit 77
fi
[ -d "$validator" ] || npm install --prefix "$4" --no-save --no-audit --no-fund gltf-validator@2.0.0-dev.3.10 >/dev/null ||
    { echo "skipped: the validator cannot be installed"; exit 77; }

work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
(cd "$project" && MARLOGL_GLB_FOLDER=$work "$test_program" --gtest_filter='*ManyScenes*' >/dev/null) || exit 1
cd "$work" || exit 1
for scene in "$project"/examples/*/*.mr[2l]; do
    name=$(basename "$scene")
    "$program" "$scene" --output="$name.glb" && "$program" "$scene" --output="$name.solid.glb" --solid-lines --unlit || exit 1
done
printf 'glBegin( GL_POLYGON );\nglEnd();\n' >empty.ogl
"$program" empty.ogl --output=empty.glb 2>err
node "$project/preview/tests/validate.js" "$validator" ./*.glb
