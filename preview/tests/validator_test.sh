#!/bin/sh
# The validator finds nothing wrong in what marlogl-preview writes of the examples, the scenes of the manual and random
# ones: sh validator_test.sh PROGRAM WRITE_SCENES PROJECT MODULES. Ends with 77 where node or the validator is missing;
# the latter is installed in the folder MODULES.

program=$1
write_scenes=$2
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
cp -R "$project/examples/village/appl" "$work"
(cd "$project" && "$write_scenes" "$work") || exit 1
cd "$work" || exit 1
failures=0
write()
{
    "$program" "$@" 2>err || { echo "FAILED: $*: $(cat err)"; failures=$((failures + 1)); }
}
for scene in *.mr2 *.mrl; do
    write "$scene" --output="$scene.glb" --texture-dir="$project/examples/village" --texture-dir="$project/docs"
done
for scene in "$project"/examples/*/*.mr[2l]; do
    name=$(basename "$scene")
    write "$scene" --output="$name.glb"
    write "$scene" --output="$name.solid.glb" --solid-lines --unlit
done
printf 'glBegin( GL_POLYGON );\nglEnd();\n' >empty.ogl
write empty.ogl --output=empty.glb
node "$project/preview/tests/validate.js" "$validator" ./*.glb && [ $failures -eq 0 ]
