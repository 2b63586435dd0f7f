#!/usr/bin/env bash
# Renders every screen of the desktop program to PNG files in the folder given, without a
# display: the offscreen platform, a fresh data folder with a few example operators and roles.
set -euo pipefail
if [ $# -ne 1 ]; then
    echo "用法：scripts/screenshots.sh DIR" >&2
    exit 2
fi
out="$(realpath -m "$1")"
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh medistock-screenshots
# The program chooses the offscreen platform with a screen large enough for the main window.
env -u QT_QPA_PLATFORM build/app/medistock-screenshots "$out"
