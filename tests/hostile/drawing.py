"""Maps, symbols, texts and what explains a map, that take more to draw than they are worth."""
from parts import (HUGE, case, document, fill, frame, geojson, layer, line, map_of, marker, one_map, points, star,
                   svg, text, zigzag)


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
