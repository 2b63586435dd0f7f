#!/usr/bin/env bash
# Configures and builds Medistock in build/ (warnings are errors): the targets named, or all.
set -euo pipefail
cd "$(dirname "$0")/.."
# ccache finds earlier results wherever the tree was cloned to.
export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMEDISTOCK_WERROR=ON >/dev/null
targets=()
for target in "$@"; do
    targets+=(--target "$target")
done
cmake --build build --parallel "$(nproc)" "${targets[@]}"
