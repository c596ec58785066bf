# Private database servers for the tests, sourced by ./test --servers after scripts/prepare.sh: PostgreSQL
# and MariaDB on free ports of the loopback address, with their data under build/servers, run as the users
# that their packages make since both refuse to run as root.

# Debian's packages would start services of their own; nothing here uses those.
keep_services_still() {
    local policy=/usr/sbin/policy-rc.d conf=/etc/postgresql-common/createcluster.conf
    if [ ! -e "$policy" ]; then
        printf '#!/bin/sh\nexit 101\n' | as_root tee "$policy" >/dev/null
        as_root chmod 755 "$policy"
        made_policy=$policy
    fi
    if [ ! -e "$conf" ]; then
        quietly as_root apt-get -o DPkg::Lock::Timeout=300 update
        quietly as_root apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends postgresql-common
        as_root sed -i 's/^#*create_main_cluster.*/create_main_cluster = false/' "$conf"
    fi
}

install_servers() {
    local made_policy=
    packages_file=scripts/packages-servers.txt
    [ -n "$(missing_packages)" ] || return 0
    keep_services_still
    install_packages
    [ -z "$made_policy" ] || as_root rm -f "$made_policy"
}

# become USER: sets what stands ahead of a command for that user; nothing when we are not root.
become() {
    user_words=()
    [ "$(id -u)" != 0 ] ||
        user_words=(setpriv --reuid="$1" --regid="$(id -g "$1")" --clear-groups env HOME=/nonexistent)
}

# as_user USER COMMAND...
as_user() {
    become "$1"
    shift
    "${user_words[@]}" "$@"
}

# The build folder may stand where the servers' users can't reach it.
choose_servers_home() {
    servers_home=$PWD/build/servers
    mkdir -p "$servers_home"
    if ! as_user nobody test -x "$servers_home"; then
        servers_home=/tmp/zkp-servers-$(id -u)-$(echo "$PWD" | cksum | cut -d' ' -f1)
        mkdir -p "$servers_home"
    fi
    [ "$(stat -c %u "$servers_home")" = "$(id -u)" ] || { say "$servers_home is not ours"; exit 1; }
}

free_port() {
    local port
    while :; do
        port=$((20000 + RANDOM % 30000))
        (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null || break
    done
    echo "$port"
}

# folder_for USER NAME: a folder of the server's own.
folder_for() {
    mkdir -p "$servers_home/$2"
    [ "$(id -u)" != 0 ] || chown "$1:" "$servers_home/$2"
}

# wait_for NAME COMMAND...: until the command succeeds, half a minute at most.
wait_for() {
    local name=$1 i
    shift
    for ((i = 0; i < 150; i++)); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.2
    done
    say "$name does not answer; its log is in $servers_home"
    return 1
}

# Ends the server whose id a file holds, if it still is that server.
stop_server() { # PIDFILE DATA
    local pid i
    pid=$(head -n 1 "$1" 2>/dev/null) || return 0
    [ -n "$pid" ] && tr '\0' ' ' <"/proc/$pid/cmdline" 2>/dev/null | grep -qF -- "$2" || return 0
    kill -TERM "$pid" 2>/dev/null || return 0
    for ((i = 0; i < 100; i++)); do
        kill -0 "$pid" 2>/dev/null || return 0
        sleep 0.1
    done
    kill -KILL "$pid" 2>/dev/null || true
}

stop_servers() {
    stop_server "$servers_home/postgres/data/postmaster.pid" "$servers_home/postgres/data"
    stop_server "$servers_home/mariadb/server.pid" "$servers_home/mariadb/data"
}

# run_server NAME USER PIDFILE SIGNAL COMMAND...: starts it, and writes the script that kills it with a
# signal and starts it again, for the tests that need a server to die.
run_server() {
    local log=$servers_home/$1.log restart=$servers_home/restart-$1 pidfile=$3 signal=$4
    become "$2"
    shift 4
    cat >"$restart" <<END
#!/bin/bash
pid=\$(head -n 1 "$pidfile")
kill -$signal "\$pid"
while kill -0 "\$pid" 2>/dev/null; do sleep 0.1; done
$(printf '%q ' "${user_words[@]}" "$@") >>"$log" 2>&1 </dev/null &
END
    chmod 755 "$restart"
    "${user_words[@]}" "$@" >"$log" 2>&1 9>&- </dev/null &
}

# A data folder gets its name once it is complete, so that an interrupted start leaves none half-made.
make_postgres_data() {
    local home=$servers_home/postgres
    [ ! -d "$home/data" ] || return 0
    rm -rf "$home/data.new"
    as_user postgres sh -c "umask 077; echo zkp >'$home/password'"
    quietly as_user postgres "$postgres_bin/initdb" -D "$home/data.new" --username=zkp --encoding=UTF8 \
        --locale=C --auth=scram-sha-256 --pwfile="$home/password" --no-sync
    mv "$home/data.new" "$home/data"
}

start_postgres() {
    local home=$servers_home/postgres port
    folder_for postgres postgres
    postgres_bin=$(ls -d /usr/lib/postgresql/*/bin | sort -V | tail -n 1)
    make_postgres_data
    port=$(free_port)
    run_server postgres postgres "$home/data/postmaster.pid" QUIT "$postgres_bin/postgres" -D "$home/data" \
        -p "$port" -c listen_addresses=127.0.0.1 -c unix_socket_directories= -c fsync=off
    export ZKP_TEST_POSTGRES_RESTART=$servers_home/restart-postgres
    wait_for PostgreSQL env PGPASSWORD=zkp psql -h 127.0.0.1 -p "$port" -U zkp -d postgres -c "SELECT 1"
    local login="Driver={PostgreSQL Unicode};Server=127.0.0.1;Port=$port;UID=zkp;PWD=zkp"
    export ZKP_TEST_POSTGRES="$login;Database=zkp" ZKP_TEST_POSTGRES_DEMO="$login;Database=zkpdemo"
    export ZKP_TEST_POSTGRES_CASES="$login;Database=zkpcases"
    local name
    for name in zkp zkpdemo zkpcases; do
        PGPASSWORD=zkp quietly psql -h 127.0.0.1 -p "$port" -U zkp -d postgres \
            -c "DROP DATABASE IF EXISTS $name WITH (FORCE)" -c "CREATE DATABASE $name"
    done
}

make_mariadb_data() {
    local home=$servers_home/mariadb
    [ ! -d "$home/data" ] || return 0
    rm -rf "$home/data.new"
    as_user mysql mkdir "$home/data.new"
    quietly as_user mysql mariadb-install-db --no-defaults --datadir="$home/data.new" \
        --auth-root-authentication-method=normal --skip-test-db
    mv "$home/data.new" "$home/data"
}

start_mariadb() {
    local home=$servers_home/mariadb port
    folder_for mysql mariadb
    make_mariadb_data
    port=$(free_port)
    run_server mariadb mysql "$home/server.pid" KILL mariadbd --no-defaults --datadir="$home/data" \
        --port="$port" --bind-address=127.0.0.1 --socket=server.sock --pid-file="$home/server.pid" \
        --innodb-flush-log-at-trx-commit=2 --max-allowed-packet=256M --max-recursive-iterations=4294967295
    export ZKP_TEST_MARIADB_RESTART=$servers_home/restart-mariadb
    local root=(mariadb --no-defaults --protocol=tcp -h 127.0.0.1 -P "$port" -u root)
    wait_for MariaDB "${root[@]}" -e "SELECT 1"
    local login="Driver={MariaDB Unicode};Server=127.0.0.1;Port=$port;UID=zkp;PWD=zkp"
    export ZKP_TEST_MARIADB="$login;Database=zkp" ZKP_TEST_MARIADB_DEMO="$login;Database=zkpdemo"
    export ZKP_TEST_MARIADB_CASES="$login;Database=zkpcases"
    quietly "${root[@]}" -e "DROP DATABASE IF EXISTS zkp; DROP DATABASE IF EXISTS zkpdemo;
        DROP DATABASE IF EXISTS zkpcases; CREATE DATABASE zkpcases;
        CREATE DATABASE zkp CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;
        CREATE DATABASE zkpdemo CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;
        CREATE OR REPLACE USER zkp@'127.0.0.1' IDENTIFIED BY 'zkp';
        GRANT ALL ON *.* TO zkp@'127.0.0.1' WITH GRANT OPTION"
}

# The same demonstration data in a file and on each server.
load_demo() { # PROGRAM
    export ZKP_TEST_DEMO=$PWD/build/servers-demo.db
    rm -f "$ZKP_TEST_DEMO"
    quietly "$1" demo-db "$ZKP_TEST_DEMO" --rows 2000
    quietly "$1" demo-db --into "$ZKP_TEST_POSTGRES_DEMO" --rows 2000
    quietly "$1" demo-db --into "$ZKP_TEST_MARIADB_DEMO" --rows 2000
}

start_servers() {
    choose_servers_home
    stop_servers
    trap stop_servers EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
    say "Starting PostgreSQL and MariaDB under $servers_home"
    start_postgres
    start_mariadb
}
