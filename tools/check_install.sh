#!/bin/sh
# Installs a built tree into a scratch prefix and builds the example program
# against it twice, through the CMake package and through pkg-config, then
# runs both. Usage: tools/check_install.sh <build dir> <scratch dir>
set -eu
build=$1
scratch=$2
root=$(cd "$(dirname "$0")/.." && pwd)
rm -rf "$scratch"
cmake --install "$build" --prefix "$scratch/prefix" >/dev/null
libdir=$(ls -d "$scratch"/prefix/lib*/ | head -n1)

cmake -S "$root/examples/consumer" -B "$scratch/cmake" -DCMAKE_PREFIX_PATH="$scratch/prefix" >/dev/null
cmake --build "$scratch/cmake" >/dev/null
LD_LIBRARY_PATH="$libdir" "$scratch/cmake/veks_example" | grep -q "vekSP"

PKG_CONFIG_PATH="$libdir/pkgconfig" cc -o "$scratch/pc_example" "$root/examples/example.c" \
    $(PKG_CONFIG_PATH="$libdir/pkgconfig" pkg-config --cflags --libs veks) -lm
LD_LIBRARY_PATH="$libdir" "$scratch/pc_example" | grep -q "vekSP"
echo "installed tree works through the CMake package and pkg-config"
