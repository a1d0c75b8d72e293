"""What the hostile documents are made of: elements, maps, symbols, data and pictures."""
import json
import math
import sqlite3
import struct
import zlib

CASES = {}

HUGE = 1e12  # the farthest that a coordinate may be


def case(text, says=""):
    """Registers a function that fills the folder of one document and answers the document; `says` is what is told of it."""

    def register(make):
        CASES[make.__name__.replace("_", "-")] = (text, make, says)
        return make

    return register


# ---- documents


def document(elements=(), maps=(), **more):
    return {"format": "plotvane-document", "version": 1, "page": {"form": "A4"}, "elements": list(elements),
            "maps": list(maps), **more}


def frame(number=0, **more):
    return {"type": "dataFrame", "map": number, "rectangle": [1, 1, 20, 28], **more}


def map_of(layers=(), bounds=(0, 0, 100, 140), **more):
    return {"name": "Map", "bounds": list(bounds), "layers": list(layers), **more}


def layer(file, symbol, name="Layer", source=None, **more):
    return {"type": "feature", "name": name, "source": {"file": file, **(source or {})},
            "renderer": {"type": "simple", "symbol": symbol}, **more}


def one_map(*layers, **more):
    return document([frame()], [map_of(layers, **more)])


def marker(**more):
    return {"type": "simpleMarker", **more}


def line(**more):
    return {"type": "simpleLine", **more}


def fill(**more):
    return {"type": "simpleFill", **more}


def text(string, size=10, **more):
    symbol = {"type": "text", "size": size, **more.pop("symbol", {})}
    return {"type": "text", "position": [2, 15], "text": string, "symbol": symbol, **more}


def svg(content, box="0 0 10 10"):
    return f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox="{box}">{content}</svg>'


def zigzag(count, width=20.0, height=28.0):
    """A line of so many vertices across the page."""
    return [value for i in range(count) for value in (round(1 + width * (i % 2), 3), round(1 + height * i / count, 3))]


def star(count, radius=9.0):
    """A ring of which each side crosses nearly all others."""
    turn = math.pi * (count - 1) / count
    return [value for i in range(count) for value in
            (round(10 + radius * math.cos(i * turn), 4), round(14 + radius * math.sin(i * turn), 4))]


def scattered(count):
    """Points without an order, the same ones each time."""
    return [((i * 7919) % 1000 / 10, (i * 104729) % 1400 / 10) for i in range(count)]


# ---- data


def geojson(folder, geometries, attributes=None):
    features = [{"type": "Feature", "properties": attributes(i) if attributes else {}, "geometry": geometry}
                for i, geometry in enumerate(geometries)]
    system = {"type": "name", "properties": {"name": "urn:ogc:def:crs:EPSG::3857"}}
    content = {"type": "FeatureCollection", "crs": system, "features": features}
    (folder / "data.geojson").write_text(json.dumps(content, separators=(",", ":")))
    return "data.geojson"


def points(folder, count, attributes=None):
    return geojson(folder, [{"type": "Point", "coordinates": place} for place in scattered(count)], attributes)


def square(side=100.0, corner=0.0):
    end = corner + side
    return {"type": "Polygon", "coordinates": [[[corner, corner], [end, corner], [end, end], [corner, end], [corner, corner]]]}


def point_blob(x="x", y="y"):
    """A point of a GeoPackage as an expression of SQL; of constants, since SQLite makes no doubles of numbers."""
    return "x'4750000100000000" + (struct.pack("<BIdd", 1, 1, x, y).hex()) + "'"


def geopackage(folder, sql, name="points", geometry="geom"):
    """A GeoPackage whose only layer is what the statements make."""
    path = folder / "data.gpkg"
    path.unlink(missing_ok=True)
    database = sqlite3.connect(path)
    database.executescript("""
        PRAGMA application_id = 1196444487; PRAGMA user_version = 10300;
        CREATE TABLE gpkg_spatial_ref_sys (srs_name TEXT NOT NULL, srs_id INTEGER PRIMARY KEY, organization TEXT NOT NULL,
            organization_coordsys_id INTEGER NOT NULL, definition TEXT NOT NULL, description TEXT);
        INSERT INTO gpkg_spatial_ref_sys VALUES ('none', -1, 'NONE', -1, 'undefined', NULL), ('none', 0, 'NONE', 0, 'undefined', NULL);
        CREATE TABLE gpkg_contents (table_name TEXT NOT NULL PRIMARY KEY, data_type TEXT NOT NULL, identifier TEXT UNIQUE,
            description TEXT DEFAULT '', last_change DATETIME NOT NULL DEFAULT '2026-01-01T00:00:00.000Z', min_x DOUBLE,
            min_y DOUBLE, max_x DOUBLE, max_y DOUBLE, srs_id INTEGER);
        CREATE TABLE gpkg_geometry_columns (table_name TEXT NOT NULL, column_name TEXT NOT NULL, geometry_type_name TEXT NOT NULL,
            srs_id INTEGER NOT NULL, z TINYINT NOT NULL, m TINYINT NOT NULL, PRIMARY KEY (table_name, column_name));
        """)
    database.execute("INSERT INTO gpkg_contents (table_name, data_type, identifier, min_x, min_y, max_x, max_y, srs_id) "
                     "VALUES (?, 'features', ?, 0, 0, 100, 140, 0)", (name, name))
    database.execute("INSERT INTO gpkg_geometry_columns VALUES (?, ?, 'POINT', 0, 0, 0)", (name, geometry))
    database.executescript(sql)
    database.commit()
    database.close()
    return "data.gpkg"


def stored_points(count, table="points"):
    rows = ",".join(f"({i}, {point_blob(*place)}, 'row {i}')" for i, place in enumerate(scattered(count), 1))
    return f"CREATE TABLE {table} (fid INTEGER PRIMARY KEY, geom POINT, name TEXT); INSERT INTO {table} VALUES {rows};"


def png(width, height, bits=1):
    """A picture of one colour, whose file is a thousandth of its pixels."""

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    row = bytes(1 + (width * bits * (1 if bits < 8 else 3) + 7) // 8)
    squeezer = zlib.compressobj(9)
    body = b"".join(squeezer.compress(row) for _ in range(height)) + squeezer.flush()
    header = struct.pack(">IIBBBBB", width, height, bits, 0 if bits < 8 else 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", body) + chunk(b"IEND", b"")
