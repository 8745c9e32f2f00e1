"""The house colours of Harbour Logistics and the look of its charts."""

NAVY = "#12355B"
TEAL = "#1B8A9A"
AMBER = "#F2A541"
CORAL = "#E4572E"
SLATE = "#7C93AB"
GREEN = "#5B9A5F"
PALE = "#EAF1F6"
INK = "#22303F"
GREY = "#6B7785"
LINE = "#D5DEE6"
WHITE = "#FFFFFF"

SERIES = [NAVY, TEAL, AMBER, SLATE, CORAL, GREEN]
FONT = "Calibri"

# Natural size of a chart in pixels: on a slide of 16:9 it fills the room between the title and the source line.
WIDTH, HEIGHT = 1080, 486


def text(size, color=GREY, bold=False):
    return {"name": FONT, "size": size, "color": color, "bold": bold}


def solid(index):
    color = SERIES[index % len(SERIES)]
    return {"fill": {"color": color}, "border": {"none": True}}


def stroke(index, width=2.75, **more):
    return {"line": {"color": SERIES[index % len(SERIES)], "width": width, **more}}


def axis(name=None, **more):
    described = {
        "num_font": text(12),
        "line": {"color": LINE},
        "major_tick_mark": "none",
        "minor_tick_mark": "none",
    }
    if name:
        described.update(name=name, name_font=text(12, GREY))
    described.update(more)
    return described


def value_axis(name=None, **more):
    return axis(
        name,
        line={"none": True},
        major_gridlines={"visible": True, "line": {"color": LINE, "width": 0.75}},
        **more,
    )


def dress(chart, title, legend="bottom", size=(WIDTH, HEIGHT)):
    """What all charts have in common."""
    chart.set_title({"name": title, "name_font": text(18, NAVY, bold=True), "overlay": False})
    if legend:
        chart.set_legend({"position": legend, "font": text(12, INK)})
    else:
        chart.set_legend({"none": True})
    chart.set_chartarea({"fill": {"color": WHITE}, "border": {"none": True}})
    chart.set_plotarea({"fill": {"none": True}})
    chart.set_size({"width": size[0], "height": size[1]})
    return chart


def side_by_side(chart):
    """A round chart with its legend near it, instead of at the far edge of a wide frame."""
    chart.set_plotarea({"layout": {"x": 0.16, "y": 0.16, "width": 0.36, "height": 0.8}})
    chart.set_legend({
        "position": "right",
        "font": text(15, INK),
        "layout": {"x": 0.62, "y": 0.3, "width": 0.19, "height": 0.46},
    })
