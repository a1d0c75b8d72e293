"""Documents that try to reach what lies outside of their folder, beside which lies a folder OUTSIDE."""
import json
import shutil
import sqlite3
import struct
import sys
import zipfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "hostile"))
import make
from parts import document, frame, layer, map_of, marker, one_map

SAMPLES = Path(__file__).resolve().parent.parent.parent / "samples/data"
CASES = {}
ADDRESS = "http://127.0.0.1:9/x"  # nobody answers there


def case(made):
    CASES[made.__name__.replace("_", "-")] = made
    return made


def fill_outside(outside):
    """What the documents are after: each kind of file, well formed, so that nothing but its place keeps it closed."""
    outside.mkdir(parents=True)
    shutil.copy(SAMPLES / "world.gpkg", outside / "data.gpkg")
    (outside / "data.geojson").write_text('{"type":"Point","coordinates":[1,1]}')
    (outside / "data.csv").write_text("x,y,id\n1,1,1\n")
    (outside / "types").write_text("Real,Real,Integer")
    (outside / "picture.svg").write_text(svg("<rect width='9' height='9'/>"))
    (outside / "secret").write_text("secret\n")
    with zipfile.ZipFile(outside / "data.zip", "w") as archive:
        archive.writestr("data.geojson", '{"type":"Point","coordinates":[1,1]}')


def points(file, **source):
    return layer(file, marker(), name=file, source=source)


def geojson(**more):
    point = {"type": "Feature", "properties": {}, "geometry": {"type": "Point", "coordinates": [1, 1]}}
    return json.dumps({"type": "FeatureCollection", **more, "features": [point]})


def svg(body):
    return ("<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='0 0 9 9'>"
            + body + "</svg>")


def picture(path, **more):
    return {"type": "picture", "path": path, "rectangle": [1, 1, 5, 5], **more}


def pictures(*paths):
    return document([picture(path) for path in paths])


@case
def sources_by_path(folder, outside):
    names = ["data.gpkg", "data.geojson", "data.csv"]
    return one_map(*[points(f"{place}/{name}") for name in names for place in ("../../outside", str(outside), "./x/../../../outside")])


@case
def sources_by_prefix(folder, outside):
    paths = [f"{ADDRESS}.geojson", f"/vsicurl/{ADDRESS}.geojson", f"/vsizip/{outside}/data.zip/data.geojson",
             f"/vsisubfile/0_100,{outside}/data.geojson", f"GPKG:{outside}/data.gpkg:cities", f"CSV:{outside}/data.csv",
             f"PG:host=127.0.0.1 port=9", f"WFS:{ADDRESS}", f"file://{outside}/data.geojson", f"{{{outside}/data.gpkg}}",
             f'<OGRVRTDataSource><OGRVRTLayer name="data"><SrcDataSource>{outside}/data.csv</SrcDataSource></OGRVRTLayer></OGRVRTDataSource>',
             f'{{"type":"ESRIJSON","url":"{ADDRESS}"}}', f"sqlite:{outside}/data.gpkg", f"//127.0.0.1/share/data.gpkg",
             f"\\\\127.0.0.1\\share\\data.gpkg", f"/proc/self/root{outside}/data.geojson"]
    return one_map(*[points(path) for path in paths])


@case
def links(folder, outside):
    for name in ("data.gpkg", "data.geojson", "data.csv", "picture.svg"):
        (folder / name).symlink_to(f"../../outside/{name}")
    (folder / "all").symlink_to("../../outside")
    (folder / "twice.geojson").symlink_to("all/data.geojson")
    return document([frame(), picture("picture.svg"), picture("all/picture.svg")],
                    [map_of([points(name) for name in ("data.gpkg", "data.geojson", "data.csv", "all/data.gpkg", "twice.geojson")])])


@case
def companions(folder, outside):
    (folder / "typed.csv").write_text("x,y,id\n1,1,1\n")
    (folder / "typed.csvt").symlink_to(outside / "types")
    (folder / "log.gpkg").write_bytes((SAMPLES / "world.gpkg").read_bytes())
    (folder / "log.gpkg-wal").symlink_to(outside / "secret")
    (folder / "open.gpkg").write_bytes((SAMPLES / "world.gpkg").read_bytes())
    (folder / "open.gpkg-journal").write_text("x")  # that of another program that is at work
    return one_map(points("typed.csv"), points("log.gpkg"), points("open.gpkg"))


@case
def tables(folder, outside):
    (folder / "own.csv").write_text("x,y,id\n1,1,1\n")
    join = {"file": "../../outside/data.csv", "key": "id", "tableKey": "id"}
    return {**one_map(points("own.csv", joins=[join])), "series": {"source": {"file": f"{outside}/data.csv", "joins": [join]}}}


@case
def coordinate_systems(folder, outside):
    texts = [f"+proj=longlat +datum=WGS84 +nadgrids={outside}/secret +type=crs",
             f"+proj=longlat +ellps=WGS84 +nadgrids=@null,{outside}/secret", f"+init={outside}/secret:1",
             f"+proj=utm +zone=33 +geoidgrids={outside}/secret", f"{outside}/secret", f"{ADDRESS}", f"file://{outside}/secret",
             f"+proj=pipeline +step +proj=hgridshift +grids={outside}/secret"]
    (folder / "own.geojson").write_text(geojson())
    maps = [map_of([points("own.geojson")], coordinateSystem=text) for text in texts]
    maps += [map_of([points("own.geojson", coordinateSystem=text)], coordinateSystem="EPSG:3857") for text in texts]
    return document([frame(number) for number in range(len(maps))], maps)


@case
def coordinate_systems_of_data(folder, outside):
    for number, (kind, key, value) in enumerate([("link", "href", f"{outside}/secret"), ("link", "href", ADDRESS), ("url", "url", ADDRESS),
                                                 ("name", "name", f"+proj=longlat +nadgrids={outside}/secret"),
                                                 ("name", "name", f"{outside}/secret"), ("name", "name", f"file://{outside}/secret")]):
        (folder / f"{number}.geojson").write_text(geojson(crs={"type": kind, "properties": {key: value}}))
    wkt = ('GEOGCS["x",DATUM["d",SPHEROID["s",6378137,298.25]],PRIMEM["g",0],UNIT["degree",0.0174532925199433],'
           f'EXTENSION["PROJ4","+proj=longlat +ellps=WGS84 +nadgrids={outside}/secret"]]')
    database = shutil.copy(SAMPLES / "world.gpkg", folder / "system.gpkg")
    with sqlite3.connect(database) as gpkg:
        gpkg.execute("INSERT INTO gpkg_spatial_ref_sys VALUES ('x', 777, 'NONE', 777, ?, '')", (wkt,))
        gpkg.execute("UPDATE gpkg_contents SET srs_id = 777")
        gpkg.execute("UPDATE gpkg_geometry_columns SET srs_id = 777")
    layers = [points(f"{number}.geojson") for number in range(6)] + [points("system.gpkg")]
    return document([frame()], [map_of(layers, coordinateSystem="EPSG:3857")])


@case
def databases(folder, outside):
    """Views and tables of a GeoPackage that ask functions and modules of the database for files and addresses."""
    asked = {"pixel": f"gdal_get_pixel_value('{outside}/secret', 1, 'pixel', 0, 0)",
             "address": f"gdal_get_pixel_value('/vsicurl/{ADDRESS}', 1, 'pixel', 0, 0)",
             "geocode": "ogr_geocode('Berlin')", "extension": f"load_extension('{outside}/secret')",
             "file": f"readfile('{outside}/secret')", "written": f"writefile('{outside}/written', 'x')",
             "import": f"ST_ImportFromWkt('{outside}/secret')", "blob": f"BlobFromFile('{outside}/secret')"}
    tables = {"virtual": f"USING VirtualOGR('{outside}/data.csv')", "shape": f"USING VirtualShape('{outside}/data', 'UTF-8', 4326)",
              "text": f"USING VirtualText('{outside}/data.csv', 'UTF-8', 1)"}
    layers = []
    for name in [*asked, *tables]:
        database = shutil.copy(SAMPLES / "world.gpkg", folder / f"{name}.gpkg")
        with sqlite3.connect(database) as gpkg:
            gpkg.execute("DROP TRIGGER IF EXISTS rtree_cities_geom_insert")
            geometry = gpkg.execute("SELECT column_name FROM gpkg_geometry_columns WHERE table_name = 'cities'").fetchone()[0]
            gpkg.execute("ALTER TABLE cities RENAME TO hidden")
            if name in asked:
                gpkg.execute(f"CREATE VIEW cities AS SELECT rowid AS fid, {geometry}, {asked[name]} AS name FROM hidden")
            else:
                gpkg.execute("PRAGMA writable_schema = ON")
                gpkg.execute("INSERT INTO sqlite_master VALUES ('table', 'cities', 'cities', 0, ?)",
                             (f"CREATE VIRTUAL TABLE cities {tables[name]}",))
            for table in ("gpkg_contents", "gpkg_geometry_columns"):  # the rename may have changed them
                gpkg.execute(f"UPDATE {table} SET table_name = 'cities' WHERE table_name = 'hidden'")
        layers.append(layer(f"{name}.gpkg", marker(), name=name, source={"layer": "cities", "filter": "name <> 'x'"}))
    return one_map(*layers)


@case
def formats_that_name_files(folder, outside):
    vrt = f'<OGRVRTDataSource><OGRVRTLayer name="data"><SrcDataSource>{outside}/data.csv</SrcDataSource></OGRVRTLayer></OGRVRTDataSource>'
    for name in ("a.vrt", "vrt.gpkg", "vrt.json", "vrt.kml", "vrt.csv", "vrt.gpx", "vrt.tab", "vrt.dxf", "vrt.shp"):
        (folder / name).write_text(vrt)
    (folder / "view.tab").write_text(f'!table\n!version 100\nOpen Table "{outside}/data" Hide\nCreate View x As Select * From data\n')
    (folder / "seamless.tab").write_text('!table\n!version 300\nDefinition Table\n  Type NATIVE\n  Fields 1\n    Table Char (99);\nbegin_metadata\n"\\IsSeamless" = "TRUE"\nend_metadata\n')
    (folder / "dbf.tab").write_text(f'!table\n!version 300\nDefinition Table\n  File "{outside}/data.dbf"\n  Type DBF\n  Fields 1\n    a Char (9);\n')
    head = '<kml xmlns="http://www.opengis.net/kml/2.2"><Document>'
    (folder / "a.kml").write_text(f'<?xml version="1.0"?><!DOCTYPE kml [<!ENTITY x SYSTEM "file://{outside}/secret">]>{head}'
                                  f'<NetworkLink><Link><href>{outside}/data.kml</href></Link></NetworkLink><NetworkLink><Link><href>{ADDRESS}</href></Link></NetworkLink>'
                                  f'<Placemark><name>&x;</name><styleUrl>{outside}/secret#s</styleUrl><Point><coordinates>1,1</coordinates></Point></Placemark></Document></kml>')
    (folder / "a.gpx").write_text(f'<?xml version="1.0"?><!DOCTYPE gpx [<!ENTITY x SYSTEM "file://{outside}/secret">]><gpx version="1.1" xmlns="http://www.topografix.com/GPX/1/1"><wpt lat="1" lon="1"><name>&x;</name><link href="{ADDRESS}"/></wpt></gpx>')
    (folder / "a.dxf").write_text(f"0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nX\n70\n4\n10\n0\n20\n0\n3\nX\n1\n{outside}/secret\n0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nINSERT\n8\n0\n2\nX\n10\n1\n20\n1\n0\nENDSEC\n0\nEOF\n")
    with zipfile.ZipFile(folder / "a.zip", "w") as archive:
        archive.writestr("../../outside/data.shp", b"x")
        archive.writestr(f"{outside}/data.shp", b"x")
    names = sorted(path.name for path in folder.iterdir())
    return one_map(*[points(name) for name in names])


def tiff(system):
    """Four grey pixels, with a citation of a coordinate system as a GeoTIFF has it."""
    text = f"ESRI PE String = {system}|".encode()
    keys = struct.pack("<16H", 1, 1, 0, 3, 1024, 0, 1, 2, 2048, 0, 1, 32767, 2049, 34737, len(text), 0)
    scale, tie = struct.pack("<3d", 1, 1, 0), struct.pack("<6d", 0, 0, 0, 10, 50, 0)
    at = 8 + 2 + 14 * 12 + 4
    places = [at, at + len(keys), at + len(keys) + len(scale), at + len(keys) + len(scale) + len(tie)]
    entries = [(256, 3, 1, 2), (257, 3, 1, 2), (258, 3, 1, 8), (259, 3, 1, 1), (262, 3, 1, 1), (273, 4, 1, places[3] + len(text)),
               (277, 3, 1, 1), (278, 3, 1, 2), (279, 4, 1, 4), (33550, 12, 3, places[1]), (33922, 12, 6, places[2]),
               (34735, 3, 16, places[0]), (34737, 2, len(text), places[3]), (339, 3, 1, 1)]
    directory = struct.pack("<H", len(entries)) + b"".join(struct.pack("<HHII", *entry) for entry in sorted(entries))
    return struct.pack("<2sHI", b"II", 42, 8) + directory + struct.pack("<I", 0) + keys + scale + tie + text + bytes([0, 80, 160, 240])


@case
def rasters(folder, outside):
    wkt = ('GEOGCS["x",DATUM["d",SPHEROID["s",6378137,298.25]],PRIMEM["g",0],UNIT["degree",0.0174532925199433],'
           f'EXTENSION["PROJ4","+proj=longlat +ellps=WGS84 +nadgrids={outside}/secret"]]')
    (folder / "system.tif").write_bytes(tiff(wkt))
    for name in ("plain.tif", "overview.tif", "mask.tif", "world.tif", "told.tif"):
        (folder / name).write_bytes(tiff(wkt.split(",EXTENSION")[0] + "]"))
    (folder / "overview.tif.ovr").symlink_to(outside / "secret")
    (folder / "mask.tif.msk").write_text(f'<VRTDataset rasterXSize="2" rasterYSize="2"><VRTRasterBand dataType="Byte" band="1"><SimpleSource><SourceFilename>{outside}/picture.svg</SourceFilename></SimpleSource></VRTRasterBand></VRTDataset>')
    (folder / "world.tfw").symlink_to(outside / "secret")
    (folder / "told.tif.aux.xml").write_text(f'<PAMDataset><Metadata domain="OVERVIEWS"><MDI key="OVERVIEW_FILE">{outside}/secret</MDI></Metadata><SRS>{wkt.replace(chr(34), "&quot;")}</SRS></PAMDataset>')
    for name in ("source.vrt", "source.tif", "source.png", "source.jp2", "source.mbtiles"):
        shutil.copy(folder / "mask.tif.msk", folder / name)
    (folder / "link.tif").symlink_to(outside / "secret")
    names = [*sorted(path.name for path in folder.iterdir()), f"{outside}/secret", f"/vsicurl/{ADDRESS}.tif", f"GTIFF_DIR:1:{outside}/secret", f"WMS:{ADDRESS}"]
    layers = [{"type": "raster", "name": name, "source": {"file": name}, "renderer": {"type": kind}}
              for name in names for kind in ("color", "slope")]
    return one_map(*layers, coordinateSystem="EPSG:4326")


@case
def pictures_by_path(folder, outside):
    return pictures("../../outside/picture.svg", f"{outside}/picture.svg", f"file://{outside}/picture.svg", ADDRESS,
                    f":/../../{outside}/picture.svg", f"/proc/self/root{outside}/picture.svg", "qrc:/icons/a.svg")


@case
def drawings(folder, outside):
    bodies = [f"<image {name}='{prefix}{outside}/picture.svg' width='9' height='9'/>" for name in ("href", "xlink:href") for prefix in ("", "file://")]
    bodies += [f"<image href='{ADDRESS}' width='9' height='9'/>", f"<use href='{outside}/picture.svg#a'/>",
               f"<style>@import url({outside}/secret);</style>", f"<style>@font-face{{font-family:a;src:url({outside}/secret)}}</style>",
               f"<rect width='9' height='9' style='fill:url({outside}/picture.svg#a)'/>"]
    texts = [svg(body) for body in bodies]
    texts += [f"<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY x SYSTEM 'file://{outside}/secret'>]>" + svg("<text>&x;</text>"),
              f"<?xml-stylesheet href='{outside}/secret'?>" + svg("<rect width='9' height='9'/>")]
    elements = []
    for number, text in enumerate(texts):
        (folder / f"{number}.svg").write_text(text)
        elements.append(picture(f"{number}.svg"))
    return document(elements)


@case
def symbols(folder, outside):
    """A document with a drawing that may not be is refused as a whole."""
    text = svg(f"<image href='{outside}/picture.svg' width='9' height='9'/>")
    return document([{"type": "marker", "position": [3, 3], "symbol": {"type": "svgMarker", "svg": text, "size": 40}}])


@case
def texts(folder, outside):
    words = [f"[{name}:{outside}/secret]" for name in ("file", "include", "path", "field", "title")]
    return document([{"type": "text", "position": [3, 3 + number], "text": word, "symbol": {"type": "text", "font": f"{outside}/secret"}}
                     for number, word in enumerate([*words, f"<img src='{outside}/picture.svg'>", f"<a href='{ADDRESS}'>x</a>"])])


@case
def the_document_is_a_link(folder, outside):
    (outside / "document.kdx").write_text(json.dumps(document()))
    (folder / "the-document-is-a-link.kdx").symlink_to(outside / "document.kdx")
    return None


def write(name, folder, outside):
    """Writes a document of these, and answers where it lies."""
    path = folder / f"{name}.kdx"
    if (done := CASES[name](folder, outside)) is not None:
        path.write_text(json.dumps(done))
    return path
