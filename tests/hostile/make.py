#!/usr/bin/env python3
"""Writes documents that ask for more than they show, and the small data that they name.

make.py FOLDER [NAME…]: all of them, or those that are named, each as FOLDER/NAME/NAME.kdx. make.py --list prints their
names and what each asks for. Needs the standard library alone.
"""
import base64
import json
import math
import sqlite3
import struct
import sys
import zipfile
import zlib
from pathlib import Path

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


# ---- maps and places


@case("a map whose bounds are as wide as numbers go, and nothing else")
def widest_map(folder):
    return one_map(bounds=(-HUGE, -HUGE, HUGE, HUGE))


@case("the widest map in each of some projections, with a grid")
def widest_projected_maps(folder):
    systems = ["EPSG:3035", "EPSG:8857", "EPSG:3857", "EPSG:2056", "EPSG:3031", "ESRI:54030", "+proj=ortho +lat_0=50"]
    frames = [frame(i, rectangle=[1, 1 + 4 * i, 20, 4 + 4 * i], grids=[{}]) for i in range(len(systems))]
    return document(frames, [map_of(bounds=(-HUGE, -HUGE, HUGE, HUGE), coordinateSystem=system) for system in systems])


@case("a graticule on a map in degrees that goes on far beyond the globe")
def graticule_beyond_the_globe(folder):
    return document([frame(grids=[{}, {"interval": 1}])], [map_of(bounds=(-1e7, -1e7, 1e7, 1e7), coordinateSystem="EPSG:4326")])


@case("a hundred graticules of the finest interval")
def finest_graticules(folder):
    return document([frame(grids=[{"interval": 0.18 + i / 1e4, "kind": "crosses"} for i in range(100)])],
                    [map_of(bounds=(-1.7e7, -8e6, 1.7e7, 8e6), coordinateSystem="EPSG:8857")])


@case("a measured grid of a spacing that nobody sees")
def finest_measured_grid(folder):
    grids = [{"system": "projected", "spacing": 10.0 ** -i, "kind": kind} for i in range(10) for kind in ("lines", "crosses")]
    return document([frame(grids=grids)], [map_of(bounds=(0, 0, 1e9, 1.4e9))])


@case("a map of less than the numbers can tell apart")
def smallest_map(folder):
    return document([frame(grids=[{}, {"system": "projected"}])],
                    [map_of(bounds=(1e11, 1e11, 1e11 + 1e-3, 1e11 + 1e-3)), ])


# ---- symbols


@case("a dashed line from one end of the numbers to the other")
def farthest_dashes(folder):
    symbols = [line(style="dash"), {"type": "dashLine", "pattern": [0.01, 0.01]}, {"type": "dashLine", "pattern": [3, 2], "width": 2}]
    lines = [{"type": "line", "points": [-HUGE, -HUGE, HUGE, HUGE - i], "symbol": symbol} for i, symbol in enumerate(symbols)]
    return document(lines + [{"type": "rectangle", "rectangle": [-HUGE, 5, HUGE, HUGE], "symbol": fill(outline=symbol)} for symbol in symbols])


@case("a dashed line of many vertices of which each lies far beyond the page")
def farthest_dashed_zigzag(folder):
    return document([{"type": "line", "points": zigzag(4000, 1e9, 20), "symbol": symbol} for symbol in
                     (line(style="dot", width=0.1), {"type": "dashLine", "pattern": [0.01, 0.01], "width": 0.05})])


@case("finest dashes on a long line that lies on the page")
def finest_dashes(folder):
    return document([{"type": "line", "points": zigzag(5000), "symbol": {"type": "dashLine", "pattern": [0.01, 0.01, 0.02, 0.01],
                                                                          "cap": cap, "width": 0.01}} for cap in ("butt", "round")])


@case("dashes a little wider than a pixel on a long line")
def fine_dashes(folder):
    return document([{"type": "line", "points": zigzag(5000), "symbol": {"type": "dashLine", "pattern": [0.3, 0.3], "cap": "round", "width": 3}}])


@case("markers along a line from one end of the numbers to the other")
def farthest_marker_line(folder):
    symbols = [{"type": "markerLine", "marker": marker(size=2), "interval": interval} for interval in (0.5, 20)]
    return document([{"type": "line", "points": [-HUGE, -HUGE, HUGE, HUGE - i], "symbol": symbol} for i, symbol in enumerate(symbols)] +
                    [{"type": "line", "points": zigzag(2000, 1e9, 20), "symbol": symbols[0]}])


@case("large markers, closer than they can be told apart, along a long line")
def densest_marker_line(folder):
    symbol = {"type": "markerLine", "marker": marker(size=1000, color="#10ff0000", style="star", outlineWidth=3), "interval": 0.5}
    return document([{"type": "line", "points": zigzag(5000), "symbol": symbol}])


@case("pictures of many parts, close to each other along a long line")
def densest_picture_line(folder):
    circles = "".join(f'<circle cx="{i % 10}" cy="{i // 10 % 10}" r="1" fill="#0f0" opacity="0.5"/>' for i in range(400))
    symbol = {"type": "markerLine", "marker": {"type": "svgMarker", "svg": svg(circles), "size": 300}, "interval": 0.5}
    return document([{"type": "line", "points": zigzag(500), "symbol": symbol}])


@case("two thousand points, each a marker as large as the page")
def largest_markers(folder):
    return one_map(layer(points(folder, 2000), marker(size=1000, color="#20ff0000", outlineWidth=5)))


@case("two thousand points, each a picture as large as the page, all turned differently")
def largest_turned_pictures(folder):
    picture = {"type": "svgMarker", "size": 1000, "svg": svg('<circle cx="5" cy="5" r="5" fill="#f00" opacity="0.1"/>')}
    source = layer(points(folder, 2000, lambda i: {"turn": i / 7}), picture)
    source["renderer"]["angleBy"] = "turn"
    return one_map(source)


@case("markers of layers within layers within layers, as many as symbols may have")
def deepest_marker(folder):
    many = {"type": "layeredMarker", "layers": [marker(size=900 - i, color="#08ff0000") for i in range(20)]}
    deep = {"type": "layeredMarker", "layers": [{"type": "layeredMarker", "layers": [many] * 10}] * 5}
    return one_map(layer(points(folder, 200), deep))


@case("patterns of the closest points and the smallest pictures")
def finest_patterns(folder):
    symbols = [{"type": "pointPatternFill", "dx": 0.5, "dy": 0.5, "marker": marker(size=size)} for size in (0.3, 1000)]
    symbols += [{"type": "pictureFill", "width": 0.5, "svg": svg('<circle cx="5" cy="5" r="4"/>', box), "angle": 33}
                for box in ("0 0 10 10", "0 0 10 0.0001", "0 0 10 100000")]
    return document([{"type": "ellipse", "rectangle": [1, 1 + 2 * i, 20, 20 + 2 * i], "symbol": symbol} for i, symbol in enumerate(symbols)])


@case("a thousand areas, each with a pattern of its own")
def many_patterns(folder):
    return document([{"type": "rectangle", "rectangle": [0, 0, 21, 29], "symbol": {"type": "pointPatternFill", "dx": 2 + i / 1000, "dy": 2, "angle": i,
                      "marker": marker(size=1)}} for i in range(400)])


@case("five hundred areas with hatches, larger than the page")
def largest_hatches(folder):
    return document([{"type": "rectangle", "rectangle": [-HUGE, -HUGE, HUGE, HUGE], "symbol": fill(style="diagonalCross", color="#10000000")}] * 500)


@case("hatches of a ring that crosses itself millions of times")
def crossing_hatches(folder):
    return document([{"type": "polygon", "rings": [{"points": star(4001)}], "symbol": fill(style=style, outline=line(width=0.1))}
                     for style in ("diagonalCross", "cross")])


@case("a ring that crosses itself twenty million times, filled and outlined")
def crossing_ring(folder):
    return document([{"type": "polygon", "rings": [{"points": star(6001)}], "symbol": fill(outline=line(width=2, join="miter", miterLimit=100))}])


@case("gradients and pictures over areas without an end")
def farthest_gradients(folder):
    stops = [{"position": 0, "color": "#ff0000"}, {"position": 100, "color": "#0000ff"}]
    symbols = [{"type": "gradientFill", "shape": shape, "stops": stops} for shape in ("linear", "radial")]
    return document([{"type": "rectangle", "rectangle": [-HUGE, -HUGE, HUGE, HUGE - i], "symbol": symbols[i % 2]} for i in range(200)])


@case("the widest line with the longest points, and moved aside as far as it goes")
def widest_line(folder):
    symbol = line(width=1000, join="miter", miterLimit=100, offset=1000)
    return document([{"type": "line", "points": zigzag(2500), "symbol": symbol, "startHead": "barbed", "headSize": 1000}] * 2)


@case("the widest round dashes on lines that cross the page again and again")
def widest_dashes(folder):
    symbol = {"type": "dashLine", "width": 1000, "cap": "round", "join": "round", "pattern": [0.01, 1], "color": "#08000000"}
    return document([{"type": "line", "points": zigzag(2500), "symbol": symbol}])


@case("frames with shadows, borders and backgrounds of the most that there is")
def widest_frames(folder):
    extras = {"border": {"symbol": line(width=1000), "gap": 1000, "rounding": 100}, "background": {"symbol": fill(style="cross"), "gap": 1000, "rounding": 100},
              "shadow": {"symbol": fill(color="#10000000"), "offset": [1000, 1000], "rounding": 100}}
    return document([{"type": "surround", "rectangle": [1, 1, 20, 28], **extras}] * 200)


# ---- texts


@case("a text as long as texts may be, of the largest letters, with the widest halo")
def largest_text(folder):
    return document([text("Wide letters " * 1260, 1000, symbol={"haloSize": 1000, "letterSpacing": 5}), text("W" * 16384, 1000)])


@case("a text of thousands of lines, each with a halo")
def longest_text(folder):
    return document([text("many\n" * 3276, 4, symbol={"haloSize": 20, "boxPadding": 1000, "boxLineWidth": 1000})] * 4)


@case("one word without a gap, in a column narrower than any letter")
def narrowest_text(folder):
    return document([text("W" * 16384, 50, width=0.001), text("a " * 8192, 50, width=0.001), text("\n" * 16384, 1000, width=0.001)])


@case("letters of many scripts, and marks piled upon one letter")
def piled_marks(folder):
    return document([text("a" + "\u0301" * 16000, 30), text("".join(chr(0x600 + i % 256) for i in range(16000)), 30, width=15),
                     text("\u202e\u202d\u2066" * 5000, 30), text("\U0001f468\u200d" * 5000, 30)])


@case("labels of long texts that are joined a thousand times over")
def longest_labels(folder):
    file = points(folder, 50, lambda i: {"name": "word " * 300})
    expression = "CONCAT(" + ",".join(["name"] * 1500) + ")"
    return one_map(layer(file, marker(), labels={"field": "name", "expression": expression, "wrap": 30, "symbol": {"type": "text"}}))


@case("labels that are repeated along lines as often as can be")
def closest_labels(folder):
    file = geojson(folder, [{"type": "LineString", "coordinates": [[(i % 2) * 100, i / 20 + j] for i in range(1500)]} for j in range(3)],
                   lambda i: {"name": "Line"})
    labels = {"field": "name", "repeat": 1e-9, "gap": 0, "linePlace": "curved", "symbol": {"type": "text", "size": 1}}
    return one_map(layer(file, line(), labels=labels))


@case("labels of the largest letters at thousands of points")
def largest_labels(folder):
    file = points(folder, 2000, lambda i: {"name": "A name that is not short"})
    labels = {"field": "name", "wrap": 0.01, "symbol": {"type": "text", "size": 1000, "haloSize": 1000}}
    return one_map(layer(file, marker(), labels=labels))


@case("labels of no size at thousands of points, so that all of them have room")
def smallest_labels(folder):
    labels = {"field": "name", "gap": 0, "symbol": {"type": "text", "size": 0.01, "haloSize": 0.5}}
    return one_map(layer(points(folder, 2000, lambda i: {"name": "Name " * 20}), marker(size=0.1), labels=labels))


# ---- what explains a map


@case("a legend of a thousand entries, each with all classes of the layer")
def longest_legend(folder):
    source = layer(points(folder, 10, lambda i: {"v": i}), marker())
    source["renderer"] = {"type": "graduated", "field": "v", "classes": [{"minimum": i, "label": f"{i}", "symbol": marker(size=1000 if i % 2 else 3)} for i in range(400)]}
    legend = {"kind": "legend", "map": 0, "entries": [{"layer": "Layer", "text": "Some words to be broken"} for _ in range(1000)], "wrap": 0.1}
    return document([frame(), {"type": "surround", "rectangle": [1, 1, 20, 28], "surround": legend}], [map_of([source])])


@case("scale bars with all divisions, of lengths that don't fit")
def finest_scale_bars(folder):
    bars = [{"type": "surround", "rectangle": [1, 1, 20, 2 + i], "surround": {"kind": "scaleLine", "map": 0, "divisions": 50, "subdivisions": 20,
             "divisionLength": 10.0 ** (9 - i), "style": "ticks", "height": 100}} for i in range(20)]
    return document([frame()] + bars, [map_of(bounds=(0, 0, 1e11, 1e11))])


@case("a hundred overviews of maps that show each other")
def most_overviews(folder):
    frames = [frame(i, rectangle=[1, 1, 20, 28], overviews=[{"map": j} for j in range(30) if j != i], grids=[{}]) for i in range(30)]
    return document(frames, [map_of(bounds=(-1e7, -1e7, 1e7, 1e7), coordinateSystem="EPSG:3035") for i in range(30)])


# ---- documents


@case("four thousand elements without a symbol")
def plain_elements(folder):
    return document([{"type": "marker", "position": [1, 1]}] * 2000 + [{"type": "rectangle", "rectangle": [1, 1, 2, 2]}] * 1000)


@case("groups in groups, as deep as the format allows, and deeper")
def deepest_groups(folder):
    element = {"type": "marker", "position": [1, 1]}
    for _ in range(400):
        element = {"type": "group", "members": [element]}
    return document([element])


@case("brackets nested a hundred thousand deep")
def deepest_brackets(folder):
    (folder / "deepest-brackets.kdx").write_text('{"format":"plotvane-document","version":1,"elements":' + "[" * 50000 + "]" * 50000 + "}")


@case("six hundred layers of one file, each with labels")
def many_layers(folder):
    file = points(folder, 500, lambda i: {"name": f"n{i}"})
    return one_map(*[layer(file, marker(size=1), f"L{i}") for i in range(600)])


@case("six hundred layers that each differ in their filter")
def many_filters(folder):
    file = points(folder, 500, lambda i: {"n": i})
    return one_map(*[layer(file, marker(size=1), f"L{i}", {"filter": f"n > {i}"}, opacity=50) for i in range(500)])


@case("a layer joined to itself twenty times")
def most_joins(folder):
    file = points(folder, 1000, lambda i: {"key": f"{i}", "name": "x" * 40})
    joins = [{"file": file, "key": "key", "tableKey": "key", "prefix": f"t{i}_"} for i in range(20)]
    return one_map(*[layer(file, marker(size=1), f"L{i}", {"joins": joins}) for i in range(20)])


@case("two hundred rules that each draw all features in layers of symbols")
def most_rules(folder):
    file = points(folder, 1000, lambda i: {"n": i})
    source = layer(file, marker())
    rule = {"symbol": {"type": "layeredMarker", "layers": [marker(size=9 - i / 3, color="#20ff0000") for i in range(4)]}}
    source["renderer"] = {"type": "rules", "match": "all", "rules": [rule] * 200}
    return one_map(source)


@case("conditions nested as deep as a text is long")
def deepest_condition(folder):
    file = points(folder, 100, lambda i: {"n": i})
    filters = ["(" * 8000 + "n=1" + ")" * 8000, "NOT " * 4000 + "n=1", "-" * 16000 + "1=n", "n=" + "1+" * 8000 + "1",
               "n IN (" + ",".join(str(i) for i in range(3000)) + ")", "CONCAT(" * 1500 + "n" + ",n)" * 1500 + "='a'"]
    return one_map(*[layer(file, marker(), f"L{i}", {"filter": each}) for i, each in enumerate(filters)])


@case("conditions whose pattern can be met in more ways than can be counted", "too many ways")
def slowest_patterns(folder):
    file = points(folder, 20, lambda i: {"name": "a" * 2000})
    return one_map(layer(file, marker(), source={"filter": "name LIKE '" + "%a" * 40 + "%b'"}),
                   layer(file, marker(), source={"filter": "name LIKE '" + "%_a" * 100 + "'"}))


@case("a series with a page for each of many features, and a name for each")
def longest_series(folder):
    file = points(folder, 1200, lambda i: {"name": f"{i}" * 10})
    return {**one_map(layer(file, marker())), "series": {"layer": "Layer", "sort": "name", "name": "[field:name]" * 1000, "map": 0}}


@case("pages of elements in numbers without an end")
def longest_page_numbers(folder):
    file = points(folder, 3)
    elements = [{"type": "marker", "position": [1, 1], "pages": "1-999999999,2-2000000000", "symbol": marker()}] * 500
    done = one_map(layer(file, marker()))
    done["elements"] += elements
    return {**done, "series": {"layer": "Layer"}}


@case("keys that are said again and again, and names of thousands of letters")
def odd_json(folder):
    (folder / "odd-json.kdx").write_text('{"format":"plotvane-document","version":1,"page":{"form":"A4"},' +
                                         ",".join(f'"{"k" * 20}{i % 7}":[{i}]' for i in range(2500)) + "}")


# ---- pictures


@case("a picture of more pixels than there is memory for")
def largest_picture(folder):
    (folder / "large.png").write_bytes(png(30000, 30000))
    return document([{"type": "picture", "rectangle": [1, 1, 20, 28], "path": "large.png"}])


@case("twenty pictures of as many pixels as a picture may have, in files of a few kilobytes")
def many_large_pictures(folder):
    (folder / "large.png").write_bytes(png(10000, 9999))
    return document([{"type": "picture", "rectangle": [1 + i % 5, 1, 4 + i % 5, 28], "path": "large.png", "angle": 3 * (i % 2)} for i in range(20)])


@case("one embedded picture of many pixels, stretched beyond all measure")
def stretched_picture(folder):
    data = "data:image/png;base64," + base64.b64encode(png(9000, 9000)).decode()
    return document([{"type": "picture", "rectangle": [-HUGE, -HUGE, HUGE, HUGE], "data": data, "angle": 45},
                     {"type": "picture", "rectangle": [-1000, -1000, 1000, 1000], "data": data, "angle": 10}])


@case("drawings that repeat their parts, with dashes and letters of absurd sizes")
def worst_drawings(folder):
    contents = [
        '<g id="a"><circle r="1"/></g>' + "".join(f'<g id="{chr(98 + i)}">' + f'<use xlink:href="#{chr(97 + i)}"/>' * 10 + "</g>" for i in range(8)),
        '<g id="a"><use xlink:href="#b"/></g><g id="b"><use xlink:href="#a"/></g>',
        '<path d="M0 0 L1e7 1e7" stroke="#000" stroke-width="0.1" stroke-dasharray="0.0001 0.0001"/>',
        '<path d="M0 0 L10 10" stroke="#000" stroke-width="0.1" stroke-dasharray="0.000001 0.000001"/>',
        '<text font-size="1000000">WWWW</text>', '<rect width="1e9" height="1e9" rx="1e8" stroke="#000" stroke-width="1e6"/>',
        '<text font-size="5">' + "W" * 5000 + "</text>", '<path d="M0 0' + "A5 5 0 1 1 10 10 A5 5 0 1 1 0 0" * 1000 + '"/>',
        '<animate dur="0.000001s" repeatCount="indefinite"/><circle r="5"><animate attributeName="r" from="0" to="1e9" dur="1e-9s"/></circle>']
    for i, content in enumerate(contents):
        (folder / f"{i}.svg").write_text(svg(content))
    return document([{"type": "picture", "rectangle": [1 + 2 * i, 1, 3 + 2 * i, 28], "path": f"{i}.svg"} for i in range(len(contents))] +
                    [{"type": "marker", "position": [5, 5], "symbol": {"type": "svgMarker", "svg": svg(content), "size": 100}} for content in contents[3:4] + contents[5:8]])


@case("an SVG of nested clips, gradients and images within images")
def heaviest_drawing(folder):
    image = "data:image/png;base64," + base64.b64encode(png(4096, 4096)).decode()
    (folder / "a.svg").write_text(svg(f'<image id="i" width="10" height="10" xlink:href="{image}"/>' * 6 + '<use xlink:href="#i"/>' * 200))
    return document([{"type": "picture", "rectangle": [1, 1, 20, 28], "path": "a.svg"}] * 3)


# ---- sources


@case("a GeoPackage whose layer is a view that calls itself ten million times", "calls itself")
def recursive_view(folder):
    blob = point_blob(50, 70)
    sql = f"CREATE VIEW points AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 10000000) SELECT i AS fid, {blob} AS geom FROM n;"
    return one_map(layer(geopackage(folder, sql), marker()))


@case("a GeoPackage whose layer is a view without an end", "calls itself")
def endless_view(folder):
    blob = point_blob(50, 70)
    sql = f"CREATE VIEW points AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i AS fid, {blob} AS geom FROM n WHERE i < 0;"
    return one_map(layer(geopackage(folder, sql), marker()))


@case("a GeoPackage whose layer is a view that joins a table with itself four times", "more features than")
def joined_view(folder):
    sql = stored_points(200, "p") + "CREATE VIEW points AS SELECT a.fid AS fid, a.geom AS geom, b.name AS name FROM p a, p b, p c, p d;"
    return one_map(layer(geopackage(folder, sql), marker()))


@case("a GeoPackage whose view joins without a row to show for it", "its view takes longer")
def barren_view(folder):
    sql = stored_points(200, "p") + "CREATE VIEW points AS SELECT a.fid AS fid, a.geom AS geom FROM p a, p b, p c, p d, p e WHERE a.fid + b.fid + c.fid + d.fid + e.fid < 0;"
    return one_map(layer(geopackage(folder, sql), marker()))


@case("a GeoPackage whose view makes values of a gigabyte", "could take for ever")
def swollen_view(folder):
    sql = stored_points(20, "p") + "CREATE VIEW points AS SELECT fid, geom, hex(zeroblob(400000000)) AS name FROM p;"
    return one_map(layer(geopackage(folder, sql), marker(), labels={"field": "name", "symbol": {"type": "text"}}))


@case("a GeoPackage whose table computes values of a gigabyte", "a value that is longer")
def swollen_table(folder):
    rows = ",".join(f"({i}, {point_blob(*place)})" for i, place in enumerate(scattered(20), 1))
    sql = f"CREATE TABLE points (fid INTEGER PRIMARY KEY, geom POINT, name TEXT GENERATED ALWAYS AS (hex(zeroblob(400000000))) VIRTUAL); INSERT INTO points VALUES {rows};"
    return one_map(layer(geopackage(folder, sql), marker(), labels={"field": "name", "symbol": {"type": "text"}}))


@case("a GeoPackage whose catalogue of contents is a view without an end", "calls itself")
def endless_catalogue(folder):
    sql = stored_points(20) + ("ALTER TABLE gpkg_contents RENAME TO c; CREATE VIEW gpkg_contents AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                               "SELECT c.* FROM n, c;")
    return one_map(layer(geopackage(folder, sql), marker()))


@case("a compressed Shapefile whose index names one area a million times", "more features than")
def repeated_shapes(folder):
    ring = b"".join(struct.pack("<dd", *place) for place in ((0, 0), (0, 100), (100, 100), (100, 0), (0, 0)))
    body = struct.pack("<i4d2ii", 5, 0, 0, 100, 100, 1, 5, 0) + ring
    count = 1000000
    box = struct.pack("<8d", 0, 0, 100, 100, 0, 0, 0, 0)

    def head(length):
        return struct.pack(">7i", 9994, 0, 0, 0, 0, 0, length // 2) + struct.pack("<2i", 1000, 5) + box

    shapes = head(108 + len(body)) + struct.pack(">2i", 1, len(body) // 2) + body
    index = head(100 + 8 * count) + struct.pack(">2i", 50, len(body) // 2) * count
    table = struct.pack("<4BIHH20x", 3, 126, 1, 1, count, 65, 11) + b"n\0\0\0\0\0\0\0\0\0\0N\0\0\0\0\x0a" + bytes(15) + b"\r" + bytes(31) + b"          1" * 0
    with zipfile.ZipFile(folder / "data.zip", "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        archive.writestr("data.shp", shapes)
        archive.writestr("data.shx", index)
    return one_map(layer("data.zip", fill(color="#02ff0000", outline=line())))


@case("areas of a few vertices that are drawn ten thousand times over")
def piled_areas(folder):
    stops = [{"position": 0, "color": "#08ff0000"}, {"position": 100, "color": "#080000ff"}]
    file = geojson(folder, [square(100 + i / 100, -i / 100) for i in range(800)])
    return one_map(layer(file, {"type": "gradientFill", "shape": "radial", "stops": stops}), layer(file, fill(style="cross", color="#02000000", outline=line(style="dash"))),
                   layer(file, fill(color="#02ff0000")), bounds=(0, 0, 1, 1.4))


@case("a line between the ends of the numbers, as data and in degrees")
def farthest_data(folder):
    ends = [[-1e308, -1e308], [1e308, 1e308], [1e300, -1e300], [0, 0], [1e15, 1e15], [-1e15, 1e16]]
    file = geojson(folder, [{"type": "LineString", "coordinates": ends}, {"type": "Polygon", "coordinates": [ends + ends[:1]]}] * 20)
    return one_map(layer(file, line(style="dash")), layer(file, fill(style="cross", outline=line(style="dash"))),
                   layer(file, {"type": "markerLine", "marker": marker(), "interval": 0.5}), coordinateSystem="EPSG:8857", bounds=(-1e7, -1e7, 1e7, 1e7))


@case("collections of geometries nested thousands deep")
def deepest_geometry(folder):
    nested = '{"type":"GeometryCollection","geometries":[' * 2000 + '{"type":"Point","coordinates":[1,1]}' + "]}" * 2000
    (folder / "data.geojson").write_text('{"type":"FeatureCollection","features":[{"type":"Feature","properties":{},"geometry":' + nested + "}]}")
    (folder / "data.csv").write_text('id,WKT\n1,"' + "GEOMETRYCOLLECTION(" * 4000 + "POINT(1 1)" + ")" * 4000 + '"\n')
    return one_map(layer("data.geojson", marker()), layer("data.csv", marker()))


@case("arcs and curves that are made of more vertices than the file has bytes")
def finest_curves(folder):
    arcs = "0 0" + "".join(f",{i / 100 + 50} 1e9,{i / 100} {i % 2}" for i in range(1000))
    flat = "".join(f'{i},"CIRCULARSTRING(0 0,50 {10.0 ** -i:.12f},100 0)"\n' for i in range(12))
    (folder / "data.csv").write_text(f'id,WKT\n1,"CIRCULARSTRING({arcs})"\n' + flat)
    return one_map(layer("data.csv", line(), source={"geometryField": "WKT"}))


@case("a drawing whose blocks repeat each other until nobody can count them", "its blocks repeat")
def nested_blocks(folder):
    def block(name, inner):
        return f"0\nBLOCK\n2\n{name}\n10\n0\n20\n0\n" + inner + "0\nENDBLK\n"

    def insert(name, extra=""):
        return f"0\nINSERT\n2\n{name}\n10\n1\n20\n1\n{extra}"

    blocks = block("B0", "0\nPOINT\n10\n1\n20\n1\n") + "".join(block(f"B{i}", insert(f"B{i - 1}") * 10) for i in range(1, 12))
    grid = insert("B0", "70\n30000\n71\n30000\n44\n0.01\n45\n0.01\n")
    (folder / "data.dxf").write_text("0\nSECTION\n2\nHEADER\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n" + blocks + "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + insert("B11") + grid + "0\nENDSEC\n0\nEOF\n")
    return one_map(layer("data.dxf", marker()))


@case("places whose entities multiply themselves")
def multiplied_entities(folder):
    entities = "".join(f'<!ENTITY e{i} "{f"&e{i - 1};" * 10}">' for i in range(1, 10))
    head = f'<?xml version="1.0"?><!DOCTYPE x [<!ENTITY e0 "aaaaaaaaaa">{entities}]>'
    (folder / "data.kml").write_text(head + '<kml xmlns="http://www.opengis.net/kml/2.2"><Document><Placemark><name>&e9;</name><Point><coordinates>1,1</coordinates></Point></Placemark></Document></kml>')
    (folder / "data.gpx").write_text(head + '<gpx version="1.1" xmlns="http://www.topografix.com/GPX/1/1"><wpt lat="1" lon="1"><name>&e9;</name></wpt></gpx>')
    return one_map(layer("data.kml", marker()), layer("data.gpx", marker()))


def packed_places(folder):
    """A KMZ that is a three hundredth of the text in it."""
    head, end = '<kml xmlns="http://www.opengis.net/kml/2.2"><Document>', "</Document></kml>"
    places = "<Placemark><name>" + "a" * 1000 + "</name><Point><coordinates>1,1</coordinates></Point></Placemark>"
    with zipfile.ZipFile(folder / "data.kmz", "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        archive.writestr("doc.kml", head + places * 55000 + end)
    return layer("data.kmz", marker())


@case("places and areas in archives that are a thousandth of what they hold", "far more than an archive")
def swollen_archives(folder):
    with zipfile.ZipFile(folder / "data.zip", "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        archive.writestr("data.shp", bytes(200000000))
    return one_map(packed_places(folder), layer("data.zip", fill()))


@case("an archive whose directory says that nearly nothing is in it", "can't be opened")
def understated_archive(folder):
    places = packed_places(folder)
    packed = bytearray((folder / "data.kmz").read_bytes())
    directory = packed.rindex(b"PK\x01\x02")
    packed[directory + 24:directory + 28] = struct.pack("<I", 1000)
    (folder / "data.kmz").write_bytes(packed)
    return one_map(places)


@case("a table of thousands of columns")
def widest_table(folder):
    (folder / "data.csv").write_text("x,y," + ",".join(f"c{i}" for i in range(8000)) + "\n" + "1,1\n" * 2000)
    return one_map(*[layer("data.csv", marker(), labels={"field": "c1", "symbol": {"type": "text"}}) for _ in range(3)])


def write(folder, names=None):
    """Writes the documents into the folder and answers where each lies."""
    written = {}
    for name in names or CASES:
        own = Path(folder) / name
        own.mkdir(parents=True, exist_ok=True)
        done = CASES[name][1](own)
        written[name] = own / f"{name}.kdx"
        if done is not None:
            written[name].write_text(json.dumps(done, separators=(",", ":")))
    return written


if __name__ == "__main__":
    if sys.argv[1:2] == ["--list"]:
        for name, (text_of, *_) in CASES.items():
            print(f"{name:28} {text_of}")
    elif len(sys.argv) > 1 and not set(sys.argv[2:]) - set(CASES):
        write(sys.argv[1], sys.argv[2:])
    else:
        sys.exit("make.py FOLDER [NAME...] or make.py --list")
