#!/usr/bin/env bash
# Installs every Debian package that building, testing and running Medistock needs.
# Safe to run again: when everything is already there it does nothing.
set -euo pipefail

packages=(
    cmake g++ ninja-build ccache pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-qpa-plugins qt6-translations-l10n
    libqt6sql6-sqlite libqt6sql6-psql qt6-svg-dev libqt6svg6 libgl-dev libqt6opengl6-dev
    qt6-charts-dev libqt6charts6
    libsqlite3-dev libsodium-dev libicu-dev libxlsxwriter-dev libzip-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    libzint-dev poppler-utils
    postgresql-15 postgresql-client-15 libpq-dev
    fonts-noto-cjk xvfb xauth
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$package")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then
    sudo="sudo"
fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -q
$sudo apt-get install -y -q --no-install-recommends "${missing[@]}" </dev/null
