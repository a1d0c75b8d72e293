"""Sources of data that take more to read than they are worth."""
import struct
import zipfile

from parts import (case, fill, geojson, geopackage, layer, line, marker, one_map, point_blob, points, scattered,
                   square, stored_points, text)


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
