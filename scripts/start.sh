#!/usr/bin/env bash
# Installs what is needed, builds Medistock and starts the desktop program. Arguments are passed
# on (--data DIR chooses the data folder; else MEDISTOCK_DATA, else ~/.local/share/medistock).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh medistock medistock-cli
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    echo "没有图形显示：请用 xvfb-run scripts/start.sh 启动，或设置 QT_QPA_PLATFORM" \
        "（例如 vnc，再用 VNC 客户端连接本机 5900 端口）；" \
        "scripts/screenshots.sh DIR 可把各个界面画成图片。" >&2
    exit 1
fi
exec build/app/medistock "$@"
