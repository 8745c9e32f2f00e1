"""A private, headless office suite for what only a suite can write."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

PATIENCE = 60.0


@contextlib.contextmanager
def private_suite():
    """Yields the suite's Desktop; ends the suite and removes its profile afterwards."""
    import uno  # from the packages of the suite, so only asked for where one is needed
    from com.sun.star.connection import NoConnectException
    from com.sun.star.lang import DisposedException

    program = shutil.which("soffice")
    if not program:
        raise SystemExit("LibreOffice is missing: run scripts/setup")
    profile = pathlib.Path(tempfile.mkdtemp(prefix="murvane-sample-"))
    pipe = f"murvane-sample-{os.getpid()}"
    process = subprocess.Popen(
        [program, f"-env:UserInstallation={profile.as_uri()}", f"--accept=pipe,name={pipe};urp", "--headless",
         "--norestore", "--nologo", "--nodefault"],
        # With a local display, or none, the suite tries out its drawing for a second on a new profile.
        env={**os.environ, "DISPLAY": "none"}, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
    )
    try:
        local = uno.getComponentContext()
        resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
        deadline = time.monotonic() + PATIENCE
        while True:
            try:
                remote = resolver.resolve(f"uno:pipe,name={pipe};urp;StarOffice.ComponentContext")
                break
            except NoConnectException:
                if time.monotonic() > deadline or process.poll() is not None:
                    raise SystemExit("LibreOffice did not start") from None
                time.sleep(0.05)
        desktop = remote.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", remote)
        yield desktop
        with contextlib.suppress(DisposedException):
            desktop.terminate()
        process.wait(PATIENCE)
    finally:
        if process.poll() is None:
            process.kill()
            process.wait()
        shutil.rmtree(profile, ignore_errors=True)


def save_with_password(source, target, password):
    import uno
    from com.sun.star.beans import PropertyValue

    def option(name, value):
        return PropertyValue(name, 0, value, uno.Enum("com.sun.star.beans.PropertyState", "DIRECT_VALUE"))

    with private_suite() as desktop:
        document = desktop.loadComponentFromURL(source.resolve().as_uri(), "_blank", 0, (option("Hidden", True),))
        if document is None:
            raise SystemExit(f"LibreOffice cannot open {source}")
        document.storeToURL(target.resolve().as_uri(),
                            (option("FilterName", "Calc MS Excel 2007 XML"), option("Password", password)))
        document.close(True)
