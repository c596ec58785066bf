# Private database servers for the tests, sourced by ./test --servers after scripts/prepare.sh: PostgreSQL
# and MariaDB on free ports of the loopback address, with their data under build/servers, run as the users
# that their packages make since both refuse to run as root.

# Debian's packages would start services of their own; nothing here uses those. Both settings hold for the
# time of an installation and have a mark, by which a later run finds what an interrupted one left.
installation_mark='# for the time of an installation by ./test --servers'
policy=/usr/sbin/policy-rc.d
cluster_conf=/etc/postgresql-common/createcluster.conf

keep_services_still() {
    if [ ! -e "$policy" ]; then
        printf '#!/bin/sh\n%s\nexit 101\n' "$installation_mark" | as_root tee "$policy" >/dev/null
        as_root chmod 755 "$policy"
    fi
    if [ ! -e "$cluster_conf" ]; then
        quietly as_root apt-get -o DPkg::Lock::Timeout=300 update
        quietly as_root apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends postgresql-common
    fi
    echo "create_main_cluster = off $installation_mark" | as_root tee -a "$cluster_conf" >/dev/null
}

let_services_start() {
    ! grep -qsxF "$installation_mark" "$policy" || as_root rm -f "$policy"
    ! grep -qsF "$installation_mark" "$cluster_conf" || as_root sed -i "\\|$installation_mark|d" "$cluster_conf"
}

install_servers() {
    packages_file=scripts/packages-servers.txt
    let_services_start
    [ -n "$(missing_packages)" ] || return 0
    trap let_services_start EXIT
    keep_services_still
    install_packages
    let_services_start
    trap - EXIT
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

# Below the ports that systems give to outgoing connections.
free_port() {
    local port
    while :; do
        port=$((20000 + RANDOM % 12000))
        (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null || break
    done
    echo "$port"
}

# folder_for USER NAME: a folder of the server's own.
folder_for() {
    mkdir -p "$servers_home/$2"
    [ "$(id -u)" != 0 ] || chown "$1:" "$servers_home/$2"
}

# has_gone PID: where nobody reaps, a dead process stays as a zombie.
has_gone() {
    local facts
    facts=$(grep -E '^(State|Threads):' "/proc/$1/status" 2>/dev/null) || return 0
    [[ $facts =~ State:[[:space:]]*Z && $facts =~ Threads:[[:space:]]*[01]$ ]]
}

# wait_until_gone PID SECONDS
wait_until_gone() {
    local i
    for ((i = 0; i < $2 * 10; i++)); do
        ! has_gone "$1" || return 0
        sleep 0.1
    done
    return 1
}

# answers PID COMMAND...: waits until the command succeeds, half a minute at most, while the server lives.
answers() {
    local pid=$1 i
    shift
    for ((i = 0; i < 150; i++)); do
        ! has_gone "$pid" || return 1
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.2
    done
    return 1
}

# try_ports NAME COMMAND: calls the command with a free port until a server answers there; somebody else may
# take a port before it does.
try_ports() {
    for _ in 1 2 3; do
        port=$(free_port)
        ! "$2" || return 0
    done
    say "$1 does not answer; its log is in $servers_home"
    return 1
}

# Ends the server whose id a file holds, if it still is that server.
stop_server() { # PIDFILE DATA SIGNAL
    local pid words
    pid=$(head -n 1 "$1" 2>/dev/null) || return 0
    [ -n "$pid" ] || return 0
    words=$(tr '\0' ' ' 2>/dev/null <"/proc/$pid/cmdline") || return 0
    [[ $words == *"$2"* ]] || return 0
    kill "-$3" "$pid" 2>/dev/null || return 0
    wait_until_gone "$pid" 10 && return 0
    kill -KILL "$pid" 2>/dev/null || true
    wait_until_gone "$pid" 10 || say "Process $pid does not end"
}

# TERM would have PostgreSQL wait for its clients.
stop_servers() {
    stop_server "$servers_home/postgres/data/postmaster.pid" "$servers_home/postgres/data" INT
    stop_server "$servers_home/mariadb/server.pid" "$servers_home/mariadb/data" TERM
}

# run_server NAME USER PIDFILE SIGNAL COMMAND...: starts it, and writes the script that kills it with a
# signal and starts it again, for the tests that need a server to die. A zombie's id in the file would keep
# PostgreSQL from starting.
run_server() {
    local log=$servers_home/$1.log restart=$servers_home/restart-$1 pidfile=$3 signal=$4
    become "$2"
    shift 4
    cat >"$restart" <<END
#!/bin/bash
$(declare -f has_gone wait_until_gone)
pid=\$(head -n 1 "$pidfile")
kill -$signal "\$pid"
wait_until_gone "\$pid" 60 || exit 1
rm -f "$pidfile"
$(printf '%q ' "${user_words[@]}" "$@") >>"$log" 2>&1 8>&- </dev/null &
END
    chmod 755 "$restart"
    "${user_words[@]}" "$@" >"$log" 2>&1 8>&- 9>&- </dev/null &
    server_pid=$!
    disown "$server_pid"
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

run_postgres() {
    local home=$servers_home/postgres
    run_server postgres postgres "$home/data/postmaster.pid" QUIT "$postgres_bin/postgres" -D "$home/data" \
        -p "$port" -c listen_addresses=127.0.0.1 -c unix_socket_directories= -c fsync=off
    answers "$server_pid" env PGPASSWORD=zkp psql -h 127.0.0.1 -p "$port" -U zkp -d postgres -c "SELECT 1"
}

start_postgres() {
    local port server_pid
    folder_for postgres postgres
    postgres_bin=$(ls -d /usr/lib/postgresql/*/bin | sort -V | tail -n 1)
    make_postgres_data
    try_ports PostgreSQL run_postgres
    export ZKP_TEST_POSTGRES_RESTART=$servers_home/restart-postgres
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

run_mariadb() {
    local home=$servers_home/mariadb
    run_server mariadb mysql "$home/server.pid" KILL mariadbd --no-defaults --datadir="$home/data" \
        --port="$port" --bind-address=127.0.0.1 --socket=server.sock --pid-file="$home/server.pid" \
        --innodb-flush-log-at-trx-commit=2 --max-allowed-packet=256M --max-recursive-iterations=4294967295
    root=(mariadb --no-defaults --protocol=tcp -h 127.0.0.1 -P "$port" -u root)
    answers "$server_pid" "${root[@]}" -e "SELECT 1"
}

start_mariadb() {
    local port server_pid root
    folder_for mysql mariadb
    make_mariadb_data
    try_ports MariaDB run_mariadb
    export ZKP_TEST_MARIADB_RESTART=$servers_home/restart-mariadb
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
