"""The workbench's companion: makes PDF and DXF files of pages drawn as SVG, and reads PDF files.

Started with a port of this machine, it connects there and answers until the connection ends:
    companion.py PORT
Page pictures are those of workbench/sheet: paths of M, L, H, V and z, rectangles and texts, with
classes that say what they are. PDF files are read by programs that did not write them.
"""
import importlib
import io
import json
import os
import re
import socket
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

POINTS_PER_MM = 72 / 25.4
SVG = "{http://www.w3.org/2000/svg}"
# Files of one content are one to the byte.
CREATED = "2000-01-01T00:00:00Z"
PICTURE_DPI = 20


class NotPossible(Exception):
    """Told to the workbench instead of an answer."""


def load(module, package):
    try:
        return importlib.import_module(module)
    except (ImportError, ValueError) as error:
        raise NotPossible(f"{package} is not installed ({error})") from error


# --- PDF, by librsvg and cairo.

def rsvg():
    gi = load("gi", "python3-gi")
    load("gi._gi_cairo", "python3-gi-cairo")
    try:
        gi.require_version("Rsvg", "2.0")
    except ValueError as error:
        raise NotPossible("gir1.2-rsvg-2.0 is not installed") from error
    return importlib.import_module("gi.repository.Rsvg")


def add_outline(surface, number, page):
    """Bookmarks: the sheet, and below it its views."""
    link = "page={} pos=[{:.2f} {:.2f}]"
    top = surface.add_outline(0, page["name"], link.format(number, 0, 0), 0)
    for view in page["views"]:
        x, y = (at * POINTS_PER_MM for at in view["place"])
        surface.add_outline(top, view["name"], link.format(number, x, y), 0)


def make_pdf(question):
    cairo = load("cairo", "python3-cairo")
    drawer = rsvg()
    out = io.BytesIO()
    surface = cairo.PDFSurface(out, 1, 1)
    for key, text in ((cairo.PDF_METADATA_TITLE, question["title"]),
                      (cairo.PDF_METADATA_SUBJECT, question["subject"]),
                      (cairo.PDF_METADATA_CREATOR, "workbench"),
                      (cairo.PDF_METADATA_CREATE_DATE, CREATED)):
        surface.set_metadata(key, text)
    for number, page in enumerate(question["pages"], 1):
        area = drawer.Rectangle()
        area.x = area.y = 0
        area.width, area.height = page["width"] * POINTS_PER_MM, page["height"] * POINTS_PER_MM
        surface.set_size(area.width, area.height)
        context = cairo.Context(surface)
        handle = drawer.Handle.new_from_data(page["svg"].encode())
        handle.render_document(context, area)
        add_outline(surface, number, page)
        context.show_page()
    surface.finish()
    return out.getvalue()


# --- DXF, by ezdxf.

class DxfPage:
    """A page's picture, element by element, in the model space of a DXF document."""

    def __init__(self, document, height):
        self.document = document
        self.space = document.modelspace()
        self.height = height

    def layer(self, name):
        if name not in self.document.layers:
            self.document.layers.add(name)
        return name

    def layer_of(self, element, layer):
        kind = element.get("class", "")
        if kind == "view":
            return self.layer("VIEW_" + element.get("data-view"))
        if kind in ("frame", "table", "dimension", "note"):
            return self.layer(kind.upper())
        return layer

    def add(self, element, layer="FRAME", look=None):
        """The element and all in it; `look` is what texts inherit."""
        look = dict(look or {"font-size": "5", "text-anchor": "start"})
        look.update({name: element.get(name) for name in look if element.get(name)})
        layer = self.layer_of(element, layer)
        tag, kind = element.tag.removeprefix(SVG), element.get("class", "")
        if tag == "text":
            self.add_text(element, layer, look)
        elif tag == "rect" and kind not in ("paper", "outline"):
            self.add_rectangle(element, layer)
        elif tag == "path":
            self.add_path(element.get("d", ""), layer, hidden=kind == "hidden")
        elif tag not in ("title", "style", "text"):
            for child in element:
                self.add(child, layer, look)

    def add_text(self, element, layer, look):
        x, y = (float(element.get(name)) for name in ("x", "y"))
        text = " ".join("".join(part.split("\n")) for part in element.itertext() if part)
        entity = self.space.add_text(
            text, dxfattribs={"layer": layer, "height": 0.7 * float(look["font-size"]),
                              "style": "SHEET"})
        align = "CENTER" if look["text-anchor"] == "middle" else "LEFT"
        entity.set_pos((x, self.height - y), align=align)

    def add_rectangle(self, element, layer):
        x, y, width, height = (float(element.get(name)) for name in ("x", "y", "width", "height"))
        self.add_line([(x, y), (x + width, y), (x + width, y + height), (x, y + height)], True,
                      layer, False)

    def add_line(self, points, closed, layer, hidden):
        if len(points) < 2:
            return
        attributes = {"layer": layer, "linetype": "DASHED" if hidden else "BYLAYER"}
        self.space.add_lwpolyline([(x, self.height - y) for x, y in points], close=closed,
                                  dxfattribs=attributes)

    def add_path(self, path, layer, hidden):
        points = []
        for step, numbers in re.findall(r"([MLHVz])([^MLHVz]*)", path):
            values = [float(value) for value in numbers.split()]
            if step in "Mz":
                self.add_line(points, step == "z", layer, hidden)
                points = []
            if step in "ML":
                points.append((values[0], values[1]))
            elif step == "H":
                points.append((values[0], points[-1][1]))
            elif step == "V":
                points.append((points[-1][0], values[0]))
        self.add_line(points, False, layer, hidden)


def make_dxf(question):
    ezdxf = load("ezdxf", "python3-ezdxf")
    ezdxf.options.write_fixed_meta_data_for_testing = True
    document = ezdxf.new("R2010", units=4)
    document.linetypes.add("DASHED", [3.0, 2.0, -1.0], description="hidden edges")
    document.styles.add("SHEET", font="simsun.ttc")
    for name, text in question["properties"].items():
        document.header.custom_vars.append(name, text)
    page = DxfPage(document, question["height"])
    page.add(ElementTree.fromstring(question["svg"]))
    size = (question["width"], question["height"])
    page.space.reset_extents((0, 0, 0), (*size, 0))
    page.space.reset_limits((0, 0), size)
    out = io.StringIO()
    document.write(out)
    return out.getvalue().replace("\n", "\r\n").encode("utf-8")


# --- Reading PDF, by poppler's programs.

def output_of(*command):
    try:
        done = subprocess.run(command, capture_output=True, check=False)
    except FileNotFoundError as error:
        raise NotPossible("poppler-utils is not installed") from error
    if done.returncode != 0:
        raise NotPossible("no PDF file: " + done.stderr.decode("utf-8", "replace").strip())
    return done.stdout


def facts_of(text):
    return dict(re.findall(r"^([^:\n]+):[ \t]*(.*)$", text, re.M))


def colour_of(file):
    """Which colours the pages show: "colour", "grey" or "mono"."""
    found = set()
    picture = output_of("pdftoppm", "-r", str(PICTURE_DPI * 4), "-aa", "no", "-aaVector", "no", file)
    while picture:
        _, width, height, _ = header = re.match(rb"(P6)\s+(\d+)\s+(\d+)\s+(\d+)\s", picture).groups()
        start = len(re.match(rb"P6\s+\d+\s+\d+\s+\d+\s", picture).group(0))
        end = start + 3 * int(width) * int(height)
        pixels = picture[start:end]
        found |= set(zip(pixels[0::3], pixels[1::3], pixels[2::3]))
        picture = picture[end:]
    if any(len(set(pixel)) > 1 for pixel in found):
        return "colour"
    return "mono" if found <= {(0, 0, 0), (255, 255, 255)} else "grey"


def bookmarks_of(file):
    """Of each page the names of its bookmarks."""
    text = output_of("pdftohtml", "-xml", "-i", "-stdout", file).decode("utf-8", "replace")
    names = {}
    for page, name in re.findall(r'<item page="(\d+)">(.*?)</item>', text):
        names.setdefault(int(page), []).append(name)
    return names


def read_pdf(content):
    with tempfile.TemporaryDirectory() as folder:
        file = os.path.join(folder, "read.pdf")
        with open(file, "wb") as out:
            out.write(content)
        facts = facts_of(output_of("pdfinfo", file).decode("utf-8", "replace"))
        texts = output_of("pdftotext", "-layout", file, "-").decode("utf-8", "replace").split("\f")
        names = bookmarks_of(file)
        fonts = len(output_of("pdffonts", file).splitlines()) > 2
        pages = [{"texts": [line.strip() for line in texts[at].splitlines() if line.strip()],
                  "names": names.get(at + 1, [])} for at in range(int(facts["Pages"]))]
        answer = {"pages": pages, "fonts": fonts, "colour": colour_of(file),
                  "title": facts.get("Title", ""), "subject": facts.get("Subject", "")}
    return json.dumps(answer).encode()


# --- The conversation.

def answer(question, attachment):
    wanted = question["want"]
    if wanted == "pdf":
        return make_pdf(question)
    if wanted == "dxf":
        return make_dxf(question)
    if wanted == "read pdf":
        return read_pdf(attachment)
    raise NotPossible(f"it knows nothing of {wanted}")


def main():
    with socket.create_connection(("127.0.0.1", int(sys.argv[1]))) as connection:
        connection.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        stream = connection.makefile("rwb")
        for line in stream:
            length, attached = (int(number) for number in line.split())
            question = json.loads(stream.read(length))
            attachment = stream.read(attached)
            try:
                word, content = "ok", answer(question, attachment)
            except NotPossible as error:
                word, content = "no", str(error).encode()
            except Exception as error:  # whatever it is, the workbench is told
                word, content = "no", f"{type(error).__name__}: {error}".encode()
            stream.write(f"{word} {len(content)}\n".encode() + content)
            stream.flush()


if __name__ == "__main__":
    main()
