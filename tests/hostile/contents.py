"""Documents of very many or very deep things, and pictures, that take more to read than they are worth."""
import base64
import json

from parts import HUGE, case, document, layer, marker, one_map, png, points, svg, text


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
