#!/bin/sh
# The main job: builds the library (x86_64) and runs the example program.
set -eu
cd "$(dirname "$0")/.."
tools/install-deps.sh
cmake --preset x86_64 >/dev/null
cmake --build --preset x86_64 -j"$(nproc)" --target veks_example
./build/x86_64/examples/veks_example
