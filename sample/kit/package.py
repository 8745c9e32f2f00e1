"""Office packages are zip files of XML parts; these helpers write them so that equal content gives equal bytes."""

import pathlib
import zipfile

# The earliest date that a zip entry can carry: no run leaves its own time in a file.
EPOCH = (1980, 1, 1, 0, 0, 0)


def write_package(path, parts):
    """Writes (name, text or bytes) pairs in their order; readers want [Content_Types].xml first."""
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
        for name, content in parts:
            entry = zipfile.ZipInfo(name, EPOCH)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o644 << 16
            package.writestr(entry, content.encode("utf-8") if isinstance(content, str) else content)


def edit_package(path, edits):
    """Rewrites parts in place. `edits` maps a part's name to a function from old text to new text.

    An edit that changes nothing is a mistake: the part no longer looks as the edit expects.
    """
    with zipfile.ZipFile(path) as package:
        parts = [(info.filename, package.read(info)) for info in package.infolist()]
    missing = set(edits) - {name for name, _ in parts}
    if missing:
        raise ValueError(f"{path} has no part {sorted(missing)}")
    edited = []
    for name, content in parts:
        if name in edits:
            old = content.decode("utf-8")
            new = edits[name](old)
            if new == old:
                raise ValueError(f"the edit of {name} in {path} changed nothing")
            content = new.encode("utf-8")
        edited.append((name, content))
    write_package(path, edited)


def replace(old, new):
    """An edit that replaces a text which has to be there."""

    def edit(text):
        if old not in text:
            raise ValueError(f"{old!r} is not there to be replaced")
        return text.replace(old, new)

    return edit


def in_order(*edits):
    def edit(text):
        for one in edits:
            text = one(text)
        return text

    return edit


def output_folder(arguments, usage):
    if len(arguments) != 1 or arguments[0].startswith("-"):
        raise SystemExit(usage)
    folder = pathlib.Path(arguments[0])
    folder.mkdir(parents=True, exist_ok=True)
    return folder
