"""Presentations with what LibreOffice would lose or change, made with the sample's kit and valid but for one feature.

A feature is a function that adds itself to a `Deck`; `DECKS` says which ones a deck has.
"""

import pathlib
import random
import re
import sys
import zipfile
from posixpath import dirname, join, normpath, relpath

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "sample"))

from kit import deck  # noqa: E402
from kit.deck import HEAD, OFFICE, PML, box, emu  # noqa: E402

MICROSOFT = "http://schemas.microsoft.com/office"
SPACES = deck.SPACES
PRESENTATION = "ppt/presentation.xml"
GUID = "{{6C2E0E1A-6B1B-4E0A-9B57-2D5B7D7C{:04X}}}"
PICTURE = bytes.fromhex("89504e470d0a1a0a0000000d49484452000000010000000108000000003a7e9b55"
                        "0000000a49444154789c63680000008200817714c2cd0000000049454e44ae426082")


class Deck:
    """The parts of a presentation by their names, ready to be added to and changed."""

    def __init__(self, slides, layouts=tuple(deck.LAYOUTS)):
        made = [deck.Slide("Title Only").title(f"Slide {n + 1}") for n in range(slides)]
        self.parts = dict(deck.package_parts(deck.harbour(layouts), made, deck.core("Rich", "Tests", deck.CREATED),
                                             deck.app("Microsoft Office PowerPoint", slides, "Harbour")))
        self.stored = set()
        self.raw = []

    def edit(self, name, *changes):
        """Replaces texts of a part, each of which has to be there."""
        for old, new in changes:
            assert old in self.parts[name], f"{old} is not in {name}"
            self.parts[name] = self.parts[name].replace(old, new, 1)

    def relate(self, source, kind, target, external=False):
        """A relationship of a part, or of the package for "", to another part or an address; its id."""
        rels = join(dirname(source), "_rels", source.rpartition("/")[2] + ".rels")
        self.parts.setdefault(rels, deck.relations())
        identity = f"rIdX{self.parts[rels].count('<Relationship ') + 1}"
        kind = kind if "://" in kind else f"{OFFICE}/{kind}"
        where = f'Target="{target}" TargetMode="External"' if external else \
            f'Target="{relpath(target, dirname(source) or ".")}"'
        self.edit(rels, ("</Relationships>", f'<Relationship Id="{identity}" Type="{kind}" {where}/></Relationships>'))
        return identity

    def declare(self, name, content_type):
        row = (f'<Default Extension="{name}" ContentType="{content_type}"/>' if "/" not in name
               else f'<Override PartName="/{name}" ContentType="{content_type}"/>')
        if row not in self.parts["[Content_Types].xml"]:
            before = "<Override" if "/" not in name else "</Types>"
            self.edit("[Content_Types].xml", (before, row + before))

    def add(self, source, kind, name, content, content_type):
        """A new part that another one leads to; the relationship's id. Bytes take their type by their extension."""
        self.parts[name] = content
        self.declare(name if isinstance(content, str) else name.rpartition(".")[2], content_type)
        return self.relate(source, kind, name)

    def in_presentation(self, before, xml):
        self.edit(PRESENTATION, (before, xml + before))

    def in_tree(self, slide, xml):
        self.edit(slide, ("</p:spTree>", xml + "</p:spTree>"))

    def extend(self, uri, xml):
        """An extension of the presentation, whose list of them is made if there is none."""
        if "<p:extLst>" not in self.parts[PRESENTATION]:
            self.in_presentation("</p:presentation>", "<p:extLst></p:extLst>")
        self.in_presentation("</p:extLst>", f'<p:ext uri="{uri}">{xml}</p:ext>')

    def slides(self):
        return sorted((n for n in self.parts if re.fullmatch(r"ppt/slides/slide\d+\.xml", n)),
                      key=lambda n: int(re.findall(r"\d+", n)[0]))

    def write(self, path):
        with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
            for name, content in [*self.parts.items(), *self.raw]:
                package.writestr(name, content, zipfile.ZIP_STORED if name in self.stored else zipfile.ZIP_DEFLATED)
        return path


def picture(number, name, embed, media=""):
    return (f'<p:pic><p:nvPicPr><p:cNvPr id="{number}" name="{name}"/><p:cNvPicPr/><p:nvPr>{media}</p:nvPr></p:nvPicPr>'
            f'<p:blipFill><a:blip r:embed="{embed}"/><a:stretch><a:fillRect/></a:stretch></p:blipFill><p:spPr>'
            f'{box(500, 300, 100, 60)}<a:prstGeom prst="rect"><a:avLst/></a:prstGeom></p:spPr></p:pic>')


def animations(d):
    step = ('<p:par><p:cTn id="{}" {}><p:stCondLst><p:cond delay="{}"/></p:stCondLst><p:childTnLst>{}</p:childTnLst>'
            "</p:cTn></p:par>")
    effect = ('<p:set><p:cBhvr><p:cTn id="6" dur="1" fill="hold"/><p:tgtEl><p:spTgt spid="2"/></p:tgtEl><p:attrNameLst>'
              "<p:attrName>style.visibility</p:attrName></p:attrNameLst></p:cBhvr>"
              '<p:to><p:strVal val="visible"/></p:to></p:set>')
    clicked = step.format(3, 'fill="hold"', "indefinite", step.format(4, 'fill="hold"', 0, step.format(
        5, 'presetID="1" presetClass="entr" presetSubtype="0" fill="hold" grpId="0" nodeType="clickEffect"', 0, effect)))
    timing = ('<p:timing><p:tnLst><p:par><p:cTn id="1" dur="indefinite" restart="never" nodeType="tmRoot">'
              '<p:childTnLst><p:seq concurrent="1" nextAc="seek"><p:cTn id="2" dur="indefinite" nodeType="mainSeq">'
              f"<p:childTnLst>{clicked}</p:childTnLst></p:cTn></p:seq></p:childTnLst></p:cTn></p:par></p:tnLst>"
              '<p:bldLst><p:bldP spid="2" grpId="0"/></p:bldLst></p:timing>')
    for slide in d.slides()[1:]:
        d.edit(slide, ("</p:sld>", '<mc:AlternateContent xmlns:mc="http://schemas.openxmlformats.org/markup-'
                                   f'compatibility/2006"><mc:Choice xmlns:p14="{MICROSOFT}/powerpoint/2010/main" '
                                   'Requires="p14"><p:transition spd="slow" p14:dur="2000"><p14:vortex dir="r"/>'
                                   '</p:transition></mc:Choice><mc:Fallback><p:transition spd="slow"><p:fade/>'
                                   f"</p:transition></mc:Fallback></mc:AlternateContent>{timing}</p:sld>"))


def sections(d):
    ids = re.findall(r'<p:sldId id="(\d+)"', d.parts[PRESENTATION])
    rows = "".join(f'<p14:section name="Part {n}" id="{GUID.format(n)}"><p14:sldIdLst>'
                   + "".join(f'<p14:sldId id="{i}"/>' for i in part) + "</p14:sldIdLst></p14:section>"
                   for n, part in enumerate((ids[:1], ids[1:]), start=1))
    d.extend("{521415D9-36F7-43E2-AB2F-B90AF26B5E84}",
             f'<p14:sectionLst xmlns:p14="{MICROSOFT}/powerpoint/2010/main">{rows}</p14:sectionLst>')


def film_and_sound(d):
    slide = d.slides()[-1]
    poster = d.add(slide, "image", "ppt/media/image1.png", PICTURE, "image/png")
    for number, (kind, ending, mime) in enumerate((("video", "mp4", "video/mp4"), ("audio", "mp3", "audio/mpeg"))):
        part = f"ppt/media/media{number + 1}.{ending}"
        d.stored.add(part)
        noise = random.Random(number).randbytes(9999)
        embedded = d.add(slide, f"{MICROSOFT}/2007/relationships/media", part, noise, mime)
        d.in_tree(slide, picture(50 + number, f"The {kind}", poster,
                                 f'<a:{kind}File r:link="{d.relate(slide, kind, part)}"/><p:extLst><p:ext '
                                 f'uri="{{DAA4B4D4-6D71-4841-9C94-3DE7FCFB9230}}"><p14:media xmlns:p14="{MICROSOFT}/powerpoint'
                                 f'/2010/main" r:embed="{embedded}"/></p:ext></p:extLst>'))


def custom_parts(d):
    """One is the package's own, as some makers write it: a fault in the validator's eyes, which has to stay."""
    for number, source in enumerate(("", PRESENTATION), start=1):
        item = f"customXml/item{number}.xml"
        d.parts[item] = f'{HEAD}<filing xmlns="urn:tests"><case>{number}</case></filing>'
        d.relate(source, "customXml", item)
        d.add(item, "customXmlProps", f"customXml/itemProps{number}.xml",
              f'{HEAD}<ds:datastoreItem ds:itemID="{GUID.format(20 + number)}" xmlns:ds="http://schemas.openxmlformats.org'
              '/officeDocument/2006/customXml"><ds:schemaRefs/></ds:datastoreItem>',
              "application/vnd.openxmlformats-officedocument.customXmlProperties+xml")
    identity = d.add(PRESENTATION, "tags", "ppt/tags/tag1.xml",
                     f'{HEAD}<p:tagLst {SPACES}><p:tag name="OWNER" val="Controlling"/></p:tagLst>', f"{PML}.tags+xml")
    d.in_presentation("<p:defaultTextStyle>", f'<p:custDataLst><p:tags r:id="{identity}"/></p:custDataLst>')


def signature(d):
    base = "http://schemas.openxmlformats.org/package/2006/relationships/digital-signature"
    kind = "application/vnd.openxmlformats-package.digital-signature"
    d.add("", f"{base}/origin", "_xmlsignatures/origin.sigs", b"", f"{kind}-origin")
    d.add("_xmlsignatures/origin.sigs", f"{base}/signature", "_xmlsignatures/sig1.xml",
          f'{HEAD}<Signature xmlns="http://www.w3.org/2000/09/xmldsig#"/>', f"{kind}-xmlsignature+xml")


def main_type(name):
    def change(d):
        d.edit("[Content_Types].xml", (f"{PML}.presentation.main+xml", name))
    return change


def macros(d):
    d.add(PRESENTATION, f"{MICROSOFT}/2006/relationships/vbaProject", "ppt/vbaProject.bin", b"\xd0\xcf\x11\xe0" * 200,
          "application/vnd.ms-office.vbaProject")


def four_to_three(d):
    d.edit(PRESENTATION, (f'cx="{emu(960)}" cy="{emu(540)}"', f'cx="{emu(720)}" cy="{emu(540)}" type="screen4x3"'))


def designs(count):
    """More masters with their layouts and themes; the last slide takes the last one."""
    def change(d):
        first = {n: t for n, t in d.parts.items() if re.match("ppt/(slideMasters|slideLayouts|theme/theme1)", n)}
        layouts = sum("slideLayouts/slideLayout" in name for name in first)
        for design in range(1, count):
            def other(text, shift=design):
                text = re.sub(r"(slideMaster|theme)1\.xml", lambda m: f"{m[1]}{1 + shift}.xml", text)
                return re.sub(r"slideLayout(\d)\.xml", lambda m: f"slideLayout{int(m[1]) + layouts * shift}.xml", text)
            for name, text in first.items():
                text = re.sub(r'sldLayoutId id="(\d+)"', lambda m: f'sldLayoutId id="{int(m[1]) + 5 * design}"', text)
                d.parts[other(name)] = other(text).replace('"Harbour"', f'"Dock {design}"')
            rows = re.findall("<Override [^>]*/>", d.parts["[Content_Types].xml"])
            added = {other(row) for row in rows if re.search("(slideMaster|slideLayout[1-4]|theme)1?[.]xml", row)}
            d.edit("[Content_Types].xml", ("</Types>", "".join(sorted(added - set(rows))) + "</Types>"))
            identity = d.relate(PRESENTATION, "slideMaster", f"ppt/slideMasters/slideMaster{1 + design}.xml")
            d.in_presentation("</p:sldMasterIdLst>",
                              f'<p:sldMasterId id="{2147483648 + 5 * design}" r:id="{identity}"/>')
        last = d.slides()[-1].replace("slides/", "slides/_rels/") + ".rels"
        d.parts[last] = other(d.parts[last])
    return change


def heavy(d):
    """A picture of its own on each slide, of bytes that no compression makes smaller."""
    noise = random.Random(300).randbytes(700_000)
    for number, slide in enumerate(d.slides(), start=1):
        part = f"ppt/media/image{number}.png"
        d.stored.add(part)
        image = d.add(slide, "image", part, PICTURE + noise + number.to_bytes(2, "big"), "image/png")
        d.in_tree(slide, picture(60, "Noise", image))


def empty_list(d):
    d.in_presentation("<p:sldSz", "<p:sldIdLst/>")


def odd_names(d):
    """Names and folders of the maker's own choice, and targets from the root that spell them otherwise."""
    def moved(name):
        name = re.sub(r"slides/(_rels/)?slide", r"pages/\1Seite%20", name.replace("ppt/", "Deck/"))
        return name.replace("media/", "Bilder/").replace("presentation.xml", "MAIN.XML")

    def absolute(rels):
        source = dirname(dirname(rels))
        return lambda m: f'Target="/{moved(normpath(join(source, m[1]))).upper()}"'

    made = {}
    for name, text in d.parts.items():
        if name.endswith(".rels"):
            text = re.sub('Target="([^"]*)"(?! TargetMode)', absolute(name), text)
        made[moved(name)] = text
    made["[Content_Types].xml"] = re.sub('PartName="/([^"]*)"', lambda m: f'PartName="/{moved(m[1])}"',
                                         made["[Content_Types].xml"])
    d.parts, d.stored = made, {moved(name) for name in d.stored}


def default_namespace(d):
    for name, text in d.parts.items():
        if isinstance(text, str) and "xmlns:p=" in text:
            d.parts[name] = re.sub("(</?)p:", r"\1", text).replace("xmlns:p=", "xmlns=")


def in_utf_16(d):
    name = next(n for n in d.parts if n.lower().endswith(("presentation.xml", "main.xml")))
    d.parts[name] = d.parts[name].replace('encoding="UTF-8"', 'encoding="UTF-16"').encode("utf-16")


def strict(d):
    for name, text in d.parts.items():
        if isinstance(text, str) and "package/2006/content-types" not in text:
            text = re.sub("http://schemas.openxmlformats.org/((?:presentation|drawing)ml|officeDocument)/2006/",
                          r"http://purl.oclc.org/ooxml/\1/", text)
            d.parts[name] = text.replace("/extended-properties", "/extendedProperties")
    d.edit(PRESENTATION, ("<p:presentation ", '<p:presentation conformance="strict" '))


MACROS = "application/vnd.ms-powerpoint.{}.macroEnabled.main+xml"

# The name of the file, how many slides it has, and its features in their order; one layout is enough for many masters.
DECKS = {
    "rich.pptx": (3, [animations, sections, film_and_sound, custom_parts, designs(2)]),
    "signed.pptm": (3, [main_type(MACROS.format("presentation")), macros, signature, film_and_sound, four_to_three,
                        default_namespace, odd_names, in_utf_16]),
    "bare.potx": (0, [main_type(f"{PML}.template.main+xml")]),
    "bare.potm": (0, [main_type(MACROS.format("template")), macros, empty_list]),
    "heavy.pptx": (100, [heavy]),
    "masters.pptx": (2, [designs(40)]),
    "strict.pptx": (2, [strict]),
}


def write(folder, name):
    slides, features = DECKS[name]
    made = Deck(slides, ("Title Only",)) if name == "masters.pptx" else Deck(slides)
    for feature in features:
        feature(made)
    return made.write(folder / name)
