#!/bin/sh
# Installs what a fresh Debian 12 machine lacks to build, test and benchmark
# veks. Does nothing when everything is there already.
set -eu
pkgs="cmake make g++ g++-multilib googletest libbenchmark-dev libfftw3-dev pkg-config python3 binutils qemu-user"
missing=""
for p in $pkgs; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing="$missing $p"
done
[ -z "$missing" ] && exit 0
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $missing >/dev/null
