#!/usr/bin/env bash
# Installs what is needed, builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh
cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure --parallel "$(nproc)" --timeout 300
