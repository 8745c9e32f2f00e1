"""A small presentation, part by part. Lengths are points; a slide has 960 by 540 of them."""

import dataclasses
from xml.sax.saxutils import escape

from . import look
from .package import write_package

HEAD = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
SPACES = (
    'xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" '
    'xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships" '
    'xmlns:p="http://schemas.openxmlformats.org/presentationml/2006/main"'
)
RELATIONS = "http://schemas.openxmlformats.org/package/2006/relationships"
OFFICE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
PML = "application/vnd.openxmlformats-officedocument.presentationml"
SLIDE_WIDTH, SLIDE_HEIGHT = 960, 540
MARGIN = 48
CREATED = "2027-01-11T09:00:00Z"


def emu(points):
    return round(points * 12700)


def box(left, top, width, height):
    return (f'<a:xfrm><a:off x="{emu(left)}" y="{emu(top)}"/>'
            f'<a:ext cx="{emu(width)}" cy="{emu(height)}"/></a:xfrm>')


def fill(color):
    return f'<a:solidFill><a:schemeClr val="{color}"/></a:solidFill>'


class Shapes:
    """The shapes of one slide, layout or master; hands out their ids."""

    def __init__(self):
        self.xml = []

    def _identity(self, name):
        return f'<p:cNvPr id="{len(self.xml) + 2}" name="{escape(name)} {len(self.xml) + 1}"/>'

    def bar(self, name, frame, color):
        """A plain coloured area."""
        self.xml.append(
            f'<p:sp><p:nvSpPr>{self._identity(name)}<p:cNvSpPr/><p:nvPr userDrawn="1"/></p:nvSpPr>'
            f'<p:spPr>{box(*frame)}<a:prstGeom prst="rect"><a:avLst/></a:prstGeom>{fill(color)}'
            "<a:ln><a:noFill/></a:ln></p:spPr><p:txBody><a:bodyPr/><a:lstStyle/>"
            '<a:p><a:endParaRPr lang="en-US"/></a:p></p:txBody></p:sp>'
        )

    def holder(self, name, kind, frame=None, paragraphs=(), index=None, body="<a:bodyPr/>", style="",
               size=None, upright=False):
        """A placeholder. Without a frame it stands where the layout, or else the master, puts it."""
        given = (("type", kind), ("orient", "vert" if upright else None), ("sz", size), ("idx", index))
        attributes = "".join(f' {key}="{value}"' for key, value in given if value is not None)
        place = f'{box(*frame)}<a:prstGeom prst="rect"><a:avLst/></a:prstGeom>' if frame else ""
        text = "".join(paragraphs) or '<a:p><a:endParaRPr lang="en-US"/></a:p>'
        styles = f"<a:lstStyle>{style}</a:lstStyle>" if style else "<a:lstStyle/>"
        self.xml.append(
            f'<p:sp><p:nvSpPr>{self._identity(name)}<p:cNvSpPr><a:spLocks noGrp="1"/></p:cNvSpPr>'
            f"<p:nvPr><p:ph{attributes}/></p:nvPr></p:nvSpPr><p:spPr>{place}</p:spPr>"
            f"<p:txBody>{body}{styles}{text}</p:txBody></p:sp>"
        )

    def tree(self):
        return (
            '<p:spTree><p:nvGrpSpPr><p:cNvPr id="1" name=""/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>'
            '<p:grpSpPr><a:xfrm><a:off x="0" y="0"/><a:ext cx="0" cy="0"/><a:chOff x="0" y="0"/>'
            f'<a:chExt cx="0" cy="0"/></a:xfrm></p:grpSpPr>{"".join(self.xml)}</p:spTree>'
        )


def text_frame(anchor, inset=None, shrink=True):
    """How a placeholder sets its text: where it stands, with which margins, and whether too much of it shrinks."""
    insets = "" if inset is None else "".join(f' {side}Ins="{emu(inset)}"' for side in "ltrb")
    fit = "<a:normAutofit/>" if shrink else ""
    return f'<a:bodyPr vert="horz"{insets} rtlCol="0" anchor="{anchor}">{fit}</a:bodyPr>'


def paragraph(text, level=0):
    properties = f'<a:pPr lvl="{level}"/>' if level else ""
    return f'<a:p>{properties}<a:r><a:rPr lang="en-US"/><a:t>{escape(text)}</a:t></a:r></a:p>'


def field(kind, text):
    identity = {"slidenum": "{6C2E0E1A-6B1B-4E0A-9B57-2D5B7D7C1A01}",
                "datetimeFigureOut": "{6C2E0E1A-6B1B-4E0A-9B57-2D5B7D7C1A02}"}[kind]
    return (f'<a:p><a:fld id="{identity}" type="{kind}"><a:rPr lang="en-US"/><a:t>{text}</a:t></a:fld>'
            '<a:endParaRPr lang="en-US"/></a:p>')


LEVELS = [paragraph("Click to edit the text")] + [
    paragraph(f"{word} level", level) for level, word in enumerate(("Second", "Third"), start=1)
]
TITLE = (MARGIN, 22, SLIDE_WIDTH - 2 * MARGIN, 54)
BODY = (MARGIN, 104, SLIDE_WIDTH - 2 * MARGIN, 388)
NUMBER = (SLIDE_WIDTH - MARGIN - 90, 512, 90, 20)


def theme(name, dark, light, accents, links, fonts):
    """A theme of two background colours, six accents, the colours of new and visited links, head and body font."""
    def color(name, value):
        return f'<a:{name}><a:srgbClr val="{value.lstrip("#")}"/></a:{name}>'

    scheme = (
        '<a:dk1><a:sysClr val="windowText" lastClr="000000"/></a:dk1>'
        '<a:lt1><a:sysClr val="window" lastClr="FFFFFF"/></a:lt1>'
        + color("dk2", dark) + color("lt2", light)
        + "".join(color(f"accent{n}", value) for n, value in enumerate(accents, start=1))
        + color("hlink", links[0]) + color("folHlink", links[1])
    )
    major, minor = (f'<a:latin typeface="{font}"/><a:ea typeface=""/><a:cs typeface=""/>' for font in fonts)
    plain = '<a:solidFill><a:schemeClr val="phClr"/></a:solidFill>'
    line = (f'<a:ln w="{{}}" cap="flat" cmpd="sng" algn="ctr">{plain}<a:prstDash val="solid"/>'
            '<a:miter lim="800000"/></a:ln>')
    effect = "<a:effectStyle><a:effectLst/></a:effectStyle>"
    return (
        f'{HEAD}<a:theme xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" name="{name}">'
        f'<a:themeElements><a:clrScheme name="{name}">{scheme}</a:clrScheme>'
        f'<a:fontScheme name="{name}"><a:majorFont>{major}</a:majorFont><a:minorFont>{minor}</a:minorFont>'
        f'</a:fontScheme><a:fmtScheme name="{name}"><a:fillStyleLst>{plain * 3}</a:fillStyleLst>'
        f'<a:lnStyleLst>{"".join(line.format(w) for w in (6350, 12700, 19050))}</a:lnStyleLst>'
        f"<a:effectStyleLst>{effect * 3}</a:effectStyleLst><a:bgFillStyleLst>{plain * 3}</a:bgFillStyleLst>"
        "</a:fmtScheme></a:themeElements><a:objectDefaults/><a:extraClrSchemeLst/></a:theme>"
    )


def level(number, size, color, indent=0, bullet=None, bold=False):
    mark = (f'<a:buClr><a:schemeClr val="accent2"/></a:buClr><a:buFont typeface="Arial"/><a:buChar char="{bullet}"/>'
            if bullet else "<a:buNone/>")
    left = f' marL="{emu(indent)}" indent="{-emu(18) if bullet else 0}"'
    return (
        f'<a:lvl{number}pPr{left} algn="l" defTabSz="914400" rtl="0" eaLnBrk="1" latinLnBrk="0" hangingPunct="1">'
        f'<a:lnSpc><a:spcPct val="100000"/></a:lnSpc><a:spcBef><a:spcPts val="{900 if bullet else 0}"/></a:spcBef>{mark}'
        f'<a:defRPr sz="{size * 100}" b="{int(bold)}" kern="1200">{fill(color)}<a:latin typeface="+mn-lt"/>'
        f'<a:ea typeface="+mn-ea"/><a:cs typeface="+mn-cs"/></a:defRPr></a:lvl{number}pPr>'
    )


def small(align, color="accent4"):
    return f'<a:lvl1pPr algn="{align}"><a:defRPr sz="1100">{fill(color)}</a:defRPr></a:lvl1pPr>'


def plain_style():
    """How text looks that stands in no placeholder."""
    return '<a:defPPr><a:defRPr lang="en-US"/></a:defPPr>' + "".join(
        f'<a:lvl{n}pPr marL="{457200 * (n - 1)}" algn="l" defTabSz="914400" rtl="0" eaLnBrk="1" latinLnBrk="0" '
        f'hangingPunct="1"><a:defRPr sz="1800" kern="1200">{fill("tx1")}<a:latin typeface="+mn-lt"/>'
        f'<a:ea typeface="+mn-ea"/><a:cs typeface="+mn-cs"/></a:defRPr></a:lvl{n}pPr>'
        for n in range(1, 10)
    )


def master(shapes, title_style, body_style, layout_count):
    layouts = "".join(f'<p:sldLayoutId id="{2147483649 + n}" r:id="rId{1 + n}"/>' for n in range(layout_count))
    return (
        f'{HEAD}<p:sldMaster {SPACES}><p:cSld><p:bg><p:bgPr>{fill("bg1")}<a:effectLst/></p:bgPr></p:bg>{shapes.tree()}'
        '</p:cSld><p:clrMap bg1="lt1" tx1="dk1" bg2="lt2" tx2="dk2" accent1="accent1" accent2="accent2" '
        'accent3="accent3" accent4="accent4" accent5="accent5" accent6="accent6" hlink="hlink" folHlink="folHlink"/>'
        f"<p:sldLayoutIdLst>{layouts}</p:sldLayoutIdLst><p:txStyles><p:titleStyle>{title_style}</p:titleStyle>"
        f"<p:bodyStyle>{body_style}</p:bodyStyle><p:otherStyle>{plain_style()}</p:otherStyle></p:txStyles>"
        "</p:sldMaster>"
    )


def harbour_master(layout_count):
    shapes = Shapes()
    shapes.bar("Edge", (0, 0, 12, SLIDE_HEIGHT), "tx2")
    shapes.bar("Rule", (MARGIN, 80, 60, 3), "accent2")
    shapes.holder("Title Placeholder", "title", TITLE, [paragraph("Click to edit the title")],
                  body=text_frame("ctr", inset=0))
    shapes.holder("Text Placeholder", "body", BODY, LEVELS, index=1,
                  body=text_frame("t", inset=0))
    shapes.holder("Slide Number Placeholder", "sldNum", NUMBER, [field("slidenum", "‹#›")], index=4, size="quarter",
                  body=text_frame("ctr", inset=0, shrink=False),
                  style=small("r"))
    title_style = level(1, 28, "tx2", bold=True).replace("+mn-", "+mj-")
    body_style = (level(1, 22, "tx1", 18, "•") + level(2, 18, "tx1", 40, "–") + level(3, 16, "tx1", 62, "•")
                  + "".join(level(n, 16, "tx1", 62 + 22 * (n - 3), "•") for n in range(4, 10)))
    return master(shapes, title_style, body_style, layout_count)


def layout(name, kind, shapes, own_background=None):
    background = f"<p:bg><p:bgPr>{fill(own_background)}<a:effectLst/></p:bgPr></p:bg>" if own_background else ""
    shown = ' showMasterSp="0"' if own_background else ""
    return (
        f'{HEAD}<p:sldLayout {SPACES}{shown} type="{kind}" preserve="1"><p:cSld name="{name}">{background}'
        f"{shapes.tree()}</p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sldLayout>"
    )


def number(shapes):
    shapes.holder("Slide Number Placeholder", "sldNum", None, [field("slidenum", "‹#›")], index=12, size="quarter")


def title_slide():
    shapes = Shapes()
    shapes.bar("Edge", (0, 0, 12, SLIDE_HEIGHT), "accent2")
    shapes.bar("Rule", (84, 306, 90, 4), "accent3")
    shapes.holder("Title", "ctrTitle", (84, 170, 792, 120), [paragraph("Click to edit the title")],
                  body=text_frame("b"),
                  style=f'<a:lvl1pPr algn="l"><a:defRPr sz="4800" b="1">{fill("bg1")}</a:defRPr></a:lvl1pPr>')
    shapes.holder("Subtitle", "subTitle", (84, 326, 792, 80), [paragraph("Click to edit the subtitle")], index=1,
                  body=text_frame("t"),
                  style=f'<a:lvl1pPr marL="0" indent="0" algn="l"><a:buNone/><a:defRPr sz="2200">{fill("bg2")}'
                        "</a:defRPr></a:lvl1pPr>")
    return layout("Title Slide", "title", shapes, own_background="tx2")


def title_and_content():
    shapes = Shapes()
    shapes.holder("Title", "title", None, [paragraph("Click to edit the title")])
    shapes.holder("Content Placeholder", None, None, LEVELS, index=1)
    number(shapes)
    return layout("Title and Content", "obj", shapes)


def title_only():
    shapes = Shapes()
    shapes.holder("Title", "title", None, [paragraph("Click to edit the title")])
    number(shapes)
    return layout("Title Only", "titleOnly", shapes)


def blank():
    shapes = Shapes()
    number(shapes)
    return layout("Blank", "blank", shapes)


LAYOUTS = {
    "Title Slide": title_slide,
    "Title and Content": title_and_content,
    "Title Only": title_only,
    "Blank": blank,
}


@dataclasses.dataclass(frozen=True)
class Design:
    """What a presentation looks like: its parts, the layouts by their names."""

    theme: str
    master: str
    layouts: dict


def harbour(layouts=tuple(LAYOUTS)):
    colors = theme("Harbour", look.NAVY, look.PALE, look.SERIES[:6], (look.TEAL, look.SLATE), (look.FONT, look.FONT))
    return Design(colors, harbour_master(len(layouts)), {name: LAYOUTS[name]() for name in layouts})


class Slide:
    """A slide of a layout, filled through its placeholders."""

    def __init__(self, layout_name):
        self.layout = layout_name
        self.shapes = Shapes()

    def title(self, text, kind="title"):
        self.shapes.holder("Title", kind, None, [paragraph(text)])
        return self

    def text(self, *lines, kind=None, name="Content Placeholder"):
        self.shapes.holder(name, kind, None, [paragraph(line) for line in lines], index=1)
        return self

    def numbered(self, value):
        self.shapes.holder("Slide Number Placeholder", "sldNum", None, [field("slidenum", str(value))], index=12,
                           size="quarter")
        return self

    def xml(self):
        return (f"{HEAD}<p:sld {SPACES}><p:cSld>{self.shapes.tree()}</p:cSld>"
                "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sld>")


def relations(*targets):
    rows = "".join(
        f'<Relationship Id="rId{n}" Type="{kind if "://" in kind else OFFICE + "/" + kind}" Target="{target}"/>'
        for n, (kind, target) in enumerate(targets, start=1)
    )
    return f'{HEAD}<Relationships xmlns="{RELATIONS}">{rows}</Relationships>'


KINDS = {
    "ppt/presentation.xml": f"{PML}.presentation.main+xml",
    "ppt/presProps.xml": f"{PML}.presProps+xml",
    "ppt/viewProps.xml": f"{PML}.viewProps+xml",
    "ppt/tableStyles.xml": f"{PML}.tableStyles+xml",
    "ppt/theme/": "application/vnd.openxmlformats-officedocument.theme+xml",
    "ppt/slideMasters/": f"{PML}.slideMaster+xml",
    "ppt/slideLayouts/": f"{PML}.slideLayout+xml",
    "ppt/slides/": f"{PML}.slide+xml",
    "docProps/core.xml": "application/vnd.openxmlformats-package.core-properties+xml",
    "docProps/app.xml": "application/vnd.openxmlformats-officedocument.extended-properties+xml",
}


def content_types(parts, kinds=KINDS):
    """[Content_Types].xml; `kinds` gives a type for what the names of parts begin with."""
    rows = []
    for name, _ in parts:
        if name.endswith(".rels"):
            continue
        kind = next(kind for start, kind in kinds.items() if name.startswith(start))
        rows.append(f'<Override PartName="/{name}" ContentType="{kind}"/>')
    return (
        f'{HEAD}<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">'
        '<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
        f'<Default Extension="xml" ContentType="application/xml"/>{"".join(rows)}</Types>'
    )


def presentation(slide_count):
    slides = "".join(f'<p:sldId id="{256 + n}" r:id="rId{2 + n}"/>' for n in range(slide_count))
    slide_list = f"<p:sldIdLst>{slides}</p:sldIdLst>" if slides else ""
    return (
        f'{HEAD}<p:presentation {SPACES} saveSubsetFonts="1"><p:sldMasterIdLst><p:sldMasterId id="2147483648" '
        f'r:id="rId1"/></p:sldMasterIdLst>{slide_list}<p:sldSz cx="{emu(SLIDE_WIDTH)}" cy="{emu(SLIDE_HEIGHT)}"/>'
        f'<p:notesSz cx="6858000" cy="9144000"/><p:defaultTextStyle>{plain_style()}</p:defaultTextStyle>'
        "</p:presentation>"
    )


def core(title, author, created):
    date = (f'<dcterms:created xsi:type="dcterms:W3CDTF">{created}</dcterms:created>'
            f'<dcterms:modified xsi:type="dcterms:W3CDTF">{created}</dcterms:modified>') if created else ""
    return (
        f'{HEAD}<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" '
        'xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:dcterms="http://purl.org/dc/terms/" '
        'xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">'
        f"<dc:title>{escape(title)}</dc:title><dc:creator>{escape(author)}</dc:creator>{date}</cp:coreProperties>"
    )


def app(application, slide_count, company):
    return (
        f'{HEAD}<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties">'
        f"<Application>{application}</Application><Slides>{slide_count}</Slides>"
        f"<Company>{company}</Company><AppVersion>16.0000</AppVersion></Properties>"
    )


def package_parts(design, slides, core_properties, app_properties):
    """All parts of a presentation, [Content_Types].xml first."""
    layouts = list(design.layouts)
    properties = f"{HEAD}<p:{{}} {SPACES}/>"
    parts = [
        ("_rels/.rels", relations(
            ("officeDocument", "ppt/presentation.xml"),
            ("http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties",
             "docProps/core.xml"),
            ("extended-properties", "docProps/app.xml"),
        )),
        ("ppt/presentation.xml", presentation(len(slides))),
        ("ppt/_rels/presentation.xml.rels", relations(
            ("slideMaster", "slideMasters/slideMaster1.xml"),
            *(("slide", f"slides/slide{n + 1}.xml") for n in range(len(slides))),
            ("presProps", "presProps.xml"), ("viewProps", "viewProps.xml"), ("theme", "theme/theme1.xml"),
            ("tableStyles", "tableStyles.xml"),
        )),
        ("ppt/slideMasters/slideMaster1.xml", design.master),
        ("ppt/slideMasters/_rels/slideMaster1.xml.rels", relations(
            *(("slideLayout", f"../slideLayouts/slideLayout{n + 1}.xml") for n in range(len(layouts))),
            ("theme", "../theme/theme1.xml"),
        )),
    ]
    for n, name in enumerate(layouts, start=1):
        parts.append((f"ppt/slideLayouts/slideLayout{n}.xml", design.layouts[name]))
        parts.append((f"ppt/slideLayouts/_rels/slideLayout{n}.xml.rels",
                      relations(("slideMaster", "../slideMasters/slideMaster1.xml"))))
    for n, slide in enumerate(slides, start=1):
        used = layouts.index(slide.layout) + 1
        parts.append((f"ppt/slides/slide{n}.xml", slide.xml()))
        parts.append((f"ppt/slides/_rels/slide{n}.xml.rels",
                      relations(("slideLayout", f"../slideLayouts/slideLayout{used}.xml"))))
    parts += [
        ("ppt/presProps.xml", properties.format("presentationPr")),
        ("ppt/viewProps.xml", properties.format("viewPr")),
        ("ppt/theme/theme1.xml", design.theme),
        ("ppt/tableStyles.xml",
         f'{HEAD}<a:tblStyleLst xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" '
         'def="{5C22544A-7EE6-4342-B048-85BDC9FD1C3A}"/>'),
        ("docProps/core.xml", core_properties),
        ("docProps/app.xml", app_properties),
    ]
    return [("[Content_Types].xml", content_types(parts)), *parts]


def write_deck(path, title, slides, layouts=tuple(LAYOUTS)):
    write_package(path, package_parts(harbour(layouts), slides, core(title, "Group Controlling", CREATED),
                                      app("Microsoft Office PowerPoint", len(slides), "Harbour Logistics")))


def board_deck():
    return [
        Slide("Title Slide").title("Annual review 2026", kind="ctrTitle")
        .text("Harbour Logistics, board meeting of 28 January 2027", kind="subTitle", name="Subtitle"),
        Slide("Title and Content").title("Agenda")
        .text("The year in figures", "Revenue by segment", "Terminals and fleet", "Finance", "Outlook on 2027")
        .numbered(2),
        Slide("Title Only").title("The year in charts").numbered(3),
    ]
