#!/bin/sh
# Builds and runs every test on the three targets: x86_64, 32-bit x86 and
# x86_64 under the address and undefined-behaviour sanitizers.
set -eu
cd "$(dirname "$0")/.."
tools/install-deps.sh
jobs=$(nproc)
for preset in x86_64 i686 sanitize; do
    echo "== $preset =="
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" -j"$jobs"
    ctest --preset "$preset" -j"$jobs"
done
echo "all tests passed on x86_64, i686 and sanitize"
