#!/usr/bin/env python3
"""Holds maps in many coordinate systems against PROJ alone: what of land, sea and lines they show, and their scale."""
import argparse
import functools
import json
import math
import multiprocessing
import os
import subprocess
import sys
import tempfile
import warnings
from pathlib import Path

try:
    import numpy
    import pyproj
    from osgeo import gdal, ogr
    from pyproj.database import query_crs_info
    from pyproj.enums import PJType
    from pyproj.list import get_proj_operations_map
except ImportError as missing:
    print(f"{missing}; install Debian's python3-gdal, python3-numpy and python3-pyproj")
    sys.exit(77)

ROOT = Path(__file__).resolve().parents[2]
OUT = ROOT / "out/projections"
SAMPLES = ROOT / "samples/data"
RIGHT = 0.995                      # of the pixels that are judged
RIGHT_OF_KIND = 0.97               # of those that are land, sea, or nothing
SQUARES = 8                        # along the longer side of an area
RIGHT_OF_SAMPLE = 0.99             # of a sample's, which are larger beside the borders
RIGHT_SCALE = 0.002                # as a part of it
SIDE, PAGE_WIDTH = 19, 21          # of the map and of an A4 page, in centimetres
NEAR = 2                           # pixels about one that is judged, in each direction
FAR = 24                           # and about one in which there must be nothing: places may lie so far apart on a map
SILENT = "empty without a word"
NORTHMOST = 60                     # degrees: beyond it meridians of a grid are left out where they lie close
NOTHING, SEA, LAND = 0, 1, 2
COLOURS = {SEA: "#0000ff", LAND: "#ff0000"}
RADII = 6                          # farther away from the middle of a map than this nothing is shown
# How far from their centres the manual says that these are shown, in degrees.
ENDS = {"gnom": 70, "stere": 140, "sterea": 140, "ups": 90, "laea": 179.5, "aeqd": 179.3, "airy": 90}
LAST_LATITUDES = {"merc": 89, "webmerc": 85.05}
INTERVALS = [30, 15, 10, 5, 2, 1, 0.5, 0.2, 0.1, 0.05, 0.02, 0.01, 0.005]  # degrees, of the lines of a grid
# Where those are meant to be used that are none for the world: west, south, east, north.
LOCAL = {"alsk": (-170, 54, -130, 72), "gs48": (-125, 25, -67, 49), "gs50": (-180, 18, -66, 72), "lee_os": (-200, -40, -130, 40),
         "mil_os": (-20, -35, 55, 60), "nzmg": (166, -48, 179, -34)}
PARAMETERS = {
    "aea": "+lat_1=30 +lat_2=60", "lcc": "+lat_1=30 +lat_2=60", "eqdc": "+lat_1=30 +lat_2=60", "bonne": "+lat_1=45",
    "euler": "+lat_1=30 +lat_2=60", "murd1": "+lat_1=30 +lat_2=60", "murd2": "+lat_1=30 +lat_2=60",
    "murd3": "+lat_1=30 +lat_2=60", "pconic": "+lat_1=30 +lat_2=60", "tissot": "+lat_1=30 +lat_2=60",
    "vitk1": "+lat_1=30 +lat_2=60", "leac": "+lat_1=45", "omerc": "+lat_0=20 +lonc=10 +alpha=35", "loxim": "+lat_1=30",
    "tpeqd": "+lat_1=40 +lon_1=-40 +lat_2=30 +lon_2=60",
    "chamb": "+lat_1=50 +lon_1=-10 +lat_2=0 +lon_2=-30 +lat_3=0 +lon_3=40",
    "ocea": "+lat_1=30 +lon_1=-20 +lat_2=40 +lon_2=60", "oea": "+m=1 +n=2 +theta=30", "urm5": "+n=0.9 +alpha=2 +q=4",
    "urmfps": "+n=0.5", "utm": "+zone=31", "nsper": "+h=5000000", "tpers": "+h=5000000 +tilt=20 +azi=30",
    "geos": "+h=35785831", "lsat": "+lsat=2 +path=2", "misrsom": "+path=1", "labrd": "+lat_0=-18 +lon_0=46 +azi=19",
    "imw_p": "+lat_1=30 +lat_2=60", "ob_tran": "+o_proj=eqearth +o_lat_p=30 +o_lon_p=-60", "lagrng": "+W=2",
    "som": "+lat_0=45", "col_urban": "+lat_0=4 +lon_0=-74 +h_0=2550", "ccon": "+lat_1=50", "rouss": "+lat_0=20",
    "sterea": "+lat_0=50", "stere": "+lat_0=50", "ortho": "+lat_0=40 +lon_0=10", "gnom": "+lat_0=40", "laea": "+lat_0=52",
    "aeqd": "+lat_0=40 +lon_0=20", "airy": "+lat_0=40",
}
SAMPLE_PROJECTIONS = """adams_ws1 aea aeqd airy aitoff alsk bonne cass eck4 eqc eqearth eqdc gall geos gnom
    goode gs50 gstmerc hammer healpix igh igh_o imoll isea laea lcc merc misrsom moll natearth nsper ob_tran ocea omerc
    ortho peirce_q rhealpix robin sinu stere tmerc tpeqd tpers vandg wintri""".split()
SAMPLE_WORLDS = ["EPSG:3857", "EPSG:3413", "EPSG:3031", "EPSG:28428", "EPSG:2580", "ESRI:54052", "EPSG:3993",
                 "+proj=laea +lat_0=52 +datum=WGS84 +type=crs"]
LABORDE = "+proj=omerc +lat_0=-18.9 +lonc=46.43722917 +alpha=18.9 +gamma=18.9 +k=0.9995 +ellps=intl +type=crs"
SAMPLE_AREAS = {"EPSG:3035": (-16, 33, 39, 72), "EPSG:27200": (166, -48, 179, -34), LABORDE: (42, -26, 51, -11),
                "EPSG:27700": (-9, 50, 2, 61), "EPSG:5070": (-125, 24, -66, 49), "EPSG:21250": (148, 43, 152, 77),
                "EPSG:5514": (12, 47.7, 22.6, 51.1)}
NOT_FLAT = {"latlong", "longlat", "latlon", "lonlat", "geocent", "topocentric", "geogoffset", "noop", "unitconvert", "pop",
            "push", "set", "vertoffset", "affine"}


def unrolled(ring):
    """The vertices with longitudes that go on where they step over the antimeridian, closed by way of a pole that the
    ring runs around."""
    vertices = numpy.array(ring.GetPoints())[:, :2]
    steps = numpy.diff(vertices[:, 0], prepend=vertices[0, 0])
    vertices[:, 0] -= 360 * numpy.cumsum(numpy.round(steps / 360))
    turn = vertices[-1, 0] - vertices[0, 0]
    if abs(turn) > 180:
        pole = 90 if vertices[:, 1].mean() > 0 else -90
        vertices = numpy.concatenate([vertices, [[vertices[-1, 0], pole], [vertices[0, 0], pole], vertices[0]]])
    return vertices


def land():
    """The countries, their rings unrolled, as a layer in memory."""
    source = ogr.Open(str(SAMPLES / "world.gpkg"))
    copy = ogr.GetDriverByName("Memory").CreateDataSource("")
    layer = copy.CreateLayer("land", source.GetLayerByName("countries").GetSpatialRef())
    for feature in source.GetLayerByName("countries"):
        shape = feature.GetGeometryRef()
        for polygon in [shape] if shape.GetGeometryType() == ogr.wkbPolygon else shape:
            made = ogr.Geometry(ogr.wkbPolygon)
            for ring in polygon:
                line = ogr.Geometry(ogr.wkbLinearRing)
                for x, y in unrolled(ring):
                    line.AddPoint_2D(x, y)
                made.AddGeometry(line)
            row = ogr.Feature(layer.GetLayerDefn())
            row.SetGeometry(made)
            layer.CreateFeature(row)
    return copy


class Board:
    """An area's squares of two colours: land and sea may have no coast there that would tell where it is."""

    def __init__(self, west, south, east, north):
        self.west, self.south = west, south
        across, up = (east - west) * math.cos(math.radians((south + north) / 2)), north - south
        self.columns, self.rows = (max(1, round(SQUARES * side / max(across, up))) for side in (across, up))
        self.width, self.height = (east - west) / self.columns, (north - south) / self.rows

    def is_land(self, x, y):
        return (numpy.floor((x - self.west) / self.width) + numpy.floor((y - self.south) / self.height)) % 2 == 0

    def write(self, path):
        features = []
        for column in range(self.columns):
            for row in range(column % 2, self.rows, 2):
                west, south = self.west + column * self.width, self.south + row * self.height
                east, north = west + self.width, south + self.height
                ring = [[west, south], [east, south], [east, north], [west, north], [west, south]]
                features.append({"type": "Feature", "properties": {},
                                 "geometry": {"type": "Polygon", "coordinates": [ring]}})
        path.write_text(json.dumps({"type": "FeatureCollection", "features": features}))


class Places:
    """Places of a part of the globe in rows and columns, and whether they are land: of the squares of an area, or of the
    globe by GDAL's rasteriser."""

    def __init__(self, west, south, east, north, columns, rows, is_world):
        width, height = (east - west) / columns, (north - south) / rows
        longitude = west + (numpy.arange(columns) + 0.5) * width
        latitude = south + (numpy.arange(rows) + 0.5) * height
        self.x, self.y = (each.ravel() for each in numpy.meshgrid(longitude, latitude))
        if not is_world:
            self.is_land = Board(west, south, east, north).is_land(self.x, self.y)
            return
        is_land = numpy.zeros((rows, columns), bool)
        countries = land()
        for turn in (-360, 0, 360):
            raster = gdal.GetDriverByName("MEM").Create("", columns, rows, 1)
            raster.SetGeoTransform([west + turn, width, 0, north, 0, -height])
            raster.SetProjection(countries.GetLayer().GetSpatialRef().ExportToWkt())
            gdal.RasterizeLayer(raster, [1], countries.GetLayer(), burn_values=[1])
            is_land |= raster.ReadAsArray()[::-1].astype(bool)
        self.is_land = is_land.ravel()


class Crossings:
    """Places where meridians and parallels cross, as far from the poles as each meridian is drawn; or, so many intervals
    on, places of one of the two alone; or beside them."""

    def __init__(self, west, south, east, north, on=(0, 0), beside=0):
        self.interval = next(each for each in INTERVALS if each <= min(east - west, north - south) / 4)
        south, north = max(south, -NORTHMOST), min(north, NORTHMOST)
        x, y = ((numpy.arange(math.ceil(first / self.interval), math.floor(last / self.interval) + 1) + more) * self.interval
                for first, last, more in ((west, east, on[0]), (south, north, on[1])))
        self.x, self.y = (each.ravel() + beside for each in numpy.meshgrid(x, y[y <= north]))


def near(mask, reach=NEAR):
    """What has something of the mask within so many pixels across and up."""
    wide = numpy.pad(mask, reach)
    size = 2 * reach + 1
    across = numpy.logical_or.reduce([wide[:, at:at + mask.shape[1]] for at in range(size)])
    return numpy.logical_or.reduce([across[at:at + mask.shape[0]] for at in range(size)])


class Truth:
    """Where PROJ takes places, of the whole globe or of an area."""

    def __init__(self, system, places, is_world):
        self.crs = pyproj.CRS.from_user_input(system)
        self.places, self.is_world = places, is_world
        to_map = (pyproj.Proj(self.crs) if is_world else
                  pyproj.Transformer.from_crs("EPSG:4326", self.crs, always_xy=True).transform)
        self.x, self.y = (numpy.array(each) for each in to_map(places.x, places.y))
        finite = numpy.isfinite(self.x) & numpy.isfinite(self.y)
        definition = self.crs.to_dict()
        unit = self.crs.axis_info[0].unit_conversion_factor
        self.middle = (definition.get("x_0", 0) / unit, definition.get("y_0", 0) / unit)
        self.reach = RADII * self.crs.ellipsoid.semi_major_metre / unit
        self.is_shown = finite
        if is_world:
            self.is_shown &= numpy.hypot(self.x - self.middle[0], self.y - self.middle[1]) < self.reach
            self.is_shown &= self.comes_back(to_map)
            self.is_shown &= self.is_meant(definition)
        # What PROJ takes somewhere, though not from there to where it was, is not judged.
        self.is_unsure = finite & ~self.is_shown

    def comes_back(self, to_map):
        with numpy.errstate(all="ignore"):
            try:
                x, y = (numpy.array(each) for each in to_map(self.x, self.y, inverse=True))
            except pyproj.exceptions.ProjError:
                return True
            if not numpy.isfinite(x).any():
                return True
            off = numpy.remainder(x - self.places.x + 180, 360) - 180
            return (numpy.abs(off) * numpy.cos(numpy.radians(self.places.y)) < 0.01) & (numpy.abs(y - self.places.y) < 0.01)

    def is_meant(self, definition):
        name = definition.get("proj")
        last = LAST_LATITUDES.get("webmerc" if definition.get("nadgrids") == "@null" else name)
        if last is not None:
            return numpy.abs(self.places.y) < last
        farthest = ENDS.get(name)
        if farthest is None:
            return True
        latitude, longitude = numpy.radians(definition.get("lat_0", 0)), definition.get("lon_0", 0)
        y, x = numpy.radians(self.places.y), numpy.radians(self.places.x - longitude)
        cosine = numpy.sin(latitude) * numpy.sin(y) + numpy.cos(latitude) * numpy.cos(y) * numpy.cos(x)
        return numpy.degrees(numpy.arccos(numpy.clip(cosine, -1, 1))) < farthest

    def bounds(self):
        """A square about what is shown, but for the last degrees before a pole, which may lie far away."""
        of_use = self.is_shown & (numpy.abs(self.places.y) < 85)
        x, y = self.x[of_use], self.y[of_use]
        if not len(x):
            return None
        middle = ((x.min() + x.max()) / 2, (y.min() + y.max()) / 2)
        half = max(x.max() - x.min(), y.max() - y.min()) / 2 * 1.02
        return [middle[0] - half, middle[1] - half, middle[0] + half, middle[1] + half] if half > 0 else None

    def struck(self, mask, bounds, pixels):
        """The pixels of a picture in which places of the mask lie."""
        scale = pixels / (bounds[2] - bounds[0])
        with numpy.errstate(invalid="ignore"):
            column = numpy.floor((self.x[mask] - bounds[0]) * scale)
            row = numpy.floor((bounds[3] - self.y[mask]) * scale)
        inside = (column >= 0) & (column < pixels) & (row >= 0) & (row < pixels)
        hits = numpy.zeros((pixels, pixels), bool)
        hits[row[inside].astype(int), column[inside].astype(int)] = True
        return hits

    def is_within_reach(self, bounds, pixels):
        step = (bounds[2] - bounds[0]) / pixels
        x = bounds[0] + (numpy.arange(pixels) + 0.5) * step - self.middle[0]
        y = bounds[3] - (numpy.arange(pixels) + 0.5) * step - self.middle[1]
        return numpy.hypot(*numpy.meshgrid(x, y)) < self.reach * 0.99

    def pixels(self, bounds, pixels):
        """What each pixel must be, and whether it is judged."""
        land = self.struck(self.is_shown & self.places.is_land, bounds, pixels)
        sea = self.struck(self.is_shown & ~self.places.is_land, bounds, pixels)
        must = numpy.where(land, LAND, numpy.where(sea, SEA, NOTHING))
        surely = (land & ~near(sea)) | (sea & ~near(land))
        if not self.is_world:  # land ends at the area's border, and the sea goes on
            surely = surely & ~near(~land & ~sea, 1)
        else:  # beyond the globe there is nothing; its border is not judged
            nothing = ~near(land | sea, FAR)
            surely = surely & ~near(nothing, FAR + 2 * NEAR) | nothing
            surely &= self.is_within_reach(bounds, pixels)
        return must, surely & ~near(self.struck(self.is_unsure, bounds, pixels))


def layer(name, colour, file, table=None):
    symbol = {"type": "simpleFill", "color": colour}
    source = {"file": file, **({"layer": table} if table else {})}
    return {"type": "feature", "name": name, "source": source, "renderer": {"type": "simple", "symbol": symbol}}


class Page:
    """A map on a page, in files of its own."""

    def __init__(self, program, system, bounds, px_per_cm, layers=(), grids=()):
        self.program, self.px_per_cm = program, px_per_cm
        self.folder = tempfile.TemporaryDirectory()
        self.document = Path(self.folder.name) / "page.kdx"
        frame = {"type": "dataFrame", "handle": 1, "name": "Map", "map": 0, "rectangle": [1, 1, 1 + SIDE, 1 + SIDE]}
        self.document.write_text(json.dumps({
            "format": "plotvane-document", "version": 1, "page": {"form": "A4"},
            "elements": [{**frame, **({"grids": list(grids)} if grids else {})}],
            "maps": [{"name": "Map", "coordinateSystem": system, "bounds": bounds, "layers": list(layers)}]}))

    def picture(self):
        """Red, green and blue of the map's pixels, none where the export failed, and what was said."""
        image = self.document.with_suffix(".png")
        done = subprocess.run([self.program, "export", "--quiet", "--width", str(PAGE_WIDTH * self.px_per_cm), self.document,
                               image], stderr=subprocess.PIPE, text=True)
        if done.returncode != 0:
            return None, done.stderr.strip()
        rgb, edge, side = gdal.Open(str(image)).ReadAsArray()[:3], self.px_per_cm, SIDE * self.px_per_cm
        return rgb[:, rgb.shape[1] - edge - side:rgb.shape[1] - edge, edge:edge + side], done.stderr.strip()

    def scale(self):
        done = subprocess.run([self.program, "info", "--json", self.document], stdout=subprocess.PIPE, text=True)
        return json.loads(done.stdout)["maps"][0]["scale"]


class Task:
    def __init__(self, what, name, system, area=None):
        self.what, self.name, self.system = what, name, system
        self.px_per_cm = 15 if what == "sample" else 30
        self.is_world = area is None
        west, south, east, north = area or (-180, -90, 180, 90)
        self.area = (west, south, east + (360 if east < west else 0), north)

    def pixels(self):
        return SIDE * self.px_per_cm


@functools.lru_cache(maxsize=1)  # of the globe, in each process
def places_of(area, pixels, is_world):
    return Places(*area, 4 * pixels if is_world else 2 * pixels, 2 * pixels, is_world)


def is_right(task, share):
    return share is not None and share >= (RIGHT_OF_SAMPLE if task.what == "sample" else RIGHT)


def judged(task, program, keeps):
    """The share of pixels that are right, none where nothing can be judged, and what was said."""
    gdal.UseExceptions()
    warnings.simplefilter("ignore")  # pyproj's, about its own texts
    try:
        truth = Truth(task.system, places_of(task.area, task.pixels(), task.is_world), task.is_world)
        bounds = truth.bounds()
        if bounds is None:
            return told(task, program, "PROJ shows nothing")
        must, surely = truth.pixels(bounds, task.pixels())
        if not surely.any():
            return told(task, program, "nothing is sure")
        page = Page(program, task.system, bounds, task.px_per_cm, layers_of(task))
        if not task.is_world:
            Board(*task.area).write(page.document.with_name("board.geojson"))
        rgb, said = page.picture()
        if rgb is None:
            return 0, said
        red, green, blue = rgb
        got = numpy.where(green > 127, NOTHING, numpy.where(red > blue, LAND, SEA))
        share = (got == must)[surely].mean()
        for each in (NOTHING, SEA, LAND):  # what is rare counts by itself, too
            of_kind = surely & (must == each)
            if of_kind.mean() > 0.001:
                share = min(share, 1 - (1 - RIGHT) / (1 - RIGHT_OF_KIND) * (got != must)[of_kind].mean())
        if not is_right(task, share) and keeps:
            keep_picture(task, got, must, surely)
        if not said and not got.any() and must[surely].any():
            said = SILENT
        if task.what == "sample":
            crossings, scale = crossings_share(task, program, bounds), scale_error(truth, bounds, page.scale())
            said = f"crossings {crossings * 100:.1f} %, scale off by {scale * 100:.2f} % {said}"
            if crossings < 1 or scale > RIGHT_SCALE:
                share = min(share, crossings, 1 - scale)
        return share, said
    except pyproj.exceptions.ProjError as error:
        return told(task, program, f"PROJ: {error}")


def told(task, program, why):
    """Of what PROJ has no answer for: the program must not be silent, or draw something all the same."""
    half = 2e7
    rgb, said = Page(program, task.system, [-half, -half, half, half], task.px_per_cm, layers_of(task, "world")).picture()
    return (0, SILENT) if rgb is not None and not said and (rgb[1] > 127).all() else (None, why)


def layers_of(task, what=None):
    is_board = not task.is_world and what != "world"
    land = ("board.geojson",) if is_board else (str(SAMPLES / "world.gpkg"), "countries")
    return [layer("Sea", COLOURS[SEA], str(SAMPLES / "sphere.geojson")), layer("Land", COLOURS[LAND], *land)]


def crossings_share(task, program, bounds):
    """The least share that is dark: of the crossings of a grid's lines, of the middles of its meridians between them, and
    of its parallels."""
    grid = {"interval": Crossings(*task.area).interval, "labels": False,
            "lineSymbol": {"type": "simpleLine", "color": "#000000", "width": 2}}
    rgb, said = Page(program, task.system, bounds, task.px_per_cm, grids=[grid]).picture()
    shares = []
    for on in ((0, 0), (0.5, 0), (0, 0.5)):
        truth = Truth(task.system, Crossings(*task.area, on), task.is_world)
        for beside in (-0.01, 0.01):  # one on the border of what is shown may lie on either side
            other = Truth(task.system, Crossings(*task.area, on, beside), task.is_world)
            with numpy.errstate(invalid="ignore"):
                apart = numpy.hypot(other.x - truth.x, other.y - truth.y)
                truth.is_shown &= other.is_shown & (apart < (bounds[2] - bounds[0]) / task.pixels())
        must = truth.struck(truth.is_shown, bounds, task.pixels())
        shares.append(near(rgb[1] < 127, 1)[must].mean() if rgb is not None and must.any() else 0)
    return min(shares)


def scale_error(truth, bounds, scale):
    """By how much of it the map's scale differs from that along x at the centre, by PROJ's way back and a geodesic."""
    x, y = (bounds[0] + bounds[2]) / 2, (bounds[1] + bounds[3]) / 2
    step = (bounds[2] - bounds[0]) * 1e-4
    try:
        longitude, latitude = pyproj.Proj(truth.crs)([x - step, x + step], [y, y], inverse=True)
    except pyproj.exceptions.ProjError:
        return 0
    if not numpy.isfinite(longitude + latitude).all():
        return 0
    ground = truth.crs.get_geod().inv(longitude[0], latitude[0], longitude[1], latitude[1])[2]
    denominator = ground / (2 * step) * (bounds[2] - bounds[0]) / (SIDE / 100)
    return abs(scale / denominator - 1)


def keep_picture(task, got, must, surely):
    """What was drawn, what must be, and the pixels that differ."""
    palette = numpy.array([[255, 255, 255], [150, 190, 230], [190, 160, 90]], numpy.uint8)
    wrong = numpy.where((surely & (got != must))[..., None], numpy.uint8([255, 0, 0]), numpy.uint8([230, 230, 230]))
    all_three = numpy.concatenate([palette[got], palette[must], wrong], axis=1).transpose(2, 0, 1)
    OUT.mkdir(parents=True, exist_ok=True)
    raster = gdal.GetDriverByName("MEM").Create("", all_three.shape[2], all_three.shape[1], 3)
    raster.WriteArray(numpy.ascontiguousarray(all_three))
    name = "".join(letter if letter.isalnum() else "-" for letter in f"{task.what} {task.name}")
    gdal.GetDriverByName("PNG").CreateCopy(str(OUT / f"{name}.png"), raster)


def tasks(what):
    for authority in ("EPSG", "ESRI") if "areas" in what or "worlds" in what else ():
        known = query_crs_info(authority, PJType.PROJECTED_CRS)
        for info in known if authority == "EPSG" else known[:: max(1, len(known) // 100)]:
            code = f"{authority}:{info.code}"
            if "areas" in what and info.area_of_use:
                yield Task("area", f"{code} {info.name}", code, info.area_of_use.bounds)
            if "worlds" in what:
                yield Task("world", f"{code} {info.name}", code)
    if "projections" in what:
        for name in get_proj_operations_map():
            if name not in NOT_FLAT and is_projection(definition(name)):
                yield Task("projection", name, definition(name), LOCAL.get(name))
    if "sample" in what:
        for name in SAMPLE_PROJECTIONS:
            yield Task("sample", name, definition(name), LOCAL.get(name))
        for system in SAMPLE_WORLDS:
            yield Task("sample", system, system)
        for system, area in SAMPLE_AREAS.items():
            yield Task("sample", system, system, area)


def definition(name):
    return f"+proj={name} {PARAMETERS.get(name, '')} +R=6371000 +units=m +type=crs"


def is_projection(system):
    try:
        return pyproj.CRS(system).is_projected and numpy.isfinite(
            pyproj.Proj(system)([12.3, -100.3, 151.2], [34.5, 41.2, -33.4])).any()
    except pyproj.exceptions.ProjError:
        return False


def report(results, every):
    yield f"# Coordinate systems, held against PROJ {pyproj.proj_version_str}"
    yield ""
    yield (f"Made by `scripts/projections{f' --every {every}' if every > 1 else ''}`: the share of pixels whose colour is that "
           f"of the places which PROJ takes there; right from {RIGHT * 100:.1f} % on.")
    yield ""
    yield f"| what | judged | right | {SILENT} |"
    yield "|---|---:|---:|---:|"
    for what in ("area", "world", "projection", "sample"):
        of_kind = [(task, share, said) for task, share, said in results if task.what == what and share is not None]
        if of_kind:
            silent = sum(said == SILENT for _, _, said in of_kind)
            right = sum(is_right(task, share) for task, share, _ in of_kind)
            yield f"| {what}s | {len(of_kind)} | {right} ({100 * right / len(of_kind):.1f} %) | {silent} |"
    yield ""
    yield "| not right | % | said |"
    yield "|---|---:|---|"
    for task, share, said in sorted(results, key=lambda each: each[1] if each[1] is not None else 2):
        if not is_right(task, share):
            told = " ".join(said.split())[:160].replace("|", "/")
            yield f"| {task.what}: {task.name} | {f'{share * 100:.1f}' if share is not None else 'not judged'} | {told} |"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--what", default="areas,worlds,projections", metavar="LIST",
                        help="areas: projected systems of EPSG and ESRI over their areas of use; worlds: the same at the "
                             "world; projections: all of PROJ's own at the world; sample: sixty of all kinds, with half as "
                             "many pixels each way, and with them the crossings of a grid and the map's scale")
    parser.add_argument("--every", type=int, default=1, metavar="N", help="only every Nth system")
    parser.add_argument("--only", default="", metavar="TEXT", help="only systems whose name or definition contains the text")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), metavar="N", help="so many at once")
    parser.add_argument("--program", default=str(ROOT / "build/bin/plotvane"), metavar="FILE")
    parser.add_argument("--pictures", action="store_true",
                        help="keep what is not right in out/projections: as drawn, the truth, and where they differ")
    parser.add_argument("--keep", action="store_true", help="put the result into docs/projections.md")
    chosen = parser.parse_args()
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    if not Path(chosen.program).exists():
        sys.exit(f"{chosen.program} is missing: scripts/build build --preset=release plotvane")
    wanted = [task for number, task in enumerate(tasks(chosen.what.split(","))) if number % chosen.every == 0]
    wanted = [task for task in wanted if chosen.only.lower() in f"{task.what} {task.name} {task.system}".lower()]
    results = []
    with multiprocessing.Pool(chosen.jobs) as pool:
        for task, result in [(task, pool.apply_async(judged, (task, chosen.program, chosen.pictures))) for task in wanted]:
            share, said = result.get()
            results.append((task, share, said))
            if not is_right(task, share):
                print(f"{task.what} {task.name}: {f'{share * 100:.1f} %' if share is not None else 'not judged'} {said[:120]}",
                      flush=True)
    text = "\n".join(report(results, chosen.every)) + "\n"
    OUT.parent.mkdir(parents=True, exist_ok=True)
    OUT.with_suffix(".md").write_text(text)
    if chosen.keep:
        (ROOT / "docs/projections.md").write_text(text)
    print(text.split("| not right")[0])
    sys.exit(any(task.what == "sample" and not is_right(task, share) for task, share, _ in results))


if __name__ == "__main__":
    main()
