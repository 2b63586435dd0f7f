#!/usr/bin/env bash
# Installs what is needed, builds everything and runs every test: each database test on SQLite
# and, as NAME.pg, on a throwaway PostgreSQL server started here and stopped at the end.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
scripts/setup.sh
scripts/build.sh

pgdir=$(mktemp -d "${TMPDIR:-/tmp}/medistock-pg.XXXXXX")
chmod 755 "$pgdir"
trap '"$root/scripts/pgcluster.sh" stop "$pgdir"' EXIT
MEDISTOCK_TEST_PG=$("$root/scripts/pgcluster.sh" start "$pgdir")
export MEDISTOCK_TEST_PG

cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure --parallel "$(nproc)" --timeout 300
