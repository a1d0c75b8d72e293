#!/usr/bin/env python3
"""Layers of a PostGIS database, read from a server of its own that lives in a temporary folder as long as this runs.

    drive.py EXECUTABLE

Ends with 77 where no server is installed.
"""
import concurrent.futures
import glob
import json
import os
import pwd
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time

EXECUTABLE = os.path.abspath(sys.argv[1])
SKIPPED = 77
PLACES = 2500  # more than come in one batch
ELSEWHERE = 60000  # so that a table is large
PATIENCE_S = 30  # of a connection whose server answers, however busy the machine is
TIMEOUT_S = 4
problems = []


def check(condition, claim, seen=""):
    if not condition:
        problems.append(f"{claim}: {seen}")


class Server:
    """It listens at a socket and at a port of this computer alone, and logs each statement."""

    def __init__(self, folder, programs):
        self.folder, self.programs = folder, programs
        self.data, self.log = os.path.join(folder, "data"), os.path.join(folder, "log")
        owner = "postgres" if os.getuid() == 0 else None  # a server does not run as root
        self.how = {"user": owner} if owner else {}
        if owner:
            os.chown(folder, pwd.getpwnam(owner).pw_uid, -1)
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            self.port = str(free.getsockname()[1])
        self.run("initdb", "-D", self.data, "-U", "owner", "-A", "trust", "-E", "UTF8", "--no-sync", "--no-locale")
        with open(os.path.join(self.data, "pg_hba.conf"), "w") as rules:
            rules.write("local all all trust\nhost all reader 127.0.0.1/32 scram-sha-256\n")
        options = (f"-k {folder} -c listen_addresses=127.0.0.1 -p {self.port} -c fsync=off -c log_connections=on "
                   "-c log_statement=all")
        self.run("pg_ctl", "-D", self.data, "-l", self.log, "-o", options, "-w", "start")

    def run(self, program, *arguments):
        subprocess.run([os.path.join(self.programs, program), *arguments], check=True, cwd=self.folder,
                       stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, **self.how)

    def sql(self, text, database="city"):
        done = subprocess.run(["psql", "-XqAt", "-v", "ON_ERROR_STOP=1", "-h", self.folder, "-p", self.port, "-U",
                               "owner", database],
                              input=text, capture_output=True, text=True)
        if done.returncode != 0:
            raise RuntimeError(done.stderr)
        return done.stdout.strip()

    def logged(self):
        with open(self.log, encoding="utf-8") as log:
            return log.read()

    def stop(self):
        subprocess.run([os.path.join(self.programs, "pg_ctl"), "-D", self.data, "-m", "immediate", "stop"],
                       cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **self.how)


def places():
    for i in range(PLACES):
        yield i + 1, f"place {i % 7}", (i % 50) * 0.1 - 2.5, (i // 50) * 0.08 + 45


COLUMNS = {"small": "smallint", "large": "bigint", "short": "real", "long": "double precision", "exact": "numeric",
           "flag": "boolean", "name": "text", "kind": "varchar(20)"}
VALUES = [(1, 9007199254740993, 0.1, 0.1, 12.5, True, "Zürich", "12:00:00+00"),
          (-5, -3, 16777216.0, 1e300, 1e-30, False, "zürich", "it's"),
          (None, None, None, None, None, None, None, None),
          (7, 2, -0.5, 2.5, 7, True, "ZÜRICH", "a\\b"),
          (32767, 0, 3.3, -0.0, 0.1, False, "", "A B")]
CONDITIONS = ["small = 1", "small < 2", "2 > small", "small >= 7.0", "small BETWEEN -5 AND 1", "small IN (7, 32767)",
              "small IS NULL", "NOT (small IS NULL)", "NOT (small = 1)", "small <> 1", "large = 9007199254740993",
              "large = 9007199254740992.0", "large < 1e20", "short = 0.1", "short > 3.2", "short <= 3.3", "long = 0.1",
              "long = 1e300", "long >= 0", "exact = 0.1", "exact = 1e-30", "exact < 12.5", "exact > 12.4999999",
              "flag = 1", "flag = 0", "name = 'zürich'", "name = 'ZÜRICH'", "name IN ('ZüRICH', '')", "name = ''",
              "name < 'a'", "name LIKE 'z%'", "kind = '12:00:00'", "kind = 'IT''S'", "kind = 'a\\b'",
              "kind IN ('a b', 'x')", "small = 1 OR name = 'ZÜRICH'", "small = 1 OR name LIKE 'z%'",
              "small > 0 AND name LIKE 'z%'", "(small > 0 OR small IS NULL) AND NOT (exact = 7)", "small = large - 10",
              "name IS NULL AND small IS NULL", "kind = name", "FID = 2"]


def kinds_of_values():
    def written(value):
        return "NULL" if value is None else "'" + str(value).replace("'", "''") + "'"
    columns = ", ".join(f"{name} {kind}" for name, kind in COLUMNS.items())
    rows = ", ".join(f"({i}, {', '.join(map(written, row))}, 'SRID=4326;POINT({i} 46)')"
                     for i, row in enumerate(VALUES))
    return (f"CREATE TABLE kinds (id integer PRIMARY KEY, {columns}, geom geometry(Point, 4326));"
            f"INSERT INTO kinds VALUES {rows};")


def write_data(server, folder):
    values = [{"type": "Feature", "id": i, "properties": dict(zip(COLUMNS, row)),
               "geometry": {"type": "Point", "coordinates": [i, 46]}} for i, row in enumerate(VALUES)]
    with open(os.path.join(folder, "kinds.geojson"), "w") as file:
        json.dump({"type": "FeatureCollection", "features": values}, file)
    features = [{"type": "Feature", "properties": {"id": i, "name": name},
                 "geometry": {"type": "Point", "coordinates": [x, y]}} for i, name, x, y in places()]
    with open(os.path.join(folder, "places.geojson"), "w") as file:
        json.dump({"type": "FeatureCollection", "features": features}, file)
    rows = "".join(f"{i}\t{name}\tSRID=4326;POINT({x!r} {y!r})\n" for i, name, x, y in places())
    server.sql("CREATE DATABASE city", "postgres")
    # PostGIS lies where only the owner of the tables looks for it.
    server.sql("CREATE SCHEMA gis; CREATE EXTENSION postgis SCHEMA gis; SET search_path = public, gis;"
               "CREATE TABLE places (id integer PRIMARY KEY, name text, geom geometry(Point, 4326));"
               "CREATE TABLE secrets (id integer PRIMARY KEY, geom geometry);"
               "CREATE TABLE \"a.b\" (id integer PRIMARY KEY, geom geometry(Point, 4326));"
               "CREATE SCHEMA a; CREATE TABLE a.b (id integer PRIMARY KEY, geom geometry(Point, 4326));"
               "CREATE VIEW slowly AS SELECT * FROM places WHERE pg_sleep(0.001)::text IS NOT NULL;"
               "CREATE VIEW broken AS SELECT id, 1 / (id - 2000) AS part, geom FROM places;"
               "CREATE USER reader PASSWORD 'right'; GRANT USAGE ON SCHEMA gis TO reader;"
               f"COPY places FROM STDIN;\n{rows}\\.\n"
               "CREATE TABLE everywhere (LIKE places INCLUDING INDEXES, note text);"
               "INSERT INTO everywhere SELECT * FROM places;"
               f"INSERT INTO everywhere SELECT {PLACES} + i, 'elsewhere', ST_SetSRID(ST_MakePoint(100 + i % 300 * 0.1,"
               f"  -40 + i / 300 * 0.1), 4326) FROM generate_series(1, {ELSEWHERE}) i;"
               "CREATE INDEX ON everywhere USING gist (geom);"
               "GRANT SELECT ON places, slowly, everywhere TO reader;" + kinds_of_values())


class Program:
    def __init__(self, folder):
        self.folder = folder
        self.environment = {**os.environ, "XDG_CONFIG_HOME": os.path.join(folder, "config"), "HOME": folder,
                            "LC_ALL": "C.UTF-8"}
        for name in list(self.environment):
            if name.startswith("PG"):
                del self.environment[name]

    def __call__(self, *arguments, **environment):
        begun = time.monotonic()
        done = subprocess.run([EXECUTABLE, *arguments], cwd=self.folder, capture_output=True, text=True,
                              env={**self.environment, **environment}, timeout=300)
        self.seconds = time.monotonic() - begun
        return done

    def begin(self, *arguments):
        return subprocess.Popen([EXECUTABLE, *arguments], cwd=self.folder, env=self.environment, text=True,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def document(self, name, source, model="file.kdx"):
        with open(os.path.join(self.folder, model)) as file:
            document = json.load(file)
        for layer in document["maps"][0]["layers"]:
            if "file" in layer["source"]:
                layer["source"] = source if "layer" in source else {**layer["source"], **source}
        with open(os.path.join(self.folder, name), "w") as file:
            json.dump(document, file)
        return name


def difference(folder, one, other):
    """Of two uncompressed pictures: by how much their bytes differ at most."""
    pictures = []
    for name in (one, other):
        with open(os.path.join(folder, name), "rb") as file:
            pictures.append(file.read())
    if len(pictures[0]) != len(pictures[1]):
        return 255
    return max(abs(a - b) for a, b in zip(*pictures))


def fails(program, claim, words, *arguments, **environment):
    done = program(*arguments, **environment)
    check(done.returncode == 1 and all(word in done.stderr for word in words), claim,
          f"{done.returncode} {done.stderr.strip()}")


def draws_as_a_file(program, server):
    table = program.document("city.kdx", {"connection": "city", "layer": "public.places"})
    before = len(server.logged())
    done = program("export", table, "city.bmp", "--dpi", "60")
    check(done.returncode == 0, "a table is drawn", done.stderr)
    check("secrets" not in server.logged()[before:], "no other table is touched")
    program("export", "file.kdx", "file.bmp", "--dpi", "60")
    check(difference(program.folder, "city.bmp", "file.bmp") == 0, "a table looks as a file with the same features")
    made = program("new", "new.kdx", "connection:city|public.places")
    check(made.returncode == 0, "a map is made of a table", made.stderr)
    told = program("info", "new.kdx").stdout
    check("connection city, table public.places" in told, "info tells connection and table", told)
    step = program("run", "new.kdx", "add=layer:connection:city|public.places", "save=more.kdx")
    check(step.returncode == 0, "a step adds a table", step.stderr)


def a_large_table_is_asked_for_what_shows(program, server):
    program.document("everywhere.kdx", {"connection": "city", "layer": "public.everywhere"})
    before = len(server.logged())
    done = program("export", "everywhere.kdx", "everywhere.bmp", "--dpi", "60")
    asked = [line for line in server.logged()[before:].splitlines() if "DECLARE" in line and ".everywhere" in line]
    check(done.returncode == 0, "a large table is drawn", done.stderr)
    check(asked and all("&& ST_SetSRID('BOX3D(" in line and "note" not in line for line in asked),
          "a large table is asked for the part and the columns that show", asked)
    check(difference(program.folder, "everywhere.bmp", "file.bmp") < 8,  # levels; places are rounded
          "a part of a large table looks as a table that has no more")


def conditions_mean_the_same(program, server):
    made = program("new", "kinds.kdx", "kinds.geojson")
    check(made.returncode == 0, "a map is made of kinds of values", made.stderr)
    program.document("values.kdx", {"connection": "city", "layer": "public.kinds"}, "kinds.kdx")
    with open(os.path.join(program.folder, "kinds.kdx")) as file:
        shown = json.load(file)["maps"][0]
    layer = next(one["name"] for one in shown["layers"] if "file" in one["source"])
    map_name = shown["name"]
    before = len(server.logged())
    steps = [step for one in CONDITIONS
             for step in (f"attributes=layer:{map_name}/{layer}:{one}", "get=page/form")]
    found = []
    for document in ("kinds.kdx", "values.kdx"):
        done = program("run", document, *steps)
        check(done.returncode == 0, "conditions are understood", done.stderr)
        groups = done.stdout.split('"A4"')
        found.append([re.findall(r'"id":(\d+)', group) for group in groups])
    for condition, file, table in zip(CONDITIONS, *found):
        check(file == table, f"{condition} means the same", f"{file} {table}")
    check(len(found[1]) > len(CONDITIONS), "all conditions were asked", len(found[1]))
    asked = {line for line in server.logged()[before:].splitlines() if "DECLARE" in line and "public.kinds WHERE" in line}
    check(len(asked) > len(CONDITIONS), "the server leaves out rows of most conditions", len(asked))


def what_is_not_known_contacts_nothing(program, server):
    before = server.logged().count("connection received")
    unknown = program.document("town.kdx", {"connection": "town", "layer": "public.places"})
    fails(program, "an unknown name is told", ["town", "is not known"], "export", unknown, "x.png")
    fails(program, "confined, a connection is refused", ["city", "--allow-connection"], "export", "city.kdx", "x.png",
          "--confine")
    check(server.logged().count("connection received") == before, "neither contacts the server")
    done = program("info", "city.kdx", "--confine", "--allow-connection", "city")
    check(done.returncode == 0, "confined, an allowed connection is used", done.stderr)


def tells_what_is_wrong(program, server):
    gone = program.document("gone.kdx", {"connection": "city", "layer": "public.gone"})
    fails(program, "a table that is not there is told", ["public.gone", "public.places"], "export", gone, "x.png")
    secured = program.document("secured.kdx", {"connection": "secured", "layer": "public.places"})
    fails(program, "a wrong password is told", ["secured", ".pgpass"], "export", secured, "x.png", PGPASSWORD="wrong")
    denied = program.document("denied.kdx", {"connection": "secured", "layer": "public.secrets"})
    fails(program, "a table that may not be read is told", ["public.secrets", "no permission"], "export", denied,
          "x.png", PGPASSWORD="right")
    done = program("info", "connection:absent")
    check("passwords" in done.stderr and ".pgpass" not in done.stderr, "a name is not taken for a password", done.stderr)
    broken = program.document("broken.kdx", {"connection": "city", "layer": "public.broken"})
    done = program("run", broken, "attributes=layer:#0/#0")
    check(done.returncode == 1 and "division by zero" in done.stderr.splitlines()[-1], "a reading that breaks is told",
          done.stderr)
    done = program("info", "connection:secured", PGPASSWORD="right")
    check(done.returncode == 0 and "secrets" not in done.stdout, "tables that may be read are told alone", done.stderr)
    one = program("info", "connection:city|public.everywhere")
    check(one.returncode == 0 and f"{PLACES + ELSEWHERE:,} features" in one.stdout and "secrets" not in one.stdout, "one table is told",
          one.stdout + one.stderr)
    done = program("info", secured, PGPASSWORD="right")
    check(done.returncode == 0, "a password of the environment is used", done.stderr)


def reading_of(server, name):
    """The process of the server that reads the view, once it does; each reader has a name of its own by its process."""
    for _ in range(200):
        found = server.sql("SELECT pid FROM pg_stat_activity WHERE query LIKE 'FETCH%' AND application_name = 'plotvane'"
                           " AND state = 'active' ORDER BY backend_start LIMIT 1")
        if found:
            return int(found)
        time.sleep(0.02)
    raise RuntimeError(f"{name}: nobody reads")


def is_told_in_time(program, server, claim, disturb, words):
    document = program.document(f"{disturb.__name__}.kdx", {"connection": "brief", "layer": "public.slowly"})
    process = program.begin("export", document, f"{disturb.__name__}.png")
    reader = reading_of(server, claim)
    begun = time.monotonic()
    disturb(server, reader)
    _, told = process.communicate(timeout=30)
    seconds = time.monotonic() - begun
    check(process.returncode == 1 and all(word in told for word in words), claim, told.strip())
    check(seconds < TIMEOUT_S + 4, f"{claim} in time", f"{seconds:.1f} s")
    return reader


def freeze(_, reader):
    os.kill(reader, signal.SIGSTOP)


def kill(server, reader):
    server.sql(f"SELECT pg_terminate_backend({reader})")


def a_deaf_server_is_told(program, folder):
    with socket.socket(socket.AF_UNIX) as deaf:
        deaf.bind(os.path.join(folder, ".s.PGSQL.5499"))
        os.chmod(os.path.join(folder, ".s.PGSQL.5499"), 0o777)
        deaf.listen()
        document = program.document("deaf.kdx", {"connection": "deaf", "layer": "public.places"})
        begun = time.monotonic()
        fails(program, "a server that never answers is told", ["deaf"], "export", document, "deaf.png")
        check(time.monotonic() - begun < TIMEOUT_S + 4, "a server that never answers is told in time")


def add_connections(program, server):
    common = ["--database", "city", "--timeout", str(PATIENCE_S)]
    brief = ["--user", "owner", "--timeout", str(TIMEOUT_S)]
    for name, host, port, more in (("city", server.folder, server.port, ["--user", "owner"]),
                                   ("brief", server.folder, server.port, brief),
                                   ("secured", "127.0.0.1", server.port, ["--user", "reader"]),
                                   ("absent", server.folder, server.port, ["--user", "owner", "--database", "passwords"]),
                                   ("deaf", server.folder, "5499", brief)):
        done = program("connections", "add", name, *common, "--host", host, "--port", port, *more)
        check(done.returncode == 0, f"the connection {name} is added", done.stderr)
    wrong = program("connections", "add", "wrong", "--port", "0")
    check(wrong.returncode == 2 and "port" in wrong.stderr, "a wrong port is told", f"{wrong.returncode} {wrong.stderr}")
    told = program("connections", "test", "city").stdout
    check("public.places" in told and " a.b," in told and "public.a.b" in told, "tables are told apart", told)


def a_bad_entry_costs_no_other(program):
    for name, port in (("good", "5432"), ("bad", "6000")):
        program("connections", "add", name, "--port", port)
    settings, = glob.glob(os.path.join(program.folder, "config", "*", "*.conf"))
    with open(settings) as file:
        text = file.read()
    with open(settings, "w") as file:
        file.write(text.replace("6000", "0"))
    program("connections", "add", "more")
    done = program("connections", "list")
    check("good" in done.stdout and "more" in done.stdout and "bad" in done.stderr, "a bad entry is told, others stay",
          done.stdout + done.stderr)
    program("connections", "remove", "bad")
    check(not program("connections", "list").stderr, "a bad entry is removed")
    with open(settings, "w") as file:
        file.write("[General]\nconnections=oops\n")
    check(program("connections", "add", "good").returncode == 1, "what is not understood is not written over")


def main():
    found = sorted(glob.glob("/usr/lib/postgresql/*/bin/initdb"))
    has_postgis = glob.glob("/usr/share/postgresql/*/extension/postgis.control")
    if not found or not has_postgis or not shutil.which("psql"):
        print("no PostgreSQL server with PostGIS is installed")
        return SKIPPED
    with tempfile.TemporaryDirectory() as own, tempfile.TemporaryDirectory() as other, \
            tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        server = Server(folder, os.path.dirname(found[-1]))
        try:
            program = Program(own)
            write_data(server, own)
            made = program("new", "file.kdx", "places.geojson")
            check(made.returncode == 0, "a map is made of the file", made.stderr)
            add_connections(program, server)
            with concurrent.futures.ThreadPoolExecutor() as pool:
                besides = [pool.submit(a_bad_entry_costs_no_other, Program(other)),
                           pool.submit(a_deaf_server_is_told, Program(own), folder),
                           pool.submit(conditions_mean_the_same, program, server)]
                draws_as_a_file(program, server)
                a_large_table_is_asked_for_what_shows(program, server)
                for beside in besides:
                    beside.result()
                what_is_not_known_contacts_nothing(program, server)
                tells_what_is_wrong(program, server)
                is_told_in_time(program, server, "a connection that ends is told", kill, ["slowly", "brief"])
                frozen = is_told_in_time(program, server, "a server that stops answering is told", freeze,
                                         ["Places", "brief", "has not answered"])  # opened or read, as it comes
                os.kill(frozen, signal.SIGCONT)
                check(f"pg_cancel_backend(pid) FROM pg_stat_activity WHERE application_name = 'plotvane' AND pid = {frozen}"
                      in server.logged(), "what is given up is ended on the server, too")
            server.stop()
            fails(program, "a server that is down is told", ["city", "plotvane connections test"], "export",
                  "city.kdx", "x.png")
        finally:
            server.stop()
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
