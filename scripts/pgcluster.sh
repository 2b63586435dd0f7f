#!/usr/bin/env bash
# A throwaway PostgreSQL server for the tests and benchmarks.
#
#   scripts/pgcluster.sh start DIR   initdb into DIR, start the server on a free local port and
#                                    print its connection string ("host=... port=... user=...
#                                    dbname=postgres"); the user may create and drop databases
#   scripts/pgcluster.sh stop DIR    stop that server and remove DIR
#
# The server refuses to run as root, so as root the cluster belongs to the unprivileged
# `postgres` user that Debian's package creates. Durability, WAL for replicas and autovacuum are
# switched off: the data dies with the run anyway, the tests create many small databases, and
# a vacuum worker on the template would hold up every copy of it.
set -euo pipefail

bindir=$(ls -d /usr/lib/postgresql/*/bin 2>/dev/null | sort -V | tail -n 1)
if [ -z "$bindir" ]; then
    echo "PostgreSQL server not installed (scripts/setup.sh installs it)" >&2
    exit 2
fi

as_owner() {
    if [ "$(id -u)" -eq 0 ]; then
        runuser -u postgres -- "$@"
    else
        "$@"
    fi
}

port_in_use() {
    (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null
}

start() {
    local dir=$1
    mkdir -p "$dir"
    if [ "$(id -u)" -eq 0 ]; then
        chown postgres: "$dir"
    fi
    as_owner "$bindir/initdb" -D "$dir/data" -U medistock --auth=trust -E UTF8 \
        --locale=C.UTF-8 >"$dir/initdb.log" 2>&1
    local attempt port
    for attempt in 1 2 3 4 5 6 7 8 9 10; do
        port=$((20000 + RANDOM % 40000))
        port_in_use "$port" && continue
        if as_owner "$bindir/pg_ctl" -D "$dir/data" -l "$dir/server.log" -w -t 60 start -o \
            "-p $port -k $dir -c listen_addresses=127.0.0.1 -c fsync=off \
             -c synchronous_commit=off -c full_page_writes=off -c max_connections=300 \
             -c shared_buffers=64MB -c max_locks_per_transaction=256 -c wal_level=minimal \
             -c max_wal_senders=0 -c autovacuum=off" >/dev/null 2>&1; then
            echo "host=127.0.0.1 port=$port user=medistock dbname=postgres"
            return 0
        fi
    done
    echo "PostgreSQL test server did not start; see $dir/server.log" >&2
    exit 2
}

stop() {
    local dir=$1
    if [ -f "$dir/data/postmaster.pid" ]; then
        as_owner "$bindir/pg_ctl" -D "$dir/data" -m immediate -w stop >/dev/null 2>&1 || true
    fi
    rm -rf "$dir"
}

case "${1:-}" in
start) start "$2" ;;
stop) stop "$2" ;;
*)
    echo "usage: $0 start|stop DIR" >&2
    exit 2
    ;;
esac
