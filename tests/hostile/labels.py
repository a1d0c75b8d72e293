"""Documents whose labels would take for ever."""
import random

from parts import case, fill, geojson, layer, line, marker, one_map


def labels(**more):
    return {"field": "name", "symbol": {"type": "text", "size": 4}, **more}


@case("a hundred thousand names, as much effort as there is to find them places")
def most_labels(folder):
    chance = random.Random(1)
    rows = (f"{chance.uniform(0, 100):.4f},{chance.uniform(0, 140):.4f},name {i}" for i in range(100000))
    (folder / "data.csv").write_text("x,y,name\n" + "\n".join(rows) + "\n")
    return one_map(layer("data.csv", marker(size=1), labels=labels()), labels={"effort": 20})


@case("names of sixteen thousand letters on points, lines and areas that have no size, or no end")
def longest_labels(folder):
    shapes = []
    for side in (0, 1e-9, 30, 1e12):
        ring = [[50, 50], [50 + side, 50], [50 + side, 50 + side], [50, 50]]
        shapes += [{"type": "Point", "coordinates": ring[1]}, {"type": "LineString", "coordinates": ring},
                   {"type": "Polygon", "coordinates": [ring]}]
    file = geojson(folder, shapes * 5, lambda i: {"name": ("long " * 4000)[:16384 - i]})
    looks = ((marker(), {}), (line(), {"linePlace": "curved", "repeat": 1}), (fill(), {}), (fill(), {"areaText": "curved"}))
    return one_map(*[layer(file, symbol, labels=labels(**more)) for symbol, more in looks], labels={"effort": 20})
