#!/usr/bin/env bash
# Installs what is needed, builds Medistock and starts it on the embedded SQLite database.
# The data folder is created on first start (MEDISTOCK_DATA or ~/.local/share/medistock).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh medistock-cli
# The desktop program is not built yet: this prepares the data folder and the master file
# through the command line, which is what the program will do on its first start.
echo "桌面程序尚未完成，现在通过命令行初始化数据目录："
exec build/app/medistock-cli init "$@"
